// How a record says that a value was not reported: one sentinel for each width, tested by exact
// value, and a text of its own where an empty text would be a value.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

namespace zg {

inline constexpr std::uint8_t MissingByte = 255;
inline constexpr std::int16_t MissingShort = 32767;
inline constexpr std::int32_t MissingLong = 2147483647;
inline constexpr float MissingFloat = std::bit_cast<float>(std::uint32_t{0x7F7FFFFD});
inline constexpr std::string_view Unk = "Unk";

constexpr bool IsMissing(std::uint8_t value) noexcept { return value == MissingByte; }
constexpr bool IsMissing(std::int16_t value) noexcept { return value == MissingShort; }
constexpr bool IsMissing(std::int32_t value) noexcept { return value == MissingLong; }
constexpr bool IsMissing(float value) noexcept { return value == MissingFloat; }
constexpr bool IsMissing(std::string_view text) noexcept {
  return text.size() == Unk.size() && text[0] == Unk[0] && text == Unk;
}

}  // namespace zg
