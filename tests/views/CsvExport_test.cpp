#include "views/CsvExport.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "shell/TestSupport.h"
#include "views/ViewTestSupport.h"

namespace zg::test {
namespace {

// The whole file in memory.
std::string CsvText(const GlobalView& view) {
  std::string text;
  AppendCsvHeading(view, text);
  for (std::size_t row = 0; row < view.RowCount(); ++row) AppendCsvRow(view, row, text);
  return text;
}

struct CsvFixture : ViewFixture {
  GlobalView View{SynopGlobalView, Stores, Texts};

  void Show(const std::vector<std::string_view>& fields) {
    View.SetColumns(SelectionOf(SynopGlobalView, fields));
    View.RefreshGlobalList();
  }
};

TEST(CsvExport, HeadingsAndRows) {
  CsvFixture fixture;
  fixture.AddSynop("Roma").Temperature = "18.2 °C";
  fixture.AddSynop("Paris", "France");
  fixture.Show({"StationId", "Country", "Temperature"});
  EXPECT_EQ(CsvText(fixture.View),
            "StationId,Country,Temperature,\r\n"
            "Roma,Italy,18.2 \xB0"
            "C,\r\n"
            "Paris,France, ,\r\n");
}

TEST(CsvExport, NoRowsLeaveTheHeading) {
  CsvFixture fixture;
  fixture.Show({"StationId", "Country"});
  EXPECT_EQ(CsvText(fixture.View), "StationId,Country,\r\n");
}

TEST(CsvExport, OneColumn) {
  CsvFixture fixture;
  fixture.AddSynop("Roma");
  fixture.Show({"StationId"});
  EXPECT_EQ(CsvText(fixture.View), "StationId,\r\nRoma,\r\n");
}

TEST(CsvExport, CommasBecomePoints) {
  CsvFixture fixture;
  fixture.AddSynop("A, B,, C", "Italy").PresentWeather = "Fog, ice";
  fixture.Show({"StationId", "Country", "PresentWeather"});
  EXPECT_EQ(CsvText(fixture.View),
            "StationId,Country,Present Weather,\r\nA. B.. C,Italy,Fog. ice,\r\n");
}

TEST(CsvExport, NothingIsQuoted) {
  CsvFixture fixture;
  fixture.AddSynop("L'Aquila \"x\";\ty", "=1+1");
  fixture.Show({"StationId", "Country"});
  EXPECT_EQ(CsvText(fixture.View), "StationId,Country,\r\nL'Aquila \"x\";\ty,=1+1,\r\n");
}

TEST(CsvExport, HeadingsInItalian) {
  ViewFixture fixture;
  fixture.Texts.SetLanguage(0);
  GlobalView view(MetarGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(MetarGlobalView, {"StationId", "WindSpeed", "RVRVisibility"}));
  EXPECT_EQ(CsvText(view), "Stazione,Dir./Veloc. Vento,RVR Visibilita',\r\n");
}

TEST(CsvExport, RowsAsTheyAreSorted) {
  CsvFixture fixture;
  fixture.AddSynop("Roma");
  fixture.AddSynop("Aosta");
  fixture.Show({"StationId"});
  fixture.View.ClickColumn(0);
  EXPECT_EQ(CsvText(fixture.View), "StationId,\r\nAosta,\r\nRoma,\r\n");
  fixture.View.ClickColumn(0);
  EXPECT_EQ(CsvText(fixture.View), "StationId,\r\nRoma,\r\nAosta,\r\n");
}

TEST(CsvExport, WithoutUnits) {
  CsvFixture fixture;
  SynopData& record = fixture.AddSynop("Roma");
  record.Temperature = "18.2 °C";
  record.WindSpeed = "05.0 mps (Anem.)";
  fixture.View.SetUnitsShown(false);
  fixture.Show({"StationId", "WindSpeed", "Temperature"});
  EXPECT_EQ(CsvText(fixture.View), "StationId,Wind Speed,Temperature,\r\nRoma,05.0,18.2,\r\n");
}

TEST(CsvExport, TheColumnOfInsertionIsABlank) {
  CsvFixture fixture;
  fixture.AddSynop("Roma");
  fixture.Show({"StationId", "RecordIndex", "InsertTime"});
  EXPECT_EQ(CsvText(fixture.View), "StationId,Record Index,Insert Time,\r\nRoma,001, ,\r\n");
}

TEST(CsvExport, FilesAreReplaced) {
  const TemporaryFolder folder;
  const std::string path = folder / "out.csv";
  WriteTestFile(path, std::string(1000, 'x'));
  CsvFixture fixture;
  fixture.AddSynop("Roma");
  fixture.Show({"StationId"});
  EXPECT_EQ(WriteCsvFile(fixture.View, path), "");
  EXPECT_EQ(ReadTestFile(path), "StationId,\r\nRoma,\r\n");
  EXPECT_EQ(folder.Entries(), std::vector<std::string>{"out.csv"});
}

TEST(CsvExport, LongFilesAreWrittenWhole) {
  const TemporaryFolder folder;
  CsvFixture fixture;
  for (int i = 0; i < 3000; ++i) fixture.AddSynop("Roma Fiumicino Aeroporto");
  fixture.View.SetColumns(AllFields);
  fixture.View.RefreshGlobalList();
  EXPECT_EQ(WriteCsvFile(fixture.View, folder / "out.csv"), "");
  const std::string expected = CsvText(fixture.View);
  EXPECT_GT(expected.size(), 4 * 64 * 1024U);
  EXPECT_TRUE(ReadTestFile(folder / "out.csv") == expected);
}

TEST(CsvExport, Failures) {
  const TemporaryFolder folder;
  CsvFixture fixture;
  fixture.AddSynop("Roma");
  fixture.Show({"StationId"});
  EXPECT_EQ(WriteCsvFile(fixture.View, folder / "missing/out.csv"), "No such file or directory");
  EXPECT_EQ(WriteCsvFile(fixture.View, folder.Path()), "Is a directory");
  EXPECT_EQ(WriteCsvFile(fixture.View, "/dev/full"), "No space left on device");
}

TEST(CsvExport, WhatWasWrittenBeforeAFailureStays) {
  const TemporaryFolder folder;
  CsvFixture fixture;
  fixture.AddSynop("Roma");
  fixture.Show({"StationId"});
  rlimit whole{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &whole), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small = {10, whole.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const std::string error = WriteCsvFile(fixture.View, folder / "out.csv");
  EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &whole), 0);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(error, "File too large");
  EXPECT_EQ(ReadTestFile(folder / "out.csv"), "StationId,");
}

TEST(CsvExport, FileName) {
  EXPECT_EQ(CsvFileName("/home/me/MeteoFiles/metar.txt"), "/home/me/MeteoFiles/metar.txt.csv");
}

TEST(CsvExport, Outcomes) {
  struct Row {
    CsvExport how;
    std::uint8_t language;
    const char* error;
    const char* text;
  };
  const Row rows[] = {
      {CsvExport::ByUser, 1, "", "CSV File succesfully saved!"},
      {CsvExport::ByUser, 0, "", "File CSV generato correttamente!"},
      {CsvExport::Scheduled, 1, "", "CSV File succesfully saved"},
      {CsvExport::Scheduled, 0, "", "File CSV generato correttamente"},
      {CsvExport::ByUser, 1, "Disk full", "CSV File not saved!\r\nError: Disk full"},
      {CsvExport::ByUser, 0, "Disk full",
       "Il File CSV NON e' stato generato!\r\nProblema: Disk full"},
      {CsvExport::Scheduled, 1, "Disk full", "CSV File not saved!\r\nError: Disk full"},
      {CsvExport::Scheduled, 0, "Disk full",
       "Il File CSV NON e' stato generato!\r\nProblema: Disk full"},
  };
  TextUtility texts;
  for (const Row& row : rows) {
    texts.SetLanguage(row.language);
    EXPECT_EQ(CsvOutcome(row.how, row.error, texts), row.text);
  }
}

}  // namespace
}  // namespace zg::test
