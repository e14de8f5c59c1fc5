#include "views/frmCountryFilter.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>

#include "decode/MessageFilters.h"
#include "ui/UiTest.h"

namespace zg::test {
namespace {

using Names = std::vector<std::string>;

class CountryFilterTest : public UiTest {
 protected:
  explicit CountryFilterTest(bool stations = true) : UiTest(stations) { Window.FillCountryList(); }

  QListWidget& List() { return Find<QListWidget>(Window, "lstCountryFilter"); }
  QLineEdit& SearchField() { return Find<QLineEdit>(Window, "txtSearch"); }
  std::string State() { return Find<QLabel>(Window, "lblState").text().toStdString(); }
  std::string SelectedText() {
    return Find<QPlainTextEdit>(Window, "txtSelectedCountry").toPlainText().toStdString();
  }
  QListWidgetItem& Item(const char* country) {
    const auto items = List().findItems(QLatin1String(country), Qt::MatchExactly);
    if (items.size() != 1) throw std::logic_error(std::string("not once in the list: ") + country);
    return *items.first();
  }
  QPoint Place(const char* country) {
    List().scrollToItem(&Item(country));
    return List().visualItemRect(&Item(country)).center();
  }
  void ClickCountry(const char* country) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, Place(country));
  }
  void ClickButton(const char* name) {
    QTest::mouseClick(&Find<QPushButton>(Window, name), Qt::LeftButton);
  }
  void Store(const char* text) {
    App.Parameters.SetParameter("CountryFilter", text);
    App.Filters = ReadMessageFilters(App.Parameters);
  }
  bool Passes(const char* country) { return CheckCountryList(App.Filters.CountryList, country); }
  Names Shown() {
    Names names;
    for (int row = 0; row < List().count(); ++row) {
      if (!List().item(row)->isHidden()) names.push_back(List().item(row)->text().toStdString());
    }
    return names;
  }

  frmCountryFilter Window{App, nullptr};
};

class CountryFilterWithoutStationsTest : public CountryFilterTest {
 protected:
  CountryFilterWithoutStationsTest() : CountryFilterTest(false) {}
};

// --- Filling ---------------------------------------------------------------------------------

TEST_F(CountryFilterTest, ListsEachCountryOnceInOrder) {
  Names expected = GetAllCountryList(App.Database);
  ASSERT_GT(expected.size(), 100u);
  const Names shown = Shown();
  Names sorted = shown;
  std::sort(expected.begin(), expected.end());
  std::sort(sorted.begin(), sorted.end());
  EXPECT_EQ(sorted, expected);
  EXPECT_EQ(shown.front(), "Afghanistan");
  EXPECT_EQ(shown.back(), "Zimbabwe");
  EXPECT_TRUE(LogTexts().empty()) << "filling says nothing";
}

TEST_F(CountryFilterTest, LoadingLogsAndAddsWhatIsNew) {
  const int before = List().count();
  ASSERT_TRUE(
      App.Database.Query("insert into MeteoStations (Country) values "
                         "(' Atlantis '), (''), (NULL), ('  '), ('Unknow'), ('Italy')"));
  Store("France, ");
  App.Filters.CountryList = {"Spain"};
  Item("Norway").setSelected(true);
  Window.LoadCountryList();
  EXPECT_EQ(LogTexts(), Names{"Wait for Loading Data ..."});
  EXPECT_EQ(List().count(), before + 1);
  EXPECT_EQ(List().row(&Item("Atlantis")), List().row(&Item("Australia")) - 1);
  EXPECT_EQ(Window.GetCountryList(), Names{"France"}) << "what is stored is in force";
  EXPECT_EQ(SelectedText(), "Norway") << "the selection stays";
  App.Texts.SetLanguage(0);
  Window.LoadCountryList();
  EXPECT_EQ(List().count(), before + 1);
  EXPECT_TRUE(LogHolds("Attendere Caricamento Dati ..."));
}

TEST_F(CountryFilterWithoutStationsTest, EmptyTableIsAnEmptyList) {
  EXPECT_EQ(List().count(), 0);
  EXPECT_EQ(App.Filters.CountryList, Names{""});
  Window.show();
  EXPECT_EQ(SelectedText(), "");
}

TEST_F(CountryFilterTest, FailingDatabaseIsAnEmptyListAndNoMessage) {
  const std::size_t boxes = Messages.Boxes.size();
  ASSERT_TRUE(App.Database.Query("drop table MeteoStations"));
  frmCountryFilter window(App, nullptr);
  window.LoadCountryList();
  EXPECT_EQ(Find<QListWidget>(window, "lstCountryFilter").count(), 0);
  EXPECT_EQ(Messages.Boxes.size(), boxes) << Messages.Boxes.back().text;
}

// --- What is stored and what is selected -----------------------------------------------------

struct StoredCase {
  const char* Name;
  const char* Stored;
  const char* Selected;
};

class CountryFilterStoredTest : public CountryFilterTest,
                                public ::testing::WithParamInterface<StoredCase> {};

TEST_P(CountryFilterStoredTest, ActivationSelectsIt) {
  Store(GetParam().Stored);
  Item("Zimbabwe").setSelected(true);
  Window.show();
  EXPECT_EQ(SelectedText(), GetParam().Selected);
  EXPECT_TRUE(LogTexts().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Stored, CountryFilterStoredTest,
    ::testing::Values(StoredCase{"Nothing", "", ""}, StoredCase{"One", "Italy, ", "Italy"},
                      StoredCase{"InTheOrderOfTheList", "Norway, Italy, ", "Italy, Norway"},
                      StoredCase{"NotInTheList", "Atlantis, Italy, Lemuria, ", "Italy"},
                      StoredCase{"OnlyOnesNotInTheList", "Atlantis, ", ""},
                      StoredCase{"ExactNamesOnly", "italy, Ital, Italy , ", ""},
                      StoredCase{"NoCommaAtTheEnd", "Italy, France", "France, Italy"},
                      StoredCase{"EmptyNames", ", , Italy, ", "Italy"}),
    [](const auto& row) { return row.param.Name; });

TEST_F(CountryFilterTest, OkStoresWhatIsSelected) {
  Window.show();
  ClickCountry("Norway");
  EXPECT_EQ(SelectedText(), "Norway");
  ClickCountry("Italy");
  EXPECT_EQ(SelectedText(), "Italy, Norway");
  EXPECT_TRUE(Passes("France")) << "not yet in force";
  ClickButton("cmdOk");
  EXPECT_FALSE(Window.isVisible());
  EXPECT_EQ(Window.GetCountryList(), (Names{"Italy", "Norway"}));
  EXPECT_EQ(Parameter("CountryFilter"), "Italy, Norway,") << "read without the blank at its end";
  EXPECT_EQ(LogTexts(), Names{"Country Filter: Italy, Norway,"});
  EXPECT_TRUE(Passes("Italy"));
  EXPECT_FALSE(Passes("France"));
  EXPECT_EQ(ReadMessageFilters(App.Parameters).CountryList, Window.GetCountryList())
      << "the next start has the same";
}

TEST_F(CountryFilterTest, SecondClickTakesBack) {
  Window.show();
  ClickCountry("Italy");
  ClickCountry("Norway");
  ClickCountry("Italy");
  EXPECT_EQ(SelectedText(), "Norway");
}

TEST_F(CountryFilterTest, DoubleClickStoresAndStays) {
  Window.show();
  ClickCountry("Norway");
  const QPoint place = Place("Italy");
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(Window.isVisible());
  EXPECT_EQ(Window.GetCountryList(), (Names{"Italy", "Norway"}));
  EXPECT_EQ(LogTexts(), Names{"Country Filter: Italy, Norway,"});
}

TEST_F(CountryFilterTest, CancelLeavesTheFilterAsItWas) {
  Store("Italy, ");
  const std::vector<std::function<void()>> ways = {
      [&] { ClickButton("cmdCancel"); },
      [&] { QTest::keyClick(&List(), Qt::Key_Escape); },
      [&] { Window.close(); },
  };
  for (const auto& leave : ways) {
    Window.show();
    ClickCountry("Norway");
    ClickCountry("Italy");
    ASSERT_EQ(SelectedText(), "Norway");
    leave();
    EXPECT_FALSE(Window.isVisible());
    EXPECT_EQ(Window.GetCountryList(), Names{"Italy"});
    EXPECT_EQ(Parameter("CountryFilter"), "Italy,");
    Window.show();
    EXPECT_EQ(SelectedText(), "Italy") << "what is stored is shown again";
  }
  EXPECT_TRUE(LogTexts().empty());
}

TEST_F(CountryFilterTest, ResetLetsEveryNamedCountryPass) {
  Store("Italy, ");
  Window.show();
  ASSERT_EQ(SelectedText(), "Italy");
  ClickButton("cmdReset");
  EXPECT_TRUE(Window.isVisible());
  EXPECT_EQ(Window.GetCountryList(), Names{""});
  EXPECT_EQ(Parameter("CountryFilter"), "");
  EXPECT_EQ(SelectedText(), "");
  EXPECT_EQ(LogTexts(), Names{"Country Filter: All Country Selected"});
  EXPECT_TRUE(Passes("Italy"));
  EXPECT_TRUE(Passes("Atlantis"));
  EXPECT_FALSE(Passes("")) << "a message without a country";
}

TEST_F(CountryFilterTest, OkWithNothingSelectedLetsNothingPass) {
  Window.show();
  EXPECT_EQ(State(),
            "The filter is off: every country passes. With OK and nothing selected none would.");
  EXPECT_TRUE(Find<QPushButton>(Window, "cmdCancel").isDefault()) << "Enter does not do that";
  ClickButton("cmdOk");
  EXPECT_TRUE(Window.GetCountryList().empty());
  EXPECT_EQ(Parameter("CountryFilter"), "");
  EXPECT_EQ(LogTexts(), Names{"Country Filter:"});
  EXPECT_FALSE(Passes("Italy"));
  EXPECT_EQ(ReadMessageFilters(App.Parameters).CountryList, Names{""});
}

TEST_F(CountryFilterTest, StateSaysWhatIsSelected) {
  Window.show();
  ClickCountry("Italy");
  const std::string count = std::to_string(List().count());
  EXPECT_EQ(State(), "1 of " + count + " selected.");
  EXPECT_TRUE(Find<QPushButton>(Window, "cmdOk").isDefault());
  ClickButton("cmdOk");
  Window.show();
  ClickCountry("Italy");
  EXPECT_EQ(State(), "No country is selected: with OK no message passes, with Reset all do.");
}

// --- The search ------------------------------------------------------------------------------

TEST_F(CountryFilterTest, SearchHidesAndKeepsTheSelection) {
  Window.show();
  ClickCountry("Norway");
  QTest::keyClicks(&SearchField(), "iTAL");
  EXPECT_EQ(Shown(), Names{"Italy"});
  EXPECT_EQ(SelectedText(), "Norway");
  ClickCountry("Italy");
  EXPECT_EQ(SelectedText(), "Italy, Norway");
  QTest::keyClicks(&SearchField(), "xyz");
  EXPECT_TRUE(Shown().empty());
  EXPECT_EQ(SelectedText(), "Italy, Norway");
  ClickButton("cmdOk");
  EXPECT_EQ(Window.GetCountryList(), (Names{"Italy", "Norway"}));
  Window.show();
  EXPECT_EQ(SearchField().text(), "");
  EXPECT_EQ(std::ssize(Shown()), List().count());
}

TEST_F(CountryFilterTest, SearchByKeysAlone) {
  Window.show();
  Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down}) {
    SearchField().setFocus();
    SearchField().clear();
    QTest::keyClicks(&SearchField(), "norw");
    QTest::keyClick(&SearchField(), key);
    EXPECT_TRUE(Window.isVisible());
    ASSERT_TRUE(List().hasFocus());
    QTest::keyClick(&List(), Qt::Key_Space);
    EXPECT_EQ(SelectedText(), key == Qt::Key_Return ? "Norway" : "");
  }
  SearchField().setFocus();
  QTest::keyClick(&SearchField(), Qt::Key_Escape);
  EXPECT_EQ(SearchField().text(), "");
  EXPECT_TRUE(Window.isVisible());
  QTest::keyClick(&SearchField(), Qt::Key_Escape);
  EXPECT_FALSE(Window.isVisible());
}

TEST_F(CountryFilterTest, SelectAllMeansWhatIsShown) {
  Window.show();
  ClickCountry("Norway");
  QTest::keyClicks(&SearchField(), "guinea");
  const Names guineas = Shown();
  ASSERT_GT(guineas.size(), 2u);
  QTest::keyClick(&List(), Qt::Key_A, Qt::ControlModifier);
  ClickButton("cmdOk");
  Names expected = guineas;
  expected.push_back("Norway");
  std::sort(expected.begin(), expected.end());
  Names chosen = Window.GetCountryList();
  std::sort(chosen.begin(), chosen.end());
  EXPECT_EQ(chosen, expected);
}

// --- Language --------------------------------------------------------------------------------

TEST_F(CountryFilterTest, CaptionsAndLogFollowTheLanguage) {
  Window.show();
  EXPECT_EQ(Window.windowTitle(), "Country Filter");
  EXPECT_EQ(Find<QPushButton>(Window, "cmdCancel").text(), "&Cancel");
  ClickCountry("Italy");
  App.Texts.SetLanguage(0);
  ReadLabelOfAllForms(App);
  EXPECT_EQ(Window.windowTitle(), "Filtro Nazioni");
  EXPECT_EQ(Find<QLabel>(Window, "lblSearch").text(), "&Cerca:");
  EXPECT_EQ(Find<QPushButton>(Window, "cmdCancel").text(), "A&nnulla");
  EXPECT_EQ(State(), "Selezionate 1 su " + std::to_string(List().count()) + ".");
  EXPECT_EQ(SelectedText(), "Italy") << "what was clicked on stays";
  ClickButton("cmdOk");
  EXPECT_TRUE(LogHolds("Filtro Nazioni: Italy,"));
  Window.show();
  ClickButton("cmdReset");
  EXPECT_TRUE(LogHolds("Filtro Nazioni: Tutte Selezionate"));
}

}  // namespace
}  // namespace zg::test
