// Bulletins as they were circulated, kept outside this tree in the folder "shared/data/real" beside
// it: nothing crashes, every record is valid JSON, and what a file comes to stays what it is.
#include <gtest/gtest.h>

#include <filesystem>
#include <span>

#include "batch/JsonSyntax.h"
#include "batch/RealFilesTable.h"
#include "batch/Zgdecode.h"
#include "text/Windows1252.h"

namespace zg::test {
namespace {

namespace fs = std::filesystem;

TEST(JsonSyntax, TellsJsonFromOtherText) {
  for (const char* text : {"{}", "[]", "0", R"({"a":[1,-2.5e+3,"\"\u00e9\\",{},null,true]})"}) {
    EXPECT_TRUE(JsonSyntax::IsValid(text)) << text;
  }
  for (const char* text :
       {"", "{", "{]", "01", "1.", "-", ".5", R"({"a"})", R"({"a":1,})", R"("\x")", "\"\t\"", "nul",
        "{} {}", "[1 2]", R"({a:1})", R"("\u12g4")"}) {
    EXPECT_FALSE(JsonSyntax::IsValid(text)) << text;
  }
}

const std::string RealFolder = std::string(ZG_SOURCE_DIR) + "/../shared/data/real/";

class RealFiles : public testing::TestWithParam<std::string> {};

TEST_P(RealFiles, GiveWhatTheyGave) {
  const std::string folder = RealFolder + GetParam() + "/";
  if (!fs::is_directory(folder)) GTEST_SKIP() << "There are no circulated bulletins here";
  const ApplicationFolder application("", ApplicationFolder::Lists::Shipped);
  application.BuildStations();

  for (const auto& entry : fs::directory_iterator(folder)) {
    const std::string name = GetParam() + "/" + entry.path().filename().string();
    SCOPED_TRACE(name);
    const auto row = std::find_if(std::begin(RealFileTable), std::end(RealFileTable),
                                  [&name](const RealFile& file) { return file.name == name; });
    const ProgramRun run =
        RunZgdecode({"--app", application.Path(), "--fields", "both", entry.path().string()});
    EXPECT_EQ(run.Status, 0);
    const std::vector<std::string> records = SplitLines(run.Output);
    for (const std::string& record : records) {
      EXPECT_TRUE(JsonSyntax::IsValid(record) && IsUtf8(record)) << record;
    }
    const std::string wrong =
        ReadTestFile(application / ("WrongFiles/" + entry.path().filename().string() + ".Wrong"));
    const RealFile found = {name, std::ssize(records), std::ssize(SplitLines(wrong)),
                            std::ssize(SplitLines(run.Errors))};
    if (row == std::end(RealFileTable)) {
      ADD_FAILURE() << "is not in the table: " << found;
    } else {
      EXPECT_EQ(found, *row);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Folders, RealFiles,
                         testing::Values("fronts", "metar", "mixed", "ship", "synop", "taf"),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace zg::test
