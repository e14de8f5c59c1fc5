#include "tables/StationText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zg {
namespace {

TEST(StationText, ClassifyStation) {
  struct Row {
    const char* station;
    const char* type;
    std::int32_t kind;
  };
  const Row rows[] = {
      {"16242", "AAXX", 1}, {"DABC", "AAXX", 1}, {"", "AAXX", 1},     {"DABC", "BBXX", 2},
      {"9DAB", "BBXX", 2},  {"D9", "BBXX", 2},   {"SHIP", "BBXX", 2}, {"62103", "BBXX", 3},
      {"62D03", "BBXX", 3}, {"6", "BBXX", 3},    {"", "BBXX", 3},     {"dabc", "BBXX", 3},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ClassifyStation(row.station, row.type), row.kind) << row.station << " " << row.type;
  }
}

StationBlock Rome() {
  StationBlock block;
  block.WMOIndex = 16242;
  block.Station = "Roma Fiumicino";
  block.Country = "Italy";
  block.IcaoName = "LIRF";
  block.LatPosition = 418.0f;
  block.LongPosition = 122.3333f;
  block.StationHT = "0002";
  block.SensorHT = "0003";
  block.Quadrant = 1;
  block.MsgId = "SAIT31";
  block.Type = "METAR";
  block.Sender = "LIIB";
  block.AddedInfo = "COR";
  return block;
}

TEST(StationText, AllFields) {
  StoreTexts store;
  const StationTexts texts = FillStationTexts(Rome(), 0, TextUtility(), store);
  EXPECT_EQ(texts.WMOIndex(), 16242);
  EXPECT_EQ(texts.State(), "");
  EXPECT_EQ(texts.Station(), "Roma Fiumicino");
  EXPECT_EQ(texts.Country(), "Italy");
  EXPECT_EQ(texts.IcaoName(), "LIRF");
  EXPECT_EQ(texts.LatPosition(), "41.48N");
  EXPECT_EQ(texts.LongPosition(), "012.14E");
  EXPECT_EQ(texts.StationHT(), "0002");
  EXPECT_EQ(texts.SensorHT(), "0003");
  EXPECT_EQ(texts.Quadrant(), "North-Est");
  EXPECT_EQ(texts.MsgId, "SAIT31");
  EXPECT_EQ(texts.Type, "METAR");
  EXPECT_EQ(texts.Sender, "LIIB");
  EXPECT_EQ(texts.AddedInfo, "COR");
  EXPECT_EQ(texts.StationKind, 1);
}

TEST(StationText, NothingKnown) {
  StoreTexts store;
  StationBlock block;
  block.Station = "XXXX";
  block.Type = "METAR";
  const StationTexts texts = FillStationTexts(block, -1, TextUtility(), store);
  EXPECT_EQ(texts.WMOIndex(), -1);
  EXPECT_EQ(texts.Station(), "XXXX");
  for (const std::string_view text :
       {texts.State(), texts.Country(), texts.IcaoName(), texts.LatPosition(), texts.LongPosition(),
        texts.StationHT(), texts.SensorHT(), texts.Quadrant(), texts.MsgId, texts.Sender,
        texts.AddedInfo}) {
    EXPECT_EQ(text, "");
  }
}

TEST(StationText, Country) {
  struct Row {
    const char* country;
    const char* state;
    const char* text;
  };
  const Row rows[] = {
      {"United States", "CO", "United States [CO]"},
      {"United States", "", "United States"},
      {"Canada", "ON", "Canada"},
      {"", "CO", ""},
      {"United States of Nowhere", "CO", "United States of Nowhere"},
  };
  for (const Row& row : rows) {
    StoreTexts store;
    StationBlock block = Rome();
    block.Country = row.country;
    block.State = row.state;
    const StationTexts texts = FillStationTexts(block, -1, TextUtility(), store);
    EXPECT_EQ(texts.Country(), row.text);
    EXPECT_EQ(texts.State(), row.state);
  }
}

TEST(StationText, PositionAndQuadrant) {
  struct Row {
    const char* name;
    std::optional<float> latitude;
    std::optional<float> longitude;
    std::optional<int> quadrant;
    const char* latitudeText;
    const char* longitudeText;
    const char* english;
    const char* italian;
  };
  const Row rows[] = {
      {"north-east", 545.0f, 75.0f, 1, "54.30N", "007.30E", "North-Est", "Nord-Est"},
      {"south-east", -545.0f, 1750.0f, 3, "54.30S", "175.00E", "South-Est", "Sud-Est"},
      {"south-west", -1.0f, -5.0f, 5, "00.06S", "000.30W", "South-West", "Sud-Ovest"},
      {"north-west", 900.0f, -1800.0f, 7, "90.00N", "180.00W", "North-West", "Nord-Ovest"},
      {"origin", 0.0f, 0.0f, 1, "00.00N", "000.00E", "North-Est", "Nord-Est"},
      {"no position", std::nullopt, std::nullopt, 1, "", "", "North-Est", "Nord-Est"},
      {"latitude only", 545.0f, std::nullopt, std::nullopt, "54.30N", "", "", ""},
      {"no quadrant of the globe", 545.0f, 75.0f, 2, "54.30N", "007.30E", "", ""},
      {"quadrant out of the table", 545.0f, 75.0f, 9, "54.30N", "007.30E", "", ""},
  };
  for (const Row& row : rows) {
    StationBlock block;
    block.LatPosition = row.latitude;
    block.LongPosition = row.longitude;
    block.Quadrant = row.quadrant;
    for (const bool italian : {false, true}) {
      TextUtility textUtility;
      textUtility.SetLanguage(italian ? 0 : 1);
      StoreTexts store;
      const StationTexts texts = FillStationTexts(block, -1, textUtility, store);
      EXPECT_EQ(texts.LatPosition(), row.latitudeText) << row.name;
      EXPECT_EQ(texts.LongPosition(), row.longitudeText) << row.name;
      EXPECT_EQ(texts.Quadrant(), italian ? row.italian : row.english) << row.name;
    }
  }
}

TEST(StationText, StationKind) {
  struct Row {
    const char* station;
    const char* type;
    std::int32_t kind;
  };
  const Row rows[] = {
      {"DABC", "BBXX", 2},  {"62103", "BBXX", 3}, {"16242", "AAXX", 1},
      {"LIRF", "METAR", 1}, {"LIRF", "TAF", 1},   {"LIRF", "SPECI", 1},
  };
  for (const Row& row : rows) {
    StoreTexts store;
    StationBlock block;
    block.Station = row.station;
    block.Type = row.type;
    EXPECT_EQ(FillStationTexts(block, -1, TextUtility(), store).StationKind, row.kind)
        << row.station << " " << row.type;
  }
}

// The texts of a directory row are made once for a store; what the message says is its own.
TEST(StationText, RowsAreShared) {
  StoreTexts store;
  const TextUtility textUtility;
  const StationTexts first = FillStationTexts(Rome(), 7, textUtility, store);
  StationBlock again = Rome();
  again.Type = "SPECI";
  again.MsgId = "SPIT31";
  const StationTexts second = FillStationTexts(again, 7, textUtility, store);
  EXPECT_EQ(first.Station().data(), second.Station().data());
  EXPECT_EQ(second.Type, "SPECI");
  EXPECT_EQ(second.MsgId, "SPIT31");
  EXPECT_EQ(first.Type, "METAR");
  StationBlock other = Rome();
  other.Station = "Arezzo";
  EXPECT_EQ(FillStationTexts(other, 3, textUtility, store).Station(), "Arezzo");
  EXPECT_EQ(FillStationTexts(Rome(), 7, textUtility, store).Station(), "Roma Fiumicino");
}

TEST(StationText, TextsOutliveTheBlock) {
  StoreTexts store;
  std::string name = "Roma Fiumicino";
  StationBlock block;
  block.Station = name;
  block.Type = "METAR";
  const StationTexts texts = FillStationTexts(block, -1, TextUtility(), store);
  name.assign(name.size(), 'x');
  EXPECT_EQ(texts.Station(), "Roma Fiumicino");
}

// The texts of stations outlive the records, but neither the language nor the directory.
TEST(StationText, TextsOfStationsAreForgotten) {
  struct Row {
    const char* name;
    bool otherDirectory;
    bool otherLanguage;
    bool kept;
  };
  const Row rows[] = {
      {"the same", false, false, true},
      {"language", false, true, false},
      {"directory", true, false, false},
  };
  for (const Row& row : rows) {
    const StationDirectory directories[2];
    StoreTexts store;
    TextUtility textUtility;
    store.Stations.UseFor(directories[0], textUtility.Language());
    FillStationTexts(Rome(), 0, textUtility, store);
    store.Clear();
    textUtility.SetLanguage(row.otherLanguage ? 0 : 1);
    store.Stations.UseFor(directories[row.otherDirectory ? 1 : 0], textUtility.Language());
    StationBlock renamed = Rome();
    renamed.Station = "Ciampino";
    const StationTexts texts = FillStationTexts(renamed, 0, textUtility, store);
    EXPECT_EQ(texts.Station(), row.kept ? "Roma Fiumicino" : "Ciampino") << row.name;
    EXPECT_EQ(texts.Quadrant(), row.otherLanguage ? "Nord-Est" : "North-Est") << row.name;
    EXPECT_EQ(texts.MsgId, "SAIT31") << row.name;
  }
}

}  // namespace
}  // namespace zg
