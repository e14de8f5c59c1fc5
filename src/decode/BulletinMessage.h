// One complete message as the scanner hands it to a decoder.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace zg {

// What a message is; Unknown while the scanner has not found out.
enum class MessageType : std::uint8_t { Unknown, AAXX, BBXX, METAR, TAF, SPECI, FRONTS, SIGMET };

// The word by which bulletins name the type; empty for Unknown.
std::string_view MessageTypeName(MessageType type) noexcept;

// All texts are upper-case Windows-1252, one byte a character, so that positions inside a word are
// those of the code forms.
struct BulletinMessage {
  MessageType Type = MessageType::Unknown;
  std::string_view Text;                   // heading and report with the closing "="
  std::vector<std::string_view> WordList;  // its words without the "="
  bool HasHeading = true;                  // the first three words are TTAAii CCCC YYGGgg
  // Index of the word where the report starts: the station of a METAR, SPECI or TAF. 0 without a
  // heading and type word.
  std::size_t HeaderEnd = 0;
  std::int32_t LineCount = 0;  // line of the input, for the log
  bool SingleMessage = false;  // typed by the user: no filters, no wrong-line file
};

}  // namespace zg
