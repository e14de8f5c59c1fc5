#include "views/GridText.h"

#include <algorithm>

namespace zg {
namespace {

constexpr std::string_view EmptyCell = " ";

constexpr char Lower(char c) noexcept {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// `part` is in small letters.
bool HoldsIgnoringCase(std::string_view text, std::string_view part) noexcept {
  if (text.size() < part.size()) return false;
  const auto found = std::search(text.begin(), text.end(), part.begin(), part.end(),
                                 [](char a, char b) { return Lower(a) == b; });
  return found != text.end();
}

}  // namespace

GridCell NextCell(const GlobalView& view, GridCell cell, FindDirection direction) {
  const std::size_t rows = view.RowCount();
  const std::size_t columns = view.ColumnCount();
  if (direction == FindDirection::Forward) {
    if (++cell.Column < columns) return cell;
    return {cell.Row + 1 < rows ? cell.Row + 1 : 0, 0};
  }
  if (cell.Column > 0) return {cell.Row, cell.Column - 1};
  return {(cell.Row > 0 ? cell.Row : rows) - 1, columns - 1};
}

std::optional<GridCell> FindCell(const GlobalView& view, std::string_view part, GridCell start,
                                 FindDirection direction) {
  if (part.empty() || start.Row >= view.RowCount() || start.Column >= view.ColumnCount()) {
    return std::nullopt;
  }
  std::string wanted(part);
  std::transform(wanted.begin(), wanted.end(), wanted.begin(), Lower);
  std::string scratch;
  GridCell cell = start;
  do {
    if (HoldsIgnoringCase(view.CellText(cell.Row, cell.Column, scratch), wanted)) return cell;
    cell = NextCell(view, cell, direction);
  } while (cell != start);
  return std::nullopt;
}

std::string RowsAsText(const GlobalView& view, std::span<const std::size_t> rows) {
  std::string text;
  std::string scratch;
  for (const std::size_t row : rows) {
    for (std::size_t column = 0; column < view.ColumnCount(); ++column) {
      if (column > 0) text += '\t';
      const std::string_view cell = view.CellText(row, column, scratch);
      if (cell != EmptyCell) text += cell;
    }
    text += '\n';
  }
  return text;
}

}  // namespace zg
