#include "decode/FrontsDecoder.h"

#include <array>
#include <string_view>

#include "text/TextRules.h"
#include "text/Windows1252.h"

namespace zg {
namespace {

constexpr std::size_t FirstWord = 6;  // behind the heading, VALID and its time
constexpr std::int32_t High = 0;
constexpr std::int32_t Low = 1;
constexpr std::int32_t FurtherPoint = -1;

struct TypeWord {
  std::string_view word;
  std::int32_t type;
};
constexpr std::array<TypeWord, 7> TypeWords = {{
    {"HIGHS", High},
    {"LOWS", Low},
    {"STNRY", 2},
    {"OCFNT", 3},
    {"TROF", 5},
    {"COLD", 6},
    {"WARM", 7},
}};

void SetPosition(FrontsRow& row, std::string_view word) {
  if (word.size() != 4 && word.size() != 5) return;
  row.Lat = Windows1252ToUtf8(word.substr(0, 2));
  row.Long = Windows1252ToUtf8(word.substr(2));
}

}  // namespace

bool DecodeFronts(const BulletinMessage& message, std::vector<FrontsRow>& rows) {
  const auto& words = message.WordList;
  std::int32_t type = High;
  std::int32_t number = FirstFrontsRecord;
  for (std::size_t i = FirstWord; i < words.size(); ++i) {
    if (!IsNumeric(words[i])) {
      for (const TypeWord& row : TypeWords) {
        if (row.word == words[i]) type = row.type;
      }
      continue;
    }
    FrontsRow row;
    row.Type = type;
    row.RecNum = number++;
    row.Validity = Windows1252ToUtf8(Mid(words[5], 1, 6));
    row.MsgTime = Windows1252ToUtf8(words[2]);
    const bool centre = type == High || type == Low;
    if (centre) {
      row.Pressure = words[i];
      if (++i >= words.size()) return false;
    }
    SetPosition(row, words[i]);
    rows.push_back(std::move(row));
    if (!centre) type = FurtherPoint;
  }
  return true;
}

}  // namespace zg
