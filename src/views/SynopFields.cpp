// The global view of SYNOP records: their fields in the order of the columns.
#include <functional>

#include "views/GlobalViewTable.h"

namespace zg {
namespace {

using enum Alignment;
using Cell = RecordPlace;

const SynopData& RecordAt(const Cell& cell) { return cell.Stores.SynopStore.Records()[cell.Index]; }

template <auto Field>
std::string_view Same(const Cell& cell, std::string&) {
  return RecordAt(cell).*Field;
}

template <auto Field>
std::string_view OfStation(const Cell& cell, std::string&) {
  return std::invoke(Field, RecordAt(cell).Station);
}

template <auto Field, std::size_t Number>
std::string_view Layer(const Cell& cell, std::string&) {
  return (RecordAt(cell).*Field)[Number];
}

std::string_view LowestCloudShort(const Cell& cell, std::string&) {
  return cell.Texts.LowestCloudShort(RecordAt(cell).LowestCloudCode);
}

std::string_view CloudCoverShort(const Cell& cell, std::string&) {
  return cell.Texts.CloudCoverShort(RecordAt(cell).CloudCoverCode);
}

std::string_view IndexText(const Cell& cell, std::string& scratch) {
  return scratch = RecordIndexText(cell.Index);
}

using Data = SynopData;
using Place = StationTexts;

constexpr std::size_t RecordIndex = 77;
// The column behind it, of the time of insertion, has neither width nor text.
// clang-format off
constexpr GlobalViewField Fields[] = {
    {"StationId", {"Stazione", "StationId"}, 2000, Left, OfStation<&Place::Station>},
    {"StationHT", {"Altit. Staz.", "Stat. Altit."}, 550, Right, OfStation<&Place::StationHT>},
    {"SensorHT", {"Altit. Sens.", "Sensor Altit."}, 550, Right, OfStation<&Place::SensorHT>},
    {"Country", {"Nazione", "Country"}, 1600, Left, OfStation<&Place::Country>},
    {"IssueTime", {"Ora Msg", "Issue Time"}, 1000, Left, Same<&Data::IssueTime>},
    {"TimeOfObservation", {"Ora Osserv.", "Observ. Time"}, 800, Left, Same<&Data::TimeOfObservation>},
    {"MsgId", {"MsgId", "MsgId"}, 980, Left, OfStation<&Place::MsgId>},
    {"Sender", {"Mittente", "Sender"}, 720, Left, OfStation<&Place::Sender>},
    {"Type", {"Tipo", "Type"}, 670, Left, OfStation<&Place::Type>},
    {"LatPosition", {"Lat", "Lat"}, 780, Left, OfStation<&Place::LatPosition>},
    {"LongPosition", {"Long", "Long"}, 850, Left, OfStation<&Place::LongPosition>},
    {"LowestCloud", {"Nuvole Basse", "Lowest Cloud"}, 1390, Right, LowestCloudShort},
    {"Visibility", {"Visibilita'", "Visibility"}, 810, Right, Same<&Data::Visibility>},
    {"CloudCover", {"Copertura", "Cloud Cover"}, 870, Right, CloudCoverShort},
    {"WindDirection", {"Direz. Vento", "Wind Direct."}, 800, Right, Same<&Data::WindDirection>},
    {"WindSpeed", {"Veloc. Vento", "Wind Speed"}, 900, Right, Same<&Data::WindSpeed>},
    {"Humidity", {"Umidita'", "Humidity"}, 730, Right, Same<&Data::Humidity>},
    {"DewPoint", {"DewPoint", "DewPoint"}, 880, Right, Same<&Data::DewPoint>},
    {"Temperature", {"Temperatura", "Temperature"}, 810, Right, Same<&Data::Temperature>},
    {"StatPressure", {"Pressione in sito", "Stat Pressure"}, 950, Right, Same<&Data::StatPressure>},
    {"SeaLevPressure", {"Press. Liv. Mare", "Sea Lev. Press."}, 950, Right, Same<&Data::SeaLevPressure>},
    {"GeopotHeight", {"Alt. Geopot.", "Geopot. Height"}, 950, Right, Same<&Data::GeopotHeight>},
    {"GeopotPressure", {"Press. Geopot", "Geopot. Press."}, 950, Right, Same<&Data::GeopotPressure>},
    {"PressTendency", {"Tendenza", "Press. Tendency"}, 1100, Left, Same<&Data::PressTendency>},
    {"PressTendencyVal", {"Val. Tendenza", "Press. Tend. Value"}, 840, Right, Same<&Data::PressTendencyVal>},
    {"PrecipitAmount1", {"Precipit. (1)", "Prec. Amount (1)"}, 800, Right, Same<&Data::PrecipitAmount1>},
    {"PrecipitDuration1", {"Prec. Durata (1)", "Prec. Durat. (1)"}, 800, Right, Same<&Data::PrecipitDuration1>},
    {"PresentWeather", {"Tempo Presente", "Present Weather"}, 2000, Left, Same<&Data::PresentWeather>},
    {"PastWeather1", {"Tempo Pass (24h)", "Past Weather (24h)"}, 1700, Left, Same<&Data::PastWeather1>},
    {"PastWeather2", {"Tempo Pass (12h)", "Past Weather (12h)"}, 1700, Left, Same<&Data::PastWeather2>},
    {"CloudAmount", {"Q.ta Nuvole", "Cloud Amount"}, 900, Right, Same<&Data::CloudAmount>},
    {"LowCloudType", {"Nuv. Basse", "Low Cloud Type"}, 1200, Left, Same<&Data::LowCloudType>},
    {"MiddleCloudType", {"Nuv. Medie", "Middle Cloud Type"}, 1200, Left, Same<&Data::MiddleCloudType>},
    {"HighCloudType", {"Nuv. Alte", "High Cloud Type"}, 1200, Left, Same<&Data::HighCloudType>},
    {"MaxTemperature", {"Max Temper.", "Max Temperature"}, 800, Right, Same<&Data::MaxTemperature>},
    {"MinTemperature", {"Min Temper.", "MinTemperature"}, 800, Right, Same<&Data::MinTemperature>},
    {"SnowState", {"Neve", "Snow State"}, 1200, Right, Same<&Data::SnowState>},
    {"SnowDepth", {"Altezza Neve", "Snow Depth"}, 700, Right, Same<&Data::SnowDepth>},
    {"PrecipitAmount2", {"Precipit. (2)", "Prec. Amount (2)"}, 800, Right, Same<&Data::PrecipitAmount2>},
    {"PrecipitDuration2", {"Prec. Durata (2)", "Prec. Durat. (2)"}, 800, Right, Same<&Data::PrecipitDuration2>},
    {"PastPrecipitAmount", {"Prec. Passate", "Past Precipit."}, 800, Right, Same<&Data::PastPrecipitAmount>},
    {"CloudCovLayer0", {"Nuv. Strato Low", "Cloud Layer Low"}, 850, Right, Layer<&Data::CloudCovLayer, 0>},
    {"TypeOfCloud0", {"Tipo Strato Low", "Type Layer Low"}, 900, Left, Layer<&Data::TypeOfCloud, 0>},
    {"HeighOfCloud0", {"Alt. Strato Low", "Heigh Layer Low"}, 780, Right, Layer<&Data::HeighOfCloud, 0>},
    {"CloudCovLayer1", {"Nuv. Strato 3/8", "Cloud Layer 3/8"}, 850, Right, Layer<&Data::CloudCovLayer, 1>},
    {"TypeOfCloud1", {"Tipo Strato 3/8", "Type Layer 3/8"}, 900, Left, Layer<&Data::TypeOfCloud, 1>},
    {"HeighOfCloud1", {"Alt. Strato 3/8", "Heigh Layer 3/8"}, 780, Right, Layer<&Data::HeighOfCloud, 1>},
    {"CloudCovLayer2", {"Nuv. Strato 5/8", "Cloud Layer 5/8"}, 850, Right, Layer<&Data::CloudCovLayer, 2>},
    {"TypeOfCloud2", {"Tipo Strato 5/8", "Type Layer 5/8"}, 900, Left, Layer<&Data::TypeOfCloud, 2>},
    {"HeighOfCloud2", {"Alt. Strato 5/8", "Heigh Layer 5/8"}, 780, Right, Layer<&Data::HeighOfCloud, 2>},
    {"CloudCovLayer3", {"Nuv. altri Strati", "Cloud Layer Oth."}, 850, Right, Layer<&Data::CloudCovLayer, 3>},
    {"TypeOfCloud3", {"Tipo altri Strati", "Type Layer Oth."}, 900, Left, Layer<&Data::TypeOfCloud, 3>},
    {"HeighOfCloud3", {"Alt. altri Strati", "Type Layer Oth"}, 780, Right, Layer<&Data::HeighOfCloud, 3>},
    {"SupplInfo", {"Raffiche Max.", "Peak Wind Gust"}, 850, Left, Same<&Data::SupplInfo>},
    {"Quadrant", {"Quadrante", "Quadrant"}, 1000, Left, OfStation<&Place::Quadrant>},
    {"ShipDirection", {"Direz. Nave", "Ship Direct."}, 750, Right, Same<&Data::ShipDirection>},
    {"ShipAvSpeed", {"Veloc. Nave", "Ship AvSpeed"}, 850, Right, Same<&Data::ShipAvSpeed>},
    {"SeaTemperature", {"Temper. Mare", "Sea Temper."}, 800, Right, Same<&Data::SeaTemperature>},
    {"SeaTemperType", {"Temper. Type", "Sea Temp. Type"}, 800, Right, Same<&Data::SeaTemperType>},
    {"WavePeriod", {"Periodo Onde", "Wave Period"}, 800, Right, Same<&Data::WavePeriod>},
    {"WaveHeight", {"Alt. Onde", "Wave Height"}, 800, Right, Same<&Data::WaveHeight>},
    {"WavePeriodPredom", {"Periodo Onda Pred.", "Wave Per. Predom."}, 800, Right, Same<&Data::WavePeriodPredom>},
    {"WaveHeightPredom", {"Alt. Onda Pred.", "Wave Height Predom."}, 800, Right, Same<&Data::WaveHeightPredom>},
    {"WaveDirPredom", {"Direz. Onda Pred.", "Wave Dir. Predom."}, 800, Right, Same<&Data::WaveDirPredom>},
    {"WavePeriodSecond", {"Periodo Onda Sec.", "Wave Per. Second."}, 800, Right, Same<&Data::WavePeriodSecond>},
    {"WaveHeightSecond", {"Alt. Onda Sec.", "Wave Height Second."}, 800, Right, Same<&Data::WaveHeightSecond>},
    {"WaveDirSecond", {"Direz. Onda Sec.", "Wave Dir. Second."}, 800, Right, Same<&Data::WaveDirSecond>},
    {"ShipIceAccretion", {"Accresc. Ghiaccio", "Ice Accretion"}, 800, Left, Same<&Data::ShipIceAccretion>},
    {"ThicknessOfIce", {"Spessore Ghiaccio", "Ice Thickness"}, 1000, Left, Same<&Data::ThicknessOfIce>},
    {"RateIceAccretion", {"Veloc. Accresc.", "Rate Accretion"}, 800, Left, Same<&Data::RateIceAccretion>},
    {"WetTemperature", {"Temper. Umida", "Wet Temper."}, 800, Right, Same<&Data::WetTemperature>},
    {"WetTemperType", {"Temp. Umida Tipo", "Wet Temp. Type"}, 800, Right, Same<&Data::WetTemperType>},
    {"SeaIceConcentration", {"Concentr. Ghiaccio", "Ice Concentr."}, 800, Left, Same<&Data::SeaIceConcentration>},
    {"SeaIceStage", {"Stadio Ghiaccio", "Ice Stage"}, 800, Left, Same<&Data::SeaIceStage>},
    {"SeaIceBearingEdge", {"Direz. Cresta", "Ice Bearing Edge"}, 800, Left, Same<&Data::SeaIceBearingEdge>},
    {"IceOfLandOrigin", {"Origine Ghiaccio", "Ice Origin"}, 800, Left, Same<&Data::IceOfLandOrigin>},
    {"IceSituation", {"Situatione Ghiaccio", "Ice Situation"}, 800, Left, Same<&Data::IceSituation>},
    {"RecordIndex", {"Indice", "Record Index"}, 600, Right, IndexText},
    {"InsertTime", {"Ora Inserim.", "Insert Time"}, 0, Left, nullptr},
};
// clang-format on
static_assert(Fields[RecordIndex].Key == "RecordIndex");

constexpr std::string_view FilterBoxes[] = {"NW",   "NE",   "SW",   "SE",  "Land",
                                            "Buoy", "Ship", "AAXX", "BBXX"};
constexpr std::int32_t FilterGroups[] = {0x180, 0x70, 0x0F};  // message, station, quadrant

RowFilterData FilterDataOf(const MessageStores& stores, std::size_t index) {
  const SynopData& record = stores.SynopStore.Records()[index];
  return {record.FilterFlags, record.Station.Country()};
}

}  // namespace

constinit const GlobalViewTable SynopGlobalView = {
    .Form = "frmSynopGlobalView",
    .SelectionKey = "SynopDataFields",
    .RowsCaption = {"Dati Meteo Synop: ", "Synop Meteo Data: "},
    .FieldsCaption = {"Campi Dati Meteo Synop", "Synop Meteo Data Fields"},
    .Fields = Fields,
    .RecordIndex = RecordIndex,
    .FilterBoxes = FilterBoxes,
    .FilterGroups = FilterGroups,
    .Count = [](const MessageStores& stores) { return stores.SynopStore.Count(); },
    .FilterData = FilterDataOf,
};

}  // namespace zg
