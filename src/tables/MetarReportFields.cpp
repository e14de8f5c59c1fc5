// The report window of METAR, SPECI and TAF. A report fills the first tab, a forecast the second;
// they have most fields in common. The third tab shows one section of those behind the first.
#include <functional>

#include "tables/ReportFields.h"
#include "text/TextRules.h"

namespace zg {
namespace {

using enum ReportControl;
using Data = MetarData;
using Place = StationTexts;
using Part = MetarSection;

enum Choice : std::uint8_t { SectionBehindFirst, ReportLayer, ForecastLayer, SectionLayer };

const MetarData& RecordAt(const ReportPlace& place) {
  return place.Stores.MetarStore.Records()[place.Index];
}

bool IsForecast(const ReportPlace& place) { return RecordAt(place).Station.Type == "TAF"; }

// --- Sections: none where the record has no such one -------------------------------------------

using SectionFinder = const MetarSection* (*)(const ReportPlace& place);

const MetarSection* SectionAt(const ReportPlace& place, std::size_t index) {
  const std::span<const MetarSection> sections = RecordAt(place).Section;
  return index < sections.size() ? &sections[index] : nullptr;
}

const MetarSection* FirstSection(const ReportPlace& place) { return SectionAt(place, 0); }

const MetarSection* ChosenSection(const ReportPlace& place) {
  const int chosen = place.Chosen[SectionBehindFirst];
  return chosen == NothingChosen ? nullptr : SectionAt(place, static_cast<std::size_t>(chosen) + 1);
}

const MetarSection* RemarksSection(const ReportPlace& place) {
  for (const MetarSection& section : RecordAt(place).Section) {
    if (section.SectionType == SectionKind::Remarks) return &section;
  }
  return nullptr;
}

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

template <auto Field>
std::string_view Flag(const ReportPlace& place, std::string&) {
  return RecordAt(place).*Field ? "1" : "";
}

template <SectionFinder Find, auto Field>
std::string_view Of(const ReportPlace& place, std::string&) {
  const MetarSection* section = Find(place);
  return section == nullptr ? std::string_view() : section->*Field;
}

template <SectionFinder Find, std::size_t Number>
std::string_view WeatherOf(const ReportPlace& place, std::string&) {
  const MetarSection* section = Find(place);
  return section == nullptr ? std::string_view() : section->Weather[Number];
}

// Of the cloud layer that is chosen.
template <SectionFinder Find, Choice Layer, auto Field>
std::string_view LayerOf(const ReportPlace& place, std::string&) {
  const MetarSection* section = Find(place);
  const int layer = place.Chosen[Layer];
  if (section == nullptr || layer == NothingChosen) return {};
  return (section->*Field)[static_cast<std::size_t>(layer)];
}

constexpr SectionFinder First = FirstSection;
constexpr SectionFinder Chosen = ChosenSection;
constexpr SectionFinder InRemarks = RemarksSection;

// Who made the report, in the language of the moment.
std::string_view StationType(const ReportPlace& place, std::string&) {
  return RecordAt(place).IsManual
             ? place.Texts.Choose("Osservazioni Manuali", "Manual Observations")
             : place.Texts.Choose("Osservazioni Automatizzate", "Automated Observations");
}

std::string_view RecordName(const ReportPlace& place, std::string&) {
  return RecordAt(place).Station.Station();
}

std::string SearchText(const ReportPlace& place) {
  const StationTexts& station = RecordAt(place).Station;
  std::string text(station.Station());
  text.append(" ").append(station.IcaoName());
  return text.append(" ").append(station.Country());
}

// --- The header --------------------------------------------------------------------------------

constexpr ReportField HeaderFields[] = {
    {"cmbWmoId", RecordName, Records, 26, 2},
    {"txtIcaoId", OfStation<&Place::IcaoName>, Box, 10, 1, "lblICAO"},
    ReportField::Wide("txtCountry", OfStation<&Place::Country>, 24, 2),
    {"txtType", OfStation<&Place::Type>, Box, 9},
    ReportField::Wide("txtStatType", StationType, 26, 2),
    {"txtLat", OfStation<&Place::LatPosition>, Box, 10},
    {"txtLong", OfStation<&Place::LongPosition>, Box, 10},
    {"txtHStation", OfStation<&Place::StationHT>, Box, 9},
    {"txtHSensor", OfStation<&Place::SensorHT>, Box, 9},
    {"txtTimeOfObservation", Same<&Data::ObservationTime>, Box, 10},
    {"txtMsgTime", Same<&Data::BulletinTime>, Box, 10},
    {"txtMsgId", OfStation<&Place::MsgId>, Box, 10},
    {"txtSender", OfStation<&Place::Sender>, Box, 10},
    {"txtAddedInfo", OfStation<&Place::AddedInfo>, Box, 9},
};

std::string_view RecordLabel(const ReportPlace& place) {
  return place.Texts.Choose("Aereoporto", "Airport");
}

std::string_view IdentifierLabel(const ReportPlace&) { return "ICAO Id"; }

constexpr ReportLabel Labels[] = {
    {"lblWmoId", RecordLabel, "Aereoporto", "Airport"},
    {"lblICAO", IdentifierLabel, "ICAO Id", "ICAO Id"},
};

// --- Tab 0: METAR and SPECI --------------------------------------------------------------------

constexpr ReportField ReportWind[] = {
    {"txtmWindDirection", Of<First, &Part::WindDir>},
    {"txtmWindSpeed", Of<First, &Part::WindSpeed>},
    {"txtmGust", Of<First, &Part::Gust>},
    {"txtmWindDirRange", Of<First, &Part::WindDirRange>},
};
constexpr ReportField ReportVisibility[] = {
    {"txtmOrizVisibility", Of<First, &Part::OrizVisibility>, Box, 27},
    {"txtmOrizVisibilityDir", Of<First, &Part::VisibilityDir>, Box, 27},
    {"txtmVerticalVisibility", Same<&Data::VerticalVisibility>, Box, 27},
};
constexpr ReportField ReportTemperature[] = {
    {"txtmTemperature", Same<&Data::Temperature>},
    {"txtmDewpoint", Same<&Data::Dewpoint>},
    {"txtmAltimeterPressure", Of<First, &Part::AltimeterPressure>},
    {"txtmSeaPressureLevel", Of<First, &Part::SeaPressureLevel>},
};
constexpr ReportField ReportClouds[] = {
    {"txtmCloudCover", LayerOf<First, ReportLayer, &Part::CloudCover>, Box, 24},
    {"txtmTypeOfCloud", LayerOf<First, ReportLayer, &Part::CloudType>, Box, 24},
    {"txtmHeighOfCloud", LayerOf<First, ReportLayer, &Part::CloudHeigh>, Box, 24},
};
constexpr ReportField ReportRunway[] = {
    {"txtmRVRRunway", Same<&Data::RVRRunway>},
    {"txtmRVRVisibility", Same<&Data::RVRVisibility>},
    {"txtmRVRVisibilityMax", Same<&Data::RVRVisibilitymax>},
};
constexpr ReportField ReportWindShear[] = {
    {"txtmWindShearLevel", Same<&Data::WindShearLevel>},
    {"txtmWindShearDir", Same<&Data::WindShearDir>},
    {"txtmWindShearSpeed", Same<&Data::WindShearSpeed>},
};
constexpr ReportField ReportWeather[] = {
    {"txtmWeather1", WeatherOf<First, 0>, Box, 40},
    {"txtmWeather2", WeatherOf<First, 1>, Box, 40},
};
constexpr ReportField ReportMarks[] = {
    {"txtmValidityTime", Same<&Data::ValidPeriod>, Box, 20},
    {"chkAO1", Flag<&Data::IsAO1>, Check},
    {"chkAO2", Flag<&Data::IsAO2>, Check},
    {"chkAMD", Flag<&Data::IsAMD>, Check},
    {"chkCOR", Flag<&Data::IsCOR>, Check},
};
constexpr ReportField ReportRemarks[] = {
    {"txtmRemark", Same<&Data::WindRemarks>, Lines, 30},
    {"txtmOther", Same<&Data::OtherRemarks>, Lines, 30},
};

constexpr ReportGroup Report[] = {
    {"framWind", 0, 0, 4, 1, ReportWind},
    {"framVisibility", 0, 4, 4, 1, ReportVisibility},
    {"framTemperature", 0, 8, 4, 1, ReportTemperature},
    {"framWindShear", 1, 0, 4, 1, ReportWindShear},
    {"framClouds", 1, 4, 4, 1, ReportClouds, ReportLayer},
    {"framRunway", 1, 8, 4, 1, ReportRunway},
    {"framWeather", 2, 0, 8, 1, ReportWeather},
    {"framMarks", 2, 8, 4, 1, ReportMarks},
    {"framRemarks", 3, 0, 12, 2, ReportRemarks},
};

// --- Tab 1: TAF --------------------------------------------------------------------------------

constexpr ReportField ForecastWind[] = {
    {"txttWindDirection", Of<First, &Part::WindDir>},
    {"txttWindSpeed", Of<First, &Part::WindSpeed>},
    {"txttGust", Of<First, &Part::Gust>},
    {"txttWindDirRange", Of<First, &Part::WindDirRange>},
};
constexpr ReportField ForecastVisibility[] = {
    {"txttOrizVisibility", Of<First, &Part::OrizVisibility>, Box, 27},
    {"txttOrizVisibilityDir", Of<First, &Part::VisibilityDir>, Box, 27},
    {"txttVerticalVisibility", Same<&Data::VerticalVisibility>, Box, 27},
};
constexpr ReportField ForecastPressure[] = {
    {"txttTemperature", Same<&Data::Temperature>},
    {"txttDewpoint", Same<&Data::Dewpoint>},
    {"txttAltimeterPressure", Of<First, &Part::AltimeterPressure>},
    {"txttSeaPressureLevel", Of<First, &Part::SeaPressureLevel>},
};
constexpr ReportField ForecastClouds[] = {
    {"txttCloudCover", LayerOf<First, ForecastLayer, &Part::CloudCover>, Box, 24},
    {"txttTypeOfCloud", LayerOf<First, ForecastLayer, &Part::CloudType>, Box, 24},
    {"txttHeighOfCloud", LayerOf<First, ForecastLayer, &Part::CloudHeigh>, Box, 24},
};
constexpr ReportField ForecastTemperatures[] = {
    {"txttForecastTemperature1", Member<&Data::ForecastTemperature, 0>},
    {"txttForecastTime1", Member<&Data::ForecastTemperatureTime, 0>},
    {"txttForecastTemperature2", Member<&Data::ForecastTemperature, 1>},
    {"txttForecastTime2", Member<&Data::ForecastTemperatureTime, 1>},
};
constexpr ReportField ForecastWindShear[] = {
    {"txttWindShearLevel", Same<&Data::WindShearLevel>},
    {"txttWindShearDir", Same<&Data::WindShearDir>},
    {"txttWindShearSpeed", Same<&Data::WindShearSpeed>},
};
constexpr ReportField ForecastWeather[] = {
    {"txttWeather1", WeatherOf<First, 0>, Box, 40},
    {"txttWeather2", WeatherOf<First, 1>, Box, 40},
};
constexpr ReportField ForecastMarks[] = {
    {"txttValidityTime", Same<&Data::ValidPeriod>, Box, 20},
    {"chktAO1", Flag<&Data::IsAO1>, Check},
    {"chktAO2", Flag<&Data::IsAO2>, Check},
    {"chktAMD", Flag<&Data::IsAMD>, Check},
    {"chktCOR", Flag<&Data::IsCOR>, Check},
};
constexpr ReportField ForecastRemarks[] = {
    {"txttRemark", Same<&Data::WindRemarks>, Lines, 30},
    {"txttOther", Same<&Data::OtherRemarks>, Lines, 30},
};

constexpr ReportGroup Forecast[] = {
    {"fratWind", 0, 0, 4, 1, ForecastWind},
    {"fratVisibility", 0, 4, 4, 1, ForecastVisibility},
    {"fratForecast", 0, 8, 4, 1, ForecastTemperatures},
    {"fratWindShear", 1, 0, 4, 1, ForecastWindShear},
    {"fratClouds", 1, 4, 4, 1, ForecastClouds, ForecastLayer},
    {"fratPressure", 1, 8, 4, 1, ForecastPressure},
    {"fratWeather", 2, 0, 8, 1, ForecastWeather},
    {"fratMarks", 2, 8, 4, 1, ForecastMarks},
    {"fratRemarks", 3, 0, 12, 2, ForecastRemarks},
};

// --- Tab 2: the section that is chosen ---------------------------------------------------------

constexpr ReportField SectionPeriod[] = {
    {"txtsSectionIndication", Of<Chosen, &Part::SectionName>, Box, 34},
    {"txtsValidityStartHour", Of<Chosen, &Part::FromTime>},
    {"txtsValidityEndHour", Of<Chosen, &Part::ToTime>},
};
constexpr ReportField SectionWind[] = {
    {"txtsWindDirection", Of<Chosen, &Part::WindDir>},
    {"txtsWindSpeed", Of<Chosen, &Part::WindSpeed>},
    {"txtsGust", Of<Chosen, &Part::Gust>},
    {"txtsWindDirRange", Of<Chosen, &Part::WindDirRange>},
};
constexpr ReportField SectionVisibility[] = {
    {"txtsOrizVisibility", Of<Chosen, &Part::OrizVisibility>, Box, 20},
    {"txtsOrizVisibilityDir", Of<Chosen, &Part::VisibilityDir>, Box, 20},
    {"txtsAltimeterPressure", Of<Chosen, &Part::AltimeterPressure>, Box, 20},
    {"txtsSeaPressureLevel", Of<Chosen, &Part::SeaPressureLevel>, Box, 20},
};
constexpr ReportField SectionClouds[] = {
    {"txtsCloudCover", LayerOf<Chosen, SectionLayer, &Part::CloudCover>, Box, 24},
    {"txtsTypeOfCloud", LayerOf<Chosen, SectionLayer, &Part::CloudType>, Box, 24},
    {"txtsHeighOfCloud", LayerOf<Chosen, SectionLayer, &Part::CloudHeigh>, Box, 24},
};
constexpr ReportField SectionWeather[] = {
    {"txtsWeather1", WeatherOf<Chosen, 0>, Box, 40},
    {"txtsWeather2", WeatherOf<Chosen, 1>, Box, 40},
};

constexpr ReportGroup Sections[] = {
    {"frasSections", 0, 0, 12, 2, {}, SectionBehindFirst},
    {"frasPeriod", 1, 0, 12, 3, SectionPeriod},
    {"frasWind", 2, 0, 4, 1, SectionWind},
    {"frasVisibility", 2, 4, 4, 1, SectionVisibility},
    {"frasClouds", 2, 8, 4, 1, SectionClouds, SectionLayer},
    {"frasWeather", 3, 0, 12, 1, SectionWeather},
};

// --- Tab 3: remarks ----------------------------------------------------------------------------

constexpr ReportField RemarksTemperature[] = {
    {"txtrSixHourMaxTemperature", Same<&Data::MaxTemperature6h>},
    {"txtrSixHourMinTemperature", Same<&Data::MinTemperature6h>},
    {"txtrMaxTemperature", Same<&Data::MaxTemperature24h>},
    {"txtrMinTemperature", Same<&Data::MinTemperature24h>},
};
constexpr ReportField RemarksPrecipitation[] = {
    {"txtrLastHourPrecipitation", Same<&Data::PrecipHour>},
    {"txtrThreeHourPrecipitation", Same<&Data::Precip3h>},
    {"txtrSixHourPrecipitation", Same<&Data::Precip6h>},
    {"txtrTotalPrecipitation", Same<&Data::Precip24h>},
};
constexpr ReportField RemarksSnow[] = {
    {"txtrSnowDepth", Same<&Data::SnowDepth>},
    {"txtrLiquidWaterEquivalent", Same<&Data::Water>},
    {"txtrSunshineTime", Same<&Data::Sunshine>},
};
constexpr ReportField RemarksPressure[] = {
    {"txtrSeaPressureLevel", Of<InRemarks, &Part::SeaPressureLevel>},
    {"txtrPressTendencyVal", Same<&Data::PressTendencyVal>},
    ReportField::Wide("txtrPressTendency", Same<&Data::PressTendency>, 60, 2),
};
constexpr ReportField RemarksClouds[] = {
    {"txtrLowCloudType", Same<&Data::LowCloudType>, Box, 29},
    {"txtrMiddleCloudType", Same<&Data::MiddleCloudType>, Box, 29},
    {"txtrHighCloudType", Same<&Data::HighCloudType>, Box, 29},
};

constexpr ReportGroup Remarks[] = {
    {"frarTemperature", 0, 0, 4, 1, RemarksTemperature},
    {"frarPrecipitation", 0, 4, 4, 1, RemarksPrecipitation},
    {"frarSnow", 0, 8, 4, 1, RemarksSnow},
    {"frarPressure", 1, 0, 12, 2, RemarksPressure},
    {"frarClouds", 2, 0, 12, 1, RemarksClouds},
};

// --- Tab 4 -------------------------------------------------------------------------------------

constexpr ReportField MessageText[] = {{"txtMessage", Same<&Data::RawText>, Message}};
constexpr ReportGroup MsgText[] = {{"", 0, 0, 12, 1, MessageText}};

bool HasLayer(const MetarSection* section, int member) {
  if (section == nullptr) return false;
  const auto layer = static_cast<std::size_t>(member);
  return !section->CloudCover[layer].empty() || !section->CloudType[layer].empty() ||
         !section->CloudHeigh[layer].empty();
}

bool IsReportLayer(const ReportPlace& place, int member) {
  return !IsForecast(place) && HasLayer(FirstSection(place), member);
}

bool IsForecastLayer(const ReportPlace& place, int member) {
  return IsForecast(place) && HasLayer(FirstSection(place), member);
}

bool IsSectionLayer(const ReportPlace& place, int member) {
  return HasLayer(ChosenSection(place), member);
}

std::string LayerCaption(const ReportPlace& place, int member) {
  return std::string(place.Texts.Choose("Strato ", "Layer ")) + PlainDecimal(member + 1);
}

bool IsSection(const ReportPlace& place, int member) {
  return member + 1 < RecordAt(place).SectionCount();
}

std::size_t Count(const MessageStores& stores) { return stores.MetarStore.Count(); }

// Name and period of the section, such as "Occasional 06:00Z - 10:00Z"; its number where the record
// has no such one.
std::string SectionCaption(const ReportPlace& place, int member) {
  const std::size_t index = static_cast<std::size_t>(member) + 1;
  const MetarSection* section =
      place.Index < Count(place.Stores) ? SectionAt(place, index) : nullptr;
  if (section == nullptr) {
    return std::string(place.Texts.Choose("Sezione ", "Section ")) + PlainDecimal(member + 1);
  }
  std::string caption(section->SectionName);
  if (!section->FromTime.empty()) caption.append(" ").append(section->FromTime);
  if (!section->ToTime.empty()) caption.append(" - ").append(section->ToTime);
  return caption;
}

constexpr int Layers = MetarCloudLayers;
constexpr ReportChoice Choices[] = {
    {"optSectionTime", MaxSections - 1, true, NothingChosen, IsSection, SectionCaption},
    {"CloudOption", Layers, false, NothingChosen, IsReportLayer, LayerCaption},
    {"tCloudOption", Layers, false, NothingChosen, IsForecastLayer, LayerCaption},
    {"sCloudOption", Layers, false, SectionBehindFirst, IsSectionLayer, LayerCaption},
};

bool IsTabFilled(const ReportPlace& place, std::size_t tab) {
  switch (tab) {
    case 0:
      return !IsForecast(place);
    case 1:
      return IsForecast(place);
    case 2:
      return RecordAt(place).SectionCount() > 1;
    default:
      return true;
  }
}

}  // namespace

constinit const ReportTable MetarReport = {
    .Form = "frmMetarMeteoData",
    .Header = {.FieldsPerLine = 6, .Fields = HeaderFields},
    .Tabs = {{{"Metar/Speci", "Metar/Speci", ReportTabRule::WhenFilled, Report},
              {"TAF", "TAF", ReportTabRule::WhenFilled, Forecast},
              {"Previsioni", "Forecast", ReportTabRule::WhenFilled, Sections},
              {"Sezione RMK", "RMK Section", ReportTabRule::WhenAnyText, Remarks},
              {"Testo Msg", "Msg Text", ReportTabRule::WhenFilled, MsgText}}},
    .Choices = Choices,
    .Labels = Labels,
    .Count = Count,
    .IsTabFilled = IsTabFilled,
    .RecordName = RecordName,
    .SearchText = SearchText,
};

}  // namespace zg
