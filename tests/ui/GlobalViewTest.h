// A window of a global view over decoded golden bulletins, and the clicks that its tests make.
#pragma once

#include <QCheckBox>
#include <QHeaderView>
#include <QPushButton>
#include <memory>
#include <string>
#include <vector>

#include "shell/ApplicationDecoder.h"
#include "stations/StationImport.h"
#include "ui/UiTest.h"
#include "views/QtGrid.h"
#include "views/ViewTestSupport.h"
#include "views/frmGlobalView.h"

namespace zg::test {

using Strings = std::vector<std::string>;

inline const std::string GoldenFolder = std::string(ZG_SOURCE_DIR) + "/tests/golden/";

class GlobalViewWindow : public UiTest {
 protected:
  // With the stations that the golden files were made with.
  GlobalViewWindow() : UiTest(false) {
    for (const char* list : {"wmo_index.txt", "icao_index.txt"}) {
      WriteTestFile(Folder.Path() + list, ReadTestFile(GoldenFolder + "app/" + list));
    }
    RecordingProgress progress;
    BuildStationTable(App.Parameters, App.Database, App.Texts, Log, progress, Messages);
    App.Stations.Load(App.Database);
  }

  // Decodes a golden bulletin into its store.
  void Decode(const std::string& name) {
    const std::string path = App.MeteoFilesPath + name + ".txt";
    WriteTestFile(path, ReadTestFile(GoldenFolder + name + ".txt"));
    DecodeObserver observer;
    RecordingProgress progress;
    ApplicationDecoder(App, observer, progress).DecodeFile(path);
  }

  frmGlobalView& Open(const GlobalViewTable& table) {
    Window = std::make_unique<frmGlobalView>(App, Dialogs, table, nullptr);
    Window->Load();
    if (!App.mSchedulingStarted) {
      EXPECT_TRUE(QTest::qWaitForWindowActive(Window.get()));
    }
    return *Window;
  }
  frmGlobalView& OpenMetar() {
    Decode("metar");
    return Open(MetarGlobalView);
  }
  frmGlobalView& OpenSynop() {
    Decode("synop_land");
    return Open(SynopGlobalView);
  }

  GridTable& Grid() { return Find<GridTable>(*Window, "lstGlobal"); }
  QHeaderView& Headings() { return *Grid().horizontalHeader(); }
  int Rows() { return Grid().model()->rowCount(); }

  std::string Cell(int row, int column) {
    return Grid().model()->index(row, column).data().toString().toStdString();
  }
  std::string Heading(int column) {
    return Grid().model()->headerData(column, Qt::Horizontal).toString().toStdString();
  }
  int Column(const std::string& heading) {
    int column = 0;
    while (column < Grid().model()->columnCount() && Heading(column) != heading) ++column;
    return column;
  }
  Strings Texts(int column) {
    Strings texts;
    for (int row = 0; row < Rows(); ++row) texts.push_back(Cell(row, column));
    return texts;
  }
  Strings Stations() { return Texts(0); }
  Strings SelectedStations() {
    Strings stations;
    for (const std::size_t row : Grid().SelectedRows()) {
      stations.push_back(Cell(static_cast<int>(row), 0));
    }
    return stations;
  }

  QCheckBox& Box(int index) {
    return Find<QCheckBox>(*Window, qPrintable(QStringLiteral("chkFilter(%1)").arg(index)));
  }
  static void Click(QCheckBox& box) {
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
  }
  void ClickUnits() { Click(Find<QCheckBox>(*Window, "chkUnits")); }
  void Press(const char* button) {
    QTest::mouseClick(&Find<QPushButton>(*Window, button), Qt::LeftButton);
  }
  void ClickHeading(const std::string& heading) {
    const int column = Column(heading);
    Grid().scrollTo(Grid().model()->index(0, column));
    QTest::mouseClick(Headings().viewport(), Qt::LeftButton, {},
                      QPoint(Headings().sectionViewportPosition(column) + 8, 8));
  }
  QPoint Place(int row, int column = 0) {
    return Grid().visualRect(Grid().model()->index(row, column)).center();
  }
  void ClickRow(int row, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, keys, Place(row));
  }
  void DoubleClickRow(int row) {
    ClickRow(row);
    QTest::mouseDClick(Grid().viewport(), Qt::LeftButton, {}, Place(row));
  }

  // The column that the mark in the headings tells the rows to be sorted by, and the way.
  std::string Mark() {
    if (Headings().sortIndicatorSection() < 0) return "none";
    return Heading(Headings().sortIndicatorSection()) +
           (Headings().sortIndicatorOrder() == Qt::AscendingOrder ? " up" : " down");
  }

  void ExpectNoBox() { EXPECT_TRUE(Messages.Boxes.empty()) << Messages.Boxes[0].text; }

  std::unique_ptr<frmGlobalView> Window;
};

}  // namespace zg::test
