#include "decode/aero/MetarDecoder.h"

#include <algorithm>
#include <utility>

#include "decode/Heading.h"
#include "decode/aero/MetarWalk.h"
#include "shell/GenericUtility.h"
#include "tables/MetarReportText.h"

namespace zg {
namespace {

// Words of free remarks that say nothing by themselves.
constexpr std::array<std::string_view, 12> FillerWords = {
    "AMD", "COR", "LTD", "TO", "CLD", "VIS", "AND", "WIND", "TEND", "OR", "NOT", "SKED"};

bool IsFiller(std::string_view word) noexcept {
  return word.ends_with("NO") || Holds(word, "LDG") ||
         std::find(FillerWords.begin(), FillerWords.end(), word) != FillerWords.end();
}

unsigned TypeFlag(MessageType type) noexcept {
  if (type == MessageType::TAF) return MetarFlag::Taf;
  return type == MessageType::METAR ? MetarFlag::Metar : MetarFlag::Speci;
}

}  // namespace

DecodeOutcome MetarDecoder::DecodeMetarMessage(const BulletinMessage& message, int decodedCount) {
  raw_.RawText = scratch_.Begin(message.Text);
  ResetMetarRecord(raw_);
  DecodeHeading(message);
  const StationRow* row = context_.Stations.FindByIcaoName(raw_.Station.Station, expected_);
  if (!FindTime(message)) {
    LogAtLine(context_, "Observ. Time o Valid Time non trovato. - Linea: ",
              "Observ. Time or Valid Time not found. - Line: ", message.LineCount);
    return Reject(!message.SingleMessage);
  }
  LoadStationRecord(row, raw_.Station);
  if (!PassesFilters(message.SingleMessage)) return Reject(false);
  if (raw_.Station.Station.empty()) {
    context_.Log.Log(
        context_.Texts().Choose("Stazione Meteo sconosciuta: ", "Unknown Meteo Station: "));
    return Reject(!message.SingleMessage);
  }
  raw_.Accepted = 0;
  if (!message.SingleMessage && context_.Observer.WantsAccepted()) {
    Publish(context_, raw_.Station, raw_.Station.Station,
            raw_.BulletinTime.empty() ? raw_.ObservationTime : raw_.BulletinTime, decodedCount);
  }
  if (wordIndex_ < message.WordList.size() && message.WordList[wordIndex_] == "NIL") {
    if (!message.SingleMessage) context_.Observer.StationRemoved(raw_.Station.Station);
    return Reject(!message.SingleMessage);
  }
  DecodeWords(message);
  const MetarData& stored = StoreMetarRecord(raw_, row == nullptr ? -1 : row->id, context_.Units,
                                             context_.Stores.MetarStore);
  context_.Observer.MetarStored(raw_, stored);
  return {.Stored = true, .PrintWrongLine = false};
}

// Heading, type and station. Leaves wordIndex_ behind the station.
void MetarDecoder::DecodeHeading(const BulletinMessage& message) {
  const auto& words = message.WordList;
  wordIndex_ = message.HeaderEnd;
  if (message.HasHeading) {
    raw_.Station.MsgId = scratch_.Text(words[0]);
    raw_.Station.Sender = scratch_.Text(wordIndex_ > 1 ? words[1] : std::string_view{});
    raw_.BulletinTime = wordIndex_ > 2 ? scratch_.Text(Mid(words[2], 1, 6)) : std::string_view{};
    for (std::size_t i = 3; i < wordIndex_ && raw_.Station.AddedInfo.empty(); ++i) {
      if (!Holds(words[i], "TAF") && !Holds(words[i], "METAR") && !Holds(words[i], "SPECI")) {
        raw_.Station.AddedInfo = scratch_.Text(words[i]);
      }
    }
  } else if (message.HeaderEnd > 0) {
    // Type and correction words in front of a report that has no heading.
    raw_.BulletinTime.clear();
    for (std::size_t i = 0; i < wordIndex_; ++i) {
      if (words[i] == "AMD") SetFlag(raw_.FilterFlags, MetarFlag::Amd);
      if (words[i] == "COR") SetFlag(raw_.FilterFlags, MetarFlag::Cor);
    }
  }
  raw_.Station.Type = MessageTypeName(message.Type);
  SetFlag(raw_.FilterFlags, TypeFlag(message.Type));
  if (wordIndex_ < words.size()) raw_.Station.Station = scratch_.Text(words[wordIndex_]);
  ++wordIndex_;
}

// Walks to the time of observation or the period of a forecast: "151250Z", "151100Z 151212". False
// if there is neither.
bool MetarDecoder::FindTime(const BulletinMessage& message) {
  const auto& words = message.WordList;
  bool found = false;
  for (; !found && wordIndex_ < words.size(); wordIndex_ += found ? 0 : 1) {
    // One pass offers one word after the other to time, period and correction marks.
    if (words[wordIndex_].ends_with('Z')) {
      const std::string_view word = words[wordIndex_++];
      raw_.ObservationTime = scratch_.Text(word.substr(0, word.size() - 1));
      found = true;
    }
    if (wordIndex_ < words.size() && message.Type == MessageType::TAF &&
        IsValidTime(words[wordIndex_])) {
      raw_.ValidPeriod = words[wordIndex_++];
      found = true;
    }
    if (wordIndex_ >= words.size()) break;
    if (words[wordIndex_] == "AMD") SetFlag(raw_.FilterFlags, MetarFlag::Amd);
    if (words[wordIndex_] == "COR") SetFlag(raw_.FilterFlags, MetarFlag::Cor);
  }
  return found;
}

// The filters of a run. The flag of the quadrant is set for typed messages too, which pass always.
bool MetarDecoder::PassesFilters(bool singleMessage) {
  const int quadrant = raw_.Station.Quadrant.value_or(0);
  const std::uint8_t bit = QuadrantFilterBit(quadrant);
  if (bit != 0) SetFlag(raw_.FilterFlags, QuadrantFlag(quadrant));
  return singleMessage || (CheckCountryList(context_.Filters.CountryList, raw_.Station.Country) &&
                           (context_.Filters.QuadrantMask & bit) != 0);
}

void MetarDecoder::DecodeWords(const BulletinMessage& message) {
  MetarWalk walk{.Raw = raw_, .Scratch = scratch_, .WordList = message.WordList};
  walk.Forms = std::move(forms_);
  for (walk.WordIndex = wordIndex_; walk.WordIndex < walk.WordList.size(); ++walk.WordIndex) {
    const Verdict verdict = OfferWord(walk);
    if (verdict == Verdict::Wrong) {
      const std::string_view current = walk.WordList[walk.WordIndex];
      LogWrongItem(context_, message.LineCount, current);
    } else if (verdict == Verdict::Declined && walk.InRemarks && !IsFiller(walk.Word)) {
      if (!raw_.OtherRemarks.empty()) raw_.OtherRemarks += ' ';
      raw_.OtherRemarks += scratch_.Text(walk.Word);
    }
  }
  forms_ = std::move(walk.Forms);
}

DecodeOutcome MetarDecoder::Reject(bool printWrongLine) {
  ResetMetarRecord(raw_);
  return {.Stored = false, .PrintWrongLine = printWrongLine};
}

}  // namespace zg
