#include "stations/DBUtility.h"

#include <gtest/gtest.h>

#include <random>

#include "stations/TestDatabase.h"

namespace zg {
namespace {

using test::MakeDatabase;
using test::ReadTestFile;
using test::RecordingPrompt;
using test::RunSql;
using test::TemporaryFolder;
using test::WriteTestFile;

using Names = std::vector<std::string>;

struct Database : testing::Test {
  void SetUp() override {
    MakeDatabase(path,
                 "insert into URLAddress values (0, 'ftp://one/'), (1, 'http://two/'), (2, null);");
    ASSERT_TRUE(database.ConnectDatabase(path));
  }

  // The addresses as another connection finds them.
  Names Urls() {
    DBUtility other(prompt);
    other.ConnectDatabase(path);
    Names urls;
    other.ReadRows("select Url from URLAddress order by rowid",
                   [&](const RowView& row) { urls.emplace_back(row.Text(0)); });
    return urls;
  }

  TemporaryFolder folder;
  std::string path = folder / "ICAOData.mdb";
  RecordingPrompt prompt;
  DBUtility database{prompt};
};

TEST_F(Database, WalksThroughRows) {
  auto record = database.OpenRecord("Select * from URLAddress");
  ASSERT_TRUE(record);
  EXPECT_EQ(database.GetRecordCount(*record), 3);
  EXPECT_FALSE(record->AtEnd());
  EXPECT_EQ(record->Text("Url"), "ftp://one/");
  EXPECT_EQ(record->Text("url"), "ftp://one/");
  EXPECT_EQ(record->Number("Index"), 0.0);

  database.MoveLastRecord(*record);
  EXPECT_EQ(record->Number("Index"), 2.0);
  EXPECT_EQ(record->Text("Url"), "");
  EXPECT_TRUE(std::holds_alternative<std::monostate>(record->Field("Url")));
  database.MovePrevRecord(*record);
  EXPECT_EQ(record->Text("Index"), "1");
  EXPECT_EQ(database.GetRecordCount(*record), 3);
  EXPECT_EQ(record->Text("Index"), "1");
  database.MoveFirstRecord(*record);
  database.MovePrevRecord(*record);
  EXPECT_EQ(record->Text("Index"), "0");

  int rows = 0;
  for (; !record->AtEnd(); database.MoveNextRecord(*record)) ++rows;
  EXPECT_EQ(rows, 3);
  database.MoveNextRecord(*record);
  EXPECT_TRUE(record->AtEnd());
  EXPECT_EQ(record->Text("Url"), "");
  EXPECT_EQ(record->Number("Index"), std::nullopt);
}

TEST_F(Database, EmptyRecordset) {
  auto record = database.OpenRecord("select * from Fronts order by RecNum");
  ASSERT_TRUE(record);
  EXPECT_TRUE(record->AtEnd());
  EXPECT_EQ(database.GetRecordCount(*record), 0);
  database.MoveLastRecord(*record);
  database.MovePrevRecord(*record);
  EXPECT_TRUE(record->AtEnd());
}

TEST_F(Database, BoundValues) {
  struct Row {
    const char* name;
    const char* url;
  };
  const Row rows[] = {
      {"apostrophe", "L'AQUILA"},
      {"double quote", "a\"b"},
      {"statement", "x'; drop table URLAddress; --"},
      {"name of a column", "Index"},
      {"percent", "%"},
      {"underscore", "_"},
      {"8-bit", "\xC3\xA0"},
      {"empty", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(database.OpenRecord("select * from URLAddress where Url = ?", {row.url})->AtEnd(),
              true);
    ASSERT_TRUE(database.Query("insert into URLAddress values (?, ?)", {7, row.url}));
    auto found = database.OpenRecord("select * from URLAddress where Url = ?", {row.url});
    ASSERT_TRUE(found);
    EXPECT_EQ(database.GetRecordCount(*found), 1);
    EXPECT_EQ(found->Text("Url"), row.url);
    EXPECT_EQ(found->Number("Index"), 7.0);
  }
}

TEST_F(Database, KindsOfValues) {
  auto record = database.OpenRecord("select ?, ?, ?, ?", {std::monostate(), 3, 2.5, "text"});
  ASSERT_TRUE(record);
  database.ReadRows("select null, 3, 2.5, 'text', '2.5'", [](const RowView& row) {
    EXPECT_TRUE(row.IsNull(0));
    EXPECT_EQ(row.Number(0), std::nullopt);
    EXPECT_EQ(row.Text(0), "");
    EXPECT_EQ(row.Integer(1), 3);
    EXPECT_EQ(row.Number(1), 3.0);
    EXPECT_EQ(row.Text(2), "2.5");
    EXPECT_EQ(row.Number(2), 2.5);
    EXPECT_EQ(row.Number(3), std::nullopt);
    EXPECT_EQ(row.Number(4), 2.5);
  });
}

TEST_F(Database, AddsRows) {
  auto record = database.OpenRecord("Select * from URLAddress");
  ASSERT_TRUE(record);
  for (const char* url : {"three", "four"}) {
    database.AddNewRecord(*record);
    EXPECT_TRUE(record->SetField("Url", url));
    EXPECT_FALSE(record->SetField("None", url));
    EXPECT_EQ(database.UpdateRecord(*record), 0);
  }
  EXPECT_EQ(Urls(), (Names{"ftp://one/", "http://two/", "", "three", "four"}));
  EXPECT_EQ(database.GetRecordCount(*record), 3);
  EXPECT_FALSE(record->SetField("Url", "not begun"));
  EXPECT_NE(database.UpdateRecord(*record), 0);
}

TEST_F(Database, EditsAndDeletesRows) {
  auto record = database.OpenRecord("select * from URLAddress");
  ASSERT_TRUE(record);
  database.MoveNextRecord(*record);
  database.EditRecord(*record);
  EXPECT_TRUE(record->SetField("Url", "changed"));
  EXPECT_EQ(database.UpdateRecord(*record), 0);
  EXPECT_EQ(record->Text("Url"), "changed");
  EXPECT_EQ(Urls(), (Names{"ftp://one/", "changed", ""}));

  database.DeleteRecord(*record);
  EXPECT_EQ(record->Text("Index"), "2");
  EXPECT_EQ(Urls(), (Names{"ftp://one/", ""}));
  database.MoveNextRecord(*record);
  database.DeleteRecord(*record);
  database.EditRecord(*record);
  EXPECT_FALSE(record->SetField("Url", "no row"));
  EXPECT_EQ(Urls(), (Names{"ftp://one/", ""}));
}

TEST_F(Database, MovingGivesUpTheRowBegun) {
  auto record = database.OpenRecord("select * from URLAddress");
  ASSERT_TRUE(record);
  database.AddNewRecord(*record);
  database.MoveNextRecord(*record);
  EXPECT_FALSE(record->SetField("Url", "given up"));
  EXPECT_NE(database.UpdateRecord(*record), 0);
  EXPECT_EQ(Urls().size(), 3u);
}

TEST_F(Database, QueriesThatAreNoTableAreReadOnly) {
  auto record = database.OpenRecord("select Url from URLAddress");
  ASSERT_TRUE(record);
  database.AddNewRecord(*record);
  EXPECT_FALSE(record->SetField("Url", "x"));
  database.DeleteRecord(*record);
  EXPECT_EQ(Urls().size(), 3u);
}

TEST_F(Database, RefusedRowStaysBegun) {
  ASSERT_TRUE(database.Query("create unique index OneUrl on URLAddress (Url)"));
  auto record = database.OpenRecord("select * from URLAddress");
  ASSERT_TRUE(record);
  database.AddNewRecord(*record);
  record->SetField("Url", "ftp://one/");
  const std::int16_t error = database.UpdateRecord(*record);
  EXPECT_EQ(error, SQLITE_CONSTRAINT);
  EXPECT_TRUE(IsRowRefused(error));
  EXPECT_FALSE(IsRowRefused(SQLITE_FULL));
  EXPECT_TRUE(record->SetField("Url", "another"));
  EXPECT_EQ(database.UpdateRecord(*record), 0);
  EXPECT_EQ(Urls().back(), "another");
}

TEST_F(Database, FailingStatementsAreSilent) {
  EXPECT_FALSE(database.OpenRecord("select * from None"));
  EXPECT_EQ(database.Error(), "no such table: None");
  EXPECT_FALSE(database.OpenRecord("nonsense"));
  EXPECT_FALSE(database.OpenRecord(""));
  EXPECT_FALSE(database.Query("delete from None"));
  EXPECT_FALSE(database.ReadRows("select None from URLAddress", [](const RowView&) { FAIL(); }));
  // A double-quoted text is the name of a column and nothing else.
  EXPECT_FALSE(database.OpenRecord("select * from URLAddress where Url = \"None\""));
  EXPECT_TRUE(prompt.Boxes.empty());
}

TEST_F(Database, StructureIsSound) {
  EXPECT_TRUE(database.CheckDatabase());
  EXPECT_TRUE(prompt.Boxes.empty());
}

TEST_F(Database, StoredProgramsDoNotRun) {
  RunSql(path,
         "create view Seen as select * from URLAddress;"
         "create trigger Harm after insert on URLAddress begin delete from URLAddress; end;");
  EXPECT_FALSE(database.OpenRecord("select * from Seen"));
  EXPECT_TRUE(database.Query("insert into URLAddress values (3, 'x')"));
  EXPECT_EQ(Urls().size(), 4u);
}

TEST_F(Database, RowsOfOneConnectionAreSeenByAnother) {
  DBUtility other(prompt);
  ASSERT_TRUE(other.ConnectDatabase(path));
  ASSERT_TRUE(other.Query("insert into Fronts (Type) values (6)"));
  EXPECT_FALSE(database.OpenRecord("Select * from Fronts")->AtEnd());
  ASSERT_TRUE(database.Query("Delete from Fronts"));
  EXPECT_TRUE(other.OpenRecord("Select * from Fronts")->AtEnd());
}

// --- Files that are no database ------------------------------------------------------------------

struct NoDatabase : testing::Test {
  // Tries the file; the message box less the path.
  std::string Connect() {
    EXPECT_FALSE(database.ConnectDatabase(path));
    EXPECT_FALSE(database.IsConnected());
    EXPECT_EQ(prompt.Boxes.size(), 1u);
    if (prompt.Boxes.empty()) return {};
    EXPECT_EQ(prompt.Boxes[0].icon, Prompt::Icon::None);
    EXPECT_TRUE(prompt.Boxes[0].text.starts_with(path + ": "));
    return prompt.Boxes[0].text.substr(path.size() + 2);
  }

  TemporaryFolder folder;
  std::string path = folder / "ICAOData.mdb";
  RecordingPrompt prompt;
  DBUtility database{prompt, 1};
};

TEST_F(NoDatabase, Missing) {
  EXPECT_EQ(Connect(), "No such file or directory");
  EXPECT_TRUE(folder.Entries().empty());
}

TEST_F(NoDatabase, Folder) {
  std::filesystem::create_directory(path);
  EXPECT_EQ(Connect(), "not a file");
}

TEST_F(NoDatabase, EmptyFile) {
  WriteTestFile(path, "");
  EXPECT_EQ(Connect(), "not a station database of this program");
  EXPECT_EQ(ReadTestFile(path), "");
}

TEST_F(NoDatabase, OtherBytes) {
  WriteTestFile(path, std::string(5000, 'x'));
  EXPECT_EQ(Connect(), "file is not a database");
}

TEST_F(NoDatabase, OtherVersion) {
  MakeDatabase(path, "pragma user_version = 2;");
  EXPECT_EQ(Connect(), "not a station database of this program");
}

TEST_F(NoDatabase, Locked) {
  MakeDatabase(path);
  sqlite3* owner = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &owner), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(owner, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_EQ(Connect(), "database is locked");
  sqlite3_close(owner);
}

TEST_F(NoDatabase, EveryOperationFailsQuietly) {
  EXPECT_FALSE(database.OpenRecord("select 1"));
  EXPECT_FALSE(database.Query("delete from Fronts"));
  EXPECT_FALSE(database.ReadRows("select 1", [](const RowView&) { FAIL(); }));
  EXPECT_EQ(database.Error(), "database not connected");
  Recordset record;
  database.AddNewRecord(record);
  database.EditRecord(record);
  database.DeleteRecord(record);
  EXPECT_NE(database.UpdateRecord(record), 0);
  EXPECT_EQ(database.GetRecordCount(record), 0);
  EXPECT_TRUE(prompt.Boxes.empty());
}

TEST_F(NoDatabase, DamagedFilesNeverCrash) {
  const std::string sound = folder / "sound.mdb";
  std::string rows;
  for (int i = 0; i < 200; ++i) {
    rows += "insert into MeteoStations (Station, WMOIndex) values ('Place', " + std::to_string(i) +
            ");";
  }
  MakeDatabase(sound, rows);
  const std::string bytes = ReadTestFile(sound);
  std::minstd_rand random(1);
  int connected = 0;
  for (int round = 0; round < 300; ++round) {
    std::string damaged = bytes;
    for (int i = 0; i < 20; ++i) damaged[random() % damaged.size()] = static_cast<char>(random());
    WriteTestFile(path, damaged);
    DBUtility each(prompt);
    if (!each.ConnectDatabase(path)) continue;
    ++connected;
    each.CheckDatabase();
    std::size_t read = 0;
    each.ReadRows("select Station, WMOIndex from MeteoStations",
                  [&](const RowView& row) { read += row.Text(0).size(); });
    if (auto record = each.OpenRecord("select * from MeteoStations")) {
      each.AddNewRecord(*record);
      record->SetField("Station", "New");
      each.UpdateRecord(*record);
    }
    EXPECT_LT(read, 1000000u);
  }
  EXPECT_GT(connected, 100);
}

}  // namespace
}  // namespace zg
