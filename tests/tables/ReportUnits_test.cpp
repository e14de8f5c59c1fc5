#include "tables/ReportUnits.h"

#include "shell/TestSupport.h"

namespace zg {
namespace {

class ReportUnits : public ::testing::Test {
 protected:
  void Write(std::string_view text) { test::WriteTestFile(folder_ / "zephyrgram.ini", text); }
  UnitChoice Read() {
    const GenericUtility parameters(folder_.Path(), prompt_, texts_);
    return ReadUnits(parameters, texts_);
  }

  static constexpr std::string_view Shipped =
      "TemperUnit = °F\nLevelUnit = m\nPressureUnit = hpa\nSpeedUnit = kmh\nDistUnit = SM\n";

  test::TemporaryFolder folder_;
  test::RecordingPrompt prompt_;
  TextUtility texts_;
};

TEST_F(ReportUnits, EachGroupTakesItsParameter) {
  Write(std::string(Shipped) + "UnitConversion = Yes\n");
  const UnitChoice choice = Read();
  EXPECT_TRUE(choice.Converts);
  EXPECT_EQ(texts_.Unit(UnitKind::Level), " m");
  EXPECT_EQ(texts_.Unit(UnitKind::Speed), " kmh");
  EXPECT_EQ(texts_.Unit(UnitKind::Distance), " SM");
  EXPECT_EQ(texts_.Unit(UnitKind::Pressure), " hpa");
  EXPECT_EQ(texts_.Unit(UnitKind::Temperature), " °F");
  EXPECT_EQ(choice.Entries[static_cast<std::size_t>(UnitKind::Speed)], 2u);
}

TEST_F(ReportUnits, WithoutConversionAllUnitsAreThoseOfTheMessage) {
  Write(std::string(Shipped) + "UnitConversion = No\n");
  texts_.SetUnit(UnitKind::Speed, " mps");
  const UnitChoice choice = Read();
  EXPECT_FALSE(choice.Converts);
  for (const UnitGroup& group : UnitGroups()) EXPECT_EQ(texts_.Unit(group.Kind), "");
  EXPECT_EQ(choice.Entries[static_cast<std::size_t>(UnitKind::Speed)], 2u);
}

TEST_F(ReportUnits, AnythingButYesIsNoConversion) {
  Write(std::string(Shipped) + "UnitConversion = yes\n");
  EXPECT_FALSE(Read().Converts);
}

TEST_F(ReportUnits, UnknownTextLeavesTheUnitAsItWas) {
  Write(
      "TemperUnit = °F\nLevelUnit = m\nPressureUnit = hpa\nSpeedUnit = furlongs\nDistUnit = SM\n"
      "UnitConversion = Yes\n");
  texts_.SetUnit(UnitKind::Speed, " mps");
  const UnitChoice choice = Read();
  EXPECT_EQ(choice.Entries[static_cast<std::size_t>(UnitKind::Speed)], std::nullopt);
  EXPECT_EQ(texts_.Unit(UnitKind::Speed), " mps");
}

}  // namespace
}  // namespace zg
