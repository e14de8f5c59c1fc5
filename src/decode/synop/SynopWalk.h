// The walk over the words of a SYNOP message: reading its groups character by character. What
// cannot be read is logged and stays missing; the rest of the group and of the message is read.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "decode/DecodeContext.h"
#include "decode/synop/SynopRecord.h"
#include "text/TextRules.h"

namespace zg {

struct SynopWalk {
  DecodeContext& Context;
  SynopRawData& Raw;
  MessageScratch& Scratch;
  std::span<const std::string_view> WordList;
  std::int32_t LineCount = 0;
  std::size_t WordIndex = 0;
  std::size_t CloudLayer = 0;      // layers of section 3 met so far
  std::size_t ContinuousWind = 0;  // continuous winds of section 5 met so far

  bool AtEnd() const noexcept { return WordIndex >= WordList.size(); }
  // The current word; empty behind the end.
  std::string_view Word() const noexcept {
    return AtEnd() ? std::string_view{} : WordList[WordIndex];
  }
  std::string_view Part(std::size_t start, std::size_t count) const noexcept {
    return Mid(Word(), start, count);
  }
  bool Is(std::size_t position, char c) const noexcept {
    const std::string_view word = Word();
    return position <= word.size() && word[position - 1] == c;
  }
  bool IsSolidus(std::size_t position) const noexcept { return Is(position, '/'); }
  // True if all `count` characters are there and solidi: their value was not reported.
  bool AreSolidi(std::size_t start, std::size_t count) const noexcept {
    const std::string_view part = Part(start, count);
    return part.size() == count && zg::IsSolidi(part);
  }
  std::string_view TakeWord() noexcept {
    const std::string_view word = Word();
    ++WordIndex;
    return word;
  }

  // Logs that something at the current word could not be read. Behind the end nothing is said.
  void WrongItem() const {
    if (!AtEnd()) LogWrongItem(Context, LineCount, Word());
  }

  // Strict reading: the part is a number in the field's range, or it is a wrong item.
  template <typename T>
  void SetStrict(T& field, std::size_t start, std::size_t count) const {
    if (AtEnd() || SetFigures(field, Part(start, count))) return;
    if (const auto value = StrictInteger<T>(Part(start, count))) {
      field = *value;
    } else {
      WrongItem();
    }
  }

  // One character, read strictly unless it is a solidus.
  template <typename T>
  void SetFigure(T& field, std::size_t position) const {
    if (!IsSolidus(position)) SetStrict(field, position, 1);
  }

  // Lenient reading: the number that the part begins with, 0 without one.
  template <typename T>
  void SetLenient(T& field, std::size_t start, std::size_t count) const {
    if (AtEnd() || SetFigures(field, Part(start, count))) return;
    if (const auto value = LenientInteger<T>(Part(start, count))) {
      field = *value;
    } else {
      WrongItem();
    }
  }

  // The same unless the part is `count` solidi.
  template <typename T>
  void SetReported(T& field, std::size_t start, std::size_t count) const {
    if (!AreSolidi(start, count)) SetLenient(field, start, count);
  }
};

// A recogniser of one group of a section, chosen by the first character of the word.
struct SynopGroup {
  char First;
  std::string_view Name;
  std::string_view Form;  // in the notation of FM 12 and FM 13
  void (*Read)(SynopWalk& walk);
};

// A section: the words that may end it and its groups. Other words are passed over.
struct SynopSection {
  std::string_view LongMarkers;   // first figures of the five-character words that end it
  std::string_view ShortMarkers;  // of the three-character words
  std::span<const SynopGroup> Groups;
  std::array<std::uint8_t, 256> ByFirst{};  // number of the group plus 1 by the first character

  constexpr SynopSection(std::string_view longMarkers, std::string_view shortMarkers,
                         std::span<const SynopGroup> groups) noexcept
      : LongMarkers(longMarkers), ShortMarkers(shortMarkers), Groups(groups) {
    for (std::size_t i = 0; i < groups.size(); ++i) {
      ByFirst[static_cast<unsigned char>(groups[i].First)] = static_cast<std::uint8_t>(i + 1);
    }
  }

  // Reads the current word if the section has a group that begins like it.
  void ReadGroup(SynopWalk& walk) const {
    const std::size_t number = ByFirst[static_cast<unsigned char>(walk.Word()[0])];
    if (number != 0) Groups[number - 1].Read(walk);
  }
};

// Reads the groups from the current word up to the end of the section.
void ReadSection(SynopWalk& walk, const SynopSection& section);

const SynopSection& Section1() noexcept;
const SynopSection& Section2() noexcept;
const SynopSection& Section3() noexcept;
const SynopSection& Section4() noexcept;  // no groups: it is walked over

// The groups of section 1 that have no figure of their own: iRixhVV and Nddff.
void ReadVisibilityGroup(SynopWalk& walk);
void ReadWindGroup(SynopWalk& walk);
// 222Dsvs, the word that opens section 2.
void ReadShipMovement(SynopWalk& walk);
// Section 5, all words to the end.
void ReadSection5(SynopWalk& walk);

// `value` with a sign; never a negative zero.
constexpr float Signed(double value, bool negative) noexcept {
  return static_cast<float>(negative && value != 0 ? -value : value);
}

}  // namespace zg
