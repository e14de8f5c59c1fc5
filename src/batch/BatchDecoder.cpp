#include "batch/BatchDecoder.h"

#include <unistd.h>

#include <algorithm>
#include <optional>
#include <string>

#include "batch/Console.h"
#include "batch/CsvOutput.h"
#include "batch/OutputStream.h"
#include "batch/RecordJson.h"
#include "batch/Summary.h"
#include "decode/MeteoDecode.h"
#include "shell/ApplicationDirectory.h"
#include "shell/FileText.h"
#include "stations/StationImport.h"
#include "tables/ReportUnits.h"
#include "text/Windows1252.h"

namespace zg {
namespace {

constexpr std::string_view StandardInput = "-";

// Writes each record as it is stored, or counts it. A table is written behind its run.
class RecordOutput : public DecodeObserver {
 public:
  RecordOutput(OutputStream& output, const Options& options) noexcept
      : output_(output), options_(options) {}

  void SynopStored(const SynopRawData& raw, const SynopData& data) override { Put(raw, data); }
  void MetarStored(const MetarRawData& raw, const MetarData& data) override { Put(raw, data); }
  void WrongLine(std::string_view) override { summary_.AddWrongLine(); }

  DecodeSummary& Summary() noexcept { return summary_; }

 private:
  template <typename Raw, typename Data>
  void Put(const Raw& raw, const Data& data) {
    if (options_.Summary) {
      summary_.Add(data.Station);
      return;
    }
    if (options_.Format == OutputFormat::Csv) return;
    AppendRecord(output_.Buffer(), options_.Fields, raw, data);
    output_.FlushIfFull();
  }

  OutputStream& output_;
  const Options& options_;
  DecodeSummary summary_;
};

std::int32_t ReadMaxMessages(const GenericUtility& parameters) {
  const std::string text = parameters.GetParameter("MaxMessages");
  if (text.empty()) return LargestMaxMessages;
  return ToInteger<std::int32_t>(Value(text)).value_or(LargestMaxMessages + 1);
}

void AppendFronts(DBUtility& database, std::string& out) {
  database.ReadRows(
      "select Type, RecNum, Validity, MsgTime, Pressure, Lat, \"Long\" from Fronts order by RecNum",
      [&out](const RowView& row) {
        FrontsRow point;
        point.Type = static_cast<std::int32_t>(row.Integer(0));
        point.RecNum = static_cast<std::int32_t>(row.Integer(1));
        point.Validity = row.Text(2);
        point.MsgTime = row.Text(3);
        point.Pressure = row.Text(4);
        point.Lat = row.Text(5);
        point.Long = row.Text(6);
        AppendRecord(out, point);
      });
}

// Opens the database, builds its station table if it is empty, and reads it. Without a database the
// runs go on and know no station. False on a fault of a station list that ends the program.
bool LoadStations(const GenericUtility& parameters, const TextUtility& texts,
                  const std::string& directory, LogList& log, Prompt& prompt,
                  ConsoleProgress& progress, DBUtility& database, StationDirectory& stations) {
  if (!database.ConnectDatabase(directory + "ICAOData.mdb")) return true;
  const StationBuild build =
      BuildStationTable(parameters, database, texts, log, progress, prompt, [&] {
        log.Log(texts.Choose("Attendere Caricamento Dati ...", "Wait for Loading Data ..."));
      });
  progress.End();
  if (build.Outcome == StationBuild::Result::Fatal) return false;
  if (!stations.Load(database)) PrintError("zgdecode: " + database.Error());
  return true;
}

// One file: as a run of its own with a decoder that knows nothing of the files before.
struct BatchRun {
  const Options& options;
  DecodeContext& context;
  DBUtility& database;
  Prompt& prompt;
  Clock& clock;
  ConsoleProgress& progress;
  MeteoDecodeSettings settings;
  RecordOutput& output;

  // False if the file could not be read.
  bool Decode(const std::string& file, bool& fronts) {
    FileBytes bytes = ReadFileBytes(file == StandardInput ? "/dev/stdin" : file);
    if (!bytes.Ok()) {
      PrintError("zgdecode: " + bytes.Error);
      return false;
    }
    MeteoDecode decoder(settings, context, database, prompt, clock, progress);
    if (options.Message) {
      const bool utf8 = IsUtf8(bytes.Bytes);
      decoder.DecodeLine(
          NormaliseTypedMessage(utf8 ? bytes.Bytes : Windows1252ToUtf8(bytes.Bytes)));
      return true;
    }
    const std::int64_t start = clock.TickCount();
    const MeteoDecode::Summary summary = decoder.DecodeBytes(file, std::move(bytes.Bytes));
    progress.End();
    output.Summary().AddRun(summary.Bytes, clock.TickCount() - start);
    fronts = fronts || summary.FrontsDecoded;
    return summary.Error.empty();
  }
};

}  // namespace

int RunBatch(const Options& options) {
  ApplicationDirectory directory =
      options.ApplicationDirectory.empty()
          ? FindApplicationDirectory()
          : ApplicationDirectory{WithSeparator(options.ApplicationDirectory), {}};
  if (!directory.Error.empty()) PrintError("zgdecode: " + directory.Error);

  ConsoleLog log;
  ConsolePrompt prompt;
  SteadyClock clock;
  ConsoleProgress progress(
      options.Progress || (isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0), clock);
  TextUtility texts;
  const GenericUtility parameters(directory.Path, prompt, texts);
  ReadLanguageAndUnits(parameters, texts);
  const ConversionUtility conversion(texts);

  DBUtility database(prompt);
  StationDirectory stations;
  if (!LoadStations(parameters, texts, directory.Path, log, prompt, progress, database, stations)) {
    return 1;
  }

  OutputStream out(options.Output);
  RecordOutput records(out, options);
  MessageStores stores;
  DecodeContext context{.Stations = stations,
                        .Units = {texts, conversion},
                        .Filters = ReadMessageFilters(parameters),
                        .Stores = stores,
                        .Log = log,
                        .Observer = records};
  BatchRun run{
      .options = options,
      .context = context,
      .database = database,
      .prompt = prompt,
      .clock = clock,
      .progress = progress,
      .settings = {.ApplicationPath = directory.Path, .MaxMessages = ReadMaxMessages(parameters)},
      .output = records};
  bool allRead = true;
  bool fronts = false;
  std::optional<CsvOutput> csv;
  if (options.Format == OutputFormat::Csv && !options.Summary) {
    csv.emplace(parameters, texts, stores);
  }
  for (const std::string& file : options.Files) {
    if (csv) csv->BeginRun();
    allRead = run.Decode(file, fronts) && allRead;
    if (csv) csv->EndRun(out);
  }
  if (options.Summary) {
    out.Buffer() += records.Summary().Text();
  } else if (fronts && !csv) {
    AppendFronts(database, out.Buffer());
  }
  if (!out.Finish()) {
    PrintError("zgdecode: " + out.Error());
    return 1;
  }
  return allRead ? 0 : 1;
}

}  // namespace zg
