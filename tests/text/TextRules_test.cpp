#include "text/TextRules.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace zg {
namespace {

template <typename Case>
std::string CaseName(const testing::TestParamInfo<Case>& test) {
  return test.param.name;
}

// What a failing case prints.
template <typename Case>
requires requires(const Case& row) { row.name; }
void PrintTo(const Case& row, std::ostream* out) { *out << row.name; }

// --- Cutting -----------------------------------------------------------------------------------

struct MidCase {
  const char* name;
  const char* text;
  std::size_t start;
  std::size_t count;
  const char* expected;
};

class MidTest : public testing::TestWithParam<MidCase> {};

TEST_P(MidTest, CutsFromPositionOne) {
  EXPECT_EQ(Mid(GetParam().text, GetParam().start, GetParam().count), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, MidTest,
                         testing::ValuesIn<MidCase>({
                             {"first", "10123", 1, 1, "1"},
                             {"middle", "10123", 3, 2, "12"},
                             {"last", "10123", 5, 1, "3"},
                             {"more_than_there_is", "10123", 4, 5, "23"},
                             {"rest", "10123", 2, std::string_view::npos, "0123"},
                             {"beyond", "10123", 6, 1, ""},
                             {"far_beyond", "10123", 600, 1, ""},
                             {"position_zero", "10123", 0, 2, ""},
                             {"no_characters", "10123", 2, 0, ""},
                             {"empty", "", 1, 1, ""},
                         }),
                         CaseName<MidCase>);

TEST(Mid, TakesTheRestWithoutACount) { EXPECT_EQ(Mid("AAXX", 3), "XX"); }

struct RightCase {
  const char* name;
  const char* text;
  std::size_t count;
  const char* expected;
};

class RightTest : public testing::TestWithParam<RightCase> {};

TEST_P(RightTest, CutsTheEnd) {
  EXPECT_EQ(Right(GetParam().text, GetParam().count), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, RightTest,
                         testing::ValuesIn<RightCase>({
                             {"last_two", "24015KT", 2, "KT"},
                             {"none", "24015KT", 0, ""},
                             {"all", "KT", 2, "KT"},
                             {"more_than_there_is", "KT", 3, "KT"},
                             {"empty", "", 1, ""},
                         }),
                         CaseName<RightCase>);

struct TextCase {
  const char* name;
  const char* text;
  const char* expected;
};

class TrimTest : public testing::TestWithParam<TextCase> {};

TEST_P(TrimTest, TakesBlanksOff) { EXPECT_EQ(Trim(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Texts, TrimTest,
                         testing::ValuesIn<TextCase>({
                             {"both_ends", "  5 m ", "5 m"},
                             {"inner_blanks_stay", "a  b", "a  b"},
                             {"tab_stays", "\t5 ", "\t5"},
                             {"line_end_stays", " 5\r\n", "5\r\n"},
                             {"blanks_only", "   ", ""},
                             {"empty", "", ""},
                         }),
                         CaseName<TextCase>);

// --- Questions ---------------------------------------------------------------------------------

struct KindCase {
  const char* name;
  const char* text;
  bool isDigits;
  bool isSolidi;
  bool isNumeric;
};

class KindOfTextTest : public testing::TestWithParam<KindCase> {};

TEST_P(KindOfTextTest, IsTold) {
  EXPECT_EQ(IsDigits(GetParam().text), GetParam().isDigits);
  EXPECT_EQ(IsSolidi(GetParam().text), GetParam().isSolidi);
  EXPECT_EQ(IsNumeric(GetParam().text), GetParam().isNumeric);
}

INSTANTIATE_TEST_SUITE_P(Texts, KindOfTextTest,
                         testing::ValuesIn<KindCase>({
                             {"empty", "", false, false, false},
                             {"digit", "7", true, false, true},
                             {"leading_zeros", "007", true, false, true},
                             {"decimal", "12.3", false, false, true},
                             {"minus", "-5", false, false, true},
                             {"plus", "+5", false, false, true},
                             {"point_first", ".5", false, false, true},
                             {"point_last", "5.", false, false, true},
                             {"minus_and_point", "-.5", false, false, true},
                             {"sign_alone", "-", false, false, false},
                             {"point_alone", ".", false, false, false},
                             {"sign_and_point_alone", "-.", false, false, false},
                             {"two_signs", "--5", false, false, false},
                             {"sign_last", "5-", false, false, false},
                             {"two_points", "1.2.3", false, false, false},
                             {"comma", "1,5", false, false, false},
                             {"exponent", "1E5", false, false, false},
                             {"exponent_of_two_kinds", "1D5", false, false, false},
                             {"hexadecimal", "0x1", false, false, false},
                             {"inner_blank", "1 2", false, false, false},
                             {"leading_blank", " 1", false, false, false},
                             {"trailing_blank", "1 ", false, false, false},
                             {"infinity", "inf", false, false, false},
                             {"not_a_number", "nan", false, false, false},
                             {"solidus", "/", false, true, false},
                             {"solidi", "///", false, true, false},
                             {"solidus_behind_digit", "1/", false, false, false},
                             {"superscript_of_windows", "\xB2", false, false, false},
                         }),
                         CaseName<KindCase>);

TEST(IsLetter, MeansCapitalsFromAToZ) {
  for (char c : std::string("AMZ")) EXPECT_TRUE(IsLetter(c)) << c;
  for (char c : std::string("amz@[5 \xC0")) EXPECT_FALSE(IsLetter(c)) << c;
}

TEST(IsDigit, MeansZeroToNine) {
  for (char c : std::string("0123456789")) EXPECT_TRUE(IsDigit(c)) << c;
  for (char c : std::string("/:A \xB2")) EXPECT_FALSE(IsDigit(c)) << c;
}

TEST(Holds, FindsAPart) {
  EXPECT_TRUE(Holds("100 to 200 m", " m"));
  EXPECT_TRUE(Holds("abc", ""));
  EXPECT_FALSE(Holds("100 m", " ft"));
  EXPECT_FALSE(Holds("", "a"));
}

// Blanks at every distance, so that they stand at each place among the eight looked at together.
TEST(FindBlank, FindsTheNextOne) {
  for (std::size_t length = 0; length <= 24; ++length) {
    const std::string word(length, 'A');
    EXPECT_EQ(FindBlank(word, 0), length);
    for (std::size_t at = 0; at <= length; ++at) {
      EXPECT_EQ(FindBlank(word + " B C", at), length) << at;
      EXPECT_EQ(FindBlank(word + "  !!!!!!!!", at), length) << at;
    }
  }
  EXPECT_EQ(FindBlank("A B C", 1), 1U);
  EXPECT_EQ(FindBlank("A B C", 2), 3U);
  EXPECT_EQ(FindBlank("A B C", 5), 5U);
  EXPECT_EQ(FindBlank("A\tB\nC\xA0"
                      "D\x21\x1F E",
                      0),
            9U);  // blanks only
}

// --- Reading numbers ---------------------------------------------------------------------------

struct NumberCase {
  const char* name;
  const char* text;
  double expected;
};

class ValueTest : public testing::TestWithParam<NumberCase> {};

TEST_P(ValueTest, ReadsTheLeadingNumber) { EXPECT_EQ(Value(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Texts, ValueTest,
                         testing::ValuesIn<NumberCase>({
                             {"whole", "1013", 1013.0},
                             {"decimal", "29.92", 29.92},
                             {"leading_zeros", "007", 7.0},
                             {"minus", "-3.5", -3.5},
                             {"plus", "+3.5", 3.5},
                             {"point_first", ".5", 0.5},
                             {"minus_and_point", "-.5", -0.5},
                             {"point_last", "5.", 5.0},
                             {"stops_at_letter", "24KT", 24.0},
                             {"stops_at_solidus", "2/", 2.0},
                             {"stops_at_second_point", "1.2.3", 1.2},
                             {"stops_at_comma", "3,5", 3.0},
                             {"stops_at_blank", "1 2", 1.0},
                             {"stops_at_exponent", "1E5", 1.0},
                             {"stops_at_second_sign", "5-3", 5.0},
                             {"no_number", "M05", 0.0},
                             {"leading_blank", " 5", 0.0},
                             {"solidi", "//", 0.0},
                             {"sign_alone", "-", 0.0},
                             {"two_signs", "+-5", 0.0},
                             {"point_alone", ".", 0.0},
                             {"empty", "", 0.0},
                             {"fifteen_digits", "123456789012345", 123456789012345.0},
                             {"sixteen_digits", "1234567890123456", 1234567890123456.0},
                             {"minus_fifteen_digits", "-12345678901234", -12345678901234.0},
                             {"twenty_digits", "12345678901234567890", 12345678901234567890.0},
                         }),
                         CaseName<NumberCase>);

TEST(Value, OfMoreDigitsThanAFloatHoldsIsTheGreatest) {
  const std::string digits(400, '9');
  EXPECT_EQ(Value(digits), std::numeric_limits<double>::max());
  EXPECT_EQ(Value("-" + digits), -std::numeric_limits<double>::max());
}

TEST(StrictNumber, WantsTheWholeText) {
  EXPECT_EQ(StrictNumber("-12.5"), -12.5);
  EXPECT_EQ(StrictNumber("+7"), 7.0);
  EXPECT_EQ(StrictNumber("0"), 0.0);
  for (const char* text : {"", "/", "7/", "7 ", " 7", "1,5", "1E5", "-", "."}) {
    EXPECT_EQ(StrictNumber(text), std::nullopt) << text;
  }
}

struct ByteCase {
  const char* name;
  const char* text;
  std::optional<std::uint8_t> expected;
};

class StrictByteTest : public testing::TestWithParam<ByteCase> {};

TEST_P(StrictByteTest, IsANumberInRange) {
  EXPECT_EQ(StrictInteger<std::uint8_t>(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, StrictByteTest,
                         testing::ValuesIn<ByteCase>({
                             {"zero", "0", std::uint8_t{0}},
                             {"greatest", "255", std::uint8_t{255}},
                             {"above", "256", std::nullopt},
                             {"half_above_the_greatest", "255.5", std::nullopt},
                             {"below_half_above_the_greatest", "255.4", std::uint8_t{255}},
                             {"below_zero", "-1", std::nullopt},
                             {"half_below_zero_is_even", "-0.5", std::uint8_t{0}},
                             {"half_goes_up_to_even", "1.5", std::uint8_t{2}},
                             {"half_goes_down_to_even", "2.5", std::uint8_t{2}},
                             {"leading_zeros", "007", std::uint8_t{7}},
                             {"plus", "+7", std::uint8_t{7}},
                             {"solidus", "/", std::nullopt},
                             {"number_and_more", "7A", std::nullopt},
                             {"empty", "", std::nullopt},
                         }),
                         CaseName<ByteCase>);

TEST(StrictInteger, KnowsTheRangeOfItsType) {
  EXPECT_EQ(StrictInteger<std::int16_t>("32767"), std::int16_t{32767});
  EXPECT_EQ(StrictInteger<std::int16_t>("32768"), std::nullopt);
  EXPECT_EQ(StrictInteger<std::int16_t>("-32768"), std::int16_t{-32768});
  EXPECT_EQ(StrictInteger<std::int16_t>("-32769"), std::nullopt);
  EXPECT_EQ(StrictInteger<std::int32_t>("2147483647"), std::int32_t{2147483647});
  EXPECT_EQ(StrictInteger<std::int32_t>("2147483648"), std::nullopt);
}

// What it reads the other readings read alike; what it does not it leaves alone.
TEST(SetFigures, AgreesWithTheOtherReadings) {
  constexpr std::uint8_t untouched = 77;
  for (const char* text : {"0", "7", "07", "255", "256", "0255", "9999", "00255", "", "/", "//",
                           "1/", "-1", "+1", "1.5", ".5", "A", "1A", " 1"}) {
    std::uint8_t field = untouched;
    if (SetFigures(field, text)) {
      EXPECT_EQ(StrictInteger<std::uint8_t>(text), field) << text;
      EXPECT_EQ(LenientInteger<std::uint8_t>(text), field) << text;
    } else {
      EXPECT_EQ(field, untouched) << text;
    }
  }
  std::uint8_t field = untouched;
  EXPECT_TRUE(SetFigures(field, "0255"));
  EXPECT_EQ(field, 255);
  EXPECT_FALSE(SetFigures(field, "256"));
  EXPECT_FALSE(SetFigures(field, "00001"));  // more figures than it is made for
  EXPECT_FALSE(SetFigures(field, ""));
  EXPECT_EQ(field, 255);
}

TEST(SetFigures, WithFactorAndDivisor) {
  std::int32_t metres = -1;
  EXPECT_TRUE((SetFigures<1000>(metres, "9999")));
  EXPECT_EQ(metres, 9999000);
  std::uint8_t tens = 77;
  EXPECT_TRUE((SetFigures<1, 10>(tens, "350")));
  EXPECT_EQ(tens, 35);
  EXPECT_FALSE((SetFigures<1, 10>(tens, "355")));  // is to be rounded
  EXPECT_EQ(tens, 35);
}

TEST(ToInteger, IsNothingForWhatIsNoNumber) {
  EXPECT_EQ(ToInteger<int>(std::nan("")), std::nullopt);
  EXPECT_EQ(ToInteger<int>(HUGE_VAL), std::nullopt);
  EXPECT_EQ(ToInteger<int>(-HUGE_VAL), std::nullopt);
  EXPECT_EQ(ToInteger<int>(-2.5), -2);
}

struct RoundCase {
  const char* name;
  double value;
  double expected;
};

class RoundHalfEvenTest : public testing::TestWithParam<RoundCase> {};

TEST_P(RoundHalfEvenTest, GoesToTheNearest) {
  EXPECT_EQ(RoundHalfEven(GetParam().value), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Values, RoundHalfEvenTest,
                         testing::ValuesIn<RoundCase>({
                             {"whole", 3.0, 3.0},
                             {"below_half", 2.49, 2.0},
                             {"above_half", 2.51, 3.0},
                             {"half_to_lower_even", 2.5, 2.0},
                             {"half_to_upper_even", 3.5, 4.0},
                             {"half_to_zero", 0.5, 0.0},
                             {"just_below_half", 0.49999999999999994, 0.0},
                             {"negative_half_to_zero", -0.5, 0.0},
                             {"negative_half_to_lower_even", -1.5, -2.0},
                             {"negative_half_to_upper_even", -2.5, -2.0},
                             {"negative_above_half", -2.4, -2.0},
                             {"large", 4503599627370497.0, 4503599627370497.0},
                         }),
                         CaseName<RoundCase>);

// --- Writing numbers ---------------------------------------------------------------------------

struct DoubleCase {
  const char* name;
  double value;
  const char* expected;
};

class PlainDecimalDoubleTest : public testing::TestWithParam<DoubleCase> {};

TEST_P(PlainDecimalDoubleTest, HasFifteenDigits) {
  EXPECT_EQ(PlainDecimal(GetParam().value), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Values, PlainDecimalDoubleTest,
                         testing::ValuesIn<DoubleCase>({
                             {"zero", 0.0, "0"},
                             {"minus_zero", -0.0, "0"},
                             {"whole", 1013.0, "1013"},
                             {"trailing_zeros_of_a_whole", 1200.0, "1200"},
                             {"decimal", 29.92, "29.92"},
                             {"below_one", 0.5, "0.5"},
                             {"far_below_one", 0.00025, "0.00025"},
                             {"negative", -3.5, "-3.5"},
                             {"sum_of_tenths", 0.1 + 0.2, "0.3"},
                             {"tenth_of_a_whole", 0.1 * 1013, "101.3"},
                             {"fifteen_digits", 0.123456789012345, "0.123456789012345"},
                             {"sixteenth_digit_is_rounded", 2.0 / 3.0, "0.666666666666667"},
                             {"rounds_up_to_a_whole", 0.9999999999999999, "1"},
                             {"large", 1e20, "100000000000000000000"},
                             {"small", 1e-10, "0.0000000001"},
                             {"infinite", HUGE_VAL, ""},
                             {"minus_infinite", -HUGE_VAL, ""},
                         }),
                         CaseName<DoubleCase>);

TEST(PlainDecimal, OfNoNumberIsEmpty) {
  EXPECT_EQ(PlainDecimal(std::nan("")), "");
  EXPECT_EQ(PlainDecimal(std::numeric_limits<float>::infinity()), "");
}

TEST(PlainDecimal, HasNoExponentAtTheEndsOfTheRange) {
  const std::string greatest = PlainDecimal(std::numeric_limits<double>::max());
  EXPECT_EQ(greatest, "179769313486232" + std::string(294, '0'));
  const std::string least = PlainDecimal(std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(least, "0." + std::string(323, '0') + "494065645841247");
}

struct FloatCase {
  const char* name;
  float value;
  const char* expected;
};

class PlainDecimalFloatTest : public testing::TestWithParam<FloatCase> {};

TEST_P(PlainDecimalFloatTest, HasSevenDigits) {
  EXPECT_EQ(PlainDecimal(GetParam().value), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Values, PlainDecimalFloatTest,
                         testing::ValuesIn<FloatCase>({
                             {"zero", 0.0F, "0"},
                             {"minus_zero", -0.0F, "0"},
                             {"temperature", 12.3F, "12.3"},
                             {"whole", 12.0F, "12"},
                             {"negative", -0.4F, "-0.4"},
                             {"pressure", 1013.2F, "1013.2"},
                             {"seven_digits", 1234567.0F, "1234567"},
                             {"eighth_digit_is_rounded", 12345678.0F, "12345680"},
                             {"below_one", 0.05F, "0.05"},
                             {"missing_negated", -3.402823e38F,
                              "-340282300000000000000000000000000000000"},
                         }),
                         CaseName<FloatCase>);

// The missing value of 32-bit floats, bits 7F7FFFFD, that was given a minus.
TEST(PlainDecimal, OfTheNegatedMissingValueHasNoExponent) {
  const float greatest = std::numeric_limits<float>::max();  // bits 7F7FFFFF
  const float missing = std::nextafterf(std::nextafterf(greatest, 0.0F), 0.0F);
  EXPECT_EQ(PlainDecimal(-missing), "-3402823" + std::string(32, '0'));
}

TEST(PlainDecimal, OfAWholeNumber) {
  EXPECT_EQ(PlainDecimal(0), "0");
  EXPECT_EQ(PlainDecimal(-17), "-17");
  EXPECT_EQ(PlainDecimal(std::numeric_limits<int>::min()), "-2147483648");
  EXPECT_EQ(PlainDecimal(std::numeric_limits<int>::max()), "2147483647");
}

struct MaskCase {
  const char* name;
  double value;
  const char* mask;
  const char* expected;
};

class FormatNumberTest : public testing::TestWithParam<MaskCase> {};

TEST_P(FormatNumberTest, FillsTheMask) {
  EXPECT_EQ(FormatNumber(GetParam().value, GetParam().mask), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Times, FormatNumberTest,
                         testing::ValuesIn<MaskCase>({
                             {"hour", 6, "00", "06"},
                             {"minute", 5, "00Z", "05Z"},
                             {"hour_and_minute", 1230, "00:00Z", "12:30Z"},
                             {"minute_only", 30, "00:00Z", "00:30Z"},
                             {"midnight", 0, "00:00Z", "00:00Z"},
                             {"day_hour_minute", 151130, "00/00:00Z", "15/11:30Z"},
                             {"first_day", 10600, "00/00:00Z", "01/06:00Z"},
                             {"more_digits_than_places", 151130, "00:00Z", "1511:30Z"},
                         }),
                         CaseName<MaskCase>);

INSTANTIATE_TEST_SUITE_P(Wholes, FormatNumberTest,
                         testing::ValuesIn<MaskCase>({
                             {"metres_of_a_layer", 1500, "0 m", "1500 m"},
                             {"metres_of_a_layer_zero", 0, "0 m", "0 m"},
                             {"kilometres", 12.5, "0", "13"},
                             {"level", 300, "00000", "00300"},
                             {"level_full", 12500, "00000", "12500"},
                             {"level_overfull", 123456, "00000", "123456"},
                             {"level_negative", -20, "00000", "-00020"},
                             {"precipitation", 1, "000 mm", "001 mm"},
                             {"direction", 50, "000", "050"},
                             {"direction_with_unit", 50, "000 deg", "050 deg"},
                             {"direction_round", 360, "000 deg", "360 deg"},
                             {"snow", 7, "00 cm", "07 cm"},
                             {"snow_deep", 120, "00 cm", "120 cm"},
                             {"altimeter", 1013, "0000 hpa", "1013 hpa"},
                             {"altimeter_low", 998, "0000 hpa", "0998 hpa"},
                             {"degrees_of_latitude", 4, "00", "04"},
                             {"degrees_of_longitude", 4, "000", "004"},
                         }),
                         CaseName<MaskCase>);

INSTANTIATE_TEST_SUITE_P(Decimals, FormatNumberTest,
                         testing::ValuesIn<MaskCase>({
                             {"speed", 5, "00.0", "05.0"},
                             {"speed_of_three_digits", 100.25, "00.0", "100.3"},
                             {"temperature_negative", -5, "00.0", "-05.0"},
                             {"temperature_below_one", -0.4, "00.0", "-00.4"},
                             {"temperature_half_down", -0.05, "00.0", "-00.1"},
                             {"temperature_zeros_have_no_minus", -0.04, "00.0", "00.0"},
                             {"zero", 0, "00.0", "00.0"},
                             {"minus_zero", -0.0, "00.0", "00.0"},
                             {"half_away_from_zero", 0.25, "0.0", "0.3"},
                             {"half_away_from_zero_negative", -0.25, "0.0", "-0.3"},
                             {"half_by_decimal_digits", 1.005, "0.00", "1.01"},
                             {"below_half", 0.249, "0.0", "0.2"},
                             {"carry", 9.95, "0.0", "10.0"},
                             {"carry_through", 99.99, "00.0", "100.0"},
                             {"visibility", 5, "00.0 km", "05.0 km"},
                             {"visibility_of_metar", 0.75, "0.0 SM", "0.8 SM"},
                             {"pressure", 1013.2, "0000.0", "1013.2"},
                             {"pressure_low", 998.7, "0000.0 hpa", "0998.7 hpa"},
                             {"tendency", 2.5, "0.0", "2.5"},
                             {"inches", 29.92, "00.00", "29.92"},
                             {"inches_below_one", 0.04, "00.00", "00.04"},
                             {"conversion", 360, "0.0000", "360.0000"},
                             {"conversion_rounds", 16.40419950, "0.0000", "16.4042"},
                             {"conversion_negative", -15, "0.0000", "-15.0000"},
                         }),
                         CaseName<MaskCase>);

INSTANTIATE_TEST_SUITE_P(Masks, FormatNumberTest,
                         testing::ValuesIn<MaskCase>({
                             {"digit_where_needed", 7, "#0", "7"},
                             {"digit_where_needed_given", 17, "#0", "17"},
                             {"other_characters_only", 7, "Z", "Z"},
                         }),
                         CaseName<MaskCase>);

struct MaskTextCase {
  const char* name;
  const char* text;
  const char* mask;
  const char* expected;
};

class FormatTextTest : public testing::TestWithParam<MaskTextCase> {};

TEST_P(FormatTextTest, FillsTheMask) {
  EXPECT_EQ(FormatText(GetParam().text, GetParam().mask), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, FormatTextTest,
                         testing::ValuesIn<MaskTextCase>({
                             {"digits", "1230", "00:00Z", "12:30Z"},
                             {"few_digits", "30", "00:00Z", "00:30Z"},
                             {"six_digits", "010600", "00/00:00Z", "01/06:00Z"},
                             {"leading_zeros", "0007", "00", "07"},
                             {"decimal", "12.34", "00.0", "12.3"},
                             {"comma", "12,35", "00.0", "12.4"},
                             {"minus", "-5", "00.0", "-05.0"},
                             {"plus", "+5", "00.0", "05.0"},
                             {"point_first", ".5", "00.0", "00.5"},
                             {"point_last", "5.", "00.0", "05.0"},
                             {"half_by_the_digits_written", "0.15", "0.0", "0.2"},
                             {"zeros_have_no_minus", "-0.04", "00.0", "00.0"},
                             {"more_digits_than_a_float_holds",
                              "-340282300000000000000000000000000000000", "00.0",
                              "-340282300000000000000000000000000000000.0"},
                             {"not_numeric", ">", "00.0", ">"},
                             {"solidi", "//00", "00:00Z", "//00"},
                             {"exponent", "1E5", "00.0", "1E5"},
                             {"two_commas", "1,2,3", "00.0", "1,2,3"},
                             {"inner_blank", "1 2", "00", "1 2"},
                             {"empty", "", "00.0", ""},
                         }),
                         CaseName<MaskTextCase>);

struct ReplaceCase {
  const char* name;
  const char* text;
  const char* from;
  const char* to;
  const char* expected;
};

class ReplaceAllTest : public testing::TestWithParam<ReplaceCase> {};

TEST_P(ReplaceAllTest, ReplacesEveryOccurrence) {
  const ReplaceCase& row = GetParam();
  EXPECT_EQ(ReplaceAll(row.text, row.from, row.to), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, ReplaceAllTest,
                         testing::ValuesIn<ReplaceCase>({
                             {"all", "1,2,3", ",", ".", "1.2.3"},
                             {"none", "123", ",", ".", "123"},
                             {"longer", "5 m", " m", " kmh", "5 kmh"},
                             {"removed", "5 m 6 m", " m", "", "5 6"},
                             {"at_the_ends", "axa", "a", "bb", "bbxbb"},
                             {"not_what_it_has_put_in", "aa", "a", "aa", "aaaa"},
                             {"from_the_left", "aaa", "aa", "b", "ba"},
                             {"empty", "", "a", "b", ""},
                         }),
                         CaseName<ReplaceCase>);

}  // namespace
}  // namespace zg
