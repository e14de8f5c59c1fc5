#include "views/FilterMasks.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace zg {
namespace {

struct BoxCase {
  const char* Name;
  const FilterMask& Filter;
  std::size_t Index;
  std::uint8_t Bit;
  const char* Italian;
  const char* English;
};

const std::array<BoxCase, 7> Boxes = {{
    {"top right", QuadrantFilter(), 0, 1, "&Nord-est", "&North-east"},
    {"bottom right", QuadrantFilter(), 1, 2, "&Sud-est", "&South-east"},
    {"bottom left", QuadrantFilter(), 2, 4, "Sud-&ovest", "South-&west"},
    {"top left", QuadrantFilter(), 3, 8, "Nord-o&vest", "North-w&est"},
    {"buoy", StationFilter(), 0, 1, "Stazione Fissa di Mare (BUOY)", "Sea Fixed Station (BUOY)"},
    {"ship", StationFilter(), 1, 2, "Stazione Mobile di Mare (SHIP)", "Sea Mobile Station  (SHIP)"},
    {"land", StationFilter(), 2, 4, "Stazione di Terra (LAND)", "Ground Station (LAND)"},
}};

TEST(FilterMasks, BoxesStandForTheirBits) {
  for (const BoxCase& row : Boxes) {
    SCOPED_TRACE(row.Name);
    const FilterBox& box = row.Filter.Boxes[row.Index];
    EXPECT_EQ(box.Bit, row.Bit);
    EXPECT_EQ(box.Italian, row.Italian);
    EXPECT_EQ(box.English, row.English);
  }
  EXPECT_EQ(QuadrantFilter().Boxes.size(), 4u);
  EXPECT_EQ(StationFilter().Boxes.size(), 3u);
}

TEST(FilterMasks, NamesOfControlsAndParameters) {
  EXPECT_EQ(QuadrantFilter().Control, "chkQuadrantCheck");
  EXPECT_EQ(QuadrantFilter().Parameter, "QuadrantFilter");
  EXPECT_EQ(StationFilter().Control, "chkStation");
  EXPECT_EQ(StationFilter().Parameter, "StationType");
}

TEST(FilterMasks, EveryMaskIsReadBitByBit) {
  MessageFilters filters;
  for (unsigned mask = 0; mask < 256; ++mask) {
    filters.QuadrantMask = static_cast<std::uint8_t>(mask);
    filters.StationMask = static_cast<std::uint8_t>(mask);
    for (const BoxCase& row : Boxes) {
      EXPECT_EQ(IsBoxTicked(row.Filter, filters, row.Index), (mask & row.Bit) != 0)
          << row.Name << ", mask " << mask;
    }
    EXPECT_EQ(IsMaskEmpty(QuadrantFilter(), filters), mask % 16 == 0) << mask;
    EXPECT_EQ(IsMaskEmpty(StationFilter(), filters), mask % 8 == 0) << mask;
  }
}

struct TickCase {
  const char* Name;
  unsigned Before;
  std::size_t Index;
  bool Ticked;
  unsigned After;
};

constexpr std::array<TickCase, 6> Ticks = {{
    {"first of none", 0, 0, true, 1},
    {"last of none", 0, 3, true, 8},
    {"one of all", 15, 2, false, 11},
    {"the only one", 2, 1, false, 0},
    {"ticked already", 5, 0, true, 5},
    {"bits without a box stay", 0xF0, 1, true, 0xF2},
}};

TEST(FilterMasks, TickingChangesOneBit) {
  for (const TickCase& row : Ticks) {
    SCOPED_TRACE(row.Name);
    MessageFilters filters;
    filters.QuadrantMask = static_cast<std::uint8_t>(row.Before);
    TickBox(QuadrantFilter(), filters, row.Index, row.Ticked);
    EXPECT_EQ(filters.QuadrantMask, row.After);
    EXPECT_EQ(filters.StationMask, 7) << "the other filter";
  }
}

}  // namespace
}  // namespace zg
