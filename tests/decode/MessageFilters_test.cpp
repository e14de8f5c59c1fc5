#include "decode/MessageFilters.h"

#include <gtest/gtest.h>

#include "stations/TestDatabase.h"

namespace zg {
namespace {

using test::MakeDatabase;
using test::RecordingPrompt;
using test::TemporaryFolder;
using test::WriteTestFile;

using List = std::vector<std::string>;

TEST(MessageFilters, CheckCountryList) {
  struct Row {
    const char* name;
    List list;
    const char* country;
    bool passes;
  };
  const Row rows[] = {
      {"open filter", {""}, "Italy", true},
      {"open filter, no country", {""}, "", false},
      {"blank element opens too", {"France", "  "}, "Italy", true},
      {"no element", {}, "Italy", false},
      {"the one", {"Italy"}, "Italy", true},
      {"trimmed", {" Italy "}, "Italy  ", true},
      {"not the one", {"Italy"}, "France", false},
      {"the last of several", {"Spain", "Italy", "France"}, "France", true},
      {"case counts", {"Italy"}, "ITALY", false},
      {"no part of a name", {"Niger"}, "Nigeria", false},
      {"no country", {"Italy"}, "", false},
      {"ship of an unknown country", {"Unknow"}, "Unknow", true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(CheckCountryList(row.list, row.country), row.passes) << row.name;
  }
}

TEST(MessageFilters, CountryFilterText) {
  struct Row {
    const char* text;
    List list;
    const char* joined;
  };
  const Row rows[] = {
      {"", {""}, ", "},
      {"Italy,", {"Italy"}, "Italy, "},
      {"Italy, ", {"Italy"}, "Italy, "},
      {"Italy, France,", {"Italy", "France"}, "Italy, France, "},
      {"Italy, France", {"Italy", "France"}, "Italy, France, "},
      {",", {""}, ", "},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(SplitCountryFilter(row.text), row.list) << row.text;
    EXPECT_EQ(JoinCountryFilter(row.list), row.joined) << row.text;
  }
  EXPECT_EQ(JoinCountryFilter({}), "");
}

TEST(MessageFilters, ReadMessageFilters) {
  struct Row {
    const char* name;
    const char* file;
    List countries;
    int quadrants;
    int stations;
  };
  const Row rows[] = {
      {"open", "CountryFilter = \nQuadrantFilter = 15\nStationType = 7\n", {""}, 15, 7},
      {"some",
       "CountryFilter = Italy, Malta,\nQuadrantFilter = 9\nStationType = 4\n",
       {"Italy", "Malta"},
       9,
       4},
      {"no numbers", "CountryFilter = \nQuadrantFilter = x\nStationType = \n", {""}, 0, 0},
      {"out of range", "CountryFilter = \nQuadrantFilter = 256\nStationType = -1\n", {""}, 0, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const TemporaryFolder folder;
    WriteTestFile(folder / "zephyrgram.ini", row.file);
    RecordingPrompt prompt;
    const TextUtility texts;
    const MessageFilters filters = ReadMessageFilters(GenericUtility(folder.Path(), prompt, texts));
    EXPECT_EQ(filters.CountryList, row.countries);
    EXPECT_EQ(filters.QuadrantMask, row.quadrants);
    EXPECT_EQ(filters.StationMask, row.stations);
    EXPECT_TRUE(prompt.Boxes.empty());
  }
}

TEST(MessageFilters, GetAllCountryList) {
  const TemporaryFolder folder;
  MakeDatabase(folder / "ICAOData.mdb",
               "insert into MeteoStations (Country) values ('Italy'), (' France '), ('Italy'), "
               "(''), (null), ('  ');");
  RecordingPrompt prompt;
  DBUtility database(prompt);
  EXPECT_TRUE(GetAllCountryList(database).empty());
  ASSERT_TRUE(database.ConnectDatabase(folder / "ICAOData.mdb"));
  List countries = GetAllCountryList(database);
  std::sort(countries.begin(), countries.end());
  EXPECT_EQ(countries, (List{"France", "Italy"}));
}

}  // namespace
}  // namespace zg
