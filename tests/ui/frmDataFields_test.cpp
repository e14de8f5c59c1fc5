#include "views/frmDataFields.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "ui/UiTest.h"
#include "views/ViewTestSupport.h"

namespace zg::test {
namespace {

struct Family {
  const char* name;
  const GlobalViewTable* table;
  const char* window;
  const char* parameter;
  const char* english;
  const char* italian;
  int fields;       // that can be chosen
  const char* all;  // the text of the parameter with all of them
  const char* least;
};
void PrintTo(const Family& family, std::ostream* out) { *out << family.name; }

const Family Families[] = {
    {"Synop", &SynopGlobalView, "frmSynopDataFields", "SynopDataFields", "Synop Meteo Data Fields",
     "Campi Dati Meteo Synop", 78, "FFFFFFFFFFFFFFFFFFF3", "10000000000000000002"},
    {"Metar", &MetarGlobalView, "frmMetarDataFields", "MetarDataFields", "Metar/TAF Data Fields",
     "Campi Dati Meteo Metar/TAF", 40, "FFFFFFFFFF0000000000", "10000000080000000000"},
};

class DataFieldsWindow : public UiTest, public testing::WithParamInterface<Family> {
 protected:
  DataFieldsWindow() : UiTest(false) {}

  std::string Stored() { return Parameter(GetParam().parameter); }
  void Store(std::string_view text) { App.Parameters.SetParameter(GetParam().parameter, text); }

  QListWidget& List() { return Find<QListWidget>(Window, "lstDataFields"); }
  bool IsSelected(int row) { return List().item(row)->isSelected(); }
  void Click(int row) {
    List().scrollToItem(List().item(row));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {},
                      List().visualItemRect(List().item(row)).center());
  }
  void Press(const char* name) {
    QTest::mouseClick(&Find<QPushButton>(Window, name), Qt::LeftButton);
  }

  frmDataFields Window{App, *GetParam().table, nullptr};
};

TEST_P(DataFieldsWindow, ShowsWhatIsStored) {
  Store("9");
  Window.show();
  EXPECT_EQ(Window.objectName(), GetParam().window);
  EXPECT_EQ(Window.windowTitle(), GetParam().english);
  ASSERT_EQ(List().count(), GetParam().fields);
  EXPECT_EQ(List().item(0)->text(), "StationId");
  EXPECT_EQ(List().item(List().count() - 1)->text(), "Record Index");
  for (int row = 0; row < List().count(); ++row) {
    EXPECT_EQ(IsSelected(row), row == 0 || row == 3) << row;
  }
  EXPECT_EQ(List().currentRow(), -1);
  EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_P(DataFieldsWindow, OkStoresTheSelection) {
  Store("");
  Window.show();
  Click(1);
  Click(9);
  Click(10);
  Click(9);
  Press("cmdOK");
  EXPECT_FALSE(Window.isVisible());
  EXPECT_EQ(Window.result(), QDialog::Accepted);
  std::string expected = GetParam().least;
  expected[0] = '3';
  expected[2] = '4';
  EXPECT_EQ(Stored(), expected);
}

TEST_P(DataFieldsWindow, StationAndRecordIndexComeBack) {
  Window.show();
  Press("cmdNone");
  for (int row = 0; row < List().count(); ++row) EXPECT_FALSE(IsSelected(row));
  Press("cmdOK");
  EXPECT_EQ(Stored(), GetParam().least);
  Window.show();
  EXPECT_TRUE(IsSelected(0));
  EXPECT_TRUE(IsSelected(List().count() - 1));
  Click(0);
  Press("cmdOK");
  EXPECT_EQ(Stored(), GetParam().least);
}

TEST_P(DataFieldsWindow, AllFields) {
  Store("1");
  Window.show();
  Press("cmdAll");
  Press("cmdOK");
  EXPECT_EQ(Stored(), GetParam().all);
}

TEST_P(DataFieldsWindow, EveryOtherWayOutStoresNothing) {
  const std::vector<std::function<void()>> ways = {
      [&] { Press("cmdClose"); },
      [&] { QTest::keyClick(&Window, Qt::Key_Escape); },
      [&] { Window.close(); },
  };
  for (const auto& leave : ways) {
    Store("5");
    Window.show();
    Press("cmdAll");
    leave();
    EXPECT_FALSE(Window.isVisible());
    EXPECT_EQ(Stored(), "5");
    Window.show();
    EXPECT_FALSE(IsSelected(1)) << "what was clicked on and then left is forgotten";
    Window.hide();
  }
}

TEST_P(DataFieldsWindow, TheKeyboardDoes) {
  Store("1");
  Window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  List().setFocus();
  QTest::keyClick(&List(), Qt::Key_Down);
  QTest::keyClick(&List(), Qt::Key_Space);
  EXPECT_TRUE(IsSelected(1));
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_FALSE(Window.isVisible());
  EXPECT_EQ(Stored()[0], '3');
}

TEST_P(DataFieldsWindow, CountsWhatIsSelected) {
  Store("3");
  Window.show();
  const QString state = "%1 of %2 selected.";
  EXPECT_EQ(Find<QLabel>(Window, "lblState").text(), state.arg(2).arg(GetParam().fields));
  Press("cmdAll");
  EXPECT_EQ(Find<QLabel>(Window, "lblState").text(),
            state.arg(GetParam().fields).arg(GetParam().fields));
}

TEST_P(DataFieldsWindow, FollowsTheLanguage) {
  Store("9");
  Window.show();
  App.Texts.SetLanguage(0);
  ReadLabelOfAllForms(App);
  EXPECT_EQ(Window.windowTitle(), GetParam().italian);
  EXPECT_EQ(List().count(), GetParam().fields);
  EXPECT_EQ(List().item(0)->text(), "Stazione");
  EXPECT_TRUE(IsSelected(3)) << "what is selected stays";
  EXPECT_EQ(Find<QPushButton>(Window, "cmdClose").text(), "&Chiudi");
  EXPECT_TRUE(Messages.Boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Families, DataFieldsWindow, testing::ValuesIn(Families),
                         [](const auto& family) { return std::string(family.param.name); });

}  // namespace
}  // namespace zg::test
