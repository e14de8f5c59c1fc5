// A global view without its window: which records of a store are rows, in which order, which fields
// are columns, and the text of every cell. The window asks and paints; CSV files are written from
// the same.
//
// The rows are a snapshot: a record that is decoded later is no row before the next refresh. Cells
// are read from the store when they are asked for, which saves copying every text of every record;
// so whoever is about to reset or refill the store freezes the view first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "views/GlobalViewTable.h"

namespace zg {

// The parameter that says whether cells show their units: a number, 0 for no. Both views share it.
inline constexpr std::string_view UnitsParameter = "UnitsOnGlobalView";

class GlobalView {
 public:
  // A view without rows and columns: all boxes ticked, all countries, units shown. The titles stay
  // in the language of this moment. Nothing is owned.
  GlobalView(const GlobalViewTable& table, const MessageStores& stores, const TextUtility& texts);
  GlobalView(const GlobalView&) = delete;
  GlobalView& operator=(const GlobalView&) = delete;

  const GlobalViewTable& Table() const noexcept { return table_; }

  // --- Columns -----------------------------------------------------------------------------------

  // Makes the columns from the text of the parameter, in the order of the fields. To be called
  // before there are rows.
  void SetColumns(std::string_view fieldSelection);

  std::size_t ColumnCount() const noexcept { return columns_.size(); }
  // The field that a column was made for, with its width and alignment.
  const GlobalViewField& ColumnField(std::size_t column) const {
    return table_.Field(columns_[column]);
  }
  std::string_view Heading(std::size_t column) const { return Title(columns_[column]); }

  // --- Choices of the user: they take effect with the next refresh -------------------------------

  std::int32_t FilterMask() const noexcept { return filterMask_; }
  // Ticks a check box, or not.
  void SetFilter(unsigned box, bool ticked) noexcept;

  const std::string& SelectedCountry() const noexcept { return selectedCountry_; }
  // "*" and an empty text let all countries pass.
  void SetSelectedCountry(std::string_view country) { selectedCountry_ = country; }

  bool UnitsShown() const noexcept { return unitsShown_; }
  void SetUnitsShown(bool shown) noexcept { unitsShown_ = shown; }

  // "*" and the countries of all rows that there have been, in the order of their coming; states
  // are left away. Only ever grows.
  const std::deque<std::string>& Countries() const noexcept { return countries_; }

  // True if a record is to be a row: of the country chosen, and with a ticked bit in every group of
  // boxes.
  bool CheckRecordFilter(std::int32_t Flags, std::string_view Country) const noexcept;

  // --- Rows --------------------------------------------------------------------------------------

  // Shows 30 rows whose every cell holds the text: the shape of a grid that is about to be filled.
  void FillAllItem(std::string_view FillString);

  // Makes the rows anew, in the order of the store and not sorted.
  void RefreshGlobalList();

  // Keeps the cells as they are, in a copy, so that the rows stay when the records go.
  void Freeze();

  std::size_t RowCount() const noexcept { return rows_.size(); }

  // The text of a cell: without units where they are not shown, one blank for an empty one; the
  // first column is the station as it stands. The view holds until `scratch` changes or the rows or
  // the store do.
  std::string_view CellText(std::size_t row, std::size_t column, std::string& scratch) const;
  std::string CellText(std::size_t row, std::size_t column) const;

  // The main text of a row, the station: what its tool tip shows.
  std::string RowText(std::size_t row) const { return CellText(row, 0); }

  // The place of a row's record in the store, read from the cell with the number of the record.
  // Nothing without such a column, and where the cell holds no number from 1.
  std::optional<std::size_t> RecordOfRow(std::size_t row) const;

  // A click on the heading of a column: sorts the rows by text, ascending, and descending if the
  // same field was sorted ascending by the click before. The key is the number of the field, taken
  // for the position of a column: where fields are hidden that is another column, or none, and then
  // the rows stay as they are. Rows with the same text keep their order.
  void ClickColumn(std::size_t column);

  // --- Captions ----------------------------------------------------------------------------------

  // "Synop Meteo Data: 12/340 Station(s)": rows and records at the last refresh.
  std::string RowsCaption() const;

 private:
  // The rows' texts in one piece: cell i ends at Ends[i].
  struct Copy {
    std::string Text;
    std::vector<std::uint32_t> Ends;
  };

  std::string_view Title(std::size_t field) const noexcept;
  std::string_view StoredCell(std::size_t record, std::size_t position, std::string& scratch) const;
  std::string_view FrozenCell(std::size_t row, std::size_t position) const noexcept;
  std::string_view Cell(std::size_t row, std::size_t position, std::string& scratch) const;
  void AddCountry(std::string_view country);
  void Sort(std::size_t position, bool descending);

  const GlobalViewTable& table_;
  const MessageStores& stores_;
  const TextUtility& texts_;
  const bool italian_;

  std::vector<std::size_t> columns_;      // fields, as the headings have them
  std::vector<std::size_t> cells_ = {0};  // fields, as the cells of a row have them
  std::int32_t filterMask_;
  std::string selectedCountry_ = "*";
  bool unitsShown_ = true;
  std::deque<std::string> countries_ = {"*"};
  std::unordered_set<std::string_view> countrySet_;

  std::vector<std::uint32_t> rows_;  // records of the store, or rows of the copy
  std::size_t recordCount_ = 0;      // at the last refresh, as the next two
  bool unitsInRows_ = true;
  TextUtility rowTexts_;  // its language
  std::optional<Copy> copy_;

  std::optional<std::size_t> lastSortKey_;
  bool descending_ = false;
};

// Captions of the window that do not depend on its rows.
std::string_view LoadingCaption(const TextUtility& texts) noexcept;  // while it is being filled
std::string_view CountryCaption(const TextUtility& texts) noexcept;  // of the country box

}  // namespace zg
