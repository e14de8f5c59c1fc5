// The leading part of every working record: which station sent the message and how it came.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zg {

// What a decoder and the station directory know of a station, before it is made into texts. The
// texts are views into the message or the directory, valid while both stand.
struct StationBlock {
  std::int32_t WMOIndex = -1;  // block and station number as one number, -1 without one
  std::string_view State;      // two letters, mostly empty
  std::string_view Station;    // IIiii, indicator or call sign; the place name once it is found
  std::string_view Country;
  std::string_view IcaoName;
  std::optional<float> LatPosition;   // tenths of a degree, north positive
  std::optional<float> LongPosition;  // tenths of a degree, east positive
  std::string_view StationHT;         // metres, at least four digits
  std::string_view SensorHT;
  std::optional<int> Quadrant;   // quadrant of the globe Qc: 1, 3, 5, 7 (WMO code table 3333)
  std::string_view MsgId;        // TTAAii of the bulletin
  std::string_view Type;         // AAXX, BBXX, METAR, SPECI or TAF
  std::string_view Sender;       // CCCC of the bulletin
  std::string_view AddedInfo;    // BBB of the bulletin
  std::int32_t StationKind = 0;  // 1 land, 2 ship, 3 buoy; set in the stored record
};

}  // namespace zg
