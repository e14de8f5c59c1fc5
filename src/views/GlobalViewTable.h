// What the two global views show: for each, its fields, its check boxes and its captions as a
// table. A view of SYNOP and one of METAR, SPECI and TAF are the same code over two of these.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "decode/MessageStore.h"
#include "tables/TextUtility.h"

namespace zg {

// A text in both languages.
struct Caption {
  std::string_view Italian;
  std::string_view English;

  std::string_view In(const TextUtility& texts) const noexcept {
    return texts.Choose(Italian, English);
  }
};

// A record by its place in the store of its family, from 0.
struct RecordPlace {
  const MessageStores& Stores;
  std::size_t Index;
  const TextUtility& Texts;  // for the few fields that are made of a code when they are shown
};

enum class Alignment : std::uint8_t { Left, Right };

// A field of a record as a column of the view.
struct GlobalViewField {
  std::string_view Key;  // the same in both languages
  Caption Title;
  std::int16_t ColumnWidth = 0;  // twips
  zg::Alignment Alignment = Alignment::Left;
  // The text of the field, empty where the record has none. A text that is not held by the record
  // is made in `scratch`: the view holds until `scratch` changes or the store is reset.
  std::string_view (*Text)(const RecordPlace& place, std::string& scratch) = nullptr;
};

// A selection has a bit for each of so many fields; those that a table does not have are nameless
// and empty.
inline constexpr std::size_t SelectableFields = 80;

// What the row test looks at.
struct RowFilterData {
  std::int32_t FilterFlags = 0;
  std::string_view Country;
};

struct GlobalViewTable {
  std::string_view Form;          // the window "frmSynopGlobalView"
  std::string_view SelectionKey;  // the parameter with the selection of fields
  Caption RowsCaption;            // what the window's caption says ahead of the count
  Caption FieldsCaption;          // of the window that selects the fields
  std::span<const GlobalViewField> Fields;
  std::size_t RecordIndex;  // the field with the number of the record; the last that can be chosen
  // The check boxes: box n stands for bit n of FilterFlags.
  std::span<const std::string_view> FilterBoxes;
  // The bits of each group of boxes. A row is shown if it has a ticked bit in every group.
  std::span<const std::int32_t> FilterGroups;
  std::size_t (*Count)(const MessageStores& stores);
  RowFilterData (*FilterData)(const MessageStores& stores, std::size_t index);

  // The field of an index, one without name and text beyond the last.
  const GlobalViewField& Field(std::size_t index) const noexcept;

  // The text of a field. Nothing of a record that is not in the store.
  std::string_view Text(std::size_t field, const RecordPlace& place, std::string& scratch) const;
};

extern const GlobalViewTable SynopGlobalView;
extern const GlobalViewTable MetarGlobalView;

// The number of a record as the field RecordIndex shows it: from 1, at least three digits.
std::string RecordIndexText(std::size_t index);

}  // namespace zg
