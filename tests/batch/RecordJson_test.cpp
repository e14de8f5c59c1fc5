#include "batch/RecordJson.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "batch/JsonSyntax.h"

namespace zg {
namespace {

using Keys = std::vector<std::string>;

// The members of a JSON object in their order: name, and value as it is written.
class Members {
 public:
  explicit Members(std::string_view object) {
    while (object.ends_with('\n')) object.remove_suffix(1);
    EXPECT_TRUE(test::JsonSyntax::IsValid(object)) << object;
    EXPECT_TRUE(object.starts_with('{')) << object;
    std::size_t depth = 0;
    bool inText = false;
    std::size_t start = 1;
    for (std::size_t i = 0; i < object.size(); ++i) {
      const char c = object[i];
      if (inText) {
        if (c == '\\') ++i;
        if (c == '"') inText = false;
      } else if (c == '"') {
        inText = true;
      } else if (c == '{' || c == '[') {
        ++depth;
      } else if (((c == '}' || c == ']') && --depth == 0) || (c == ',' && depth == 1)) {
        if (i > start) Add(object.substr(start, i - start));
        start = i + 1;
      }
    }
  }

  Keys Names() const {
    Keys names;
    for (const auto& member : members_) names.push_back(member.first);
    return names;
  }
  // "none" if there is no such member.
  std::string operator[](std::string_view name) const {
    for (const auto& member : members_) {
      if (member.first == name) return member.second;
    }
    return "none";
  }

 private:
  void Add(std::string_view member) {
    const std::size_t colon = member.find("\":");
    members_.emplace_back(member.substr(1, colon - 1), member.substr(colon + 2));
  }

  std::vector<std::pair<std::string, std::string>> members_;
};

Keys operator+(Keys left, const Keys& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

template <typename Raw, typename Data>
std::string Line(RecordFields fields, const Raw& raw, const Data& data) {
  std::string out;
  AppendRecord(out, fields, raw, data);
  EXPECT_TRUE(out.ends_with("}\n"));
  EXPECT_EQ(out.find('\n'), out.size() - 1) << "one line";
  return out;
}

template <typename Raw>
std::string RawObject(const Raw& raw) {
  using Data = std::conditional_t<std::is_same_v<Raw, SynopRawData>, SynopData, MetarData>;
  return Members(Line(RecordFields::Raw, raw, Data{}))["Raw"];
}

const Keys StationKeys = {"WMOIndex",    "State",        "Station",   "Country",   "IcaoName",
                          "LatPosition", "LongPosition", "StationHT", "SensorHT",  "Quadrant",
                          "MsgId",       "Type",         "Sender",    "AddedInfo", "StationKind"};

const Keys CloudLayerKeys = {"CloudCovLayer0", "CloudCovLayer1", "CloudCovLayer2", "CloudCovLayer3",
                             "TypeOfCloud0",   "TypeOfCloud1",   "TypeOfCloud2",   "TypeOfCloud3",
                             "HeighOfCloud0",  "HeighOfCloud1",  "HeighOfCloud2",  "HeighOfCloud3"};

const Keys SynopKeys = Keys{"Store",
                            "Msg",
                            "StationBlock",
                            "FilterFlags",
                            "TimeOfObservation",
                            "IssueTime",
                            "PrecipInd",
                            "StationType",
                            "StationTypeCode",
                            "LowestCloud",
                            "LowestCloudCode",
                            "Visibility",
                            "VisibilityCode",
                            "CloudCover",
                            "CloudCoverCode",
                            "WindDirection",
                            "WindSpeed",
                            "DewPoint",
                            "Humidity",
                            "Temperature",
                            "StatPressure",
                            "SeaLevPressure",
                            "GeopotHeight",
                            "GeopotPressure",
                            "PressTendency",
                            "PressTendencyCode",
                            "PressTendencyVal",
                            "PrecipitAmount1",
                            "PrecipitAmount1Code",
                            "PrecipitDuration1",
                            "PrecipitDuration1Code",
                            "PresentWeather",
                            "PresentWeatherCode",
                            "WeatherSymb",
                            "PastWeather1",
                            "PastWeather1Code",
                            "PastWeather2",
                            "PastWeather2Code",
                            "CloudAmount",
                            "CloudAmountCode",
                            "LowCloudType",
                            "LowCloudTypeCode",
                            "MiddleCloudType",
                            "MiddleCloudTypeCode",
                            "HighCloudType",
                            "HighCloudTypeCode",
                            "MaxTemperature",
                            "MinTemperature",
                            "RegionalData1",
                            "RegionalData2",
                            "SnowState",
                            "SnowStateCode",
                            "SnowDepth",
                            "OtherInfo",
                            "PrecipitAmount2",
                            "PrecipitDuration2",
                            "PastPrecipitAmount"} +
                       CloudLayerKeys +
                       Keys{"SupplInfo",
                            "CountinuousWindDir",
                            "CountinuousWindSpeed",
                            "WindAt10mt",
                            "WindAt20mt",
                            "MaxWindSpeedTime",
                            "MaxWindSpeed",
                            "MaxWindDir",
                            "ContinueWindTime",
                            "ShipDirection",
                            "ShipDirectionCode",
                            "ShipAvSpeed",
                            "ShipAvSpeedCode",
                            "SeaTemperature",
                            "SeaTemperType",
                            "SeaTemperTypeCode",
                            "WavePeriod",
                            "WaveHeight",
                            "WavePeriodPredom",
                            "WaveHeightPredom",
                            "WaveDirPredom",
                            "WavePeriodSecond",
                            "WaveHeightSecond",
                            "WaveDirSecond",
                            "ShipIceAccretion",
                            "ShipIceAccretionCode",
                            "ThicknessOfIce",
                            "RateIceAccretion",
                            "RateIceAccretionCode",
                            "WetTemperature",
                            "WetTemperType",
                            "WetTemperTypeCode",
                            "SeaIceConcentration",
                            "SeaIceConcentrationCode",
                            "SeaIceStage",
                            "SeaIceStageCode",
                            "SeaIceBearingEdge",
                            "SeaIceBearingEdgeCode",
                            "IceOfLandOrigin",
                            "IceOfLandOriginCode",
                            "IceSituation",
                            "IceSituationCode"};

const Keys SynopRawKeys =
    Keys{"Accepted",          "Msg",
         "StationBlock",      "FilterFlags",
         "TimeOfObservation", "IssueTime",
         "WindUnitInd",       "PrecipInd",
         "StationType",       "LowestCloud",
         "Visibility",        "CloudCover",
         "WindDirection",     "WindSpeed",
         "DewPoint",          "Humidity",
         "Temperature",       "StatPressure",
         "SeaLevPressure",    "GeopotHeight",
         "GeopotPressure",    "PressTendency",
         "PressTendencyVal",  "PrecipitAmount1",
         "PrecipitDuration1", "PresentWeather",
         "PastWeather1",      "PastWeather2",
         "CloudAmount",       "LowCloudType",
         "MiddleCloudType",   "HighCloudType",
         "MaxTemperature",    "MinTemperature",
         "RegionalData1",     "RegionalData2",
         "SnowState",         "SnowDepth",
         "OtherInfo",         "PrecipitAmount2",
         "PrecipitDuration2", "PastPrecipitAmount"} +
    CloudLayerKeys +
    Keys{"SupplInfo",        "CountinuousWindRaw",  "WindAt10mt",       "WindAt20mt",
         "MaxWindSpeedTime", "MaxWindSpeed",        "MaxWindDir",       "ContinueWindTime",
         "ShipDirection",    "ShipAvSpeed",         "SeaTemperature",   "SeaTemperType",
         "WavePeriod",       "WaveHeight",          "WavePeriodPredom", "WaveHeightPredom",
         "WaveDirPredom",    "WavePeriodSecond",    "WaveHeightSecond", "WaveDirSecond",
         "ShipIceAccretion", "ThicknessOfIce",      "RateIceAccretion", "WetTemperature",
         "WetTemperType",    "SeaIceConcentration", "SeaIceStage",      "SeaIceBearingEdge",
         "IceOfLandOrigin",  "IceSituation"};

const Keys MetarKeys = {"Store",
                        "RawText",
                        "StationBlock",
                        "ObservationTime",
                        "ValidPeriod",
                        "BulletinTime",
                        "FilterFlags",
                        "Section",
                        "SectionCount",
                        "ForecastTemperature",
                        "ForecastTemperatureTime",
                        "Temperature",
                        "Dewpoint",
                        "RVRRunway",
                        "RVRVisibility",
                        "RVRVisibilitymax",
                        "VerticalVisibility",
                        "VerticalVisibilityCopy",
                        "WindShearLevel",
                        "WindShearDir",
                        "WindShearSpeed",
                        "OtherRemarks",
                        "WindRemarks",
                        "MaxTemperature6h",
                        "MinTemperature6h",
                        "MaxTemperature24h",
                        "MinTemperature24h",
                        "Sunshine",
                        "PrecipHour",
                        "Precip3h",
                        "Precip6h",
                        "Precip24h",
                        "Water",
                        "SnowDepth",
                        "PressTendency",
                        "PressTendencyVal",
                        "LowCloudType",
                        "MiddleCloudType",
                        "HighCloudType",
                        "IsAO1",
                        "IsAO2",
                        "IsCOR",
                        "IsAMD",
                        "IsManual"};

const Keys MetarSectionKeys = {
    "SectionType",      "SectionName",    "FromTime",      "ToTime",          "AltimeterPressure",
    "SeaPressureLevel", "OrizVisibility", "VisibilityDir", "WindDir",         "WindSpeed",
    "WindDirRange",     "Gust",           "CloudCover",    "CloudCoverShort", "CloudType",
    "CloudTypeShort",   "CloudHeigh",     "CloudLayers",   "Weather",         "WeatherCount"};

const Keys MetarRawKeys = {"Accepted",
                           "RawText",
                           "StationBlock",
                           "ObservationTime",
                           "ValidPeriod",
                           "BulletinTime",
                           "FilterFlags",
                           "Section",
                           "SectionIndex",
                           "ForecastTemperature",
                           "ForecastTemperatureHour",
                           "Temperature",
                           "Dewpoint",
                           "RVRRunway",
                           "RVRVisibility",
                           "RVRVisibilitymax",
                           "VerticalVisibility",
                           "WindShearLevel",
                           "WindShearDir",
                           "WindShearSpeed",
                           "OtherRemarks",
                           "WindRemarks",
                           "MaxTemperature6h",
                           "MinTemperature6h",
                           "MaxTemperature24h",
                           "MinTemperature24h",
                           "PrecipHour",
                           "Precip3h",
                           "Precip6h",
                           "Precip24h",
                           "SnowDepth",
                           "PressTendency",
                           "PressTendencyVal",
                           "LowCloudType",
                           "MiddleCloudType",
                           "HighCloudType",
                           "Sunshine",
                           "Water"};

const Keys MetarRawSectionKeys = {
    "SectionType", "SectionFlags",      "FromHour",         "FromMinute",     "ToHour",
    "ToMinute",    "AltimeterPressure", "SeaPressureLevel", "OrizVisibility", "VisibilityDir",
    "WindDir",     "WindSpeed",         "WindDirRange",     "Gust",           "CloudCover",
    "CloudType",   "CloudHeigh",        "Weather"};

// What a new record has under each key; `other` under those that are not named.
void ExpectMembers(const Members& members, const Keys& keys, std::string_view other,
                   std::initializer_list<std::pair<const char*, const char*>> named) {
  for (const std::string& key : keys) {
    std::string_view expected = other;
    for (const auto& [name, value] : named) {
      if (key == name) expected = value;
    }
    EXPECT_EQ(members[key], expected) << key;
  }
}

// --- Keys --------------------------------------------------------------------------------------

TEST(RecordJson, KeysOfSynop) {
  const std::string data = Line(RecordFields::Data, SynopRawData{}, SynopData{});
  EXPECT_EQ(Members(data).Names(), SynopKeys);
  EXPECT_EQ(Members(data)["Store"], "\"SYNOP\"");
  EXPECT_EQ(Members(Members(data)["StationBlock"]).Names(), StationKeys);

  const std::string raw = Line(RecordFields::Raw, SynopRawData{}, SynopData{});
  EXPECT_EQ(Members(raw).Names(), (Keys{"Store", "Raw"}));
  EXPECT_EQ(Members(raw)["Store"], "\"SYNOP\"");
  EXPECT_EQ(Members(Members(raw)["Raw"]).Names(), SynopRawKeys);
  EXPECT_EQ(Members(Members(Members(raw)["Raw"])["StationBlock"]).Names(), StationKeys);

  const std::string both = Line(RecordFields::Both, SynopRawData{}, SynopData{});
  EXPECT_EQ(Members(both).Names(), SynopKeys + Keys{"Raw"});
  EXPECT_EQ(Members(both)["Raw"], Members(raw)["Raw"]);
}

TEST(RecordJson, KeysOfMetar) {
  const MetarSection section;
  MetarData record;
  record.Section = {&section, 1};
  const std::string data = Line(RecordFields::Data, MetarRawData{}, record);
  EXPECT_EQ(Members(data).Names(), MetarKeys);
  EXPECT_EQ(Members(data)["Store"], "\"METAR\"");
  EXPECT_EQ(Members(Members(data)["StationBlock"]).Names(), StationKeys);
  const std::string sections = Members(data)["Section"];
  EXPECT_EQ(Members(sections.substr(1, sections.size() - 2)).Names(), MetarSectionKeys);

  const std::string raw = Line(RecordFields::Raw, MetarRawData{}, record);
  EXPECT_EQ(Members(raw).Names(), (Keys{"Store", "Raw"}));
  const Members members{Members(raw)["Raw"]};
  EXPECT_EQ(members.Names(), MetarRawKeys);
  const std::string rawSections = members["Section"];
  EXPECT_EQ(Members(rawSections.substr(1, rawSections.size() - 2)).Names(), MetarRawSectionKeys);

  EXPECT_EQ(Members(Line(RecordFields::Both, MetarRawData{}, record)).Names(),
            MetarKeys + Keys{"Raw"});
}

// --- Values ------------------------------------------------------------------------------------

TEST(RecordJson, EmptySynop) {
  const Members data(Line(RecordFields::Data, SynopRawData{}, SynopData{}));
  Keys codes;
  for (const std::string& key : SynopKeys) {
    if (key.ends_with("Code")) codes.push_back(key);
  }
  EXPECT_EQ(codes.size(), 26u);
  for (const std::string& key : SynopKeys) {
    if (key.ends_with("Code")) {
      EXPECT_EQ(data[key], key == "PrecipitAmount1Code" ? "32767" : "255") << key;
    } else if (key != "Store" && key != "StationBlock" && key != "FilterFlags" &&
               !key.starts_with("CountinuousWind")) {
      EXPECT_EQ(data[key], "\"\"") << key;
    }
  }
  EXPECT_EQ(data["FilterFlags"], "0");
  EXPECT_EQ(data["CountinuousWindDir"], R"(["","","","","",""])");
  EXPECT_EQ(data["CountinuousWindSpeed"], R"(["","","","","",""])");
  ExpectMembers(Members(data["StationBlock"]), StationKeys, "\"\"",
                {{"WMOIndex", "-1"}, {"StationKind", "0"}});
}

TEST(RecordJson, EmptyRawSynop) {
  const Members raw(RawObject(SynopRawData{}));
  ExpectMembers(raw, SynopRawKeys, "null",
                {{"Accepted", "0"},
                 {"Msg", "\"\""},
                 {"StationBlock", raw["StationBlock"].c_str()},
                 {"FilterFlags", "0"},
                 {"IssueTime", "\"\""},
                 {"WindUnitInd", "0"},
                 {"CountinuousWindRaw", R"(["","","","","",""])"}});
  ExpectMembers(Members(raw["StationBlock"]), StationKeys, "\"\"",
                {{"WMOIndex", "null"},
                 {"LatPosition", "null"},
                 {"LongPosition", "null"},
                 {"Quadrant", "null"},
                 {"StationKind", "0"}});
}

TEST(RecordJson, RawSynop) {
  SynopRawData raw;
  raw.Msg = "AAXX \"x\"=";
  raw.Station.WMOIndex = 16242;
  raw.Station.LatPosition = 418.0f;
  raw.Station.LongPosition = 122.333336f;
  raw.Station.Quadrant = 1;
  raw.FilterFlags = 658;
  raw.TimeOfObservation = "1230";
  raw.WindUnitInd = 4;
  raw.Temperature = 12.3f;
  raw.SeaTemperature = -MissingFloat;
  raw.GeopotHeight = 1234;
  raw.CloudCovLayer = {1, MissingByte, 3, 4};
  raw.CountinuousWindRaw[1] = "090234";
  raw.MaxWindSpeedTime = "1230";
  const Members members(RawObject(raw));
  EXPECT_EQ(members["Msg"], R"("AAXX \"x\"=")");
  EXPECT_EQ(members["FilterFlags"], "658");
  EXPECT_EQ(members["TimeOfObservation"], "\"1230\"");
  EXPECT_EQ(members["WindUnitInd"], "4");
  EXPECT_EQ(members["Temperature"], "12.3");
  // A turned missing value is a number like any other.
  EXPECT_EQ(members["SeaTemperature"], "-3.402823e+38");
  EXPECT_EQ(members["GeopotHeight"], "1234");
  EXPECT_EQ(members["CloudCovLayer0"], "1");
  EXPECT_EQ(members["CloudCovLayer1"], "null");
  EXPECT_EQ(members["CloudCovLayer3"], "4");
  EXPECT_EQ(members["CountinuousWindRaw"], R"(["","090234","","","",""])");
  EXPECT_EQ(members["MaxWindSpeedTime"], "\"1230\"");
  const Members station(members["StationBlock"]);
  EXPECT_EQ(station["WMOIndex"], "16242");
  EXPECT_EQ(station["LatPosition"], "418");
  EXPECT_EQ(station["LongPosition"], "122.333336");
  EXPECT_EQ(station["Quadrant"], "1");
}

TEST(RecordJson, Synop) {
  SynopData record;
  record.Msg = "AAXX 12001=";
  StationPlace place;
  place.WMOIndex = 16242;
  place.Station = "Forl\xC3\xAC";
  record.Station.Place = &place;
  record.Station.StationKind = 1;
  record.FilterFlags = 658;
  record.StationType = "Manned";
  record.StationTypeCode = 1;
  record.Temperature = "12.3 \xC2\xB0\x43";
  record.PrecipitAmount1Code = 990;
  record.CloudCovLayer[0] = "1/8";
  record.HeighOfCloud[3] = "300 m";
  record.CountinuousWindDir[5] = "090 deg";
  const Members data(Line(RecordFields::Data, SynopRawData{}, record));
  EXPECT_EQ(data["Msg"], "\"AAXX 12001=\"");
  EXPECT_EQ(data["FilterFlags"], "658");
  EXPECT_EQ(data["StationType"], "\"Manned\"");
  EXPECT_EQ(data["StationTypeCode"], "1");
  EXPECT_EQ(data["Temperature"], "\"12.3 \xC2\xB0\x43\"");
  EXPECT_EQ(data["PrecipitAmount1Code"], "990");
  EXPECT_EQ(data["CloudCovLayer0"], "\"1/8\"");
  EXPECT_EQ(data["HeighOfCloud3"], "\"300 m\"");
  EXPECT_EQ(data["CountinuousWindDir"], R"(["","","","","","090 deg"])");
  const Members station(data["StationBlock"]);
  EXPECT_EQ(station["WMOIndex"], "16242");
  EXPECT_EQ(station["Station"], "\"Forl\xC3\xAC\"");
  EXPECT_EQ(station["StationKind"], "1");
}

TEST(RecordJson, EmptyMetar) {
  const MetarSection section;
  MetarData record;
  record.Section = {&section, 1};
  const Members data(Line(RecordFields::Data, MetarRawData{}, record));
  ExpectMembers(data, MetarKeys, "\"\"",
                {{"Store", "\"METAR\""},
                 {"StationBlock", data["StationBlock"].c_str()},
                 {"FilterFlags", "0"},
                 {"Section", data["Section"].c_str()},
                 {"SectionCount", "1"},
                 {"ForecastTemperature", R"(["",""])"},
                 {"ForecastTemperatureTime", R"(["",""])"},
                 {"IsAO1", "false"},
                 {"IsAO2", "false"},
                 {"IsCOR", "false"},
                 {"IsAMD", "false"},
                 {"IsManual", "true"}});
  constexpr const char* three = R"(["","",""])";
  const std::string sections = data["Section"];
  ExpectMembers(Members(sections.substr(1, sections.size() - 2)), MetarSectionKeys, "\"\"",
                {{"SectionType", "0"},
                 {"CloudCover", three},
                 {"CloudCoverShort", three},
                 {"CloudType", three},
                 {"CloudTypeShort", three},
                 {"CloudHeigh", three},
                 {"CloudLayers", "0"},
                 {"Weather", R"(["","","","","","","","","",""])"},
                 {"WeatherCount", "0"}});
}

TEST(RecordJson, EmptyRawMetar) {
  const Members raw(RawObject(MetarRawData{}));
  ExpectMembers(raw, MetarRawKeys, "null",
                {{"Accepted", "0"},
                 {"RawText", "\"\""},
                 {"StationBlock", raw["StationBlock"].c_str()},
                 {"ObservationTime", "\"\""},
                 {"ValidPeriod", "\"\""},
                 {"BulletinTime", "\"\""},
                 {"FilterFlags", "0"},
                 {"Section", raw["Section"].c_str()},
                 {"SectionIndex", "0"},
                 {"ForecastTemperature", "[null,null]"},
                 {"ForecastTemperatureHour", "[null,null]"},
                 {"OtherRemarks", "\"\""},
                 {"WindRemarks", "\"\""}});
  const std::string sections = raw["Section"];
  ExpectMembers(Members(sections.substr(1, sections.size() - 2)), MetarRawSectionKeys, "null",
                {{"SectionType", "0"},
                 {"SectionFlags", "0"},
                 {"CloudCover", "[null,null,null]"},
                 {"CloudType", "[null,null,null]"},
                 {"CloudHeigh", "[null,null,null]"},
                 {"Weather", "[0,0,0,0,0,0,0,0,0,0]"}});
}

TEST(RecordJson, RawMetar) {
  MetarRawData raw;
  raw.FilterFlags = 34850;
  raw.SectionIndex = 1;
  raw.Temperature = -0.5f;
  raw.VerticalVisibility = 10;
  raw.RVRRunway = "24L";
  raw.ForecastTemperature[1] = 125;
  raw.Section[0].OrizVisibility = 4000;
  raw.Section[0].CloudHeigh[1] = 30;
  raw.Section[0].Weather[0] = 1U << 30 | 1U << 9;
  raw.Section[1].SectionType = 2;
  raw.Section[1].VisibilityDir = "NE";
  raw.Section[2].SectionType = 7;  // not in use
  const Members members(RawObject(raw));
  EXPECT_EQ(members["FilterFlags"], "34850");
  EXPECT_EQ(members["SectionIndex"], "1");
  EXPECT_EQ(members["Temperature"], "-0.5");
  EXPECT_EQ(members["VerticalVisibility"], "10");
  EXPECT_EQ(members["RVRRunway"], "\"24L\"");
  EXPECT_EQ(members["ForecastTemperature"], "[null,125]");
  const std::string sections = members["Section"];
  const std::size_t second = sections.find("},{") + 2;
  const Members report(std::string_view(sections).substr(1, second - 2));
  EXPECT_EQ(report["OrizVisibility"], "4000");
  EXPECT_EQ(report["CloudHeigh"], "[null,30,null]");
  EXPECT_EQ(report["Weather"], "[1073742336,0,0,0,0,0,0,0,0,0]");
  EXPECT_EQ(report["VisibilityDir"], "null");
  const Members change(std::string_view(sections).substr(second, sections.size() - second - 1));
  EXPECT_EQ(change["SectionType"], "2");
  EXPECT_EQ(change["VisibilityDir"], "\"NE\"");
  EXPECT_EQ(sections.find("\"SectionType\":7"), std::string::npos);
}

TEST(RecordJson, Metar) {
  MetarSection sections[2];
  sections[0].WindDir = "270 deg";
  sections[0].CloudCover[1] = "3/8";
  sections[0].Weather[2] = "Rain";
  sections[0].WeatherCount = 3;
  sections[1].SectionType = 2;
  sections[1].SectionName = "Occasional";
  MetarData record;
  record.RawText = "METAR LIRF=";
  record.Section = sections;
  record.ForecastTemperature[0] = "25.0";
  record.IsCOR = true;
  record.IsManual = false;
  const Members data(Line(RecordFields::Data, MetarRawData{}, record));
  EXPECT_EQ(data["RawText"], "\"METAR LIRF=\"");
  EXPECT_EQ(data["SectionCount"], "2");
  EXPECT_EQ(data["ForecastTemperature"], R"(["25.0",""])");
  EXPECT_EQ(data["IsCOR"], "true");
  EXPECT_EQ(data["IsManual"], "false");
  const std::string text = data["Section"];
  const std::size_t second = text.find("},{") + 2;
  const Members report(std::string_view(text).substr(1, second - 2));
  EXPECT_EQ(report["WindDir"], "\"270 deg\"");
  EXPECT_EQ(report["CloudCover"], R"(["","3/8",""])");
  EXPECT_EQ(report["Weather"], R"(["","","Rain","","","","","","",""])");
  EXPECT_EQ(report["WeatherCount"], "3");
  const Members change(std::string_view(text).substr(second, text.size() - second - 1));
  EXPECT_EQ(change["SectionType"], "2");
  EXPECT_EQ(change["SectionName"], "\"Occasional\"");
}

TEST(RecordJson, Fronts) {
  FrontsRow row;
  row.Type = 6;
  row.RecNum = 10000;
  row.Validity = "VALID ";
  row.MsgTime = "151200";
  row.Lat = "30";
  row.Long = "12";
  std::string out;
  AppendRecord(out, row);
  EXPECT_EQ(out,
            R"({"Store":"FRONTS","Type":6,"RecNum":10000,"Validity":"VALID ","MsgTime":"151200",)"
            R"("Pressure":"","Lat":"30","Long":"12"})"
            "\n");
}

TEST(RecordJson, LinesFollowEachOther) {
  std::string out;
  AppendRecord(out, RecordFields::Raw, SynopRawData{}, SynopData{});
  const std::string first = out;
  AppendRecord(out, RecordFields::Raw, SynopRawData{}, SynopData{});
  EXPECT_EQ(out, first + first);
}

}  // namespace
}  // namespace zg
