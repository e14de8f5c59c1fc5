#include "views/FieldSelection.h"

#include <algorithm>

namespace zg {
namespace {

constexpr std::size_t FieldsInDigit = 4;
constexpr std::string_view Digits = "0123456789ABCDEF";

unsigned DigitValue(char digit) noexcept {
  if (digit >= 'a' && digit <= 'f') digit = static_cast<char>(digit - 'a' + 'A');
  const std::size_t value = Digits.find(digit);
  return value == std::string_view::npos ? 0 : static_cast<unsigned>(value);
}

}  // namespace

FieldSelection DecodeFieldSelection(std::string_view text) noexcept {
  FieldSelection selection;
  const std::size_t fields = std::min(text.size() * FieldsInDigit, selection.size());
  for (std::size_t i = 0; i < fields; ++i) {
    selection[i] = (DigitValue(text[i / FieldsInDigit]) >> (i % FieldsInDigit) & 1U) != 0;
  }
  return selection;
}

std::string EncodeFieldSelection(const GlobalViewTable& table, const FieldSelection& selected) {
  std::string text;
  for (std::size_t first = 0; first < selected.size(); first += FieldsInDigit) {
    unsigned value = 0;
    for (std::size_t i = first; i < first + FieldsInDigit && i <= table.RecordIndex; ++i) {
      const bool kept = i == 0 || i == table.RecordIndex;
      if (kept || selected[i]) value |= 1U << (i - first);
    }
    text += Digits[value];
  }
  return text;
}

std::vector<DataField> GetFieldsList(const GlobalViewTable& table, std::string_view parameter,
                                     const TextUtility& texts) {
  const FieldSelection selection = DecodeFieldSelection(parameter);
  std::vector<DataField> fields;
  for (std::size_t i = 0; i <= table.RecordIndex; ++i) {
    const GlobalViewField& field = table.Field(i);
    fields.push_back({field.Title.In(texts), field.Key, selection[i]});
  }
  return fields;
}

}  // namespace zg
