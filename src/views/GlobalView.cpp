#include "views/GlobalView.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "decode/ListUtility.h"
#include "text/TextArena.h"
#include "text/TextRules.h"
#include "views/FieldSelection.h"

namespace zg {
namespace {

constexpr std::string_view AllCountries = "*";
constexpr std::size_t RowsOfShape = 30;

// The country of a record without the state behind it: "United States [CO]".
std::string_view WithoutState(std::string_view country) noexcept {
  constexpr std::string_view unitedStates = "United States";
  return country.starts_with(unitedStates) ? unitedStates : country;
}

}  // namespace

GlobalView::GlobalView(const GlobalViewTable& table, const MessageStores& stores,
                       const TextUtility& texts)
    : table_(table),
      stores_(stores),
      texts_(texts),
      italian_(texts.IsItalian()),
      filterMask_(static_cast<std::int32_t>((1U << table.FilterBoxes.size()) - 1)),
      countrySet_{countries_.front()},
      rowTexts_(texts) {}

std::string_view GlobalView::Title(std::size_t field) const noexcept {
  const Caption& title = table_.Field(field).Title;
  return italian_ ? title.Italian : title.English;
}

void GlobalView::SetColumns(std::string_view fieldSelection) {
  const FieldSelection shown = DecodeFieldSelection(fieldSelection);
  columns_.clear();
  cells_ = {0};  // the station is a row's main text, also in a column of another field
  for (std::size_t field = 0; field < shown.size(); ++field) {
    if (!shown[field]) continue;
    columns_.push_back(field);
    if (field != 0) cells_.push_back(field);
  }
}

void GlobalView::SetFilter(unsigned box, bool ticked) noexcept {
  const auto bit = static_cast<std::int32_t>(1U << box);
  filterMask_ = ticked ? filterMask_ | bit : filterMask_ & ~bit;
}

bool GlobalView::CheckRecordFilter(std::int32_t Flags, std::string_view Country) const noexcept {
  if (!selectedCountry_.empty() && selectedCountry_ != AllCountries &&
      selectedCountry_ != WithoutState(Country)) {
    return false;
  }
  const std::int32_t ticked = filterMask_ & Flags;
  return std::all_of(table_.FilterGroups.begin(), table_.FilterGroups.end(),
                     [ticked](std::int32_t group) { return (ticked & group) != 0; });
}

void GlobalView::FillAllItem(std::string_view FillString) {
  Copy shape;
  for (std::size_t i = 0; i < RowsOfShape * cells_.size(); ++i) {
    shape.Ends.push_back(static_cast<std::uint32_t>(shape.Text.append(FillString).size()));
  }
  copy_ = std::move(shape);
  rows_.resize(RowsOfShape);
  std::iota(rows_.begin(), rows_.end(), 0U);
}

void GlobalView::RefreshGlobalList() {
  copy_.reset();
  rows_.clear();
  recordCount_ = table_.Count(stores_);
  unitsInRows_ = unitsShown_;
  rowTexts_ = texts_;
  for (std::size_t i = 0; i < recordCount_; ++i) {
    const RowFilterData record = table_.FilterData(stores_, i);
    if (!CheckRecordFilter(record.FilterFlags, record.Country)) continue;
    AddCountry(record.Country);
    rows_.push_back(static_cast<std::uint32_t>(i));
  }
}

void GlobalView::AddCountry(std::string_view country) {
  if (country == Unknow) return;
  const std::string_view name = WithoutState(country);
  if (countrySet_.contains(name)) return;
  countrySet_.insert(countries_.emplace_back(name));
}

void GlobalView::Freeze() {
  if (copy_) return;
  Copy copy;
  copy.Ends.reserve(rows_.size() * cells_.size());
  std::string scratch;
  for (const std::uint32_t record : rows_) {
    for (std::size_t position = 0; position < cells_.size(); ++position) {
      copy.Text += StoredCell(record, position, scratch);
      copy.Ends.push_back(static_cast<std::uint32_t>(copy.Text.size()));
    }
  }
  copy_ = std::move(copy);
  std::iota(rows_.begin(), rows_.end(), 0U);
}

std::string_view GlobalView::StoredCell(std::size_t record, std::size_t position,
                                        std::string& scratch) const {
  std::string_view text = table_.Text(cells_[position], {stores_, record, rowTexts_}, scratch);
  if (position == 0) return text;
  if (!unitsInRows_) text = scratch = TextUtility::RemoveUnits(text);
  return text.empty() ? " " : text;
}

std::string_view GlobalView::FrozenCell(std::size_t row, std::size_t position) const noexcept {
  const std::size_t i = row * cells_.size() + position;
  const std::size_t start = i == 0 ? 0 : copy_->Ends[i - 1];
  return std::string_view(copy_->Text).substr(start, copy_->Ends[i] - start);
}

std::string_view GlobalView::Cell(std::size_t row, std::size_t position,
                                  std::string& scratch) const {
  return copy_ ? FrozenCell(rows_[row], position) : StoredCell(rows_[row], position, scratch);
}

std::string_view GlobalView::CellText(std::size_t row, std::size_t column,
                                      std::string& scratch) const {
  return Cell(row, column, scratch);
}

std::string GlobalView::CellText(std::size_t row, std::size_t column) const {
  std::string scratch;
  return std::string(Cell(row, column, scratch));
}

std::optional<std::size_t> GlobalView::RecordOfRow(std::size_t row) const {
  const std::string_view heading = Title(table_.RecordIndex);
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    if (Heading(column) != heading) continue;
    const auto number = ToInteger<std::int32_t>(Value(CellText(row, column)));
    if (number && *number > 0) return static_cast<std::size_t>(*number - 1);
    break;
  }
  return std::nullopt;
}

void GlobalView::ClickColumn(std::size_t column) {
  const std::string_view heading = Heading(column);
  for (std::size_t field = 0; field < SelectableFields; ++field) {
    if (Title(field) != heading) continue;
    descending_ = !descending_ && lastSortKey_ == field;
    lastSortKey_ = field;
    if (field < columns_.size()) Sort(field, descending_);
  }
}

void GlobalView::Sort(std::size_t position, bool descending) {
  struct Row {
    std::string_view Key;
    std::uint32_t Source;
  };
  TextArena keys;
  std::string scratch;
  std::vector<Row> sorted;
  sorted.reserve(rows_.size());
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    sorted.push_back({keys.Copy(Cell(row, position, scratch)), rows_[row]});
  }
  std::stable_sort(sorted.begin(), sorted.end(), [descending](const Row& a, const Row& b) {
    return descending ? b.Key < a.Key : a.Key < b.Key;
  });
  std::transform(sorted.begin(), sorted.end(), rows_.begin(),
                 [](const Row& row) { return row.Source; });
}

std::string GlobalView::RowsCaption() const {
  return std::string(table_.RowsCaption.In(rowTexts_))
      .append(PlainDecimal(static_cast<int>(rows_.size())))
      .append("/")
      .append(PlainDecimal(static_cast<int>(recordCount_)))
      .append(rowTexts_.Choose(" Stazioni", " Station(s)"));
}

std::string_view LoadingCaption(const TextUtility& texts) noexcept {
  return texts.Choose("Caricamento Dati ...", "Loading ...");
}

std::string_view CountryCaption(const TextUtility& texts) noexcept {
  return texts.Choose("Nazione", "Country");
}

}  // namespace zg
