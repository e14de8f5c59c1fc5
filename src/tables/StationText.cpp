#include "tables/StationText.h"

#include <bit>
#include <cstdint>
#include <string>

#include "decode/synop/SynopRecord.h"
#include "maps/LatLongUtility.h"
#include "text/TextRules.h"

namespace zg {
namespace {

// Positions as texts, beside the texts that records have of other numbers.
enum class PositionRule : std::uint32_t { Latitude = 1000, Longitude };

std::string_view SharedPosition(PositionRule rule, float position, ValueTexts& values) {
  return values.Get(static_cast<std::uint32_t>(rule), std::bit_cast<std::uint32_t>(position), [&] {
    return rule == PositionRule::Latitude ? GetStationLatInText(position)
                                          : GetStationLongInText(position);
  });
}

// The texts of a station but for its position.
StationPlace* MakePlace(const StationBlock& block, const TextUtility& textUtility,
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
  result.StationHT = arena.Copy(block.StationHT);
  result.SensorHT = arena.Copy(block.SensorHT);
  if (block.Quadrant) {
    result.Quadrant = textUtility.Quadrant(static_cast<std::int16_t>(*block.Quadrant));
  }
  return place;
}

// The texts of a row of the directory. All are in `arena`: they outlive those of values.
const StationPlace* MakeRowPlace(const StationBlock& block, const TextUtility& textUtility,
                                 TextArena& arena) {
  StationPlace* place = MakePlace(block, textUtility, arena);
  if (block.LatPosition) place->LatPosition = arena.Copy(GetStationLatInText(*block.LatPosition));
  if (block.LongPosition) {
    place->LongPosition = arena.Copy(GetStationLongInText(*block.LongPosition));
  }
  return place;
}

// The texts of a station that only its message tells of: ships meet on the same tenths of a degree.
const StationPlace* MakeMessagePlace(const StationBlock& block, const TextUtility& textUtility,
                                     StoreTexts& texts) {
  StationPlace* place = MakePlace(block, textUtility, texts.Arena);
  if (block.LatPosition) {
    place->LatPosition = SharedPosition(PositionRule::Latitude, *block.LatPosition, texts.Values);
  }
  if (block.LongPosition) {
    place->LongPosition =
        SharedPosition(PositionRule::Longitude, *block.LongPosition, texts.Values);
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
  result.Place = stationRow < 0 ? MakeMessagePlace(block, textUtility, texts)
                                : texts.Stations.Get(
                                      static_cast<std::size_t>(stationRow), [&](TextArena& arena) {
                                        return MakeRowPlace(block, textUtility, arena);
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
