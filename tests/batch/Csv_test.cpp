// zgdecode --format csv: the tables of golden bulletins, and what a run prints that has little to
// tell.
//
// Each tests/golden/NAME.csv is a test: what NAME.txt gives with --format csv, byte for byte, with
// the settings of NAME.ini and the further options of NAME.args. With ZG_UPDATE_GOLDEN=1 in the
// environment the expected files are written instead, those only that are there.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "batch/Zgdecode.h"

namespace zg::test {
namespace {

namespace fs = std::filesystem;

const std::string GoldenFolder = std::string(ZG_SOURCE_DIR) + "/tests/golden/";

std::vector<std::string> TableNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(GoldenFolder)) {
    if (entry.path().extension() == ".csv") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

ProgramRun RunCsv(const ApplicationFolder& application, std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {"--app", application.Path(), "--format", "csv"});
  return RunZgdecode(arguments, {}, GoldenFolder);
}

std::string ExpectedTable(std::string_view name) {
  return ReadTestFile(std::string(GoldenFolder).append(name).append(".csv"));
}

// The heading line of the fields in force.
std::string FirstLine(const std::string& table) { return table.substr(0, table.find('\n') + 1); }

class GoldenCsv : public testing::TestWithParam<std::string> {};

TEST_P(GoldenCsv, GivesWhatIsExpected) {
  const std::string stem = GoldenFolder + GetParam();
  const ApplicationFolder application(ReadTestFile(stem + ".ini"));
  application.BuildStations();
  std::vector<std::string> arguments = SplitLines(ReadTestFile(stem + ".args"));
  arguments.push_back(GetParam() + ".txt");
  const ProgramRun run = RunCsv(application, arguments);
  EXPECT_EQ(run.Status, 0);
  if (std::getenv("ZG_UPDATE_GOLDEN") != nullptr) {
    WriteTestFile(stem + ".csv", run.Output);
    return;
  }
  EXPECT_EQ(SplitLines(run.Output), SplitLines(ReadTestFile(stem + ".csv")));
}

INSTANTIATE_TEST_SUITE_P(Files, GoldenCsv, testing::ValuesIn(TableNames()),
                         [](const testing::TestParamInfo<std::string>& test) {
                           return test.param;
                         });

TEST(Csv, FilesFollowEachOtherWithTheirHeadings) {
  const ApplicationFolder application;
  const ProgramRun run = RunCsv(application, {"metar.txt", "synop_land.txt", "taf.txt"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Output,
            ExpectedTable("metar") + ExpectedTable("synop_land") + ExpectedTable("taf"));
}

TEST(Csv, OutputFile) {
  const ApplicationFolder application;
  const std::string path = application / "out.csv";
  const ProgramRun run = RunCsv(application, {"--output", path, "metar.txt"});
  EXPECT_EQ(run.Output, "");
  EXPECT_EQ(ReadTestFile(path), ExpectedTable("metar"));
}

TEST(Csv, FieldsAreNoMatterOfIt) {
  const ApplicationFolder application;
  EXPECT_EQ(RunCsv(application, {"--fields", "raw", "metar.txt"}).Output, ExpectedTable("metar"));
}

TEST(Csv, ASummaryTakesThePlaceOfTheTable) {
  const ApplicationFolder application;
  const std::string summary = RunCsv(application, {"--summary", "metar.txt"}).Output;
  EXPECT_NE(summary, "");
  EXPECT_EQ(summary.find(FirstLine(ExpectedTable("metar"))), std::string::npos);
}

TEST(Csv, ColumnsAndUnitsOfTheSettings) {
  const ApplicationFolder application(
      "MetarDataFields = 1004\nSynopDataFields = 10004\nUnitsOnGlobalView = 0\n");
  const std::vector<std::string> metar = SplitLines(RunCsv(application, {"metar.txt"}).Output);
  EXPECT_EQ(metar.at(0), "StationId,Temperature,\r");
  EXPECT_EQ(metar.at(1), "Roma/Fiumicino,18.0,\r");
  const std::vector<std::string> synop = SplitLines(RunCsv(application, {"synop_land.txt"}).Output);
  EXPECT_EQ(synop.at(0), "StationId,Temperature,\r");
  EXPECT_EQ(synop.at(1), "Roma/Fiumicino,18.2,\r");
}

// The filters of the settings leave nothing of a file whose family is known.
TEST(Csv, NothingKeptLeavesTheHeading) {
  const ApplicationFolder application("CountryFilter = Nowhere, \n");
  EXPECT_EQ(RunCsv(application, {"metar.txt"}).Output, FirstLine(ExpectedTable("metar")));
  EXPECT_EQ(RunCsv(application, {"synop_land.txt"}).Output, FirstLine(ExpectedTable("synop_land")));
}

TEST(Csv, ARunThatFindsNothingPrintsNothing) {
  const ApplicationFolder application;
  const std::string front = application / "front.txt";
  WriteTestFile(front,
                "ASUS1 KWBC 051200\r\r\nVALID 051200Z\r\r\nHIGHS 1030 4510000=\r\r\nNNNN\r\r\n");
  const std::string text = application / "text.txt";
  WriteTestFile(text, "NOTHING TO READ HERE\r\r\n");
  const ProgramRun run = RunCsv(application, {"/dev/null", front, text});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Output, "");
  const ProgramRun mixed = RunCsv(application, {"/dev/null", "metar.txt", text});
  EXPECT_EQ(mixed.Output, ExpectedTable("metar"));
}

TEST(Csv, AFileThatCannotBeReadPrintsNothing) {
  const ApplicationFolder application;
  const ProgramRun run = RunCsv(application, {"metar.txt", "missing.txt", "metar.txt"});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Output, ExpectedTable("metar") + ExpectedTable("metar"));
}

TEST(Csv, AFullDiskIsAnErrorOfWriting) {
  const ApplicationFolder application;
  const ProgramRun run = RunCsv(application, {"--output", "/dev/full", "metar.txt"});
  EXPECT_EQ(run.Status, 1);
  EXPECT_NE(run.Errors.find("No space left on device"), std::string::npos) << run.Errors;
}

}  // namespace
}  // namespace zg::test
