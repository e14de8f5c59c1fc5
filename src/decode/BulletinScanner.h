// The scanner: takes a bulletin stream line by line, finds the messages in it and hands each one,
// cut into words, to a decoder. It knows headings, message types and ends of reports, and nothing
// of the groups inside a report.
//
// A report ends at a line that ends in "=", at the blank line behind a time stamp, or, for a
// frontal analysis, at NNNN. Its lines are joined by one blank. The heading of a bulletin serves
// all its reports, and so does an AAXX or BBXX line, with or without a heading above it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "decode/BulletinMessage.h"
#include "decode/Heading.h"
#include "shell/Platform.h"
#include "tables/TextUtility.h"

namespace zg {

// What the scanner needs of its owner.
class ScannerClient {
 public:
  ScannerClient() = default;
  ScannerClient(const ScannerClient&) = delete;
  ScannerClient& operator=(const ScannerClient&) = delete;
  virtual ~ScannerClient() = default;

  // Decodes a message; true if a record was stored.
  virtual bool DecodeMessage(const BulletinMessage& message) = 0;
  // A line for the wrong-line file, in Windows-1252. Not called for typed messages.
  virtual void PrintWrongLine(std::string_view line) = 0;
  // A new frontal analysis begins: the one before it is void.
  virtual void ResetFronts() = 0;
};

class BulletinScanner {
 public:
  // Nothing is owned.
  BulletinScanner(ScannerClient& client, LogList& log, const TextUtility& textUtility) noexcept
      : client_(client), log_(log), textUtility_(textUtility) {}

  struct Result {
    bool Complete = false;  // the line has closed a message
    bool Failed = true;     // no record was stored
  };

  // Forgets everything. A typed message (`singleMessage`) knows no headings of its own lines and
  // prints nothing to the wrong-line file.
  void Reset(bool singleMessage);

  // Takes the next line, in upper-case Windows-1252.
  Result ScanLine(std::string_view line);

  // Lines taken since Reset.
  std::int32_t LineCount() const noexcept { return lineCount_; }

 private:
  // What a line leaves for the rest of the scan.
  enum class Step { Stop, GoOn };

  Step TakeSeparator(std::string_view& line);
  Step TakeIdleLine(std::string_view line, bool heading);
  Step TakeHeadingLine(std::string_view line);
  void StartHeading(std::string_view line);
  void TakeTypeLine(std::string_view line);
  void AppendToBody(std::string_view line);
  void EndHeadingStage() noexcept { inBody_ = inHeader_ = headerDone_ = false; }
  void EndMessage() noexcept;
  void ClassifyLine(std::string_view line);
  void ForgetTypeLine();

  bool CloseReport();
  bool FindStart();
  void AdoptTypeWord();
  bool JoinSynopHeading();
  bool JoinReportHeading();
  bool SplitAndDispatch();

  bool HasBulletinHeading() const noexcept { return headingLine_ > 0; }
  void LogAtLine(std::string_view italian, std::string_view english);
  void Print(std::string_view text);

  static constexpr std::size_t NoTypeLine = std::string::npos;

  ScannerClient& client_;
  LogList& log_;
  const TextUtility& textUtility_;
  bool singleMessage_ = false;

  std::string messageText_;      // the report gathered so far
  std::string headerText_;       // the heading gathered so far, each line with a blank behind it
  std::size_t headingLine_ = 0;  // length of its first line and blank; 0 without a heading
  std::size_t typeLine_ = NoTypeLine;  // where AAXX or BBXX stands in it
  MessageType messageType_ = MessageType::Unknown;
  bool endOfMessage_ = false;  // a complete message waits to be handed on
  bool inBody_ = false;        // lines of SYNOP reports follow
  bool inHeader_ = false;      // a heading was seen, lines go to headerText_
  bool headerDone_ = false;    // the heading stage is over
  bool blankEnds_ = false;     // behind a time stamp: the next blank line acts as "="
  bool headerCut_ = false;     // the first report of the bulletin has ended headerText_
  std::int32_t lineCount_ = 0;
  std::int64_t messageSeq_ = 0;  // messages closed so far
  ReportStart start_;            // of the message that is about to be dispatched
  bool startFound_ = false;      // it was found as the heading stage ended
  BulletinMessage message_;      // keeps the memory of its word list
};

}  // namespace zg
