// Records as JSON Lines: the stored record (data), the working record at the moment of storing
// (raw), or both in one object.
#pragma once

#include <cstdint>
#include <string>

#include "decode/FrontsDecoder.h"
#include "decode/aero/MetarRecord.h"
#include "decode/synop/SynopRecord.h"

namespace zg {

enum class RecordFields : std::uint8_t { Data, Raw, Both };

// Appends one line. Keys are the names of the fields, in the order of the records. In raw records a
// missing value is null.
void AppendRecord(std::string& out, RecordFields fields, const SynopRawData& raw,
                  const SynopData& data);
void AppendRecord(std::string& out, RecordFields fields, const MetarRawData& raw,
                  const MetarData& data);
void AppendRecord(std::string& out, const FrontsRow& row);

}  // namespace zg
