// The coasts of the world, coarse enough for a small picture, from the vector files of the base map
// ("Coast.pnt" and "Island.pnt").
//
// Such a file is a row of points of three 16-bit numbers each, little-endian, without header: a
// code, latitude and longitude in minutes of arc, south and west negative. A code above 1000 begins
// a line, one from 1 to 1000 continues it, any other is no point.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

// Minutes of arc.
struct OutlinePoint {
  std::int16_t Lat;
  std::int16_t Long;
  bool operator==(const OutlinePoint&) const = default;
};

using OutlineLine = std::vector<OutlinePoint>;

// The lines of a vector file. Points nearer than `step` minutes to the one before, in latitude and
// in longitude, are left out, the ends of a line excepted; so is a line that is nowhere as long.
// An incomplete point at the end is not read.
std::vector<OutlineLine> ReadOutline(std::string_view bytes, int step);

// The coasts of continents and islands. A file that cannot be read gives none: the picture is
// drawn without.
std::vector<OutlineLine> ReadWorldOutline(const std::string& applicationPath, int step);

}  // namespace zg
