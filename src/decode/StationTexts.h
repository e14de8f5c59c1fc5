// The leading part of every stored record: StationBlock made into texts.
#pragma once

#include <cstdint>
#include <string_view>

namespace zg {

// The texts are views into the store's arena or into constant tables.
struct StationTexts {
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
  std::string_view MsgId;
  std::string_view Type;
  std::string_view Sender;
  std::string_view AddedInfo;
  std::int32_t StationKind = 0;  // 1 land, 2 ship, 3 buoy
};

}  // namespace zg
