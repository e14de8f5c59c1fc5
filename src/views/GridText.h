// What the window of a global view does with the texts of its grid: finding one, and handing rows
// on to other programs.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "views/GlobalView.h"

namespace zg {

enum class FindDirection { Forward, Backward };

// A cell of the grid. Cells are in reading order: row by row, each from left to right.
struct GridCell {
  std::size_t Row = 0;
  std::size_t Column = 0;

  bool operator==(const GridCell&) const = default;
};

// The next cell whose text holds `part`, beginning with `start` itself and going on at the other
// end of the grid until all cells have been looked at. Capital and small letters from A to Z are
// the same. Nothing for an empty part, a grid without cells, and a `start` outside of it.
std::optional<GridCell> FindCell(const GlobalView& view, std::string_view part, GridCell start,
                                 FindDirection direction = FindDirection::Forward);

// The cell behind or before another one, round the ends of the grid.
GridCell NextCell(const GlobalView& view, GridCell cell, FindDirection direction);

// Rows as other programs take them over a clipboard: a line each, ending in a line feed, with a tab
// between cells. A cell of one blank, which is an empty one, is written as such.
std::string RowsAsText(const GlobalView& view, std::span<const std::size_t> rows);

}  // namespace zg
