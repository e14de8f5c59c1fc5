#include "text/TextRules.h"

#include <array>
#include <charconv>
#include <cmath>

namespace zg {
namespace {

// The length of the number that stands at the beginning of the text, 0 if there is none.
std::size_t NumberLength(std::string_view text) noexcept {
  std::size_t at = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  std::size_t digits = 0;
  bool point = false;
  for (; at < text.size(); ++at) {
    if (IsDigit(text[at])) {
      ++digits;
    } else if (text[at] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  return digits > 0 ? at : 0;
}

// The value of a text that NumberLength has measured.
double ParseMeasured(std::string_view text) noexcept {
  if (!text.empty() && text[0] == '+') text.remove_prefix(1);
  // Up to 15 digits without a point are exact in a 64-bit float: the common case, read by hand.
  if (text.size() <= 15) {
    std::uint64_t whole = 0;
    std::size_t at = !text.empty() && text[0] == '-' ? 1 : 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
      whole = whole * 10 + static_cast<std::uint64_t>(text[at] - '0');
    }
    if (at == text.size()) {
      const auto value = static_cast<double>(whole);
      return text[0] == '-' ? -value : value;
    }
  }
  double value = 0.0;
  const auto result =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (result.ec == std::errc::result_out_of_range) {
    return text[0] == '-' ? -std::numeric_limits<double>::max()
                          : std::numeric_limits<double>::max();
  }
  return value;
}

// A decimal number as digits: the form in which numbers are written and rounded.
struct Decimal {
  bool negative = false;
  std::string whole;     // without leading zeros; empty for 0
  std::string fraction;  // as it stands, trailing zeros included
};

// `text` is a sign, digits, and a point or comma.
Decimal SplitDecimal(std::string_view text) {
  Decimal result;
  if (!text.empty() && (text[0] == '+' || text[0] == '-')) {
    result.negative = text[0] == '-';
    text.remove_prefix(1);
  }
  const std::size_t point = text.find_first_of(".,");
  std::string_view whole = text.substr(0, point);
  while (!whole.empty() && whole[0] == '0') whole.remove_prefix(1);
  result.whole = whole;
  if (point != std::string_view::npos) result.fraction = text.substr(point + 1);
  return result;
}

// Adds one to the last digit of a row of digits. True if the row was all nines and is all zeros
// now.
bool AddOne(std::string& digits) {
  for (std::size_t at = digits.size(); at-- > 0;) {
    if (digits[at] != '9') {
      ++digits[at];
      return false;
    }
    digits[at] = '0';
  }
  return true;
}

// Adds one to the last digit of whole and fraction taken together.
void Increment(Decimal& number) {
  if (AddOne(number.fraction) && AddOne(number.whole)) number.whole.insert(0, 1, '1');
}

void RoundTo(Decimal& number, std::size_t decimals) {
  if (number.fraction.size() <= decimals) {
    number.fraction.resize(decimals, '0');
    return;
  }
  const bool up = number.fraction[decimals] >= '5';
  number.fraction.resize(decimals);
  if (up) Increment(number);
}

bool IsAllZeros(const Decimal& number) noexcept {
  return number.whole.find_first_not_of('0') == std::string::npos &&
         number.fraction.find_first_not_of('0') == std::string::npos;
}

std::string Fill(Decimal number, std::string_view mask) {
  const auto isPlace = [](char c) { return c == '0' || c == '#'; };
  const std::size_t point = mask.find('.');
  std::size_t places = 0;
  std::size_t decimals = 0;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    if (isPlace(mask[i])) ++(i > point ? decimals : places);
  }
  RoundTo(number, decimals);

  std::string result;
  if (number.negative && !IsAllZeros(number)) result += '-';
  std::size_t place = 0;  // places of the whole part filled so far
  std::size_t decimal = 0;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    if (!isPlace(mask[i])) {
      result += mask[i];
    } else if (i > point) {
      result += number.fraction[decimal++];
    } else {
      const std::size_t left = places - place;  // places from here to the point, this one included
      if (place == 0 && number.whole.size() > places) {
        result.append(number.whole, 0, number.whole.size() - places);
      }
      if (left <= number.whole.size()) {
        result += number.whole[number.whole.size() - left];
      } else if (mask[i] == '0') {
        result += '0';
      }
      ++place;
    }
  }
  return result;
}

// A whole number that is written with all its digits whatever the precision. Most values are.
bool IsShortWhole(double value) noexcept {
  return value > -1e6 && value < 1e6 && value == std::trunc(value);
}

// Plain decimal text of a value with at most `digits` significant digits.
std::string WriteDecimal(double value, int digits) {
  if (!std::isfinite(value)) return {};
  std::array<char, 64> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::scientific, digits - 1);
  std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
  const bool negative = text[0] == '-';
  if (negative) text.remove_prefix(1);
  const std::size_t e = text.find('e');
  int exponent = 0;
  const char* exponentStart = text.data() + e + (text[e + 1] == '+' ? 2 : 1);
  std::from_chars(exponentStart, text.data() + text.size(), exponent);

  std::string significant(1, text[0]);
  if (e > 2) significant += text.substr(2, e - 2);
  while (significant.size() > 1 && significant.back() == '0') significant.pop_back();
  if (significant == "0") return significant;

  std::string result(negative ? "-" : "");
  const int whole = exponent + 1;  // digits ahead of the point
  if (whole <= 0) {
    result += "0.";
    result.append(static_cast<std::size_t>(-whole), '0');
    return result + significant;
  }
  const auto count = static_cast<std::size_t>(whole);
  if (significant.size() <= count) {
    result += significant;
    result.append(count - significant.size(), '0');
    return result;
  }
  result.append(significant, 0, count);
  result += '.';
  return result.append(significant, count);
}

}  // namespace

bool IsSignedOrPointed(std::string_view text) noexcept {
  const std::size_t length = NumberLength(text);
  return length > 0 && length == text.size();
}

std::optional<double> StrictSignedOrPointed(std::string_view text) noexcept {
  if (!IsNumeric(text)) return std::nullopt;
  return ParseMeasured(text);
}

double ValueOfBeginning(std::string_view text) noexcept {
  const std::size_t length = NumberLength(text);
  return length == 0 ? 0.0 : ParseMeasured(text.substr(0, length));
}

// The rounding mode of a program that never changes it is to nearest, halves to even.
double RoundHalfEven(double value) noexcept { return std::nearbyint(value); }

std::string PlainDecimal(double value) {
  if (IsShortWhole(value)) return std::to_string(static_cast<int>(value));
  return WriteDecimal(value, 15);
}

std::string PlainDecimal(float value) {
  if (IsShortWhole(static_cast<double>(value))) return std::to_string(static_cast<int>(value));
  return WriteDecimal(static_cast<double>(value), 7);
}

std::string PlainDecimal(int value) { return std::to_string(value); }

std::string FormatNumber(double value, std::string_view mask) {
  // Short whole numbers with forced digits only ("000", "00") need no decimal arithmetic.
  if (value >= 0 && IsShortWhole(value) && mask.size() < 8 &&
      mask.find_first_not_of('0') == std::string_view::npos) {
    std::string digits = std::to_string(static_cast<int>(value));
    if (digits.size() < mask.size()) digits.insert(0, mask.size() - digits.size(), '0');
    return digits;
  }
  return Fill(SplitDecimal(PlainDecimal(value)), mask);
}

std::string FormatText(std::string_view text, std::string_view mask) {
  std::string pointed(text);
  if (const std::size_t comma = pointed.find(','); comma != std::string::npos) pointed[comma] = '.';
  if (!IsNumeric(pointed)) return std::string(text);
  return Fill(SplitDecimal(pointed), mask);
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t at = 0;
  while (true) {
    const std::size_t found = text.find(from, at);
    result += text.substr(at, found == std::string_view::npos ? found : found - at);
    if (found == std::string_view::npos) return result;
    result += to;
    at = found + from.size();
  }
}

}  // namespace zg
