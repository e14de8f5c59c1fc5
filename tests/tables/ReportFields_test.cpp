#include "tables/ReportFields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "shell/GenericUtility.h"

namespace zg {
namespace {

// All controls of a table by name, with the tab on which each stands.
std::map<std::string, std::pair<std::size_t, const ReportField*>> ControlsOf(
    const ReportTable& table) {
  std::map<std::string, std::pair<std::size_t, const ReportField*>> controls;
  const auto add = [&controls](std::size_t tab, const ReportGroup& group) {
    for (const ReportField& field : group.Fields) {
      EXPECT_TRUE(controls.try_emplace(std::string(field.Control), tab, &field).second)
          << field.Control << " stands there twice";
    }
  };
  add(ReportHeader, table.Header);
  for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
    for (const ReportGroup& group : table.Tabs[tab].Groups) add(tab, group);
  }
  return controls;
}

class ReportFields : public ::testing::Test {
 protected:
  explicit ReportFields(const ReportTable& table) : table_(table), controls_(ControlsOf(table)) {}

  ReportPlace Place() const { return {.Stores = stores_, .Texts = texts_}; }

  // The text of a control of the record on show, with the first parts chosen.
  std::string Text(const std::string& control) const {
    ReportPlace place = Place();
    ChooseFirstParts(table_, place);
    return Text(control, place);
  }

  std::string Text(const std::string& control, const ReportPlace& place) const {
    const auto found = controls_.find(control);
    if (found == controls_.end()) return "no control " + control;
    std::string scratch;
    const auto& [tab, field] = found->second;
    return std::string(ReportFieldText(table_, tab, *field, place, scratch));
  }

  std::string LabelText(std::string_view name) const {
    for (const ReportLabel& label : table_.Labels) {
      if (label.Name == name) return std::string(label.Caption(Place()));
    }
    return "no label";
  }

  // The tabs that can be opened, as "0 4".
  std::string EnabledTabs() const {
    std::string tabs;
    for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
      if (!IsReportTabEnabled(table_, Place(), tab)) continue;
      tabs += (tabs.empty() ? "" : " ") + std::to_string(tab);
    }
    return tabs;
  }

  // The members of a choice that the record offers, as "0 2".
  std::string Offered(std::size_t choice) const {
    ReportPlace place = Place();
    ChooseFirstParts(table_, place);
    return Offered(choice, place);
  }

  std::string Offered(std::size_t choice, const ReportPlace& place) const {
    std::string members;
    for (int member = 0; member < table_.Choices[choice].Members; ++member) {
      if (!table_.Choices[choice].IsOffered(place, member)) continue;
      members += (members.empty() ? "" : " ") + std::to_string(member);
    }
    return members;
  }

  void ExpectControls(std::set<std::string> names) const {
    for (const auto& [name, control] : controls_) {
      EXPECT_EQ(names.erase(name), 1u) << name << " is one too many";
    }
    for (const std::string& name : names) ADD_FAILURE() << name << " is missing";
  }

  const ReportTable& table_;
  std::map<std::string, std::pair<std::size_t, const ReportField*>> controls_;
  MessageStores stores_;
  TextUtility texts_;
  StationPlace station_;
};

// --- SYNOP -------------------------------------------------------------------------------------

class SynopReportFields : public ReportFields {
 protected:
  SynopReportFields() : ReportFields(SynopReport) {
    stores_.SynopStore.Reset(2);
    record_ = &stores_.SynopStore.Add();
    record_->Station.Place = &station_;
    record_->Station.Type = "AAXX";
    record_->Station.StationKind = StationKinds::Land;
    for (const unsigned flag : {SynopFlag::Section1, SynopFlag::Section2, SynopFlag::Section3}) {
      SetFlag(record_->FilterFlags, flag);
    }
  }

  void TurnToSea(std::int32_t kind) {
    record_->Station.Type = "BBXX";
    record_->Station.StationKind = kind;
  }

  SynopData* record_;
};

struct SynopRow {
  const char* control;
  std::size_t tab;
  std::string_view SynopData::*field;
};

void PrintTo(const SynopRow& row, std::ostream* out) { *out << row.control; }

// Which field of the record each control shows.
const SynopRow SynopRows[] = {
    {"txtMsgTime", ReportHeader, &SynopData::IssueTime},
    {"txtTimeOfObservation", ReportHeader, &SynopData::TimeOfObservation},
    {"txtLowestCloud", 0, &SynopData::LowestCloud},
    {"txtVisibility", 0, &SynopData::Visibility},
    {"txtCloudCover", 0, &SynopData::CloudCover},
    {"txtWindSpeed", 0, &SynopData::WindSpeed},
    {"txtWindDirection", 0, &SynopData::WindDirection},
    {"txtTemperature", 0, &SynopData::Temperature},
    {"txtDewpoint", 0, &SynopData::DewPoint},
    {"txtStatPressure", 0, &SynopData::StatPressure},
    {"txtSeaLevPressure", 0, &SynopData::SeaLevPressure},
    {"txtGeopotPressure", 0, &SynopData::GeopotPressure},
    {"txtGeopotHeight", 0, &SynopData::GeopotHeight},
    {"txtPressTendency", 0, &SynopData::PressTendency},
    {"txtPressTendencyVal", 0, &SynopData::PressTendencyVal},
    {"txtPresentWeather", 0, &SynopData::PresentWeather},
    {"txtWeatherSymb", 0, &SynopData::WeatherSymb},
    {"txtPastWeather1", 0, &SynopData::PastWeather1},
    {"txtPastWeather2", 0, &SynopData::PastWeather2},
    {"txtPrecipitAmount1", 0, &SynopData::PrecipitAmount1},
    {"txtPrecipitDuration1", 0, &SynopData::PrecipitDuration1},
    {"txtCloudAmount", 0, &SynopData::CloudAmount},
    {"txtLowCloudType", 0, &SynopData::LowCloudType},
    {"txtMiddleCloudType", 0, &SynopData::MiddleCloudType},
    {"txtHighCloudType", 0, &SynopData::HighCloudType},
    {"txtShipDirection", 1, &SynopData::ShipDirection},
    {"txtShipAvSpeed", 1, &SynopData::ShipAvSpeed},
    {"txtSeaTemperature", 1, &SynopData::SeaTemperature},
    {"txtSeaTemperType", 1, &SynopData::SeaTemperType},
    {"txtWetTemperature", 1, &SynopData::WetTemperature},
    {"txtWetTemperType", 1, &SynopData::WetTemperType},
    {"txtWavePeriod", 1, &SynopData::WavePeriod},
    {"txtWaveHeight", 1, &SynopData::WaveHeight},
    {"txtWavePeriodPredom", 1, &SynopData::WavePeriodPredom},
    {"txtWaveHeightPredom", 1, &SynopData::WaveHeightPredom},
    {"txtWaveDirPredom", 1, &SynopData::WaveDirPredom},
    {"txtWavePeriodSecond", 1, &SynopData::WavePeriodSecond},
    {"txtWaveHeightSecond", 1, &SynopData::WaveHeightSecond},
    {"txtWaveDirSecond", 1, &SynopData::WaveDirSecond},
    {"txtSeaIceBearingEdge", 1, &SynopData::SeaIceBearingEdge},
    {"txtSeaIceConcentration", 1, &SynopData::SeaIceConcentration},
    {"txtSeaIceStage", 1, &SynopData::SeaIceStage},
    {"txtIceOfLandOrigin", 1, &SynopData::IceOfLandOrigin},
    {"txtIceSituation", 1, &SynopData::IceSituation},
    {"txtShipIceAccretion", 1, &SynopData::ShipIceAccretion},
    {"txtThicknessOfIce", 1, &SynopData::ThicknessOfIce},
    {"txtRateIceAccretion", 1, &SynopData::RateIceAccretion},
    {"txtMinTemperature", 2, &SynopData::MinTemperature},
    {"txtMaxTemperature", 2, &SynopData::MaxTemperature},
    {"txtSnowDepth", 2, &SynopData::SnowDepth},
    {"txtSnowState", 2, &SynopData::SnowState},
    {"txtPrecipitAmount2", 2, &SynopData::PrecipitAmount2},
    {"txtPrecipitDuration2", 2, &SynopData::PrecipitDuration2},
    {"txtPastPrecipitAmount", 2, &SynopData::PastPrecipitAmount},
    {"txtPeakWindGust", 2, &SynopData::SupplInfo},
    {"txtWindAt10mt", 2, &SynopData::WindAt10mt},
    {"txtWindAt20mt", 2, &SynopData::WindAt20mt},
    {"txtMaxWindSpeedTime", 2, &SynopData::MaxWindSpeedTime},
    {"txtMaxWindSpeed", 2, &SynopData::MaxWindSpeed},
    {"txtMaxWindDir", 2, &SynopData::MaxWindDir},
    {"txtContinueWindTime", 2, &SynopData::ContinueWindTime},
    {"txtRegionalData1", 3, &SynopData::RegionalData1},
    {"txtRegionalData2", 3, &SynopData::RegionalData2},
    {"txtOtherInfo", 3, &SynopData::OtherInfo},
    {"txtMessage", 4, &SynopData::Msg},
};

class SynopReportField : public SynopReportFields,
                         public ::testing::WithParamInterface<SynopRow> {};

TEST_P(SynopReportField, ShowsItsTextOnItsTab) {
  const SynopRow& row = GetParam();
  ASSERT_EQ(controls_.count(row.control), 1u);
  EXPECT_EQ(controls_.at(row.control).first, row.tab);
  EXPECT_EQ(Text(row.control), "");
  record_->*row.field = "its text";
  EXPECT_EQ(Text(row.control), "its text");
}

INSTANTIATE_TEST_SUITE_P(Rows, SynopReportField, ::testing::ValuesIn(SynopRows),
                         [](const auto& row) { return std::string(row.param.control); });

TEST_F(SynopReportFields, HasTheseControls) {
  std::set<std::string> names = {
      "cmbWmoId",  "txtIcaoId",    "txtCountry",       "txtType",        "txtStatType",
      "txtLat",    "txtLong",      "txtHStation",      "txtHSensor",     "txtMsgId",
      "txtSender", "txtAddedInfo", "txtCloudCovLayer", "txtTypeOfCloud", "txtHeighOfCloud"};
  for (const SynopRow& row : SynopRows) names.insert(row.control);
  for (int i = 0; i < 6; ++i) {
    names.insert("txtCountinuousWindDir(" + std::to_string(i) + ")");
    names.insert("txtCountinuousWindSpeed(" + std::to_string(i) + ")");
  }
  ExpectControls(names);
}

TEST_F(SynopReportFields, ContinuousWindsGoEntryByEntry) {
  const std::string_view directions[] = {"d0", "d1", "d2", "d3", "d4", "d5"};
  const std::string_view speeds[] = {"s0", "s1", "s2", "s3", "s4", "s5"};
  std::copy(std::begin(directions), std::end(directions), record_->CountinuousWindDir.begin());
  std::copy(std::begin(speeds), std::end(speeds), record_->CountinuousWindSpeed.begin());
  for (std::size_t i = 0; i < ContinuousWinds; ++i) {
    const std::string member = "(" + std::to_string(i) + ")";
    EXPECT_EQ(Text("txtCountinuousWindDir" + member), directions[i]);
    EXPECT_EQ(Text("txtCountinuousWindSpeed" + member), speeds[i]);
  }
}

TEST_F(SynopReportFields, Headers) {
  station_.WMOIndex = 16239;
  station_.Station = "Roma";
  station_.Country = "Italy";
  station_.LatPosition = "41.48N";
  station_.LongPosition = "012.14E";
  station_.StationHT = "0129";
  station_.SensorHT = "0131";
  station_.Quadrant = "North-East";
  record_->Station.MsgId = "SMIY01";
  record_->Station.Sender = "LIIB";
  record_->Station.AddedInfo = "COR";
  record_->StationTypeCode = 1;
  struct Row {
    const char* control;
    std::string land;
    std::string sea;
  };
  const Row rows[] = {
      {"cmbWmoId", "Roma", "Roma [41.48N 012.14E]"},
      {"txtIcaoId", "16239", "North-East"},
      {"txtLat", "41.48N", "41.48N"},
      {"txtLong", "012.14E", "012.14E"},
      {"txtHStation", "0129", ""},
      {"txtHSensor", "0131", ""},
      {"txtCountry", "Italy", "Italy"},
      {"txtSender", "LIIB", "LIIB"},
      {"txtMsgId", "SMIY01", "SMIY01"},
      {"txtAddedInfo", "COR", "COR"},
  };
  for (const Row& row : rows) EXPECT_EQ(Text(row.control), row.land) << row.control;
  EXPECT_EQ(Text("txtType"), "AAXX");
  TurnToSea(StationKinds::Ship);
  for (const Row& row : rows) EXPECT_EQ(Text(row.control), row.sea) << row.control;
  EXPECT_EQ(Text("txtType"), "BBXX");
}

TEST_F(SynopReportFields, AStationWithoutIndexShowsNone) { EXPECT_EQ(Text("txtIcaoId"), ""); }

TEST_F(SynopReportFields, StationTypeIsInTheLanguageOfTheMoment) {
  EXPECT_EQ(Text("txtStatType"), "");
  record_->StationTypeCode = 1;
  for (const std::uint8_t language : {std::uint8_t{0}, std::uint8_t{1}}) {
    texts_.SetLanguage(language);
    EXPECT_NE(Text("txtStatType"), "");
    EXPECT_EQ(Text("txtStatType"), texts_.StationType(1));
  }
}

TEST_F(SynopReportFields, LabelsOfTheRecord) {
  struct Row {
    std::int32_t kind;
    std::uint8_t language;
    const char* record;
    const char* identifier;
  };
  const Row rows[] = {
      {StationKinds::Land, 1, "Land Station", "ICAO Id"},
      {StationKinds::Land, 0, "Stazione di Terra", "ICAO Id"},
      {StationKinds::Ship, 1, "Ship", "Quadrant"},
      {StationKinds::Ship, 0, "Nave", "Quadrante"},
      {StationKinds::Buoy, 1, "Buoy Number", "Quadrant"},
      {StationKinds::Buoy, 0, "Boa Numero", "Quadrante"},
  };
  for (const Row& row : rows) {
    if (row.kind != StationKinds::Land) TurnToSea(row.kind);
    texts_.SetLanguage(row.language);
    EXPECT_EQ(LabelText("lblWmoId"), row.record);
    EXPECT_EQ(LabelText("lblICAO"), row.identifier);
  }
}

TEST_F(SynopReportFields, AHumidityIsCalledSo) {
  record_->DewPoint = "80 %";
  EXPECT_EQ(LabelText("lblDewpoint"), "Dewpoint");
  SetFlag(record_->FilterFlags, SynopFlag::HumidityInDewPoint);
  EXPECT_EQ(LabelText("lblDewpoint"), "Humidity");
  EXPECT_EQ(Text("txtDewpoint"), "80 %");
  texts_.SetLanguage(0);
  EXPECT_EQ(LabelText("lblDewpoint"), "Umidita'");
}

TEST_F(SynopReportFields, TabsByTheSectionsOfTheMessage) {
  struct Row {
    std::vector<unsigned> flags;
    const char* tabs;
    const char* filled;  // where a text of the tab is shown, the never opened one included
  };
  const Row rows[] = {
      {{}, "4", "4"},
      {{SynopFlag::Section1}, "0 4", "0 4"},
      {{SynopFlag::Section2}, "1 4", "1 4"},
      {{SynopFlag::Section3}, "2 4", "2 3 4"},
      {{SynopFlag::Section5}, "2 4", "2 3 4"},
      {{SynopFlag::Section1, SynopFlag::Section2, SynopFlag::Section3, SynopFlag::Section5},
       "0 1 2 4",
       "0 1 2 3 4"},
  };
  record_->Temperature = record_->SeaTemperature = record_->MinTemperature = "t";
  record_->RegionalData1 = record_->Msg = "t";
  const char* const controls[] = {"txtTemperature", "txtSeaTemperature", "txtMinTemperature",
                                  "txtRegionalData1", "txtMessage"};
  for (const Row& row : rows) {
    record_->FilterFlags = 0;
    for (const unsigned flag : row.flags) SetFlag(record_->FilterFlags, flag);
    EXPECT_EQ(EnabledTabs(), row.tabs);
    std::string filled;
    for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
      if (Text(controls[tab]).empty()) continue;
      filled += (filled.empty() ? "" : " ") + std::to_string(tab);
    }
    EXPECT_EQ(filled, row.filled);
  }
}

TEST_F(SynopReportFields, CloudLayers) {
  EXPECT_EQ(Offered(0), "");
  EXPECT_EQ(Text("txtCloudCovLayer"), "");
  record_->HeighOfCloud[1] = "300 m";
  record_->CloudCovLayer[3] = "8/8";
  record_->TypeOfCloud[3] = "Cumulus (Cu)";
  EXPECT_EQ(Offered(0), "1 3");
  ReportPlace place = Place();
  ChooseFirstParts(table_, place);
  EXPECT_EQ(place.Chosen[0], 1);
  EXPECT_EQ(Text("txtCloudCovLayer", place), "");
  EXPECT_EQ(Text("txtHeighOfCloud", place), "300 m");
  ChoosePart(table_, place, 0, 3);
  EXPECT_EQ(Text("txtCloudCovLayer", place), "8/8");
  EXPECT_EQ(Text("txtTypeOfCloud", place), "Cumulus (Cu)");
  EXPECT_EQ(Text("txtHeighOfCloud", place), "");
}

TEST_F(SynopReportFields, ARecordThatIsNotThereShowsNothing) {
  record_->Msg = "AAXX";
  ReportPlace place = Place();
  place.Index = 1;
  ChooseFirstParts(table_, place);
  for (const auto& [name, control] : controls_) EXPECT_EQ(Text(name, place), "") << name;
  for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
    EXPECT_FALSE(IsReportTabEnabled(table_, place, tab));
  }
  EXPECT_EQ(place.Chosen[0], NothingChosen);
}

// --- METAR, SPECI, TAF -------------------------------------------------------------------------

class MetarReportFields : public ReportFields {
 protected:
  MetarReportFields() : ReportFields(MetarReport) {
    stores_.MetarStore.Reset(2);
    record_ = &stores_.MetarStore.Add();
    record_->Station.Place = &station_;
    SetType("METAR");
    UseSections(1);
  }

  void SetType(std::string_view type) { record_->Station.Type = type; }
  void UseSections(std::size_t count) { record_->Section = {sections_.data(), count}; }

  MetarData* record_;
  std::array<MetarSection, MaxSections> sections_;
};

struct MetarRow {
  const char* control;
  std::size_t tab;
  std::string_view& (*field)(MetarData& record, std::array<MetarSection, MaxSections>& sections);
};

void PrintTo(const MetarRow& row, std::ostream* out) { *out << row.control; }

#define FIELD(name) [](MetarData& record, auto&) -> std::string_view& { return record.name; }
#define SECTION(number, name) \
  [](MetarData&, auto& sections) -> std::string_view& { return sections[number].name; }

// Which field each control shows. Section 1 is the one that the third tab shows, and the remarks.
const MetarRow MetarRows[] = {
    {"txtMsgTime", ReportHeader, FIELD(BulletinTime)},
    {"txtTimeOfObservation", ReportHeader, FIELD(ObservationTime)},
    {"txtMsgId", ReportHeader, FIELD(Station.MsgId)},
    {"txtSender", ReportHeader, FIELD(Station.Sender)},
    {"txtAddedInfo", ReportHeader, FIELD(Station.AddedInfo)},
    {"txtmValidityTime", 0, FIELD(ValidPeriod)},
    {"txtmTemperature", 0, FIELD(Temperature)},
    {"txtmDewpoint", 0, FIELD(Dewpoint)},
    {"txtmRVRRunway", 0, FIELD(RVRRunway)},
    {"txtmRVRVisibility", 0, FIELD(RVRVisibility)},
    {"txtmRVRVisibilityMax", 0, FIELD(RVRVisibilitymax)},
    {"txtmVerticalVisibility", 0, FIELD(VerticalVisibility)},
    {"txtmWindShearLevel", 0, FIELD(WindShearLevel)},
    {"txtmWindShearDir", 0, FIELD(WindShearDir)},
    {"txtmWindShearSpeed", 0, FIELD(WindShearSpeed)},
    {"txtmRemark", 0, FIELD(WindRemarks)},
    {"txtmOther", 0, FIELD(OtherRemarks)},
    {"txtmAltimeterPressure", 0, SECTION(0, AltimeterPressure)},
    {"txtmSeaPressureLevel", 0, SECTION(0, SeaPressureLevel)},
    {"txtmOrizVisibility", 0, SECTION(0, OrizVisibility)},
    {"txtmOrizVisibilityDir", 0, SECTION(0, VisibilityDir)},
    {"txtmWindDirection", 0, SECTION(0, WindDir)},
    {"txtmWindSpeed", 0, SECTION(0, WindSpeed)},
    {"txtmWindDirRange", 0, SECTION(0, WindDirRange)},
    {"txtmGust", 0, SECTION(0, Gust)},
    {"txtmCloudCover", 0, SECTION(0, CloudCover[0])},
    {"txtmTypeOfCloud", 0, SECTION(0, CloudType[0])},
    {"txtmHeighOfCloud", 0, SECTION(0, CloudHeigh[0])},
    {"txtmWeather1", 0, SECTION(0, Weather[0])},
    {"txtmWeather2", 0, SECTION(0, Weather[1])},
    {"txttValidityTime", 1, FIELD(ValidPeriod)},
    {"txttTemperature", 1, FIELD(Temperature)},
    {"txttDewpoint", 1, FIELD(Dewpoint)},
    {"txttForecastTemperature1", 1, FIELD(ForecastTemperature[0])},
    {"txttForecastTemperature2", 1, FIELD(ForecastTemperature[1])},
    {"txttForecastTime1", 1, FIELD(ForecastTemperatureTime[0])},
    {"txttForecastTime2", 1, FIELD(ForecastTemperatureTime[1])},
    {"txttVerticalVisibility", 1, FIELD(VerticalVisibility)},
    {"txttWindShearLevel", 1, FIELD(WindShearLevel)},
    {"txttWindShearDir", 1, FIELD(WindShearDir)},
    {"txttWindShearSpeed", 1, FIELD(WindShearSpeed)},
    {"txttRemark", 1, FIELD(WindRemarks)},
    {"txttOther", 1, FIELD(OtherRemarks)},
    {"txttAltimeterPressure", 1, SECTION(0, AltimeterPressure)},
    {"txttSeaPressureLevel", 1, SECTION(0, SeaPressureLevel)},
    {"txttOrizVisibility", 1, SECTION(0, OrizVisibility)},
    {"txttOrizVisibilityDir", 1, SECTION(0, VisibilityDir)},
    {"txttWindDirection", 1, SECTION(0, WindDir)},
    {"txttWindSpeed", 1, SECTION(0, WindSpeed)},
    {"txttWindDirRange", 1, SECTION(0, WindDirRange)},
    {"txttGust", 1, SECTION(0, Gust)},
    {"txttCloudCover", 1, SECTION(0, CloudCover[0])},
    {"txttTypeOfCloud", 1, SECTION(0, CloudType[0])},
    {"txttHeighOfCloud", 1, SECTION(0, CloudHeigh[0])},
    {"txttWeather1", 1, SECTION(0, Weather[0])},
    {"txttWeather2", 1, SECTION(0, Weather[1])},
    {"txtsSectionIndication", 2, SECTION(1, SectionName)},
    {"txtsValidityStartHour", 2, SECTION(1, FromTime)},
    {"txtsValidityEndHour", 2, SECTION(1, ToTime)},
    {"txtsAltimeterPressure", 2, SECTION(1, AltimeterPressure)},
    {"txtsSeaPressureLevel", 2, SECTION(1, SeaPressureLevel)},
    {"txtsOrizVisibility", 2, SECTION(1, OrizVisibility)},
    {"txtsOrizVisibilityDir", 2, SECTION(1, VisibilityDir)},
    {"txtsWindDirection", 2, SECTION(1, WindDir)},
    {"txtsWindSpeed", 2, SECTION(1, WindSpeed)},
    {"txtsWindDirRange", 2, SECTION(1, WindDirRange)},
    {"txtsGust", 2, SECTION(1, Gust)},
    {"txtsCloudCover", 2, SECTION(1, CloudCover[0])},
    {"txtsTypeOfCloud", 2, SECTION(1, CloudType[0])},
    {"txtsHeighOfCloud", 2, SECTION(1, CloudHeigh[0])},
    {"txtsWeather1", 2, SECTION(1, Weather[0])},
    {"txtsWeather2", 2, SECTION(1, Weather[1])},
    {"txtrSixHourMaxTemperature", 3, FIELD(MaxTemperature6h)},
    {"txtrSixHourMinTemperature", 3, FIELD(MinTemperature6h)},
    {"txtrMaxTemperature", 3, FIELD(MaxTemperature24h)},
    {"txtrMinTemperature", 3, FIELD(MinTemperature24h)},
    {"txtrSunshineTime", 3, FIELD(Sunshine)},
    {"txtrLastHourPrecipitation", 3, FIELD(PrecipHour)},
    {"txtrThreeHourPrecipitation", 3, FIELD(Precip3h)},
    {"txtrSixHourPrecipitation", 3, FIELD(Precip6h)},
    {"txtrTotalPrecipitation", 3, FIELD(Precip24h)},
    {"txtrLiquidWaterEquivalent", 3, FIELD(Water)},
    {"txtrSnowDepth", 3, FIELD(SnowDepth)},
    {"txtrPressTendency", 3, FIELD(PressTendency)},
    {"txtrPressTendencyVal", 3, FIELD(PressTendencyVal)},
    {"txtrSeaPressureLevel", 3, SECTION(1, SeaPressureLevel)},
    {"txtrLowCloudType", 3, FIELD(LowCloudType)},
    {"txtrMiddleCloudType", 3, FIELD(MiddleCloudType)},
    {"txtrHighCloudType", 3, FIELD(HighCloudType)},
    {"txtMessage", 4, FIELD(RawText)},
};

struct MetarCheckRow {
  const char* report;
  const char* forecast;
  bool MetarData::*field;
};

const MetarCheckRow MetarChecks[] = {
    {"chkAO1", "chktAO1", &MetarData::IsAO1},
    {"chkAO2", "chktAO2", &MetarData::IsAO2},
    {"chkAMD", "chktAMD", &MetarData::IsAMD},
    {"chkCOR", "chktCOR", &MetarData::IsCOR},
};

class MetarReportField : public MetarReportFields,
                         public ::testing::WithParamInterface<MetarRow> {};

TEST_P(MetarReportField, ShowsItsTextOnItsTab) {
  const MetarRow& row = GetParam();
  SetType(row.tab == 1 ? "TAF" : "SPECI");
  UseSections(2);
  sections_[1].SectionType = SectionKind::Remarks;
  ASSERT_EQ(controls_.count(row.control), 1u);
  EXPECT_EQ(controls_.at(row.control).first, row.tab);
  EXPECT_EQ(Text(row.control), "");
  row.field(*record_, sections_) = "its text";
  EXPECT_EQ(Text(row.control), "its text");
}

INSTANTIATE_TEST_SUITE_P(Rows, MetarReportField, ::testing::ValuesIn(MetarRows),
                         [](const auto& row) { return std::string(row.param.control); });

TEST_F(MetarReportFields, HasTheseControls) {
  std::set<std::string> names = {"cmbWmoId", "txtIcaoId", "txtCountry",  "txtType",   "txtStatType",
                                 "txtLat",   "txtLong",   "txtHStation", "txtHSensor"};
  for (const MetarRow& row : MetarRows) names.insert(row.control);
  for (const MetarCheckRow& row : MetarChecks) names.insert({row.report, row.forecast});
  ExpectControls(names);
}

TEST_F(MetarReportFields, ChecksAreTickedByTheirFlags) {
  for (const char* type : {"METAR", "TAF"}) {
    SetType(type);
    for (const MetarCheckRow& row : MetarChecks) {
      const bool report = record_->Station.Type == "METAR";
      const char* shown = report ? row.report : row.forecast;
      const char* other = report ? row.forecast : row.report;
      EXPECT_EQ(Text(shown), "") << shown;
      record_->*row.field = true;
      EXPECT_NE(Text(shown), "") << shown;
      EXPECT_EQ(Text(other), "") << other;
      record_->*row.field = false;
    }
  }
}

TEST_F(MetarReportFields, Header) {
  station_.WMOIndex = 16242;
  station_.Station = "Fiumicino";
  station_.Country = "Italy";
  station_.IcaoName = "LIRF";
  station_.LatPosition = "41.48N";
  station_.LongPosition = "012.14E";
  station_.StationHT = "0003";
  station_.SensorHT = "0005";
  const std::pair<const char*, const char*> rows[] = {
      {"cmbWmoId", "Fiumicino"}, {"txtIcaoId", "LIRF"},  {"txtCountry", "Italy"},
      {"txtLat", "41.48N"},      {"txtLong", "012.14E"}, {"txtHStation", "0003"},
      {"txtHSensor", "0005"},    {"txtType", "METAR"},
  };
  for (const auto& [control, text] : rows) EXPECT_EQ(Text(control), text) << control;
  EXPECT_EQ(table_.SearchText(Place()), "Fiumicino LIRF Italy");
  EXPECT_EQ(LabelText("lblWmoId"), "Airport");
  EXPECT_EQ(LabelText("lblICAO"), "ICAO Id");
  texts_.SetLanguage(0);
  EXPECT_EQ(LabelText("lblWmoId"), "Aereoporto");
  EXPECT_EQ(LabelText("lblICAO"), "ICAO Id");
}

TEST_F(MetarReportFields, StationTypeIsInTheLanguageOfTheMoment) {
  struct Row {
    bool manual;
    std::uint8_t language;
    const char* text;
  };
  for (const Row& row :
       {Row{true, 1, "Manual Observations"}, Row{true, 0, "Osservazioni Manuali"},
        Row{false, 1, "Automated Observations"}, Row{false, 0, "Osservazioni Automatizzate"}}) {
    record_->IsManual = row.manual;
    texts_.SetLanguage(row.language);
    EXPECT_EQ(Text("txtStatType"), row.text);
  }
}

TEST_F(MetarReportFields, TabsByTypeAndSections) {
  struct Row {
    const char* type;
    std::size_t sections;
    const char* tabs;
  };
  const Row rows[] = {{"METAR", 1, "0 4"},
                      {"SPECI", 1, "0 4"},
                      {"TAF", 1, "1 4"},
                      {"METAR", 2, "0 2 4"},
                      {"TAF", 15, "1 2 4"}};
  for (const Row& row : rows) {
    SetType(row.type);
    UseSections(row.sections);
    EXPECT_EQ(EnabledTabs(), row.tabs) << row.type;
  }
}

TEST_F(MetarReportFields, EachTextOfTheRemarksOpensTheirTab) {
  UseSections(2);
  sections_[1].SectionType = SectionKind::Remarks;
  int texts = 0;
  for (const MetarRow& row : MetarRows) {
    if (row.tab != 3) continue;
    EXPECT_EQ(EnabledTabs(), "0 2 4");
    row.field(*record_, sections_) = "text";
    EXPECT_EQ(EnabledTabs(), "0 2 3 4") << row.control;
    row.field(*record_, sections_) = "";
    ++texts;
  }
  EXPECT_EQ(texts, 17);
}

TEST_F(MetarReportFields, RemarksAreFoundBehindOtherSections) {
  UseSections(3);
  sections_[1].SeaPressureLevel = "of the change";
  EXPECT_EQ(Text("txtrSeaPressureLevel"), "");
  sections_[2].SectionType = SectionKind::Remarks;
  sections_[2].SeaPressureLevel = "of the remarks";
  EXPECT_EQ(Text("txtrSeaPressureLevel"), "of the remarks");
}

enum : std::size_t { SectionTime, ReportCloud, ForecastCloud, SectionCloud };

TEST_F(MetarReportFields, SectionsToChoose) {
  SetType("TAF");
  EXPECT_EQ(Offered(SectionTime), "");
  EXPECT_EQ(Text("txtsSectionIndication"), "");
  UseSections(3);
  sections_[1].SectionName = "Gradul change";
  sections_[1].FromTime = "06:00Z";
  sections_[1].ToTime = "08:00Z";
  sections_[2].SectionName = "Change";
  sections_[2].FromTime = "12:30Z";
  sections_[2].CloudHeigh[2] = "900 m";
  EXPECT_EQ(Offered(SectionTime), "0 1");
  const ReportChoice& choice = table_.Choices[SectionTime];
  EXPECT_EQ(choice.Caption(Place(), 0), "Gradul change 06:00Z - 08:00Z");
  EXPECT_EQ(choice.Caption(Place(), 1), "Change 12:30Z");
  EXPECT_EQ(choice.Caption(Place(), 2), "Section 3");

  ReportPlace place = Place();
  ChooseFirstParts(table_, place);
  EXPECT_EQ(Text("txtsSectionIndication", place), "Gradul change");
  EXPECT_EQ(place.Chosen[SectionCloud], NothingChosen);
  ChoosePart(table_, place, SectionTime, 1);
  EXPECT_EQ(Text("txtsSectionIndication", place), "Change");
  EXPECT_EQ(Offered(SectionCloud, place), "2");
  EXPECT_EQ(Text("txtsHeighOfCloud", place), "900 m");
}

TEST_F(MetarReportFields, AllSectionsBehindTheFirstHaveAButton) {
  UseSections(MaxSections);
  EXPECT_EQ(table_.Choices[SectionTime].Members, 14);
  EXPECT_EQ(Offered(SectionTime), "0 1 2 3 4 5 6 7 8 9 10 11 12 13");
}

TEST_F(MetarReportFields, CloudLayersOfReportAndForecast) {
  sections_[0].CloudCover[0] = "Sky Clear";
  sections_[0].CloudHeigh[2] = "2500 ft";
  struct Row {
    const char* type;
    std::size_t offering;
    std::size_t other;
    const char* cover;
    const char* height;
  };
  for (const Row& row :
       {Row{"METAR", ReportCloud, ForecastCloud, "txtmCloudCover", "txtmHeighOfCloud"},
        Row{"TAF", ForecastCloud, ReportCloud, "txttCloudCover", "txttHeighOfCloud"}}) {
    SetType(row.type);
    EXPECT_EQ(Offered(row.offering), "0 2");
    EXPECT_EQ(Offered(row.other), "");
    ReportPlace place = Place();
    ChooseFirstParts(table_, place);
    EXPECT_EQ(Text(row.cover, place), "Sky Clear");
    EXPECT_EQ(Text(row.height, place), "");
    ChoosePart(table_, place, row.offering, 2);
    EXPECT_EQ(Text(row.cover, place), "");
    EXPECT_EQ(Text(row.height, place), "2500 ft");
  }
}

// The choice of a section leaves that of a layer of the report.
TEST_F(MetarReportFields, ChoicesThatDoNotDependStay) {
  UseSections(3);
  sections_[0].CloudCover[0] = sections_[0].CloudCover[1] = "1/8";
  ReportPlace place = Place();
  ChooseFirstParts(table_, place);
  ChoosePart(table_, place, ReportCloud, 1);
  ChoosePart(table_, place, SectionTime, 1);
  EXPECT_EQ(place.Chosen[ReportCloud], 1);
  EXPECT_EQ(place.Chosen[SectionTime], 1);
}

// --- Both --------------------------------------------------------------------------------------

TEST(ReportTables, TabCaptions) {
  const char* const synop[][2] = {{"Dati Meteo", "Meteo Data"},
                                  {"Oss. Marine", "Sea Obervat."},
                                  {"Dati Climatologici", "Climatological Data"},
                                  {"Altri Dati", "Other Data"},
                                  {"Testo Msg", "Msg Text"}};
  const char* const metar[][2] = {{"Metar/Speci", "Metar/Speci"},
                                  {"TAF", "TAF"},
                                  {"Previsioni", "Forecast"},
                                  {"Sezione RMK", "RMK Section"},
                                  {"Testo Msg", "Msg Text"}};
  for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
    EXPECT_EQ(SynopReport.Tabs[tab].Italian, synop[tab][0]);
    EXPECT_EQ(SynopReport.Tabs[tab].English, synop[tab][1]);
    EXPECT_EQ(MetarReport.Tabs[tab].Italian, metar[tab][0]);
    EXPECT_EQ(MetarReport.Tabs[tab].English, metar[tab][1]);
  }
}

TEST(ReportTables, Choices) {
  ASSERT_EQ(SynopReport.Choices.size(), 1u);
  EXPECT_EQ(SynopReport.Choices[0].Control, "optLayer");
  EXPECT_EQ(SynopReport.Choices[0].Members, 4);
  const char* const metar[] = {"optSectionTime", "CloudOption", "tCloudOption", "sCloudOption"};
  ASSERT_EQ(MetarReport.Choices.size(), std::size(metar));
  for (std::size_t i = 0; i < std::size(metar); ++i) {
    EXPECT_EQ(MetarReport.Choices[i].Control, metar[i]);
    EXPECT_LT(MetarReport.Choices[i].DependsOn, static_cast<int>(i));
  }
}

// Fields of a line take no more room than it has, and groups of a row stand side by side.
TEST(ReportTables, LayoutFits) {
  for (const ReportTable* table : {&SynopReport, &MetarReport}) {
    for (const ReportTab& tab : table->Tabs) {
      std::map<int, int> ends;
      for (const ReportGroup& group : tab.Groups) {
        EXPECT_GE(group.Part, ends[group.Row]) << group.Frame;
        ends[group.Row] = group.Part + group.Parts;
        EXPECT_LE(ends[group.Row], ReportGridParts) << group.Frame;
        for (const ReportField& field : group.Fields) {
          EXPECT_LE(field.Span, group.FieldsPerLine) << field.Control;
        }
      }
    }
  }
}

TEST(ReportTables, LabelNames) {
  EXPECT_EQ(ReportLabelName({"txtDewpoint"}), "lblDewpoint");
  EXPECT_EQ(ReportLabelName({"cmbWmoId", nullptr, ReportControl::Records}), "lblWmoId");
  EXPECT_EQ(ReportLabelName({"txtmOther", nullptr, ReportControl::Lines}), "lblmOther");
  EXPECT_EQ(ReportLabelName({"txtIcaoId", nullptr, ReportControl::Box, 8, 1, "lblICAO"}),
            "lblICAO");
  EXPECT_EQ(ReportLabelName({"txtCountinuousWindDir(3)"}), "lblCountinuousWindDir(3)");
  EXPECT_EQ(ReportLabelName({"chkAO1", nullptr, ReportControl::Check}), "");
  EXPECT_EQ(ReportLabelName({"txtMessage", nullptr, ReportControl::Message}), "");
}

TEST(ReportTables, CaptionCountsFromOne) {
  EXPECT_EQ(ReportCaption(0, 250), "Meteo Data - Record: 1/250");
  EXPECT_EQ(ReportCaption(249, 250), "Meteo Data - Record: 250/250");
  EXPECT_EQ(ReportCaption(0, 1), "Meteo Data - Record: 1/1");
}

}  // namespace
}  // namespace zg
