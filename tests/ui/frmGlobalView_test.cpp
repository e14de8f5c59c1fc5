#include "views/frmGlobalView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>
#include <bit>

#include "ui/GlobalViewTest.h"

namespace zg::test {
namespace {

// --- Opening -----------------------------------------------------------------------------------

TEST_F(GlobalViewWindow, OpensWithAllRowsAndNothingSelected) {
  Decode("synop_land");
  Window = std::make_unique<frmGlobalView>(App, Dialogs, SynopGlobalView, nullptr);
  QSignalSpy opened(Window.get(), &frmGlobalView::Opened);
  Window->Load();
  EXPECT_EQ(opened.count(), 1);
  EXPECT_TRUE(Window->isVisible());
  EXPECT_FALSE(Window->isMinimized());
  EXPECT_EQ(Window->objectName(), "frmSynopGlobalView");
  EXPECT_EQ(Window->windowTitle(), "Synop Meteo Data: 6/6 Station(s)");
  EXPECT_EQ(Stations(),
            Strings({"Roma/Fiumicino", "Milano/Linate", "London Heathrow", "Koebenhavns Lufthavn",
                     "Sydney Airport AMO", "Cape Town Intl. Airport"}));
  EXPECT_EQ(Grid().model()->columnCount(), 78);
  EXPECT_EQ(SelectedStations(), Strings());
  EXPECT_EQ(Mark(), "none");
  for (int i = 0; i < 9; ++i) EXPECT_TRUE(Box(i).isChecked()) << i;
  EXPECT_EQ(Find<QComboBox>(*Window, "cmbCountry").currentText(), "*");
  EXPECT_TRUE(Find<QCheckBox>(*Window, "chkUnits").isChecked());
  EXPECT_FALSE(Find<QProgressBar>(*Window, "prgGlobalView").isVisible());
  EXPECT_EQ(Find<QProgressBar>(*Window, "prgGlobalView").maximum(), 6);
  EXPECT_EQ(Find<QLabel>(*Window, "lblProgr").text(), "");
  ExpectNoBox();
}

TEST_F(GlobalViewWindow, BoxesStandInTheirGroups) {
  OpenSynop();
  const auto groupOf = [this](int box) { return Box(box).parentWidget()->objectName(); };
  for (int box = 0; box < 4; ++box) EXPECT_EQ(groupOf(box), "fraQuadrant");
  for (int box = 4; box < 7; ++box) EXPECT_EQ(groupOf(box), "fraStation");
  for (int box = 7; box < 9; ++box) EXPECT_EQ(groupOf(box), "fraMessage");
  Open(MetarGlobalView);
  for (int box = 0; box < 4; ++box) EXPECT_EQ(groupOf(box), "fraQuadrant");
  for (int box = 4; box < 7; ++box) EXPECT_EQ(groupOf(box), "fraMessage");
}

TEST_F(GlobalViewWindow, AnEmptyStoreGivesZeroOfZero) {
  Open(MetarGlobalView);
  EXPECT_EQ(Window->windowTitle(), "Taf/Metar Meteo Data: 0/0 Station(s)");
  EXPECT_EQ(Rows(), 0);
  ExpectNoBox();
}

TEST_F(GlobalViewWindow, LoadingAnOpenWindowChangesNothing) {
  OpenMetar();
  QSignalSpy opened(Window.get(), &frmGlobalView::Opened);
  Click(Box(0));
  const Strings shown = Stations();
  Window->Load();
  EXPECT_EQ(opened.count(), 0);
  EXPECT_EQ(Stations(), shown);
  EXPECT_FALSE(Box(0).isChecked());
}

TEST_F(GlobalViewWindow, EveryWayOutCloses) {
  Decode("metar");
  Window = std::make_unique<frmGlobalView>(App, Dialogs, MetarGlobalView, nullptr);
  QSignalSpy closed(Window.get(), &frmGlobalView::Closed);
  const std::vector<std::function<void()>> ways = {
      [&] { Press("cmdClose"); },
      [&] { QTest::keyClick(&Grid(), Qt::Key_Escape); },
      [&] { Window->close(); },
      [&] { Window->hide(); },
  };
  int times = 0;
  for (const auto& leave : ways) {
    Window->Load();
    EXPECT_EQ(Rows(), 11);
    leave();
    EXPECT_FALSE(Window->isVisible());
    EXPECT_EQ(closed.count(), ++times);
    EXPECT_EQ(Rows(), 0) << "nothing of the store is held while the window is closed";
  }
}

TEST_F(GlobalViewWindow, OpensAgainAsAtFirstButForTheCountry) {
  OpenMetar();
  Find<QComboBox>(*Window, "cmbCountry").setCurrentText("Japan");
  Click(Box(6));
  Window->close();
  Window->Load();
  EXPECT_TRUE(Box(6).isChecked());
  auto& countries = Find<QComboBox>(*Window, "cmbCountry");
  EXPECT_EQ(countries.currentText(), "Japan");
  EXPECT_EQ(countries.count(), 2) << "those that are rows, and *";
  EXPECT_EQ(Stations(), Strings({"Tokyo International Airport"}));
  countries.setCurrentText("*");
  EXPECT_EQ(Rows(), 11);
}

// --- Choosing rows -----------------------------------------------------------------------------

// All states of the boxes, each a click away from the one before.
TEST_F(GlobalViewWindow, EveryCombinationOfBoxes) {
  OpenSynop();
  std::vector<std::int32_t> flags;
  for (const SynopData& record : App.Stores.SynopStore.Records()) {
    flags.push_back(record.FilterFlags);
  }
  std::int32_t ticked = 0x1FF;
  for (unsigned step = 1; step < 0x200; ++step) {
    const int box = std::countr_zero(step);
    Click(Box(box));
    ticked ^= 1 << box;
    const auto shown = std::count_if(flags.begin(), flags.end(), [ticked](std::int32_t record) {
      const std::int32_t common = record & ticked;
      return (common & 0x180) != 0 && (common & 0x70) != 0 && (common & 0x0F) != 0;
    });
    ASSERT_EQ(Rows(), shown) << ticked;
  }
}

TEST_F(GlobalViewWindow, AGroupWithoutTicksHidesAll) {
  for (const auto& group : std::vector<std::vector<int>>{{0, 1, 2, 3}, {4, 5, 6}}) {
    OpenMetar();
    for (const int box : group) Click(Box(box));
    EXPECT_EQ(Rows(), 0);
    EXPECT_EQ(Window->windowTitle(), "Taf/Metar Meteo Data: 0/11 Station(s)");
    Click(Box(group.front()));
    Click(Box(group.back()));
  }
}

TEST_F(GlobalViewWindow, BoxesAnswerToTheKeyboard) {
  OpenMetar();
  Box(1).setFocus();
  QTest::keyClick(&Box(1), Qt::Key_Space);
  EXPECT_LT(Rows(), 11);
  EXPECT_FALSE(Box(1).isChecked());
}

TEST_F(GlobalViewWindow, TheCountryBoxGathersCountriesWithoutStates) {
  OpenMetar();
  auto& countries = Find<QComboBox>(*Window, "cmbCountry");
  QStringList names;
  for (int i = 0; i < countries.count(); ++i) names << countries.itemText(i);
  EXPECT_EQ(names.join(',').toStdString(),
            "*,Italy,United Kingdom,United States,Japan,Australia,China");
  countries.setCurrentText("United States");
  EXPECT_EQ(Stations(),
            Strings({"Denver International Airport", "San Francisco/Int.", "Anchorage/Int."}));
  EXPECT_EQ(Window->windowTitle(), "Taf/Metar Meteo Data: 3/11 Station(s)");
  EXPECT_EQ(countries.count(), 7) << "countries never go";
  QTest::keyClick(&countries, Qt::Key_Home);
  EXPECT_EQ(Rows(), 11);
}

// --- Cells -------------------------------------------------------------------------------------

TEST_F(GlobalViewWindow, UnitsComeAndGo) {
  OpenMetar();
  const int temperature = Column("Temperature");
  const int weather = Column("Weather (1)");
  EXPECT_EQ(Cell(0, temperature), "18.0 °C");
  ClickUnits();
  EXPECT_EQ(Parameter("UnitsOnGlobalView"), "0");
  EXPECT_EQ(Cell(0, temperature), "18.0");
  EXPECT_EQ(Cell(0, weather), "No Significant Weather");
  EXPECT_EQ(Cell(0, Column("Gust")), " ");
  Window->close();
  Window->Load();
  EXPECT_FALSE(Find<QCheckBox>(*Window, "chkUnits").isChecked());
  EXPECT_EQ(Cell(0, temperature), "18.0");
  ClickUnits();
  EXPECT_EQ(Parameter("UnitsOnGlobalView"), "1");
  EXPECT_EQ(Cell(0, temperature), "18.0 °C");
}

TEST_F(GlobalViewWindow, OpeningStoresNothing) {
  App.Parameters.SetParameter("UnitsOnGlobalView", "5");
  OpenMetar();
  EXPECT_TRUE(Find<QCheckBox>(*Window, "chkUnits").isChecked());
  EXPECT_EQ(Parameter("UnitsOnGlobalView"), "5");
}

TEST_F(GlobalViewWindow, FieldsAreAlignedAndNoHeadingIsCut) {
  for (const bool italian : {true, false}) {
    App.Texts.SetLanguage(italian ? 0 : 1);
    OpenSynop();
    const QAbstractItemModel& model = *Grid().model();
    for (int column = 0; column < model.columnCount(); ++column) {
      const bool right =
          SynopGlobalView.Fields[static_cast<std::size_t>(column)].Alignment == Alignment::Right;
      const auto cell = model.index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
      EXPECT_EQ(cell.testFlag(Qt::AlignRight), right) << Heading(column);
      EXPECT_FALSE(Headings().isSectionHidden(column));
      const QRect room(0, 0, Headings().sectionSize(column), Headings().height());
      const QRect text =
          Headings().fontMetrics().boundingRect(room, int{Qt::AlignLeft} | int{Qt::TextWordWrap},
                                                QString::fromStdString(Heading(column)));
      EXPECT_LE(text.width(), room.width()) << Heading(column);
      EXPECT_LE(text.height(), room.height()) << Heading(column);
    }
  }
}

TEST_F(GlobalViewWindow, AColumnWithoutWidthIsThereButNotSeen) {
  App.Parameters.SetParameter("MetarDataFields", std::string(AllFields));
  OpenMetar();
  const int column = Column("Insert Time");
  ASSERT_LT(column, Grid().model()->columnCount());
  EXPECT_TRUE(Headings().isSectionHidden(column));
}

TEST_F(GlobalViewWindow, AClickShowsTheStationAsToolTipForAWhile) {
  OpenMetar();
  ClickRow(2);
  EXPECT_EQ(Grid().toolTip(), "Milano Malpensa");
  auto& timer = *Window->findChild<QTimer*>("TimerToolTips");
  EXPECT_TRUE(timer.isActive());
  EXPECT_EQ(timer.interval(), 3000);
  timer.start(1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Grid().toolTip().isEmpty(); }));
  EXPECT_FALSE(timer.isActive());
  const auto& selection = *Window->findChild<QTimer*>("TimerSelection");
  EXPECT_EQ(selection.interval(), 500);
  EXPECT_TRUE(selection.isActive());
  Window->close();
  EXPECT_FALSE(selection.isActive());
}

// --- Sorting -----------------------------------------------------------------------------------

TEST_F(GlobalViewWindow, AClickOnAHeadingSorts) {
  OpenMetar();
  const int country = Column("Country");
  Strings sorted = Texts(country);
  std::stable_sort(sorted.begin(), sorted.end());
  ClickHeading("Country");
  EXPECT_EQ(Texts(country), sorted);
  EXPECT_EQ(Mark(), "Country up");
  ClickHeading("Country");
  std::reverse(sorted.begin(), sorted.end());
  EXPECT_EQ(Texts(country), sorted);
  EXPECT_EQ(Mark(), "Country down");
  ClickHeading("StationId");
  EXPECT_EQ(Mark(), "StationId up");
  EXPECT_EQ(Cell(0, 0), "Anchorage/Int.");
  ClickUnits();
  EXPECT_EQ(Mark(), "none") << "a refresh brings the rows back in their order";
  EXPECT_EQ(Cell(0, 0), "Roma/Fiumicino");
}

// Where fields are hidden the number of the field clicked is the position of another column.
TEST_F(GlobalViewWindow, TheMarkStandsWhereRowsAreSorted) {
  App.Parameters.SetParameter(
      "MetarDataFields", SelectionOf(MetarGlobalView, {"StationId", "Country", "IssueTime", "Type",
                                                       "Temperature", "RecordIndex"}));
  OpenMetar();
  ClickHeading("Country");
  EXPECT_EQ(Mark(), "Type up") << "field 3, so the fourth column";
  ClickHeading("Temperature");
  EXPECT_EQ(Mark(), "Type up") << "field 14: no column, the rows stay";
  ClickHeading("Issue Time");
  EXPECT_EQ(Mark(), "Temperature up");
  Strings sorted = Texts(Column("Temperature"));
  EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end()));
}

TEST_F(GlobalViewWindow, TheKeyboardSortsByTheColumnThatItIsIn) {
  OpenMetar();
  Grid().GoTo({0, 3});
  QTest::keyClick(&Grid(), Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(Mark(), "Country up");
}

// --- Records -----------------------------------------------------------------------------------

TEST_F(GlobalViewWindow, DoubleClickFindsTheRecord) {
  App.Parameters.SetParameter("MetarDataFields",
                              SelectionOf(MetarGlobalView, {"StationId", "Type", "RecordIndex"}));
  OpenMetar();
  QSignalSpy chosen(Window.get(), &frmGlobalView::RecordChosen);
  ClickHeading("StationId");
  for (int row = 0; row < Rows(); ++row) {
    DoubleClickRow(row);
    ASSERT_EQ(chosen.count(), row + 1);
    const int record = chosen.at(row).at(0).toInt();
    const MetarData& data = App.Stores.MetarStore.Records()[static_cast<std::size_t>(record)];
    EXPECT_EQ(data.Station.Station(), Cell(row, 0));
  }
}

TEST_F(GlobalViewWindow, EnterOpensTheRecord) {
  OpenMetar();
  QSignalSpy chosen(Window.get(), &frmGlobalView::RecordChosen);
  QTest::keyClick(&Grid(), Qt::Key_Return);
  EXPECT_EQ(chosen.count(), 0) << "no row is selected";
  ClickRow(4);
  QTest::keyClick(&Grid(), Qt::Key_Return);
  QTest::keyClick(&Grid(), Qt::Key_Enter);
  ASSERT_EQ(chosen.count(), 2);
  EXPECT_EQ(chosen.at(0).at(0).toInt(), 4);
  EXPECT_EQ(chosen.at(1).at(0).toInt(), 4);
  EXPECT_TRUE(Window->isVisible());
}

TEST_F(GlobalViewWindow, WithoutItsNumberARecordIsNotFound) {
  App.Parameters.SetParameter("MetarDataFields",
                              SelectionOf(MetarGlobalView, {"StationId", "Country"}));
  OpenMetar();
  QSignalSpy chosen(Window.get(), &frmGlobalView::RecordChosen);
  DoubleClickRow(1);
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(GlobalViewWindow, TheSelectionOutlivesARefresh) {
  OpenMetar();
  ClickRow(3);
  ClickRow(8, Qt::ControlModifier);
  const Strings selected = {"London Heathrow", "Tokyo International Airport"};
  ASSERT_EQ(SelectedStations(), selected);
  ClickUnits();
  EXPECT_EQ(SelectedStations(), selected);
  ClickHeading("StationId");
  EXPECT_EQ(SelectedStations(), selected);
  ClickHeading("StationId");
  EXPECT_EQ(SelectedStations(), Strings({selected[1], selected[0]}));
  EXPECT_EQ(Cell(Grid().currentIndex().row(), 0), selected[1]);
  Find<QComboBox>(*Window, "cmbCountry").setCurrentText("United Kingdom");
  EXPECT_EQ(SelectedStations(), Strings({selected[0]}));
  Find<QComboBox>(*Window, "cmbCountry").setCurrentText("China");
  EXPECT_EQ(SelectedStations(), Strings());
}

// --- The store changes -------------------------------------------------------------------------

TEST_F(GlobalViewWindow, RowsStayWhenTheStoreIsReplaced) {
  OpenMetar();
  ClickHeading("StationId");
  const Strings stations = Stations();
  const Strings weather = Texts(Column("Weather (1)"));
  Window->StoreWillChange();
  Decode("taf");
  EXPECT_EQ(Stations(), stations);
  EXPECT_EQ(Texts(Column("Weather (1)")), weather);
  ClickHeading("Country");
  EXPECT_EQ(Rows(), 11);
  Window->RefreshGlobalList();
  EXPECT_EQ(Rows(), static_cast<int>(App.Stores.MetarStore.Count()));
  EXPECT_EQ(Cell(0, Column("Type")), "TAF");
  Window->close();
  Window->StoreWillChange();
}

// --- Languages ---------------------------------------------------------------------------------

TEST_F(GlobalViewWindow, SpeaksItalian) {
  App.Texts.SetLanguage(0);
  OpenMetar();
  EXPECT_EQ(Window->windowTitle(), "Dati Meteo Taf/Metar: 11/11 Stazioni");
  EXPECT_EQ(Heading(0), "Stazione");
  EXPECT_EQ(Find<QLabel>(*Window, "lblCountry").text(), "Nazione");
  EXPECT_EQ(Find<QCheckBox>(*Window, "chkUnits").text(), "&Unità");
  EXPECT_EQ(Find<QPushButton>(*Window, "cmdExport").text(), "&Esporta");
  EXPECT_EQ(Find<QPushButton>(*Window, "cmdClose").text(), "&Chiudi");
  EXPECT_EQ(Find<QGroupBox>(*Window, "fraMessage").title(), "Messaggio");
}

TEST_F(GlobalViewWindow, AChangeOfLanguageLeavesTheColumnsOfTheWindow) {
  OpenMetar();
  EXPECT_EQ(Find<QLabel>(*Window, "lblCountry").text(), "Country");
  App.Texts.SetLanguage(0);
  ReadLabelOfAllForms(App);
  EXPECT_EQ(Find<QLabel>(*Window, "lblCountry").text(), "Nazione");
  EXPECT_EQ(Window->windowTitle(), "Taf/Metar Meteo Data: 11/11 Station(s)");
  Window->RefreshGlobalList();
  EXPECT_EQ(Window->windowTitle(), "Dati Meteo Taf/Metar: 11/11 Stazioni");
  EXPECT_EQ(Heading(0), "StationId");
  Window->close();
  Window->Load();
  EXPECT_EQ(Heading(0), "StationId");
  Open(MetarGlobalView);
  EXPECT_EQ(Heading(0), "Stazione");
  ExpectNoBox();
}

// --- Keyboard ----------------------------------------------------------------------------------

TEST_F(GlobalViewWindow, TabReachesEachControl) {
  OpenSynop();
  EXPECT_EQ(Window->focusWidget(), &Grid());
  std::vector<QString> reached;
  for (int i = 0; i < 15; ++i) {
    QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
    reached.push_back(Window->focusWidget()->objectName());
  }
  std::vector<QString> expected = {"cmdExport", "cmdClose"};
  for (int i = 0; i < 9; ++i) expected.push_back(QStringLiteral("chkFilter(%1)").arg(i));
  for (const char* name : {"cmbCountry", "chkUnits", "txtFind", "lstGlobal"}) {
    expected.emplace_back(name);
  }
  EXPECT_EQ(reached, expected);
}

TEST_F(GlobalViewWindow, EnterPressesOnlyTheButtonWithTheFocus) {
  OpenMetar();
  Box(0).setFocus();
  QTest::keyClick(&Box(0), Qt::Key_Return);
  ExpectNoBox();
  EXPECT_TRUE(Window->isVisible());
  auto& button = Find<QPushButton>(*Window, "cmdExport");
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Return);
  EXPECT_EQ(Messages.Boxes.size(), 1U);
}

TEST_F(GlobalViewWindow, TheMenuOfTheGridHasItsCommands) {
  OpenMetar();
  QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, Place(5));
  QSignalSpy chosen(Window.get(), &frmGlobalView::RecordChosen);
  auto& menu = Find<QMenu>(*Window, "mnuGrid");
  emit Grid().customContextMenuRequested(Place(5));
  EXPECT_TRUE(menu.isVisible());
  menu.hide();
  for (const QAction* action : menu.actions()) {
    if (action->isSeparator()) continue;
    EXPECT_NE(action->text(), "") << action->objectName().toStdString();
  }
  Find<QMenu>(*Window, "mnuGrid").findChild<QAction*>("mnuOpenRecord")->trigger();
  EXPECT_EQ(chosen.count(), 1);
}

}  // namespace
}  // namespace zg::test
