// What goes out of the window of a global view: CSV files and copied rows; and finding in it.
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include "tables/ReportUnits.h"
#include "text/TextRules.h"
#include "ui/GlobalViewTest.h"

namespace zg::test {
namespace {

// --- Export ------------------------------------------------------------------------------------

class GlobalViewExport : public GlobalViewWindow,
                         public testing::WithParamInterface<const char*> {};

TEST_P(GlobalViewExport, IsTheExpectedFile) {
  const std::string name = GetParam();
  const std::string settings = ReadTestFile(GoldenFolder + name + ".ini");
  for (std::string_view rest = settings; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    App.Parameters.SetParameter(Trim(line.substr(0, equals)), Trim(line.substr(equals + 1)));
  }
  ReadLanguageAndUnits(App.Parameters, App.Texts);
  Decode(name);
  Open(App.Stores.SynopStore.Count() > 0 ? SynopGlobalView : MetarGlobalView);
  const std::string path = Folder.Path() + "out.csv";
  WriteTestFile(path, std::string(1000000, 'x'));
  Dialogs.Texts.push_back(QString::fromStdString(path));
  Press("cmdExport");
  EXPECT_EQ(ReadTestFile(path), ReadTestFile(GoldenFolder + name + ".csv"));
  ASSERT_EQ(Messages.Boxes.size(), 1U);
  EXPECT_EQ(Messages.Boxes[0].icon, Prompt::Icon::Information);
  EXPECT_EQ(Messages.Boxes[0].text,
            App.Choose("File CSV generato correttamente!", "CSV File succesfully saved!"));
}

INSTANTIATE_TEST_SUITE_P(Files, GlobalViewExport,
                         testing::Values("metar", "metar_it", "metar_units", "metar_remarks",
                                         "metar_trends", "speci", "taf", "taf_it", "synop_land",
                                         "synop_land_it", "synop_land_units", "ship", "buoy"),
                         [](const auto& file) { return std::string(file.param); });

TEST_F(GlobalViewWindow, ExportsWhatTheGridShows) {
  App.Parameters.SetParameter(
      "MetarDataFields", SelectionOf(MetarGlobalView, {"StationId", "Temperature", "RecordIndex"}));
  OpenMetar();
  ClickUnits();
  Find<QComboBox>(*Window, "cmbCountry").setCurrentText("Italy");
  ClickHeading("StationId");
  const std::string path = Folder.Path() + "out.csv";
  Dialogs.Texts.push_back(QString::fromStdString(path));
  Press("cmdExport");
  EXPECT_EQ(Dialogs.Questions.back(), "Excel CSV File");
  const std::vector<std::string> lines = {
      "StationId,Temperature,Record Index,\r\n",
      "Milano Malpensa," + Cell(0, 1) + ",003,\r\n",
      "Milano/Linate," + Cell(1, 1) + ",002,\r\n",
      "Roma/Fiumicino,18.0,001,\r\n",
  };
  EXPECT_EQ(ReadTestFile(path), lines[0] + lines[1] + lines[2] + lines[3]);
}

TEST_F(GlobalViewWindow, WhoLeavesTheDialogIsToldOfASuccess) {
  OpenMetar();
  Press("cmdExport");
  ASSERT_EQ(Messages.Boxes.size(), 1U);
  EXPECT_EQ(Messages.Boxes[0].icon, Prompt::Icon::Information);
  EXPECT_EQ(Messages.Boxes[0].text, "CSV File succesfully saved!");
}

TEST_F(GlobalViewWindow, AFailureIsToldWithItsReason) {
  OpenMetar();
  for (const bool italian : {false, true}) {
    App.Texts.SetLanguage(italian ? 0 : 1);
    Dialogs.Texts.push_back(QString::fromStdString(Folder.Path() + "nowhere/out.csv"));
    Press("cmdExport");
  }
  ASSERT_EQ(Messages.Boxes.size(), 2U);
  EXPECT_EQ(Messages.Boxes[0].icon, Prompt::Icon::Information);
  EXPECT_EQ(Messages.Boxes[0].text, "CSV File not saved!\r\nError: No such file or directory");
  EXPECT_EQ(Messages.Boxes[1].text,
            "Il File CSV NON e' stato generato!\r\nProblema: No such file or directory");
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(GlobalViewWindow, AScheduledCycleGetsItsFileWithoutABox) {
  Decode("synop_land");
  App.mSchedulingStarted = true;
  App.mFileName = Folder.Path() + "cycle.txt";
  Open(SynopGlobalView);
  EXPECT_TRUE(Window->isMinimized());
  EXPECT_EQ(ReadTestFile(Folder.Path() + "cycle.txt.csv"),
            ReadTestFile(GoldenFolder + "synop_land.csv"));
  EXPECT_TRUE(LogHolds("CSV File succesfully saved"));
  EXPECT_TRUE(Dialogs.Questions.empty());
  ExpectNoBox();
  QSignalSpy closed(Window.get(), &frmGlobalView::Closed);
  Window->close();
  EXPECT_EQ(closed.count(), 1);
  App.mSchedulingStarted = false;
  Window->Load();
  EXPECT_FALSE(Window->isMinimized());
}

TEST_F(GlobalViewWindow, AScheduledCycleLogsAFailure) {
  Decode("synop_land");
  App.mSchedulingStarted = true;
  App.mFileName = Folder.Path() + "nowhere/cycle.txt";
  Open(SynopGlobalView);
  EXPECT_TRUE(LogHolds("CSV File not saved!\r\nError: No such file or directory"));
  EXPECT_TRUE(Dialogs.Questions.empty());
  ExpectNoBox();
}

TEST_F(GlobalViewWindow, AScheduledCycleFillsAnOpenWindowAnew) {
  OpenMetar();
  Click(Box(1));
  Window->StoreWillChange();
  Decode("taf");
  App.mSchedulingStarted = true;
  App.mFileName = Folder.Path() + "cycle.txt";
  Window->Load();
  EXPECT_EQ(ReadTestFile(Folder.Path() + "cycle.txt.csv"), ReadTestFile(GoldenFolder + "taf.csv"));
}

// --- Copying and finding -----------------------------------------------------------------------

TEST_F(GlobalViewWindow, CopiesTheSelectedRows) {
  App.Parameters.SetParameter(
      "MetarDataFields",
      SelectionOf(MetarGlobalView, {"StationId", "Temperature", "Gust", "RecordIndex"}));
  OpenMetar();
  QApplication::clipboard()->setText("before");
  QTest::keyClick(&Grid(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "before") << "nothing is selected";
  ClickRow(1);
  ClickRow(0, Qt::ControlModifier);
  QTest::keyClick(&Grid(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(),
            "Roma/Fiumicino\t\t18.0 °C\t001\nMilano/Linate\t\t02.0 °C\t002\n");
  QTest::keyClick(&Grid(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(SelectedStations().size(), 11U);
}

TEST_F(GlobalViewWindow, FindsWhileTyping) {
  OpenMetar();
  auto& field = Find<QLineEdit>(*Window, "txtFind");
  auto& notFound = Find<QLabel>(*Window, "lblNotFound");
  QTest::keyClick(&Grid(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Window->focusWidget(), &field);
  QTest::keyClicks(&field, "mil");
  EXPECT_EQ(SelectedStations(), Strings({"Milano/Linate"}));
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(SelectedStations(), Strings({"Milano Malpensa"}));
  QTest::keyClick(&field, Qt::Key_F3);
  EXPECT_EQ(SelectedStations(), Strings({"Milano/Linate"})) << "round the end";
  QTest::keyClick(&field, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(SelectedStations(), Strings({"Milano Malpensa"}));
  EXPECT_FALSE(notFound.isVisible());
  QTest::keyClicks(&field, "xx");
  EXPECT_TRUE(notFound.isVisible());
  EXPECT_EQ(SelectedStations(), Strings({"Milano Malpensa"}));
  QTest::keyClick(&field, Qt::Key_Escape);
  EXPECT_EQ(field.text(), "");
  EXPECT_FALSE(notFound.isVisible());
  EXPECT_TRUE(Window->isVisible());
  QTest::keyClick(&field, Qt::Key_Down);
  EXPECT_EQ(Window->focusWidget(), &Grid());
  QTest::keyClick(&field, Qt::Key_Escape);
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(GlobalViewWindow, BringsWhatIsFoundIntoSight) {
  OpenMetar();
  EXPECT_EQ(Grid().horizontalScrollBar()->value(), 0);
  QTest::keyClicks(&Find<QLineEdit>(*Window, "txtFind"), "freezing");
  EXPECT_EQ(Grid().currentIndex().column(), Column("Weather (1)"));
  EXPECT_GT(Grid().horizontalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace zg::test
