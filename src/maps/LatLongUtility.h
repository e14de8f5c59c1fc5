// Positions, from text to number and back.
//
// A number is tenths of a degree in 32 bits, north and east positive. A text is degrees, ".",
// minutes and the letter of the hemisphere: "41.48N" with two digits of degrees for a latitude,
// "012.14E" with three for a longitude. The point divides degrees from minutes; it is no decimal
// point.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zg {

// Position text of a ship or buoy, such as "45.30N 012.18E", from the amounts of latitude and
// longitude and the quadrant of the globe (WMO code table 3333: 1 NE, 3 SE, 5 SW, 7 NW). Empty for
// another quadrant and where latitude or longitude is missing.
std::string ComputeLatLong(std::optional<float> Lat, std::optional<float> Long,
                           std::optional<int> Quadrant);

// The number of a position text of 6 or 7 characters, blanks around it aside; negative if it ends
// in "S" or "W". A text of another length is 0.
float GetPosition(std::string_view Text);

// What becomes of 60 minutes that rounding the seconds has made.
enum class SixtyMinutes {
  Stay,         // the degree is raised and the minutes stay 60
  MakeADegree,  // the degree is raised and the minutes are 0
};

// Rounds the seconds of "DD.MM.SSX" or "DDD.MM.SSX" away (above 30 up). A text of 6 or 7 characters
// has none and comes back as it is; any other length gives an empty text.
std::string TrimLatLong(std::string_view Text, SixtyMinutes sixtyMinutes = SixtyMinutes::Stay);

// Position text of a number; minutes are rounded to whole ones, halves to even.
std::string GetStationLatInText(float Value);
std::string GetStationLongInText(float Value);

// The number of a text that holds a "." as GetPosition reads it, and of one without as the plain
// number that it is, already in tenths of a degree. Latitudes are negative with "S", longitudes
// with "W".
float GetStationLatInNum(std::string_view Text);
float GetStationLongInNum(std::string_view Text);

}  // namespace zg
