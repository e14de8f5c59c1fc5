#include "stations/StationDirectory.h"

#include <gtest/gtest.h>

#include "stations/TestDatabase.h"

namespace zg {
namespace {

using test::MakeDatabase;
using test::RecordingPrompt;
using test::TemporaryFolder;

constexpr std::int64_t Key(const char* callSign) {
  return (std::int64_t{callSign[0]} * 256 + callSign[1]) * 256 + callSign[2];
}

std::string Range(const char* start, const char* country) {
  return "insert into ShipCountry values (" + std::to_string(Key(start)) + ", '" + country + "');";
}

// Columns: Country, IcaoName, SensorHT, State, Station, StationHT, StationLat, StationLong,
// WMOIndex.
constexpr const char* Stations = R"(
insert into MeteoStations (Country, IcaoName, SensorHT, State, Station, StationHT, StationLat,
                           StationLong, WMOIndex) values
  ('Italy', 'LIRF', 3, '', ' Rome Fiumicino ', 3, '41.48N', '012.14E', 16242),
  ('United Kingdom ', 'EGLL', null, null, 'London', 25.4, '51.29N', '000.27W', 3772),
  ('United States', 'KDEN', null, 'CO', 'Denver', 1655, '39.50N', '104.39W', 72565),
  ('Brazil', 'SBGL', 10500, '', 'Rio', 9, '22.49S', '043.15W', 83746),
  ('Mauritius', 'FIMP', null, '', 'Plaisance', 55, '20.26S', '057.41E', 61990),
  ('Second', 'EGLL', 1, 'XX', 'London', 99, '10.00N', '010.00E', 3772),
  ('Italy', '', null, '', 'L''Aquila', null, '42.22N', '013.18E', -1),
  ('Nowhere', 'XXXX', null, '', 'The "Rock"', 'high', '36.9N', '', -1),
  ('Equator', 'YYYY', null, '', 'Zero', 0, '00.00S', '000.00W', 0);
)";

struct Directory : testing::Test {
  void SetUp() override {
    MakeDatabase(folder / "ICAOData.mdb",
                 std::string(Stations) + Range("C6A", "Bahamas") + Range("AAA", "United States") +
                     Range("AM0", " Spain ") + Range("AP0", "") + Range("IAA", "Italy"));
    ASSERT_TRUE(database.ConnectDatabase(folder / "ICAOData.mdb"));
    ASSERT_TRUE(directory.Load(database));
  }

  TemporaryFolder folder;
  RecordingPrompt prompt;
  DBUtility database{prompt};
  StationDirectory directory;
};

TEST_F(Directory, Rows) {
  ASSERT_EQ(directory.Size(), 9u);
  const StationRow& rome = directory.Rows()[0];
  EXPECT_EQ(rome.id, 0);
  EXPECT_EQ(rome.WMOIndex, 16242);
  EXPECT_EQ(rome.Country, "Italy");
  EXPECT_EQ(rome.IcaoName, "LIRF");
  EXPECT_EQ(rome.State, "");
  EXPECT_EQ(rome.Station, "Rome Fiumicino");
  EXPECT_FLOAT_EQ(rome.Lat, 418.0f);
  EXPECT_FLOAT_EQ(rome.Long, 122.333333f);
  EXPECT_EQ(rome.StationHT, "0003");
  EXPECT_EQ(rome.SensorHT, "0003");
  EXPECT_EQ(rome.Quadrant, 1);
  const StationRow& london = directory.Rows()[1];
  EXPECT_EQ(london.Country, "United Kingdom");
  EXPECT_EQ(london.StationHT, "0025");
  EXPECT_EQ(london.SensorHT, "");
  EXPECT_EQ(directory.Rows()[3].SensorHT, "10500");
}

TEST_F(Directory, FindByWMOIndex) {
  struct Row {
    const char* word;
    int id;  // -1: nothing
  };
  const Row rows[] = {
      {"16242", 0}, {"03772", 1},   {"3772", 1},   {"+3772", 1},  {"3772.0", 1},
      {"00000", 8}, {"3772.5", -1}, {"", -1},      {"-1", -1},    {"99999", -1},
      {"LIRF", -1}, {"3772A", -1},  {"/////", -1}, {" 3772", -1}, {"99999999999999999999", -1},
  };
  for (const Row& row : rows) {
    const StationRow* found = directory.FindByWMOIndex(row.word);
    EXPECT_EQ(found != nullptr ? found->id : -1, row.id) << row.word;
  }
}

TEST_F(Directory, FindByIcaoName) {
  struct Row {
    const char* name;
    int id;
  };
  const Row rows[] = {{"LIRF", 0},   {"EGLL", 1}, {"lirf", -1}, {"LIR", -1},
                      {"LIRFA", -1}, {"", -1},    {"L'RF", -1}, {"ZZZZ", -1}};
  for (const Row& row : rows) {
    const StationRow* found = directory.FindByIcaoName(row.name);
    EXPECT_EQ(found != nullptr ? found->id : -1, row.id) << row.name;
  }
}

TEST_F(Directory, FindByWord) {
  struct Row {
    const char* word;
    int id;
    bool byNumber;
  };
  const Row rows[] = {{"LIRF", 0, false},  {"EGLL", 1, false},   {"16242", 0, true},
                      {"03772", 1, true},  {"00000", 8, true},   {"99999", -1, true},
                      {"ZZZZ", -1, false}, {"1624A", -1, false}, {"", -1, false}};
  for (const Row& row : rows) {
    const StationFound found = directory.FindByWord(row.word);
    EXPECT_EQ(found.Word, row.word);
    EXPECT_EQ(found.Row != nullptr ? found.Row->id : -1, row.id) << row.word;
    EXPECT_EQ(found.ByNumber, row.byNumber) << row.word;
  }
}

// A look-up of before serves for the same word in the same way, and for no other.
TEST_F(Directory, LookUpsMadeBefore) {
  const StationFound rome = directory.FindByWord("LIRF");
  const StationFound london = directory.FindByWord("03772");
  const StationFound none = directory.FindByWord("ZZZZ");
  for (const StationFound& before : {rome, london, none, StationFound{}}) {
    for (const char* word : {"LIRF", "EGLL", "ZZZZ", "03772", "3772", "16242", ""}) {
      EXPECT_EQ(directory.FindByIcaoName(word, before), directory.FindByIcaoName(word))
          << word << " behind " << before.Word;
      EXPECT_EQ(directory.FindByWMOIndex(word, before), directory.FindByWMOIndex(word))
          << word << " behind " << before.Word;
    }
  }
  // It is what was found, not looked up again.
  const StationFound other{.Word = "LIRF", .Row = london.Row};
  EXPECT_EQ(directory.FindByIcaoName("LIRF", other), london.Row);
  EXPECT_EQ(directory.FindByWMOIndex("03772", {.Word = "03772", .Row = rome.Row, .ByNumber = true}),
            rome.Row);
}

// To expect a word changes nothing, in a directory without stations too.
TEST_F(Directory, ExpectWord) {
  const StationDirectory empty;
  for (const char* word : {"LIRF", "16242", "ZZZZ", "99999", "", "A name of many characters"}) {
    const StationRow* row = directory.FindByWord(word).Row;
    directory.ExpectWord(word);
    EXPECT_EQ(directory.FindByWord(word).Row, row) << word;
    empty.ExpectWord(word);
    EXPECT_EQ(empty.FindByWord(word).Row, nullptr) << word;
  }
}

TEST_F(Directory, LookUpsByName) {
  EXPECT_EQ(directory.GetCountryByStation("London"), "United Kingdom");
  EXPECT_EQ(directory.GetCountryByStation("L'Aquila"), "Italy");
  EXPECT_EQ(directory.GetCountryByStation("The \"Rock\""), "");
  EXPECT_EQ(directory.GetCountryByStation("None"), "");
  EXPECT_EQ(directory.GetCountryByStation(""), "");

  EXPECT_EQ(directory.GetIcaoNameByStation("London"), "EGLL");
  EXPECT_EQ(directory.GetIcaoNameByStation("The \"Rock\""), "XXXX");
  EXPECT_EQ(directory.GetIcaoNameByStation("L'Aquila"), "");
  EXPECT_EQ(directory.GetIcaoNameByStation("None"), "");

  EXPECT_EQ(directory.GetStationByIcaoName("KDEN"), "Denver");
  EXPECT_EQ(directory.GetStationByIcaoName("NONE"), "");
  EXPECT_EQ(directory.GetStationByIcaoName(""), "");
  EXPECT_EQ(directory.GetStationByIcaoName("K'EN"), "");

  EXPECT_EQ(directory.GetICAOIdByStation("Denver"), 72565);
  EXPECT_EQ(directory.GetICAOIdByStation("L'Aquila"), -1);
  EXPECT_EQ(directory.GetICAOIdByStation("The \"Rock\""), std::nullopt);
  EXPECT_EQ(directory.GetICAOIdByStation("None"), std::nullopt);

  using Names = std::vector<std::string_view>;
  EXPECT_EQ(directory.GetWMOList("Italy"), (Names{"Rome Fiumicino", "L'Aquila"}));
  EXPECT_EQ(directory.GetWMOList("It\"aly"), Names{});
  EXPECT_EQ(directory.GetWMOList("None"), Names{});
}

TEST_F(Directory, LookUpsByIndex) {
  EXPECT_EQ(directory.GetCountryByWMOIndex(3772), "United Kingdom");
  EXPECT_EQ(directory.GetCountryByWMOIndex(-1), "");
  EXPECT_EQ(directory.GetCountryByWMOIndex(1), "");
  EXPECT_EQ(directory.GetStationByWMOIndex(1), nullptr);
  struct Row {
    std::int32_t index;
    const char* name;
    int quadrant;
  };
  for (const Row& row : {Row{16242, "Rome Fiumicino", 1}, Row{72565, "Denver", 7},
                         Row{83746, "Rio", 5}, Row{61990, "Plaisance", 3}, Row{0, "Zero", 5}}) {
    const StationRow* found = directory.GetStationByWMOIndex(row.index);
    ASSERT_NE(found, nullptr) << row.index;
    EXPECT_EQ(found->Station, row.name);
    EXPECT_EQ(found->Quadrant, row.quadrant);
  }
}

TEST_F(Directory, GetShipCountry) {
  struct Row {
    const char* callSign;
    const char* country;
  };
  const Row rows[] = {
      {"AAA", "United States"},
      {"ABCD", "United States"},  // between two ranges: the lower one
      {"AMAA", "Spain"},
      {"AOZ9", "Spain"},
      {"AP01", ""},  // a range that is nobody's
      {"C6AB2", "Bahamas"},
      {"C69", ""},  // AP0 is the range below
      {"IBXY", "Italy"},
      {"ZZZZ", "Italy"},  // the last range has no end
      {"AA0", ""},        // below the first range
      {"SHIP", ""},
      {"SHIPS", ""},
      {"SHI", "Italy"},
      {"IA", ""},
      {"I", ""},
      {"", ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(directory.GetShipCountry(row.callSign), row.country) << row.callSign;
  }
}

TEST_F(Directory, CountryOfShipsAndBuoys) {
  struct Row {
    const char* name;
    const char* country;
  };
  const Row rows[] = {
      {"IBXY [45.30N 012.18E]", "Italy"},
      {"C6AB2 [45.30N 012.18E]", "Bahamas"},
      {"62001 [45.30N 012.18E]", ""},
      {"SHIP [45.30N 012.18E]", ""},
      {"IA [45.30N 012.18E]", ""},
      {"]", ""},
      {"I]", ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(directory.GetCountryByStation(row.name), row.country) << row.name;
  }
}

TEST_F(Directory, LoadStationRecordFillsAnEmptyBlock) {
  StationBlock block;
  block.Station = "16242";
  LoadStationRecord(directory.FindByWMOIndex("16242"), block);
  EXPECT_EQ(block.Station, "Rome Fiumicino");
  EXPECT_EQ(block.WMOIndex, 16242);
  EXPECT_EQ(block.Country, "Italy");
  EXPECT_EQ(block.IcaoName, "LIRF");
  EXPECT_EQ(block.State, "");
  EXPECT_EQ(block.LatPosition, 418.0f);
  EXPECT_FLOAT_EQ(block.LongPosition.value_or(0), 122.333333f);
  EXPECT_EQ(block.StationHT, "0003");
  EXPECT_EQ(block.SensorHT, "0003");
  EXPECT_EQ(block.Quadrant, 1);
}

TEST_F(Directory, LoadStationRecordKeepsWhatIsKnown) {
  StationBlock block;
  block.Station = "word";
  block.WMOIndex = 7;
  block.Country = "Country";
  block.IcaoName = "ICAO";
  block.State = "ST";
  block.LatPosition = -1.0f;
  block.LongPosition = -2.0f;
  block.StationHT = "1";
  block.SensorHT = "2";
  LoadStationRecord(directory.FindByIcaoName("LIRF"), block);
  EXPECT_EQ(block.Station, "Rome Fiumicino");
  EXPECT_EQ(block.WMOIndex, 7);
  EXPECT_EQ(block.Country, "Country");
  EXPECT_EQ(block.IcaoName, "ICAO");
  EXPECT_EQ(block.State, "ST");
  EXPECT_EQ(block.LatPosition, -1.0f);
  EXPECT_EQ(block.LongPosition, -2.0f);
  EXPECT_EQ(block.StationHT, "1");
  EXPECT_EQ(block.SensorHT, "2");
  EXPECT_EQ(block.Quadrant, 5);  // of the position in the block

  block.Quadrant = 9;
  LoadStationRecord(directory.FindByIcaoName("LIRF"), block);
  EXPECT_EQ(block.Quadrant, 9);
}

TEST_F(Directory, LoadStationRecordQuadrants) {
  struct Row {
    const char* index;
    int quadrant;
  };
  for (const Row& row : {Row{"16242", 1}, Row{"72565", 7}, Row{"83746", 5}, Row{"61990", 3},
                         Row{"0", 1}}) {  // by the signs: zero is not below zero
    StationBlock block;
    LoadStationRecord(directory.FindByWMOIndex(row.index), block);
    EXPECT_EQ(block.Quadrant, row.quadrant) << row.index;
  }
}

TEST_F(Directory, LoadStationRecordOddColumns) {
  StationBlock block;
  LoadStationRecord(directory.FindByIcaoName("XXXX"), block);
  EXPECT_EQ(block.Station, "The \"Rock\"");
  EXPECT_EQ(block.WMOIndex, -1);
  EXPECT_EQ(block.StationHT, "");
  EXPECT_EQ(block.LatPosition, 0.0f);
  EXPECT_EQ(block.LongPosition, 0.0f);
}

TEST_F(Directory, UnknownStationChangesNothing) {
  StationBlock block;
  block.Station = "99999";
  LoadStationRecord(directory.FindByWMOIndex("99999"), block);
  EXPECT_EQ(block.Station, "99999");
  EXPECT_EQ(block.WMOIndex, -1);
  EXPECT_EQ(block.Country, "");
  EXPECT_FALSE(block.LatPosition);
  EXPECT_FALSE(block.Quadrant);
}

TEST_F(Directory, LoadReplaces) {
  ASSERT_TRUE(database.Query("delete from MeteoStations where IcaoName <> 'KDEN'"));
  ASSERT_TRUE(directory.Load(database));
  EXPECT_EQ(directory.Size(), 1u);
  EXPECT_EQ(directory.FindByIcaoName("LIRF"), nullptr);
  EXPECT_EQ(directory.GetStationByIcaoName("KDEN"), "Denver");
}

TEST_F(Directory, MovedDirectoryKeepsItsTexts) {
  const StationDirectory moved = std::move(directory);
  EXPECT_EQ(moved.GetStationByIcaoName("KDEN"), "Denver");
  EXPECT_EQ(moved.GetShipCountry("AMAA"), "Spain");
}

TEST(StationDirectory, WithoutDatabase) {
  RecordingPrompt prompt;
  DBUtility database(prompt);
  StationDirectory directory;
  EXPECT_FALSE(directory.Load(database));
  EXPECT_EQ(directory.Size(), 0u);
  EXPECT_EQ(directory.FindByWMOIndex("16242"), nullptr);
  EXPECT_EQ(directory.FindByIcaoName("LIRF"), nullptr);
  EXPECT_EQ(directory.GetCountryByStation("London"), "");
  EXPECT_EQ(directory.GetShipCountry("AMAA"), "");
}

// Enough rows that look-ups meet in the same slots; every one must be found again.
TEST(StationDirectory, ManyStations) {
  const TemporaryFolder folder;
  constexpr int Count = 3000;
  std::string rows;
  for (int i = 0; i < Count; ++i) {
    const std::string number = std::to_string(i * 32);
    rows += "insert into MeteoStations (Station, IcaoName, WMOIndex) values ('Place " + number +
            "', 'I" + number + "', " + number + ");";
  }
  MakeDatabase(folder / "ICAOData.mdb", rows);
  RecordingPrompt prompt;
  DBUtility database(prompt);
  ASSERT_TRUE(database.ConnectDatabase(folder / "ICAOData.mdb"));
  StationDirectory directory;
  ASSERT_TRUE(directory.Load(database));
  ASSERT_EQ(directory.Size(), static_cast<std::size_t>(Count));
  for (int i = 0; i < Count; ++i) {
    const std::string number = std::to_string(i * 32);
    const StationRow* row = directory.FindByWMOIndex(number);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->id, i);
    EXPECT_EQ(directory.FindByIcaoName(std::string("I").append(number)), row);
    EXPECT_EQ(directory.GetICAOIdByStation(std::string("Place ").append(number)), i * 32);
    EXPECT_EQ(directory.FindByWMOIndex(std::to_string(i * 32 + 1)), nullptr);
  }
}

}  // namespace
}  // namespace zg
