#include "tables/ConversionUtility.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "text/TextRules.h"

namespace zg {
namespace {

constexpr std::string_view kFourDecimals = "0.0000";

double Read(std::string_view text) { return Value(ReplaceAll(text, ",", ".")); }

std::string Scale(std::string_view text, double factor) {
  return FormatNumber(Read(text) * factor, kFourDecimals);
}

// Levels are told in steps of ten, and never told higher than they are.
std::string ScaleToTens(std::string_view text, double factor) {
  return FormatNumber(std::floor(Read(text) * factor / 10.0) * 10.0, kFourDecimals);
}

}  // namespace

std::string ConvertFeetToMeter(std::string_view text) {
  return ScaleToTens(text, 0.304799999536704);
}
std::string ConvertMeterToFeet(std::string_view text) { return ScaleToTens(text, 3.2808399); }

std::string ConvertKmhToMps(std::string_view text) { return Scale(text, 0.277777777777778); }
std::string ConvertMpsToKmh(std::string_view text) { return Scale(text, 3.6); }
std::string ConvertMpsToKt(std::string_view text) { return Scale(text, 1.943844492442); }
std::string ConvertKtToMps(std::string_view text) { return Scale(text, 0.514444444444444); }
std::string ConvertKmhToKt(std::string_view text) { return Scale(text, 0.5399568034557); }
std::string ConvertKtToKmh(std::string_view text) { return Scale(text, 1.852); }

std::string ConvertMeterToKm(std::string_view text) { return Scale(text, 0.001); }
std::string ConvertKmToMeter(std::string_view text) { return Scale(text, 1000.0); }
std::string ConvertMeterToMiles(std::string_view text) { return Scale(text, 0.000621388181196794); }
std::string ConvertMeterToMarineMiles(std::string_view text) {
  return Scale(text, 0.0005399568034557);
}
std::string ConvertMilesToMeter(std::string_view text) { return Scale(text, 1609.3); }
std::string ConvertMilesToKm(std::string_view text) { return Scale(text, 1.6093); }
std::string ConvertMilesToMarineMiles(std::string_view text) {
  return Scale(text, 0.8689524838013);
}
std::string ConvertKmToMiles(std::string_view text) { return Scale(text, 0.621388181196794); }
std::string ConvertKmToMarineMiles(std::string_view text) { return Scale(text, 0.5399568034557); }

std::string ConvertMbarToInhg(std::string_view text) { return Scale(text, 0.02952998); }
std::string ConvertInhgToMbar(std::string_view text) { return Scale(text, 33.863890188886); }

std::string ConvertDegCToFar(std::string_view text) {
  return FormatNumber(Read(text) / 0.555555555555556 + 32.0, kFourDecimals);
}
std::string ConvertFarToDegC(std::string_view text) {
  return FormatNumber((Read(text) - 32.0) * 0.555555555555556, kFourDecimals);
}

std::string ConvertInchToMillimeter(std::string_view text) {
  return PlainDecimal(std::floor(Read(text) * 25.4));
}

namespace {

using NumberConversion = std::string (*)(std::string_view);

// How a text of one unit becomes one of another. Without conversions the number stays.
struct UnitConversion {
  UnitKind Kind;
  std::string_view Source;
  std::string_view Target;
  NumberConversion First;   // of the first number of the text
  NumberConversion Second;  // of the second one: the upper end of a range
  std::string_view Mask;
  // For numbers below 20, where they are not written as the others: a pressure tendency has the
  // same unit as a pressure.
  std::string_view MaskBelow20 = {};
};

constexpr UnitKind kLevel = UnitKind::Level;
constexpr UnitKind kSpeed = UnitKind::Speed;
constexpr UnitKind kDistance = UnitKind::Distance;
constexpr UnitKind kPressure = UnitKind::Pressure;
constexpr UnitKind kTemperature = UnitKind::Temperature;

// A text is searched for the sources of its kind in this order, and the first that it holds counts.
// The upper end of a range in km/h goes to metres a second by the factor of knots; it stays so.
// clang-format off
constexpr auto kConversions = std::to_array<UnitConversion>({
    {kLevel, " m", " m", nullptr, nullptr, "00000"},
    {kLevel, " m", " ft", ConvertMeterToFeet, ConvertMeterToFeet, "00000"},
    {kLevel, " ft", " ft", nullptr, nullptr, "00000"},
    {kLevel, " ft", " m", ConvertFeetToMeter, ConvertFeetToMeter, "00000"},
    {kSpeed, " mps", " mps", nullptr, nullptr, "00.0"},
    {kSpeed, " mps", " KTS", ConvertMpsToKt, ConvertMpsToKt, "00.0"},
    {kSpeed, " mps", " kmh", ConvertMpsToKmh, ConvertMpsToKmh, "00.0"},
    {kSpeed, " KTS", " KTS", nullptr, nullptr, "00.0"},
    {kSpeed, " KTS", " mps", ConvertKtToMps, ConvertKtToMps, "00.0"},
    {kSpeed, " KTS", " kmh", ConvertKtToKmh, ConvertKtToKmh, "00.0"},
    {kSpeed, " kmh", " kmh", nullptr, nullptr, "00.0"},
    {kSpeed, " kmh", " KTS", ConvertKmhToKt, ConvertKmhToKt, "00.0"},
    {kSpeed, " kmh", " mps", ConvertKmhToMps, ConvertKtToMps, "00.0"},
    {kDistance, " SM", " SM", nullptr, nullptr, "00.0"},
    {kDistance, " SM", " km", ConvertMilesToKm, ConvertMilesToKm, "00.0"},
    {kDistance, " SM", " m", ConvertMilesToMeter, ConvertMilesToMeter, "00000"},
    {kDistance, " SM", " NM", ConvertMilesToMarineMiles, ConvertMilesToMarineMiles, "00.0"},
    {kDistance, " m", " m", nullptr, nullptr, "00000"},
    {kDistance, " m", " km", ConvertMeterToKm, ConvertMeterToKm, "00.0"},
    {kDistance, " m", " SM", ConvertMeterToMiles, ConvertMeterToMiles, "00.0"},
    {kDistance, " m", " NM", ConvertMeterToMarineMiles, ConvertMeterToMarineMiles, "00.0"},
    {kDistance, " km", " km", nullptr, nullptr, "00.0"},
    {kDistance, " km", " m", ConvertKmToMeter, ConvertKmToMeter, "00000"},
    {kDistance, " km", " SM", ConvertKmToMiles, ConvertKmToMiles, "00.0"},
    {kDistance, " km", " NM", ConvertKmToMarineMiles, ConvertKmToMarineMiles, "00.0"},
    {kPressure, " hpa", " hpa", nullptr, nullptr, "0000.0", "0.0"},
    {kPressure, " hpa", " inHg", ConvertMbarToInhg, ConvertMbarToInhg, "00.00"},
    {kPressure, " inHg", " inHg", nullptr, nullptr, "00.00"},
    {kPressure, " inHg", " hpa", ConvertInhgToMbar, ConvertInhgToMbar, "0000.0", "0.0"},
    {kTemperature, " °C", " °C", nullptr, nullptr, "00.0"},
    {kTemperature, " °C", " °F", ConvertDegCToFar, ConvertDegCToFar, "00.0"},
    {kTemperature, " °F", " °F", nullptr, nullptr, "00.0"},
    {kTemperature, " °F", " °C", ConvertFarToDegC, ConvertFarToDegC, "00.0"},
});
// clang-format on

// The unit that the text is in; empty if it has none of the kind.
std::string_view FindSource(std::string_view text, UnitKind kind) noexcept {
  for (const UnitConversion& row : kConversions) {
    if (row.Kind == kind && Holds(text, row.Source)) return row.Source;
  }
  return {};
}

const UnitConversion* FindConversion(UnitKind kind, std::string_view source,
                                     std::string_view target) noexcept {
  for (const UnitConversion& row : kConversions) {
    if (row.Kind == kind && row.Source == source && row.Target == target) return &row;
  }
  return nullptr;
}

// A number found in a text: as plain decimal text, and where the text has it, its sign included.
struct FoundNumber {
  std::string Plain;  // empty if there is none
  std::size_t At = 0;
  std::size_t Length = 0;
};

// How many characters at the beginning of the text make its leading number.
std::size_t LeadingLength(std::string_view text) noexcept {
  std::size_t length = text.size();
  while (length > 0 && !IsNumeric(text.substr(0, length))) --length;
  return length;
}

FoundNumber FindNumber(std::string_view text, int index) {
  if (index < 1) return {};
  std::string copy = ReplaceAll(text, ",", ".");
  const bool minus = index == 1 && Value(copy) < 0.0;
  for (char& c : copy) {
    if (c == ' ' || c == '-') c = '#';
  }
  for (std::size_t at = 0; at < copy.size(); ++at) {
    const std::string_view rest = std::string_view(copy).substr(at);
    const double value = Value(rest);
    if (!(value > 0.0)) continue;
    const std::size_t length = LeadingLength(rest);
    if (--index > 0) {
      at += length;  // and the walk steps over one character more, which ends the number
      continue;
    }
    if (minus) return {"-" + PlainDecimal(value), 0, at + length};
    return {PlainDecimal(value), at, length};
  }
  return {};
}

// Converts the number at place `index` where its plain text first occurs; a number that is written
// in another way (with a comma), where it stands.
void ConvertNumber(std::string& text, int index, NumberConversion conversion) {
  const FoundNumber number = FindNumber(text, index);
  if (number.Plain.empty()) return;
  const std::string converted = conversion(number.Plain);
  if (const std::size_t at = text.find(number.Plain); at != std::string::npos) {
    text.replace(at, number.Plain.size(), converted);
  } else {
    text.replace(number.At, number.Length, converted);
  }
}

std::string FormatByMaskOf(const UnitConversion& row, std::string_view text) {
  const bool isSmall = !row.MaskBelow20.empty() && Value(text) < 20.0;
  return FormatByMask(text, isSmall ? row.MaskBelow20 : row.Mask);
}

}  // namespace

std::string GetValueOnString(std::string_view text, int index) {
  return FindNumber(text, index).Plain;
}

std::string FormatByMask(std::string_view text, std::string_view mask) {
  std::string value(text);
  for (std::string_view decimals : {".0 ", ",0 ", ".00 ", ",00 "}) {
    if (!Holds(value, decimals)) continue;
    value = ReplaceAll(value, decimals, " ");
    break;
  }
  const std::size_t blank = value.find(' ');
  if (blank == std::string::npos) return FormatText(value, mask);
  return FormatText(std::string_view(value).substr(0, blank), mask) + value.substr(blank);
}

std::string RemoveLeadingZeros(std::string_view text) {
  if (text.starts_with("0 ")) return std::string(text);
  std::size_t zeros = 0;
  while (zeros < text.size() && text[zeros] == '0') ++zeros;
  if (zeros > 0 && zeros < text.size() && text[zeros] == ' ') --zeros;
  return std::string(Trim(text.substr(zeros)));
}

std::string ConversionUtility::ConvertToReqUnit(std::string_view text, UnitKind kind,
                                                bool viewUnit) const {
  const std::string_view source = FindSource(text, kind);
  if (source.empty()) return std::string(Trim(text));

  const std::string_view chosen = units_.Unit(kind);
  const UnitConversion* const row = FindConversion(kind, source, chosen.empty() ? source : chosen);
  if (row == nullptr) return std::string(Trim(text));

  std::string result = ReplaceAll(text, source, viewUnit ? row->Target : std::string_view());
  if (row->First == nullptr) return FormatByMaskOf(*row, result);
  ConvertNumber(result, 1, row->First);
  ConvertNumber(result, 2, row->Second);
  return std::string(Trim(FormatByMaskOf(*row, result)));
}

std::string ConversionUtility::ConvertToReqUnit(std::string_view text, unsigned unitType,
                                                bool viewUnit) const {
  if (unitType >= kUnitKinds) return std::string(Trim(text));
  return ConvertToReqUnit(text, static_cast<UnitKind>(unitType), viewUnit);
}

}  // namespace zg
