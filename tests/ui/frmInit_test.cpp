#include "shell/frmInit.h"

#include <QLabel>
#include <QListWidget>
#include <QTimer>

#include "ui/UiTest.h"
#include "views/frmCountryFilter.h"

namespace zg {
namespace {

using test::Find;

class frmInitTest : public test::UiTest {
 protected:
  frmCountryFilter CountryFilter{App, nullptr};
};

// A timer's tick, without waiting for it.
void Tick(QWidget& window, const char* name) {
  QMetaObject::invokeMethod(&Find<QTimer>(window, name), "timeout");
}

TEST_F(frmInitTest, LogsTheStartAndTheFilter) {
  struct Row {
    const char* name;
    std::uint8_t language;
    const char* filter;
    const char* line;
  };
  const Row rows[] = {
      {"Italian, all", 0, "", "Filtro Nazioni: Tutte Selezionate"},
      {"English, all", 1, "", "Country Filter: All Country Selected"},
      {"Italian, two", 0, "Italy, France,", "Filtro Nazioni: Italy, France,"},
      {"English, two", 1, "Italy, France,", "Country Filter: Italy, France,"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    App.Texts.SetLanguage(row.language);
    App.Parameters.SetParameter("CountryFilter", row.filter);
    ASSERT_FALSE(LogHolds(row.line));
    const frmInit window(App, CountryFilter);
    EXPECT_TRUE(LogHolds("Zephyrgram: InitProgr"));
    EXPECT_TRUE(LogHolds(row.line));
  }
  EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(frmInitTest, ShowsTheVersion) {
  const frmInit window(App, CountryFilter);
  EXPECT_EQ(Find<QLabel>(window, "lblTitle").text(), "Zephyrgram");
  EXPECT_EQ(Find<QLabel>(window, "lblVersion").text(), "Rel. 1.2 Build 0003");
}

TEST_F(frmInitTest, TimersRunWhileItIsOnTheScreen) {
  struct Row {
    const char* name;
    int interval;
  };
  const Row rows[] = {{"TimerGraph", 600}, {"tmrAuto", 10000}, {"tmrInit", 500}};
  frmInit window(App, CountryFilter);
  for (const Row& row : rows) {
    EXPECT_EQ(Find<QTimer>(window, row.name).interval(), row.interval) << row.name;
    EXPECT_FALSE(Find<QTimer>(window, row.name).isActive()) << row.name;
  }
  window.show();
  for (const Row& row : rows) EXPECT_TRUE(Find<QTimer>(window, row.name).isActive()) << row.name;
  window.hide();
  for (const Row& row : rows) EXPECT_FALSE(Find<QTimer>(window, row.name).isActive()) << row.name;
}

TEST_F(frmInitTest, EachWayOutLoadsTheCountries) {
  struct Row {
    const char* name;
    std::function<void(QWidget&)> act;
  };
  const Row rows[] = {
      {"a click on the window",
       [](QWidget& window) { QTest::mouseClick(&window, Qt::LeftButton); }},
      {"a click on the picture",
       [](QWidget& window) {
         QTest::mouseClick(&Find<QLabel>(window, "lblTitle"), Qt::LeftButton);
       }},
      {"a click on Frame1",
       [](QWidget& window) {
         QTest::mouseClick(&Find<QWidget>(window, "Frame1"), Qt::LeftButton);
       }},
      {"a key", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Space); }},
      {"Esc", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }},
      {"the close box", [](QWidget& window) { window.close(); }},
      {"tmrAuto", [](QWidget& window) { Tick(window, "tmrAuto"); }},
  };
  App.Parameters.SetParameter("CountryFilter", "Italy, France,");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    frmCountryFilter countryFilter(App, nullptr);
    App.Filters.CountryList = {std::string()};
    frmInit window(App, countryFilter);
    const QSignalSpy finished(&window, &QDialog::finished);
    test::OnModal("frmInit", row.act);
    window.exec();
    EXPECT_EQ(finished.size(), 1);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(Find<QTimer>(window, "tmrAuto").isActive());
    EXPECT_EQ(Find<QLabel>(window, "lblAction").text(), "Wait for Loading Data ...");
    EXPECT_GT(Find<QListWidget>(countryFilter, "lstCountryFilter").count(), 100);
    EXPECT_EQ(App.Filters.CountryList, (std::vector<std::string>{"Italy", "France"}));
  }
}

TEST_F(frmInitTest, ModifiersAreNoKeys) {
  frmInit window(App, CountryFilter);
  window.show();
  for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta}) {
    QTest::keyClick(&window, key);
    EXPECT_TRUE(window.isVisible()) << key;
  }
}

TEST_F(frmInitTest, TheLampBlinksAndKeepsItsPlace) {
  frmInit window(App, CountryFilter);
  window.show();
  const auto& lblGraphics = Find<QLabel>(window, "lblGraphics");
  const auto& lblKinds = Find<QLabel>(window, "lblKinds");
  const QPoint place = lblKinds.pos();
  for (const bool visible : {false, true, false}) {
    Tick(window, "TimerGraph");
    EXPECT_EQ(lblGraphics.isVisible(), visible);
    EXPECT_EQ(lblKinds.pos(), place);
  }
}

TEST_F(frmInitTest, TheWaitingTextBlinksOnlyWhileDataIsLoaded) {
  struct Row {
    std::uint8_t language;
    const char* text;
  };
  for (const Row& row :
       {Row{0, "Attendere Caricamento Dati ..."}, Row{1, "Wait for Loading Data ..."}}) {
    SCOPED_TRACE(row.text);
    App.Texts.SetLanguage(row.language);
    frmInit window(App, CountryFilter);
    const auto& lblAction = Find<QLabel>(window, "lblAction");
    window.show();
    Tick(window, "tmrInit");
    EXPECT_EQ(lblAction.text(), "");
    window.reject();
    EXPECT_EQ(lblAction.text(), row.text);
    Tick(window, "tmrInit");
    EXPECT_EQ(lblAction.text(), "");
    Tick(window, "tmrInit");
    EXPECT_EQ(lblAction.text(), row.text);
  }
}

}  // namespace
}  // namespace zg
