// What the report texts of all message kinds have in common: a number, its unit, the conversion to
// the unit chosen, and a place in the store where the text is kept for all records with that value.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "decode/MessageStore.h"
#include "tables/ConversionUtility.h"
#include "tables/TextUtility.h"
#include "text/TextRules.h"

namespace zg {

// Language and units of a run. Not owned.
struct ReportUnits {
  const TextUtility& Texts;
  const ConversionUtility& Conversion;
};

// Makes the texts of one store. `Rule` is an enumeration with a value for each way of making a
// text.
template <typename Rule>
class ReportTextMaker {
 public:
  ReportTextMaker(const ReportUnits& units, StoreTexts& store) : units_(units), store_(store) {}

  const TextUtility& Tables() const noexcept { return units_.Texts; }
  TextArena& Arena() noexcept { return store_.Arena; }

  // The text of a value, made by `make()` where the store does not have it yet.
  template <typename T, typename Make>
  std::string_view Of(Rule rule, T value, Make make) {
    return store_.Values.Get(static_cast<std::uint32_t>(rule), Bits(value), make);
  }

  // The text of a value that goes through the conversion to the unit chosen for its kind.
  template <typename T, typename Make>
  std::string_view Converted(Rule rule, UnitKind kind, T value, Make make) {
    return Of(rule, value, [&] { return Convert(make(), kind); });
  }

  // The number and its unit suffix, converted.
  template <typename T>
  std::string_view Quantity(Rule rule, UnitKind kind, T value, std::string_view suffix) {
    return Converted(rule, kind, value, [&] { return Plain(value).append(suffix); });
  }

  // The number and a suffix that no conversion touches.
  template <typename T>
  std::string_view Plain(Rule rule, T value, std::string_view suffix) {
    return Of(rule, value, [&] { return Plain(value).append(suffix); });
  }

  // The number by a mask.
  template <typename T>
  std::string_view Masked(Rule rule, T value, std::string_view mask) {
    return Of(rule, value, [&] { return FormatNumber(value, mask); });
  }

  // A pressure tendency in hPa: converted, with "+" in front of a rise.
  std::string_view Tendency(Rule rule, float value) {
    return Of(rule, value, [&] {
      return (value > 0 ? "+" : "") + Convert(PlainDecimal(value) + " hpa", UnitKind::Pressure);
    });
  }

  std::string Convert(std::string_view text, UnitKind kind) const {
    return units_.Conversion.ConvertToReqUnit(text, kind, true);
  }

 private:
  static std::uint32_t Bits(float value) noexcept { return std::bit_cast<std::uint32_t>(value); }
  template <typename T>
  static std::uint32_t Bits(T value) noexcept {
    return static_cast<std::uint32_t>(value);
  }
  static std::string Plain(float value) { return PlainDecimal(value); }
  template <typename T>
  static std::string Plain(T value) {
    return PlainDecimal(static_cast<int>(value));
  }

  ReportUnits units_;
  StoreTexts& store_;
};

}  // namespace zg
