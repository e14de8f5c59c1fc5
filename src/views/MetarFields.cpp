// The global view of METAR, SPECI and TAF records: their fields in the order of the columns. A
// report is the first section of its record; change groups and remarks are not shown.
#include <functional>

#include "views/GlobalViewTable.h"

namespace zg {
namespace {

using enum Alignment;
using Cell = RecordPlace;

const MetarData& RecordAt(const Cell& cell) { return cell.Stores.MetarStore.Records()[cell.Index]; }

const MetarSection& ReportAt(const Cell& cell) {
  static constexpr MetarSection none;
  const auto sections = RecordAt(cell).Section;
  return sections.empty() ? none : sections.front();
}

template <auto Field>
std::string_view Same(const Cell& cell, std::string&) {
  return RecordAt(cell).*Field;
}

template <auto Field>
std::string_view OfStation(const Cell& cell, std::string&) {
  return std::invoke(Field, RecordAt(cell).Station);
}

template <auto Field>
std::string_view OfReport(const Cell& cell, std::string&) {
  return ReportAt(cell).*Field;
}

template <auto Field, std::size_t Number>
std::string_view Layer(const Cell& cell, std::string&) {
  return (ReportAt(cell).*Field)[Number];
}

// Two texts with three blanks between them, which stay where a text is empty.
std::string_view Join(std::string_view first, std::string_view second, std::string& scratch) {
  return scratch.assign(first).append("   ").append(second);
}

std::string_view Wind(const Cell& cell, std::string& scratch) {
  return Join(ReportAt(cell).WindSpeed, ReportAt(cell).WindDir, scratch);
}

std::string_view WindShear(const Cell& cell, std::string& scratch) {
  return Join(RecordAt(cell).WindShearDir, RecordAt(cell).WindShearLevel, scratch);
}

std::string_view Visibility(const Cell& cell, std::string& scratch) {
  return Join(ReportAt(cell).OrizVisibility, ReportAt(cell).VisibilityDir, scratch);
}

template <std::size_t Number>
std::string_view Forecast(const Cell& cell, std::string& scratch) {
  const MetarData& record = RecordAt(cell);
  const std::string_view temperature = record.ForecastTemperature[Number];
  if (temperature.empty()) return {};
  const std::string_view time = record.ForecastTemperatureTime[Number];
  return scratch.assign(temperature).append(" (").append(time).append(")");
}

std::string_view IndexText(const Cell& cell, std::string& scratch) {
  return scratch = RecordIndexText(cell.Index);
}

using Data = MetarData;
using Report = MetarSection;
using Place = StationTexts;

constexpr std::size_t RecordIndex = 39;
// The column behind it, of the time of insertion, has neither width nor text.
// clang-format off
constexpr GlobalViewField Fields[] = {
    {"StationId", {"Stazione", "StationId"}, 2000, Left, OfStation<&Place::Station>},
    {"StationHT", {"Altit. Staz.", "Stat. Altit."}, 550, Right, OfStation<&Place::StationHT>},
    {"SensorHT", {"Altit. Sens.", "Sensor Altit."}, 550, Right, OfStation<&Place::SensorHT>},
    {"Country", {"Nazione", "Country"}, 1600, Left, OfStation<&Place::Country>},
    {"IssueTime", {"Ora Msg", "Issue Time"}, 1000, Left, Same<&Data::BulletinTime>},
    {"TimeOfObservation", {"Ora Osserv.", "Observ. Time"}, 1000, Left, Same<&Data::ObservationTime>},
    {"MsgId", {"MsgId", "MsgId"}, 900, Left, OfStation<&Place::MsgId>},
    {"Sender", {"Mittente", "Sender"}, 800, Left, OfStation<&Place::Sender>},
    {"Type", {"Tipo", "Type"}, 900, Left, OfStation<&Place::Type>},
    {"LatPosition", {"Lat", "Lat"}, 780, Left, OfStation<&Place::LatPosition>},
    {"LongPosition", {"Long", "Long"}, 850, Left, OfStation<&Place::LongPosition>},
    {"WindSpeed", {"Dir./Veloc. Vento", "Wind Dir/Speed"}, 1390, Left, Wind},
    {"WindDirRange", {"Range Dir. Vento", "Wind Dir Range"}, 900, Left, OfReport<&Report::WindDirRange>},
    {"Gust", {"Raffiche Vento", "Gust"}, 900, Right, OfReport<&Report::Gust>},
    {"Temperature", {"Temperatura", "Temperature"}, 800, Right, Same<&Data::Temperature>},
    {"Dewpoint", {"DewPoint", "DewPoint"}, 800, Right, Same<&Data::Dewpoint>},
    {"Weather1", {"Tempo Presente (1)", "Weather (1)"}, 1300, Left, Layer<&Report::Weather, 0>},
    {"Weather2", {"Tempo Presente (2)", "Weather (2)"}, 1300, Left, Layer<&Report::Weather, 1>},
    {"Weather3", {"Tempo Presente (3)", "Weather (3)"}, 1300, Left, Layer<&Report::Weather, 2>},
    {"WindShearLevel", {"Liv. di Wind Shear", "Wind Shear Level"}, 1100, Right, WindShear},
    {"WindShearSpeed", {"Dir/Veloc. Wind Shear", "Wind Shear Dir/Speed"}, 1200, Right, Same<&Data::WindShearSpeed>},
    {"AltimeterPressure", {"Settaggio Altimetro", "Altimeter Pressure"}, 1000, Right, OfReport<&Report::AltimeterPressure>},
    {"SeaPressureLevel", {"Press. Liv. Mare", "Sea Pressure Level"}, 1000, Right, OfReport<&Report::SeaPressureLevel>},
    {"VerticalVisibility", {"Visibil. Vertic.", "Vertical Visibility"}, 1000, Right, Same<&Data::VerticalVisibility>},
    {"OrizVisibility", {"Visibil. Oriz.", "Oriz. Visibility"}, 1000, Right, Visibility},
    {"CloudCover1", {"Nuv. Strato 1", "Cloud Cover (1)"}, 500, Right, Layer<&Report::CloudCover, 0>},
    {"CloudType1", {"Tipo Strato 1", "Cloud Type (1)"}, 1100, Left, Layer<&Report::CloudType, 0>},
    {"CloudHeigh1", {"Liv. Strato 1", "Cloud Heigh (1)"}, 900, Right, Layer<&Report::CloudHeigh, 0>},
    {"CloudCover2", {"Nuv. Strato 2", "Cloud Cover (2)"}, 500, Right, Layer<&Report::CloudCover, 1>},
    {"CloudType2", {"Tipo Strato 2", "Cloud Type (2)"}, 1100, Left, Layer<&Report::CloudType, 1>},
    {"CloudHeigh2", {"Liv. Strato 2", "Cloud Heigh (2)"}, 900, Right, Layer<&Report::CloudHeigh, 1>},
    {"CloudCover3", {"Nuv. Strato 3", "Cloud Cover (3)"}, 500, Right, Layer<&Report::CloudCover, 2>},
    {"CloudType3", {"Tipo Strato 3", "Cloud Type (3)"}, 1100, Left, Layer<&Report::CloudType, 2>},
    {"CloudHeigh3", {"Liv. Strato 3", "Cloud Heigh (3)"}, 900, Right, Layer<&Report::CloudHeigh, 2>},
    {"RVRRunway", {"RVR Runway", "RVR Runway"}, 1000, Left, Same<&Data::RVRRunway>},
    {"RVRVisibility", {"RVR Visibilita'", "RVR Visibility"}, 1100, Right, Same<&Data::RVRVisibility>},
    {"RVRVisibilitymax", {"RVR Visib. Max", "RVR Visib. Max"}, 1100, Right, Same<&Data::RVRVisibilitymax>},
    {"ForecastTemperature1", {"Temper. Prevista (1)", "Forecast Temper. (1)"}, 1200, Left, Forecast<0>},
    {"ForecastTemperature2", {"Temper. Prevista (2)", "Forecast Temper. (2)"}, 1200, Left, Forecast<1>},
    {"RecordIndex", {"Indice", "Record Index"}, 600, Right, IndexText},
    {"InsertTime", {"Ora Inserim.", "Insert Time"}, 0, Left, nullptr},
};
// clang-format on
static_assert(Fields[RecordIndex].Key == "RecordIndex");

constexpr std::string_view FilterBoxes[] = {"NW", "NE", "SW", "SE", "Speci", "Metar", "TAF"};
constexpr std::int32_t FilterGroups[] = {0x70, 0x0F};  // message, quadrant

RowFilterData FilterDataOf(const MessageStores& stores, std::size_t index) {
  const MetarData& record = stores.MetarStore.Records()[index];
  return {record.FilterFlags, record.Station.Country()};
}

}  // namespace

constinit const GlobalViewTable MetarGlobalView = {
    .Form = "frmMetarGlobalView",
    .SelectionKey = "MetarDataFields",
    .RowsCaption = {"Dati Meteo Taf/Metar: ", "Taf/Metar Meteo Data: "},
    .FieldsCaption = {"Campi Dati Meteo Metar/TAF", "Metar/TAF Data Fields"},
    .Fields = Fields,
    .RecordIndex = RecordIndex,
    .FilterBoxes = FilterBoxes,
    .FilterGroups = FilterGroups,
    .Count = [](const MessageStores& stores) { return stores.MetarStore.Count(); },
    .FilterData = FilterDataOf,
};

}  // namespace zg
