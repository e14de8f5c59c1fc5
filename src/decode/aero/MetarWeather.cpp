#include <array>

#include "decode/aero/MetarWalk.h"

namespace zg {
namespace {

// The letters of present weather by the bit that they have in a weather set (WMO code table 4678).
constexpr std::array<std::string_view, 28> WeatherCodes = {
    "MI", "BC", "PR", "DR", "BL", "SH", "TS", "FZ", "DZ", "RA", "SN", "SG", "IC", "PE",
    "GR", "GS", "BR", "FG", "FU", "VA", "DU", "SA", "HZ", "PO", "SQ", "FC", "SS", "DS"};
constexpr std::uint32_t LightBit = 1U << 28U;
constexpr std::uint32_t HeavyBit = 1U << 29U;
constexpr std::uint32_t VicinityBit = 1U << 30U;

// The bits of the codes by their two letters, 0 for a pair that is no code.
constexpr std::array<std::uint32_t, 26 * 26> MakeCodeBits() noexcept {
  std::array<std::uint32_t, 26 * 26> bits{};
  for (std::size_t i = 0; i < WeatherCodes.size(); ++i) {
    const auto first = static_cast<std::size_t>(WeatherCodes[i][0] - 'A');
    const auto second = static_cast<std::size_t>(WeatherCodes[i][1] - 'A');
    bits[first * 26 + second] = 1U << i;
  }
  return bits;
}
constexpr auto CodeBits = MakeCodeBits();

constexpr std::uint32_t CodeBit(char first, char second) noexcept {
  if (!IsLetter(first) || !IsLetter(second)) return 0;
  return CodeBits[static_cast<std::size_t>(first - 'A') * 26 +
                  static_cast<std::size_t>(second - 'A')];
}

// The bits of a row of pairs; 0 if one of them is no code.
constexpr std::uint32_t CodesOf(std::string_view pairs) noexcept {
  if (pairs.empty() || pairs.size() % 2 != 0) return 0;
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < pairs.size(); i += 2) {
    const std::uint32_t bit = CodeBit(pairs[i], pairs[i + 1]);
    if (bit == 0) return 0;
    bits |= bit;
  }
  return bits;
}

}  // namespace

Verdict TryWeather(MetarWalk& walk, std::string_view word) {
  if (word == "VC") return Verdict::Taken;
  const bool sign = word.front() == '+' || word.front() == '-';
  const bool vicinity = word.starts_with("VC");
  if (!sign && !vicinity && word.size() != 2 && word.size() != 4) return Verdict::Declined;
  const std::size_t prefix = sign ? 1 : vicinity ? 2 : 0;
  std::uint32_t bits = CodesOf(word.substr(prefix));
  if (bits == 0) return Verdict::Declined;
  if (sign) bits |= word.front() == '-' ? LightBit : HeavyBit;

  auto& slots = walk.Section().Weather;
  if (walk.WeatherSlot >= static_cast<int>(slots.size())) return Verdict::Wrong;
  if (walk.WeatherSlot >= 0) {
    const std::uint32_t present = slots[static_cast<std::size_t>(walk.WeatherSlot)];
    if ((present & bits) == bits) return Verdict::Taken;
  }
  // A code at the third character or further, as behind VC or a first code, may be in the vicinity;
  // VC is also met as a word of its own.
  const bool furtherCode = word.size() >= 4 && prefix + 2 < word.size();
  const bool besideVc =
      walk.Ahead() == "VC" || (walk.WordIndex > 0 && walk.WordList[walk.WordIndex - 1] == "VC");
  if (vicinity || (furtherCode && besideVc)) bits |= VicinityBit;
  ++walk.WeatherSlot;
  if (walk.WeatherSlot >= static_cast<int>(slots.size())) return Verdict::Wrong;
  slots[static_cast<std::size_t>(walk.WeatherSlot)] = bits;
  return Verdict::Taken;
}

}  // namespace zg
