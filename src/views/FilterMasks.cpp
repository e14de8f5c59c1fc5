#include "views/FilterMasks.h"

#include <array>

namespace zg {
namespace {

constexpr std::array<FilterBox, 4> QuadrantBoxes = {{
    {1, "&Nord-est", "&North-east"},
    {2, "&Sud-est", "&South-east"},
    {4, "Sud-&ovest", "South-&west"},
    {8, "Nord-o&vest", "North-w&est"},
}};

constexpr std::array<FilterBox, 3> StationBoxes = {{
    {1, "Stazione Fissa di Mare (BUOY)", "Sea Fixed Station (BUOY)"},
    {2, "Stazione Mobile di Mare (SHIP)", "Sea Mobile Station  (SHIP)"},
    {4, "Stazione di Terra (LAND)", "Ground Station (LAND)"},
}};

constexpr FilterMask Quadrants = {"frmQuadrantFilter", "chkQuadrantCheck", "QuadrantFilter",
                                  &MessageFilters::QuadrantMask, QuadrantBoxes};
constexpr FilterMask Stations = {"frmStationFilter", "chkStation", "StationType",
                                 &MessageFilters::StationMask, StationBoxes};

}  // namespace

const FilterMask& QuadrantFilter() noexcept { return Quadrants; }
const FilterMask& StationFilter() noexcept { return Stations; }

bool IsBoxTicked(const FilterMask& filter, const MessageFilters& filters,
                 std::size_t index) noexcept {
  return (filters.*filter.Member & filter.Boxes[index].Bit) != 0;
}

void TickBox(const FilterMask& filter, MessageFilters& filters, std::size_t index,
             bool ticked) noexcept {
  const unsigned bit = filter.Boxes[index].Bit;
  const unsigned mask = filters.*filter.Member;
  filters.*filter.Member = static_cast<std::uint8_t>(ticked ? mask | bit : mask & ~bit);
}

bool IsMaskEmpty(const FilterMask& filter, const MessageFilters& filters) noexcept {
  for (std::size_t i = 0; i < filter.Boxes.size(); ++i) {
    if (IsBoxTicked(filter, filters, i)) return false;
  }
  return true;
}

}  // namespace zg
