#include "text/Windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace zg {
namespace {

// Code points of the bytes 80 to 9F; all other bytes are their own code points.
constexpr std::array<std::uint16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::uint32_t CodePoint(unsigned char byte) noexcept {
  return byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80U] : byte;
}

constexpr std::array<unsigned char, 256> MakeCapitals() noexcept {
  std::array<unsigned char, 256> capitals{};
  for (unsigned c = 0; c < 256; ++c) capitals[c] = static_cast<unsigned char>(c);
  for (unsigned c = 'a'; c <= 'z'; ++c) capitals[c] = static_cast<unsigned char>(c - 32U);
  for (unsigned c = 0xE0; c <= 0xFE; ++c) {
    if (c != 0xF7) capitals[c] = static_cast<unsigned char>(c - 32U);  // F7 is the division sign
  }
  capitals[0x9A] = 0x8A;  // s with caron
  capitals[0x9C] = 0x8C;  // oe
  capitals[0x9E] = 0x8E;  // z with caron
  capitals[0xFF] = 0x9F;  // y with diaeresis
  return capitals;
}

constexpr std::array<unsigned char, 256> Capitals = MakeCapitals();

// Reads one character of UTF-8 at `at` and steps behind it. False if it is not well formed; then
// `at` has moved by one byte.
bool ReadUtf8(std::string_view text, std::size_t& at, std::uint32_t& codePoint) noexcept {
  const auto lead = static_cast<unsigned char>(text[at++]);
  codePoint = lead;
  if (lead < 0x80) return true;
  std::size_t more = 0;
  std::uint32_t least = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    more = 1;
    least = 0x80;
    codePoint = lead & 0x1FU;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    more = 2;
    least = 0x800;
    codePoint = lead & 0x0FU;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    more = 3;
    least = 0x10000;
    codePoint = lead & 0x07U;
  } else {
    return false;
  }
  if (text.size() - at < more) return false;
  for (std::size_t i = 0; i < more; ++i) {
    const auto next = static_cast<unsigned char>(text[at + i]);
    if ((next & 0xC0U) != 0x80U) return false;
    codePoint = (codePoint << 6U) | (next & 0x3FU);
  }
  if (codePoint < least || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF)) {
    return false;
  }
  at += more;
  return true;
}

char ToByte(std::uint32_t codePoint) noexcept {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
    return static_cast<char>(codePoint);
  }
  for (std::size_t i = 0; i < HighControls.size(); ++i) {
    if (HighControls[i] == codePoint) return static_cast<char>(0x80 + i);
  }
  return '?';
}

}  // namespace

bool IsAscii(std::string_view text) noexcept {
  std::uint64_t all = 0;  // eight characters at a time, the rest one by one
  for (; text.size() >= sizeof all; text.remove_prefix(sizeof all)) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data(), sizeof eight);
    all |= eight;
  }
  for (char c : text) all |= static_cast<unsigned char>(c);
  return (all & 0x8080808080808080U) == 0;
}

bool IsUtf8(std::string_view text) noexcept {
  std::uint32_t codePoint = 0;
  for (std::size_t at = 0; at < text.size();) {
    if (!ReadUtf8(text, at, codePoint)) return false;
  }
  return true;
}

std::size_t CharacterCount(std::string_view text) noexcept {
  std::size_t count = 0;
  for (char c : text) count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1U : 0U;
  return count;
}

std::string Windows1252ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (char c : bytes) {
    const std::uint32_t code = CodePoint(static_cast<unsigned char>(c));
    if (code < 0x80) {
      text += static_cast<char>(code);
    } else if (code < 0x800) {
      text += static_cast<char>(0xC0U | (code >> 6U));
      text += static_cast<char>(0x80U | (code & 0x3FU));
    } else {
      text += static_cast<char>(0xE0U | (code >> 12U));
      text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
      text += static_cast<char>(0x80U | (code & 0x3FU));
    }
  }
  return text;
}

std::string Utf8ToWindows1252(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  std::uint32_t codePoint = 0;
  for (std::size_t at = 0; at < text.size();) {
    bytes += ReadUtf8(text, at, codePoint) ? ToByte(codePoint) : '?';
  }
  return bytes;
}

void UpperCaseWindows1252(std::string& bytes) noexcept {
  // In pieces: only those that are not ASCII go through the table.
  constexpr std::size_t pieceSize = 256;
  for (std::size_t start = 0; start < bytes.size(); start += pieceSize) {
    const std::span<char> piece(bytes.data() + start, std::min(pieceSize, bytes.size() - start));
    unsigned char all = 0;
    for (char& c : piece) {
      all |= static_cast<unsigned char>(c);
      c = static_cast<char>(c - (c >= 'a' && c <= 'z' ? 'a' - 'A' : 0));
    }
    if (all < 0x80) continue;
    for (char& c : piece) c = static_cast<char>(Capitals[static_cast<unsigned char>(c)]);
  }
}

}  // namespace zg
