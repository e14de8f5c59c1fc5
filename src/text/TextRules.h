// The text and number rules of the whole program: cutting texts, reading numbers out of them and
// writing numbers back. Nothing else in the program parses or formats a number.
//
// Texts are sequences of single-byte characters (Windows-1252, as bulletins come) or UTF-8; every
// rule here looks at ASCII characters only, so that both work. Positions count from 1, as the code
// forms of the WMO manuals do. No function throws, allocates (unless it returns a std::string) or
// looks at a locale.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace zg {

// The `count` characters of `text` from position `start` (from 1). Beyond the end there is less or
// nothing; that is no error.
constexpr std::string_view Mid(std::string_view text, std::size_t start,
                               std::size_t count = std::string_view::npos) noexcept {
  if (start == 0 || start > text.size()) return {};
  return text.substr(start - 1, count);
}

// The last `count` characters, or the whole text if it is shorter.
constexpr std::string_view Right(std::string_view text, std::size_t count) noexcept {
  return count >= text.size() ? text : text.substr(text.size() - count);
}

// Takes blanks off both ends. Blanks only: tabs and control characters stay.
constexpr std::string_view Trim(std::string_view text) noexcept {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

constexpr bool Holds(std::string_view text, std::string_view part) noexcept {
  // Words are short: a plain loop finds a part of one before a search in memory has begun.
  if (text.size() > 16) return text.find(part) != std::string_view::npos;
  for (std::size_t at = 0; at + part.size() <= text.size(); ++at) {
    std::size_t same = 0;
    while (same < part.size() && text[at + same] == part[same]) ++same;
    if (same == part.size()) return true;
  }
  return false;
}

constexpr bool Holds(std::string_view text, char c) noexcept {
  for (char other : text) {
    if (other == c) return true;
  }
  return false;
}

constexpr bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }
constexpr bool IsLetter(char c) noexcept { return c >= 'A' && c <= 'Z'; }

// True for a text of one or more digits and nothing else.
constexpr bool IsDigits(std::string_view text) noexcept {
  for (char c : text) {
    if (!IsDigit(c)) return false;
  }
  return !text.empty();
}

// True for a text made of solidi only (at least one): how a code form writes "not reported".
constexpr bool IsSolidi(std::string_view text) noexcept {
  for (char c : text) {
    if (c != '/') return false;
  }
  return !text.empty();
}

// Where the next blank stands, `at` or behind it; the length of the text if there is none. Eight
// characters at a time: every word of every bulletin is cut here.
inline std::size_t FindBlank(std::string_view text, std::size_t at) noexcept {
  if constexpr (std::endian::native == std::endian::little) {
    constexpr std::uint64_t ones = 0x0101010101010101U;
    for (; at + sizeof(std::uint64_t) <= text.size(); at += sizeof(std::uint64_t)) {
      std::uint64_t eight = 0;
      std::memcpy(&eight, text.data() + at, sizeof eight);
      eight ^= ones * ' ';  // a blank is a zero byte now
      const std::uint64_t blanks = (eight - ones) & ~eight & (ones << 7U);
      if (blanks != 0) return at + static_cast<std::size_t>(std::countr_zero(blanks)) / 8;
    }
  }
  while (at < text.size() && text[at] != ' ') ++at;
  return at;
}

// --- Reading numbers ---------------------------------------------------------------------------

// The value as a 32-bit float; nothing when it is out of the range of one.
inline std::optional<float> ToSingle(double value) noexcept {
  constexpr double Largest = std::numeric_limits<float>::max();
  if (!(value >= -Largest && value <= Largest)) return std::nullopt;
  return static_cast<float>(value);
}

// Reads a text of one to nine figures and nothing else, as nearly every number of a bulletin is.
// False for any other text; then `whole` is not touched.
constexpr bool ReadFigures(std::string_view text, std::uint32_t& whole) noexcept {
  if (text.empty() || text.size() > 9) return false;
  std::uint32_t value = 0;
  for (char c : text) {
    const unsigned digit = static_cast<unsigned char>(c) - unsigned{'0'};
    if (digit > 9) return false;
    value = value * 10 + digit;
  }
  whole = value;
  return true;
}

// The same three readings for texts that are more than figures, behind the short ways below.
bool IsSignedOrPointed(std::string_view text) noexcept;
std::optional<double> StrictSignedOrPointed(std::string_view text) noexcept;
double ValueOfBeginning(std::string_view text) noexcept;

// True if the whole text is a number: an optional sign, digits with at most one point, at least one
// digit. No exponent, no comma, no blank.
inline bool IsNumeric(std::string_view text) noexcept {
  return IsDigits(text) || IsSignedOrPointed(text);
}

// Strict conversion: the number that the whole text is, or nothing.
inline std::optional<double> StrictNumber(std::string_view text) noexcept {
  std::uint32_t whole = 0;
  if (ReadFigures(text, whole)) return whole;
  return StrictSignedOrPointed(text);
}

// Lenient conversion: the number at the beginning of the text; reading stops at the first character
// that cannot continue it. 0 if the text does not begin with a number. The text before the first
// digit may hold a sign and a point; no blank is passed over.
inline double Value(std::string_view text) noexcept {
  std::uint32_t whole = 0;
  return ReadFigures(text, whole) ? whole : ValueOfBeginning(text);
}

// Rounds to the nearest whole number, halves to the even one.
double RoundHalfEven(double value) noexcept;

// The value as an integer of type T, rounded halves to even; nothing when it is out of T's range.
template <typename T>
std::optional<T> ToInteger(double value) noexcept {
  const double rounded = RoundHalfEven(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<T>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<T>::max()))) {
    return std::nullopt;
  }
  return static_cast<T>(rounded);
}

// Strict conversion into an integer of type T: "1.5" rounds to 2, "256" is nothing for 8 bits.
template <typename T>
std::optional<T> StrictInteger(std::string_view text) noexcept {
  if (std::uint32_t whole = 0; ReadFigures(text, whole)) {
    if (whole > static_cast<std::uint64_t>(std::numeric_limits<T>::max())) return std::nullopt;
    return static_cast<T>(whole);
  }
  const std::optional<double> number = StrictNumber(text);
  return number ? ToInteger<T>(*number) : std::nullopt;
}

// Lenient conversion into an integer of type T of the number times `Factor` and divided by
// `Divisor`, rounded halves to even; nothing when that is out of T's range.
template <typename T, std::uint32_t Factor = 1, std::uint32_t Divisor = 1>
std::optional<T> LenientInteger(std::string_view text) noexcept {
  std::uint32_t figures = 0;
  if (!ReadFigures(text, figures)) return ToInteger<T>(ValueOfBeginning(text) * Factor / Divisor);
  const std::uint64_t product = std::uint64_t{figures} * Factor;
  if (product % Divisor != 0) return ToInteger<T>(static_cast<double>(product) / Divisor);
  if (product / Divisor > static_cast<std::uint64_t>(std::numeric_limits<T>::max())) {
    return std::nullopt;
  }
  return static_cast<T>(product / Divisor);
}

// Both readings where they are one, for a part of a few figures as nearly all are: sets the field
// to the number times `Factor` and divided by `Divisor`. False, and the field stays, for any other
// text and where there is something to be rounded or the field is too small.
template <std::uint32_t Factor = 1, std::uint32_t Divisor = 1, typename T>
constexpr bool SetFigures(T& field, std::string_view part) noexcept {
  static_assert(Factor <= 100'000, "four figures times this have to fit");
  std::uint32_t whole = 0;
  if (part.size() > 4 || !ReadFigures(part, whole)) return false;
  const std::uint32_t product = whole * Factor;
  if (product % Divisor != 0) return false;
  constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<T>::max());
  if (product / Divisor > largest) return false;
  field = static_cast<T>(product / Divisor);
  return true;
}

// --- Writing numbers ---------------------------------------------------------------------------

// Plain decimal text of a 64-bit float: the shortest form of up to 15 significant digits, never an
// exponent, "0.5" with its zero. A result of all zeros has no sign. Not a number or infinite: "".
std::string PlainDecimal(double value);

// Plain decimal text of a 32-bit float: up to 7 significant digits, so that 12.3F is "12.3".
std::string PlainDecimal(float value);

// Plain decimal text of a whole number.
std::string PlainDecimal(int value);

// Formats a number by a mask. In a mask "0" is a forced digit, "#" a digit where one is needed, the
// first "." behind a digit the decimal point; every other character stands for itself. Digits fill
// the mask from the right, more digits than places go in front at the first place, and decimals are
// rounded on the decimal digits, halves away from zero. A minus stands in front of all, unless all
// digits are zeros. So 1230 by "00:00Z" gives "12:30Z", -5 by "00.0" gives "-05.0".
std::string FormatNumber(double value, std::string_view mask);

// The same for a number held as text; a comma is read as a point. A text that is not numeric comes
// back unchanged.
std::string FormatText(std::string_view text, std::string_view mask);

// Replaces every occurrence of `from` (not empty) by `to`.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace zg
