#include "views/GlobalViewTable.h"

#include <gtest/gtest.h>

#include <set>

#include "text/TextRules.h"
#include "views/ViewTestSupport.h"

namespace zg::test {
namespace {

using enum Alignment;

struct FieldRow {
  std::size_t index;
  std::string_view key;
  std::string_view italian;
  std::string_view english;
  int width;
  Alignment alignment;
};

// clang-format off
constexpr FieldRow SynopRows[] = {
    {0, "StationId", "Stazione", "StationId", 2000, Left},
    {1, "StationHT", "Altit. Staz.", "Stat. Altit.", 550, Right},
    {2, "SensorHT", "Altit. Sens.", "Sensor Altit.", 550, Right},
    {3, "Country", "Nazione", "Country", 1600, Left},
    {4, "IssueTime", "Ora Msg", "Issue Time", 1000, Left},
    {5, "TimeOfObservation", "Ora Osserv.", "Observ. Time", 800, Left},
    {6, "MsgId", "MsgId", "MsgId", 980, Left},
    {7, "Sender", "Mittente", "Sender", 720, Left},
    {8, "Type", "Tipo", "Type", 670, Left},
    {9, "LatPosition", "Lat", "Lat", 780, Left},
    {10, "LongPosition", "Long", "Long", 850, Left},
    {11, "LowestCloud", "Nuvole Basse", "Lowest Cloud", 1390, Right},
    {12, "Visibility", "Visibilita'", "Visibility", 810, Right},
    {13, "CloudCover", "Copertura", "Cloud Cover", 870, Right},
    {14, "WindDirection", "Direz. Vento", "Wind Direct.", 800, Right},
    {15, "WindSpeed", "Veloc. Vento", "Wind Speed", 900, Right},
    {16, "Humidity", "Umidita'", "Humidity", 730, Right},
    {17, "DewPoint", "DewPoint", "DewPoint", 880, Right},
    {18, "Temperature", "Temperatura", "Temperature", 810, Right},
    {19, "StatPressure", "Pressione in sito", "Stat Pressure", 950, Right},
    {20, "SeaLevPressure", "Press. Liv. Mare", "Sea Lev. Press.", 950, Right},
    {21, "GeopotHeight", "Alt. Geopot.", "Geopot. Height", 950, Right},
    {22, "GeopotPressure", "Press. Geopot", "Geopot. Press.", 950, Right},
    {23, "PressTendency", "Tendenza", "Press. Tendency", 1100, Left},
    {24, "PressTendencyVal", "Val. Tendenza", "Press. Tend. Value", 840, Right},
    {25, "PrecipitAmount1", "Precipit. (1)", "Prec. Amount (1)", 800, Right},
    {26, "PrecipitDuration1", "Prec. Durata (1)", "Prec. Durat. (1)", 800, Right},
    {27, "PresentWeather", "Tempo Presente", "Present Weather", 2000, Left},
    {28, "PastWeather1", "Tempo Pass (24h)", "Past Weather (24h)", 1700, Left},
    {29, "PastWeather2", "Tempo Pass (12h)", "Past Weather (12h)", 1700, Left},
    {30, "CloudAmount", "Q.ta Nuvole", "Cloud Amount", 900, Right},
    {31, "LowCloudType", "Nuv. Basse", "Low Cloud Type", 1200, Left},
    {32, "MiddleCloudType", "Nuv. Medie", "Middle Cloud Type", 1200, Left},
    {33, "HighCloudType", "Nuv. Alte", "High Cloud Type", 1200, Left},
    {34, "MaxTemperature", "Max Temper.", "Max Temperature", 800, Right},
    {35, "MinTemperature", "Min Temper.", "MinTemperature", 800, Right},
    {36, "SnowState", "Neve", "Snow State", 1200, Right},
    {37, "SnowDepth", "Altezza Neve", "Snow Depth", 700, Right},
    {38, "PrecipitAmount2", "Precipit. (2)", "Prec. Amount (2)", 800, Right},
    {39, "PrecipitDuration2", "Prec. Durata (2)", "Prec. Durat. (2)", 800, Right},
    {40, "PastPrecipitAmount", "Prec. Passate", "Past Precipit.", 800, Right},
    {41, "CloudCovLayer0", "Nuv. Strato Low", "Cloud Layer Low", 850, Right},
    {42, "TypeOfCloud0", "Tipo Strato Low", "Type Layer Low", 900, Left},
    {43, "HeighOfCloud0", "Alt. Strato Low", "Heigh Layer Low", 780, Right},
    {44, "CloudCovLayer1", "Nuv. Strato 3/8", "Cloud Layer 3/8", 850, Right},
    {45, "TypeOfCloud1", "Tipo Strato 3/8", "Type Layer 3/8", 900, Left},
    {46, "HeighOfCloud1", "Alt. Strato 3/8", "Heigh Layer 3/8", 780, Right},
    {47, "CloudCovLayer2", "Nuv. Strato 5/8", "Cloud Layer 5/8", 850, Right},
    {48, "TypeOfCloud2", "Tipo Strato 5/8", "Type Layer 5/8", 900, Left},
    {49, "HeighOfCloud2", "Alt. Strato 5/8", "Heigh Layer 5/8", 780, Right},
    {50, "CloudCovLayer3", "Nuv. altri Strati", "Cloud Layer Oth.", 850, Right},
    {51, "TypeOfCloud3", "Tipo altri Strati", "Type Layer Oth.", 900, Left},
    {52, "HeighOfCloud3", "Alt. altri Strati", "Type Layer Oth", 780, Right},
    {53, "SupplInfo", "Raffiche Max.", "Peak Wind Gust", 850, Left},
    {54, "Quadrant", "Quadrante", "Quadrant", 1000, Left},
    {55, "ShipDirection", "Direz. Nave", "Ship Direct.", 750, Right},
    {56, "ShipAvSpeed", "Veloc. Nave", "Ship AvSpeed", 850, Right},
    {57, "SeaTemperature", "Temper. Mare", "Sea Temper.", 800, Right},
    {58, "SeaTemperType", "Temper. Type", "Sea Temp. Type", 800, Right},
    {59, "WavePeriod", "Periodo Onde", "Wave Period", 800, Right},
    {60, "WaveHeight", "Alt. Onde", "Wave Height", 800, Right},
    {61, "WavePeriodPredom", "Periodo Onda Pred.", "Wave Per. Predom.", 800, Right},
    {62, "WaveHeightPredom", "Alt. Onda Pred.", "Wave Height Predom.", 800, Right},
    {63, "WaveDirPredom", "Direz. Onda Pred.", "Wave Dir. Predom.", 800, Right},
    {64, "WavePeriodSecond", "Periodo Onda Sec.", "Wave Per. Second.", 800, Right},
    {65, "WaveHeightSecond", "Alt. Onda Sec.", "Wave Height Second.", 800, Right},
    {66, "WaveDirSecond", "Direz. Onda Sec.", "Wave Dir. Second.", 800, Right},
    {67, "ShipIceAccretion", "Accresc. Ghiaccio", "Ice Accretion", 800, Left},
    {68, "ThicknessOfIce", "Spessore Ghiaccio", "Ice Thickness", 1000, Left},
    {69, "RateIceAccretion", "Veloc. Accresc.", "Rate Accretion", 800, Left},
    {70, "WetTemperature", "Temper. Umida", "Wet Temper.", 800, Right},
    {71, "WetTemperType", "Temp. Umida Tipo", "Wet Temp. Type", 800, Right},
    {72, "SeaIceConcentration", "Concentr. Ghiaccio", "Ice Concentr.", 800, Left},
    {73, "SeaIceStage", "Stadio Ghiaccio", "Ice Stage", 800, Left},
    {74, "SeaIceBearingEdge", "Direz. Cresta", "Ice Bearing Edge", 800, Left},
    {75, "IceOfLandOrigin", "Origine Ghiaccio", "Ice Origin", 800, Left},
    {76, "IceSituation", "Situatione Ghiaccio", "Ice Situation", 800, Left},
    {77, "RecordIndex", "Indice", "Record Index", 600, Right},
    {78, "InsertTime", "Ora Inserim.", "Insert Time", 0, Left},
};
constexpr FieldRow MetarRows[] = {
    {0, "StationId", "Stazione", "StationId", 2000, Left},
    {1, "StationHT", "Altit. Staz.", "Stat. Altit.", 550, Right},
    {2, "SensorHT", "Altit. Sens.", "Sensor Altit.", 550, Right},
    {3, "Country", "Nazione", "Country", 1600, Left},
    {4, "IssueTime", "Ora Msg", "Issue Time", 1000, Left},
    {5, "TimeOfObservation", "Ora Osserv.", "Observ. Time", 1000, Left},
    {6, "MsgId", "MsgId", "MsgId", 900, Left},
    {7, "Sender", "Mittente", "Sender", 800, Left},
    {8, "Type", "Tipo", "Type", 900, Left},
    {9, "LatPosition", "Lat", "Lat", 780, Left},
    {10, "LongPosition", "Long", "Long", 850, Left},
    {11, "WindSpeed", "Dir./Veloc. Vento", "Wind Dir/Speed", 1390, Left},
    {12, "WindDirRange", "Range Dir. Vento", "Wind Dir Range", 900, Left},
    {13, "Gust", "Raffiche Vento", "Gust", 900, Right},
    {14, "Temperature", "Temperatura", "Temperature", 800, Right},
    {15, "Dewpoint", "DewPoint", "DewPoint", 800, Right},
    {16, "Weather1", "Tempo Presente (1)", "Weather (1)", 1300, Left},
    {17, "Weather2", "Tempo Presente (2)", "Weather (2)", 1300, Left},
    {18, "Weather3", "Tempo Presente (3)", "Weather (3)", 1300, Left},
    {19, "WindShearLevel", "Liv. di Wind Shear", "Wind Shear Level", 1100, Right},
    {20, "WindShearSpeed", "Dir/Veloc. Wind Shear", "Wind Shear Dir/Speed", 1200, Right},
    {21, "AltimeterPressure", "Settaggio Altimetro", "Altimeter Pressure", 1000, Right},
    {22, "SeaPressureLevel", "Press. Liv. Mare", "Sea Pressure Level", 1000, Right},
    {23, "VerticalVisibility", "Visibil. Vertic.", "Vertical Visibility", 1000, Right},
    {24, "OrizVisibility", "Visibil. Oriz.", "Oriz. Visibility", 1000, Right},
    {25, "CloudCover1", "Nuv. Strato 1", "Cloud Cover (1)", 500, Right},
    {26, "CloudType1", "Tipo Strato 1", "Cloud Type (1)", 1100, Left},
    {27, "CloudHeigh1", "Liv. Strato 1", "Cloud Heigh (1)", 900, Right},
    {28, "CloudCover2", "Nuv. Strato 2", "Cloud Cover (2)", 500, Right},
    {29, "CloudType2", "Tipo Strato 2", "Cloud Type (2)", 1100, Left},
    {30, "CloudHeigh2", "Liv. Strato 2", "Cloud Heigh (2)", 900, Right},
    {31, "CloudCover3", "Nuv. Strato 3", "Cloud Cover (3)", 500, Right},
    {32, "CloudType3", "Tipo Strato 3", "Cloud Type (3)", 1100, Left},
    {33, "CloudHeigh3", "Liv. Strato 3", "Cloud Heigh (3)", 900, Right},
    {34, "RVRRunway", "RVR Runway", "RVR Runway", 1000, Left},
    {35, "RVRVisibility", "RVR Visibilita'", "RVR Visibility", 1100, Right},
    {36, "RVRVisibilitymax", "RVR Visib. Max", "RVR Visib. Max", 1100, Right},
    {37, "ForecastTemperature1", "Temper. Prevista (1)", "Forecast Temper. (1)", 1200, Left},
    {38, "ForecastTemperature2", "Temper. Prevista (2)", "Forecast Temper. (2)", 1200, Left},
    {39, "RecordIndex", "Indice", "Record Index", 600, Right},
    {40, "InsertTime", "Ora Inserim.", "Insert Time", 0, Left},
};
// clang-format on

void ExpectFields(const GlobalViewTable& table, std::span<const FieldRow> rows) {
  ASSERT_EQ(table.Fields.size(), rows.size());
  for (const FieldRow& row : rows) {
    SCOPED_TRACE(row.key);
    const GlobalViewField& field = table.Field(row.index);
    EXPECT_EQ(field.Key, row.key);
    EXPECT_EQ(field.Title.Italian, row.italian);
    EXPECT_EQ(field.Title.English, row.english);
    EXPECT_EQ(field.ColumnWidth, row.width);
    EXPECT_EQ(field.Alignment, row.alignment);
  }
}

TEST(GlobalViewTable, SynopFields) { ExpectFields(SynopGlobalView, SynopRows); }
TEST(GlobalViewTable, MetarFields) { ExpectFields(MetarGlobalView, MetarRows); }

TEST(GlobalViewTable, KeysAndTitlesTellFieldsApart) {
  for (const GlobalViewTable* table : {&SynopGlobalView, &MetarGlobalView}) {
    std::set<std::string_view> keys, italian, english;
    for (const GlobalViewField& field : table->Fields) {
      EXPECT_TRUE(keys.insert(field.Key).second) << field.Key;
      EXPECT_TRUE(italian.insert(field.Title.Italian).second) << field.Key;
      EXPECT_TRUE(english.insert(field.Title.English).second) << field.Key;
    }
  }
}

TEST(GlobalViewTable, BeyondTheLastFieldIsNothing) {
  ViewFixture fixture;
  fixture.AddSynop("Roma");
  std::string scratch = "old";
  const GlobalViewField& field = SynopGlobalView.Field(79);
  EXPECT_EQ(field.Key, "");
  EXPECT_EQ(field.Title.English, "");
  EXPECT_EQ(field.ColumnWidth, 0);
  EXPECT_EQ(SynopGlobalView.Text(79, {fixture.Stores, 0, fixture.Texts}, scratch), "");
}

TEST(GlobalViewTable, ARecordThatIsNotThereHasNoText) {
  const ViewFixture fixture;
  std::string scratch;
  for (std::size_t field = 0; field < SelectableFields; ++field) {
    EXPECT_EQ(SynopGlobalView.Text(field, {fixture.Stores, 0, fixture.Texts}, scratch), "");
    EXPECT_EQ(MetarGlobalView.Text(field, {fixture.Stores, 0, fixture.Texts}, scratch), "");
  }
}

TEST(GlobalViewTable, TheEmptyRecordShowsNothingButItsNumberAndTheBlanksOfJoinedFields) {
  ViewFixture fixture;
  fixture.AddSynop("", "");
  fixture.AddMetar("", "");
  std::string scratch;
  for (std::size_t field = 0; field < SelectableFields; ++field) {
    EXPECT_EQ(SynopGlobalView.Text(field, {fixture.Stores, 0, fixture.Texts}, scratch),
              field == 77 ? "001" : "")
        << field;
    const bool joined = field == 11 || field == 19 || field == 24;
    EXPECT_EQ(MetarGlobalView.Text(field, {fixture.Stores, 0, fixture.Texts}, scratch),
              field == 39 ? "001"
              : joined    ? "   "
                          : "")
        << field;
  }
}

// The keys and texts of all fields of the only record that are not empty, without its number.
std::string ShownFields(const GlobalViewTable& table, const ViewFixture& fixture) {
  std::string shown;
  std::string scratch;
  for (const GlobalViewField& field : table.Fields) {
    if (field.Key == "RecordIndex") continue;
    const std::size_t index = FieldIndex(table, field.Key);
    const std::string_view text = table.Text(index, {fixture.Stores, 0, fixture.Texts}, scratch);
    if (Trim(text).empty()) continue;
    if (!shown.empty()) shown += "; ";
    shown.append(field.Key).append("=").append(text);
  }
  return shown;
}

TEST(GlobalViewTable, TextsOfTheStation) {
  struct Row {
    std::string_view key;
    std::string_view StationPlace::*text;
  };
  const Row rows[] = {
      {"StationId", &StationPlace::Station},       {"StationHT", &StationPlace::StationHT},
      {"SensorHT", &StationPlace::SensorHT},       {"Country", &StationPlace::Country},
      {"LatPosition", &StationPlace::LatPosition}, {"LongPosition", &StationPlace::LongPosition}};
  for (const Row& row : rows) {
    ViewFixture fixture;
    fixture.AddSynop("", "");
    fixture.AddMetar("", "");
    for (StationPlace& place : fixture.Places) place.*row.text = "x";
    EXPECT_EQ(ShownFields(SynopGlobalView, fixture), std::string(row.key) + "=x");
    EXPECT_EQ(ShownFields(MetarGlobalView, fixture), std::string(row.key) + "=x");
  }
  ViewFixture fixture;
  fixture.AddSynop("", "").Station = {.Place = &NoPlace,
                                      .MsgId = "SMIT01",
                                      .Type = "AAXX",
                                      .Sender = "LIIB",
                                      .AddedInfo = "CCA",
                                      .StationKind = 1};
  fixture.AddMetar("", "").Station = {.Place = &NoPlace,
                                      .MsgId = "SAIT31",
                                      .Type = "METAR",
                                      .Sender = "LIIB",
                                      .AddedInfo = "CCA",
                                      .StationKind = 1};
  EXPECT_EQ(ShownFields(SynopGlobalView, fixture), "MsgId=SMIT01; Sender=LIIB; Type=AAXX");
  EXPECT_EQ(ShownFields(MetarGlobalView, fixture), "MsgId=SAIT31; Sender=LIIB; Type=METAR");
}

TEST(GlobalViewTable, TheQuadrantIsAFieldOfSynopOnly) {
  ViewFixture fixture;
  fixture.AddSynop("", "");
  fixture.AddMetar("", "");
  for (StationPlace& place : fixture.Places) place.Quadrant = "North-Est";
  EXPECT_EQ(ShownFields(SynopGlobalView, fixture), "Quadrant=North-Est");
  EXPECT_EQ(ShownFields(MetarGlobalView, fixture), "");
}

struct SynopTextRow {
  std::string_view key;
  std::string_view SynopData::*text;
};

TEST(GlobalViewTable, TextsOfSynop) {
#define ZG_SAME(field) \
  { #field, &SynopData::field }
  constexpr SynopTextRow rows[] = {
      ZG_SAME(IssueTime),
      ZG_SAME(TimeOfObservation),
      ZG_SAME(Visibility),
      ZG_SAME(WindDirection),
      ZG_SAME(WindSpeed),
      ZG_SAME(Humidity),
      ZG_SAME(DewPoint),
      ZG_SAME(Temperature),
      ZG_SAME(StatPressure),
      ZG_SAME(SeaLevPressure),
      ZG_SAME(GeopotHeight),
      ZG_SAME(GeopotPressure),
      ZG_SAME(PressTendency),
      ZG_SAME(PressTendencyVal),
      ZG_SAME(PrecipitAmount1),
      ZG_SAME(PrecipitDuration1),
      ZG_SAME(PresentWeather),
      ZG_SAME(PastWeather1),
      ZG_SAME(PastWeather2),
      ZG_SAME(CloudAmount),
      ZG_SAME(LowCloudType),
      ZG_SAME(MiddleCloudType),
      ZG_SAME(HighCloudType),
      ZG_SAME(MaxTemperature),
      ZG_SAME(MinTemperature),
      ZG_SAME(SnowState),
      ZG_SAME(SnowDepth),
      ZG_SAME(PrecipitAmount2),
      ZG_SAME(PrecipitDuration2),
      ZG_SAME(PastPrecipitAmount),
      ZG_SAME(SupplInfo),
      ZG_SAME(ShipDirection),
      ZG_SAME(ShipAvSpeed),
      ZG_SAME(SeaTemperature),
      ZG_SAME(SeaTemperType),
      ZG_SAME(WavePeriod),
      ZG_SAME(WaveHeight),
      ZG_SAME(WavePeriodPredom),
      ZG_SAME(WaveHeightPredom),
      ZG_SAME(WaveDirPredom),
      ZG_SAME(WavePeriodSecond),
      ZG_SAME(WaveHeightSecond),
      ZG_SAME(WaveDirSecond),
      ZG_SAME(ShipIceAccretion),
      ZG_SAME(ThicknessOfIce),
      ZG_SAME(RateIceAccretion),
      ZG_SAME(WetTemperature),
      ZG_SAME(WetTemperType),
      ZG_SAME(SeaIceConcentration),
      ZG_SAME(SeaIceStage),
      ZG_SAME(SeaIceBearingEdge),
      ZG_SAME(IceOfLandOrigin),
      ZG_SAME(IceSituation),
  };
#undef ZG_SAME
  for (const SynopTextRow& row : rows) {
    ViewFixture fixture;
    fixture.AddSynop("", "").*row.text = "x";
    EXPECT_EQ(ShownFields(SynopGlobalView, fixture), std::string(row.key) + "=x");
  }
}

TEST(GlobalViewTable, CloudLayersOfSynop) {
  ViewFixture fixture;
  SynopData& record = fixture.AddSynop("", "");
  record.CloudCovLayer = {"1", "4", "7", "10"};
  record.TypeOfCloud = {"2", "5", "8", "11"};
  record.HeighOfCloud = {"3", "6", "9", "12"};
  EXPECT_EQ(ShownFields(SynopGlobalView, fixture),
            "CloudCovLayer0=1; TypeOfCloud0=2; HeighOfCloud0=3; "
            "CloudCovLayer1=4; TypeOfCloud1=5; HeighOfCloud1=6; "
            "CloudCovLayer2=7; TypeOfCloud2=8; HeighOfCloud2=9; "
            "CloudCovLayer3=10; TypeOfCloud3=11; HeighOfCloud3=12");
}

TEST(GlobalViewTable, CodesOfSynopAreShownByTheirShortTexts) {
  ViewFixture fixture;
  SynopData& record = fixture.AddSynop("", "");
  record.LowestCloud = "00600 to 01000 m";
  record.LowestCloudCode = 5;
  record.CloudCover = "Cloud cover";
  record.CloudCoverCode = 9;
  EXPECT_EQ(ShownFields(SynopGlobalView, fixture), "LowestCloud=600÷1000; CloudCover=Obscured");
  fixture.Texts.SetLanguage(0);
  EXPECT_EQ(ShownFields(SynopGlobalView, fixture),
            "LowestCloud=600÷1000; CloudCover=" + std::string(fixture.Texts.CloudCoverShort(9)));
}

TEST(GlobalViewTable, TextsOfSynopThatNoFieldShows) {
  ViewFixture fixture;
  SynopData& record = fixture.AddSynop("", "");
  record.Msg = record.PrecipInd = record.StationType = record.LowestCloud = record.CloudCover = "x";
  record.WeatherSymb = record.RegionalData1 = record.RegionalData2 = record.OtherInfo = "x";
  record.CountinuousWindDir.fill("x");
  record.CountinuousWindSpeed.fill("x");
  record.WindAt10mt = record.WindAt20mt = record.MaxWindSpeedTime = record.MaxWindSpeed = "x";
  record.MaxWindDir = record.ContinueWindTime = "x";
  EXPECT_EQ(ShownFields(SynopGlobalView, fixture), "");
}

struct MetarTextRow {
  std::string_view key;
  std::string_view MetarData::*text;
};

TEST(GlobalViewTable, TextsOfMetar) {
  constexpr MetarTextRow rows[] = {
      {"IssueTime", &MetarData::BulletinTime},
      {"TimeOfObservation", &MetarData::ObservationTime},
      {"Temperature", &MetarData::Temperature},
      {"Dewpoint", &MetarData::Dewpoint},
      {"WindShearSpeed", &MetarData::WindShearSpeed},
      {"VerticalVisibility", &MetarData::VerticalVisibility},
      {"RVRRunway", &MetarData::RVRRunway},
      {"RVRVisibility", &MetarData::RVRVisibility},
      {"RVRVisibilitymax", &MetarData::RVRVisibilitymax},
  };
  for (const MetarTextRow& row : rows) {
    ViewFixture fixture;
    fixture.AddMetar("", "").*row.text = "x";
    EXPECT_EQ(ShownFields(MetarGlobalView, fixture), std::string(row.key) + "=x");
  }
}

TEST(GlobalViewTable, TextsOfAMetarReport) {
  MetarSection sections[2];
  MetarSection& report = sections[0];
  report.WindDirRange = "350-040 deg";
  report.Gust = "28 kt";
  report.AltimeterPressure = "1015.0 hpa";
  report.SeaPressureLevel = "1014.8 hpa";
  report.CloudCover = {"1", "4", "7"};
  report.CloudType = {"2", "5", "8"};
  report.CloudHeigh = {"3", "6", "9"};
  report.CloudCoverShort = report.CloudTypeShort = {"short", "short", "short"};
  report.Weather = {"Rain", "Mist", "Fog"};
  sections[1].Gust = "change";
  sections[1].Weather = {"change", "change", "change"};
  ViewFixture fixture;
  fixture.AddMetar("", "").Section = sections;
  EXPECT_EQ(ShownFields(MetarGlobalView, fixture),
            "WindDirRange=350-040 deg; Gust=28 kt; Weather1=Rain; Weather2=Mist; Weather3=Fog; "
            "AltimeterPressure=1015.0 hpa; SeaPressureLevel=1014.8 hpa; "
            "CloudCover1=1; CloudType1=2; CloudHeigh1=3; "
            "CloudCover2=4; CloudType2=5; CloudHeigh2=6; "
            "CloudCover3=7; CloudType3=8; CloudHeigh3=9");
}

TEST(GlobalViewTable, JoinedTextsOfMetar) {
  MetarSection report;
  report.WindSpeed = "10 kt";
  report.WindDir = "270 deg";
  report.OrizVisibility = "04000 m";
  report.VisibilityDir = "NE";
  ViewFixture fixture;
  MetarData& record = fixture.AddMetar("", "");
  record.Section = {&report, 1};
  record.WindShearDir = "240 deg";
  record.WindShearLevel = "02000 ft";
  EXPECT_EQ(ShownFields(MetarGlobalView, fixture),
            "WindSpeed=10 kt   270 deg; WindShearLevel=240 deg   02000 ft; "
            "OrizVisibility=04000 m   NE");
  report.WindDir = report.VisibilityDir = record.WindShearDir = "";
  EXPECT_EQ(ShownFields(MetarGlobalView, fixture),
            "WindSpeed=10 kt   ; WindShearLevel=   02000 ft; OrizVisibility=04000 m   ");
}

TEST(GlobalViewTable, ForecastTemperatures) {
  ViewFixture fixture;
  MetarData& record = fixture.AddMetar("", "");
  record.ForecastTemperatureTime = {"12:00Z", "04:00Z"};
  EXPECT_EQ(ShownFields(MetarGlobalView, fixture), "");
  record.ForecastTemperature = {"15.0 °C", ""};
  EXPECT_EQ(ShownFields(MetarGlobalView, fixture), "ForecastTemperature1=15.0 °C (12:00Z)");
  record.ForecastTemperature = {"15.0 °C", "-02.0 °C"};
  EXPECT_EQ(ShownFields(MetarGlobalView, fixture),
            "ForecastTemperature1=15.0 °C (12:00Z); ForecastTemperature2=-02.0 °C (04:00Z)");
}

TEST(GlobalViewTable, RecordIndexText) {
  EXPECT_EQ(RecordIndexText(0), "001");
  EXPECT_EQ(RecordIndexText(98), "099");
  EXPECT_EQ(RecordIndexText(998), "999");
  EXPECT_EQ(RecordIndexText(999), "1000");
  EXPECT_EQ(RecordIndexText(32766), "32767");
}

}  // namespace
}  // namespace zg::test
