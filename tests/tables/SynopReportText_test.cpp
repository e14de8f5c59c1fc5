#include "tables/SynopReportText.h"

#include <gtest/gtest.h>

#include <bit>
#include <string>
#include <string_view>
#include <vector>

#include "tables/ReportTextCases.h"

namespace zg {
namespace {

using test::DenverStation;
using test::NoUnit;
using Stored = test::StoredRecord<SynopRawData, SynopData, StoreSynopRecord>;
using Raw = Stored::Raw;
using Data = Stored::Data;
constexpr auto ExpectValues = test::ExpectValues<Stored>;

TEST(SynopReportText, Times) {
  constexpr auto kind = UnitKind::Level;
  ExpectValues({
      {"issue", ZG_SET(r.IssueTime = "151230"), ZG_GET(IssueTime), kind, NoUnit, "15/12:30Z"},
      {"issue of the first", ZG_SET(r.IssueTime = "010005"), ZG_GET(IssueTime), kind, NoUnit,
       "01/00:05Z"},
      {"issue that is no number", ZG_SET(r.IssueTime = "15123X"), ZG_GET(IssueTime), kind, NoUnit,
       "15123X"},
      {"observation", ZG_SET(r.TimeOfObservation = "1230"), ZG_GET(TimeOfObservation), kind, NoUnit,
       "12:30Z"},
      {"observation past midnight", ZG_SET(r.TimeOfObservation = "30"), ZG_GET(TimeOfObservation),
       kind, NoUnit, "00:30Z"},
      {"observation not reported", ZG_SET(r.TimeOfObservation = "Unk"), ZG_GET(TimeOfObservation),
       kind, NoUnit, ""},
      {"maximum wind", ZG_SET(r.MaxWindSpeedTime = "1230"), ZG_GET(MaxWindSpeedTime), kind, NoUnit,
       "12:30Z"},
      {"maximum wind, no number", ZG_SET(r.MaxWindSpeedTime = "AB/1"), ZG_GET(MaxWindSpeedTime),
       kind, NoUnit, "AB/1"},
      {"continuous winds", ZG_SET(r.ContinueWindTime = "0005"), ZG_GET(ContinueWindTime), kind,
       NoUnit, "00:05Z"},
  });
}

TEST(SynopReportText, SkyAndVisibility) {
  constexpr auto level = UnitKind::Level;
  constexpr auto distance = UnitKind::Distance;
  ExpectValues({
      {"precipitation groups", ZG_SET(r.PrecipInd = 4), ZG_GET(PrecipInd), level, NoUnit,
       "Precipitation omitted, no observation", "Precipitazione omessa, nessuna osservazione"},
      {"precipitation groups of no meaning", ZG_SET(r.PrecipInd = 9), ZG_GET(PrecipInd), level,
       NoUnit, ""},
      {"kind of station", ZG_SET(r.StationType = 1), ZG_GET(StationType), level, NoUnit,
       "Manned; weather group included", "Manuale; gruppo del tempo incluso"},
      {"lowest cloud", ZG_SET(r.LowestCloud = 2), ZG_GET(LowestCloud), level, NoUnit,
       "100 to 200 m", "100 a 200 m"},
      {"lowest cloud in metres", ZG_SET(r.LowestCloud = 2), ZG_GET(LowestCloud), level, " m",
       "100 to 200 m", "100 a 200 m"},
      {"lowest cloud in feet", ZG_SET(r.LowestCloud = 2), ZG_GET(LowestCloud), level, " ft",
       "320 to 650.0000 ft", "320 a 650.0000 ft"},
      {"lowest cloud under 50 m", ZG_SET(r.LowestCloud = 0), ZG_GET(LowestCloud), level, NoUnit,
       "Under 50 m", "Sotto 50 m"},
      {"lowest cloud unknown", ZG_SET(r.LowestCloud = 10), ZG_GET(LowestCloud), level, " ft",
       "Unknown", "Sconosciuto"},
      {"visibility", ZG_SET(r.Visibility = 56), ZG_GET(Visibility), distance, NoUnit, "06.0 km"},
      {"visibility in metres", ZG_SET(r.Visibility = 56), ZG_GET(Visibility), distance, " m",
       "06000 m"},
      {"visibility in miles", ZG_SET(r.Visibility = 60), ZG_GET(Visibility), distance, " SM",
       "06.2 SM"},
      {"visibility under a bound", ZG_SET(r.Visibility = 89), ZG_GET(Visibility), distance, NoUnit,
       "> 70 km"},
      {"visibility of no meaning", ZG_SET(r.Visibility = 53), ZG_GET(Visibility), distance, " m",
       ""},
      {"cover", ZG_SET(r.CloudCover = 8), ZG_GET(CloudCover), level, NoUnit, "Overcast", "Coperto"},
      {"amount of low clouds", ZG_SET(r.CloudAmount = 3), ZG_GET(CloudAmount), level, NoUnit,
       "3/8"},
      {"low clouds", ZG_SET(r.LowCloudType = 0), ZG_GET(LowCloudType), level, NoUnit,
       "No low clouds", "Nessuna nube bassa"},
      {"middle clouds", ZG_SET(r.MiddleCloudType = 7), ZG_GET(MiddleCloudType), level, NoUnit,
       "Altocumulus (multilayers)", "Altocumulus (multilivello)"},
      {"high clouds", ZG_SET(r.HighCloudType = 1), ZG_GET(HighCloudType), level, " ft",
       "Cirrus fibratus (wispy)", "Cirrus Fibratus (esile)"},
      {"high clouds are trimmed", ZG_SET(r.HighCloudType = 9), ZG_GET(HighCloudType), level, NoUnit,
       "Cirrocumulus"},
      {"layer cover", ZG_SET(r.CloudCovLayer[3] = 4), ZG_GET(CloudCovLayer[3]), level, NoUnit,
       "4/8"},
      {"layer form", ZG_SET(r.TypeOfCloud[2] = 8), ZG_GET(TypeOfCloud[2]), level, NoUnit,
       "Cumulus (Cu)", "Cumulo (Cu)"},
      {"layer height", ZG_SET(r.HeighOfCloud[0] = 10), ZG_GET(HeighOfCloud[0]), level, NoUnit,
       "300 m"},
      {"layer height in feet", ZG_SET(r.HeighOfCloud[1] = 10), ZG_GET(HeighOfCloud[1]), level,
       " ft", "980 ft"},
      {"layer height from nought", ZG_SET(r.HeighOfCloud[0] = 90), ZG_GET(HeighOfCloud[0]), level,
       NoUnit, "0 to 50 m"},
      {"layer height under 30 m", ZG_SET(r.HeighOfCloud[0] = 0), ZG_GET(HeighOfCloud[0]), level,
       NoUnit, "< 30 m"},
      {"layer height of no meaning", ZG_SET(r.HeighOfCloud[0] = 53), ZG_GET(HeighOfCloud[0]), level,
       NoUnit, ""},
  });
}

TEST(SynopReportText, Wind) {
  constexpr auto speed = UnitKind::Speed;
  ExpectValues({
      {"direction", ZG_SET(r.WindDirection = 27), ZG_GET(WindDirection), speed, NoUnit, "270 deg"},
      {"direction under 100", ZG_SET(r.WindDirection = 5), ZG_GET(WindDirection), speed, NoUnit,
       "050 deg"},
      {"direction variable", ZG_SET(r.WindDirection = 99), ZG_GET(WindDirection), speed, NoUnit,
       "990 deg"},
      {"metres a second, estimated", ZG_SET(r.WindUnitInd = 0; r.WindSpeed = 10), ZG_GET(WindSpeed),
       speed, NoUnit, "10.0 mps (Estim.)"},
      {"metres a second, measured", ZG_SET(r.WindUnitInd = 1; r.WindSpeed = 5), ZG_GET(WindSpeed),
       speed, NoUnit, "05.0 mps (Anem.)"},
      {"knots, estimated", ZG_SET(r.WindUnitInd = 3; r.WindSpeed = 10), ZG_GET(WindSpeed), speed,
       NoUnit, "10.0 KTS (Estim.)"},
      {"knots, measured", ZG_SET(r.WindUnitInd = 4; r.WindSpeed = 10), ZG_GET(WindSpeed), speed,
       " KTS", "10.0 KTS (Anem.)"},
      {"unknown unit", ZG_SET(r.WindUnitInd = 2; r.WindSpeed = 10), ZG_GET(WindSpeed), speed,
       NoUnit, ""},
      {"another unknown unit", ZG_SET(r.WindUnitInd = 9; r.WindSpeed = 10), ZG_GET(WindSpeed),
       speed, NoUnit, ""},
      {"metres a second to km/h", ZG_SET(r.WindUnitInd = 1; r.WindSpeed = 10), ZG_GET(WindSpeed),
       speed, " kmh", "36.0 kmh (Anem.)"},
      {"metres a second to knots", ZG_SET(r.WindUnitInd = 0; r.WindSpeed = 5), ZG_GET(WindSpeed),
       speed, " KTS", "09.7 KTS (Estim.)"},
      {"knots to metres a second", ZG_SET(r.WindUnitInd = 4; r.WindSpeed = 10), ZG_GET(WindSpeed),
       speed, " mps", "05.1 mps (Anem.)"},
      {"nought is not converted", ZG_SET(r.WindUnitInd = 1; r.WindSpeed = 0), ZG_GET(WindSpeed),
       speed, " kmh", "00.0 kmh (Anem.)"},
      {"peak, whatever the unit of the report", ZG_SET(r.WindUnitInd = 4; r.SupplInfo = 10),
       ZG_GET(SupplInfo), speed, NoUnit, "10.0 mps"},
      {"peak converted", ZG_SET(r.SupplInfo = 10), ZG_GET(SupplInfo), speed, " kmh", "36.0 kmh"},
      {"wind at 10 m", ZG_SET(r.WindAt10mt = 123), ZG_GET(WindAt10mt), speed, NoUnit, "12.3 mps"},
      {"wind at 20 m", ZG_SET(r.WindAt20mt = 50), ZG_GET(WindAt20mt), speed, " kmh", "18.0 kmh"},
      {"maximum wind", ZG_SET(r.MaxWindSpeed = 12), ZG_GET(MaxWindSpeed), speed, NoUnit,
       "12.0 mps"},
      {"its direction", ZG_SET(r.MaxWindDir = 5), ZG_GET(MaxWindDir), speed, NoUnit, "050 deg"},
      {"continuous direction", ZG_SET(r.CountinuousWindRaw[0] = "090234"),
       ZG_GET(CountinuousWindDir[0]), speed, NoUnit, "090 deg"},
      {"continuous speed", ZG_SET(r.CountinuousWindRaw[5] = "090234"),
       ZG_GET(CountinuousWindSpeed[5]), speed, NoUnit, "23.4 mps"},
      {"continuous speed converted", ZG_SET(r.CountinuousWindRaw[0] = "090100"),
       ZG_GET(CountinuousWindSpeed[0]), speed, " kmh", "36.0 kmh"},
      {"continuous speed of letters", ZG_SET(r.CountinuousWindRaw[0] = "ABCDEF"),
       ZG_GET(CountinuousWindSpeed[0]), speed, NoUnit, "00.0 mps"},
      {"continuous direction of letters", ZG_SET(r.CountinuousWindRaw[0] = "ABCDEF"),
       ZG_GET(CountinuousWindDir[0]), speed, NoUnit, "ABC deg"},
  });
}

TEST(SynopReportText, Temperature) {
  constexpr auto kind = UnitKind::Temperature;
  ExpectValues({
      {"air", ZG_SET(r.Temperature = 12.3f), ZG_GET(Temperature), kind, NoUnit, "12.3 °C"},
      {"whole degrees", ZG_SET(r.Temperature = 12), ZG_GET(Temperature), kind, " °C", "12.0 °C"},
      {"below zero", ZG_SET(r.Temperature = -5), ZG_GET(Temperature), kind, NoUnit, "-05.0 °C"},
      {"nought", ZG_SET(r.Temperature = 0), ZG_GET(Temperature), kind, NoUnit, "00.0 °C"},
      {"nought in Fahrenheit", ZG_SET(r.Temperature = 0), ZG_GET(Temperature), kind, " °F",
       "00.0 °F"},
      {"Fahrenheit", ZG_SET(r.Temperature = -3.5f), ZG_GET(Temperature), kind, " °F", "25.7 °F"},
      {"dew point", ZG_SET(r.DewPoint = 10.1f), ZG_GET(DewPoint), kind, NoUnit, "10.1 °C"},
      {"humidity in its place", ZG_SET(r.Humidity = 75), ZG_GET(DewPoint), kind, " °F", "75 %"},
      {"the dew point goes first", ZG_SET(r.DewPoint = 10.1f; r.Humidity = 75), ZG_GET(DewPoint),
       kind, NoUnit, "10.1 °C"},
      {"humidity has no text", ZG_SET(r.Humidity = 75), ZG_GET(Humidity), kind, NoUnit, ""},
      {"maximum", ZG_SET(r.MaxTemperature = 20.3f), ZG_GET(MaxTemperature), kind, NoUnit,
       "20.3 °C"},
      {"minimum", ZG_SET(r.MinTemperature = -0.5f), ZG_GET(MinTemperature), kind, NoUnit,
       "-00.5 °C"},
      {"sea", ZG_SET(r.SeaTemperature = 12.3f), ZG_GET(SeaTemperature), kind, " °F", "54.1 °F"},
      {"wet bulb", ZG_SET(r.WetTemperature = -12.3f), ZG_GET(WetTemperature), kind, NoUnit,
       "-12.3 °C"},
      {"the missing value turned negative", ZG_SET(r.SeaTemperature = -MissingFloat),
       ZG_GET(SeaTemperature), kind, NoUnit, "-340282300000000000000000000000000000000.0 °C"},
  });
}

TEST(SynopReportText, Pressure) {
  constexpr auto kind = UnitKind::Pressure;
  ExpectValues({
      {"station", ZG_SET(r.StatPressure = 1012.3f), ZG_GET(StatPressure), kind, NoUnit,
       "1012.3 hpa"},
      {"station under 1000", ZG_SET(r.StatPressure = 998.7f), ZG_GET(StatPressure), kind, NoUnit,
       "0998.7 hpa"},
      {"station, tenth of the value", ZG_SET(r.StatPressure = 99.8f), ZG_GET(StatPressure), kind,
       NoUnit, "0099.8 hpa"},
      {"sea level", ZG_SET(r.SeaLevPressure = 1013.2f), ZG_GET(SeaLevPressure), kind, " inHg",
       "29.92 inHg"},
      {"sea level, whole", ZG_SET(r.SeaLevPressure = 1013), ZG_GET(SeaLevPressure), kind, " hpa",
       "1013.0 hpa"},
      {"level", ZG_SET(r.GeopotPressure = 850), ZG_GET(GeopotPressure), kind, NoUnit, "0850.0 hpa"},
      {"height of the level", ZG_SET(r.GeopotHeight = 1499), ZG_GET(GeopotHeight), UnitKind::Level,
       NoUnit, "01499 m"},
      {"height of the level in feet", ZG_SET(r.GeopotHeight = 1000), ZG_GET(GeopotHeight),
       UnitKind::Level, " ft", "03280 ft"},
      {"characteristic", ZG_SET(r.PressTendency = 4), ZG_GET(PressTendency), kind, NoUnit,
       "Steady; resultant pressure same", "Costante; pressione risultante uguale"},
      {"rise", ZG_SET(r.PressTendencyVal = 1.2f), ZG_GET(PressTendencyVal), kind, NoUnit,
       "+1.2 hpa"},
      {"fall", ZG_SET(r.PressTendencyVal = -1.2f), ZG_GET(PressTendencyVal), kind, NoUnit,
       "-1.2 hpa"},
      {"no change", ZG_SET(r.PressTendencyVal = 0), ZG_GET(PressTendencyVal), kind, NoUnit,
       "0.0 hpa"},
      {"rise in inches", ZG_SET(r.PressTendencyVal = 10), ZG_GET(PressTendencyVal), kind, " inHg",
       "+00.30 inHg"},
  });
}

TEST(SynopReportText, WeatherAndPrecipitation) {
  constexpr auto kind = UnitKind::Level;
  ExpectValues({
      {"present", ZG_SET(r.PresentWeather = 61), ZG_GET(PresentWeather), kind, NoUnit,
       "Continuous light rain", "Leggera pioggia continua"},
      {"past", ZG_SET(r.PastWeather1 = 6), ZG_GET(PastWeather1), kind, NoUnit, "Rain", "Pioggia"},
      {"further past", ZG_SET(r.PastWeather2 = 9), ZG_GET(PastWeather2), kind, NoUnit,
       "Thunderstorms", "Temporali"},
      {"amount", ZG_SET(r.PrecipitAmount1 = 2), ZG_GET(PrecipitAmount1), kind, " ft", "002 mm"},
      {"trace", ZG_SET(r.PrecipitAmount1 = 990), ZG_GET(PrecipitAmount1), kind, NoUnit, "Trace   "},
      {"tenths", ZG_SET(r.PrecipitAmount1 = 991), ZG_GET(PrecipitAmount1), kind, NoUnit, "000 mm"},
      {"none", ZG_SET(r.PrecipitAmount1 = 0), ZG_GET(PrecipitAmount1), kind, NoUnit, ""},
      {"period", ZG_SET(r.PrecipitDuration1 = 1), ZG_GET(PrecipitDuration1), kind, NoUnit,
       "6 hours", "6 ore"},
      {"amount of section 3", ZG_SET(r.PrecipitAmount2 = 12), ZG_GET(PrecipitAmount2), kind, NoUnit,
       "012 mm"},
      {"period of a solidus", ZG_SET(r.PrecipitDuration2 = 10), ZG_GET(PrecipitDuration2), kind,
       NoUnit, "24 hours", "24 ore"},
      {"of 24 hours", ZG_SET(r.PastPrecipitAmount = 12), ZG_GET(PastPrecipitAmount), kind, NoUnit,
       "012 mm"},
      {"snow", ZG_SET(r.SnowState = 5), ZG_GET(SnowState), kind, NoUnit,
       "Loose dry snow covering less than half of ground",
       "Neve asciutta che copre meno della meta' del terreno"},
      {"depth", ZG_SET(r.SnowDepth = 5), ZG_GET(SnowDepth), kind, NoUnit, "05 cm"},
      {"more depth", ZG_SET(r.SnowDepth = 123), ZG_GET(SnowDepth), kind, NoUnit, "123 cm"},
      {"regional", ZG_SET(r.RegionalData1 = "1234"), ZG_GET(RegionalData1), kind, NoUnit, "1234"},
      {"regional of group 3", ZG_SET(r.RegionalData2 = "12"), ZG_GET(RegionalData2), kind, NoUnit,
       "12"},
      {"other", ZG_SET(r.OtherInfo = "0"), ZG_GET(OtherInfo), kind, NoUnit, "0"},
  });
}

TEST(SynopReportText, WeatherSymbol) {
  struct Row {
    std::uint8_t cover;
    std::uint8_t weather;
    const char* symbol;
  };
  const Row rows[] = {
      {0, MissingByte, "Q"},
      {1, MissingByte, "R"},
      {2, MissingByte, "R"},
      {3, MissingByte, "B"},
      {4, MissingByte, "B"},
      {5, MissingByte, "B"},
      {6, MissingByte, "S"},
      {7, MissingByte, "S"},
      {8, MissingByte, "S"},
      {9, MissingByte, ""},
      {MissingByte, MissingByte, ""},
      {8, 2, "S"},
      {8, 3, "B"},
      {0, 61, "A"},
      {MissingByte, 61, "A"},
      {MissingByte, 2, ""},
  };
  for (const Row& row : rows) {
    SynopRawData raw;
    raw.CloudCover = row.cover;
    raw.PresentWeather = row.weather;
    EXPECT_EQ(Stored(raw).data.WeatherSymb, row.symbol)
        << int{row.cover} << " " << int{row.weather};
  }
}

TEST(SynopReportText, Sea) {
  constexpr auto kind = UnitKind::Level;
  ExpectValues({
      {"ship's direction", ZG_SET(r.ShipDirection = 5), ZG_GET(ShipDirection), kind, NoUnit,
       "Sud-West", "Sud-Ovest"},
      {"ship's speed", ZG_SET(r.ShipAvSpeed = 4), ZG_GET(ShipAvSpeed), UnitKind::Speed, " mps",
       "16 to 20 KTS", "16÷20 KTS"},
      {"ship stands", ZG_SET(r.ShipAvSpeed = 0), ZG_GET(ShipAvSpeed), UnitKind::Speed, NoUnit,
       "0 kt", "0 KTS"},
      {"kind of sea temperature", ZG_SET(r.SeaTemperature = 1; r.SeaTemperType = 2),
       ZG_GET(SeaTemperType), kind, NoUnit, "Container", "Contenitore"},
      {"not without the temperature", ZG_SET(r.SeaTemperType = 2), ZG_GET(SeaTemperType), kind,
       NoUnit, ""},
      {"with the turned missing value",
       ZG_SET(r.SeaTemperature = -MissingFloat; r.SeaTemperType = 1), ZG_GET(SeaTemperType), kind,
       NoUnit, "Immission", "Immissione"},
      {"kind of wet bulb", ZG_SET(r.WetTemperature = 1; r.WetTemperType = 5), ZG_GET(WetTemperType),
       kind, NoUnit, "Calculated", "Calcolata"},
      {"not without the wet bulb", ZG_SET(r.WetTemperType = 5), ZG_GET(WetTemperType), kind, NoUnit,
       ""},
      {"period of waves", ZG_SET(r.WavePeriod = 3), ZG_GET(WavePeriod), kind, NoUnit, "3 sec"},
      {"height of waves", ZG_SET(r.WaveHeight = 2.5f), ZG_GET(WaveHeight), kind, " ft", "2.5 m"},
      {"no waves", ZG_SET(r.WaveHeight = 0), ZG_GET(WaveHeight), kind, NoUnit, "0 m"},
      {"first swell, period", ZG_SET(r.WavePeriodPredom = 6), ZG_GET(WavePeriodPredom), kind,
       NoUnit, "6 sec"},
      {"first swell, height", ZG_SET(r.WaveHeightPredom = 5.5f), ZG_GET(WaveHeightPredom), kind,
       NoUnit, "5.5 m"},
      {"first swell, direction", ZG_SET(r.WaveDirPredom = 5), ZG_GET(WaveDirPredom), kind, NoUnit,
       "50 deg"},
      {"second swell, period", ZG_SET(r.WavePeriodSecond = 7), ZG_GET(WavePeriodSecond), kind,
       NoUnit, "7 sec"},
      {"second swell, height", ZG_SET(r.WaveHeightSecond = 4), ZG_GET(WaveHeightSecond), kind,
       NoUnit, "4 m"},
      {"second swell, direction", ZG_SET(r.WaveDirSecond = 15), ZG_GET(WaveDirSecond), kind, NoUnit,
       "150 deg"},
      {"ice accretion", ZG_SET(r.ShipIceAccretion = 1), ZG_GET(ShipIceAccretion), kind, NoUnit,
       "Spray of water", "Spruzzi di acqua"},
      {"its thickness", ZG_SET(r.ThicknessOfIce = 20), ZG_GET(ThicknessOfIce), kind, " ft",
       "20 mm"},
      {"its rate", ZG_SET(r.RateIceAccretion = 3), ZG_GET(RateIceAccretion), kind, NoUnit,
       "Rapid Growth", "Accrescimento rapido"},
      {"ice concentration", ZG_SET(r.SeaIceConcentration = 1), ZG_GET(SeaIceConcentration), kind,
       NoUnit, "Present but not reportable", "Presente ma non riportabile"},
      {"ice stage", ZG_SET(r.SeaIceStage = 4), ZG_GET(SeaIceStage), kind, NoUnit, "Stadium 4",
       "Stadio 4"},
      {"ice edge", ZG_SET(r.SeaIceBearingEdge = 2), ZG_GET(SeaIceBearingEdge), kind, NoUnit, "East",
       "Est"},
      {"ice of land", ZG_SET(r.IceOfLandOrigin = 0), ZG_GET(IceOfLandOrigin), kind, NoUnit,
       "Not present", "Non Presente"},
      {"ice situation", ZG_SET(r.IceSituation = 9), ZG_GET(IceSituation), kind, NoUnit,
       "Jammed Ship, in worsening", "Nave Bloccata, in peggioramento"},
  });
}

// Each code stands beside its text.
TEST(SynopReportText, Codes) {
  struct Row {
    const char* name;
    std::uint8_t SynopRawData::*raw;
    std::uint8_t SynopData::*code;
  };
  const Row rows[] = {
      {"StationType", &Raw::StationType, &Data::StationTypeCode},
      {"LowestCloud", &Raw::LowestCloud, &Data::LowestCloudCode},
      {"Visibility", &Raw::Visibility, &Data::VisibilityCode},
      {"CloudCover", &Raw::CloudCover, &Data::CloudCoverCode},
      {"PressTendency", &Raw::PressTendency, &Data::PressTendencyCode},
      {"PrecipitDuration1", &Raw::PrecipitDuration1, &Data::PrecipitDuration1Code},
      {"PresentWeather", &Raw::PresentWeather, &Data::PresentWeatherCode},
      {"PastWeather1", &Raw::PastWeather1, &Data::PastWeather1Code},
      {"PastWeather2", &Raw::PastWeather2, &Data::PastWeather2Code},
      {"CloudAmount", &Raw::CloudAmount, &Data::CloudAmountCode},
      {"LowCloudType", &Raw::LowCloudType, &Data::LowCloudTypeCode},
      {"MiddleCloudType", &Raw::MiddleCloudType, &Data::MiddleCloudTypeCode},
      {"HighCloudType", &Raw::HighCloudType, &Data::HighCloudTypeCode},
      {"SnowState", &Raw::SnowState, &Data::SnowStateCode},
      {"ShipDirection", &Raw::ShipDirection, &Data::ShipDirectionCode},
      {"ShipAvSpeed", &Raw::ShipAvSpeed, &Data::ShipAvSpeedCode},
      {"ShipIceAccretion", &Raw::ShipIceAccretion, &Data::ShipIceAccretionCode},
      {"RateIceAccretion", &Raw::RateIceAccretion, &Data::RateIceAccretionCode},
      {"SeaIceConcentration", &Raw::SeaIceConcentration, &Data::SeaIceConcentrationCode},
      {"SeaIceStage", &Raw::SeaIceStage, &Data::SeaIceStageCode},
      {"SeaIceBearingEdge", &Raw::SeaIceBearingEdge, &Data::SeaIceBearingEdgeCode},
      {"IceOfLandOrigin", &Raw::IceOfLandOrigin, &Data::IceOfLandOriginCode},
      {"IceSituation", &Raw::IceSituation, &Data::IceSituationCode},
      {"SeaTemperType", &Raw::SeaTemperType, &Data::SeaTemperTypeCode},
      {"WetTemperType", &Raw::WetTemperType, &Data::WetTemperTypeCode},
  };
  for (const Row& row : rows) {
    SynopRawData raw;
    raw.SeaTemperature = raw.WetTemperature = 1;
    EXPECT_EQ(Stored(raw).data.*row.code, MissingByte) << row.name;
    raw.*row.raw = 3;
    EXPECT_EQ(Stored(raw).data.*row.code, 3) << row.name;
    for (const Row& other : rows) {
      if (other.code != row.code) {
        EXPECT_EQ(Stored(raw).data.*other.code, MissingByte) << row.name << " sets " << other.name;
      }
    }
  }
  SynopRawData raw;
  EXPECT_EQ(Stored(raw).data.PrecipitAmount1Code, MissingShort);
  raw.PrecipitAmount1 = 990;
  EXPECT_EQ(Stored(raw).data.PrecipitAmount1Code, 990);
  // A kind of temperature without the temperature has no code either.
  raw.SeaTemperType = raw.WetTemperType = 3;
  EXPECT_EQ(Stored(raw).data.SeaTemperTypeCode, MissingByte);
  EXPECT_EQ(Stored(raw).data.WetTemperTypeCode, MissingByte);
}

TEST(SynopReportText, Head) {
  SynopRawData raw;
  raw.Msg = "AAXX 12001 16242=";
  raw.FilterFlags = 1 << 4;
  raw.Station = DenverStation();
  raw.Station.Type = "AAXX";
  const Stored stored(raw);
  EXPECT_EQ(stored.data.Msg, "AAXX 12001 16242=");
  EXPECT_EQ(stored.data.FilterFlags, 16);
  EXPECT_EQ(stored.data.Station.WMOIndex(), 72565);
  EXPECT_EQ(stored.data.Station.Country(), "United States [CO]");
  EXPECT_EQ(stored.data.Station.LatPosition(), "39.50N");
  EXPECT_EQ(stored.data.Station.LongPosition(), "104.40W");
  EXPECT_EQ(stored.data.Station.Quadrant(), "North-West");
  EXPECT_EQ(stored.data.Station.AddedInfo, "RRA");
  raw.Station.AddedInfo = "Unk";
  EXPECT_EQ(Stored(raw).data.Station.AddedInfo, "");
}

TEST(SynopReportText, StationKind) {
  struct Row {
    const char* type;
    const char* station;
    std::int32_t kind;
  };
  const Row rows[] = {
      {"AAXX", "16242", 1}, {"AAXX", "DBBH", 1}, {"METAR", "LIRF", 1}, {"", "DBBH", 1},
      {"BBXX", "DBBH", 2},  {"BBXX", "9CAA", 2}, {"BBXX", "62001", 3}, {"BBXX", "62A01", 3},
      {"BBXX", "A2001", 2}, {"BBXX", "", 3},
  };
  for (const Row& row : rows) {
    SynopRawData raw;
    raw.Station.Type = row.type;
    raw.Station.Station = row.station;
    EXPECT_EQ(Stored(raw).data.Station.StationKind, row.kind) << row.type << " " << row.station;
  }
}

TEST(SynopReportText, HumidityFlag) {
  constexpr std::int32_t bit13 = 1 << 13;
  SynopRawData raw;
  EXPECT_EQ(Stored(raw).data.FilterFlags, 0);
  raw.Humidity = 75;
  EXPECT_EQ(Stored(raw).data.FilterFlags, bit13);
  raw.DewPoint = 10;
  EXPECT_EQ(Stored(raw).data.FilterFlags, 0);
}

// Nothing reported, nothing shown.
TEST(SynopReportText, MissingValuesHaveNoText) {
  const Stored stored(SynopRawData{});
  const SynopData& d = stored.data;
  for (std::string_view text : {d.Msg,
                                d.TimeOfObservation,
                                d.IssueTime,
                                d.PrecipInd,
                                d.StationType,
                                d.LowestCloud,
                                d.Visibility,
                                d.CloudCover,
                                d.WindDirection,
                                d.WindSpeed,
                                d.DewPoint,
                                d.Humidity,
                                d.Temperature,
                                d.StatPressure,
                                d.SeaLevPressure,
                                d.GeopotHeight,
                                d.GeopotPressure,
                                d.PressTendency,
                                d.PressTendencyVal,
                                d.PrecipitAmount1,
                                d.PrecipitDuration1,
                                d.PresentWeather,
                                d.WeatherSymb,
                                d.PastWeather1,
                                d.PastWeather2,
                                d.CloudAmount,
                                d.LowCloudType,
                                d.MiddleCloudType,
                                d.HighCloudType,
                                d.MaxTemperature,
                                d.MinTemperature,
                                d.RegionalData1,
                                d.RegionalData2,
                                d.SnowState,
                                d.SnowDepth,
                                d.OtherInfo,
                                d.PrecipitAmount2,
                                d.PrecipitDuration2,
                                d.PastPrecipitAmount,
                                d.SupplInfo,
                                d.WindAt10mt,
                                d.WindAt20mt,
                                d.MaxWindSpeedTime,
                                d.MaxWindSpeed,
                                d.MaxWindDir,
                                d.ContinueWindTime,
                                d.ShipDirection,
                                d.ShipAvSpeed,
                                d.SeaTemperature,
                                d.SeaTemperType,
                                d.WavePeriod,
                                d.WaveHeight,
                                d.WavePeriodPredom,
                                d.WaveHeightPredom,
                                d.WaveDirPredom,
                                d.WavePeriodSecond,
                                d.WaveHeightSecond,
                                d.WaveDirSecond,
                                d.ShipIceAccretion,
                                d.ThicknessOfIce,
                                d.RateIceAccretion,
                                d.WetTemperature,
                                d.WetTemperType,
                                d.SeaIceConcentration,
                                d.SeaIceStage,
                                d.SeaIceBearingEdge,
                                d.IceOfLandOrigin,
                                d.IceSituation}) {
    EXPECT_EQ(text, "");
  }
  for (std::size_t i = 0; i < SynopCloudLayers; ++i) {
    EXPECT_EQ(d.CloudCovLayer[i], "");
    EXPECT_EQ(d.TypeOfCloud[i], "");
    EXPECT_EQ(d.HeighOfCloud[i], "");
  }
  for (std::size_t i = 0; i < ContinuousWinds; ++i) {
    EXPECT_EQ(d.CountinuousWindDir[i], "");
    EXPECT_EQ(d.CountinuousWindSpeed[i], "");
  }
}

// Texts are shared by the records of a store: the same number by another rule is another text.
TEST(SynopReportText, SharedTexts) {
  TextUtility texts;
  const ConversionUtility conversion(texts);
  MessageStore<SynopData> store;
  store.Reset(5);
  SynopRawData raw;
  raw.WindSpeed = raw.WindDirection = raw.MaxWindDir = raw.MaxWindSpeed = raw.SupplInfo = 10;
  raw.WaveDirPredom = raw.WavePeriod = raw.ThicknessOfIce = 10;
  raw.SnowDepth = raw.PrecipitAmount1 = raw.WindAt10mt = raw.GeopotHeight = 10;
  raw.Temperature = raw.StatPressure = raw.PressTendencyVal = raw.WaveHeight = 10;
  raw.Humidity = 10;
  const char* const winds[] = {"10.0 mps (Estim.)", "10.0 mps (Anem.)", "", "10.0 KTS (Estim.)",
                               "10.0 KTS (Anem.)"};
  for (std::uint8_t unit = 0; unit < 5; ++unit) {
    raw.WindUnitInd = unit;
    const SynopData& record = StoreSynopRecord(raw, -1, {texts, conversion}, store);
    EXPECT_EQ(record.WindSpeed, winds[unit]);
    EXPECT_EQ(record.WindDirection, "100 deg");
    EXPECT_EQ(record.MaxWindDir, "100 deg");
    EXPECT_EQ(record.WaveDirPredom, "100 deg");
    EXPECT_EQ(record.MaxWindSpeed, "10.0 mps");
    EXPECT_EQ(record.SupplInfo, "10.0 mps");
    EXPECT_EQ(record.WindAt10mt, "01.0 mps");
    EXPECT_EQ(record.WavePeriod, "10 sec");
    EXPECT_EQ(record.ThicknessOfIce, "10 mm");
    EXPECT_EQ(record.SnowDepth, "10 cm");
    EXPECT_EQ(record.PrecipitAmount1, "010 mm");
    EXPECT_EQ(record.GeopotHeight, "00010 m");
    EXPECT_EQ(record.Temperature, "10.0 °C");
    EXPECT_EQ(record.StatPressure, "10.0 hpa");
    EXPECT_EQ(record.PressTendencyVal, "+10.0 hpa");
    EXPECT_EQ(record.WaveHeight, "10 m");
    EXPECT_EQ(record.DewPoint, "10 %");
  }
}

}  // namespace
}  // namespace zg
