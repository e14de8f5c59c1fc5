#include "FuzzDecoder.h"

#include <utility>

#include "batch/JsonSyntax.h"
#include "batch/RecordJson.h"
#include "stations/StationImport.h"
#include "text/Windows1252.h"

namespace zg::fuzz {
namespace {

template <typename Raw, typename Data>
void CheckRecord(std::string& line, const Raw& raw, const Data& data) {
  line.clear();
  AppendRecord(line, RecordFields::Both, raw, data);
  if (!IsUtf8(line)) Die("a record that is not UTF-8: " + line);
  if (!line.ends_with('\n')) Die("a record that does not end its line: " + line);
  line.pop_back();
  if (!test::JsonSyntax::IsValid(line)) Die("a record that is not JSON: " + line);
}

}  // namespace

void JsonObserver::MetarStored(const MetarRawData& raw, const MetarData& data) {
  CheckRecord(line_, raw, data);
}

void JsonObserver::SynopStored(const SynopRawData& raw, const SynopData& data) {
  CheckRecord(line_, raw, data);
}

FuzzDecoder::FuzzDecoder() {
  folder_.OpenDatabase(database_);
  ImportStations(ZG_SOURCE_DIR "/tests/golden/app/wmo_index.txt");
  ImportStations(ZG_SOURCE_DIR "/tests/golden/app/icao_index.txt");
  if (!parts_.Stations.Load(database_) || parts_.Stations.Size() == 0) Die("no stations");
}

void FuzzDecoder::ImportStations(const char* list) {
  const StationImport import = ImportStationList(list, database_, parts_.Log, progress_);
  if (import.Outcome != StationImport::Result::Done) Die(import.Message);
}

void FuzzDecoder::ChooseTexts(std::size_t length) {
  const bool english = length % 2 == 0;
  const auto setUnit = [this, english](UnitKind kind, std::string_view suffix) {
    parts_.Texts.SetUnit(kind, english ? suffix : std::string_view());
  };
  parts_.Texts.SetLanguage(english ? 1 : 0);
  setUnit(UnitKind::Level, " m");
  setUnit(UnitKind::Speed, " kmh");
  setUnit(UnitKind::Distance, " km");
  setUnit(UnitKind::Pressure, " inHg");
  setUnit(UnitKind::Temperature, " °F");
}

MeteoDecode FuzzDecoder::MakeDecoder() {
  return MeteoDecode({.ApplicationPath = folder_.Path(),
                      .MaxMessages = 200,
                      .RewriteFiles = false,
                      .KeepWrongLines = false},
                     parts_.Context, database_, prompt_, clock_, progress_);
}

void FuzzDecoder::DecodeFile(std::string bytes) {
  ChooseTexts(bytes.size());
  MeteoDecode decoder = MakeDecoder();
  decoder.DecodeBytes("fuzz", std::move(bytes));
}

void FuzzDecoder::DecodeTyped(std::string_view text) {
  ChooseTexts(text.size());
  MeteoDecode decoder = MakeDecoder();
  decoder.DecodeLine(NormaliseTypedMessage(text));
}

FuzzDecoder& SharedFuzzDecoder() {
  static FuzzDecoder decoder;
  return decoder;
}

}  // namespace zg::fuzz
