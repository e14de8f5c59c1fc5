#include "decode/MeteoDecode.h"

#include <sys/stat.h>

#include <algorithm>
#include <utility>

#include "decode/BulletinText.h"
#include "shell/FileText.h"
#include "text/MemoryHints.h"
#include "text/TextRules.h"
#include "text/Windows1252.h"

namespace zg {
namespace {

constexpr int LinesBetweenYields = 10;
constexpr std::size_t IndexLength = 5;  // IIiii
constexpr std::size_t NameLength = 4;   // CCCC

std::string_view NameOfPath(std::string_view path) noexcept {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

// The first word of a line, or of the one behind a time stamp, if it has this many characters: the
// station where a report begins there. Empty where it cannot be one. `ahead` is the rest of the
// file, from the line on.
std::string_view StationWord(std::string_view ahead, std::size_t length) noexcept {
  constexpr std::string_view timeStamp = "2003/11/15 12:00\n";
  constexpr std::size_t shortestReport = 20;
  if (ahead.size() < timeStamp.size() + shortestReport) return {};
  if (ahead[4] == '/' && ahead[7] == '/') ahead.remove_prefix(timeStamp.size());
  return ahead[length] == ' ' ? ahead.substr(0, length) : std::string_view{};
}

}  // namespace

MeteoDecode::MeteoDecode(MeteoDecodeSettings settings, DecodeContext& context, DBUtility& database,
                         Prompt& prompt, Clock& clock, Progress& progress)
    : settings_(std::move(settings)),
      context_(context),
      database_(database),
      prompt_(prompt),
      clock_(clock),
      progress_(progress),
      scanner_(*this, context.Log, context.Texts()),
      metarDecoder_(context),
      synopDecoder_(context) {
  if (settings_.MaxMessages > LargestMaxMessages) {
    context_.Log.Log(
        std::string(context_.Texts().Choose("MaxMessages ridotto a ", "MaxMessages cut to ")) +
        PlainDecimal(LargestMaxMessages));
    settings_.MaxMessages = LargestMaxMessages;
  }
}

MeteoDecode::Summary MeteoDecode::DecodeFile(const std::string& fileName) {
  FileBytes file = ReadFileBytes(fileName);
  if (!file.Ok()) {
    StartRun(false);
    Fail(file.Error);
    return std::exchange(summary_, {});
  }
  const bool repaired = Repair(file.Bytes);
  if (repaired && settings_.RewriteFiles) {
    AtomicFile rewritten(fileName);
    if (!rewritten.Write(file.Bytes) || !rewritten.Commit()) {
      context_.Log.Log(rewritten.Error());  // the bytes in memory are good all the same
    }
  }
  return Run(fileName, file.Bytes, repaired);
}

MeteoDecode::Summary MeteoDecode::DecodeBytes(std::string_view name, std::string bytes) {
  const bool repaired = Repair(bytes);
  return Run(name, bytes, repaired);
}

// Repairs line ends where that is due; true if it was.
bool MeteoDecode::Repair(std::string& bytes) {
  if (!NeedsLineFeedRepair(bytes)) return false;
  context_.Log.Log(context_.Texts().Choose("Formattazione ... Attendere!", "Formatting ... Wait!"));
  RepairLineFeeds(bytes);
  return true;
}

void MeteoDecode::StartRun(bool singleMessage) {
  scanner_.Reset(singleMessage);
  storeFamily_ = Family::None;
  firstMessage_ = true;
  synopDecoder_.Expect({});
  metarDecoder_.Expect({});
  summary_ = {};
}

MeteoDecode::Summary MeteoDecode::Run(std::string_view name, std::string& bytes, bool repaired) {
  StartRun(false);
  summary_.Read = true;
  summary_.Bytes = static_cast<std::int64_t>(bytes.size());
  if (bytes.empty()) return std::exchange(summary_, {});

  OpenWrongFile(name);
  context_.Log.Log(std::string(context_.Texts().Choose("Decodifica ... ", "Decoding ... ")) +
                   std::string(name) + " (" + std::to_string(bytes.size()) + "Bytes)");
  progress_.Begin(summary_.Bytes);
  ReadLines(bytes, repaired);
  summary_.Lines = scanner_.LineCount();
  CloseWrongFile();
  if (context_.Texts().IsItalian()) {
    context_.Log.Log("Chiusura File: " + std::string(name));
  } else {
    context_.Log.Log("File " + std::string(name) + " Closed");
  }
  storeFamily_ = Family::None;
  return std::exchange(summary_, {});
}

void MeteoDecode::OpenWrongFile(std::string_view name) {
  if (!settings_.KeepWrongLines) return;
  const std::string folder = settings_.ApplicationPath + "WrongFiles";
  mkdir(folder.c_str(), 0777);  // where it is there already that is as good
  wrongFile_ =
      std::make_unique<AtomicFile>(folder + "/" + std::string(NameOfPath(name)) + ".Wrong");
}

void MeteoDecode::CloseWrongFile() {
  if (!wrongFile_) return;
  if (!wrongFile_->Commit()) Fail(wrongFile_->Error());
  wrongFile_.reset();
}

// Reads all lines, where they are: that all bytes are made upper case beforehand saves a copy of
// each.
void MeteoDecode::ReadLines(std::string& bytes, bool repaired) {
  const std::int64_t start = clock_.TickCount();
  UpperCaseWindows1252(bytes);
  LineReader reader(bytes, repaired);
  std::string_view line;
  std::string_view station;  // what may be one in the line to be read next, or behind it
  for (int counter = 1; reader.Next(line); ++counter) {
    if (!station.empty()) ExpectStation(station);
    const std::string_view next =
        StationWord(reader.Ahead(), storeFamily_ == Family::Synop ? IndexLength : NameLength);
    // Ahead of a time stamp it has been seen already.
    station = next.data() == station.data() ? std::string_view{} : next;
    if (!station.empty()) context_.Stations.ExpectWord(station);
    scanner_.ScanLine(line);
    progress_.Advance(static_cast<std::int64_t>(reader.Position()));
    if (counter % LinesBetweenYields == 0) progress_.Yield();
    while (break_) progress_.Yield();
    if (stopRequested_) break;
  }
  const auto position = static_cast<std::int64_t>(reader.Position());
  LogSpeed(position, std::max<std::int64_t>(clock_.TickCount() - start, 1));
  if (!stopRequested_) progress_.Advance(summary_.Bytes);
  stopRequested_ = false;
}

// Looks a word up that may be the station of a report, and has brought near what will be read of
// it: where its row is was fetched while the line before was read.
void MeteoDecode::ExpectStation(std::string_view word) noexcept {
  if (storeFamily_ == Family::Synop && !IsDigit(word[0])) return;
  const StationFound found = context_.Stations.FindByWord(word);
  const StationRow* row = found.Row;
  if (row == nullptr) return;
  PrefetchForReading(row, sizeof(StationRow));
  // Its number without reading it: it is not there yet.
  const auto number = static_cast<std::size_t>(row - context_.Stations.Rows().data());
  if (storeFamily_ == Family::Synop) {
    synopDecoder_.Expect(found);
    context_.Stores.SynopStore.Texts().Stations.Expect(number);
  } else {
    metarDecoder_.Expect(found);
    context_.Stores.MetarStore.Texts().Stations.Expect(number);
  }
}

void MeteoDecode::LogSpeed(std::int64_t position, std::int64_t milliseconds) {
  const double speed = static_cast<double>(position) / static_cast<double>(milliseconds) * 1000;
  context_.Log.Log(
      std::string(context_.Texts().Choose("Velocita di Decodifica: ", "Decoding Speed: ")) +
      FormatNumber(speed, "0.00") + " Bytes/sec");
}

bool MeteoDecode::DecodeLine(std::string_view text) {
  StartRun(true);
  BulletinScanner::Result result;
  if (!text.empty()) {
    std::string line = Utf8ToWindows1252(text);
    UpperCaseWindows1252(line);
    result = scanner_.ScanLine(line);
  }
  stopRequested_ = false;
  const bool stored = result.Complete && !result.Failed;
  if (!stored) context_.Log.Log(context_.Texts().Choose("Messaggio errato.", "Wrong Message."));
  return stored;
}

bool MeteoDecode::DecodeMessage(const BulletinMessage& message) {
  if (message.Type == MessageType::FRONTS) {
    StoreFronts(message);
    return false;
  }
  const bool synop = message.Type == MessageType::AAXX || message.Type == MessageType::BBXX;
  if (!ClaimStore(synop ? Family::Synop : Family::Metar)) return false;
  const DecodeOutcome outcome =
      synop ? synopDecoder_.DecodeSynopMessage(message, summary_.DecodedCount)
            : metarDecoder_.DecodeMetarMessage(message, summary_.DecodedCount);
  if (outcome.PrintWrongLine) PrintWrongLine(message.Text);
  if (outcome.Stored) CountStored();
  return outcome.Stored;
}

// The first message of a run chooses the store and empties it; messages of the other family are
// passed over to the end of the run.
bool MeteoDecode::ClaimStore(Family family) {
  if (storeFamily_ != Family::None && storeFamily_ != family) return false;
  if (firstMessage_) {
    firstMessage_ = false;
    storeFamily_ = family;
    const auto size = static_cast<std::size_t>(std::max(settings_.MaxMessages, 0));
    const auto reset = [&](auto& store) {
      store.Reset(size);
      store.Texts().UseFor(context_.Stations, context_.Texts());
    };
    if (family == Family::Synop) {
      reset(context_.Stores.SynopStore);
    } else {
      reset(context_.Stores.MetarStore);
    }
  }
  return true;
}

void MeteoDecode::CountStored() {
  ++summary_.DecodedCount;
  if (summary_.DecodedCount < settings_.MaxMessages) return;
  context_.Log.Log(
      PlainDecimal(summary_.DecodedCount) +
      std::string(context_.Texts().Choose(" Msg: Numero Massimo di messaggi raggiunto.",
                                          " Msg: Max Message number reached.")));
  stopRequested_ = true;
}

void MeteoDecode::StoreFronts(const BulletinMessage& message) {
  std::vector<FrontsRow> rows;
  const bool complete = DecodeFronts(message, rows);
  summary_.FrontsDecoded = true;
  database_.Query("begin");
  for (const FrontsRow& row : rows) {
    database_.Query(
        "insert into Fronts (Type, RecNum, Validity, MsgTime, Pressure, Lat, \"Long\") "
        "values (?, ?, ?, ?, ?, ?, ?)",
        {std::int64_t{row.Type}, std::int64_t{row.RecNum}, row.Validity, row.MsgTime, row.Pressure,
         row.Lat, row.Long});
  }
  database_.Query("commit");
  if (complete) {
    context_.Log.Log(
        context_.Texts().Choose("Database dei Fronti Aggiornato!", "Fronts Database Updated!"));
  } else {
    LogAtLine(context_, "Posizione del centro mancante; Line: ",
              "Position of the centre missing; Line: ", message.LineCount);
  }
}

void MeteoDecode::ResetFronts() { database_.Query("Delete from Fronts"); }

void MeteoDecode::PrintWrongLine(std::string_view line) {
  ++summary_.WrongLines;
  const std::string text = Windows1252ToUtf8(line);
  if (wrongFile_) {
    wrongFile_->Write(text);
    wrongFile_->Write("\n");
  }
  context_.Observer.WrongLine(text);
}

void MeteoDecode::Fail(const std::string& text) {
  summary_.Error = text;
  prompt_.Show(Prompt::Icon::Critical, text);
  context_.Log.Log(text);
}

std::string NormaliseTypedMessage(std::string_view text) {
  if (text.empty()) return {};
  std::string line;
  if (const std::size_t equals = text.find('='); equals != std::string_view::npos) {
    line = text.substr(0, equals + 2);
  } else {
    line = std::string(Trim(text)) + " =";
  }
  for (char& c : line) {
    if (c == '\r' || c == '\n') c = ' ';
  }
  return ReplaceAll(line, "  ", " ");
}

}  // namespace zg
