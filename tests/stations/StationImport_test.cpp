#include "stations/StationImport.h"

#include <gtest/gtest.h>

#include "stations/StationDirectory.h"
#include "stations/TestDatabase.h"

namespace zg {
namespace {

using test::MakeDatabase;
using test::ReadTestFile;
using test::RecordingLog;
using test::RecordingProgress;
using test::RecordingPrompt;
using test::RunSql;
using test::TemporaryFolder;
using test::WriteTestFile;

using Names = std::vector<std::string>;

struct Import : testing::Test {
  void SetUp() override {
    MakeDatabase(path);
    ASSERT_TRUE(database.ConnectDatabase(path));
    texts.SetLanguage(1);
  }

  StationImport Read(std::string_view list) {
    WriteTestFile(folder / "list.txt", list);
    return ImportStationList(folder / "list.txt", database, log, progress);
  }

  // The rows of the table, columns in the order of the schema joined with "|", "~" for NULL.
  Names Rows() {
    Names rows;
    database.ReadRows("select * from MeteoStations order by rowid", [&](const RowView& row) {
      std::string text;
      for (int i = 0; i < 12; ++i) {
        if (i > 0) text += '|';
        text += row.IsNull(i) ? "~" : row.Text(i);
      }
      rows.push_back(text);
    });
    return rows;
  }

  TemporaryFolder folder;
  std::string path = folder / "ICAOData.mdb";
  RecordingPrompt prompt;
  RecordingLog log;
  RecordingProgress progress;
  TextUtility texts;
  DBUtility database{prompt, 1};
  GenericUtility parameters{folder.Path(), prompt, texts};
};

// Columns: Country, IcaoName, SensorHT, SensorLat, SensorLong, State, Station, StationHT,
// StationLat, StationLong, WMOIndex, WMORegion.
TEST_F(Import, Lines) {
  struct Row {
    const char* name;
    const char* line;
    const char* row;
  };
  const Row rows[] = {
      {"index first", "03;772;EGLL;London;;United Kingdom;6;51-29N;000-27W;;;25;24;",
       "United Kingdom|EGLL|24.0||||London|25.0|51.29N|000.27W|3772|6"},
      {"index first without indicator", "01;001;----;Jan Mayen;;Norway;6;70-56N;008-40W;;;10;;",
       "Norway||~||||Jan Mayen|10.0|70.56N|008.40W|1001|6"},
      {"ICAO first", "AGGH;91;520;Honiara;;Solomon Islands;5;09-25S;160-03E;;;9;;",
       "Solomon Islands|AGGH|~||||Honiara|9.0|09.25S|160.03E|91520|5"},
      {"ICAO first without index", "AQBC;--;---;Boulder Clay;;Antarctica;;74-44S;164-02E;;;205;;",
       "Antarctica|AQBC|~||||Boulder Clay|205.0|74.44S|164.02E|-1|"},
      {"seconds", "16;242;LIRF;Rome;;Italy;6;41-48-31N;012-14-30E;41-59-31N;012-59-59E;3;3;",
       "Italy|LIRF|3.0|42.00N|013.00E||Rome|3.0|41.49N|012.14E|16242|6"},
      {"seconds below", "16;242;LIRF;Rome;;Italy;6;51-29-40N;012-14E;51-29-30N;;3;;",
       "Italy|LIRF|~|51.29N|||Rome|3.0|51.30N|012.14E|16242|6"},
      {"minutes of a degree", "16;242;LIRF;Rome;;Italy;6;51-59-31N;012-59-31E;;;3;;",
       "Italy|LIRF|~||||Rome|3.0|52.00N|013.00E|16242|6"},
      {"two digits of degrees", "16;242;LIRF;Rome;;Italy;6;41-48N;12-14E;;;3;;",
       "Italy|LIRF|~||||Rome|3.0|41.48N|12.14E|16242|6"},
      {"two digits of degrees, seconds", "16;242;LIRF;Rome;;Italy;6;41-48N;12-14-31E;;;3;;",
       "Italy|LIRF|~||||Rome|3.0|41.48N|12.15E|16242|6"},
      {"sensor of another length", "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;41N;12-14E;3;;",
       "Italy|LIRF|~||||Rome|3.0|41.48N|012.14E|16242|6"},
      {"state", "72;565;KDEN;Denver;CO;United States;4;39-50N;104-39W;;;1655;;",
       "United States|KDEN|~|||CO|Denver|1655.0|39.50N|104.39W|72565|4"},
      {"heights that are no numbers", "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;;;low;1,5;",
       "Italy|LIRF|~||||Rome|~|41.48N|012.14E|16242|6"},
      {"a height that no field holds",
       "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;;;99999999999999999999999999999999999999999;3;",
       "Italy|LIRF|3.0||||Rome|~|41.48N|012.14E|16242|6"},
      {"heights with a point and below the sea",
       "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;;;-3;1.5;",
       "Italy|LIRF|1.5||||Rome|-3.0|41.48N|012.14E|16242|6"},
      {"the height that means none", "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;;;32767;32767;",
       "Italy|LIRF|~||||Rome|~|41.48N|012.14E|16242|6"},
      {"empty name", "16;242;LIRF;;;;;41-48N;012-14E;;;;;", "|LIRF|~|||||~|41.48N|012.14E|16242|"},
      {"index that is no number", "1A;242;LIRF;Rome;;Italy;6;41-48N;012-14E;;;3;;",
       "Italy|LIRF|~||||Rome|3.0|41.48N|012.14E|-1|6"},
      {"more behind the tenth field", "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;;;3;;rest",
       "Italy|LIRF|~||||Rome|3.0|41.48N|012.14E|16242|6"},
      {"one field too many", "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;;;3;;rest;",
       "Italy|LIRF|~||||Rome|3.0|41.48N|012.14E|16242|6"},
      {"fields missing", "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;",
       "Italy|LIRF|~||||Rome|~|41.48N|012.14E|16242|6"},
      {"position missing", "16;242;LIRF;Rome;", "|LIRF|~||||Rome|~|||16242|"},
      {"a word", "LIRF", "|LIRF|~|||||~|||-1|"},
      {"very short", "x", "|x|~|||||~|||-1|"},
      {"8-bit name", "16;242;LIRF;Cittadell\xE0;;Italy;6;41-48N;012-14E;;;3;;",
       "Italy|LIRF|~||||Cittadellà|3.0|41.48N|012.14E|16242|6"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ASSERT_TRUE(database.Query("delete from MeteoStations"));
    const StationImport import = Read(std::string(row.line) + "\nlast line\n");
    EXPECT_EQ(import.Outcome, StationImport::Result::Done);
    EXPECT_EQ(import.Rows, 1);
    EXPECT_EQ(Rows(), Names{row.row});
  }
  EXPECT_TRUE(log.Lines.empty());
  EXPECT_TRUE(log.Enabled);
}

TEST_F(Import, LongTextsAreCut) {
  const std::string name(80, 'n');
  const std::string country(60, 'c');
  Read("16;242;LIRF;" + name + ";STATE;" + country + ";6;41-48N;012-14E;;;3;;\n-\n");
  EXPECT_EQ(Rows(), Names{country.substr(0, 50) + "|LIRF|~|||ST|" + name.substr(0, 75) +
                          "|3.0|41.48N|012.14E|16242|6"});
}

TEST_F(Import, TextsAreCutByCharacters) {
  std::string name;
  for (int i = 0; i < 80; ++i) name += "à";
  Read("16;242;LIRF;" + name + ";àèì;Italy;6;41-48N;012-14E;;;3;;\n-\n");
  EXPECT_EQ(Rows(),
            Names{"Italy|LIRF|~|||àè|" + name.substr(0, 150) + "|3.0|41.48N|012.14E|16242|6"});
}

TEST_F(Import, LastLineIsNoStation) {
  constexpr const char* A = "16;242;LIRF;A;;Italy;6;41-48N;012-14E;;;3;;";
  constexpr const char* B = "16;243;LIRG;B;;Italy;6;41-48N;012-14E;;;3;;";
  struct Row {
    const char* name;
    std::string list;
    int rows;
  };
  const std::string a = A;
  const Row rows[] = {
      {"nothing", "", 0},
      {"one line", a, 0},
      {"one line with its end", a + "\n", 0},
      {"two lines", a + "\n" + B, 1},
      {"two lines with their ends", a + "\n" + B + "\n", 1},
      {"CR LF", a + "\r\n" + B + "\r\n", 1},
      {"a blank line at the end", a + "\n" + B + "\n\n", 2},
      {"blank lines between", "\n   \n" + a + "\n\n" + B + "\n.\n", 2},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ASSERT_TRUE(database.Query("delete from MeteoStations"));
    EXPECT_EQ(Read(row.list).Rows, row.rows);
    EXPECT_EQ(Rows().size(), static_cast<std::size_t>(row.rows));
  }
}

TEST_F(Import, ProgressInBytes) {
  Read("LIRF\r\n\r\nLIRA\nend");
  EXPECT_EQ(progress.Maximum, 16);
  EXPECT_EQ(progress.Positions, (std::vector<std::int64_t>{6, 8, 13, 16}));
  EXPECT_EQ(progress.Yields, 2);
}

TEST_F(Import, FatalCoordinates) {
  struct Row {
    const char* name;
    const char* line;
  };
  const Row rows[] = {
      {"latitude empty", "16;242;LIRF;Rome;;Italy;6;;012-14E;;;3;;"},
      {"latitude short", "16;242;LIRF;Rome;;Italy;6;1-48N;012-14E;;;3;;"},
      {"latitude like a longitude", "16;242;LIRF;Rome;;Italy;6;041-48N;012-14E;;;3;;"},
      {"longitude empty", "16;242;LIRF;Rome;;Italy;6;41-48N;;;;3;;"},
      {"longitude long", "16;242;LIRF;Rome;;Italy;6;41-48N;0012-14-00E;;;3;;"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string good = "16;239;LIRA;Ciampino;;Italy;6;41-48N;012-35E;;;105;;\n\n";
    const StationImport import = Read(good + row.line + "\n" + good);
    EXPECT_EQ(import.Outcome, StationImport::Result::Fatal);
    EXPECT_EQ(import.Line, 3);
    EXPECT_EQ(import.Message,
              folder / "list.txt" + ", line 3: the position of the station has a wrong length");
    EXPECT_TRUE(log.Enabled);
  }
}

TEST_F(Import, MissingFileGoesToTheLog) {
  const StationImport import = ImportStationList(folder / "none.txt", database, log, progress);
  EXPECT_EQ(import.Outcome, StationImport::Result::Done);
  EXPECT_EQ(import.Rows, 0);
  EXPECT_EQ(log.Lines, Names{folder / "none.txt" + ": No such file or directory"});
}

TEST_F(Import, RefusedRowsAreDropped) {
  ASSERT_TRUE(database.Query("create unique index OneName on MeteoStations (IcaoName)"));
  EXPECT_EQ(Read("LIRA\nLIRA\nLIRB\nend").Rows, 2);
  EXPECT_EQ(Rows().size(), 2u);
  EXPECT_TRUE(log.Lines.empty());
}

// --- The build -----------------------------------------------------------------------------------

struct Build : Import {
  void SetUp() override {
    Import::SetUp();
    WriteTestFile(folder / "zephyrgram.ini",
                  "IndexKeyWMOStation = wmo.txt\nIcaoIdKeyWMOStation = icao.txt\n");
    WriteTestFile(folder / "wmo.txt",
                  "16;242;LIRF;Rome;;Italy;6;41-48N;012-14E;;;3;;\n"
                  "03;772;EGLL;London;;United Kingdom;6;51-29N;000-27W;;;25;;\nend\n");
    WriteTestFile(folder / "icao.txt",
                  "LIRF;16;242;Fiumicino;;Italy;6;41-48N;012-14E;;;3;;\nend\n");
  }

  StationBuild Run() {
    return BuildStationTable(parameters, database, texts, log, progress, prompt,
                             [this] { log.Log(std::to_string(Rows().size()) + " rows"); });
  }
};

TEST_F(Build, English) {
  EXPECT_TRUE(IsStationTableEmpty(database));
  const StationBuild build = Run();
  EXPECT_EQ(build.Outcome, StationBuild::Result::Built);
  EXPECT_EQ(build.Rows, 3);
  EXPECT_FALSE(IsStationTableEmpty(database));
  EXPECT_EQ(log.Lines,
            (Names{"WMO Station Database Empty. Build Requested!", "Building WMO Database ...  ",
                   "Processing file ... wmo.txt", "Processing file ... icao.txt", "3 rows",
                   "Building completed succesfully. Ready!"}));
  EXPECT_EQ(log.Refreshes, 2);
  EXPECT_EQ(StationBuildStatus(texts), "Building WMO Database ... ");
  EXPECT_TRUE(prompt.Boxes.empty());

  // The row of the list by index came first.
  StationDirectory directory;
  ASSERT_TRUE(directory.Load(database));
  EXPECT_EQ(directory.GetStationByIcaoName("LIRF"), "Rome");
}

TEST_F(Build, Italian) {
  texts.SetLanguage(0);
  EXPECT_EQ(Run().Outcome, StationBuild::Result::Built);
  EXPECT_EQ(log.Lines, (Names{"Database Stazioni WMO non creato.", "Creazione DB WMO ... ",
                              "Processamento file ... wmo.txt", "Processamento file ... icao.txt",
                              "3 rows", "Creazione completata con successo."}));
  EXPECT_EQ(StationBuildStatus(texts), "Creazione DB WMO ... ");
}

TEST_F(Build, OnlyOnce) {
  Run();
  log.Lines.clear();
  EXPECT_EQ(Run().Outcome, StationBuild::Result::NotNeeded);
  EXPECT_TRUE(log.Lines.empty());
  EXPECT_EQ(Rows().size(), 3u);
}

TEST_F(Build, MissingListIsLoggedAndTheOtherRead) {
  std::filesystem::remove(folder / "wmo.txt");
  const StationBuild build = Run();
  EXPECT_EQ(build.Outcome, StationBuild::Result::Built);
  EXPECT_EQ(build.Rows, 1);
  ASSERT_EQ(log.Lines.size(), 7u);
  EXPECT_EQ(log.Lines[3], folder / "wmo.txt" + ": No such file or directory");
}

TEST_F(Build, FatalFaultLeavesTheTableEmpty) {
  WriteTestFile(folder / "icao.txt", "LIRF;16;242;Rome;;Italy;6;41N;012-14E;;;3;;\nend\n");
  const StationBuild build = Run();
  EXPECT_EQ(build.Outcome, StationBuild::Result::Fatal);
  EXPECT_EQ(build.Message,
            folder / "icao.txt" + ", line 1: the position of the station has a wrong length");
  ASSERT_EQ(prompt.Boxes.size(), 1u);
  EXPECT_EQ(prompt.Boxes[0].icon, Prompt::Icon::Critical);
  EXPECT_EQ(prompt.Boxes[0].text, build.Message);
  EXPECT_TRUE(IsStationTableEmpty(database));
  EXPECT_EQ(log.Lines.size(), 4u);
  EXPECT_TRUE(log.Enabled);
}

TEST_F(Build, LockedDatabase) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "begin immediate", nullptr, nullptr, nullptr), SQLITE_OK);
  const StationBuild build = Run();
  sqlite3_close(other);
  EXPECT_EQ(build.Outcome, StationBuild::Result::Failed);
  EXPECT_EQ(build.Message, "database is locked");
  EXPECT_EQ(prompt.Boxes.size(), 1u);
  EXPECT_TRUE(log.Lines.empty());
}

TEST_F(Build, FullDatabaseLeavesTheTableEmpty) {
  std::string list;
  for (int i = 0; i < 2000; ++i) {
    list += "16;242;LIRF;A place with a long name;;Italy;6;41-48N;012-14E;;;3;;\n";
  }
  WriteTestFile(folder / "wmo.txt", list);
  ASSERT_TRUE(database.ReadRows("pragma max_page_count = 20", [](const RowView&) {}));
  const StationBuild build = Run();
  EXPECT_EQ(build.Outcome, StationBuild::Result::Failed);
  EXPECT_EQ(build.Message, "database or disk is full");
  EXPECT_TRUE(IsStationTableEmpty(database));
}

TEST_F(Build, TableThatIsNotThere) {
  RunSql(path, "drop table MeteoStations");
  EXPECT_FALSE(IsStationTableEmpty(database));
  const StationBuild build = Run();
  EXPECT_EQ(build.Outcome, StationBuild::Result::Failed);
  EXPECT_EQ(build.Message, "no such table: MeteoStations");
  EXPECT_EQ(prompt.Boxes.size(), 1u);
}

TEST_F(Build, WithoutConnection) {
  DBUtility unconnected(prompt);
  const StationBuild build =
      BuildStationTable(parameters, unconnected, texts, log, progress, prompt);
  EXPECT_EQ(build.Outcome, StationBuild::Result::Failed);
  EXPECT_EQ(build.Message, "database not connected");
  EXPECT_TRUE(prompt.Boxes.empty());
}

TEST_F(Build, ShippedLists) {
  for (const char* name : {"zephyrgram.ini", "wmo_index.txt", "icao_index.txt"}) {
    std::filesystem::copy(std::string(ZG_SOURCE_DIR) + "/data/" + name, folder / name,
                          std::filesystem::copy_options::overwrite_existing);
  }
  const StationBuild build = Run();
  ASSERT_EQ(build.Outcome, StationBuild::Result::Built) << build.Message;
  EXPECT_GT(build.Rows, 20000);
  StationDirectory directory;
  ASSERT_TRUE(directory.Load(database));
  EXPECT_EQ(directory.Size(), static_cast<std::size_t>(build.Rows));
  struct Row {
    const char* index;
    const char* icaoName;
    const char* country;
    int quadrant;
  };
  for (const Row& row :
       {Row{"16242", "LIRF", "Italy", 1}, Row{"03772", "EGLL", "United Kingdom", 7},
        Row{"94767", "YSSY", "Australia", 3}, Row{"83746", "SBGL", "Brazil", 5}}) {
    SCOPED_TRACE(row.index);
    const StationRow* byIndex = directory.FindByWMOIndex(row.index);
    const StationRow* byIcaoName = directory.FindByIcaoName(row.icaoName);
    ASSERT_NE(byIndex, nullptr);
    ASSERT_NE(byIcaoName, nullptr);
    EXPECT_EQ(byIndex->Country, row.country);
    EXPECT_EQ(byIcaoName->Country, row.country);
    EXPECT_EQ(byIndex->Quadrant, row.quadrant);
  }
}

}  // namespace
}  // namespace zg
