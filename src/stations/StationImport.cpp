#include "stations/StationImport.h"

#include <array>
#include <optional>
#include <utility>

#include "maps/LatLongUtility.h"
#include "shell/FileText.h"
#include "text/TextRules.h"
#include "text/Windows1252.h"

namespace zg {
namespace {

constexpr std::size_t HeadLength = 12;
constexpr std::int32_t NoIndex = -1;
constexpr float NoHeight = 32767.0f;

// What a line says of a station, as it stands there.
struct StationLine {
  std::string Station;
  std::string State;
  std::string Country;
  std::string WMORegion;
  std::string StationLat;
  std::string StationLong;
  std::string SensorLat;
  std::string SensorLong;
  float StationHT = NoHeight;
  float SensorHT = NoHeight;
  std::string IcaoName;
  std::int32_t WMOIndex = NoIndex;
};

// The fields behind the head, in their order.
enum class FieldKind {
  Text,
  Latitude,
  Longitude,
  SensorLatitude,
  SensorLongitude,
  Height,
};

struct FieldRule {
  FieldKind kind;
  std::string StationLine::*text;
  float StationLine::*height;
};

constexpr std::array<FieldRule, 10> Fields{{
    {FieldKind::Text, &StationLine::Station, nullptr},
    {FieldKind::Text, &StationLine::State, nullptr},
    {FieldKind::Text, &StationLine::Country, nullptr},
    {FieldKind::Text, &StationLine::WMORegion, nullptr},
    {FieldKind::Latitude, &StationLine::StationLat, nullptr},
    {FieldKind::Longitude, &StationLine::StationLong, nullptr},
    {FieldKind::SensorLatitude, &StationLine::SensorLat, nullptr},
    {FieldKind::SensorLongitude, &StationLine::SensorLong, nullptr},
    {FieldKind::Height, nullptr, &StationLine::StationHT},
    {FieldKind::Height, nullptr, &StationLine::SensorHT},
}};

// Where the points go in a coordinate of a given length (places from 1, 0 for none), by kind of
// field. Any other length is a fault.
struct CoordinateForm {
  FieldKind kind;
  std::size_t length;
  std::size_t first;
  std::size_t second;
};

constexpr std::array<CoordinateForm, 10> CoordinateForms{{
    {FieldKind::Latitude, 9, 3, 6},          // 41-48-00N
    {FieldKind::Latitude, 6, 3, 0},          // 41-48N
    {FieldKind::Longitude, 10, 4, 7},        // 012-14-00E
    {FieldKind::Longitude, 7, 4, 0},         // 012-14E
    {FieldKind::Longitude, 9, 3, 6},         // 12-14-00E
    {FieldKind::Longitude, 6, 3, 0},         // 12-14E
    {FieldKind::SensorLatitude, 9, 3, 6},    //
    {FieldKind::SensorLatitude, 6, 3, 0},    //
    {FieldKind::SensorLongitude, 10, 4, 7},  //
    {FieldKind::SensorLongitude, 7, 4, 0},   //
}};

// The coordinate with points between its parts; nothing for a length that no form has.
std::optional<std::string> PointedCoordinate(FieldKind kind, std::string_view text) {
  for (const CoordinateForm& form : CoordinateForms) {
    if (form.kind != kind || form.length != text.size()) continue;
    std::string pointed(text);
    pointed[form.first - 1] = '.';
    if (form.second > 0) pointed[form.second - 1] = '.';
    return pointed;
  }
  return std::nullopt;
}

// Block and station number, "16;242", as one number; -1 if they are none.
std::int32_t IndexOf(std::string_view blockAndNumber) {
  std::string decimal(blockAndNumber);
  if (decimal.size() > 2) decimal[2] = '.';
  const std::optional<double> number = StrictNumber(decimal);
  if (!number) return NoIndex;
  return ToInteger<std::int32_t>(*number * 1000.0).value_or(NoIndex);
}

// Takes the first twelve characters off the line.
void ReadHead(std::string_view& line, StationLine& station) {
  if (Mid(line, 3, 1) == ";") {
    station.WMOIndex = IndexOf(Mid(line, 1, 6));
    if (Mid(line, 8, 4) != "----") station.IcaoName = Mid(line, 8, 4);
  } else {
    station.IcaoName = Mid(line, 1, 4);
    if (Mid(line, 6, 2) != "--") station.WMOIndex = IndexOf(Mid(line, 6, 6));
  }
  line = Mid(line, HeadLength + 1);
}

// The first `count` characters of UTF-8 text.
std::string_view FirstCharacters(std::string_view text, std::size_t count) noexcept {
  std::size_t at = 0;
  while (at < text.size()) {
    const bool begins = (static_cast<unsigned char>(text[at]) & 0xC0u) != 0x80u;
    if (begins && count-- == 0) break;
    ++at;
  }
  return text.substr(0, at);
}

// False on the fatal fault: a position of the station of a length that no form has.
bool TakeField(const FieldRule& rule, std::string_view value, StationLine& station) {
  switch (rule.kind) {
    case FieldKind::Text:
      station.*rule.text = value;
      return true;
    case FieldKind::Height:
      if (const auto metres = StrictNumber(Trim(value))) {
        station.*rule.height = ToSingle(*metres).value_or(station.*rule.height);
      }
      return true;
    case FieldKind::Latitude:
    case FieldKind::Longitude:
    case FieldKind::SensorLatitude:
    case FieldKind::SensorLongitude:
      break;
  }
  std::optional<std::string> coordinate = PointedCoordinate(rule.kind, value);
  const bool mayBeMissing =
      rule.kind == FieldKind::SensorLatitude || rule.kind == FieldKind::SensorLongitude;
  if (!coordinate) return mayBeMissing;
  station.*rule.text = std::move(*coordinate);
  return true;
}

FieldValue HeightValue(float height) {
  if (height == NoHeight) return {};
  return static_cast<double>(height);
}

void WriteStation(const StationLine& station, DBUtility& dbUtility, Recordset& table) {
  const auto trimmed = [](const std::string& coordinate) {
    return TrimLatLong(coordinate, SixtyMinutes::MakeADegree);
  };
  dbUtility.AddNewRecord(table);
  table.SetField("Country", std::string(FirstCharacters(station.Country, 50)));
  table.SetField("IcaoName", station.IcaoName);
  table.SetField("SensorHT", HeightValue(station.SensorHT));
  table.SetField("SensorLat", trimmed(station.SensorLat));
  table.SetField("SensorLong", trimmed(station.SensorLong));
  table.SetField("State", std::string(FirstCharacters(station.State, 2)));
  table.SetField("Station", std::string(FirstCharacters(station.Station, 75)));
  table.SetField("StationHT", HeightValue(station.StationHT));
  table.SetField("StationLat", trimmed(station.StationLat));
  table.SetField("StationLong", trimmed(station.StationLong));
  table.SetField("WMOIndex", std::int64_t{station.WMOIndex});
  table.SetField("WMORegion", station.WMORegion);
}

// One fault, named "2607" at its end, stands in a list that is known to be so and is passed over.
void LogFault(LogList& logList, std::string_view description) {
  if (Right(description, 4) != "2607") logList.Log(description);
}

// Reads the fields of a line into a station, faults going to the log. False on the fatal fault.
bool ReadStation(std::string_view line, int number, StationLine& station, LogList& logList) {
  ReadHead(line, station);
  for (const FieldRule& rule : Fields) {
    const std::size_t end = line.find(';');
    if (end == std::string_view::npos) {
      LogFault(logList, "Parameter not Found in Line: " + std::to_string(number));
      continue;
    }
    if (!TakeField(rule, line.substr(0, end), station)) return false;
    line.remove_prefix(end + 1);
  }
  if (Holds(line, ";")) LogFault(logList, "Wrong Line: " + std::to_string(number));
  return true;
}

// Nothing if the table cannot be read.
std::optional<bool> TableHasRows(DBUtility& dbUtility) {
  bool hasRows = false;
  const bool read = dbUtility.ReadRows("select rowid from MeteoStations limit 1",
                                       [&](const RowView&) { hasRows = true; });
  if (!read) return std::nullopt;
  return hasRows;
}

// Silences a log while it lives.
class Silence {
 public:
  explicit Silence(LogList& logList) : logList_(logList) { logList_.Enabled = false; }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;
  ~Silence() { logList_.Enabled = true; }

 private:
  LogList& logList_;
};

}  // namespace

StationImport ImportStationList(const std::string& FileName, DBUtility& dbUtility, LogList& logList,
                                Progress& progress) {
  StationImport result;
  std::optional<Recordset> table = dbUtility.OpenRecord("Select * from MeteoStations");
  if (!table) {
    LogFault(logList, dbUtility.Error());
    return result;
  }
  const FileBytes file = ReadFileBytes(FileName);
  if (!file.Ok()) {
    LogFault(logList, file.Error);
    return result;
  }
  const Silence silence(logList);
  const bool isUtf8 = IsUtf8(file.Bytes);
  progress.Begin(static_cast<std::int64_t>(file.Bytes.size()));
  int number = 0;
  for (const std::string_view bytes : SplitLines(file.Bytes)) {
    ++number;
    // Where the next line begins; the last line of the file reaches its end and is not used.
    const char* end = bytes.data() + bytes.size();
    const char* const fileEnd = file.Bytes.data() + file.Bytes.size();
    if (end != fileEnd) end += end[0] == '\r' && end + 1 != fileEnd && end[1] == '\n' ? 2 : 1;
    progress.Advance(end - file.Bytes.data());
    if (end == fileEnd) break;
    if (Trim(bytes).empty()) continue;

    StationLine station;
    const std::string line = isUtf8 ? std::string(bytes) : Windows1252ToUtf8(bytes);
    if (!ReadStation(line, number, station, logList)) {
      result.Outcome = StationImport::Result::Fatal;
      result.Line = number;
      result.Message = FileName + ", line " + std::to_string(number) +
                       ": the position of the station has a wrong length";
      return result;
    }
    WriteStation(station, dbUtility, *table);
    if (const std::int16_t error = dbUtility.UpdateRecord(*table); error == 0) {
      ++result.Rows;
    } else if (!IsRowRefused(error)) {
      result.Outcome = StationImport::Result::DatabaseFailed;
      result.Message = dbUtility.Error();
      return result;
    }
    progress.Yield();
  }
  return result;
}

bool IsStationTableEmpty(DBUtility& dbUtility) {
  return TableHasRows(dbUtility) == std::optional<bool>(false);
}

std::string_view StationBuildStatus(const TextUtility& textUtility) noexcept {
  return textUtility.Choose("Creazione DB WMO ... ", "Building WMO Database ... ");
}

StationBuild BuildStationTable(const GenericUtility& genericUtility, DBUtility& dbUtility,
                               const TextUtility& textUtility, LogList& logList, Progress& progress,
                               Prompt& prompt, const std::function<void()>& loadCountryList) {
  StationBuild build;
  const auto fail = [&](std::string message,
                        StationBuild::Result outcome = StationBuild::Result::Failed) {
    dbUtility.Query("rollback");
    build.Outcome = outcome;
    build.Rows = 0;
    build.Message = std::move(message);
    // Without a connection the user has been told already.
    if (dbUtility.IsConnected()) prompt.Show(Prompt::Icon::Critical, build.Message);
    return build;
  };

  std::optional<bool> hasRows = TableHasRows(dbUtility);
  if (hasRows == true) return build;
  const std::string byIndex = genericUtility.GetParameter("IndexKeyWMOStation");
  const std::string byIcaoName = genericUtility.GetParameter("IcaoIdKeyWMOStation");
  // Another process may have built the table while this one waited for the lock.
  if (!hasRows || !dbUtility.Query("begin immediate")) return fail(dbUtility.Error());
  hasRows = TableHasRows(dbUtility);
  if (!hasRows) return fail(dbUtility.Error());
  if (*hasRows) {
    dbUtility.Query("rollback");
    return build;
  }

  logList.Log(textUtility.Choose("Database Stazioni WMO non creato.",
                                 "WMO Station Database Empty. Build Requested!"));
  logList.Log(textUtility.Choose("Creazione DB WMO ... ", "Building WMO Database ...  "));
  for (const std::string& name : {byIndex, byIcaoName}) {
    logList.Log(std::string(textUtility.Choose("Processamento file ... ", "Processing file ... ")) +
                name);
    logList.Refresh();
    const StationImport import =
        ImportStationList(genericUtility.ApplicationPath() + name, dbUtility, logList, progress);
    if (import.Outcome == StationImport::Result::Fatal) {
      return fail(import.Message, StationBuild::Result::Fatal);
    }
    if (import.Outcome != StationImport::Result::Done) return fail(import.Message);
    build.Rows += import.Rows;
  }
  if (!dbUtility.Query("commit")) return fail(dbUtility.Error());
  build.Outcome = StationBuild::Result::Built;
  if (loadCountryList) loadCountryList();
  logList.Log(textUtility.Choose("Creazione completata con successo.",
                                 "Building completed succesfully. Ready!"));
  return build;
}

}  // namespace zg
