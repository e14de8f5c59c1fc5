// The report window of SYNOP messages from land and sea.
#include <functional>

#include "shell/GenericUtility.h"
#include "tables/ReportFields.h"
#include "text/TextRules.h"

namespace zg {
namespace {

using enum ReportControl;
using Data = SynopData;
using Place = StationTexts;

enum Choice : std::uint8_t { CloudLayer };

const SynopData& RecordAt(const ReportPlace& place) {
  return place.Stores.SynopStore.Records()[place.Index];
}

bool IsFromSea(const ReportPlace& place) { return RecordAt(place).Station.Type == "BBXX"; }

// --- Texts of a field --------------------------------------------------------------------------

template <auto Field>
std::string_view Same(const ReportPlace& place, std::string&) {
  return RecordAt(place).*Field;
}

template <auto Field>
std::string_view OfStation(const ReportPlace& place, std::string&) {
  return std::invoke(Field, RecordAt(place).Station);
}

template <auto Field, std::size_t Number>
std::string_view Member(const ReportPlace& place, std::string&) {
  return (RecordAt(place).*Field)[Number];
}

// Of the cloud layer that is chosen.
template <auto Field>
std::string_view Layer(const ReportPlace& place, std::string&) {
  const int layer = place.Chosen[CloudLayer];
  if (layer == NothingChosen) return {};
  return (RecordAt(place).*Field)[static_cast<std::size_t>(layer)];
}

// Ships have no height above the sea.
template <auto Field>
std::string_view OfLandStation(const ReportPlace& place, std::string&) {
  return IsFromSea(place) ? std::string_view() : std::invoke(Field, RecordAt(place).Station);
}

std::string_view Identifier(const ReportPlace& place, std::string& scratch) {
  const StationTexts& station = RecordAt(place).Station;
  if (IsFromSea(place)) return station.Quadrant();
  if (station.WMOIndex() < 0) return {};
  return scratch = PlainDecimal(station.WMOIndex());
}

// The record holds its code only, so this one is in the language of the moment.
std::string_view StationType(const ReportPlace& place, std::string&) {
  return place.Texts.StationType(RecordAt(place).StationTypeCode);
}

std::string_view RecordName(const ReportPlace& place, std::string& scratch) {
  const StationTexts& station = RecordAt(place).Station;
  if (!IsFromSea(place)) return station.Station();
  scratch = station.Station();
  scratch.append(" [").append(station.LatPosition()).append(" ");
  return scratch.append(station.LongPosition()).append("]");
}

std::string SearchText(const ReportPlace& place) {
  std::string name;
  std::string identifier;
  std::string text(RecordName(place, name));
  text.append(" ").append(Identifier(place, identifier));
  return text.append(" ").append(RecordAt(place).Station.Country());
}

// --- The header --------------------------------------------------------------------------------

constexpr ReportField HeaderFields[] = {
    {"cmbWmoId", RecordName, Records, 26, 2},
    {"txtIcaoId", Identifier, Box, 10, 1, "lblICAO"},
    ReportField::Wide("txtCountry", OfStation<&Place::Country>, 24, 2),
    {"txtType", OfStation<&Place::Type>, Box, 9},
    ReportField::Wide("txtStatType", StationType, 26, 2),
    {"txtLat", OfStation<&Place::LatPosition>, Box, 10},
    {"txtLong", OfStation<&Place::LongPosition>, Box, 10},
    {"txtHStation", OfLandStation<&Place::StationHT>, Box, 9},
    {"txtHSensor", OfLandStation<&Place::SensorHT>, Box, 9},
    {"txtTimeOfObservation", Same<&Data::TimeOfObservation>, Box, 10},
    {"txtMsgTime", Same<&Data::IssueTime>, Box, 10},
    {"txtMsgId", OfStation<&Place::MsgId>, Box, 10},
    {"txtSender", OfStation<&Place::Sender>, Box, 10},
    {"txtAddedInfo", OfStation<&Place::AddedInfo>, Box, 9},
};

std::string_view RecordLabel(const ReportPlace& place) {
  if (!IsFromSea(place)) return place.Texts.Choose("Stazione di Terra", "Land Station");
  return RecordAt(place).Station.StationKind == StationKinds::Ship
             ? place.Texts.Choose("Nave", "Ship")
             : place.Texts.Choose("Boa Numero", "Buoy Number");
}

std::string_view IdentifierLabel(const ReportPlace& place) {
  return IsFromSea(place) ? place.Texts.Choose("Quadrante", "Quadrant") : "ICAO Id";
}

std::string_view DewpointLabel(const ReportPlace& place) {
  return HasFlag(RecordAt(place).FilterFlags, SynopFlag::HumidityInDewPoint)
             ? place.Texts.Choose("Umidita'", "Humidity")
             : "Dewpoint";
}

constexpr ReportLabel Labels[] = {
    {"lblWmoId", RecordLabel, "Stazione di Terra", "Land Station"},
    {"lblICAO", IdentifierLabel, "ICAO Id", "ICAO Id"},
    {"lblDewpoint", DewpointLabel, "Dewpoint", "Dewpoint"},
};

// --- Tab 0: section 1 --------------------------------------------------------------------------

constexpr ReportField Weather[] = {
    {"txtWeatherSymb", Same<&Data::WeatherSymb>, Symbol},
    {"txtPresentWeather", Same<&Data::PresentWeather>, Box, 106},
    {"txtPastWeather1", Same<&Data::PastWeather1>, Box, 106},
    {"txtPastWeather2", Same<&Data::PastWeather2>, Box, 106},
};
constexpr ReportField Wind[] = {
    {"txtWindDirection", Same<&Data::WindDirection>},
    {"txtWindSpeed", Same<&Data::WindSpeed>, Box, 18},
    {"txtVisibility", Same<&Data::Visibility>},
};
constexpr ReportField Temperature[] = {
    {"txtTemperature", Same<&Data::Temperature>},
    {"txtDewpoint", Same<&Data::DewPoint>},
    {"txtPrecipitAmount1", Same<&Data::PrecipitAmount1>},
    {"txtPrecipitDuration1", Same<&Data::PrecipitDuration1>},
};
constexpr ReportField Pressure[] = {
    {"txtSeaLevPressure", Same<&Data::SeaLevPressure>},
    {"txtStatPressure", Same<&Data::StatPressure>},
    {"txtGeopotPressure", Same<&Data::GeopotPressure>},
    {"txtGeopotHeight", Same<&Data::GeopotHeight>},
    {"txtPressTendencyVal", Same<&Data::PressTendencyVal>},
    ReportField::Wide("txtPressTendency", Same<&Data::PressTendency>, 70, 3),
};
constexpr ReportField Clouds[] = {
    {"txtCloudCover", Same<&Data::CloudCover>, Box, 15},
    {"txtCloudAmount", Same<&Data::CloudAmount>, Box, 15},
    {"txtLowestCloud", Same<&Data::LowestCloud>, Box, 15},
    ReportField::Wide("txtLowCloudType", Same<&Data::LowCloudType>, 50, 3),
    ReportField::Wide("txtMiddleCloudType", Same<&Data::MiddleCloudType>, 50, 3),
    ReportField::Wide("txtHighCloudType", Same<&Data::HighCloudType>, 50, 3),
};

constexpr ReportGroup MeteoData[] = {
    {"fraWeather", 0, 0, 12, 1, Weather},        {"fraWind", 1, 0, 6, 2, Wind},
    {"fraTemperature", 1, 6, 6, 2, Temperature}, {"fraPressure", 2, 0, 12, 4, Pressure},
    {"fraClouds", 3, 0, 12, 3, Clouds},
};

// --- Tab 1: section 2 --------------------------------------------------------------------------

constexpr ReportField Ship[] = {
    {"txtShipDirection", Same<&Data::ShipDirection>, Box, 14},
    {"txtShipAvSpeed", Same<&Data::ShipAvSpeed>, Box, 14},
};
constexpr ReportField SeaTemperature[] = {
    {"txtSeaTemperature", Same<&Data::SeaTemperature>, Box, 18},
    {"txtSeaTemperType", Same<&Data::SeaTemperType>, Box, 18},
};
constexpr ReportField WetTemperature[] = {
    {"txtWetTemperature", Same<&Data::WetTemperature>, Box, 14},
    {"txtWetTemperType", Same<&Data::WetTemperType>, Box, 14},
};
constexpr ReportField Waves[] = {
    {"txtWavePeriod", Same<&Data::WavePeriod>},
    {"txtWaveHeight", Same<&Data::WaveHeight>},
};
constexpr ReportField PredominantWaves[] = {
    {"txtWavePeriodPredom", Same<&Data::WavePeriodPredom>},
    {"txtWaveHeightPredom", Same<&Data::WaveHeightPredom>},
    {"txtWaveDirPredom", Same<&Data::WaveDirPredom>},
};
constexpr ReportField SecondWaves[] = {
    {"txtWavePeriodSecond", Same<&Data::WavePeriodSecond>},
    {"txtWaveHeightSecond", Same<&Data::WaveHeightSecond>},
    {"txtWaveDirSecond", Same<&Data::WaveDirSecond>},
};
constexpr ReportField SeaIce[] = {
    {"txtSeaIceConcentration", Same<&Data::SeaIceConcentration>, Box, 42},
    {"txtSeaIceStage", Same<&Data::SeaIceStage>, Box, 42},
    {"txtSeaIceBearingEdge", Same<&Data::SeaIceBearingEdge>, Box, 42},
    {"txtIceOfLandOrigin", Same<&Data::IceOfLandOrigin>, Box, 42},
    {"txtIceSituation", Same<&Data::IceSituation>, Box, 42},
};
constexpr ReportField IceAccretion[] = {
    {"txtShipIceAccretion", Same<&Data::ShipIceAccretion>, Box, 22},
    {"txtThicknessOfIce", Same<&Data::ThicknessOfIce>, Box, 22},
    {"txtRateIceAccretion", Same<&Data::RateIceAccretion>, Box, 22},
};

constexpr ReportGroup SeaObservation[] = {
    {"fraShip", 0, 0, 4, 1, Ship},
    {"fraSeaTemperature", 0, 4, 4, 1, SeaTemperature},
    {"fraWetTemperature", 0, 8, 4, 1, WetTemperature},
    {"fraWaves", 1, 0, 4, 1, Waves},
    {"fraPredominantWaves", 1, 4, 4, 1, PredominantWaves},
    {"fraSecondWaves", 1, 8, 4, 1, SecondWaves},
    {"fraSeaIce", 2, 0, 7, 1, SeaIce},
    {"fraIceAccretion", 2, 7, 5, 1, IceAccretion},
};

// --- Tab 2 and 3: sections 3 and 5 -------------------------------------------------------------
// Tab 3 can never be opened, so it has only what can be read in the message just as well: groups
// without a meaning of their own.

constexpr ReportField Temperatures[] = {
    {"txtMaxTemperature", Same<&Data::MaxTemperature>},
    {"txtMinTemperature", Same<&Data::MinTemperature>},
    {"txtPeakWindGust", Same<&Data::SupplInfo>},
};
constexpr ReportField Precipitation[] = {
    {"txtPrecipitAmount2", Same<&Data::PrecipitAmount2>},
    {"txtPrecipitDuration2", Same<&Data::PrecipitDuration2>},
    {"txtPastPrecipitAmount", Same<&Data::PastPrecipitAmount>},
};
constexpr ReportField CloudLayers[] = {
    {"txtCloudCovLayer", Layer<&Data::CloudCovLayer>, Box, 20},
    {"txtTypeOfCloud", Layer<&Data::TypeOfCloud>, Box, 20},
    {"txtHeighOfCloud", Layer<&Data::HeighOfCloud>, Box, 20},
};
constexpr ReportField Snow[] = {
    {"txtSnowDepth", Same<&Data::SnowDepth>},
    ReportField::Wide("txtSnowState", Same<&Data::SnowState>, 50, 3),
};
constexpr ReportField MaxWind[] = {
    {"txtMaxWindSpeed", Same<&Data::MaxWindSpeed>},
    {"txtMaxWindDir", Same<&Data::MaxWindDir>},
    {"txtMaxWindSpeedTime", Same<&Data::MaxWindSpeedTime>},
};
constexpr ReportField WindAtHeight[] = {
    {"txtWindAt10mt", Same<&Data::WindAt10mt>},
    {"txtWindAt20mt", Same<&Data::WindAt20mt>},
    {"txtContinueWindTime", Same<&Data::ContinueWindTime>},
};
constexpr ReportField ContinuousWind[] = {
    {"txtCountinuousWindDir(0)", Member<&Data::CountinuousWindDir, 0>, Box, 8},
    {"txtCountinuousWindSpeed(0)", Member<&Data::CountinuousWindSpeed, 0>, Box, 8},
    {"txtCountinuousWindDir(1)", Member<&Data::CountinuousWindDir, 1>, Box, 8},
    {"txtCountinuousWindSpeed(1)", Member<&Data::CountinuousWindSpeed, 1>, Box, 8},
    {"txtCountinuousWindDir(2)", Member<&Data::CountinuousWindDir, 2>, Box, 8},
    {"txtCountinuousWindSpeed(2)", Member<&Data::CountinuousWindSpeed, 2>, Box, 8},
    {"txtCountinuousWindDir(3)", Member<&Data::CountinuousWindDir, 3>, Box, 8},
    {"txtCountinuousWindSpeed(3)", Member<&Data::CountinuousWindSpeed, 3>, Box, 8},
    {"txtCountinuousWindDir(4)", Member<&Data::CountinuousWindDir, 4>, Box, 8},
    {"txtCountinuousWindSpeed(4)", Member<&Data::CountinuousWindSpeed, 4>, Box, 8},
    {"txtCountinuousWindDir(5)", Member<&Data::CountinuousWindDir, 5>, Box, 8},
    {"txtCountinuousWindSpeed(5)", Member<&Data::CountinuousWindSpeed, 5>, Box, 8},
};

constexpr ReportGroup ClimatologicalData[] = {
    {"fraTemperatures", 0, 0, 4, 1, Temperatures},
    {"fraPrecipitation", 0, 4, 4, 1, Precipitation},
    {"fraCloudLayers", 0, 8, 4, 1, CloudLayers, CloudLayer},
    {"fraSnow", 1, 0, 12, 4, Snow},
    {"fraMaxWind", 2, 0, 4, 1, MaxWind},
    {"fraWindAtHeight", 2, 4, 4, 1, WindAtHeight},
    {"fraContinuousWind", 3, 0, 12, 4, ContinuousWind},
};

constexpr ReportField OtherGroups[] = {
    {"txtRegionalData1", Same<&Data::RegionalData1>},
    {"txtRegionalData2", Same<&Data::RegionalData2>},
    {"txtOtherInfo", Same<&Data::OtherInfo>},
};
constexpr ReportGroup OtherData[] = {{"fraOtherGroups", 0, 0, 4, 1, OtherGroups}};

// --- Tab 4 -------------------------------------------------------------------------------------

constexpr ReportField MessageText[] = {{"txtMessage", Same<&Data::Msg>, Message}};
constexpr ReportGroup MsgText[] = {{"", 0, 0, 12, 1, MessageText}};

bool IsLayerReported(const ReportPlace& place, int member) {
  const SynopData& record = RecordAt(place);
  const auto layer = static_cast<std::size_t>(member);
  return !record.CloudCovLayer[layer].empty() || !record.TypeOfCloud[layer].empty() ||
         !record.HeighOfCloud[layer].empty();
}

std::string LayerCaption(const ReportPlace& place, int member) {
  return std::string(place.Texts.Choose("Strato ", "Layer ")) + PlainDecimal(member + 1);
}

constexpr ReportChoice Choices[] = {
    {"optLayer", SynopCloudLayers, false, NothingChosen, IsLayerReported, LayerCaption},
};

std::size_t Count(const MessageStores& stores) { return stores.SynopStore.Count(); }

// The first three tabs by the sections that the message has; the fourth has the same as the third.
bool IsTabFilled(const ReportPlace& place, std::size_t tab) {
  const std::int32_t flags = RecordAt(place).FilterFlags;
  switch (tab) {
    case 0:
      return HasFlag(flags, SynopFlag::Section1);
    case 1:
      return HasFlag(flags, SynopFlag::Section2);
    case 2:
    case 3:
      return HasFlag(flags, SynopFlag::Section3) || HasFlag(flags, SynopFlag::Section5);
    default:
      return true;
  }
}

}  // namespace

constinit const ReportTable SynopReport = {
    .Form = "frmSynopMeteoData",
    .Header = {.FieldsPerLine = 6, .Fields = HeaderFields},
    .Tabs = {{{"Dati Meteo", "Meteo Data", ReportTabRule::WhenFilled, MeteoData},
              {"Oss. Marine", "Sea Obervat.", ReportTabRule::WhenFilled, SeaObservation},
              {"Dati Climatologici", "Climatological Data", ReportTabRule::WhenFilled,
               ClimatologicalData},
              {"Altri Dati", "Other Data", ReportTabRule::Never, OtherData},
              {"Testo Msg", "Msg Text", ReportTabRule::WhenFilled, MsgText}}},
    .Choices = Choices,
    .Labels = Labels,
    .Count = Count,
    .IsTabFilled = IsTabFilled,
    .RecordName = RecordName,
    .SearchText = SearchText,
};

}  // namespace zg
