#include "shell/frmMain.h"

#include <QDropEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QTableView>
#include <QUrl>

#include "shell/MenuTree.h"
#include "shell/QtForm.h"
#include "tables/ReportUnits.h"
#include "ui/UiTest.h"
#include "views/frmGlobalView.h"

namespace zg::test {
namespace {

class FrmMain : public UiTest {
 protected:
  explicit FrmMain(bool stations = true) : UiTest(stations) {}

  frmMain& Window() {
    if (window_ == nullptr) {
      window_ = std::make_unique<frmMain>(App, Log, Dialogs);
      window_->show();
    }
    return *window_;
  }
  QAction& Action(const char* name) { return Find<QAction>(Window(), name); }
  bool MenuEnabled(const char* name) {
    return Find<QMenu>(Window(), name).menuAction()->isEnabled();
  }
  QString Panel(int panel) {
    return Find<QLabel>(Window(), MemberName("StatusBar", panel).c_str()).text();
  }
  // A bulletin file with one SYNOP and one with one METAR.
  QString SynopFile() {
    WriteTestFile(App.MeteoFilesPath + "synop.txt",
                  "ZCZC 001\r\r\nSMIY01 LIIB 101200\r\r\nAAXX 10121\r\r\n"
                  "16242 11465 32705 10221 20115 30140 40143 57002=\r\r\nNNNN\r\r\n");
    return ToQString(App.MeteoFilesPath + "synop.txt");
  }
  QString MetarFile() {
    WriteTestFile(App.MeteoFilesPath + "metar.txt",
                  "ZCZC 002\r\r\nSAIY31 LIIB 101250\r\r\n"
                  "METAR LIRF 101250Z 24012KT 9999 FEW030 22/12 Q1015=\r\r\nNNNN\r\r\n");
    return ToQString(App.MeteoFilesPath + "metar.txt");
  }

  std::unique_ptr<frmMain> window_;
};

TEST_F(FrmMain, EveryEntryOfTheTreeIsThereByItsName) {
  for (const MenuEntry& entry : MenuTree()) {
    if (entry.Kind == MenuKind::Separator) continue;
    for (int member = 0; member < entry.Members; ++member) {
      const std::string name =
          entry.Members == 1 ? std::string(entry.Name) : MemberName(entry.Name, member);
      if (entry.Kind == MenuKind::Menu) {
        EXPECT_NE(Window().findChild<QMenu*>(ToQString(name)), nullptr) << name;
      } else {
        EXPECT_NE(Window().findChild<QAction*>(ToQString(name)), nullptr) << name;
      }
    }
  }
  EXPECT_EQ(Action("mnuMetar(7)").text(), "07:00Z");
  EXPECT_EQ(Action("mnuTaf(3)").text(), "18:00Z");
}

TEST_F(FrmMain, EntriesWithoutCommandAreGrey) {
  for (const char* name :
       {"mnuAchiveFields", "mnuTimeInArchive", "mnuSynopDataArchive", "mnuDeleteSynopData",
        "mnuArchiveGrid", "mnuDeleteArchivedData", "mnuMetarDeleteSynopData"}) {
    EXPECT_FALSE(Action(name).isEnabled()) << name;
  }
  EXPECT_FALSE(MenuEnabled("mnuArchivedData"));
  EXPECT_TRUE(Action("mnuOpen").isEnabled());
  EXPECT_TRUE(MenuEnabled("mnuUnit"));
}

TEST_F(FrmMain, CaptionIsTitleAndVersion) {
  EXPECT_EQ(Window().windowTitle(), "Zephyrgram Rel. 1.2 Build 0003");
}

TEST_F(FrmMain, StartsWithoutRecordsAndWithoutFronts) {
  App.Database.Query("insert into Fronts (Type, RecNum) values (1, 10000)");
  EXPECT_EQ(Panel(1), "AAXX/BBXX Data: 0");
  EXPECT_EQ(Panel(2), "Metar/TAF Data: 0");
  EXPECT_FALSE(Action("mnuSingleSheet").isEnabled());
  EXPECT_FALSE(Action("mnuMetarSingleSheet").isEnabled());
  EXPECT_FALSE(MenuEnabled("mnuSynopGeoMaps"));
  EXPECT_FALSE(MenuEnabled("mnuMetarGeoMaps"));
  std::optional<Recordset> fronts = App.Database.OpenRecord("Select * from Fronts");
  ASSERT_TRUE(fronts);
  EXPECT_TRUE(fronts->AtEnd());
}

TEST_F(FrmMain, FileOpenDecodesTheFileChosen) {
  Dialogs.Texts = {MetarFile()};
  Action("mnuOpen").trigger();
  EXPECT_EQ(Dialogs.Questions, std::vector<QString>{"Open Meteo File"});
  ASSERT_EQ(App.Stores.MetarStore.Count(), 1u);
  EXPECT_EQ(Panel(2), "Metar/TAF Data: 1");
  EXPECT_EQ(App.Stores.MetarStore.Records()[0].Station.IcaoName(), "LIRF");
  EXPECT_TRUE(App.mFileName.empty());
  EXPECT_TRUE(MenuEnabled("mnuInput"));
}

TEST_F(FrmMain, FileOpenLeftDoesNothing) {
  Action("mnuOpen").trigger();
  EXPECT_EQ(App.Stores.MetarStore.Count(), 0u);
  EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(FrmMain, EachFamilyKeepsItsStore) {
  Window().OpenBulletin(SynopFile());
  Window().OpenBulletin(MetarFile());
  EXPECT_EQ(Panel(1), "AAXX/BBXX Data: 1");
  EXPECT_EQ(Panel(2), "Metar/TAF Data: 1");
}

TEST_F(FrmMain, ScheduledCycleOwnsThePanels) {
  Window();
  App.mSchedulingStarted = true;
  Window().OpenBulletin(MetarFile());
  EXPECT_EQ(Panel(2), "Metar/TAF Data: 0");
  App.mSchedulingStarted = false;
  Window().RefreshStatusBar();
  EXPECT_EQ(Panel(2), "Metar/TAF Data: 1");
}

struct LargeFileCase {
  const char* Name;
  std::size_t Bytes;
  const char* Filter;
  bool Asks;
};

class FrmMainLargeFile : public FrmMain, public ::testing::WithParamInterface<LargeFileCase> {};

TEST_P(FrmMainLargeFile, QuestionForTheCountryFilter) {
  const std::string path = App.MeteoFilesPath + "large.txt";
  std::string text = "METAR LIRF 101250Z 24012KT 9999 FEW030 22/12 Q1015=\r\n";
  text.resize(GetParam().Bytes, '\n');
  WriteTestFile(path, text);
  App.Parameters.SetParameter("CountryFilter", GetParam().Filter);
  Window().OpenBulletin(ToQString(path));
  EXPECT_EQ(Dialogs.Questions.size(), GetParam().Asks ? 1u : 0u);
  if (GetParam().Asks) {
    EXPECT_EQ(Dialogs.Questions[0],
              ToQString(path) + " File is greater than 250Mbytes!\nWould you the Country Filter?");
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, FrmMainLargeFile,
                         ::testing::Values(LargeFileCase{"AtTheLimit", 250000, "", false},
                                           LargeFileCase{"AboveTheLimit", 250001, "", true},
                                           LargeFileCase{"AboveWithFilter", 250001, "ITALY, ",
                                                         false}),
                         [](const auto& test) { return std::string(test.param.Name); });

TEST_F(FrmMain, LargeFileQuestionInItalianAndTheFilterOnYes) {
  App.Texts.SetLanguage(0);
  const std::string path = App.MeteoFilesPath + "large.txt";
  WriteTestFile(path, std::string(250001, '\n'));
  Dialogs.Answers = {true};
  bool shown = false;
  OnModal("frmCountryFilter", [&](QWidget& filter) {
    shown = true;
    filter.close();
  });
  Window().OpenBulletin(ToQString(path));
  EXPECT_TRUE(shown);
  EXPECT_EQ(Dialogs.Questions[0],
            "Il File " + ToQString(path) +
                " e' maggiore di 250Mbytes!\nUtilizzare il Filtro delle Nazioni?");
}

TEST_F(FrmMain, MissingFileIsToldAndTheProgramStaysUp) {
  Window().OpenBulletin(ToQString(App.MeteoFilesPath + "nothing.txt"));
  EXPECT_EQ(Messages.Boxes.size(), 1u);
  Window().OpenBulletin(MetarFile());
  EXPECT_EQ(App.Stores.MetarStore.Count(), 1u);
}

TEST_F(FrmMain, DroppedFilesOpenAsByFileOpen) {
  Window();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(SynopFile()), QUrl::fromLocalFile(MetarFile()),
                QUrl(QStringLiteral("http://example.org/x.txt"))});
  QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Window(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Window(), &drop);
  EXPECT_EQ(App.Stores.SynopStore.Count(), 1u);
  EXPECT_EQ(App.Stores.MetarStore.Count(), 1u);
}

TEST_F(FrmMain, RecentFilesLastFirstEachOnce) {
  EXPECT_FALSE(MenuEnabled("mnuRecent"));
  const QString synop = SynopFile();
  const QString metar = MetarFile();
  Window().OpenBulletin(synop);
  Window().OpenBulletin(metar);
  Window().OpenBulletin(synop);
  const QList<QAction*> entries = Find<QMenu>(Window(), "mnuRecent").actions();
  ASSERT_EQ(entries.size(), 2);
  EXPECT_EQ(entries[0]->text(), synop);
  EXPECT_EQ(entries[1]->text(), metar);
  App.Stores.MetarStore.Reset(1);
  entries[1]->trigger();
  EXPECT_EQ(App.Stores.MetarStore.Count(), 1u);
}

TEST_F(FrmMain, NoMoreThanEightRecentFiles) {
  for (int i = 0; i < 10; ++i) {
    const std::string path = App.MeteoFilesPath + "f" + std::to_string(i);
    WriteTestFile(path, "x");
    Window().OpenBulletin(ToQString(path));
  }
  const QList<QAction*> entries = Find<QMenu>(Window(), "mnuRecent").actions();
  ASSERT_EQ(entries.size(), 8);
  EXPECT_TRUE(entries[0]->text().endsWith("f9"));
}

TEST_F(FrmMain, UnitOfTheMessageGreysTheFiveMenus) {
  EXPECT_TRUE(Action("mnuMessageUnit").isChecked());
  for (const UnitGroup& group : UnitGroups()) {
    EXPECT_FALSE(MenuEnabled(std::string(group.Menu).c_str())) << group.Menu;
    EXPECT_EQ(App.Texts.Unit(group.Kind), "");
  }
  Action("mnuMessageUnit").trigger();
  EXPECT_EQ(Parameter("UnitConversion"), "Yes");
  EXPECT_FALSE(Action("mnuMessageUnit").isChecked());
  for (const UnitGroup& group : UnitGroups()) {
    EXPECT_TRUE(MenuEnabled(std::string(group.Menu).c_str())) << group.Menu;
  }
  EXPECT_EQ(App.Texts.Unit(UnitKind::Temperature), " °C");
  Action("mnuMessageUnit").trigger();
  EXPECT_EQ(Parameter("UnitConversion"), "No");
  EXPECT_TRUE(Action("mnuMessageUnit").isChecked());
}

TEST_F(FrmMain, EveryUnitEntryWritesItsUnit) {
  App.Parameters.SetParameter("UnitConversion", "Yes");
  for (const UnitGroup& group : UnitGroups()) {
    for (const UnitEntry& entry : group.Entries) {
      Action(std::string(entry.Menu).c_str()).trigger();
      EXPECT_EQ(" " + Parameter(group.Key), entry.Suffix);
      EXPECT_EQ(App.Texts.Unit(group.Kind), entry.Suffix);
      for (const UnitEntry& other : group.Entries) {
        EXPECT_EQ(Action(std::string(other.Menu).c_str()).isChecked(), &other == &entry)
            << other.Menu << " after " << entry.Menu;
      }
    }
  }
}

TEST_F(FrmMain, UnknownSpeedUnitLeavesTheEntriesAsTheyWere) {
  App.Parameters.SetParameter("UnitConversion", "Yes");
  Action("mnuMeterPerSec").trigger();
  App.Parameters.SetParameter("SpeedUnit", "furlongs");
  Window().RefreshUnitMenu();
  EXPECT_TRUE(Action("mnuMeterPerSec").isChecked());
  EXPECT_FALSE(Action("mnuKnots").isChecked());
  EXPECT_EQ(App.Texts.Unit(UnitKind::Speed), " mps");
}

TEST_F(FrmMain, ColourCommandStartsWithTheColourAndWritesTheChosen) {
  App.Parameters.SetParameter("LandColor", std::to_string(1 + 256 * 2 + 65536 * 3));
  Dialogs.Color = QColor(10, 20, 30);
  Action("mnuLandStationColor").trigger();
  EXPECT_EQ(Dialogs.Questions[0], "#010203");
  EXPECT_EQ(Parameter("LandColor"), std::to_string(10 + 256 * 20 + 65536 * 30));
  Action("mnuShipStationColor").trigger();
  Action("mnuBuoyColor").trigger();
  EXPECT_EQ(Parameter("ShipColor"), Parameter("BuoyColor"));
  Dialogs.Color.reset();
  Action("mnuBuoyColor").trigger();
  EXPECT_EQ(Parameter("BuoyColor"), Parameter("LandColor"));
}

TEST_F(FrmMain, FontCommandWritesNameAndSize) {
  QFont font(QStringLiteral("DejaVu Serif"));
  font.setPointSizeF(10.5);
  Dialogs.Font = font;
  Action("mnuMapFont").trigger();
  EXPECT_EQ(Parameter("FieldFontName"), "DejaVu Serif");
  EXPECT_EQ(Parameter("FieldFontSize"), "10.5");
}

TEST_F(FrmMain, NoPictureNoEntryNoSeparator) {
  for (int i = 1; i <= 5; ++i) {
    EXPECT_FALSE(Action(("mnuPicture" + std::to_string(i)).c_str()).isVisible());
  }
  EXPECT_FALSE(Action("mnuSeparator").isVisible());
}

TEST_F(FrmMain, PictureNameShowsTheEntryAndGoesOnToTheAddress) {
  Dialogs.Texts = {"Satellite", "http://example.org/sat.png"};
  Action("mnuPicture2Name").trigger();
  EXPECT_EQ(Dialogs.Questions, (std::vector<QString>{"Insert new Picture (2) Name.",
                                                     "Insert new Picture (2) Url Address."}));
  EXPECT_TRUE(Action("mnuPicture2").isVisible());
  EXPECT_TRUE(Action("mnuSeparator").isVisible());
  EXPECT_EQ(Action("mnuPicture2").text(), "[2] Satellite");
  EXPECT_EQ(Parameter("Picture2Name"), "Satellite");
  EXPECT_EQ(Parameter("Picture2File"), "http://example.org/sat.png");
  // Leaving the box takes the entry away.
  Action("mnuPicture2Name").trigger();
  EXPECT_FALSE(Action("mnuPicture2").isVisible());
  EXPECT_FALSE(Action("mnuSeparator").isVisible());
  EXPECT_EQ(Parameter("Picture2Name"), "");
  EXPECT_EQ(Parameter("Picture2File"), "http://example.org/sat.png");
}

TEST_F(FrmMain, PictureShowsTheBrowserAndLogsTheAddress) {
  App.Parameters.SetParameter("Picture1Name", "Chart");
  App.Parameters.SetParameter("Picture1File", "http://example.org/chart.png");
  QString caption;
  OnModal("frmBrowser", [&](QWidget& browser) {
    caption = browser.windowTitle();
    browser.close();
  });
  Action("mnuPicture1").trigger();
  EXPECT_EQ(caption, "Chart");
  EXPECT_TRUE(LogHolds("Browser: http://example.org/chart.png"));
}

TEST_F(FrmMain, PictureWithoutAddressIsTold) {
  App.Parameters.SetParameter("Picture1Name", "Chart");
  Action("mnuPicture1").trigger();
  ASSERT_EQ(Messages.Boxes.size(), 1u);
  EXPECT_EQ(Messages.Boxes[0].text, "Undefined Url");
  EXPECT_EQ(Messages.Boxes[0].icon, Prompt::Icon::Information);
  App.Texts.SetLanguage(0);
  Action("mnuPicture1").trigger();
  EXPECT_EQ(Messages.Boxes[1].text, "Url non definita");
}

TEST_F(FrmMain, InformationsShowTheHelpOfTheLanguage) {
  QString caption;
  OnModal("frmBrowser", [&](QWidget& browser) {
    caption = browser.windowTitle();
    browser.close();
  });
  Action("mnuInfo").trigger();
  EXPECT_EQ(caption, "Zephyrgram Informations");
  EXPECT_EQ(Parameter("BrowserUrl"), App.ApplicationPath + "ZGEngHelp.htm");
}

TEST_F(FrmMain, LanguageSwitchesMenusCaptionAndPanels) {
  OnModal("frmLanguage", [](QWidget& form) {
    Click(form, "Option(0)");
    Click(form, "cmdOK");
  });
  const QString english = Action("mnuOpen").text();
  Action("mnuLanguage").trigger();
  EXPECT_NE(Action("mnuOpen").text(), english);
  EXPECT_EQ(Panel(1), "Dati AAXX/BBXX: 0");
  EXPECT_EQ(Window().windowTitle(), "Zephyrgram Rel. 1.2 Build 0003");
  EXPECT_EQ(Parameter("Language"), "0");
}

TEST_F(FrmMain, TypedMessageIsDecoded) {
  OnModal("frmLineInputMsg", [](QWidget& form) {
    auto* text = form.findChild<QWidget*>("txtMsg");
    ASSERT_NE(text, nullptr);
    QTest::keyClicks(text, "metar lirf 101250z 24012kt 9999 few030 22/12 q1015=");
    Click(form, "cmdDecode");
  });
  Action("mnuLineInput").trigger();
  ASSERT_EQ(App.Stores.MetarStore.Count(), 1u);
  EXPECT_EQ(Panel(2), "Metar/TAF Data: 1");
  EXPECT_TRUE(App.mLineInputMsg.empty());
}

TEST_F(FrmMain, FiltersOfTheWindowsDropMessages) {
  OnModal("frmStationFilter", [](QWidget& form) {
    QTest::mouseClick(&Find<QAbstractButton>(form, "chkStation(2)"), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, 8));
    QTest::mouseClick(&Find<QAbstractButton>(form, "cmkOK"), Qt::LeftButton);
  });
  Action("mnuStationType").trigger();
  EXPECT_EQ(Parameter("StationType"), "3");
  Window().OpenBulletin(SynopFile());
  EXPECT_EQ(App.Stores.SynopStore.Count(), 0u);
}

TEST_F(FrmMain, MissingLabelFileIsToldAndBuiltInCaptionsStay) {
  std::filesystem::remove(App.ApplicationPath + "frmMain.eng");
  EXPECT_EQ(Action("mnuOpen").text(), "&File Meteo");
  ASSERT_EQ(Messages.Boxes.size(), 1u);
  EXPECT_NE(Messages.Boxes[0].text.find("frmMain.eng"), std::string::npos);
}

TEST_F(FrmMain, MinimizeTakesTheWindowAway) {
  Action("mnuMinimize").trigger();
  EXPECT_TRUE(Window().isMinimized());
}

TEST_F(FrmMain, SizeIsRemembered) {
  Window().resize(777, 444);
  KeepSize(App, Window());
  window_.reset();
  EXPECT_EQ(Window().size(), QSize(777, 444));
}

// The open window of a name, of those that are beside the main window.
QWidget* OpenWindow(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName() == QLatin1String(name)) return window;
  }
  return nullptr;
}

TEST_F(FrmMain, TypedMessageOpensItsReport) {
  OnModal("frmLineInputMsg", [](QWidget& form) {
    QTest::keyClicks(&Find<QWidget>(form, "txtMsg"), "metar lirf 101250z 24012kt cavok 22/12=");
    Click(form, "cmdDecode");
  });
  Action("mnuLineInput").trigger();
  EXPECT_NE(OpenWindow("frmMetarMeteoData"), nullptr);
  EXPECT_EQ(OpenWindow("frmSynopMeteoData"), nullptr);
}

TEST_F(FrmMain, TypedNonsenseOpensNothing) {
  OnModal("frmLineInputMsg", [](QWidget& form) {
    QTest::keyClicks(&Find<QWidget>(form, "txtMsg"), "words of note=");
    Click(form, "cmdDecode");
  });
  Action("mnuLineInput").trigger();
  EXPECT_EQ(OpenWindow("frmMetarMeteoData"), nullptr);
  EXPECT_TRUE(LogHolds("Wrong Message."));
}

TEST_F(FrmMain, InputIsShutWhileAViewIsOpen) {
  Window().OpenBulletin(SynopFile());
  Window().OpenBulletin(MetarFile());
  Action("mnuSynopDataGrid").trigger();
  Action("mnuMetarSynopDataGrid").trigger();
  EXPECT_FALSE(MenuEnabled("mnuInput"));
  ASSERT_NE(OpenWindow("frmSynopGlobalView"), nullptr);
  OpenWindow("frmSynopGlobalView")->close();
  EXPECT_FALSE(MenuEnabled("mnuInput"));
  ASSERT_NE(OpenWindow("frmMetarGlobalView"), nullptr);
  OpenWindow("frmMetarGlobalView")->close();
  EXPECT_TRUE(MenuEnabled("mnuInput"));
}

TEST_F(FrmMain, ViewOpenedAnewHasTheTitlesOfTheLanguage) {
  Window().OpenBulletin(SynopFile());
  const auto title = [&] {
    Action("mnuSynopDataGrid").trigger();
    QWidget* view = OpenWindow("frmSynopGlobalView");
    const auto& grid = Find<QTableView>(*view, "lstGlobal");
    const QString text = grid.model()->headerData(0, Qt::Horizontal).toString();
    view->close();
    return text;
  };
  EXPECT_EQ(title(), "StationId");
  App.Texts.SetLanguage(0);
  EXPECT_EQ(title(), "Stazione");
}

TEST_F(FrmMain, RowOfAViewOpensItsReport) {
  Window().OpenBulletin(SynopFile());
  Action("mnuSynopDataGrid").trigger();
  auto* view = qobject_cast<frmGlobalView*>(OpenWindow("frmSynopGlobalView"));
  ASSERT_NE(view, nullptr);
  emit view->RecordChosen(0);
  EXPECT_NE(OpenWindow("frmSynopMeteoData"), nullptr);
}

TEST_F(FrmMain, SingleReportNeedsRecords) {
  EXPECT_FALSE(Action("mnuSingleSheet").isEnabled());
  Window().OpenBulletin(SynopFile());
  ASSERT_TRUE(Action("mnuSingleSheet").isEnabled());
  Action("mnuSingleSheet").trigger();
  ASSERT_NE(OpenWindow("frmSynopMeteoData"), nullptr);
  EXPECT_EQ(OpenWindow("frmSynopMeteoData")->windowTitle(), "Meteo Data - Record: 1/1");
}

TEST_F(FrmMain, DataFieldsAreChosenForTheNextView) {
  OnModal("frmSynopDataFields", [](QWidget& form) {
    Click(form, "cmdNone");
    Click(form, "cmdOK");
  });
  Action("mnuSynopDataFields").trigger();
  EXPECT_EQ(Parameter("SynopDataFields"), "10000000000000000002");
}

class FrmMainFirstStart : public FrmMain {
 protected:
  FrmMainFirstStart() : FrmMain(false) {}
};

TEST_F(FrmMainFirstStart, BuildsTheTableWithTheMenusShut) {
  bool shut = false;
  bool progress = false;
  Window();
  QObject::connect(&Log, &WindowLog::Refreshed, &Window(), [&] {
    const QString last = Log.data(Log.index(Log.rowCount() - 1), Qt::DisplayRole).toString();
    if (!last.contains("Processing file ... ")) return;
    shut = !MenuEnabled("mnuConfig") && !MenuEnabled("mnuHelp") && !MenuEnabled("mnuInput") &&
           !MenuEnabled("mnuShowData") && !Action("mnuExit").isEnabled();
    progress = Find<QProgressBar>(Window(), "prgFile").isVisible() &&
               Panel(2) == "Building WMO Database ... ";
  });
  Window().LoadWMO();
  EXPECT_TRUE(shut);
  EXPECT_TRUE(progress);
  EXPECT_TRUE(MenuEnabled("mnuInput"));
  EXPECT_TRUE(Action("mnuExit").isEnabled());
  EXPECT_FALSE(Find<QProgressBar>(Window(), "prgFile").isVisible());
  EXPECT_GT(App.Stations.Size(), 20000u);
  EXPECT_TRUE(LogHolds("Building completed succesfully. Ready!"));
  EXPECT_TRUE(LogHolds("Wait for Loading Data ..."));
}

TEST_F(FrmMain, TableThatIsThereIsNotBuiltAgain) {
  Window().LoadWMO({MetarFile()});
  EXPECT_FALSE(LogHolds("WMO Station Database Empty. Build Requested!"));
  EXPECT_EQ(App.Stores.MetarStore.Count(), 1u);
}

}  // namespace
}  // namespace zg::test
