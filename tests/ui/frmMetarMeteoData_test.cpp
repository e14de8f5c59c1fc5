#include "tables/frmMetarMeteoData.h"

#include "ui/ReportTest.h"

namespace zg::test {
namespace {

class MetarMeteoData : public ReportTest {
 protected:
  MetarMeteoData() : ReportTest(MetarReport) {}

  // One with two cloud layers and remarks.
  void DecodeReport() {
    DecodeText(
        "ZCZC 001\r\r\nSAUS70 KWBC 151800\r\r\nMETAR\r\r\n"
        "KDEN 151753Z AUTO 24015G25KT 10SM -RA BR FEW012 BKN050CB 12/03 A2992 RMK AO2 SLP132 "
        "P0012 60045 10150 20051 401670044 8/572 56012=\r\r\nNNNN\r\r\n");
    ASSERT_EQ(Count(), 1u);
  }

  // One with two change groups, of which the second has two cloud layers.
  void DecodeForecast() {
    DecodeText(
        "ZCZC 001\r\r\nFCIY31 LIIB 151100\r\r\nTAF\r\r\n"
        "LIRF 151100Z 151221 24012KT 9999 SCT030 TEMPO 1416 4000 RA BKN012 "
        "BECMG 1820 18005KT FEW020 BKN040=\r\r\nNNNN\r\r\n");
    ASSERT_EQ(Count(), 1u);
    ASSERT_EQ(App.Stores.MetarStore.Records()[0].SectionCount(), 3);
  }
};

TEST_F(MetarMeteoData, ShowsEachRecordOfTheSample) {
  for (const char* sample : {"METAR_World.txt", "TAF.txt"}) {
    SCOPED_TRACE(sample);
    DecodeSample(sample);
    frmMetarMeteoData form(App, nullptr);
    form.ShowMetarDataRecord(0);
    ExpectAllRecords(form);
  }
}

TEST_F(MetarMeteoData, ShowsEachRecordInItalian) {
  App.Texts.SetLanguage(0);
  DecodeSample("METAR_Cycle.txt");
  frmMetarMeteoData form(App, nullptr);
  form.ShowMetarDataRecord(0);
  ExpectAllRecords(form);
}

TEST_F(MetarMeteoData, Report) {
  DecodeReport();
  frmMetarMeteoData form(App, nullptr);
  form.ShowMetarDataRecord(0);
  EXPECT_EQ(form.windowTitle(), "Meteo Data - Record: 1/1");
  EXPECT_EQ(EnabledTabs(form), "0 2 3 4");
  EXPECT_EQ(TabCaptions(form), "Metar/Speci|TAF|Forecast|RMK Section|Msg Text");
  EXPECT_EQ(LabelText(form, "lblWmoId"), "Airport");
  EXPECT_EQ(LabelText(form, "lblICAO"), "ICAO Id");
  EXPECT_EQ(Text(form, "txtIcaoId"), "KDEN");
  EXPECT_EQ(Text(form, "txtStatType"), "Automated Observations");
  EXPECT_EQ(Text(form, "chkAO2"), "1");
  EXPECT_EQ(Text(form, "chkAO1"), "");
  EXPECT_EQ(Text(form, "chktAO2"), "");
  EXPECT_EQ(Text(form, "txtmGust"), "25 kt");
  EXPECT_EQ(Text(form, "txttGust"), "");
  EXPECT_NE(Text(form, "txtrSeaPressureLevel"), "");
  EXPECT_NE(Text(form, "txtrSixHourMaxTemperature"), "");
}

TEST_F(MetarMeteoData, AReportWithoutRemarksHasNoTabForThem) {
  DecodeText(
      "ZCZC 001\r\r\nSAIY31 LIIB 151150\r\r\nMETAR\r\r\nLIRF 151150Z 24012KT 9999 SCT030 18/12 "
      "Q1013=\r\r\nNNNN\r\r\n");
  frmMetarMeteoData form(App, nullptr);
  form.ShowMetarDataRecord(0);
  EXPECT_EQ(EnabledTabs(form), "0 4");
  EXPECT_EQ(Text(form, "txtStatType"), "Manual Observations");
  App.Texts.SetLanguage(0);
  ReadLabelOfAllForms(App);
  EXPECT_EQ(TabCaptions(form), "Metar/Speci|TAF|Previsioni|Sezione RMK|Testo Msg");
  EXPECT_EQ(LabelText(form, "lblWmoId"), "Aereoporto");
  EXPECT_EQ(Text(form, "txtStatType"), "Osservazioni Manuali");
}

TEST_F(MetarMeteoData, ChecksCannotBeTicked) {
  DecodeReport();
  frmMetarMeteoData form(App, nullptr);
  form.ShowMetarDataRecord(0);
  for (const char* name : {"chkAO1", "chkAO2"}) {
    auto& box = Find<QCheckBox>(form, name);
    const bool checked = box.isChecked();
    QTest::mouseClick(&form, Qt::LeftButton, {}, box.mapTo(&form, box.rect().center()));
    EXPECT_EQ(box.isChecked(), checked) << name;
    EXPECT_EQ(box.focusPolicy(), Qt::NoFocus) << name;
  }
}

TEST_F(MetarMeteoData, CloudLayersByTheirButtons) {
  DecodeReport();
  frmMetarMeteoData form(App, nullptr);
  form.ShowMetarDataRecord(0);
  const MetarSection& report = App.Stores.MetarStore.Records()[0].Section[0];
  EXPECT_EQ(Options(form, "CloudOption", 3), "[0] 1");
  EXPECT_EQ(Options(form, "tCloudOption", 3), "");
  EXPECT_EQ(Text(form, "txtmCloudCover"), report.CloudCover[0]);
  EXPECT_EQ(Text(form, "txtmTypeOfCloud"), "");
  Click(form, "CloudOption(1)");
  EXPECT_EQ(Text(form, "txtmCloudCover"), report.CloudCover[1]);
  EXPECT_EQ(Text(form, "txtmTypeOfCloud"), report.CloudType[1]);
  EXPECT_NE(Text(form, "txtmTypeOfCloud"), "");
  EXPECT_EQ(Text(form, "txtmHeighOfCloud"), report.CloudHeigh[1]);
}

TEST_F(MetarMeteoData, SectionsByTheirButtons) {
  DecodeForecast();
  frmMetarMeteoData form(App, nullptr);
  form.ShowMetarDataRecord(0);
  EXPECT_EQ(EnabledTabs(form), "1 2 4");
  auto& tabs = Find<QTabWidget>(form, "tabReport");
  EXPECT_EQ(tabs.currentIndex(), 1);
  tabs.setCurrentIndex(2);
  EXPECT_EQ(Options(form, "optSectionTime", 14), "[0] 1");
  EXPECT_TRUE(Find<QRadioButton>(form, "optSectionTime(1)").isVisible());
  EXPECT_FALSE(Find<QRadioButton>(form, "optSectionTime(2)").isVisible());
  EXPECT_EQ(Find<QRadioButton>(form, "optSectionTime(0)").text(), "Occasional 14:00Z - 16:00Z");
  EXPECT_EQ(Text(form, "txtsSectionIndication"), "Occasional");
  EXPECT_EQ(Text(form, "txtsValidityStartHour"), "14:00Z");
  EXPECT_EQ(Text(form, "txtsWindSpeed"), "");
  EXPECT_EQ(Options(form, "sCloudOption", 3), "[0]");
  Click(form, "optSectionTime(1)");
  EXPECT_EQ(Options(form, "optSectionTime", 14), "0 [1]");
  EXPECT_EQ(Text(form, "txtsSectionIndication"), "Gradul change");
  EXPECT_EQ(Text(form, "txtsValidityEndHour"), "20:00Z");
  EXPECT_EQ(Text(form, "txtsWindSpeed"), "5 kt");
  EXPECT_EQ(Options(form, "sCloudOption", 3), "[0] 1");
  Click(form, "sCloudOption(1)");
  EXPECT_EQ(Text(form, "txtsCloudCover"),
            App.Stores.MetarStore.Records()[0].Section[2].CloudCover[1]);
}

TEST_F(MetarMeteoData, TypingFindsAnAirportByItsIdentifier) {
  DecodeSample("METAR_World.txt");
  frmMetarMeteoData form(App, nullptr);
  form.ShowMetarDataRecord(0);
  const auto records = App.Stores.MetarStore.Records();
  const std::size_t last = records.size() - 1;
  auto& list = Find<QComboBox>(form, "cmbWmoId");
  list.setFocus();
  list.lineEdit()->selectAll();
  QTest::keyClicks(&list, QString::fromStdString(std::string(records[last].Station.IcaoName())));
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(records[static_cast<std::size_t>(form.CurrentIndex())].Station.IcaoName(),
            records[last].Station.IcaoName());
  EXPECT_NE(form.CurrentIndex(), 0);
}

TEST_F(MetarMeteoData, Prints) {
  DecodeForecast();
  const std::string file = Folder.Path() + "report.pdf";
  PrintingReport<frmMetarMeteoData> form(App, QString::fromStdString(file));
  form.ShowMetarDataRecord(0);
  Click(form, "cmdReport");
  EXPECT_TRUE(form.Painted);
  EXPECT_FALSE(form.ButtonsSeen);
  EXPECT_EQ(ReadTestFile(file).substr(0, 5), "%PDF-");
}

}  // namespace
}  // namespace zg::test
