#include "views/frmQuadrantFilter.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <cmath>

#include "ui/UiTest.h"
#include "views/QtWorldPicture.h"

namespace zg::test {
namespace {

// A coast from the North Pole along 90 degrees east to the equator.
constexpr std::string_view Coast("\xE9\x03\x18\x15\x18\x15\x01\x00\x00\x00\x18\x15", 12);

class QuadrantFilterTest : public UiTest {
 protected:
  QCheckBox& Box(int index) {
    return Find<QCheckBox>(Window, qPrintable(QStringLiteral("chkQuadrantCheck(%1)").arg(index)));
  }
  WorldPicture& Picture() { return Find<WorldPicture>(Window, "picWorld"); }
  void Click(int index) {
    QTest::mouseClick(&Box(index), Qt::LeftButton, {}, QPoint(8, Box(index).height() / 2));
  }
  // A place on the picture, in parts of the world's width and height.
  QPoint At(double x, double y) {
    const QRectF world = Picture().World();
    return QPointF(world.left() + x * world.width(), world.top() + y * world.height()).toPoint();
  }
  QColor ColorAt(double x, double y) { return Picture().grab().toImage().pixelColor(At(x, y)); }

  frmQuadrantFilter Window{App, nullptr};
};

struct Place {
  const char* Name;
  int Index;
  double X, Y;  // a place in the quadrant that is off its box and off the net
};

constexpr std::array<Place, 4> Places = {{
    {"north-east", 0, 0.99, 0.02},
    {"south-east", 1, 0.99, 0.98},
    {"south-west", 2, 0.01, 0.98},
    {"north-west", 3, 0.01, 0.02},
}};

TEST_F(QuadrantFilterTest, TicksTheBitsOfTheMask) {
  for (std::uint8_t mask = 0; mask < 16; ++mask) {
    App.Filters.QuadrantMask = mask;
    Window.show();
    for (int i = 0; i < 4; ++i) EXPECT_EQ(Box(i).isChecked(), (mask >> i & 1) != 0) << int{mask};
    Window.hide();
  }
}

TEST_F(QuadrantFilterTest, ClickStoresTheMaskAtOnce) {
  Window.show();
  ASSERT_EQ(Window.GetQudrantFilter(), 15);
  Click(0);
  EXPECT_EQ(Window.GetQudrantFilter(), 14);
  EXPECT_EQ(Parameter("QuadrantFilter"), "14");
  Click(3);
  EXPECT_EQ(Parameter("QuadrantFilter"), "6");
  Click(0);
  EXPECT_EQ(Parameter("QuadrantFilter"), "7");
  EXPECT_TRUE(Window.isVisible());
}

TEST_F(QuadrantFilterTest, MnemonicsTick) {
  Window.show();
  Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  QTest::keyClick(&Window, Qt::Key_W, Qt::AltModifier);
  // The box is seen to be pressed for a moment.
  EXPECT_TRUE(QTest::qWaitFor([&] { return Parameter("QuadrantFilter") == "11"; }));
}

TEST_F(QuadrantFilterTest, NothingTickedIsToldAndStored) {
  Window.show();
  auto& warning = Find<QLabel>(Window, "lblNothingTicked");
  for (int i = 0; i < 4; ++i) {
    EXPECT_FALSE(warning.isVisible());
    Click(i);
  }
  EXPECT_TRUE(warning.isVisible());
  EXPECT_EQ(Parameter("QuadrantFilter"), "0");
  EXPECT_EQ(ReadMessageFilters(App.Parameters).QuadrantMask, 0);
}

TEST_F(QuadrantFilterTest, BoxesStandOnTheirQuadrants) {
  Window.show();
  for (const QSize size : {QSize(900, 500), QSize(500, 900), QSize(1200, 420)}) {
    Window.resize(size);
    QCoreApplication::processEvents();
    const QRectF world = Picture().World();
    EXPECT_NEAR(world.width(), 2 * world.height(), 1e-6) << "it keeps its shape";
    EXPECT_TRUE(QRectF(Picture().rect()).contains(world));
    for (const Place& place : Places) {
      const QPoint center = Box(place.Index).geometry().center();
      EXPECT_EQ(center.x() > world.center().x(), place.X > 0.5) << place.Name;
      EXPECT_EQ(center.y() > world.center().y(), place.Y > 0.5) << place.Name;
      EXPECT_TRUE(world.contains(QRectF(Box(place.Index).geometry()))) << place.Name;
    }
  }
}

TEST_F(QuadrantFilterTest, ClickOnTheMapIsAClickOnItsBox) {
  Window.show();
  for (const Place& place : Places) {
    const QColor ticked = ColorAt(place.X, place.Y);
    QTest::mouseClick(&Picture(), Qt::LeftButton, {}, At(place.X, place.Y));
    EXPECT_FALSE(Box(place.Index).isChecked()) << place.Name;
    EXPECT_EQ(Window.GetQudrantFilter(), 15 & ~(1 << place.Index)) << place.Name;
    EXPECT_NE(ColorAt(place.X, place.Y), ticked) << place.Name << ": its colour goes";
    QTest::mouseClick(&Picture(), Qt::LeftButton, {}, At(place.X, place.Y));
    EXPECT_EQ(ColorAt(place.X, place.Y), ticked) << place.Name;
  }
  QTest::mouseClick(&Picture(), Qt::RightButton, {}, At(0.99, 0.02));
  EXPECT_EQ(Window.GetQudrantFilter(), 15) << "the other button does nothing";
}

TEST_F(QuadrantFilterTest, DrawsCoastsWhereTheyAreKnown) {
  std::filesystem::remove(Folder.Path() + "Coast.pnt");
  std::filesystem::remove(Folder.Path() + "Island.pnt");
  Window.show();
  EXPECT_FALSE(Picture().HasOutline());
  const QImage without = Picture().grab().toImage();
  Window.hide();
  WriteTestFile(Folder.Path() + "Coast.pnt", Coast);
  Window.show();
  EXPECT_TRUE(Picture().HasOutline());
  const QImage with = Picture().grab().toImage();
  ASSERT_EQ(with.size(), without.size());
  // Above its box; the other quadrants are as they were.
  const QPoint onCoast = At(0.75, 0.1);
  EXPECT_NE(with.copy(onCoast.x() - 1, onCoast.y(), 3, 1),
            without.copy(onCoast.x() - 1, onCoast.y(), 3, 1));
  const QRect west(0, 0, with.width() / 2, with.height());
  EXPECT_EQ(with.copy(west), without.copy(west));
}

TEST_F(QuadrantFilterTest, EveryWayOutOnlyHides) {
  auto& ok = Find<QPushButton>(Window, "cmdOk");
  const std::vector<std::function<void()>> ways = {
      [&] { QTest::mouseClick(&ok, Qt::LeftButton); },
      [&] { QTest::keyClick(&Window, Qt::Key_Return); },
      [&] { QTest::keyClick(&Window, Qt::Key_Escape); },
      [&] { Window.close(); },
  };
  for (const auto& leave : ways) {
    Window.show();
    Click(1);
    const std::uint8_t mask = Window.GetQudrantFilter();
    leave();
    EXPECT_FALSE(Window.isVisible());
    EXPECT_EQ(Window.GetQudrantFilter(), mask);
    EXPECT_EQ(Parameter("QuadrantFilter"), std::to_string(mask));
  }
}

TEST_F(QuadrantFilterTest, CaptionsFollowTheLanguage) {
  Window.show();
  EXPECT_EQ(Window.windowTitle(), "Geographic Quadrant Filter");
  EXPECT_EQ(Box(0).text(), "&North-east");
  EXPECT_EQ(Picture().accessibleName(), "Map of the world in four quadrants");
  App.Texts.SetLanguage(0);
  ReadLabelOfAllForms(App);
  QCoreApplication::processEvents();
  EXPECT_EQ(Window.windowTitle(), "Filtro Quadranti Geografici");
  EXPECT_EQ(Box(2).text(), "Sud-&ovest");
  EXPECT_EQ(Box(2).size(), Box(2).sizeHint()) << "room for the new caption";
  EXPECT_EQ(Find<QLabel>(Window, "lblQuadrants").text(),
            "Vengono decodificati i messaggi dei quadranti del globo selezionati.");
}

}  // namespace
}  // namespace zg::test
