// The leading part of every stored record: StationBlock made into texts.
#pragma once

#include <cstdint>
#include <string_view>

namespace zg {

// What is the same in all messages of a station. The texts are views into the store or into
// constant tables.
struct StationPlace {
  std::int32_t WMOIndex = -1;
  std::string_view State;
  std::string_view Station;
  std::string_view Country;  // "United States [CO]" where the state is known
  std::string_view IcaoName;
  std::string_view LatPosition;   // "41.48N", degrees and minutes
  std::string_view LongPosition;  // "012.14E"
  std::string_view StationHT;     // metres
  std::string_view SensorHT;
  std::string_view Quadrant;
};

inline constexpr StationPlace NoPlace;

// The texts of a message's station and heading. The place is shared by all records of the station.
struct StationTexts {
  const StationPlace* Place = &NoPlace;
  std::string_view MsgId;
  std::string_view Type;
  std::string_view Sender;
  std::string_view AddedInfo;
  std::int32_t StationKind = 0;  // 1 land, 2 ship, 3 buoy

  std::int32_t WMOIndex() const noexcept { return Place->WMOIndex; }
  std::string_view State() const noexcept { return Place->State; }
  std::string_view Station() const noexcept { return Place->Station; }
  std::string_view Country() const noexcept { return Place->Country; }
  std::string_view IcaoName() const noexcept { return Place->IcaoName; }
  std::string_view LatPosition() const noexcept { return Place->LatPosition; }
  std::string_view LongPosition() const noexcept { return Place->LongPosition; }
  std::string_view StationHT() const noexcept { return Place->StationHT; }
  std::string_view SensorHT() const noexcept { return Place->SensorHT; }
  std::string_view Quadrant() const noexcept { return Place->Quadrant; }
};

}  // namespace zg
