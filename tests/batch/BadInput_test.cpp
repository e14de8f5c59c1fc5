// What zgdecode does with input that is broken, missing or hostile: it says so, ends with the right
// status, and decodes the rest.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <random>

#include "batch/Zgdecode.h"

namespace zg::test {
namespace {

constexpr std::string_view GoodBulletin =
    "SAIT31 LIIB 151250\r\nLIRF 151250Z 27010KT 9999 FEW030 18/12 Q1015 NOSIG=\r\n";
constexpr std::string_view TypedMetar = "METAR LIRF 151250Z 27010KT 9999 FEW030 18/12 Q1015=";

int CountRecords(const ProgramRun& run) {
  return static_cast<int>(std::count(run.Output.begin(), run.Output.end(), '\n'));
}

bool Holds(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

std::string Repeated(std::string_view text, int times) {
  std::string all;
  all.reserve(text.size() * static_cast<std::size_t>(times));
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

std::string RandomBytes(int count) {
  std::mt19937 random(20031115);
  std::string bytes;
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(random() & 0xFFU);
  return bytes;
}

// ---- Bulletin files: what is in them, and that a good bulletin behind it is still decoded.

struct BytesCase {
  const char* name;
  std::string (*bytes)();  // made where it is needed: some are large
  int records = 1;         // with the good bulletin
};

class BadBytes : public testing::TestWithParam<BytesCase> {};

TEST_P(BadBytes, LeaveTheRestOfTheFileAlone) {
  const ApplicationFolder application;
  const std::string file = application / "bad.txt";
  WriteTestFile(file, GetParam().bytes() + std::string(GoodBulletin));
  const ProgramRun run = RunZgdecode({"--app", application.Path(), file});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(CountRecords(run), GetParam().records) << run.Errors;
  EXPECT_TRUE(Holds(run.Output, R"("IcaoName":"LIRF")"));
  EXPECT_TRUE(Holds(run.Errors, "File " + file + " Closed"));
}

constexpr BytesCase BytesCases[] = {
    {"Nothing", [] { return std::string(); }},
    {"RandomBytes", [] { return RandomBytes(1'000'000) + "\r\n"; }},
    {"Nuls", [] { return std::string(100'000, '\0') + "\r\n"; }},
    {"TenMegabytesOnOneLine", [] { return std::string(10'000'000, 'A') + "\r\n"; }},
    {"TenMegabytesOfBlanks", [] { return std::string(10'000'000, ' ') + "\r\n"; }},
    {"TenMegabytesOfEqualsSigns", [] { return std::string(10'000'000, '=') + "\r\n"; }},
    {"ReportOfAMillionWords",
     [] {
       return "SAIT31 LIIB 151250\r\nLIML 151250Z " + Repeated("27010KT ", 1'000'000) + "=\r\n";
     },
     2},
    {"WordsWithoutAnEnd",
     [] { return "SAIT31 LIIB 151250\r\n" + Repeated("LIML ", 1'000'000) + "\r\n"; }},
    {"EightBitCharacters", [] { return std::string("\xE0\xE8\xEC\xF2\xF9 \x80\x9F\xFF\xFE\r\n"); }},
    {"HeadingWithoutReports", [] { return std::string("SAIT32 LIIB 151250\r\n"); }},
    {"ReportCutShort", [] { return std::string("SAIT31 LIIB 151250\r\nLIML 1512\r\n"); }},
    {"EmptyReports", [] { return std::string("SAIT31 LIIB 151250\r\n=\r\n=\r\n=\r\n"); }},
};

INSTANTIATE_TEST_SUITE_P(Cases, BadBytes, testing::ValuesIn(BytesCases),
                         [](const auto& test) { return test.param.name; });

TEST(BadFile, SynopOfAMillionWordsIsARecord) {
  const ApplicationFolder application;
  const ProgramRun run =
      RunZgdecode({"--app", application.Path(), "-"},
                  "SMIT01 LIIB 151200\r\nAAXX 15121\r\n16242 " + Repeated("/////  ", 1'000'000) +
                      "=\r\n06180 11465 " + "52705 10182 20121 30148 40154 54000=\r\nNNNN\r\n");
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(CountRecords(run), 2);
}

TEST(BadFile, CutInsideTheReportGivesNoRecord) {
  const ApplicationFolder application;
  for (std::size_t length = 0; length < GoodBulletin.size() - 3; length += 7) {
    const ProgramRun run =
        RunZgdecode({"--app", application.Path(), "-"}, GoodBulletin.substr(0, length));
    EXPECT_EQ(run.Status, 0) << length;
    EXPECT_EQ(run.Output, "") << length;
  }
}

TEST(BadFile, EmptyOneGivesNothing) {
  const ApplicationFolder application;
  application.BuildStations();
  const ProgramRun run = RunZgdecode({"--app", application.Path(), "-"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Output, "");
  EXPECT_EQ(run.Errors, "");
}

// ---- Files that cannot be read: the others are decoded, the status tells.

struct PathCase {
  const char* name;
  const char* path;  // under the application directory
  const char* error;
};

class UnreadableFile : public testing::TestWithParam<PathCase> {};

TEST_P(UnreadableFile, IsToldAndTheOthersAreDecoded) {
  const ApplicationFolder application;
  const std::string good = application / "good.txt";
  const std::string bad = application / GetParam().path;
  WriteTestFile(good, GoodBulletin);
  const ProgramRun run = RunZgdecode({"--app", application.Path(), good, bad, good});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(CountRecords(run), 2);
  EXPECT_TRUE(Holds(run.Errors, "zgdecode: " + bad + ": " + GetParam().error)) << run.Errors;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, UnreadableFile,
    testing::Values(PathCase{"Missing", "none.txt", "No such file or directory"},
                    PathCase{"Folder", ".", "Is a directory"},
                    PathCase{"BelowAFile", "zephyrgram.ini/x", "Not a directory"}),
    [](const auto& test) { return test.param.name; });

// ---- The output.

TEST(BadOutput, FullDeviceEndsWithOne) {
  const ApplicationFolder application;
  const ProgramRun run =
      RunZgdecode({"--app", application.Path(), "--output", "/dev/full", "-"}, GoodBulletin);
  EXPECT_EQ(run.Status, 1);
  EXPECT_TRUE(Holds(run.Errors, "zgdecode: /dev/full: No space left on device")) << run.Errors;
}

TEST(BadOutput, MissingFolderEndsWithOne) {
  const ApplicationFolder application;
  const std::string output = application / "none/records.jsonl";
  const ProgramRun run =
      RunZgdecode({"--app", application.Path(), "--output", output, "-"}, GoodBulletin);
  EXPECT_EQ(run.Status, 1);
  EXPECT_TRUE(Holds(run.Errors, "No such file or directory")) << run.Errors;
}

TEST(BadOutput, FileIsReplacedAsAWhole) {
  const ApplicationFolder application;
  const std::string output = application / "records.jsonl";
  WriteTestFile(output, "old\n");
  const ProgramRun run =
      RunZgdecode({"--app", application.Path(), "--output", output, "-"}, GoodBulletin);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Output, "");
  EXPECT_TRUE(ReadTestFile(output).starts_with(R"({"Store":"METAR")"));
}

// ---- The arguments.

struct ArgumentsCase {
  const char* name;
  std::vector<std::string> arguments;
  const char* error;
};

class BadArguments : public testing::TestWithParam<ArgumentsCase> {};

TEST_P(BadArguments, EndWithTwoAndTheUsage) {
  const ProgramRun run = RunZgdecode(GetParam().arguments);
  EXPECT_EQ(run.Status, 2);
  EXPECT_EQ(run.Output, "");
  EXPECT_TRUE(run.Errors.starts_with(std::string("zgdecode: ") + GetParam().error)) << run.Errors;
  EXPECT_TRUE(Holds(run.Errors, "Usage: zgdecode [options] FILE..."));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BadArguments,
    testing::Values(
        ArgumentsCase{"None", {}, "No FILE is given"},
        ArgumentsCase{"UnknownOption", {"--nothing", "x"}, "There is no option --nothing"},
        ArgumentsCase{"ShortOption", {"-x"}, "There is no option -x"},
        ArgumentsCase{
            "UnknownFields", {"--fields", "all", "x"}, "--fields takes data, raw or both"},
        ArgumentsCase{"UnknownFormat", {"--format=xml", "x"}, "--format takes jsonl or csv"},
        ArgumentsCase{"NoValue", {"x", "--output"}, "--output wants a value"},
        ArgumentsCase{"EmptyValue", {"--app=", "x"}, "--app wants a value"}),
    [](const auto& test) { return test.param.name; });

// ---- The application directory.

TEST(BadStationLists, BrokenLinesAreImportedAsFarAsTheyGo) {
  const ApplicationFolder application;
  const std::string list = ReadTestFile(application / "wmo_index.txt");
  WriteTestFile(application / "wmo_index.txt",
                "99;001;----;Cut sho\n\n;;;;;;\n\x01\x02\xFF\n" + list);
  const ProgramRun run = RunZgdecode({"--app", application.Path(), "-"}, GoodBulletin);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(CountRecords(run), 1);
  EXPECT_TRUE(Holds(run.Output, "Roma/Fiumicino"));
}

TEST(BadStationLists, MissingOnesAreTold) {
  for (const char* list : {"wmo_index.txt", "icao_index.txt"}) {
    const ApplicationFolder application;
    ASSERT_EQ(unlink((application / list).c_str()), 0);
    const ProgramRun run = RunZgdecode({"--app", application.Path(), "-"}, GoodBulletin);
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(CountRecords(run), 1) << "the other list holds the station too";
    EXPECT_TRUE(Holds(run.Errors, application / list)) << run.Errors;
  }
}

TEST(BadStationLists, ImpossiblePositionEndsTheProgram) {
  const ApplicationFolder application;
  WriteTestFile(application / "wmo_index.txt",
                "16;242;LIRF;Roma;;Italy;6;41N;012-14E;;;4;;\nend\n");
  const ProgramRun run = RunZgdecode({"--app", application.Path(), "-"}, GoodBulletin);
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(CountRecords(run), 0);
  EXPECT_TRUE(Holds(run.Errors, "wmo_index.txt")) << run.Errors;
}

TEST(BadSettings, MissingKeysHaveDefaults) {
  const ApplicationFolder application;
  WriteTestFile(application / "zephyrgram.ini",
                "Language = 1\nQuadrantFilter = 15\nStationType = 7\n");
  const ProgramRun run = RunZgdecode({"--app", application.Path(), "--message", "-"}, TypedMetar);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(CountRecords(run), 1);
}

TEST(BadSettings, MissingFileIsTold) {
  const ApplicationFolder application;
  ASSERT_EQ(unlink((application / "zephyrgram.ini").c_str()), 0);
  const ProgramRun run = RunZgdecode({"--app", application.Path(), "--message", "-"}, TypedMetar);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(CountRecords(run), 1);
  EXPECT_TRUE(Holds(run.Errors, "zephyrgram.ini")) << run.Errors;
}

// Breaks the database file, or makes a lock on it; the test ends the lock.
struct DatabaseCase {
  const char* name;
  void (*break_)(const std::string& path);
};

class BadDatabase : public testing::TestWithParam<DatabaseCase> {};

TEST_P(BadDatabase, IsToldAndMessagesAreDecodedWithoutStations) {
  const ApplicationFolder application;
  GetParam().break_(application.Database());
  const std::string before = ReadTestFile(application.Database());
  const ProgramRun run = RunZgdecode({"--app", application.Path(), "--message", "-"}, TypedMetar);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(CountRecords(run), 1);
  EXPECT_TRUE(Holds(run.Output, R"("Station":"LIRF")"));
  EXPECT_TRUE(Holds(run.Errors, "ICAOData.mdb")) << run.Errors;
  EXPECT_EQ(ReadTestFile(application.Database()), before);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BadDatabase,
    testing::Values(DatabaseCase{"Missing", [](const std::string& path) { unlink(path.c_str()); }},
                    DatabaseCase{"Empty", [](const std::string& path) { WriteTestFile(path, ""); }},
                    DatabaseCase{
                        "RandomBytes",
                        [](const std::string& path) { WriteTestFile(path, RandomBytes(50'000)); }},
                    DatabaseCase{"CutShort",
                                 [](const std::string& path) {
                                   WriteTestFile(path, ReadTestFile(path).substr(0, 5000));
                                 }},
                    DatabaseCase{"WithoutTables",
                                 [](const std::string& path) {
                                   unlink(path.c_str());
                                   RunSql(path, "create table Other (X)");
                                 }}),
    [](const auto& test) { return test.param.name; });

TEST(LockedDatabase, IsToldAndMessagesAreDecodedWithoutStations) {
  const ApplicationFolder application;
  sqlite3* holder = nullptr;
  ASSERT_EQ(sqlite3_open(application.Database().c_str(), &holder), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(holder, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
  const ProgramRun run = RunZgdecode({"--app", application.Path(), "--message", "-"}, TypedMetar);
  sqlite3_close(holder);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(CountRecords(run), 1);
  EXPECT_TRUE(Holds(run.Errors, "locked")) << run.Errors;
}

// ---- What is not bad at all.

TEST(Invocation, StandardInputIsAFile) {
  const ApplicationFolder application;
  application.BuildStations();
  const ProgramRun run = RunZgdecode({"--app", application.Path(), "-"}, GoodBulletin);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(CountRecords(run), 1);
  EXPECT_TRUE(Holds(run.Errors, "Decoding ... - (75Bytes)")) << run.Errors;
  ASSERT_EQ(access((application / "WrongFiles/-.Wrong").c_str(), F_OK), 0);
  EXPECT_EQ(ReadTestFile(application / "WrongFiles/-.Wrong"), "");
}

TEST(Invocation, TypedMessages) {
  const ApplicationFolder application;
  application.BuildStations();
  struct Row {
    std::string_view text;
    int records;
    std::string_view errors;
  };
  const Row rows[] = {
      {TypedMetar, 1, ""},
      {"metar lirf 151250z 27010kt", 1, ""},
      {"METAR XXXX 151250Z 27010KT=", 1, ""},
      {"METAR LIRF\r\n151250Z   27010KT\n=", 1, ""},
      {"AAXX 15121 16242 11465 52705 10182 20121 30148 40154 54000=", 1, ""},
      {"", 0, "Wrong Message.\n"},
      {"METAR LIRF=", 0, "Wrong Message.\n"},
      {"nothing at all", 0, "Wrong Message.\n"},
  };
  for (const Row& row : rows) {
    const ProgramRun run = RunZgdecode({"--app", application.Path(), "--message", "-"}, row.text);
    EXPECT_EQ(run.Status, 0) << row.text;
    EXPECT_EQ(CountRecords(run), row.records) << row.text;
    EXPECT_TRUE(run.Errors.ends_with(row.errors)) << row.text << "\n" << run.Errors;
  }
}

TEST(Invocation, HelpAndVersion) {
  const ProgramRun help = RunZgdecode({"--help"});
  EXPECT_EQ(help.Status, 0);
  EXPECT_TRUE(help.Output.starts_with("Usage: zgdecode [options] FILE..."));
  EXPECT_EQ(help.Errors, "");
  const ProgramRun version = RunZgdecode({"--version"});
  EXPECT_EQ(version.Status, 0);
  EXPECT_TRUE(version.Output.starts_with("zgdecode "));
}

TEST(Invocation, InputIsNeverChanged) {
  const ApplicationFolder application;
  const std::string file = application / "bare.txt";
  const std::string bytes = "SAIT31 LIIB 151250\nLIRF 151250Z 27010KT 9999=\n";
  WriteTestFile(file, bytes);
  const ProgramRun run = RunZgdecode({"--app", application.Path(), file});
  EXPECT_EQ(CountRecords(run), 1);
  EXPECT_TRUE(Holds(run.Errors, "Formatting ... Wait!")) << run.Errors;
  EXPECT_EQ(ReadTestFile(file), bytes);
}

}  // namespace
}  // namespace zg::test
