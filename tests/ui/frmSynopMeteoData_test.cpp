#include "tables/frmSynopMeteoData.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontInfo>
#include <QHelpEvent>

#include "ui/ReportTest.h"

namespace zg::test {
namespace {

class SynopMeteoData : public ReportTest {
 protected:
  SynopMeteoData() : ReportTest(SynopReport) {}

  // Three stations on land: section 1 alone; section 3 with cloud layers; section 3 without.
  void DecodeLand() {
    DecodeText(
        "ZCZC 001\r\r\nSMIY01 LIIB 151200\r\r\nAAXX 15121\r\r\n"
        "16239 11458 83610 10187 20131 30051 40067 57012 60052 76162 878//=\r\r\n"
        "16242 11458 63610 10187 20131 40067 57012 333 10215 20101 81656 83070 87272 91126=\r\r\n"
        "16245 31458 63610 10187 29055 40067 57012 333 10215=\r\r\n"
        "NNNN\r\r\n");
    ASSERT_EQ(Count(), 3u);
  }
};

TEST_F(SynopMeteoData, ShowsEachRecordOfLand) {
  DecodeSample("SYNOP_Land.txt");
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  ExpectAllRecords(form);
}

TEST_F(SynopMeteoData, ShowsEachRecordOfTheSea) {
  DecodeSample("SYNOP_Sea.txt");
  frmSynopMeteoData form(App, nullptr);
  App.Texts.SetLanguage(0);
  form.ReadLabels();
  form.ShowSynopDataRecord(0);
  ExpectAllRecords(form);
}

TEST_F(SynopMeteoData, OpensWithTheRecordAndLogs) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  EXPECT_FALSE(form.isVisible());
  form.ShowSynopDataRecord(1);
  EXPECT_TRUE(form.isVisible());
  EXPECT_FALSE(form.isModal());
  EXPECT_EQ(form.CurrentIndex(), 1);
  EXPECT_EQ(form.windowTitle(), "Meteo Data - Record: 2/3");
  const std::vector<std::string> log = LogTexts();
  ASSERT_GE(log.size(), 2u);
  EXPECT_EQ(log[log.size() - 2], "Loading data ...");
  EXPECT_EQ(log.back(), "Loading data ... OK");
}

TEST_F(SynopMeteoData, NothingOpensWithoutTheRecord) {
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  EXPECT_FALSE(form.isVisible());
  DecodeLand();
  for (const int index : {-1, 3}) {
    form.ShowSynopDataRecord(index);
    EXPECT_FALSE(form.isVisible()) << index;
  }
}

TEST_F(SynopMeteoData, Tabs) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  EXPECT_EQ(EnabledTabs(form), "0 4");
  EXPECT_EQ(TabCaptions(form), "Meteo Data|Sea Obervat.|Climatological Data|Other Data|Msg Text");
  Click(form, "cmdNext");
  EXPECT_EQ(EnabledTabs(form), "0 2 4");
}

// The tab that the user has opened stays in front as far as a record has it.
TEST_F(SynopMeteoData, TheTabInFrontStays) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(1);
  auto& tabs = Find<QTabWidget>(form, "tabReport");
  tabs.setCurrentIndex(2);
  Click(form, "cmdNext");
  EXPECT_EQ(tabs.currentIndex(), 2);
  form.ShowSynopDataRecord(0);
  EXPECT_EQ(tabs.currentIndex(), 0);
  Click(form, "cmdNext");
  EXPECT_EQ(tabs.currentIndex(), 2);
}

TEST_F(SynopMeteoData, NextAndPrevious) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  const auto& next = Find<QPushButton>(form, "cmdNext");
  const auto& previous = Find<QPushButton>(form, "cmdPrevious");
  const auto& list = Find<QComboBox>(form, "cmbWmoId");
  EXPECT_FALSE(previous.isEnabled());
  Click(form, "cmdNext");
  EXPECT_TRUE(previous.isEnabled());
  Click(form, "cmdNext");
  EXPECT_FALSE(next.isEnabled());
  EXPECT_EQ(list.currentIndex(), 2);
  EXPECT_EQ(form.windowTitle(), "Meteo Data - Record: 3/3");
  Click(form, "cmdPrevious");
  EXPECT_EQ(list.currentIndex(), 1);
  EXPECT_TRUE(next.isEnabled());
  ExpectRecord(form, 1);
}

TEST_F(SynopMeteoData, EnterGoesToTheNextRecord) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  Find<QTabWidget>(form, "tabReport").setFocus();
  QTest::keyClick(&form, Qt::Key_Return);
  EXPECT_EQ(form.CurrentIndex(), 1);
}

TEST_F(SynopMeteoData, ASingleRecordHasNoOther) {
  DecodeText(
      "ZCZC 001\r\r\nSMIY01 LIIB 151200\r\r\nAAXX 15121\r\r\n16239 11458 83610 10187 40067=\r\r\n"
      "NNNN\r\r\n");
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  EXPECT_EQ(form.windowTitle(), "Meteo Data - Record: 1/1");
  EXPECT_FALSE(Find<QPushButton>(form, "cmdNext").isEnabled());
  EXPECT_FALSE(Find<QPushButton>(form, "cmdPrevious").isEnabled());
}

TEST_F(SynopMeteoData, CloudLayersByTheirButtons) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  EXPECT_EQ(Options(form, "optLayer", 4), "");
  form.ShowSynopDataRecord(1);
  const SynopData& record = App.Stores.SynopStore.Records()[1];
  ASSERT_FALSE(record.HeighOfCloud[2].empty());
  EXPECT_EQ(Options(form, "optLayer", 4), "[0] 1 2");
  EXPECT_EQ(Text(form, "txtHeighOfCloud"), record.HeighOfCloud[0]);
  Find<QTabWidget>(form, "tabReport").setCurrentIndex(2);
  Click(form, "optLayer(2)");
  EXPECT_EQ(Options(form, "optLayer", 4), "0 1 [2]");
  EXPECT_EQ(Text(form, "txtCloudCovLayer"), record.CloudCovLayer[2]);
  EXPECT_EQ(Text(form, "txtTypeOfCloud"), record.TypeOfCloud[2]);
  EXPECT_EQ(Text(form, "txtHeighOfCloud"), record.HeighOfCloud[2]);
}

TEST_F(SynopMeteoData, LabelsGoWithTheRecord) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  EXPECT_EQ(LabelText(form, "lblWmoId"), "Land Station");
  EXPECT_EQ(LabelText(form, "lblDewpoint"), "Dewpoint");
  form.ShowSynopDataRecord(2);
  EXPECT_EQ(LabelText(form, "lblDewpoint"), "Humidity");
  DecodeSample("SYNOP_Sea.txt");
  form.StoreChanged();
  EXPECT_EQ(LabelText(form, "lblWmoId"), "Ship");
  EXPECT_EQ(LabelText(form, "lblICAO"), "Quadrant");
}

TEST_F(SynopMeteoData, LanguageChangesWhileItIsOpen) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(1);
  Click(form, "optLayer(1)");
  const std::string type = Text(form, "txtStatType");
  App.Texts.SetLanguage(0);
  ReadLabelOfAllForms(App);
  EXPECT_EQ(TabCaptions(form), "Dati Meteo|Oss. Marine|Dati Climatologici|Altri Dati|Testo Msg");
  EXPECT_EQ(LabelText(form, "lblWmoId"), "Stazione di Terra");
  EXPECT_EQ(LabelText(form, "lblTemperature"), "Temperatura");
  EXPECT_EQ(Find<QPushButton>(form, "cmdNext").text(), "S&uccessivo");
  EXPECT_EQ(form.windowTitle(), "Meteo Data - Record: 2/3");
  EXPECT_NE(Text(form, "txtStatType"), type);
  EXPECT_EQ(Options(form, "optLayer", 4), "0 [1] 2");
}

TEST_F(SynopMeteoData, TheWeatherSymbolHasItsFont) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  const auto& symbol = Find<QLineEdit>(form, "txtWeatherSymb");
  EXPECT_EQ(QFontInfo(symbol.font()).family(), "weather");
  EXPECT_EQ(symbol.text().size(), 1);
  EXPECT_GT(symbol.fontInfo().pixelSize(), 2 * form.fontInfo().pixelSize());
}

TEST_F(SynopMeteoData, TextsCanBeSelectedAndNotChanged) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  auto& box = Find<QLineEdit>(form, "txtTemperature");
  const QString text = box.text();
  QTest::keyClicks(&box, "9");
  EXPECT_EQ(box.text(), text);
  box.selectAll();
  EXPECT_EQ(box.selectedText(), text);
  auto& message = Find<QPlainTextEdit>(form, "txtMessage");
  QTest::keyClicks(&message, "9");
  EXPECT_EQ(message.toPlainText().toStdString(), App.Stores.SynopStore.Records()[0].Msg);
}

// A text that is cut off can be read in the tool tip; others have none.
TEST_F(SynopMeteoData, ToolTipsOfLongTexts) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  auto& box = Find<QLineEdit>(form, "txtPresentWeather");
  ASSERT_FALSE(box.text().isEmpty());
  const auto point = [&box] {
    QHelpEvent event(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(&box, &event);
    return box.toolTip();
  };
  EXPECT_EQ(point(), "");
  box.resize(30, box.height());
  EXPECT_EQ(point(), box.text());
}

// --- The list of records -----------------------------------------------------------------------

TEST_F(SynopMeteoData, ListHasARowForEachRecord) {
  DecodeSample("SYNOP_Sea.txt");
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  const auto& list = Find<QComboBox>(form, "cmbWmoId");
  ASSERT_EQ(static_cast<std::size_t>(list.count()), Count());
  for (int row = 0; row < list.count(); ++row) {
    const StationTexts& station =
        App.Stores.SynopStore.Records()[static_cast<std::size_t>(row)].Station;
    const std::string expected = std::string(station.Station()) + " [" +
                                 std::string(station.LatPosition()) + " " +
                                 std::string(station.LongPosition()) + "]";
    EXPECT_EQ(list.itemText(row).toStdString(), expected);
  }
}

TEST_F(SynopMeteoData, ChoosingFromTheListGivesTheKeyboardBack) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  auto& list = Find<QComboBox>(form, "cmbWmoId");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form.CurrentIndex(), 1);
  EXPECT_TRUE(list.isEnabled());
  EXPECT_FALSE(list.hasFocus());
}

TEST_F(SynopMeteoData, TypingFindsARecord) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  auto& list = Find<QComboBox>(form, "cmbWmoId");
  list.setFocus();
  list.lineEdit()->selectAll();
  QTest::keyClicks(&list, "16245");
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(form.CurrentIndex(), 2);
  EXPECT_EQ(list.currentText(), list.itemText(2));
  EXPECT_FALSE(list.completer()->popup()->isVisible());
}

TEST_F(SynopMeteoData, WhatIsNotFoundIsTakenBack) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(1);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  auto& list = Find<QComboBox>(form, "cmbWmoId");
  const QString shown = list.currentText();
  for (const auto key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab}) {
    list.setFocus();
    list.lineEdit()->selectAll();
    QTest::keyClicks(&list, "nowhere");
    QTest::keyClick(&list, key);
    EXPECT_EQ(list.currentText(), shown) << key;
    EXPECT_EQ(form.CurrentIndex(), 1) << key;
    EXPECT_TRUE(form.isVisible()) << key;
  }
}

// --- The store changes -------------------------------------------------------------------------

TEST_F(SynopMeteoData, ANewStoreIsShownFromItsFirstRecord) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(2);
  DecodeSample("SYNOP_Land.txt");
  form.StoreChanged();
  EXPECT_EQ(form.CurrentIndex(), 0);
  ExpectRecord(form, 0);
}

TEST_F(SynopMeteoData, ARunOfTheOtherFamilyChangesNothing) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(2);
  DecodeSample("TAF.txt");
  form.StoreChanged();
  EXPECT_EQ(form.CurrentIndex(), 2);
  ExpectRecord(form, 2);
}

TEST_F(SynopMeteoData, ClosesWhenThereIsNothingLeft) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(2);
  App.Stores.SynopStore.Reset(1);
  form.StoreChanged();
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.CurrentIndex(), 0);
}

TEST_F(SynopMeteoData, AClosedWindowOpensWithTheNewStore) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(2);
  Click(form, "cmdCancel");
  EXPECT_FALSE(form.isVisible());
  DecodeSample("SYNOP_Sea.txt");
  form.StoreChanged();
  form.ShowSynopDataRecord(form.CurrentIndex());
  EXPECT_TRUE(form.isVisible());
  ExpectRecord(form, 0);
}

TEST_F(SynopMeteoData, EscCloses) {
  DecodeLand();
  frmSynopMeteoData form(App, nullptr);
  form.ShowSynopDataRecord(0);
  Find<QTabWidget>(form, "tabReport").setFocus();
  QTest::keyClick(form.focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  form.ShowSynopDataRecord(0);
  Find<QComboBox>(form, "cmbWmoId").setFocus();
  QTest::keyClick(form.focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

// --- Printing ----------------------------------------------------------------------------------

TEST_F(SynopMeteoData, PrintsWithoutItsButtons) {
  DecodeLand();
  const std::string file = Folder.Path() + "report.pdf";
  PrintingReport<frmSynopMeteoData> form(App, QString::fromStdString(file));
  form.ShowSynopDataRecord(1);
  Click(form, "cmdReport");
  EXPECT_TRUE(form.Painted);
  EXPECT_FALSE(form.ButtonsSeen);
  EXPECT_TRUE(Find<QWidget>(form, "FrameCommand").isVisible());
  EXPECT_EQ(form.focusWidget(), &Find<QPushButton>(form, "cmdReport"));
  const std::string pdf = ReadTestFile(file);
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_NE(pdf.find("%%EOF"), std::string::npos);
  EXPECT_GT(pdf.size(), 5000u);
  EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(SynopMeteoData, WhoDoesNotWantToPrintDoesNot) {
  DecodeLand();
  PrintingReport<frmSynopMeteoData> form(App, QString());
  form.ShowSynopDataRecord(1);
  Click(form, "cmdReport");
  EXPECT_TRUE(form.Chosen);
  EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(SynopMeteoData, TellsThatItCouldNotPrint) {
  DecodeLand();
  PrintingReport<frmSynopMeteoData> form(
      App, QString::fromStdString(Folder.Path() + "no folder/report.pdf"));
  form.ShowSynopDataRecord(1);
  Click(form, "cmdReport");
  ASSERT_EQ(Messages.Boxes.size(), 1u);
  EXPECT_TRUE(Find<QWidget>(form, "FrameCommand").isVisible());
}

}  // namespace
}  // namespace zg::test
