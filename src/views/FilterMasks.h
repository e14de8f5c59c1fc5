// The two filters that are a mask of bits, by quadrant of the globe and by kind of station, as
// data: what their check boxes are called, which bit each stands for, and where the mask is kept.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "decode/MessageFilters.h"

namespace zg {

// A check box; its place in the table is its index in the control array.
struct FilterBox {
  std::uint8_t Bit;
  std::string_view Italian;
  std::string_view English;
};

struct FilterMask {
  std::string_view Form;
  std::string_view Control;              // the control array of the check boxes
  std::string_view Parameter;            // where the mask is stored, as a decimal number
  std::uint8_t MessageFilters::*Member;  // where the decoders read it
  std::span<const FilterBox> Boxes;
};

// Boxes clockwise around the picture of the world, from its top right corner: north-east,
// south-east, south-west, north-west (quadrants of the globe 1, 3, 5, 7, WMO code table 3333).
const FilterMask& QuadrantFilter() noexcept;

// Boxes for buoys, ships and land stations.
const FilterMask& StationFilter() noexcept;

// True if the box at `index` is to be ticked.
bool IsBoxTicked(const FilterMask& filter, const MessageFilters& filters,
                 std::size_t index) noexcept;

// Sets or clears the bit of the box at `index`; all other bits stay.
void TickBox(const FilterMask& filter, MessageFilters& filters, std::size_t index,
             bool ticked) noexcept;

// True if no box is ticked: then every message is dropped.
bool IsMaskEmpty(const FilterMask& filter, const MessageFilters& filters) noexcept;

}  // namespace zg
