#include "shell/LabelFile.h"

#include "shell/TestSupport.h"

namespace zg {
namespace {

LabelFile Read(std::string_view text) {
  const test::TemporaryFolder folder;
  test::WriteTestFile(folder / "frmTest.eng", text);
  return ReadLabelFile(folder / "frmTest.eng");
}

TEST(LabelFile, NameTellsFormAndLanguage) {
  TextUtility texts;
  texts.SetLanguage(0);
  EXPECT_EQ(LabelFileName("frmMain", texts), "frmMain.ita");
  texts.SetLanguage(1);
  EXPECT_EQ(LabelFileName("frmMain", texts), "frmMain.eng");
  texts.SetLanguage(7);
  EXPECT_EQ(LabelFileName("frmMain", texts), "frmMain.eng");
}

TEST(LabelFile, FirstLineIsTheForm) {
  const LabelFile labels = Read("whatever =  Decoding \nlblOne = One\n");
  EXPECT_EQ(labels.FormCaption, "Decoding");
  ASSERT_NE(labels.Find("lblOne"), nullptr);
  EXPECT_EQ(*labels.Find("lblOne"), "One");
  EXPECT_EQ(labels.Find("whatever"), nullptr);
}

TEST(LabelFile, NochangeLeavesTheCaptionWhateverTheName) {
  EXPECT_EQ(Read("x=nochange\nlblOne=One\n").FormCaption, std::nullopt);
}

TEST(LabelFile, LinesWithoutEqualsAreSkippedAlsoInFront) {
  const LabelFile labels = Read("a comment\n\nfrmTest = Caption\nno sign\nlblOne = One\n");
  EXPECT_EQ(labels.FormCaption, "Caption");
  EXPECT_EQ(labels.Captions.size(), 1u);
}

TEST(LabelFile, CaptionKeepsAllBehindTheFirstEquals) {
  const LabelFile labels = Read("f=c\nlblOne = a = b=c\n");
  EXPECT_EQ(*labels.Find("lblOne"), "a = b=c");
}

TEST(LabelFile, TheLastOfSeveralLinesHolds) {
  EXPECT_EQ(*Read("f=c\nlblOne=first\nlblOne=second\n").Find("lblOne"), "second");
}

TEST(LabelFile, MembersOfAnArrayShareTheCaption) {
  const LabelFile labels = Read("f=c\nchkStation=Station\n");
  EXPECT_EQ(*labels.Find("chkStation(0)"), "Station");
  EXPECT_EQ(*labels.Find("chkStation(2)"), "Station");
}

TEST(LabelFile, ControlThatIsNotNamedHasNoCaption) {
  EXPECT_EQ(Read("f=c\nlblOne=One\n").Find("lblOnes"), nullptr);
}

TEST(LabelFile, MissingFileIsAnErrorWithItsPath) {
  const LabelFile labels = ReadLabelFile("/nonexistent/frmTest.eng");
  EXPECT_NE(labels.Error.find("/nonexistent/frmTest.eng"), std::string::npos);
  EXPECT_EQ(labels.FormCaption, std::nullopt);
}

TEST(LabelFile, Windows1252IsRead) {
  EXPECT_EQ(*Read("f=c\nlblOne=Velocit\xE0\n").Find("lblOne"), "Velocità");
}

}  // namespace
}  // namespace zg
