#include "decode/Heading.h"

#include <algorithm>
#include <array>

#include "text/TextRules.h"

namespace zg {
namespace {

constexpr std::string_view FrontsMark = "ASUS1";
constexpr std::size_t BehindCentre = 12;  // TTAAii CCCC and their blanks

struct TypeName {
  MessageType type;
  std::string_view name;
};
constexpr std::array<TypeName, 7> TypeNames = {{
    {MessageType::AAXX, "AAXX"},
    {MessageType::BBXX, "BBXX"},
    {MessageType::METAR, "METAR"},
    {MessageType::TAF, "TAF"},
    {MessageType::SPECI, "SPECI"},
    {MessageType::FRONTS, "FRONTS"},
    {MessageType::SIGMET, "SIGMET"},
}};

// Types by the first two letters of a heading (WMO-No. 386, table A and B1).
constexpr std::array<TypeName, 5> HeadingTypes = {{
    {MessageType::TAF, "FC"},
    {MessageType::TAF, "FT"},
    {MessageType::METAR, "SA"},
    {MessageType::SPECI, "SP"},
    {MessageType::SIGMET, "WS"},
}};

// The mark is looked for in every line, and so by its rarest letter.
bool HoldsFrontsMark(std::string_view line) noexcept {
  constexpr std::size_t rare = FrontsMark.find('U');
  for (std::size_t at = line.find('U', rare); at != std::string_view::npos;
       at = line.find('U', at + 1)) {
    if (line.substr(at - rare).starts_with(FrontsMark)) return true;
  }
  return false;
}

bool IsAtMost(std::string_view digits, int highest) noexcept { return Value(digits) <= highest; }

// A walk over the words of a text, with their positions.
struct Word {
  std::string_view text;
  std::size_t start = 0;
  bool followedByBlank = false;
};

Word WordFrom(std::string_view text, std::size_t at) noexcept {
  while (at < text.size() && text[at] == ' ') ++at;
  Word word;
  word.start = std::min(at, text.size());
  at = FindBlank(text, word.start);
  word.text = text.substr(word.start, at - word.start);
  word.followedByBlank = at < text.size();
  return word;
}

Word Next(std::string_view text, const Word& word) noexcept {
  return WordFrom(text, word.start + word.text.size());
}

bool MayBeStation(const Word& word) noexcept {
  return word.text.size() == 4 && word.followedByBlank && !IsNumeric(word.text) &&
         word.text != "AUTO";
}

// A report that looks like a METAR is a forecast if a period follows within three words.
MessageType MetarOrTaf(std::string_view text, Word word) noexcept {
  for (int i = 0; i < 3 && !word.text.empty(); ++i, word = Next(text, word)) {
    const std::string_view w = word.text;
    if (w == "METAR" || w.ends_with("KT") || w.ends_with("MPS") || w.ends_with("KMH")) break;
    if (IsTimeGroup(w)) return MessageType::TAF;
  }
  return MessageType::METAR;
}

// Tests what follows a word that may be the station. True if a report starts there; `type` is then
// what the report looks like.
bool LooksLikeReport(std::string_view text, const Word& next, bool wantType,
                     MessageType& type) noexcept {
  const std::string_view w = next.text;
  type = MessageType::TAF;
  if ((w.size() == 4 || w.size() == 6) && IsTimeGroup(w)) return true;
  if (w.size() == 6 && IsNumeric(w)) {
    type = MessageType::Unknown;
    return true;
  }
  const bool time = (w.size() == 7 || w.size() == 5) && w.back() == 'Z' && next.followedByBlank;
  if (time) {
    if (wantType) type = MetarOrTaf(text, next);
    return true;
  }
  if (w.starts_with("AMD")) return true;
  if (Mid(w, 6, 3) == "MPS" || Mid(w, 6, 2) == "KT") {
    if (wantType) type = MetarOrTaf(text, next);
    return true;
  }
  if (w.starts_with("TAF")) return true;
  if (w.starts_with("METAR")) {
    type = MessageType::METAR;
    return true;
  }
  return false;
}

// A report without heading that names its type: the station is the first word that is neither a
// type nor a correction.
ReportStart FindBehindTypeWord(std::string_view text, Word word, MessageType type) noexcept {
  ReportStart start;
  start.Searched = true;
  start.Type = type;
  while (IsTypeOrCorrectionWord(word.text)) word = Next(text, word);
  start.Found = !word.text.empty() && word.text != "=";
  start.Position = word.start;
  start.TypeWordFirst = true;
  return start;
}

}  // namespace

std::string_view MessageTypeName(MessageType type) noexcept {
  for (const TypeName& row : TypeNames) {
    if (row.type == type) return row.name;
  }
  return {};
}

bool IsWmoHeading(std::string_view line) noexcept {
  if (line.size() >= BehindCentre && line[6] == ' ' && line[11] == ' ' && IsLetter(line[0]) &&
      IsLetter(line[1]) && IsLetter(line[2]) && IsLetter(line[3]) && Value(Mid(line, 5, 2)) != 0 &&
      !line.starts_with("PROB")) {
    return true;
  }
  return HoldsFrontsMark(line);
}

MessageType ClassifyHeading(std::string_view line) noexcept {
  if (HoldsFrontsMark(line)) return MessageType::FRONTS;
  if (Holds(line, "AAXX")) return MessageType::AAXX;
  if (Holds(line, "BBXX")) return MessageType::BBXX;
  if (!IsWmoHeading(line)) return MessageType::Unknown;
  for (const TypeName& row : HeadingTypes) {
    if (line.starts_with(row.name)) return row.type;
  }
  return MessageType::Unknown;
}

bool IsTimeGroup(std::string_view word) noexcept {
  if (!IsDigits(word) || Value(word) <= 0) return false;
  if (word.size() == 4) return IsAtMost(Mid(word, 1, 2), 24) && IsAtMost(Mid(word, 3, 2), 24);
  return word.size() == 6 && IsAtMost(Mid(word, 1, 2), 31) && IsAtMost(Mid(word, 3, 2), 24) &&
         IsAtMost(Mid(word, 5, 2), 24);
}

bool IsValidTime(std::string_view word) noexcept {
  if (!IsDigits(word) || (word.size() != 4 && word.size() != 6)) return false;
  if (word.size() == 6 && (!IsAtMost(Mid(word, 1, 2), 31) || Mid(word, 1, 2) == "00")) return false;
  const std::string_view clock = Right(word, 4);
  return IsAtMost(Mid(clock, 1, 2), 23) && IsAtMost(Mid(clock, 3, 2), 59);
}

MessageType ReportTypeOfWord(std::string_view word) noexcept {
  if (word == "METAR") return MessageType::METAR;
  if (word == "SPECI") return MessageType::SPECI;
  return word == "TAF" ? MessageType::TAF : MessageType::Unknown;
}

bool IsTypeOrCorrectionWord(std::string_view word) noexcept {
  return word == "METAR" || word == "SPECI" || word == "TAF" || word == "AMD" || word == "COR";
}

ReportStart FindReportStart(std::string_view text, std::size_t headerLength,
                            bool wantType) noexcept {
  const Word first = headerLength == 0 ? WordFrom(text, 0) : Word{};
  if (headerLength == 0) {
    const MessageType named = ReportTypeOfWord(first.text);
    if (named != MessageType::Unknown) return FindBehindTypeWord(text, first, named);
  }
  ReportStart result;
  const bool typedHeading = Mid(text, 7, 1) == " " && Mid(text, 12, 1) == " ";
  const bool behindCentre = headerLength > 0 || first.text.size() == 6;
  if (headerLength == 0 && !typedHeading && first.text.size() != 4) return result;
  result.Searched = true;

  Word word = behindCentre ? WordFrom(text, BehindCentre) : first;
  if (!behindCentre && first.text.size() != 4) return result;
  for (; !word.text.empty(); word = Next(text, word)) {
    if (MayBeStation(word) && LooksLikeReport(text, Next(text, word), wantType, result.Type)) {
      result.Found = true;
      result.Position = word.start;
      return result;
    }
  }
  result.Type = MessageType::Unknown;
  return result;
}

}  // namespace zg
