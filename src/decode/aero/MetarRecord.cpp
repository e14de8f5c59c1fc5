#include "decode/aero/MetarRecord.h"

#include <utility>

namespace zg {
namespace {
constexpr MetarRawSection BlankSection;
}

void ResetMetarRecord(MetarRawData& record) {
  // The sections not in use are as new, and the texts keep their memory: a reset costs little.
  for (std::size_t i = 0; i <= static_cast<std::size_t>(record.SectionIndex); ++i) {
    record.Section[i] = BlankSection;
  }
  record.Accepted = 0;
  record.Station = {};
  record.FilterFlags = 0;
  record.SectionIndex = 0;
  record.ForecastTemperature.fill(MissingByte);
  record.ForecastTemperatureHour.fill(MissingByte);
  record.Temperature = MissingFloat;
  record.Dewpoint = MissingFloat;
  record.RVRRunway = Unk;
  record.RVRVisibility = MissingShort;
  record.RVRVisibilitymax = MissingShort;
  record.VerticalVisibility = MissingShort;
  record.WindShearLevel = MissingByte;
  record.WindShearDir = MissingShort;
  record.WindShearSpeed = MissingByte;
  record.OtherRemarks.clear();
  record.WindRemarks.clear();
  record.MaxTemperature6h = MissingFloat;
  record.MinTemperature6h = MissingFloat;
  record.MaxTemperature24h = MissingFloat;
  record.MinTemperature24h = MissingFloat;
  record.PrecipHour = MissingShort;
  record.Precip3h = MissingShort;
  record.Precip6h = MissingShort;
  record.Precip24h = MissingShort;
  record.SnowDepth = MissingShort;
  record.PressTendency = MissingByte;
  record.PressTendencyVal = MissingFloat;
  record.LowCloudType = MissingByte;
  record.MiddleCloudType = MissingByte;
  record.HighCloudType = MissingByte;
  record.Sunshine = MissingShort;
  record.Water = MissingShort;
}

}  // namespace zg
