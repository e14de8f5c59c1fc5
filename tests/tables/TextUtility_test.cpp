#include "tables/TextUtility.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace zg {
namespace {

// What a failing case prints.
template <typename Case>
requires requires(const Case& row) { row.name; }
void PrintTo(const Case& row, std::ostream* out) { *out << row.name; }

struct CodeCase {
  const char* name;
  int key;
  const char* expected;
};

std::string NameOf(const testing::TestParamInfo<CodeCase>& test) { return test.param.name; }

class TextUtilityCloudHeigh : public testing::TestWithParam<CodeCase> {};

TEST_P(TextUtilityCloudHeigh, IsInMetres) {
  const auto key = static_cast<std::uint8_t>(GetParam().key);
  EXPECT_EQ(TextUtility().CloudHeigh(key), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Codes, TextUtilityCloudHeigh,
                         testing::ValuesIn<CodeCase>({
                             {"below_the_scale", 0, "< 30 m"},
                             {"first_step_of_30", 1, "30 m"},
                             {"middle_step_of_30", 33, "990 m"},
                             {"last_step_of_30", 50, "1500 m"},
                             {"first_unused", 51, ""},
                             {"middle_unused", 54, ""},
                             {"last_unused", 55, ""},
                             {"first_step_of_300", 56, "1800 m"},
                             {"second_step_of_300", 57, "2100 m"},
                             {"last_step_of_300", 80, "9000 m"},
                             {"first_step_of_1500", 81, "10500 m"},
                             {"last_step_of_1500", 88, "21000 m"},
                             {"above_the_scale", 89, "> 21000 m"},
                             {"estimated_0", 90, "0 to 50 m"},
                             {"estimated_1", 91, "50 to 100 m"},
                             {"estimated_2", 92, "100 to 200 m"},
                             {"estimated_3", 93, "200 to 300 m"},
                             {"estimated_4", 94, "300 to 600 m"},
                             {"estimated_5", 95, "600 to 1000 m"},
                             {"estimated_6", 96, "1000 to 1500 m"},
                             {"estimated_7", 97, "1500 to 2000 m"},
                             {"estimated_8", 98, "2000 to 2500 m"},
                             {"estimated_9", 99, "> 2500 m"},
                             {"first_beyond", 100, ""},
                             {"missing", 255, ""},
                         }),
                         NameOf);

class TextUtilityPrecipitAmount : public testing::TestWithParam<CodeCase> {};

TEST_P(TextUtilityPrecipitAmount, IsInMillimetres) {
  const auto key = static_cast<std::int16_t>(GetParam().key);
  EXPECT_EQ(TextUtility().PrecipitAmount(key), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Codes, TextUtilityPrecipitAmount,
                         testing::ValuesIn<CodeCase>({
                             {"none", 0, ""},
                             {"one", 1, "001 mm"},
                             {"two_digits", 42, "042 mm"},
                             {"last_amount", 988, "988 mm"},
                             {"more_than_the_scale", 989, ">989 mm"},
                             {"trace", 990, "Trace   "},
                             {"first_tenth", 991, "000 mm"},
                             {"five_tenths", 995, "000 mm"},
                             {"last_tenth", 999, "000 mm"},
                             {"first_beyond", 1000, ""},
                             {"missing", 32767, ""},
                             {"negative", -1, ""},
                             {"lowest", -32768, ""},
                         }),
                         NameOf);

class TextUtilityVisibility : public testing::TestWithParam<CodeCase> {};

TEST_P(TextUtilityVisibility, IsInKilometres) {
  const auto key = static_cast<std::uint8_t>(GetParam().key);
  EXPECT_EQ(TextUtility().Visibility(key), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Codes, TextUtilityVisibility,
                         testing::ValuesIn<CodeCase>({
                             {"below_the_scale", 0, "> 0.1 km"},
                             {"first_tenth", 1, "00.1 km"},
                             {"middle_tenth", 29, "02.9 km"},
                             {"last_tenth", 50, "05.0 km"},
                             {"first_unused", 51, ""},
                             {"last_unused", 55, ""},
                             {"first_whole", 56, "06.0 km"},
                             {"last_whole", 80, "30.0 km"},
                             {"first_step_of_5", 81, "35.0 km"},
                             {"last_step_of_5", 88, "70.0 km"},
                             {"above_the_scale", 89, "> 70.0 km"},
                             {"at_sea_0", 90, "> 0.05 km"},
                             {"at_sea_1", 91, "0.05 km"},
                             {"at_sea_2", 92, "00.2 km"},
                             {"at_sea_3", 93, "00.5 km"},
                             {"at_sea_4", 94, "01.0 km"},
                             {"at_sea_5", 95, "02.0 km"},
                             {"at_sea_6", 96, "04.0 km"},
                             {"at_sea_7", 97, "10.0 km"},
                             {"at_sea_8", 98, "20.0 km"},
                             {"at_sea_9", 99, "> 50.0 km"},
                             {"solidi", 100, "Missing"},
                             {"first_beyond", 101, ""},
                             {"missing", 255, ""},
                         }),
                         NameOf);

TEST(TextUtility, QuadrantHasNoTextForOtherKeys) {
  TextUtility texts;
  EXPECT_EQ(texts.Quadrant(3), "South-Est");
  for (int key : {-32768, -1, 0, 2, 4, 6, 8, 9, 263, 32767}) {
    EXPECT_EQ(texts.Quadrant(static_cast<std::int16_t>(key)), "") << key;
  }
}

TEST(TextUtility, CloudTypesOfMetarHaveNoSolidus) {
  TextUtility texts;
  EXPECT_EQ(texts.LowCloudTypeForMetar(9), "Cumulonibus (T-storm)");
  EXPECT_EQ(texts.LowCloudTypeForMetar(10), "");
}

TEST(TextUtility, WeatherHasNoSymbols) {
  TextUtility texts;
  for (std::uint8_t language : {std::uint8_t{0}, std::uint8_t{1}}) {
    texts.SetLanguage(language);
    for (int key = 0; key <= 255; ++key) {
      EXPECT_EQ(texts.WeatherSymb(static_cast<std::uint8_t>(key)), "") << key;
    }
  }
}

TEST(TextUtility, BeginsInEnglishWithUnitsOfTheMessage) {
  const TextUtility texts;
  EXPECT_EQ(texts.Language(), 1);
  EXPECT_FALSE(texts.IsItalian());
  for (std::size_t kind = 0; kind < kUnitKinds; ++kind) {
    EXPECT_EQ(texts.Unit(static_cast<UnitKind>(kind)), "") << kind;
  }
}

TEST(TextUtility, AnyLanguageButZeroIsEnglish) {
  TextUtility texts;
  texts.SetLanguage(0);
  EXPECT_TRUE(texts.IsItalian());
  EXPECT_EQ(texts.Choose("Calma", "Calm"), "Calma");
  for (int language : {1, 2, 255}) {
    texts.SetLanguage(static_cast<std::uint8_t>(language));
    EXPECT_EQ(texts.Language(), language);
    EXPECT_FALSE(texts.IsItalian()) << language;
    EXPECT_EQ(texts.Choose("Calma", "Calm"), "Calm") << language;
    EXPECT_EQ(texts.CloudCover(8), "Overcast") << language;
  }
}

TEST(TextUtility, LanguageChangesTablesOnly) {
  TextUtility texts;
  const std::string_view before = texts.CloudCover(8);
  texts.SetLanguage(0);
  EXPECT_EQ(before, "Overcast");  // a text once given stays
  EXPECT_EQ(texts.CloudCover(8), "Coperto");
  EXPECT_EQ(texts.CloudHeigh(90), "0 to 50 m");
  EXPECT_EQ(texts.PrecipitAmount(990), "Trace   ");
  EXPECT_EQ(texts.Visibility(100), "Missing");
  texts.SetLanguage(1);
  EXPECT_EQ(texts.CloudCover(8), "Overcast");
}

TEST(TextUtility, UnitsAreKeptByKind) {
  TextUtility texts;
  texts.SetUnit(UnitKind::Speed, " kmh");
  texts.SetUnit(UnitKind::Temperature, " °F");
  EXPECT_EQ(texts.Unit(UnitKind::Level), "");
  EXPECT_EQ(texts.Unit(UnitKind::Speed), " kmh");
  EXPECT_EQ(texts.Unit(UnitKind::Temperature), " °F");
  texts.SetUnit(UnitKind::Speed, "");
  EXPECT_EQ(texts.Unit(UnitKind::Speed), "");
}

struct TextCase {
  const char* name;
  const char* text;
  const char* expected;
};

class TextUtilityRemoveUnits : public testing::TestWithParam<TextCase> {};

TEST_P(TextUtilityRemoveUnits, LeavesTheValue) {
  EXPECT_EQ(TextUtility::RemoveUnits(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, TextUtilityRemoveUnits,
                         testing::ValuesIn<TextCase>({
                             {"empty", "", ""},
                             {"no_value", "Sky Clear", "Sky Clear"},
                             {"no_value_with_unit", "Under 50 m", "Under 50 m"},
                             {"leading_blank", " 5 m", " 5 m"},
                             {"plain_number", "17", "17"},
                             {"fraction", "7/8", "7/8"},
                             {"minus", "-5.0 °C", "-5.0"},
                             {"plus", "+1.2 hpa", "+1.2"},
                             {"less", "< 30 m", "< 30"},
                             {"greater", "> 2500 m", "> 2500"},
                             {"millimetres", "012 mm", "012"},
                             {"kilometres_an_hour", "36.0 kmh", "36.0"},
                             {"kilometres", "05.0 km", "05.0"},
                             {"feet", "00320 ft", "00320"},
                             {"metres_a_second_measured", "5.1 mps (Anem.)", "5.1"},
                             {"knots_estimated", "05.0 KTS (Estim.)", "05.0"},
                             {"statute_miles", "03.1 SM", "03.1"},
                             {"hectopascals", "1013.2 hpa", "1013.2"},
                             {"inches_of_mercury", "29.92 inHg", "29.92"},
                             {"seconds", "6 sec", "6"},
                             {"celsius", "12.3 °C", "12.3"},
                             {"fahrenheit", "54.1 °F", "54.1"},
                             {"metres_of_a_range", "50 to 100 m", "50 to 100"},
                             {"degrees", "120 deg", "120"},
                             {"every_occurrence", "5 m 6 m", "5 6"},
                             {"knots_of_metar_stay", "5 kt", "5 kt"},
                             {"nautical_miles_stay", "5 NM", "5 NM"},
                             {"centimetres_stay", "05 cm", "05 cm"},
                             {"minutes_lose_their_m", "30 min", "30in"},
                         }),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace zg
