#include "tables/MetarReportText.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "tables/ReportTextCases.h"

namespace zg {
namespace {

using test::DenverStation;
using test::NoUnit;
using Stored = test::StoredRecord<MetarRawData, MetarData, StoreMetarRecord>;
constexpr auto ExpectValues = test::ExpectValues<Stored>;

void Flag(MetarRawData& raw, unsigned position) {
  raw.FilterFlags =
      static_cast<std::int32_t>(static_cast<unsigned>(raw.FilterFlags) | (1U << position));
}

TEST(MetarReportText, Temperatures) {
  constexpr auto kind = UnitKind::Temperature;
  ExpectValues({
      {"plain", ZG_SET(r.Temperature = 18), ZG_GET(Temperature), kind, NoUnit, "18.0 °C"},
      {"tenths", ZG_SET(r.Temperature = 15.6f), ZG_GET(Temperature), kind, " °C", "15.6 °C"},
      {"below zero", ZG_SET(r.Temperature = -5), ZG_GET(Temperature), kind, NoUnit, "-05.0 °C"},
      {"nought", ZG_SET(r.Temperature = 0), ZG_GET(Temperature), kind, NoUnit, "00.0 °C"},
      {"Fahrenheit", ZG_SET(r.Temperature = 18), ZG_GET(Temperature), kind, " °F", "64.4 °F"},
      {"nought is not converted", ZG_SET(r.Temperature = 0), ZG_GET(Temperature), kind, " °F",
       "00.0 °F"},
      {"dew point", ZG_SET(r.Dewpoint = 12.2f), ZG_GET(Dewpoint), kind, NoUnit, "12.2 °C"},
      {"maximum of 6 hours", ZG_SET(r.MaxTemperature6h = 16.7f), ZG_GET(MaxTemperature6h), kind,
       NoUnit, "16.7 °C"},
      {"minimum of 6 hours", ZG_SET(r.MinTemperature6h = -13.9f), ZG_GET(MinTemperature6h), kind,
       NoUnit, "-13.9 °C"},
      {"maximum of 24 hours", ZG_SET(r.MaxTemperature24h = 15.6f), ZG_GET(MaxTemperature24h), kind,
       NoUnit, "15.6 °C"},
      {"minimum of 24 hours", ZG_SET(r.MinTemperature24h = -2.2f), ZG_GET(MinTemperature24h), kind,
       NoUnit, "-02.2 °C"},
      {"forecast", ZG_SET(r.ForecastTemperature[0] = 125), ZG_GET(ForecastTemperature[0]), kind,
       NoUnit, "25.0 °C"},
      {"forecast below zero", ZG_SET(r.ForecastTemperature[1] = 95), ZG_GET(ForecastTemperature[1]),
       kind, NoUnit, "-05.0 °C"},
      {"forecast of nought", ZG_SET(r.ForecastTemperature[0] = 100), ZG_GET(ForecastTemperature[0]),
       kind, NoUnit, "00.0 °C"},
      {"forecast in Fahrenheit", ZG_SET(r.ForecastTemperature[0] = 125),
       ZG_GET(ForecastTemperature[0]), kind, " °F", "77.0 °F"},
      {"its hour", ZG_SET(r.ForecastTemperatureHour[0] = 12), ZG_GET(ForecastTemperatureTime[0]),
       kind, NoUnit, "12:00Z"},
      {"the other hour", ZG_SET(r.ForecastTemperatureHour[1] = 6),
       ZG_GET(ForecastTemperatureTime[1]), kind, NoUnit, "06:00Z"},
  });
}

TEST(MetarReportText, Visibility) {
  constexpr auto level = UnitKind::Level;
  constexpr auto distance = UnitKind::Distance;
  ExpectValues({
      {"runway", ZG_SET(r.RVRRunway = "24L"), ZG_GET(RVRRunway), level, NoUnit, "24L"},
      {"runway range in metres", ZG_SET(r.RVRVisibility = 1500), ZG_GET(RVRVisibility), level,
       NoUnit, "01500 m"},
      {"in feet", ZG_SET(r.RVRVisibility = 1500; Flag(r, 24)), ZG_GET(RVRVisibility), level, NoUnit,
       "01500 ft"},
      {"metres to feet", ZG_SET(r.RVRVisibility = 1500), ZG_GET(RVRVisibility), level, " ft",
       "04920 ft"},
      {"feet to metres", ZG_SET(r.RVRVisibility = 1200; Flag(r, 24)), ZG_GET(RVRVisibility), level,
       " m", "00360 m"},
      {"above", ZG_SET(r.RVRVisibility = 1500; Flag(r, 25)), ZG_GET(RVRVisibility), level, NoUnit,
       "> 01500 m"},
      {"below", ZG_SET(r.RVRVisibility = 50; Flag(r, 26)), ZG_GET(RVRVisibility), level, NoUnit,
       "< 00050 m"},
      {"above goes first", ZG_SET(r.RVRVisibility = 50; Flag(r, 25); Flag(r, 26)),
       ZG_GET(RVRVisibility), level, NoUnit, "> 00050 m"},
      {"no prefix without a value", ZG_SET(Flag(r, 25)), ZG_GET(RVRVisibility), level, NoUnit, ""},
      {"upper end", ZG_SET(r.RVRVisibilitymax = 1500; Flag(r, 25)), ZG_GET(RVRVisibilitymax), level,
       NoUnit, "01500 m"},
      {"upper end in feet", ZG_SET(r.RVRVisibilitymax = 1500; Flag(r, 24)),
       ZG_GET(RVRVisibilitymax), level, NoUnit, "01500 ft"},
      {"vertical", ZG_SET(r.VerticalVisibility = 10), ZG_GET(VerticalVisibility), level, NoUnit,
       "01000 ft"},
      {"vertical, its copy", ZG_SET(r.VerticalVisibility = 10), ZG_GET(VerticalVisibilityCopy),
       level, NoUnit, "01000 ft"},
      {"vertical in metres", ZG_SET(r.VerticalVisibility = 10), ZG_GET(VerticalVisibilityCopy),
       level, " m", "00300 m"},
      {"metres", ZG_SET(r.Section[0].OrizVisibility = 4000; Flag(r, 15)),
       ZG_GET(Section[0].OrizVisibility), distance, NoUnit, "04000 m"},
      {"metres to kilometres", ZG_SET(r.Section[0].OrizVisibility = 4000; Flag(r, 15)),
       ZG_GET(Section[0].OrizVisibility), distance, " km", "04.0 km"},
      {"miles", ZG_SET(r.Section[0].OrizVisibility = 1500; Flag(r, 14)),
       ZG_GET(Section[0].OrizVisibility), distance, NoUnit, "01.5 SM"},
      {"miles to kilometres", ZG_SET(r.Section[0].OrizVisibility = 10000; Flag(r, 14)),
       ZG_GET(Section[0].OrizVisibility), distance, " km", "16.1 km"},
      {"metres go first", ZG_SET(r.Section[0].OrizVisibility = 4000; Flag(r, 14); Flag(r, 15)),
       ZG_GET(Section[0].OrizVisibility), distance, NoUnit, "04000 m"},
      {"no unit", ZG_SET(r.Section[0].OrizVisibility = 4000), ZG_GET(Section[0].OrizVisibility),
       distance, NoUnit, ""},
      {"its direction", ZG_SET(r.Section[0].VisibilityDir = "NE"), ZG_GET(Section[0].VisibilityDir),
       distance, NoUnit, "NE"},
  });
}

TEST(MetarReportText, Wind) {
  constexpr auto speed = UnitKind::Speed;
  ExpectValues({
      {"direction", ZG_SET(r.Section[0].WindDir = 27), ZG_GET(Section[0].WindDir), speed, NoUnit,
       "270 deg"},
      {"direction under 100", ZG_SET(r.Section[0].WindDir = 5), ZG_GET(Section[0].WindDir), speed,
       NoUnit, "050 deg"},
      {"knots", ZG_SET(r.Section[0].WindSpeed = 10; Flag(r, 11)), ZG_GET(Section[0].WindSpeed),
       speed, NoUnit, "10 kt"},
      {"knots are never converted", ZG_SET(r.Section[0].WindSpeed = 5; Flag(r, 11)),
       ZG_GET(Section[0].WindSpeed), speed, " mps", "5 kt"},
      {"kilometres an hour", ZG_SET(r.Section[0].WindSpeed = 5; Flag(r, 12)),
       ZG_GET(Section[0].WindSpeed), speed, NoUnit, "05.0 kmh"},
      {"kilometres an hour converted", ZG_SET(r.Section[0].WindSpeed = 36; Flag(r, 12)),
       ZG_GET(Section[0].WindSpeed), speed, " mps", "10.0 mps"},
      {"metres a second", ZG_SET(r.Section[0].WindSpeed = 10; Flag(r, 13)),
       ZG_GET(Section[0].WindSpeed), speed, " mps", "10.0 mps"},
      {"metres a second converted", ZG_SET(r.Section[0].WindSpeed = 10; Flag(r, 13)),
       ZG_GET(Section[0].WindSpeed), speed, " kmh", "36.0 kmh"},
      {"the first unit goes first",
       ZG_SET(r.Section[0].WindSpeed = 10; Flag(r, 11); Flag(r, 12); Flag(r, 13)),
       ZG_GET(Section[0].WindSpeed), speed, NoUnit, "10 kt"},
      {"calm", ZG_SET(r.Section[0].WindSpeed = 0; r.Section[0].WindDir = 0; Flag(r, 11)),
       ZG_GET(Section[0].WindSpeed), speed, NoUnit, "Calm", "Calma"},
      {"calm has no direction",
       ZG_SET(r.Section[0].WindSpeed = 0; r.Section[0].WindDir = 0; Flag(r, 11)),
       ZG_GET(Section[0].WindDir), speed, NoUnit, ""},
      {"calm in metres a second", ZG_SET(r.Section[0].WindSpeed = 0; Flag(r, 13)),
       ZG_GET(Section[0].WindSpeed), speed, " kmh", "Calm", "Calma"},
      {"range", ZG_SET(r.Section[0].WindDirRange = "350-040"), ZG_GET(Section[0].WindDirRange),
       speed, NoUnit, "350-040 deg"},
      {"gust", ZG_SET(r.Section[0].Gust = 25; Flag(r, 11)), ZG_GET(Section[0].Gust), speed, NoUnit,
       "25 kt"},
      {"gust of a calm", ZG_SET(r.Section[0].WindSpeed = 0; r.Section[0].Gust = 25; Flag(r, 11)),
       ZG_GET(Section[0].Gust), speed, NoUnit, "25 kt"},
      {"gust converted", ZG_SET(r.Section[0].Gust = 10; Flag(r, 13)), ZG_GET(Section[0].Gust),
       speed, " kmh", "36.0 kmh"},
      {"variable", ZG_SET(r.Section[0].WindSpeed = 3; Flag(r, 11); Flag(r, 20)),
       ZG_GET(Section[0].WindDir), speed, NoUnit, "Variable", "Variabile"},
      {"variable and calm", ZG_SET(r.Section[0].WindSpeed = 0; Flag(r, 11); Flag(r, 20)),
       ZG_GET(Section[0].WindDir), speed, NoUnit, "Variable", "Variabile"},
      {"shear level", ZG_SET(r.WindShearLevel = 20), ZG_GET(WindShearLevel), UnitKind::Level,
       NoUnit, "02000 ft"},
      {"shear level in metres", ZG_SET(r.WindShearLevel = 20), ZG_GET(WindShearLevel),
       UnitKind::Level, " m", "00600 m"},
      {"shear direction", ZG_SET(r.WindShearDir = 50), ZG_GET(WindShearDir), speed, NoUnit,
       "050 deg"},
      {"shear speed", ZG_SET(r.WindShearSpeed = 45), ZG_GET(WindShearSpeed), speed, " mps",
       "45 kt"},
      {"shear without values", ZG_SET(Flag(r, 22)), ZG_GET(WindRemarks), speed, NoUnit,
       "Wind-Shear Condition", "Conditione di Wind-Shear"},
      {"shear behind other remarks", ZG_SET(r.WindRemarks = "Wind 27010KT"; Flag(r, 22)),
       ZG_GET(WindRemarks), speed, NoUnit, "Wind 27010KT Wind-Shear Condition",
       "Wind 27010KT Conditione di Wind-Shear"},
      {"wind remarks", ZG_SET(r.WindRemarks = "After 12:00 "), ZG_GET(WindRemarks), speed, NoUnit,
       "After 12:00 "},
      {"other remarks", ZG_SET(r.OtherRemarks = "RAB05"), ZG_GET(OtherRemarks), speed, NoUnit,
       "RAB05"},
  });
}

TEST(MetarReportText, Pressure) {
  constexpr auto kind = UnitKind::Pressure;
  ExpectValues({
      {"hectopascals", ZG_SET(r.Section[0].AltimeterPressure = 1013),
       ZG_GET(Section[0].AltimeterPressure), kind, NoUnit, "1013.0 hpa"},
      {"under 1000", ZG_SET(r.Section[0].AltimeterPressure = 995),
       ZG_GET(Section[0].AltimeterPressure), kind, " hpa", "0995.0 hpa"},
      {"the last in hectopascals", ZG_SET(r.Section[0].AltimeterPressure = 1500),
       ZG_GET(Section[0].AltimeterPressure), kind, NoUnit, "1500.0 hpa"},
      {"the first in inches", ZG_SET(r.Section[0].AltimeterPressure = 1501),
       ZG_GET(Section[0].AltimeterPressure), kind, NoUnit, "15.01 inHg"},
      {"inches", ZG_SET(r.Section[0].AltimeterPressure = 2992),
       ZG_GET(Section[0].AltimeterPressure), kind, " inHg", "29.92 inHg"},
      {"inches to hectopascals", ZG_SET(r.Section[0].AltimeterPressure = 2992),
       ZG_GET(Section[0].AltimeterPressure), kind, " hpa", "1013.2 hpa"},
      {"hectopascals to inches", ZG_SET(r.Section[0].AltimeterPressure = 1013),
       ZG_GET(Section[0].AltimeterPressure), kind, " inHg", "29.91 inHg"},
      {"SLP under 500", ZG_SET(r.Section[0].SeaPressureLevel = 132; Flag(r, 27)),
       ZG_GET(Section[0].SeaPressureLevel), kind, NoUnit, "1013.2 hpa"},
      {"SLP 499", ZG_SET(r.Section[0].SeaPressureLevel = 499; Flag(r, 27)),
       ZG_GET(Section[0].SeaPressureLevel), kind, NoUnit, "1049.9 hpa"},
      {"SLP 500", ZG_SET(r.Section[0].SeaPressureLevel = 500; Flag(r, 27)),
       ZG_GET(Section[0].SeaPressureLevel), kind, NoUnit, "0950.0 hpa"},
      {"SLP over 500", ZG_SET(r.Section[0].SeaPressureLevel = 987; Flag(r, 27)),
       ZG_GET(Section[0].SeaPressureLevel), kind, NoUnit, "0998.7 hpa"},
      {"SLP of nought", ZG_SET(r.Section[0].SeaPressureLevel = 0; Flag(r, 27)),
       ZG_GET(Section[0].SeaPressureLevel), kind, NoUnit, "1000.0 hpa"},
      {"SLP in inches", ZG_SET(r.Section[0].SeaPressureLevel = 132; Flag(r, 27)),
       ZG_GET(Section[0].SeaPressureLevel), kind, " inHg", "29.92 inHg"},
      {"QNH", ZG_SET(r.Section[0].SeaPressureLevel = 1013), ZG_GET(Section[0].SeaPressureLevel),
       kind, NoUnit, "1013.0 hpa"},
      {"QNH in inches", ZG_SET(r.Section[0].SeaPressureLevel = 2992),
       ZG_GET(Section[0].SeaPressureLevel), kind, NoUnit, "29.92 inHg"},
      {"tendency", ZG_SET(r.PressTendency = 3), ZG_GET(PressTendency), kind, NoUnit,
       "Decreasing or steady, then increasing; resultant pressure higher",
       "Decrescente o costante, poi in aumento; pressione risultante più alta"},
      {"rise", ZG_SET(r.PressTendencyVal = 2.2f), ZG_GET(PressTendencyVal), kind, NoUnit,
       "+2.2 hpa"},
      {"fall", ZG_SET(r.PressTendencyVal = -1.2f), ZG_GET(PressTendencyVal), kind, " hpa",
       "-1.2 hpa"},
      {"no change", ZG_SET(r.PressTendencyVal = 0), ZG_GET(PressTendencyVal), kind, NoUnit,
       "0.0 hpa"},
      {"rise in inches", ZG_SET(r.PressTendencyVal = 10), ZG_GET(PressTendencyVal), kind, " inHg",
       "+00.30 inHg"},
  });
}

TEST(MetarReportText, Amounts) {
  constexpr auto kind = UnitKind::Level;
  ExpectValues({
      {"precipitation of an hour", ZG_SET(r.PrecipHour = 12), ZG_GET(PrecipHour), kind, NoUnit,
       "3 mm"},
      {"none", ZG_SET(r.PrecipHour = 0), ZG_GET(PrecipHour), kind, NoUnit, "0 mm"},
      {"of 3 hours", ZG_SET(r.Precip3h = 100), ZG_GET(Precip3h), kind, " ft", "25 mm"},
      {"of 6 hours", ZG_SET(r.Precip6h = 200), ZG_GET(Precip6h), kind, NoUnit, "50 mm"},
      {"of 24 hours", ZG_SET(r.Precip24h = 4), ZG_GET(Precip24h), kind, NoUnit, "1 mm"},
      {"snow", ZG_SET(r.SnowDepth = 12), ZG_GET(SnowDepth), kind, NoUnit, "304 mm"},
      {"water", ZG_SET(r.Water = 36), ZG_GET(Water), kind, NoUnit, "36 mm"},
      {"sunshine", ZG_SET(r.Sunshine = 96), ZG_GET(Sunshine), kind, NoUnit, "96 min"},
      {"low cloud", ZG_SET(r.LowCloudType = 1), ZG_GET(LowCloudType), kind, NoUnit,
       "Cumulus (fair wx)", "Cumulus"},
      {"middle cloud", ZG_SET(r.MiddleCloudType = 1), ZG_GET(MiddleCloudType), kind, NoUnit,
       "Altostratus (thin)", "Altostratus (sottile)"},
      {"high cloud", ZG_SET(r.HighCloudType = 1), ZG_GET(HighCloudType), kind, NoUnit,
       "Cirrus (filaments)", "Cirrus (filamenti)"},
  });
}

TEST(MetarReportText, Clouds) {
  constexpr auto kind = UnitKind::Level;
  ExpectValues({
      {"cover", ZG_SET(r.Section[0].CloudCover[0] = 1), ZG_GET(Section[0].CloudCover[0]), kind,
       NoUnit, "1/8"},
      {"overcast", ZG_SET(r.Section[0].CloudCover[1] = 8), ZG_GET(Section[0].CloudCover[1]), kind,
       NoUnit, "Overcast", "Coperto"},
      {"cover, short", ZG_SET(r.Section[0].CloudCover[2] = 8),
       ZG_GET(Section[0].CloudCoverShort[2]), kind, NoUnit, "8/8"},
      {"form", ZG_SET(r.Section[0].CloudType[0] = 8), ZG_GET(Section[0].CloudType[0]), kind, NoUnit,
       "Cumulus (Cu)", "Cumulo (Cu)"},
      {"form, short", ZG_SET(r.Section[0].CloudType[0] = 9), ZG_GET(Section[0].CloudTypeShort[0]),
       kind, NoUnit, "CB"},
      {"height", ZG_SET(r.Section[0].CloudHeigh[0] = 30), ZG_GET(Section[0].CloudHeigh[0]), kind,
       NoUnit, "03000 ft"},
      {"height in metres", ZG_SET(r.Section[0].CloudHeigh[1] = 30),
       ZG_GET(Section[0].CloudHeigh[1]), kind, " m", "00910 m"},
      {"height of nought", ZG_SET(r.Section[0].CloudHeigh[0] = 0), ZG_GET(Section[0].CloudHeigh[0]),
       kind, NoUnit, "00000 ft"},
      {"sky clear", ZG_SET(Flag(r, 16)), ZG_GET(Section[0].CloudCover[0]), kind, NoUnit,
       "Sky Clear", "Cielo Sereno"},
      {"sky clear, short", ZG_SET(Flag(r, 16)), ZG_GET(Section[0].CloudCoverShort[0]), kind, NoUnit,
       "0/8"},
      {"no significant cloud", ZG_SET(Flag(r, 23)), ZG_GET(Section[0].CloudCover[0]), kind, NoUnit,
       "No Significant Clouds", "Nubi non significative"},
      {"no significant cloud is applied last", ZG_SET(Flag(r, 16); Flag(r, 23)),
       ZG_GET(Section[0].CloudCover[0]), kind, NoUnit, "No Significant Clouds",
       "Nubi non significative"},
      {"and leaves the short text", ZG_SET(Flag(r, 16); Flag(r, 23)),
       ZG_GET(Section[0].CloudCoverShort[0]), kind, NoUnit, "0/8"},
      {"clear", ZG_SET(Flag(r, 17)), ZG_GET(VerticalVisibility), kind, NoUnit,
       "No Clouds under 12000 ft", "Nessuna nube sotto 12000 ft"},
      {"clear in metres", ZG_SET(Flag(r, 17)), ZG_GET(VerticalVisibility), kind, " m",
       "No Clouds under 3650.0000 m", "Nessuna nube sotto 3650.0000 m"},
      {"clear, short", ZG_SET(Flag(r, 17); r.VerticalVisibility = 10),
       ZG_GET(VerticalVisibilityCopy), kind, NoUnit, "CLR"},
  });
}

TEST(MetarReportText, CloudLayers) {
  struct Row {
    const char* name;
    void (*set)(MetarRawSection&);
    int layers;
  };
  const Row rows[] = {
      {"none", [](MetarRawSection&) {}, 0},
      {"cover of the first", [](MetarRawSection& s) { s.CloudCover[0] = 1; }, 1},
      {"form of the second", [](MetarRawSection& s) { s.CloudType[1] = 9; }, 2},
      {"height of the third", [](MetarRawSection& s) { s.CloudHeigh[2] = 10; }, 3},
      {"first and third",
       [](MetarRawSection& s) {
         s.CloudCover[0] = 1;
         s.CloudCover[2] = 1;
       },
       3},
  };
  for (const Row& row : rows) {
    MetarRawData raw;
    row.set(raw.Section[0]);
    EXPECT_EQ(Stored(raw).data.Section[0].CloudLayers, row.layers) << row.name;
  }
}

TEST(MetarReportText, ComposeWeatherField) {
  struct Row {
    std::uint32_t mask;
    const char* english;
    const char* italian;
  };
  const Row rows[] = {
      {0, "", ""},
      {1U << 9, "Rain", "Pioggia"},
      {1U << 9 | 1U << 28, "Rain (Light)", "Pioggia  (Leggero/a)"},
      {1U << 5 | 1U << 9 | 1U << 29, "Shower Rain (Heavy)", "Pioggia Fitta Pioggia  (Forte)"},
      {1U << 6 | 1U << 30, "Thunderstorm in Vicinity", "Temporale in Vicinanza"},
      {1U << 10 | 1U << 9, "Rain Snow", "Pioggia Neve"},
      {1U << 0 | 1U << 17, "Shallow Fog", "leggero/a Nebbia"},
      {1U << 31, "", ""},
  };
  TextUtility english;
  TextUtility italian;
  italian.SetLanguage(0);
  for (const Row& row : rows) {
    EXPECT_EQ(ComposeWeatherField(row.mask, english), row.english);
    EXPECT_EQ(ComposeWeatherField(row.mask, italian), row.italian);
  }
}

TEST(MetarReportText, Weather) {
  struct Row {
    const char* name;
    std::vector<std::uint32_t> slots;
    std::vector<unsigned> flags;
    std::vector<const char*> texts;
    int count;
  };
  constexpr std::uint32_t RA = 1U << 9;
  constexpr std::uint32_t SN = 1U << 10;
  constexpr std::uint32_t BR = 1U << 16;
  const Row rows[] = {
      {"none", {}, {}, {"", "", ""}, 0},
      {"one", {RA}, {}, {"Rain", "", ""}, 1},
      {"three", {RA, SN, BR}, {}, {"Rain", "Snow", "Mist"}, 3},
      {"a fourth is not shown", {RA, SN, BR, RA}, {}, {"Rain", "Snow", "Mist"}, 3},
      {"CAVOK is no phenomenon", {}, {10}, {"Ceiling and Visibility OK", "", ""}, 0},
      {"NOSIG", {}, {19}, {"No Significant Weather", "", ""}, 1},
      {"NOSIG behind CAVOK", {}, {10, 19}, {"No Significant Weather", "", ""}, 1},
      {"NOSIG over weather", {RA, SN}, {19}, {"No Significant Weather", "Snow", ""}, 1},
      {"CAVOK over weather", {RA, SN}, {10}, {"Ceiling and Visibility OK", "Snow", ""}, 2},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    MetarRawData raw;
    for (std::size_t i = 0; i < row.slots.size(); ++i) raw.Section[0].Weather[i] = row.slots[i];
    for (const unsigned flag : row.flags) Flag(raw, flag);
    const Stored stored(raw);
    for (std::size_t i = 0; i < row.texts.size(); ++i) {
      EXPECT_EQ(stored.data.Section[0].Weather[i], row.texts[i]);
    }
    EXPECT_EQ(stored.data.Section[0].WeatherCount, row.count);
  }
  MetarRawData raw;
  Flag(raw, 10);
  EXPECT_EQ(Stored(raw, 0, UnitKind::Level, NoUnit).data.Section[0].Weather[0],
            "Tempo e Visibilita' OK");
  Flag(raw, 19);
  EXPECT_EQ(Stored(raw, 0, UnitKind::Level, NoUnit).data.Section[0].Weather[0],
            "Fenomeni non significativi");
}

TEST(MetarReportText, Sections) {
  struct Row {
    std::uint8_t type;
    const char* english;
    const char* italian;
  };
  const Row rows[] = {
      {0, "", ""},
      {1, "Remarks", "Remarks"},
      {2, "Occasional", "Fenomeni Occasionali"},
      {3, "Gradul change", "Cambiamento Graduale"},
      {4, "Change", "Cambiamento"},
      {5, "Change with 30% Probability", "Cambiamento con 30% di Probabilita'"},
      {6, "Change with 40% Probability", "Cambiamento con 40% di Probabilita'"},
      {7, "Intermittent", "Fenomeni Intermittenti"},
  };
  MetarRawData raw;
  raw.SectionIndex = 14;
  Flag(raw, 11);
  for (const Row& row : rows) {
    raw.Section[row.type].SectionType = row.type;
    raw.Section[row.type].WindSpeed = static_cast<std::uint8_t>(row.type + 1);
  }
  for (const std::uint8_t language : {std::uint8_t{1}, std::uint8_t{0}}) {
    const Stored stored(raw, language, UnitKind::Level, NoUnit);
    EXPECT_EQ(stored.data.SectionCount(), 15);
    for (const Row& row : rows) {
      const MetarSection& section = stored.data.Section[row.type];
      EXPECT_EQ(section.SectionType, row.type);
      EXPECT_EQ(section.SectionName, language == 1 ? row.english : row.italian);
      EXPECT_EQ(section.WindSpeed, std::to_string(row.type + 1) + " kt");
    }
  }
  // What the flags say is told on the first section only.
  Flag(raw, 10);
  Flag(raw, 20);
  const Stored flagged(raw);
  EXPECT_EQ(flagged.data.Section[0].WindDir, "Variable");
  EXPECT_EQ(flagged.data.Section[1].WindDir, "");
  EXPECT_EQ(flagged.data.Section[1].Weather[0], "");
  raw.SectionIndex = 0;
  EXPECT_EQ(Stored(raw).data.SectionCount(), 1);
}

TEST(MetarReportText, Times) {
  constexpr auto kind = UnitKind::Level;
  ExpectValues({
      {"day and time", ZG_SET(r.ObservationTime = "151250"), ZG_GET(ObservationTime), kind, NoUnit,
       "15/12:50Z"},
      {"time", ZG_SET(r.ObservationTime = "1250"), ZG_GET(ObservationTime), kind, NoUnit, "12:50Z"},
      {"leading noughts", ZG_SET(r.ObservationTime = "010005"), ZG_GET(ObservationTime), kind,
       NoUnit, "01/00:05Z"},
      {"another length", ZG_SET(r.ObservationTime = "15125"), ZG_GET(ObservationTime), kind, NoUnit,
       ""},
      {"no number", ZG_SET(r.ObservationTime = "15//50"), ZG_GET(ObservationTime), kind, NoUnit,
       "15//50"},
      {"bulletin", ZG_SET(r.BulletinTime = "151200"), ZG_GET(BulletinTime), kind, NoUnit,
       "15/12:00Z"},
      {"bulletin without day", ZG_SET(r.BulletinTime = "1200"), ZG_GET(BulletinTime), kind, NoUnit,
       "12:00Z"},
      {"period", ZG_SET(r.ValidPeriod = "151218"), ZG_GET(ValidPeriod), kind, NoUnit,
       "15/12:00Z - 18:00Z"},
      {"period without day", ZG_SET(r.ValidPeriod = "1218"), ZG_GET(ValidPeriod), kind, NoUnit,
       "12:00Z - 18:00Z"},
      {"no period", ZG_SET(r.ValidPeriod = ""), ZG_GET(ValidPeriod), kind, NoUnit, ""},
      {"from an hour", ZG_SET(r.Section[0].FromHour = 6), ZG_GET(Section[0].FromTime), kind, NoUnit,
       "06:00Z"},
      {"from an hour and a minute", ZG_SET(r.Section[0].FromHour = 12; r.Section[0].FromMinute = 5),
       ZG_GET(Section[0].FromTime), kind, NoUnit, "12:05Z"},
      {"to an hour", ZG_SET(r.Section[0].ToHour = 24; r.Section[0].ToMinute = 0),
       ZG_GET(Section[0].ToTime), kind, NoUnit, "24:00Z"},
      {"a minute alone", ZG_SET(r.Section[0].ToMinute = 30), ZG_GET(Section[0].ToTime), kind,
       NoUnit, ""},
  });
}

TEST(MetarReportText, Head) {
  MetarRawData raw;
  raw.RawText = "METAR KDEN 151250Z=";
  raw.FilterFlags = 1 << 5 | 1;
  raw.Station = DenverStation();
  const Stored stored(raw);
  const MetarData& record = stored.data;
  EXPECT_EQ(record.RawText, "METAR KDEN 151250Z=");
  EXPECT_EQ(record.FilterFlags, 33);
  EXPECT_EQ(record.Station.Country(), "United States [CO]");
  EXPECT_EQ(record.Station.State(), "CO");
  EXPECT_EQ(record.Station.LatPosition(), "39.50N");
  EXPECT_EQ(record.Station.LongPosition(), "104.40W");
  EXPECT_EQ(record.Station.Quadrant(), "North-West");
  EXPECT_EQ(record.Station.StationHT(), "1656");
  EXPECT_EQ(record.Station.SensorHT(), "1657");
  EXPECT_EQ(record.Station.AddedInfo, "RRA");
  EXPECT_EQ(record.Station.StationKind, 1);
  EXPECT_EQ(Stored(raw, 0, UnitKind::Level, NoUnit).data.Station.Quadrant(), "Nord-Ovest");
  // A state without the country, and the country without a state.
  raw.Station.Country = "Italy";
  EXPECT_EQ(Stored(raw).data.Station.Country(), "Italy");
  raw.Station.Country = "United States";
  raw.Station.State = "";
  EXPECT_EQ(Stored(raw).data.Station.Country(), "United States");
}

TEST(MetarReportText, Booleans) {
  MetarRawData raw;
  const Stored none(raw);
  EXPECT_FALSE(none.data.IsAO1 || none.data.IsAO2 || none.data.IsCOR || none.data.IsAMD);
  EXPECT_TRUE(none.data.IsManual);
  struct Row {
    unsigned flag;
    bool MetarData::*field;
    bool value;
  };
  const Row rows[] = {{7, &MetarData::IsAO1, true},
                      {8, &MetarData::IsAO2, true},
                      {18, &MetarData::IsCOR, true},
                      {21, &MetarData::IsAMD, true},
                      {9, &MetarData::IsManual, false}};
  for (const Row& row : rows) {
    MetarRawData flagged;
    Flag(flagged, row.flag);
    EXPECT_EQ(Stored(flagged).data.*row.field, row.value) << row.flag;
  }
}

// Nothing reported, nothing shown.
TEST(MetarReportText, MissingValuesHaveNoText) {
  const Stored stored(MetarRawData{});
  const MetarData& d = stored.data;
  for (std::string_view text : {d.RawText,
                                d.ObservationTime,
                                d.ValidPeriod,
                                d.BulletinTime,
                                d.ForecastTemperature[0],
                                d.ForecastTemperature[1],
                                d.ForecastTemperatureTime[0],
                                d.ForecastTemperatureTime[1],
                                d.Temperature,
                                d.Dewpoint,
                                d.RVRRunway,
                                d.RVRVisibility,
                                d.RVRVisibilitymax,
                                d.VerticalVisibility,
                                d.VerticalVisibilityCopy,
                                d.WindShearLevel,
                                d.WindShearDir,
                                d.WindShearSpeed,
                                d.OtherRemarks,
                                d.WindRemarks,
                                d.MaxTemperature6h,
                                d.MinTemperature6h,
                                d.MaxTemperature24h,
                                d.MinTemperature24h,
                                d.Sunshine,
                                d.PrecipHour,
                                d.Precip3h,
                                d.Precip6h,
                                d.Precip24h,
                                d.Water,
                                d.SnowDepth,
                                d.PressTendency,
                                d.PressTendencyVal,
                                d.LowCloudType,
                                d.MiddleCloudType,
                                d.HighCloudType,
                                d.Station.LatPosition(),
                                d.Station.LongPosition(),
                                d.Station.Quadrant()}) {
    EXPECT_EQ(text, "");
  }
  ASSERT_EQ(d.SectionCount(), 1);
  const MetarSection& s = d.Section[0];
  for (std::string_view text :
       {s.SectionName, s.FromTime, s.ToTime, s.AltimeterPressure, s.SeaPressureLevel,
        s.OrizVisibility, s.VisibilityDir, s.WindDir, s.WindSpeed, s.WindDirRange, s.Gust}) {
    EXPECT_EQ(text, "");
  }
  for (std::size_t i = 0; i < MetarCloudLayers; ++i) {
    EXPECT_EQ(s.CloudCover[i], "");
    EXPECT_EQ(s.CloudCoverShort[i], "");
    EXPECT_EQ(s.CloudType[i], "");
    EXPECT_EQ(s.CloudTypeShort[i], "");
    EXPECT_EQ(s.CloudHeigh[i], "");
    EXPECT_EQ(s.Weather[i], "");
  }
}

// Texts are shared by the records of a store: the same number by another rule is another text.
TEST(MetarReportText, SharedTexts) {
  TextUtility texts;
  const ConversionUtility conversion(texts);
  MessageStore<MetarData> store;
  store.Reset(2);
  MetarRawData raw;
  raw.Water = raw.Sunshine = raw.WindShearDir = raw.VerticalVisibility = raw.RVRVisibility = 36;
  raw.PrecipHour = raw.SnowDepth = 36;
  raw.WindShearLevel = raw.WindShearSpeed = 36;
  raw.Temperature = 36;
  raw.PressTendencyVal = 36;
  raw.ForecastTemperature[0] = raw.ForecastTemperatureHour[0] = 36;
  for (int i = 0; i < 2; ++i) {
    if (i == 1) Flag(raw, 24);
    const MetarData& record = StoreMetarRecord(raw, -1, {texts, conversion}, store);
    EXPECT_EQ(record.Water, "36 mm");
    EXPECT_EQ(record.Sunshine, "36 min");
    EXPECT_EQ(record.WindShearDir, "036 deg");
    EXPECT_EQ(record.VerticalVisibility, "03600 ft");
    EXPECT_EQ(record.RVRVisibility, i == 0 ? "00036 m" : "00036 ft");
    EXPECT_EQ(record.PrecipHour, "9 mm");
    EXPECT_EQ(record.SnowDepth, "914 mm");
    EXPECT_EQ(record.WindShearLevel, "03600 ft");
    EXPECT_EQ(record.WindShearSpeed, "36 kt");
    EXPECT_EQ(record.Temperature, "36.0 °C");
    EXPECT_EQ(record.PressTendencyVal, "+0036.0 hpa");
    EXPECT_EQ(record.ForecastTemperature[0], "-64.0 °C");
    EXPECT_EQ(record.ForecastTemperatureTime[0], "36:00Z");
  }
  EXPECT_EQ(store.Count(), 2u);
}

}  // namespace
}  // namespace zg
