#include "FuzzDecoder.h"

#include <cstdlib>

#include "batch/RecordJson.h"
#include "text/Windows1252.h"

namespace zg {

void JsonObserver::MetarStored(const MetarRawData& raw, const MetarData& data) {
  line_.clear();
  AppendRecord(line_, RecordFields::Both, raw, data);
  if (!IsUtf8(line_)) std::abort();
}

void JsonObserver::SynopStored(const SynopRawData& raw, const SynopData& data) {
  line_.clear();
  AppendRecord(line_, RecordFields::Both, raw, data);
  if (!IsUtf8(line_)) std::abort();
}

FuzzDecoder::FuzzDecoder()
    : database_(prompt_),
      conversion_(texts_),
      context_{.Stations = stations_,
               .Units = {texts_, conversion_},
               .Filters = {},
               .Stores = stores_,
               .Log = log_,
               .Observer = observer_} {
  texts_.SetUnit(UnitKind::Level, " m");
  texts_.SetUnit(UnitKind::Speed, " kmh");
  texts_.SetUnit(UnitKind::Distance, " km");
  texts_.SetUnit(UnitKind::Pressure, " inHg");
  texts_.SetUnit(UnitKind::Temperature, " °F");
  // A database beside the fuzzer, as the build makes it, gives the stations.
  if (database_.ConnectDatabase("ICAOData.mdb")) stations_.Load(database_);
}

void FuzzDecoder::DecodeFile(std::string bytes) {
  MeteoDecode decoder({.ApplicationPath = {}, .MaxMessages = 200, .KeepWrongLines = false},
                      context_, database_, prompt_, clock_, progress_);
  decoder.DecodeBytes("fuzz", std::move(bytes));
}

void FuzzDecoder::DecodeTyped(std::string_view text) {
  MeteoDecode decoder({.ApplicationPath = {}, .MaxMessages = 200, .KeepWrongLines = false},
                      context_, database_, prompt_, clock_, progress_);
  decoder.DecodeLine(NormaliseTypedMessage(text));
}

FuzzDecoder& SharedFuzzDecoder() {
  static FuzzDecoder decoder;
  return decoder;
}

}  // namespace zg
