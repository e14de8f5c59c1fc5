#include "tables/StationText.h"

#include <string>

#include "decode/synop/SynopRecord.h"
#include "maps/LatLongUtility.h"
#include "text/TextRules.h"

namespace zg {
namespace {

// The texts that depend on the directory row alone (and, without a row, on the message).
const StationPlace* MakePlace(const StationBlock& block, const TextUtility& textUtility,
                              TextArena& arena) {
  auto* place = arena.Make<StationPlace>(1);
  StationPlace& result = *place;
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
  return place;
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
  StationTexts result;
  result.Place = stationRow < 0 ? MakePlace(block, textUtility, texts.Arena)
                                : texts.Stations.Get(static_cast<std::size_t>(stationRow),
                                                     [&](TextArena& arena) {
                                                       return MakePlace(block, textUtility, arena);
                                                     });
  result.MsgId = texts.Repeated(texts.MsgId, block.MsgId);
  result.Sender = texts.Repeated(texts.Sender, block.Sender);
  result.AddedInfo = texts.Repeated(texts.AddedInfo, block.AddedInfo);
  result.Type = texts.Repeated(texts.Type, block.Type);
  result.StationKind = block.Type == "BBXX" ? ClassifyStation(block.Station, block.Type)
                                            : std::int32_t{StationKinds::Land};
  return result;
}

}  // namespace zg
