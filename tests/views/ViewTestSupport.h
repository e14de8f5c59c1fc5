// Stores of records made by hand, and what a view shows of them.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "views/GlobalView.h"

namespace zg::test {

inline constexpr std::string_view AllFields = "FFFFFFFFFFFFFFFFFFFF";
// Flags of a record that every view shows: of quadrant 1, a land station's AAXX, a SPECI.
inline constexpr std::int32_t ShownSynop = 0x92;
inline constexpr std::int32_t ShownMetar = 0x12;

struct ViewFixture {
  TextUtility Texts;
  MessageStores Stores;
  std::deque<StationPlace> Places;

  SynopData& AddSynop(std::string_view station, std::string_view country = "Italy",
                      std::int32_t flags = ShownSynop) {
    return Add(Stores.SynopStore, station, country, flags);
  }
  MetarData& AddMetar(std::string_view station, std::string_view country = "Italy",
                      std::int32_t flags = ShownMetar) {
    return Add(Stores.MetarStore, station, country, flags);
  }

 private:
  template <typename Record>
  Record& Add(MessageStore<Record>& store, std::string_view station, std::string_view country,
              std::int32_t flags) {
    StationPlace& place = Places.emplace_back();
    place.Station = station;
    place.Country = country;
    Record& record = store.Add();
    record.Station.Place = &place;
    record.FilterFlags = flags;
    return record;
  }
};

// The field with a key; one without name if there is none.
inline std::size_t FieldIndex(const GlobalViewTable& table, std::string_view key) {
  std::size_t index = 0;
  while (index < table.Fields.size() && table.Fields[index].Key != key) ++index;
  return index;
}

// The text of a selection of some fields.
inline std::string SelectionOf(const GlobalViewTable& table,
                               const std::vector<std::string_view>& keys) {
  std::string text(20, '0');
  for (const std::string_view key : keys) {
    const std::size_t field = FieldIndex(table, key);
    char& digit = text[field / 4];
    const int value = (digit >= 'A' ? digit - 'A' + 10 : digit - '0') | 1 << field % 4;
    digit = "0123456789ABCDEF"[value];
  }
  return text;
}

inline std::vector<std::string> ColumnTexts(const GlobalView& view, std::size_t column) {
  std::vector<std::string> texts;
  for (std::size_t row = 0; row < view.RowCount(); ++row) {
    texts.push_back(view.CellText(row, column));
  }
  return texts;
}

inline std::vector<std::string> Headings(const GlobalView& view) {
  std::vector<std::string> headings;
  for (std::size_t column = 0; column < view.ColumnCount(); ++column) {
    headings.emplace_back(view.Heading(column));
  }
  return headings;
}

}  // namespace zg::test
