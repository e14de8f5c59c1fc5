// The walk over the words of a METAR, SPECI or TAF: what its recognisers share.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "decode/DecodeContext.h"
#include "decode/aero/MetarRecord.h"
#include "text/TextRules.h"

namespace zg {

// What a recogniser says of a word.
enum class Verdict {
  Declined,  // not mine: the next one may try
  Taken,     // read; words behind it that it has read too are passed by moving WordIndex
  Again,     // rewritten: MetarWalk::Word is to be offered to all recognisers once more
  Wrong,     // it looked like mine and could not be read; what was set before stays
};

// State of the walk through one message. The record is the decoder's working record.
struct MetarWalk {
  MetarRawData& Raw;
  MessageScratch& Scratch;
  std::span<const std::string_view> WordList;
  std::size_t WordIndex = 0;
  std::string_view Word =
      {};                // the word on offer: WordList[WordIndex], or what it was rewritten to
  int WeatherSlot = -1;  // phenomenon of the section that was opened last
  std::size_t CloudLayer = 0;
  int ForecastIndex = -1;                    // forecast temperature that was read last
  bool InRemarks = false;                    // RMK was met
  std::vector<std::string_view> Forms = {};  // forms that the word on offer has had

  MetarRawSection& Section() const {
    return Raw.Section[static_cast<std::size_t>(Raw.SectionIndex)];
  }
  bool IsLastWord() const noexcept { return WordIndex + 1 >= WordList.size(); }
  // The word `distance` behind the current one; empty beyond the end.
  std::string_view Ahead(std::size_t distance = 1) const noexcept {
    return WordIndex + distance < WordList.size() ? WordList[WordIndex + distance]
                                                  : std::string_view{};
  }

  // Begins a section of its own for a change group or the remarks. Where the record has no further
  // section the last one is used on.
  void OpenSection() noexcept {
    if (static_cast<std::size_t>(Raw.SectionIndex) + 1 < MaxSections) ++Raw.SectionIndex;
    WeatherSlot = -1;
    CloudLayer = 0;
  }
};

// --- Reading parts of a word -------------------------------------------------------------------
// A part that is empty or made of solidi was not reported: the field keeps its missing value, and
// that is no error.

constexpr bool IsNotReported(std::string_view part) noexcept {
  return part.empty() || IsSolidi(part);
}

// The whole part as a number; false if it is none or out of the field's range.
template <typename T>
bool SetStrict(T& field, std::string_view part) noexcept {
  if (SetFigures(field, part)) return true;
  if (IsNotReported(part)) return true;
  const std::optional<T> value = StrictInteger<T>(part);
  if (value) field = *value;
  return value.has_value();
}

// The number that the part begins with, times `Factor` and divided by `Divisor`; false only if it
// is out of range.
template <std::uint32_t Factor = 1, std::uint32_t Divisor = 1, typename T>
bool SetLenient(T& field, std::string_view part) noexcept {
  if (SetFigures<Factor, Divisor>(field, part)) return true;
  if (IsNotReported(part)) return true;
  const std::optional<T> value = LenientInteger<T, Factor, Divisor>(part);
  if (value) field = *value;
  return value.has_value();
}

constexpr Verdict TakenIf(bool read) noexcept { return read ? Verdict::Taken : Verdict::Wrong; }

// True for a word that has the look of a wind group: it ends in a unit of wind speed.
constexpr bool EndsInWindUnit(std::string_view word) noexcept {
  return word.ends_with("KT") || word.ends_with("KMH") || word.ends_with("MPS");
}

// --- Recognisers -------------------------------------------------------------------------------

// What a word must have to be offered to a recogniser, besides its first character and its length.
namespace WordFeature {
enum : std::uint8_t {
  None = 0,
  Solidus = 1,     // holds "/"
  WindUnit = 2,    // ends in KT, KMH or MPS
  Kilometres = 4,  // ends in KM
  Miles = 8,       // ends in SM
  LetterG = 16,    // holds a G, as BECMG does
  LetterP = 32,    // holds a P, as PROB does
  EndsInZ = 64,
  Inside = Solidus | LetterG | LetterP,  // those for which the whole word is looked through
};
inline constexpr std::size_t Combinations = 128;
}  // namespace WordFeature

// By the last letters, compared one by one: this is done for every word.
constexpr std::uint8_t FeaturesOfEnding(std::string_view word) noexcept {
  if (word.size() < 2) return word.ends_with('Z') ? WordFeature::EndsInZ : WordFeature::None;
  const char before = word[word.size() - 2];
  switch (word.back()) {
    case 'T':
      return before == 'K' ? WordFeature::WindUnit : WordFeature::None;
    case 'H':
    case 'S':
      return EndsInWindUnit(word) ? WordFeature::WindUnit : WordFeature::None;
    case 'M':
      if (before == 'K') return WordFeature::Kilometres;
      return before == 'S' ? WordFeature::Miles : WordFeature::None;
    case 'Z':
      return WordFeature::EndsInZ;
    default:
      return WordFeature::None;
  }
}

// What a character gives to its word wherever it stands.
inline constexpr auto FeaturesOfCharacter = [] {
  std::array<std::uint8_t, 256> features{};
  features['/'] = WordFeature::Solidus;
  features['G'] = WordFeature::LetterG;
  features['P'] = WordFeature::LetterP;
  return features;
}();

constexpr std::uint8_t FeaturesInside(std::string_view word) noexcept {
  unsigned features = WordFeature::None;
  for (char c : word) features |= FeaturesOfCharacter[static_cast<unsigned char>(c)];
  return static_cast<std::uint8_t>(features);
}

constexpr std::uint8_t FeaturesOf(std::string_view word) noexcept {
  return FeaturesOfEnding(word) | FeaturesInside(word);
}

// The lengths of the words that a recogniser may take. From `Longest` on they are not told apart.
struct WordLength {
  static constexpr std::size_t Longest = 15;
  std::size_t Least;
  std::size_t Most;

  constexpr bool Has(std::size_t length) const noexcept {
    return Least <= length && length <= Most;
  }
};
constexpr WordLength Exactly(std::size_t length) noexcept { return {length, length}; }
constexpr WordLength AtLeast(std::size_t length) noexcept { return {length, WordLength::Longest}; }

// One entry of a table of recognisers. The tables are ordered: a word goes to the first entry that
// takes it.
struct Recogniser {
  std::string_view Name;
  std::string_view Form;   // in the notation of the code forms
  std::string_view First;  // the characters that a word may begin with; empty: any
  WordLength Length;
  std::uint8_t Needs;   // WordFeature bits that it must have
  bool OutsideRemarks;  // not offered once RMK was met
  Verdict (*Try)(MetarWalk& walk, std::string_view word);
};

// For each first character, length and set of features the entries of a table that want the word,
// as a bit set in the order of the table: most words are offered to one or two recognisers only.
class RecogniserIndex {
 public:
  constexpr explicit RecogniserIndex(std::span<const Recogniser> table) noexcept : table_(table) {
    for (std::size_t i = 0; i < table.size(); ++i) {
      const Recogniser& entry = table[i];
      const std::uint64_t bit = std::uint64_t{1} << i;
      for (std::size_t c = 0; c < byFirst_.size(); ++c) {
        const bool wanted =
            entry.First.empty() || entry.First.find(static_cast<char>(c)) != std::string_view::npos;
        if (wanted) byFirst_[c] |= bit;
      }
      for (std::size_t length = 0; length < byLength_.size(); ++length) {
        if (entry.Length.Has(length)) byLength_[length] |= bit;
      }
      for (std::size_t f = 0; f < byFeatures_.size(); ++f) {
        if ((entry.Needs & ~f) == 0) byFeatures_[f] |= bit;
      }
      if (!entry.OutsideRemarks) inRemarks_ |= bit;
    }
  }

  constexpr std::uint64_t Candidates(std::string_view word, std::uint8_t features,
                                     bool inRemarks) const noexcept {
    const std::uint64_t wanted = byFirst_[static_cast<unsigned char>(word.front())] &
                                 byLength_[std::min(word.size(), WordLength::Longest)] &
                                 byFeatures_[features];
    return inRemarks ? wanted & inRemarks_ : wanted;
  }

  // All entries that want no other features than these.
  constexpr std::uint64_t Content(std::uint8_t features) const noexcept {
    return byFeatures_[features];
  }

  std::span<const Recogniser> Table() const noexcept { return table_; }

 private:
  std::span<const Recogniser> table_;
  std::array<std::uint64_t, 256> byFirst_{};
  std::array<std::uint64_t, WordLength::Longest + 1> byLength_{};
  std::array<std::uint64_t, WordFeature::Combinations> byFeatures_{};
  std::uint64_t inRemarks_ = 0;
};

// The recognisers of all words, in the order in which they are tried.
std::span<const Recogniser> MetarRecognisers() noexcept;
// Those of the North American remarks, tried first while the section is the remarks.
std::span<const Recogniser> RemarkRecognisers() noexcept;

// Offers the word at WordIndex to the recognisers, in order. Declined if none takes it.
Verdict OfferWord(MetarWalk& walk);

// Present weather w'w' (WMO code table 4678): a sign or VC and pairs of letters.
Verdict TryWeather(MetarWalk& walk, std::string_view word);

}  // namespace zg
