#include "shell/Application.h"

#include "batch/Console.h"
#include "decode/MeteoDecode.h"
#include "shell/TestSupport.h"

namespace zg {
namespace {

TEST(Application, VersionHasTheBuildInFourFigures) {
  EXPECT_EQ(ApplicationVersion("1.2.3"), "Rel. 1.2 Build 0003");
  EXPECT_EQ(ApplicationVersion("0.1.0"), "Rel. 0.1 Build 0000");
  EXPECT_EQ(ApplicationVersion("10.20.12345"), "Rel. 10.20 Build 12345");
  EXPECT_EQ(ApplicationVersion("3.4"), "Rel. 3.4 Build 0000");
}

TEST(Application, PathsLieUnderTheApplicationDirectory) {
  test::RecordingLog log;
  test::RecordingPrompt prompt;
  SteadyClock clock;
  const Application app("/somewhere/", log, prompt, clock);
  EXPECT_EQ(app.MeteoFilesPath, "/somewhere/MeteoFiles/");
  EXPECT_EQ(app.WrongFilesPath, "/somewhere/WrongFiles/");
}

TEST(Application, MaxMessagesIsTheParameterOrTheLargest) {
  const test::TemporaryFolder folder;
  test::RecordingLog log;
  test::RecordingPrompt prompt;
  SteadyClock clock;
  const Application app(folder.Path(), log, prompt, clock);
  test::WriteTestFile(folder / "zephyrgram.ini", "MaxMessages = 120\n");
  EXPECT_EQ(app.MaxMessages(), 120);
  test::WriteTestFile(folder / "zephyrgram.ini", "Other = 1\n");
  EXPECT_EQ(app.MaxMessages(), LargestMaxMessages);
  EXPECT_EQ(prompt.Boxes.size(), 1u);
}

}  // namespace
}  // namespace zg
