// METAR, SPECI and TAF made into texts, in the language and units in force: what grids, report
// windows, maps and exports show.
#pragma once

#include <cstdint>
#include <string>

#include "decode/MessageStore.h"
#include "decode/aero/MetarRecord.h"
#include "tables/ReportText.h"

namespace zg {

// The text of a set of weather bits: the words of the bits from 0 to 30 in rising order, joined by
// a blank.
std::string ComposeWeatherField(std::uint32_t mask, const TextUtility& textUtility);

// Adds a record to the store, made from the working record. `stationRow` is the number of the
// directory row of the station, -1 without one. What is missing leaves its text empty.
const MetarData& StoreMetarRecord(const MetarRawData& raw, int stationRow, const ReportUnits& units,
                                  MessageStore<MetarData>& store);

}  // namespace zg
