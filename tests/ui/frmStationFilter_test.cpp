#include "views/frmStationFilter.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "ui/UiTest.h"

namespace zg::test {
namespace {

class StationFilterTest : public UiTest {
 protected:
  QCheckBox& Box(int index) {
    return Find<QCheckBox>(Window, qPrintable(QStringLiteral("chkStation(%1)").arg(index)));
  }
  void Click(int index) {
    QTest::mouseClick(&Box(index), Qt::LeftButton, {}, QPoint(8, Box(index).height() / 2));
  }

  frmStationFilter Window{App, nullptr};
};

TEST_F(StationFilterTest, TicksTheBitsOfTheMask) {
  for (std::uint8_t mask = 0; mask < 8; ++mask) {
    App.Filters.StationMask = mask;
    Window.show();
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Box(i).isChecked(), (mask >> i & 1) != 0) << int{mask};
    Window.hide();
  }
}

TEST_F(StationFilterTest, ClickStoresTheMaskAtOnce) {
  Window.show();
  ASSERT_EQ(Window.GetStationType(), 7);
  Click(1);
  EXPECT_EQ(Window.GetStationType(), 5);
  EXPECT_EQ(Parameter("StationType"), "5");
  Click(0);
  EXPECT_EQ(Parameter("StationType"), "4");
  Click(1);
  EXPECT_EQ(Parameter("StationType"), "6");
  EXPECT_EQ(App.Filters.StationMask, 6);
  EXPECT_TRUE(Window.isVisible());
}

TEST_F(StationFilterTest, KeysTickToo) {
  Window.show();
  Box(2).setFocus();
  QTest::keyClick(&Box(2), Qt::Key_Space);
  EXPECT_EQ(Parameter("StationType"), "3");
}

TEST_F(StationFilterTest, NothingTickedIsToldAndStored) {
  Window.show();
  auto& warning = Find<QLabel>(Window, "lblNothingTicked");
  for (int i = 0; i < 3; ++i) {
    EXPECT_FALSE(warning.isVisible());
    Click(i);
  }
  EXPECT_TRUE(warning.isVisible());
  EXPECT_EQ(Parameter("StationType"), "0");
  EXPECT_EQ(ReadMessageFilters(App.Parameters).StationMask, 0);
  Click(0);
  EXPECT_FALSE(warning.isVisible());
}

TEST_F(StationFilterTest, EveryWayOutOnlyHides) {
  auto& ok = Find<QPushButton>(Window, "cmkOK");
  const std::vector<std::function<void()>> ways = {
      [&] { QTest::mouseClick(&ok, Qt::LeftButton); },
      [&] { QTest::keyClick(&Window, Qt::Key_Return); },
      [&] { QTest::keyClick(&Window, Qt::Key_Escape); },
      [&] { Window.close(); },
  };
  for (const auto& leave : ways) {
    Window.show();
    Click(0);
    const std::uint8_t mask = Window.GetStationType();
    leave();
    EXPECT_FALSE(Window.isVisible());
    EXPECT_EQ(Window.GetStationType(), mask);
    EXPECT_EQ(Parameter("StationType"), std::to_string(mask));
  }
}

TEST_F(StationFilterTest, CaptionsFollowTheLanguage) {
  Window.show();
  EXPECT_EQ(Window.windowTitle(), "Station Type Filter");
  EXPECT_EQ(Box(0).text(), "Sea Fixed Station (BUOY)");
  EXPECT_EQ(Box(1).text(), "Sea Mobile Station  (SHIP)");
  EXPECT_EQ(Box(2).text(), "Ground Station (LAND)");
  App.Texts.SetLanguage(0);
  ReadLabelOfAllForms(App);
  EXPECT_EQ(Window.windowTitle(), "Filtro Tipo di Stazione");
  EXPECT_EQ(Box(0).text(), "Stazione Fissa di Mare (BUOY)");
  EXPECT_EQ(Box(1).text(), "Stazione Mobile di Mare (SHIP)");
  EXPECT_EQ(Box(2).text(), "Stazione di Terra (LAND)");
  EXPECT_EQ(Find<QGroupBox>(Window, "fraStation").title(),
            "Stazioni di cui decodificare i messaggi");
  EXPECT_TRUE(Messages.Boxes.empty()) << Messages.Boxes[0].text;
}

}  // namespace
}  // namespace zg::test
