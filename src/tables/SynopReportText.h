// SYNOP messages made into texts, in the language and units in force: what grids, report windows,
// maps and exports show.
#pragma once

#include "decode/MessageStore.h"
#include "decode/synop/SynopRecord.h"
#include "tables/ReportText.h"

namespace zg {

// Adds a record to the store, made from the working record. `stationRow` is the number of the
// directory row of the station, -1 without one. What is missing leaves its text empty.
const SynopData& StoreSynopRecord(const SynopRawData& raw, int stationRow, const ReportUnits& units,
                                  MessageStore<SynopData>& store);

}  // namespace zg
