// Decodes a frontal analysis (bulletin "ASUS1") into the rows of the table "Fronts", which the maps
// draw.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "decode/BulletinMessage.h"

namespace zg {

// A point of the analysis: a pressure centre, the first point of a line, or a further one.
struct FrontsRow {
  std::int32_t Type = 0;    // 0 high, 1 low, 2 stationary, 3 occluded, 5 trough, 6 cold, 7 warm
                            // front, -1 a further point of the line before
  std::int32_t RecNum = 0;  // from 10000; the order of drawing
  std::string Validity;     // six characters
  std::string MsgTime;
  std::string Pressure;  // of a centre, hPa
  std::string Lat;       // whole degrees north, two figures
  std::string Long;      // whole degrees west, two or three figures
};

inline constexpr std::int32_t FirstFrontsRecord = 10000;

// The rows of an analysis. False if the words end behind the pressure of a centre: then the rows
// before it are there, that of the centre is not.
bool DecodeFronts(const BulletinMessage& message, std::vector<FrontsRow>& rows);

}  // namespace zg
