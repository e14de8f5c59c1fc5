#include "decode/frmDecode.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "decode/ListUtility.h"
#include "shell/ApplicationDecoder.h"
#include "ui/UiTest.h"

namespace zg::test {
namespace {

using Lines = std::vector<std::string>;

// What the lists have to be, by the functions that walk them.
struct WalkingObserver : DecodeObserver {
  Lines Countries;
  Lines Stations;
  int DecodedCount = 0;

  bool WantsAccepted() const override { return true; }
  void MessageAccepted(const AcceptedMessage& message) override {
    bool present = false;
    AddLineOnList(Countries, message.Country, present);
    present = false;
    AddLineOnList(Stations, message.ListName, present);
    DecodedCount = message.DecodedCount;
  }
  void StationRemoved(std::string_view listName) override { RemoveLineOnList(Stations, listName); }
};

constexpr const char* RomeAndVienna =
    "ZCZC 001\r\nSAIY31 LIMM 201250\r\n"
    "METAR LIRF 201250Z 24012KT 9999 FEW030 18/12 Q1015 NOSIG=\r\n"
    "METAR LOWW 201250Z 30008KT CAVOK 10/03 Q1020 NOSIG=\r\nNNNN\r\n";

class DecodeWindow : public UiTest {
 protected:
  // A bulletin file in the folder of the user's.
  std::string Write(const std::string& name, std::string_view bytes) {
    const std::string path = App.MeteoFilesPath + name;
    WriteTestFile(path, bytes);
    return path;
  }

  void Run(const std::string& path) {
    App.mFileName = path;
    Form.Run();
  }

  QString Label(const char* name) { return Find<QLabel>(Form, name).text(); }
  QString Field(const char* name) { return Find<QLineEdit>(Form, name).text(); }

  Lines List(const char* name) {
    const QAbstractItemModel& model = *Find<QListView>(Form, name).model();
    Lines lines;
    for (int row = 0; row < model.rowCount(); ++row) {
      lines.push_back(model.index(row, 0).data().toString().toStdString());
    }
    return lines;
  }

  std::size_t CountInLog(std::string_view beginning) {
    const Lines texts = LogTexts();
    return static_cast<std::size_t>(std::count_if(
        texts.begin(), texts.end(),
        [beginning](const std::string& text) { return text.starts_with(beginning); }));
  }

  void ExpectNoBox() { EXPECT_TRUE(Messages.Boxes.empty()) << Messages.Boxes.front().text; }

  // More than a store can hold, so that a run that is not stopped is seen.
  std::string LargeFile() {
    std::string bytes = "ZCZC 001\r\nSAIY31 LIMM 201250\r\n";
    for (int i = 0; i < 40000; ++i) {
      bytes += "METAR LIRF 201250Z 24012KT 9999 FEW030 18/12 Q1015 NOSIG=\r\n";
    }
    return Write("large.txt", bytes);
  }

  // Decodes the large file and acts as soon as the run hands out events.
  void RunAndAct(const std::function<void()>& act) {
    QTimer::singleShot(0, &Form, act);
    Run(LargeFile());
  }

  void ExpectStopped() {
    EXPECT_FALSE(Form.IsRunning());
    EXPECT_TRUE(Form.isHidden());
    const auto& bar = Find<QProgressBar>(Form, "prgFile");
    EXPECT_LT(bar.value(), bar.maximum());
    EXPECT_EQ(Label("lblBytes"), QString::number(bar.value()));
    EXPECT_NE(Label("lblPercent"), "100%");
    EXPECT_TRUE(Label("lblPercent").endsWith("%"));
    EXPECT_LT(App.Stores.MetarStore.Count(), 32000U);
    EXPECT_EQ(CountInLog("Decoding Speed: "), 1U);
    EXPECT_TRUE(LogHolds("File " + App.MeteoFilesPath + "large.txt Closed"));
    EXPECT_EQ(App.mFileName, "");
  }

  frmDecode Form{App, nullptr};
};

TEST_F(DecodeWindow, ShowsWhatARunHasCome) {
  QSignalSpy started(&Form, &frmDecode::RunStarted);
  QSignalSpy ended(&Form, &frmDecode::RunEnded);
  const std::string path = Write("two.txt", RomeAndVienna);
  bool shown = false;
  QTimer::singleShot(0, &Form, [&] { shown = Form.isVisible() && Form.IsRunning(); });
  std::string nameAtEnd;
  QObject::connect(&Form, &frmDecode::RunEnded, [&] { nameAtEnd = App.mFileName; });
  Run(path);

  EXPECT_EQ(started.count(), 1);
  EXPECT_EQ(ended.count(), 1);
  EXPECT_EQ(nameAtEnd, path);
  EXPECT_EQ(App.mFileName, "");
  EXPECT_TRUE(Form.isHidden());
  EXPECT_FALSE(Form.IsRunning());
  EXPECT_EQ(Field("txtFile"), "two.txt");
  EXPECT_EQ(App.Stores.MetarStore.Count(), 2U);
  EXPECT_EQ(List("lstCountry"), Lines({"Italy", "Austria"}));
  EXPECT_EQ(List("lstWMO"), Lines({"Roma/Fiumicino", "Wien/Schwechat-Flughafen"}));
  EXPECT_EQ(Label("lblCountryNum"), "2");
  EXPECT_EQ(Label("lblStationNum"), "2");
  EXPECT_EQ(Label("lblMsgNum"), "1") << "stored when the last message came";
  EXPECT_EQ(Label("lblType"), "METAR");
  EXPECT_EQ(Label("lblDay"), "20");
  EXPECT_EQ(Label("lblTime"), "12:50");
  EXPECT_EQ(Label("lblMsgId"), "SAIY31");
  EXPECT_EQ(Label("lblSender"), "LIMM");
  EXPECT_EQ(Label("lblCountry"), "Austria");
  EXPECT_EQ(Label("lblWMO"), "Wien/Schwechat-Flughafen");
  EXPECT_EQ(Label("lblPercent"), "100%");
  const QString size = QString::number(std::string_view(RomeAndVienna).size());
  EXPECT_EQ(Label("lblBytes"), size);
  EXPECT_EQ(Find<QProgressBar>(Form, "prgFile").value(), size.toInt());
  ExpectNoBox();
}

TEST_F(DecodeWindow, IsOnTheScreenDuringARun) {
  bool visible = false;
  RunAndAct([&] {
    visible = Form.isVisible() && Form.IsRunning() && !Form.isMinimized();
    Form.Stop();
  });
  EXPECT_TRUE(visible);
}

TEST_F(DecodeWindow, ShippedBulletins) {
  for (const char* name :
       {"METAR_Cycle.txt", "METAR_World.txt", "SYNOP_Land.txt", "SYNOP_Sea.txt", "TAF.txt"}) {
    SCOPED_TRACE(name);
    const std::string path = App.MeteoFilesPath + name;
    WalkingObserver walked;
    RecordingProgress progress;
    const MeteoDecode::Summary summary = ApplicationDecoder(App, walked, progress).DecodeFile(path);
    ASSERT_GT(summary.DecodedCount, 0);
    Run(path);
    EXPECT_EQ(List("lstCountry"), walked.Countries);
    EXPECT_EQ(List("lstWMO"), walked.Stations);
    EXPECT_FALSE(walked.Stations.empty());
    EXPECT_EQ(Label("lblCountryNum"), QString::number(walked.Countries.size()));
    EXPECT_EQ(Label("lblStationNum"), QString::number(walked.Stations.size()));
    EXPECT_EQ(Label("lblMsgNum"), QString::number(walked.DecodedCount));
    EXPECT_EQ(Label("lblPercent"), "100%");
    EXPECT_EQ(Field("txtFile"), QString(name));
  }
}

TEST_F(DecodeWindow, ANilMessageTakesItsStationBack) {
  Run(Write("nil.txt",
            "ZCZC 001\r\nSAXX31 LIMM 201250\r\n"
            "METAR LOWW 201250Z 30008KT CAVOK 10/03 Q1020=\r\n"
            "METAR EPWA 201250Z 30008KT CAVOK 10/03 Q1020=\r\n"
            "METAR LIRF 201250Z 24012KT 9999 18/12 Q1015=\r\n"
            "METAR LOWW 201250Z NIL=\r\nMETAR LIRF 201250Z NIL=\r\nNNNN\r\n"));
  EXPECT_EQ(App.Stores.MetarStore.Count(), 3U);
  EXPECT_EQ(List("lstWMO"), Lines({"Warszawa-Okecie", "Roma/Fiumicino"}))
      << "only stations behind Unknow are taken back";
  EXPECT_EQ(List("lstCountry"), Lines({"Austria", "Poland", "Italy"}));
  EXPECT_EQ(Label("lblMsgNum"), "3");
}

TEST_F(DecodeWindow, Filters) {
  struct Row {
    const char* country;
    const char* quadrant;
    const char* station;
    const char* quadrantText;
    const char* stationText;
    Lines stations;
  };
  const Row rows[] = {
      {"",
       "15",
       "7",
       "NE SE SW NW ",
       "Buoy Ship Land ",
       {"Roma/Fiumicino", "Wien/Schwechat-Flughafen"}},
      {"Austria, ", "15", "4", "NE SE SW NW ", "Land ", {"Wien/Schwechat-Flughafen"}},
      {"", "14", "3", "SE SW NW ", "Buoy Ship ", {}},
      {"", "0", "0", "", "", {}},
  };
  const std::string path = Write("two.txt", RomeAndVienna);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.quadrantText);
    App.Parameters.SetParameter("CountryFilter", row.country);
    App.Parameters.SetParameter("QuadrantFilter", row.quadrant);
    App.Parameters.SetParameter("StationType", row.station);
    App.Filters = ReadMessageFilters(App.Parameters);
    Run(path);
    EXPECT_EQ(Field("txtCountryFilter").toStdString(), Parameter("CountryFilter"));
    EXPECT_EQ(Field("txtQuadrantFilter"), row.quadrantText);
    EXPECT_EQ(Field("txtStationFilter"), row.stationText);
    EXPECT_EQ(List("lstWMO"), row.stations);
  }
  ExpectNoBox();
}

TEST_F(DecodeWindow, FilesOfEveryKind) {
  struct Row {
    const char* name;
    std::string bytes;
    Lines stations;
    const char* percent;
  };
  const std::string report = "METAR LIRF 201250Z 24012KT 9999 FEW030 18/12 Q1015=";
  std::string lower = RomeAndVienna;
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  std::string bare = RomeAndVienna;
  std::erase(bare, '\r');
  const Row rows[] = {
      {"empty", "", {}, ""},
      {"nothing to decode", "HELLO\r\nWORLD\r\n", {}, "100%"},
      {"lower case", lower, {"Roma/Fiumicino", "Wien/Schwechat-Flughafen"}, "100%"},
      {"bare line feeds", bare, {"Roma/Fiumicino", "Wien/Schwechat-Flughafen"}, "100%"},
      {"the first message chooses",
       "ZCZC 001\r\nSMIY01 LIIB 150600\r\nAAXX 15064\r\n"
       "16242 11458 61412 10143 20122 39793 40074=\r\nNNNN\r\n"
       "ZCZC 002\r\nSAIY31 LIMM 201250\r\n" +
           report + "\r\nNNNN\r\n",
       {"Roma/Fiumicino"},
       "100%"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Run(Write("file.txt", row.bytes));
    EXPECT_EQ(List("lstWMO"), row.stations);
    EXPECT_EQ(Label("lblPercent"), row.percent);
    EXPECT_EQ(Label("lblBytes").isEmpty(), row.bytes.empty());
    EXPECT_TRUE(Form.isHidden());
  }
  EXPECT_EQ(App.Stores.SynopStore.Count(), 1U);
  ExpectNoBox();
}

TEST_F(DecodeWindow, AnEmptyFileLeavesNoTrace) {
  Run(Write("two.txt", RomeAndVienna));
  Run(Write("empty.txt", ""));
  EXPECT_FALSE(std::filesystem::exists(App.WrongFilesPath + "empty.txt.Wrong"));
  EXPECT_EQ(App.Stores.MetarStore.Count(), 2U) << "the store keeps what it holds";
  EXPECT_EQ(List("lstCountry").size() + List("lstWMO").size(), 0U);
  EXPECT_EQ(Label("lblType") + Label("lblWMO") + Label("lblPercent"), "");
  EXPECT_EQ(Label("lblCountryNum"), "0");
  EXPECT_EQ(Label("lblMsgNum"), "0");
  EXPECT_EQ(Find<QProgressBar>(Form, "prgFile").text(), "") << "nothing is read";
}

TEST_F(DecodeWindow, AMissingFileIsToldAndTheProgramGoesOn) {
  const std::string missing = App.MeteoFilesPath + "missing.txt";
  QSignalSpy ended(&Form, &frmDecode::RunEnded);
  Run(missing);
  ASSERT_EQ(Messages.Boxes.size(), 1U);
  EXPECT_EQ(Messages.Boxes[0].icon, Prompt::Icon::Critical);
  EXPECT_NE(Messages.Boxes[0].text.find("missing.txt"), std::string::npos);
  EXPECT_TRUE(LogHolds(Messages.Boxes[0].text));
  EXPECT_EQ(ended.count(), 1);
  EXPECT_TRUE(Form.isHidden());

  Run(Write("two.txt", RomeAndVienna));
  EXPECT_EQ(App.Stores.MetarStore.Count(), 2U);
  EXPECT_EQ(Label("lblPercent"), "100%");
}

TEST_F(DecodeWindow, MaxMessagesEndsTheFile) {
  App.Parameters.SetParameter("MaxMessages", "3");
  std::string bytes = "ZCZC 001\r\nSAIY31 LIMM 201250\r\n";
  for (int i = 0; i < 6; ++i) {
    bytes += "METAR LIRF 201250Z 24012KT 9999 FEW030 18/12 Q1015 NOSIG=\r\n";
  }
  Run(Write("six.txt", bytes));
  EXPECT_EQ(App.Stores.MetarStore.Count(), 3U);
  EXPECT_TRUE(LogHolds("3 Msg: Max Message number reached."));
  EXPECT_EQ(Label("lblPercent"), "54%");
  Run(Write("two.txt", RomeAndVienna));
  EXPECT_EQ(App.Stores.MetarStore.Count(), 2U) << "the limit stops one file, not the next";
}

TEST_F(DecodeWindow, StopByClick) {
  RunAndAct([this] {
    QTest::mouseClick(&Find<QPushButton>(Form, "cmdCancel"), Qt::LeftButton);
    EXPECT_TRUE(Form.isVisible()) << "it closes when the run has ended";
  });
  ExpectStopped();
}

TEST_F(DecodeWindow, StopByEsc) {
  for (const char* focus : {"cmdCancel", "lstWMO", "txtFile"}) {
    SCOPED_TRACE(focus);
    Log.Log("");  // entries of one second are told apart by their text only
    RunAndAct([&] {
      auto& widget = Find<QWidget>(Form, focus);
      widget.setFocus();
      QTest::keyClick(&widget, Qt::Key_Escape);
    });
    EXPECT_LT(App.Stores.MetarStore.Count(), 32000U);
    EXPECT_TRUE(Form.isHidden());
  }
}

TEST_F(DecodeWindow, StopByTheCloseBox) {
  RunAndAct([this] { EXPECT_FALSE(Form.close()) << "it closes when the run has ended"; });
  ExpectStopped();
}

TEST_F(DecodeWindow, StopAtTheStart) {
  QObject::connect(&Form, &frmDecode::RunStarted, [this] { Form.Stop(); });
  Run(LargeFile());
  ExpectStopped();
}

TEST_F(DecodeWindow, StopOutsideTheLinesOfAFileIsNotLeftForTheNext) {
  Form.Stop();
  QMetaObject::Connection stop =
      QObject::connect(&Form, &frmDecode::RunStarted, [this] { Form.Stop(); });
  Run(Write("empty.txt", ""));
  Run(App.MeteoFilesPath + "missing.txt");
  QObject::disconnect(stop);
  Run(Write("two.txt", RomeAndVienna));
  EXPECT_EQ(App.Stores.MetarStore.Count(), 2U);
  EXPECT_EQ(Label("lblPercent"), "100%");
}

TEST_F(DecodeWindow, ASecondRunAfterAStop) {
  RunAndAct([this] { Form.Stop(); });
  ExpectStopped();
  Run(Write("two.txt", RomeAndVienna));
  EXPECT_EQ(App.Stores.MetarStore.Count(), 2U);
  EXPECT_EQ(List("lstWMO"), Lines({"Roma/Fiumicino", "Wien/Schwechat-Flughafen"}));
  EXPECT_EQ(Label("lblPercent"), "100%");
}

TEST_F(DecodeWindow, RunWithinARunDoesNothing) {
  QSignalSpy started(&Form, &frmDecode::RunStarted);
  const std::string other = Write("two.txt", RomeAndVienna);
  RunAndAct([&] {
    App.mFileName = other;
    Form.Run();
    EXPECT_TRUE(Form.IsRunning());
    Form.Stop();
  });
  EXPECT_EQ(started.count(), 1);
  EXPECT_EQ(CountInLog("Decoding ... "), 1U);
  EXPECT_TRUE(LogHolds("File " + App.MeteoFilesPath + "large.txt Closed"));
}

TEST_F(DecodeWindow, AScheduledRunIsMinimised) {
  App.mSchedulingStarted = true;
  bool minimised = false;
  RunAndAct([&] {
    minimised = Form.isMinimized();
    Form.Stop();
  });
  EXPECT_TRUE(minimised);
  App.mSchedulingStarted = false;
  RunAndAct([&] {
    minimised = Form.isMinimized();
    Form.Stop();
  });
  EXPECT_FALSE(minimised);
}

TEST_F(DecodeWindow, TheMainWindowHasABusyPointerMeanwhile) {
  QWidget main;
  frmDecode form(App, &main);
  Qt::CursorShape during = Qt::ArrowCursor;
  QTimer::singleShot(0, &form, [&] {
    during = main.cursor().shape();
    form.Stop();
  });
  App.mFileName = LargeFile();
  form.Run();
  EXPECT_EQ(during, Qt::BusyCursor);
  EXPECT_EQ(main.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(DecodeWindow, BothLanguages) {
  struct Row {
    std::uint8_t language;
    const char* caption;
    const char* countries;
    const char* all;
    const char* log;
  };
  const Row rows[] = {{1, "Decoding", "C&ountries", "All", "Decoding ... "},
                      {0, "Decodifica", "N&azioni", "Tutte", "Decodifica ... "}};
  const std::string path = Write("two.txt", RomeAndVienna);
  for (const Row& row : rows) {
    App.Texts.SetLanguage(row.language);
    Form.ReadLabels();
    EXPECT_EQ(Form.windowTitle(), QString(row.caption));
    EXPECT_EQ(Find<QPushButton>(Form, "cmdCancel").text(), "Stop");
    EXPECT_EQ(Find<QLineEdit>(Form, "txtCountryFilter").placeholderText(), QString(row.all));
    Run(path);
    EXPECT_EQ(CountInLog(row.log), 1U);
  }
  ExpectNoBox();
}

}  // namespace
}  // namespace zg::test
