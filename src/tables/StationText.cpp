#include "tables/StationText.h"

#include <string>

#include "decode/synop/SynopRecord.h"
#include "maps/LatLongUtility.h"
#include "text/TextRules.h"

namespace zg {
namespace {

// The texts that depend on the directory row alone (and, without a row, on the message).
StationTexts MakeTexts(const StationBlock& block, const TextUtility& textUtility,
                       TextArena& arena) {
  StationTexts result;
  result.WMOIndex = block.WMOIndex;
  result.State = arena.Copy(block.State);
  result.Station = arena.Copy(block.Station);
  if (!block.State.empty() && block.Country == "United States") {
    result.Country = arena.Copy("United States [" + std::string(block.State) + "]");
  } else {
    result.Country = arena.Copy(block.Country);
  }
  result.IcaoName = arena.Copy(block.IcaoName);
  if (block.LatPosition) result.LatPosition = arena.Copy(GetStationLatInText(*block.LatPosition));
  if (block.LongPosition) {
    result.LongPosition = arena.Copy(GetStationLongInText(*block.LongPosition));
  }
  result.StationHT = arena.Copy(block.StationHT);
  result.SensorHT = arena.Copy(block.SensorHT);
  if (block.Quadrant) {
    result.Quadrant = textUtility.Quadrant(static_cast<std::int16_t>(*block.Quadrant));
  }
  return result;
}

const StationTexts& FindOrMake(const StationBlock& block, int stationRow,
                               const TextUtility& textUtility, StoreTexts& texts) {
  const auto row = static_cast<std::size_t>(stationRow);
  if (row >= texts.Stations.size()) texts.Stations.resize(row + 1);
  const StationTexts*& known = texts.Stations[row];
  if (known == nullptr) {
    auto* made = texts.Arena.Make<StationTexts>(1);
    *made = MakeTexts(block, textUtility, texts.Arena);
    known = made;
  }
  return *known;
}

}  // namespace

std::int32_t ClassifyStation(std::string_view Station, std::string_view Type) noexcept {
  if (Type == "AAXX") return StationKinds::Land;
  for (char c : Station.substr(0, 2)) {
    if (IsLetter(c)) return StationKinds::Ship;
  }
  return StationKinds::Buoy;
}

StationTexts FillStationTexts(const StationBlock& block, int stationRow,
                              const TextUtility& textUtility, StoreTexts& texts) {
  StationTexts result = stationRow < 0 ? MakeTexts(block, textUtility, texts.Arena)
                                       : FindOrMake(block, stationRow, textUtility, texts);
  result.MsgId = texts.Arena.Copy(block.MsgId);
  result.Type = texts.Arena.Copy(block.Type);
  result.Sender = texts.Arena.Copy(block.Sender);
  result.AddedInfo = texts.Arena.Copy(block.AddedInfo);
  result.StationKind = block.Type == "BBXX" ? ClassifyStation(block.Station, block.Type)
                                            : std::int32_t{StationKinds::Land};
  return result;
}

}  // namespace zg
