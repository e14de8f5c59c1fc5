// One run of the decoder over a bulletin file or over one typed message: from bytes to the records
// of a store. The scanner finds the messages, the decoders of their kinds read them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "decode/BulletinScanner.h"
#include "decode/DecodeContext.h"
#include "decode/FrontsDecoder.h"
#include "decode/aero/MetarDecoder.h"
#include "decode/synop/SynopDecoder.h"
#include "shell/AtomicFile.h"
#include "shell/Platform.h"
#include "stations/DBUtility.h"

namespace zg {

// The store limit that is never exceeded, whatever "MaxMessages" says.
inline constexpr std::int32_t LargestMaxMessages = 32767;

// What MeteoDecode is made with. Nothing is owned.
struct MeteoDecodeSettings {
  std::string ApplicationPath;  // ends in "/"; "WrongFiles/" lies under it
  std::int32_t MaxMessages = LargestMaxMessages;
  bool RewriteFiles = true;    // a file with bare line feeds is repaired on the disk too
  bool KeepWrongLines = true;  // lines that make no message go to a wrong-line file
};

class MeteoDecode : private ScannerClient {
 public:
  // `database` takes the rows of frontal analyses and may be unconnected. MaxMessages above the
  // largest is cut, with a log line.
  MeteoDecode(MeteoDecodeSettings settings, DecodeContext& context, DBUtility& database,
              Prompt& prompt, Clock& clock, Progress& progress);

  // What a run has come to.
  struct Summary {
    bool Read = false;  // the file could be read
    std::int64_t Bytes = 0;
    std::int32_t Lines = 0;
    std::int32_t WrongLines = 0;  // lines printed to the wrong-line file
    int DecodedCount = 0;
    bool FrontsDecoded = false;
    std::string Error;  // why it could not be read, or the wrong-line file not written
  };

  // Decodes a whole file into the store of the family of its first message. A file that cannot be
  // read, and a wrong-line file that cannot be written, are told in a message box and the log.
  Summary DecodeFile(const std::string& fileName);

  // The same for bytes that are in memory; `name` is what the log shows, and what follows its last
  // separator names the wrong-line file.
  Summary DecodeBytes(std::string_view name, std::string bytes);

  // Decodes one typed message (UTF-8). True if a record was stored: then it is the only one in its
  // store.
  bool DecodeLine(std::string_view text);

  // Ends the run behind the current line.
  void CloseFile() noexcept { stopRequested_ = true; }

  // While set, the run idles at its yield points.
  bool Break() const noexcept { return break_; }
  void SetBreak(bool value) noexcept { break_ = value; }

 private:
  enum class Family : std::uint8_t { None, Synop, Metar };

  bool DecodeMessage(const BulletinMessage& message) override;
  void PrintWrongLine(std::string_view line) override;
  void ResetFronts() override;

  bool Repair(std::string& bytes);
  void StartRun(bool singleMessage);
  Summary Run(std::string_view name, std::string& bytes, bool repaired);
  bool ClaimStore(Family family);
  void CountStored();
  void StoreFronts(const BulletinMessage& message);
  void ExpectStation(std::string_view word) noexcept;
  void ReadLines(std::string& bytes, bool repaired);
  void LogSpeed(std::int64_t position, std::int64_t milliseconds);
  void OpenWrongFile(std::string_view name);
  void CloseWrongFile();
  void Fail(const std::string& text);

  MeteoDecodeSettings settings_;
  DecodeContext& context_;
  DBUtility& database_;
  Prompt& prompt_;
  Clock& clock_;
  Progress& progress_;
  BulletinScanner scanner_;
  MetarDecoder metarDecoder_;
  SynopDecoder synopDecoder_;

  Family storeFamily_ = Family::None;
  bool firstMessage_ = true;
  bool stopRequested_ = false;
  bool break_ = false;
  Summary summary_;
  std::unique_ptr<AtomicFile> wrongFile_;
};

// The text of a typed message made one line: cut behind the character that follows the first "=",
// or trimmed and ended with " =" where there is none; line ends become blanks and double blanks are
// folded once. An empty text stays empty.
std::string NormaliseTypedMessage(std::string_view text);

}  // namespace zg
