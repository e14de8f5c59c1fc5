#include "decode/BulletinScanner.h"

#include <algorithm>

#include "text/TextRules.h"

namespace zg {
namespace {

// A heading and what stands ahead of the first report. More than this is a broken stream, and is
// not to stand in front of every report that follows.
constexpr std::size_t LongestHeading = std::size_t{64} * 1024;

bool EndsWithEquals(std::string_view text) noexcept {
  return text.ends_with('=') || text.ends_with("= ");
}

// A line such as 2003/11/15 12:00, as cycle files have ahead of each report.
bool IsTimeStamp(std::string_view line) noexcept {
  return line.size() >= 8 && line[4] == '/' && line[7] == '/' && IsNumeric(line.substr(0, 4));
}

bool IsEnvelope(std::string_view line) noexcept {
  return line.starts_with("ZCZC") || line.starts_with("NNNN");
}

bool HoldsSynopType(std::string_view line) noexcept {
  return Holds(line, "AAXX") || Holds(line, "BBXX");
}

bool IsSynop(MessageType type) noexcept {
  return type == MessageType::AAXX || type == MessageType::BBXX;
}

std::string_view FirstWord(std::string_view text) noexcept {
  while (text.starts_with(' ')) text.remove_prefix(1);
  return text.substr(0, FindBlank(text, 0));
}

// AAXX or BBXX where the first word is that; else Unknown.
MessageType SynopTypeOf(std::string_view text) noexcept {
  if (!Holds("AB ", text.substr(0, 1))) return MessageType::Unknown;  // as nearly all are
  const std::string_view word = FirstWord(text);
  if (word == "AAXX") return MessageType::AAXX;
  return word == "BBXX" ? MessageType::BBXX : MessageType::Unknown;
}

// The type words of a line that holds AAXX or BBXX, as positions: AAXX with its YYGGiw, or BBXX.
struct TypeWords {
  std::size_t begin;
  std::size_t end;
};

TypeWords FindTypeWords(std::string_view line) noexcept {
  const std::size_t land = line.find("AAXX");
  TypeWords words{land != std::string_view::npos ? land : line.find("BBXX"), 0};
  words.end = std::min(line.find_first_of(" =", words.begin), line.size());
  if (words.end == land + 4) {
    const std::size_t next = std::min(line.find_first_not_of(' ', words.end), line.size());
    words.end = std::min(line.find_first_of(" =", next), line.size());
  }
  return words;
}

}  // namespace

void BulletinScanner::Reset(bool singleMessage) {
  singleMessage_ = singleMessage;
  messageText_.clear();
  headerText_.clear();
  headingLine_ = 0;
  typeLine_ = NoTypeLine;
  messageType_ = MessageType::Unknown;
  endOfMessage_ = inBody_ = inHeader_ = headerDone_ = blankEnds_ = headerCut_ = false;
  lineCount_ = 0;
  messageSeq_ = 0;
  start_ = {};
  startFound_ = false;
}

BulletinScanner::Result BulletinScanner::ScanLine(std::string_view line) {
  ++lineCount_;
  line = Trim(line);
  if (line.find('?') != std::string_view::npos) return {};
  if (IsTimeStamp(line)) {
    blankEnds_ = true;
    return {};
  }
  const bool separator = IsEnvelope(line) || (line.size() < 4 && line != "=");
  if (separator && TakeSeparator(line) == Step::Stop) return {};

  const bool heading = !singleMessage_ && line.size() <= LongestHeading && IsWmoHeading(line);
  if (heading && messageType_ != MessageType::FRONTS && (inHeader_ || headerDone_)) {
    // The stream broke inside a message.
    inHeader_ = headerDone_ = false;
    LogAtLine("Header inaspettato. ", "Unaspected Header. ");
    Print(headerText_ + messageText_);
  }

  if (!inHeader_ && !headerDone_) {
    if (TakeIdleLine(line, heading) == Step::Stop) return {};
  } else {
    ClassifyLine(line);
    if (!headerDone_) {
      if (TakeHeadingLine(line) == Step::Stop) return {};
    } else if (inBody_) {
      AppendToBody(line);
    }
  }
  if (!endOfMessage_) return {};
  return {.Complete = true, .Failed = !CloseReport()};
}

// Lines that belong to no report. A blank line behind a time stamp closes the report, and a frontal
// analysis has no other end than this.
BulletinScanner::Step BulletinScanner::TakeSeparator(std::string_view& line) {
  if (line.empty() && blankEnds_) {
    blankEnds_ = false;
    line = "=";
    return Step::GoOn;
  }
  if (IsEnvelope(line)) ForgetTypeLine();
  const bool gatheringFronts = messageType_ == MessageType::FRONTS && inHeader_;
  if (!gatheringFronts || line.empty()) return Step::Stop;
  headerDone_ = true;
  endOfMessage_ = true;
  return Step::GoOn;
}

// A line outside the heading stage: a heading, a type line that has none, or a piece of a report.
BulletinScanner::Step BulletinScanner::TakeIdleLine(std::string_view line, bool heading) {
  if (heading) {
    StartHeading(line);
    return Step::GoOn;
  }
  const bool mayBeTypeLine = !HasBulletinHeading() && (headerText_.empty() || messageText_.empty());
  if (mayBeTypeLine && SynopTypeOf(line) != MessageType::Unknown) {
    if (!messageText_.empty()) Print(messageText_);  // it belongs to no report
    messageText_.clear();
    headerText_.clear();
    messageType_ = SynopTypeOf(line);
    TakeTypeLine(line);
    return Step::GoOn;
  }
  if (!EndsWithEquals(line)) {
    messageText_.append(line).append(" ");
    return Step::Stop;
  }
  EndHeadingStage();
  messageText_ += line;
  EndMessage();
  ClassifyLine(line);
  return Step::GoOn;
}

void BulletinScanner::StartHeading(std::string_view line) {
  headerText_.clear();
  headingLine_ = line.size() + 1;
  typeLine_ = NoTypeLine;
  headerCut_ = false;
  EndHeadingStage();
  inHeader_ = true;
  messageType_ = MessageType::Unknown;
  ClassifyLine(line);
  if (HoldsSynopType(line)) {
    TakeTypeLine(line);
  } else {
    headerText_.append(line).append(" ");
  }
}

// A line behind a heading: part of it until an "=" closes the first report, or the line with AAXX
// or BBXX, behind which the reports begin.
BulletinScanner::Step BulletinScanner::TakeHeadingLine(std::string_view line) {
  if (HoldsSynopType(line)) {
    TakeTypeLine(line);
    return Step::GoOn;
  }
  headerText_.append(line).append(" ");
  if (!EndsWithEquals(line)) return Step::Stop;
  EndHeadingStage();
  if (messageType_ == MessageType::Unknown) {
    startFound_ = JoinReportHeading();
    if (!startFound_) return Step::Stop;
  }
  EndMessage();
  return Step::GoOn;
}

void BulletinScanner::TakeTypeLine(std::string_view line) {
  const TypeWords words = FindTypeWords(line);
  if (headerText_.size() > LongestHeading) headerText_.resize(headingLine_);
  typeLine_ = headerText_.size() + words.begin;
  headerText_.append(line.substr(0, words.end)).append(" ");
  inBody_ = inHeader_ = headerDone_ = true;
  const std::string_view report = Trim(line.substr(words.end));
  if (!report.empty()) AppendToBody(report);
}

void BulletinScanner::AppendToBody(std::string_view line) {
  inHeader_ = headerDone_ = false;
  messageText_.append(line).append(" ");
  if (EndsWithEquals(messageText_)) EndMessage();
}

void BulletinScanner::EndMessage() noexcept {
  endOfMessage_ = true;
  ++messageSeq_;
}

void BulletinScanner::ClassifyLine(std::string_view line) {
  if (messageType_ != MessageType::Unknown) return;
  messageType_ = ClassifyHeading(line);
  if (messageType_ == MessageType::FRONTS) client_.ResetFronts();
}

// A type line without a heading holds to the end of its envelope only.
void BulletinScanner::ForgetTypeLine() {
  if (HasBulletinHeading() || headerText_.empty()) return;
  EndHeadingStage();
  headerText_.clear();
  typeLine_ = NoTypeLine;
  messageType_ = MessageType::Unknown;
}

// Hands the complete message on. True if a record was stored.
bool BulletinScanner::CloseReport() {
  std::string unknown;
  // Where the station was found ahead of time the heading stands in front already.
  if (messageType_ == MessageType::Unknown) {
    unknown = startFound_ ? messageText_ : headerText_ + messageText_;
  }
  const bool found = startFound_ || FindStart();
  bool stored = false;
  if (messageType_ == MessageType::Unknown) {
    if (found) Print(unknown);  // what was not found has been printed
    LogAtLine("Messaggio non elaborato. ", "Unknow Message. ");
  } else if (found) {
    stored = SplitAndDispatch();
  }
  endOfMessage_ = startFound_ = false;
  messageText_.clear();
  return stored;
}

// Puts the heading in front of the message and finds where the report starts. False if it is
// nowhere; then that has been told.
bool BulletinScanner::FindStart() {
  start_ = {};
  AdoptTypeWord();
  if (messageType_ == MessageType::FRONTS) {
    EndHeadingStage();
    messageText_.insert(0, headerText_);
    return true;
  }
  return IsSynop(messageType_) ? JoinSynopHeading() : JoinReportHeading();
}

// A report that names its type changes what holds for it and for the reports behind it: SYNOP
// reports may repeat the type words of their bulletin, and without a heading METAR, SPECI and TAF
// end what an AAXX or BBXX line has begun.
void BulletinScanner::AdoptTypeWord() {
  if (!IsSynop(messageType_)) return;
  const MessageType type = SynopTypeOf(messageText_);
  if (type != MessageType::Unknown) {
    messageType_ = type;
    const std::size_t end = FindTypeWords(messageText_).end;
    if (typeLine_ == NoTypeLine) typeLine_ = headerText_.size();
    headerText_.resize(typeLine_);
    headerText_.append(messageText_, 0, end).append(" ");
    messageText_.erase(0, std::min(messageText_.find_first_not_of(' ', end), messageText_.size()));
  } else if (!HasBulletinHeading()) {
    const MessageType report = ReportTypeOfWord(FirstWord(messageText_));
    if (report == MessageType::Unknown) return;
    messageType_ = report;
    headerText_.clear();
  }
}

bool BulletinScanner::JoinSynopHeading() {
  messageText_.insert(0, headerText_);
  if (Holds(messageText_, MessageTypeName(messageType_))) return true;
  Print(messageText_);
  if (messageType_ == MessageType::AAXX) {
    LogAtLine("Header non trovato (AAXX). ", "Header not found on AAXX Msg. ");
  } else {
    LogAtLine("Header non trovato (BBXX). ", "Header not found on BBXX Msg. ");
  }
  messageText_.clear();
  return false;
}

bool BulletinScanner::JoinReportHeading() {
  const std::size_t headerLength = headerText_.size();
  messageText_.insert(0, headerText_);
  start_ = FindReportStart(messageText_, headerLength, messageType_ == MessageType::Unknown);
  if (!start_.Searched) return true;
  if (!start_.Found) {
    Print(messageText_);
    LogAtLine("Header non trovato. ", "Header not Found. ");
    messageText_.clear();
    // What was no report is no part of the heading of the reports behind it.
    if (!headerCut_ && HasBulletinHeading()) headerText_.resize(headingLine_);
    return false;
  }
  if (messageType_ == MessageType::Unknown || start_.TypeWordFirst) messageType_ = start_.Type;
  if (headerLength > 0 && !headerCut_) {
    headerText_.assign(messageText_, 0, start_.Position);
    if (headerText_.size() > LongestHeading) headerText_.resize(headingLine_);
    headerCut_ = true;
  }
  return true;
}

bool BulletinScanner::SplitAndDispatch() {
  message_.Type = messageType_;
  message_.Text = Trim(messageText_);
  message_.LineCount = lineCount_;
  message_.SingleMessage = singleMessage_;
  message_.HeaderEnd = 0;
  message_.WordList.clear();
  std::string_view text = message_.Text;
  if (messageType_ != MessageType::FRONTS && !text.empty()) text.remove_suffix(1);
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == ' ') continue;
    const std::size_t start = at;
    at = FindBlank(text, at);
    if (start < start_.Position) ++message_.HeaderEnd;
    message_.WordList.emplace_back(text.data() + start, at - start);
  }
  message_.HasHeading =
      IsSynop(messageType_)
          ? message_.WordList.empty() || message_.WordList[0] != MessageTypeName(messageType_)
          : !start_.TypeWordFirst && message_.HeaderEnd > 0;
  if (messageType_ == MessageType::SIGMET) {
    if (messageSeq_ != 0) {
      log_.Log(std::string(textUtility_.Choose("Tipo di messaggio non riconosciuto alla linea ",
                                               "Message Type on line ")) +
               PlainDecimal(lineCount_));
    }
    return false;
  }
  return client_.DecodeMessage(message_);
}

void BulletinScanner::LogAtLine(std::string_view italian, std::string_view english) {
  log_.Log(std::string(textUtility_.Choose(italian, english)) +
           "Line: " + PlainDecimal(lineCount_));
}

void BulletinScanner::Print(std::string_view text) {
  if (!singleMessage_) client_.PrintWrongLine(Trim(text));
}

}  // namespace zg
