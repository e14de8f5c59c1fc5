// Bulletins with the records, log lines and wrong-line files that they have to give.
//
// Each tests/golden/NAME.txt is a test. It is decoded with --fields both; the result has to equal
// NAME.jsonl (standard output), NAME.log (standard error without the line that tells the speed) and
// NAME.wrong (the wrong-line file; no file if it is empty). NAME.ini, where there is one, holds
// settings that differ from the shipped ones, NAME.args further options, one a line.
//
// With ZG_UPDATE_GOLDEN=1 in the environment the expected files are written instead. Read what has
// changed before it is committed: the program is not its own judge.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>

#include "batch/Zgdecode.h"

namespace zg::test {
namespace {

namespace fs = std::filesystem;

const std::string GoldenFolder = std::string(ZG_SOURCE_DIR) + "/tests/golden/";

std::vector<std::string> BulletinNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(GoldenFolder)) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string WithoutSpeed(std::string_view log) {
  std::string rest;
  for (const std::string& line : SplitLines(log)) {
    if (line.starts_with("Decoding Speed: ") || line.starts_with("Velocita di Decodifica: ")) {
      continue;
    }
    rest += line + "\n";
  }
  return rest;
}

void WriteOrRemove(const std::string& path, const std::string& content) {
  if (content.empty()) {
    fs::remove(path);
  } else {
    WriteTestFile(path, content);
  }
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, GivesWhatIsExpected) {
  const std::string stem = GoldenFolder + GetParam();
  const ApplicationFolder application(ReadTestFile(stem + ".ini"));
  application.BuildStations();
  std::vector<std::string> arguments = {"--app", application.Path(), "--fields", "both"};
  for (const std::string& option : SplitLines(ReadTestFile(stem + ".args"))) {
    arguments.push_back(option);
  }
  arguments.push_back(GetParam() + ".txt");
  const ProgramRun run = RunZgdecode(arguments, {}, GoldenFolder);
  const std::string wrong = ReadTestFile(application / ("WrongFiles/" + GetParam() + ".txt.Wrong"));

  EXPECT_EQ(run.Status, 0);
  if (std::getenv("ZG_UPDATE_GOLDEN") != nullptr) {
    WriteTestFile(stem + ".jsonl", run.Output);
    WriteTestFile(stem + ".log", WithoutSpeed(run.Errors));
    WriteOrRemove(stem + ".wrong", wrong);
    return;
  }
  EXPECT_EQ(SplitLines(run.Output), SplitLines(ReadTestFile(stem + ".jsonl")));
  EXPECT_EQ(WithoutSpeed(run.Errors), ReadTestFile(stem + ".log"));
  EXPECT_EQ(wrong, ReadTestFile(stem + ".wrong"));
}

INSTANTIATE_TEST_SUITE_P(Files, Golden, testing::ValuesIn(BulletinNames()),
                         [](const testing::TestParamInfo<std::string>& test) {
                           std::string name = test.param;
                           std::replace_if(
                               name.begin(), name.end(),
                               [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
                           return name;
                         });

}  // namespace
}  // namespace zg::test
