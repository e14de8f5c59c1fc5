#include "shell/frmLanguage.h"

#include <QPushButton>
#include <QRadioButton>

#include "ui/UiTest.h"
#include "views/frmStationFilter.h"

namespace zg {
namespace {

using test::Find;

class frmLanguageTest : public test::UiTest {
 protected:
  frmLanguageTest() : UiTest(false) {}

  // Choose() while `act` works in the window.
  bool Choose(std::function<void(QWidget&)> act) {
    test::OnModal("frmLanguage", std::move(act));
    return frmLanguage(App, nullptr).Choose();
  }
};

void ClickOption(QWidget& window, int language) {
  const std::string name = "Option(" + std::to_string(language) + ")";
  Find<QRadioButton>(window, name.c_str()).click();
}

void ClickOk(QWidget& window) { Find<QPushButton>(window, "cmdOK").click(); }

TEST_F(frmLanguageTest, TicksTheLanguageOfTheParameter) {
  struct Row {
    const char* parameter;
    bool italian;
    bool english;
  };
  const Row rows[] = {{"0", true, false},   {"1", false, true},  {"2", false, false},
                      {"", false, false},   {"x", false, false}, {"-1", false, false},
                      {"300", false, false}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.parameter);
    App.Parameters.SetParameter("Language", row.parameter);
    const frmLanguage window(App, nullptr);
    EXPECT_EQ(Find<QRadioButton>(window, "Option(0)").isChecked(), row.italian);
    EXPECT_EQ(Find<QRadioButton>(window, "Option(1)").isChecked(), row.english);
  }
}

TEST_F(frmLanguageTest, OkBringsTheChoiceIntoForceForEveryOpenWindow) {
  const frmStationFilter other(App, nullptr);
  ASSERT_EQ(other.windowTitle(), "Station Type Filter");
  EXPECT_TRUE(Choose([&](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "Language");
    ClickOption(window, 0);
    EXPECT_EQ(Parameter("Language"), "0");  // at once
    EXPECT_EQ(App.Texts.Language(), 1);     // not yet
    ClickOk(window);
    EXPECT_EQ(window.windowTitle(), "Lingua");
    EXPECT_FALSE(window.isVisible());
  }));
  EXPECT_EQ(App.Texts.Language(), 0);
  EXPECT_NE(other.windowTitle(), "Station Type Filter");

  EXPECT_TRUE(Choose([](QWidget& window) {
    ClickOption(window, 1);
    ClickOk(window);
  }));
  EXPECT_EQ(Parameter("Language"), "1");
  EXPECT_EQ(App.Texts.Language(), 1);
  EXPECT_EQ(other.windowTitle(), "Station Type Filter");
}

TEST_F(frmLanguageTest, OkWithTheSameChoiceReadsNothing) {
  struct Row {
    const char* name;
    std::vector<int> clicks;
  };
  const Row rows[] = {
      {"no click", {}}, {"a click on the language in force", {1}}, {"there and back", {0, 1}}};
  frmStationFilter other(App, nullptr);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    other.setWindowTitle("mark");
    EXPECT_FALSE(Choose([&row](QWidget& window) {
      for (const int click : row.clicks) ClickOption(window, click);
      ClickOk(window);
    }));
    EXPECT_EQ(other.windowTitle(), "mark");
    EXPECT_EQ(App.Texts.Language(), 1);
    EXPECT_EQ(Parameter("Language"), "1");
  }
}

// What was clicked is stored and holds from the next start.
TEST_F(frmLanguageTest, EscLeavesTheTextsAsTheyAre) {
  EXPECT_FALSE(Choose([](QWidget& window) {
    ClickOption(window, 0);
    QTest::keyClick(&window, Qt::Key_Escape);
  }));
  EXPECT_EQ(App.Texts.Language(), 1);
  EXPECT_EQ(Parameter("Language"), "0");
}

TEST_F(frmLanguageTest, KeysAreEnough) {
  EXPECT_TRUE(Choose([](QWidget& window) {
    auto& english = Find<QRadioButton>(window, "Option(1)");
    english.setFocus();
    QTest::keyClick(&english, Qt::Key_Up);
    EXPECT_TRUE(Find<QRadioButton>(window, "Option(0)").isChecked());
    QTest::keyClick(&window, Qt::Key_Return);
  }));
  EXPECT_EQ(App.Texts.Language(), 0);
  EXPECT_EQ(Parameter("Language"), "0");
}

TEST_F(frmLanguageTest, WithoutAValidParameterAClickIsAChange) {
  App.Parameters.SetParameter("Language", "");
  EXPECT_FALSE(Choose([](QWidget& window) { ClickOk(window); }));
  EXPECT_TRUE(Choose([](QWidget& window) {
    ClickOption(window, 1);
    ClickOk(window);
  }));
  EXPECT_EQ(Parameter("Language"), "1");
}

}  // namespace
}  // namespace zg
