#include "tables/ConversionUtility.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace zg {
namespace {

// What a failing case prints.
template <typename Case>
requires requires(const Case& row) { row.name; }
void PrintTo(const Case& row, std::ostream* out) { *out << row.name; }

std::string Convert(const char* text, UnitKind kind, const char* unit, bool viewUnit) {
  TextUtility units;
  units.SetUnit(kind, unit);
  return ConversionUtility(units).ConvertToReqUnit(text, kind, viewUnit);
}

// --- Numbers -----------------------------------------------------------------------------------

struct NumberCase {
  const char* name;
  std::string (*convert)(std::string_view);
  const char* number;
  const char* expected;
};

class ConvertNumberText : public testing::TestWithParam<NumberCase> {};

TEST_P(ConvertNumberText, GivesTheOtherUnit) {
  EXPECT_EQ(GetParam().convert(GetParam().number), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Numbers, ConvertNumberText,
                         testing::ValuesIn<NumberCase>({
                             {"feet_to_meter", ConvertFeetToMeter, "1200", "360.0000"},
                             {"feet_to_meter_below_ten", ConvertFeetToMeter, "30", "0.0000"},
                             {"feet_to_meter_goes_down", ConvertFeetToMeter, "-8", "-10.0000"},
                             {"meter_to_feet", ConvertMeterToFeet, "100", "320.0000"},
                             {"meter_to_feet_one_step", ConvertMeterToFeet, "4", "10.0000"},
                             {"kmh_to_mps", ConvertKmhToMps, "40", "11.1111"},
                             {"mps_to_kmh", ConvertMpsToKmh, "10.3", "37.0800"},
                             {"mps_to_kt", ConvertMpsToKt, "5", "9.7192"},
                             {"kt_to_mps", ConvertKtToMps, "25", "12.8611"},
                             {"kmh_to_kt", ConvertKmhToKt, "40", "21.5983"},
                             {"kt_to_kmh", ConvertKtToKmh, "25", "46.3000"},
                             {"meter_to_km", ConvertMeterToKm, "4750", "4.7500"},
                             {"km_to_meter", ConvertKmToMeter, "12.5", "12500.0000"},
                             {"meter_to_miles", ConvertMeterToMiles, "4750", "2.9516"},
                             {"meter_to_marine_miles", ConvertMeterToMarineMiles, "4750", "2.5648"},
                             {"miles_to_meter", ConvertMilesToMeter, "2.5", "4023.2500"},
                             {"miles_to_km", ConvertMilesToKm, "2.5", "4.0233"},
                             {"miles_to_marine_miles", ConvertMilesToMarineMiles, "2.5", "2.1724"},
                             {"km_to_miles", ConvertKmToMiles, "12.5", "7.7674"},
                             {"km_to_marine_miles", ConvertKmToMarineMiles, "12.5", "6.7495"},
                             {"mbar_to_inhg", ConvertMbarToInhg, "1018.4", "30.0733"},
                             {"inhg_to_mbar", ConvertInhgToMbar, "30.12", "1019.9804"},
                             {"celsius_to_fahrenheit", ConvertDegCToFar, "12.3", "54.1400"},
                             {"celsius_to_fahrenheit_zero", ConvertDegCToFar, "0", "32.0000"},
                             {"celsius_to_fahrenheit_same", ConvertDegCToFar, "-40", "-40.0000"},
                             {"fahrenheit_to_celsius", ConvertFarToDegC, "54.1", "12.2778"},
                             {"fahrenheit_to_celsius_freezing", ConvertFarToDegC, "32", "0.0000"},
                             {"fahrenheit_to_celsius_no_minus_zero", ConvertFarToDegC, "31.99995",
                              "0.0000"},
                             {"inch_to_millimeter", ConvertInchToMillimeter, "0.25", "6"},
                             {"inch_to_millimeter_whole", ConvertInchToMillimeter, "10", "254"},
                             {"inch_to_millimeter_below_one", ConvertInchToMillimeter, "0.01", "0"},
                             {"comma", ConvertKmToMeter, "1,5", "1500.0000"},
                             {"number_ahead_of_text", ConvertKmToMeter, "2 km", "2000.0000"},
                             {"no_number", ConvertKmToMeter, "km", "0.0000"},
                             {"empty", ConvertKmToMeter, "", "0.0000"},
                         }),
                         [](const auto& test) { return std::string(test.param.name); });

// --- Values in texts ---------------------------------------------------------------------------

struct ValueCase {
  const char* name;
  const char* text;
  int index;
  const char* expected;
};

class GetValueOnStringTest : public testing::TestWithParam<ValueCase> {};

TEST_P(GetValueOnStringTest, FindsTheNumber) {
  EXPECT_EQ(GetValueOnString(GetParam().text, GetParam().index), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, GetValueOnStringTest,
                         testing::ValuesIn<ValueCase>({
                             {"single", "1013.2 hpa", 1, "1013.2"},
                             {"single_has_no_second", "1013.2 hpa", 2, ""},
                             {"range_first", "100 to 200 m", 1, "100"},
                             {"range_second", "100 to 200 m", 2, "200"},
                             {"range_has_no_third", "100 to 200 m", 3, ""},
                             {"one_blank_between", "1 2 3", 3, "3"},
                             {"zero_is_passed_over", "0 to 50 m", 1, "50"},
                             {"zero_alone", "0 m", 1, ""},
                             {"decimal_zero_alone", "0.00 m", 1, ""},
                             {"behind_text", "> 2500 m", 1, "2500"},
                             {"minus", "-3.5 °C", 1, "-3.5"},
                             {"minus_of_a_fraction", "-0.5 °C", 1, "-0.5"},
                             {"minus_zero", "-0 °C", 1, ""},
                             {"minus_goes_with_the_first", "-10 to -5 °C", 2, "5"},
                             {"minus_divides", "5-10 Iceberg", 2, "10"},
                             {"minus_behind_text", "about -5", 1, "5"},
                             {"plus", "+1.2 hpa", 1, "1.2"},
                             {"comma", "3,5 mps", 1, "3.5"},
                             {"comma_and_minus", "-0,5 °C", 1, "-0.5"},
                             {"leading_zeros", "00320 ft", 1, "320"},
                             {"trailing_zeros", "320.0000 to 200 ft", 1, "320"},
                             {"behind_trailing_zeros", "320.0000 to 200 ft", 2, "200"},
                             {"behind_leading_zeros", "007.5 to 8 m", 2, "8"},
                             {"two_points", "03.1069.0 SM", 2, ""},
                             {"large", "340282300000000000000 °C", 1, "340282300000000000000"},
                             {"no_number", "Sky Clear", 1, ""},
                             {"empty", "", 1, ""},
                             {"place_zero", "5 m", 0, ""},
                             {"place_below_zero", "5 m", -1, ""},
                         }),
                         [](const auto& test) { return std::string(test.param.name); });

struct MaskCase {
  const char* name;
  const char* text;
  const char* mask;
  const char* expected;
};

class FormatByMaskTest : public testing::TestWithParam<MaskCase> {};

TEST_P(FormatByMaskTest, FormatsAheadOfTheBlank) {
  EXPECT_EQ(FormatByMask(GetParam().text, GetParam().mask), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, FormatByMaskTest,
                         testing::ValuesIn<MaskCase>({
                             {"one_decimal", "12.3 °C", "00.0", "12.3 °C"},
                             {"whole_number", "5 mps", "00.0", "05.0 mps"},
                             {"negative", "-5 °C", "00.0", "-05.0 °C"},
                             {"negative_rounds_to_zero", "-0.04 °C", "00.0", "00.0 °C"},
                             {"pressure", "1013.2 hpa", "0000.0", "1013.2 hpa"},
                             {"level", "300 m", "00000", "00300 m"},
                             {"no_number", "> 2500 m", "00000", "> 2500 m"},
                             {"without_blank", "5", "00.0", "05.0"},
                             {"text_without_blank", "Overcast", "00.0", "Overcast"},
                             {"empty", "", "00.0", ""},
                             {"leading_blank", " 5 m", "00000", " 5 m"},
                             {"half_goes_away_from_zero", "2.25 km", "0.0", "2.3 km"},
                             {"negative_half", "-2.25 km", "0.0", "-2.3 km"},
                             {"comma", "3,5 mps", "00.0", "03.5 mps"},
                             {"earlier_decimal", "3.1069.0 SM", "00.0", "03.1 SM"},
                             {"earlier_decimal_with_comma", "3.1069,0 SM", "00.0", "03.1 SM"},
                             {"two_earlier_decimals", "3.1069.00 SM", "00.0", "03.1 SM"},
                             {"two_earlier_decimals_with_comma", "3,00 SM", "00.0", "03.0 SM"},
                             {"all_earlier_decimals", "5.0 to 6.0 m", "00000", "00005 to 6 m"},
                             {"one_kind_only", "5.00 to 6.0 m", "00000", "00005 to 6 m"},
                             {"kind_found_first_counts", "5.0 to 6.00 m", "000", "005 to 6.00 m"},
                             {"decimal_at_the_end_stays", "5.0", "00.0", "05.0"},
                         }),
                         [](const auto& test) { return std::string(test.param.name); });

struct TextCase {
  const char* name;
  const char* text;
  const char* expected;
};

class RemoveLeadingZerosTest : public testing::TestWithParam<TextCase> {};

TEST_P(RemoveLeadingZerosTest, ShortensTheValue) {
  EXPECT_EQ(RemoveLeadingZeros(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, RemoveLeadingZerosTest,
                         testing::ValuesIn<TextCase>({
                             {"level", "00300 m", "300 m"},
                             {"single_zero_ahead_of_blank", "0 to 50 m", "0 to 50 m"},
                             {"zeros_ahead_of_blank", "00000 to 50 m", "0 to 50 m"},
                             {"zeros_only", "00000", ""},
                             {"one_zero_only", "0", ""},
                             {"decimals", "05.0 KTS", "5.0 KTS"},
                             {"fraction", "00.5 km", ".5 km"},
                             {"inner_zeros_stay", "01000 m", "1000 m"},
                             {"no_zeros", "300 m", "300 m"},
                             {"no_number", "Unknown", "Unknown"},
                             {"blanks_at_the_ends", " 1 to 5 KTS ", "1 to 5 KTS"},
                             {"minus", "-05.0", "-05.0"},
                             {"empty", "", ""},
                         }),
                         [](const auto& test) { return std::string(test.param.name); });

// --- Units -------------------------------------------------------------------------------------

struct UnitCase {
  const char* name;
  UnitKind kind;
  const char* text;
  const char* unit;
  const char* withUnit;
  const char* withoutUnit;
};

constexpr UnitKind kLevel = UnitKind::Level;
constexpr UnitKind kSpeed = UnitKind::Speed;
constexpr UnitKind kDistance = UnitKind::Distance;
constexpr UnitKind kPressure = UnitKind::Pressure;
constexpr UnitKind kTemperature = UnitKind::Temperature;

class ConvertToReqUnitTest : public testing::TestWithParam<UnitCase> {};

TEST_P(ConvertToReqUnitTest, GivesTheChosenUnit) {
  const UnitCase& row = GetParam();
  EXPECT_EQ(Convert(row.text, row.kind, row.unit, true), row.withUnit);
  EXPECT_EQ(Convert(row.text, row.kind, row.unit, false), row.withoutUnit);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ConvertToReqUnitTest,
    testing::ValuesIn<UnitCase>({
        {"m_to_m", kLevel, "450 m", " m", "00450 m", "00450"},
        {"m_to_ft", kLevel, "450 m", " ft", "01470 ft", "01470"},
        {"ft_to_ft", kLevel, "900 ft", " ft", "00900 ft", "00900"},
        {"ft_to_m", kLevel, "900 ft", " m", "00270 m", "00270"},
        {"mps_to_mps", kSpeed, "10.3 mps", " mps", "10.3 mps", "10.3"},
        {"mps_to_kts", kSpeed, "10.3 mps", " KTS", "20.0 KTS", "20.0"},
        {"mps_to_kmh", kSpeed, "10.3 mps", " kmh", "37.1 kmh", "37.1"},
        {"kts_to_kts", kSpeed, "25 KTS", " KTS", "25.0 KTS", "25.0"},
        {"kts_to_mps", kSpeed, "25 KTS", " mps", "12.9 mps", "12.9"},
        {"kts_to_kmh", kSpeed, "25 KTS", " kmh", "46.3 kmh", "46.3"},
        {"kmh_to_kmh", kSpeed, "40 kmh", " kmh", "40.0 kmh", "40.0"},
        {"kmh_to_kts", kSpeed, "40 kmh", " KTS", "21.6 KTS", "21.6"},
        {"kmh_to_mps", kSpeed, "40 kmh", " mps", "11.1 mps", "11.1"},
        {"sm_to_sm", kDistance, "2.5 SM", " SM", "02.5 SM", "02.5"},
        {"sm_to_km", kDistance, "2.5 SM", " km", "04.0 km", "04.0"},
        {"sm_to_m", kDistance, "2.5 SM", " m", "04023 m", "04023"},
        {"sm_to_nm", kDistance, "2.5 SM", " NM", "02.2 NM", "02.2"},
        {"distance_m_to_m", kDistance, "4750 m", " m", "04750 m", "04750"},
        {"distance_m_to_km", kDistance, "4750 m", " km", "04.8 km", "04.8"},
        {"distance_m_to_sm", kDistance, "4750 m", " SM", "03.0 SM", "03.0"},
        {"distance_m_to_nm", kDistance, "4750 m", " NM", "02.6 NM", "02.6"},
        {"km_to_km", kDistance, "12.5 km", " km", "12.5 km", "12.5"},
        {"km_to_m", kDistance, "12.5 km", " m", "12500 m", "12500"},
        {"km_to_sm", kDistance, "12.5 km", " SM", "07.8 SM", "07.8"},
        {"km_to_nm", kDistance, "12.5 km", " NM", "06.7 NM", "06.7"},
        {"hpa_to_hpa", kPressure, "1018.4 hpa", " hpa", "1018.4 hpa", "1018.4"},
        {"hpa_to_inhg", kPressure, "1018.4 hpa", " inHg", "30.07 inHg", "30.07"},
        {"inhg_to_inhg", kPressure, "30.12 inHg", " inHg", "30.12 inHg", "30.12"},
        {"inhg_to_hpa", kPressure, "30.12 inHg", " hpa", "1020.0 hpa", "1020.0"},
        {"c_to_c", kTemperature, "12.3 °C", " °C", "12.3 °C", "12.3"},
        {"c_to_f", kTemperature, "12.3 °C", " °F", "54.1 °F", "54.1"},
        {"f_to_f", kTemperature, "54.1 °F", " °F", "54.1 °F", "54.1"},
        {"f_to_c", kTemperature, "54.1 °F", " °C", "12.3 °C", "12.3"},
    }),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(NothingChosen, ConvertToReqUnitTest,
                         testing::ValuesIn<UnitCase>({
                             {"m", kLevel, "450 m", "", "00450 m", "00450"},
                             {"ft", kLevel, "900 ft", "", "00900 ft", "00900"},
                             {"mps", kSpeed, "5 mps", "", "05.0 mps", "05.0"},
                             {"kts", kSpeed, "25 KTS", "", "25.0 KTS", "25.0"},
                             {"kmh", kSpeed, "40 kmh", "", "40.0 kmh", "40.0"},
                             {"sm", kDistance, "2.5 SM", "", "02.5 SM", "02.5"},
                             {"distance_m", kDistance, "4750 m", "", "04750 m", "04750"},
                             {"km", kDistance, "12.5 km", "", "12.5 km", "12.5"},
                             {"hpa", kPressure, "1018 hpa", "", "1018.0 hpa", "1018.0"},
                             {"inhg", kPressure, "30.1 inHg", "", "30.10 inHg", "30.10"},
                             {"c", kTemperature, "-5 °C", "", "-05.0 °C", "-05.0"},
                             {"f", kTemperature, "54 °F", "", "54.0 °F", "54.0"},
                         }),
                         [](const auto& test) { return std::string(test.param.name); });

// Both ends are converted, the first one gets the mask and the other keeps four decimals.
INSTANTIATE_TEST_SUITE_P(
    Ranges, ConvertToReqUnitTest,
    testing::ValuesIn<UnitCase>({
        {"unchanged", kLevel, "100 to 200 m", " m", "00100 to 200 m", "00100 to 200"},
        {"m_to_ft", kLevel, "100 to 200 m", " ft", "00320 to 650.0000 ft", "00320 to 650.0000"},
        {"ft_to_m", kLevel, "900 to 3300 ft", " m", "00270 to 1000.0000 m", "00270 to 1000.0000"},
        {"from_zero", kLevel, "0 to 50 m", " ft", "00000 to 160.0000 ft", "00000 to 160.0000"},
        {"mps_to_kts", kSpeed, "10 to 30 mps", " KTS", "19.4 to 58.3153 KTS", "19.4 to 58.3153"},
        {"mps_to_kmh", kSpeed, "10 to 30 mps", " kmh", "36.0 to 108.0000 kmh", "36.0 to 108.0000"},
        {"kts_to_mps", kSpeed, "10 to 30 KTS", " mps", "05.1 to 15.4333 mps", "05.1 to 15.4333"},
        {"kts_to_kmh", kSpeed, "10 to 30 KTS", " kmh", "18.5 to 55.5600 kmh", "18.5 to 55.5600"},
        {"kmh_to_kts", kSpeed, "10 to 30 kmh", " KTS", "05.4 to 16.1987 KTS", "05.4 to 16.1987"},
        {"kmh_to_mps_by_two_factors", kSpeed, "10 to 30 kmh", " mps", "02.8 to 15.4333 mps",
         "02.8 to 15.4333"},
        {"sm_to_km", kDistance, "10 to 40 SM", " km", "16.1 to 64.3720 km", "16.1 to 64.3720"},
        {"sm_to_m", kDistance, "10 to 30 SM", " m", "16093 to 48279.0000 m", "16093 to 48279.0000"},
        {"sm_to_nm", kDistance, "10 to 30 SM", " NM", "08.7 to 26.0686 NM", "08.7 to 26.0686"},
        {"distance_m_to_km", kDistance, "1500 to 3000 m", " km", "01.5 to 3.0000 km",
         "01.5 to 3.0000"},
        {"distance_m_to_sm", kDistance, "1500 to 3000 m", " SM", "00.9 to 1.8642 SM",
         "00.9 to 1.8642"},
        {"distance_m_to_nm", kDistance, "1500 to 3000 m", " NM", "00.8 to 1.6199 NM",
         "00.8 to 1.6199"},
        {"km_to_m", kDistance, "10 to 30 km", " m", "10000 to 30000.0000 m", "10000 to 30000.0000"},
        {"km_to_sm", kDistance, "10 to 30 km", " SM", "06.2 to 18.6416 SM", "06.2 to 18.6416"},
        {"km_to_nm", kDistance, "10 to 30 km", " NM", "05.4 to 16.1987 NM", "05.4 to 16.1987"},
        {"hpa_to_inhg", kPressure, "1000 to 1020 hpa", " inHg", "29.53 to 30.1206 inHg",
         "29.53 to 30.1206"},
        {"inhg_to_hpa", kPressure, "29 to 30 inHg", " hpa", "0982.1 to 1015.9167 hpa",
         "0982.1 to 1015.9167"},
        {"c_to_f", kTemperature, "10 to 30 °C", " °F", "50.0 to 86.0000 °F", "50.0 to 86.0000"},
        {"f_to_c", kTemperature, "50 to 68 °F", " °C", "10.0 to 20.0000 °C", "10.0 to 20.0000"},
    }),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Values, ConvertToReqUnitTest,
    testing::ValuesIn<UnitCase>({
        {"zero_is_not_converted", kTemperature, "0 °C", " °F", "00.0 °F", "00.0"},
        {"minus", kTemperature, "-3.5 °C", " °F", "25.7 °F", "25.7"},
        {"minus_becomes_minus", kTemperature, "-40 °C", " °F", "-40.0 °F", "-40.0"},
        {"plus_becomes_minus", kTemperature, "5 °F", " °C", "-15.0 °C", "-15.0"},
        {"comma", kTemperature, "-3,5 °C", " °F", "25.7 °F", "25.7"},
        {"comma_unchanged", kTemperature, "-3,5 °C", " °C", "-03.5 °C", "-03.5"},
        {"missing_negated", kTemperature, "-340282300000000000000000000000000000000 °C", " °C",
         "-340282300000000000000000000000000000000.0 °C",
         "-340282300000000000000000000000000000000.0"},
        {"feet", kLevel, "1200 ft", " m", "00360 m", "00360"},
        {"short_speed", kSpeed, "5 mps", " KTS", "09.7 KTS", "09.7"},
        {"words_behind_the_unit", kSpeed, "10 mps (Anem.)", " kmh", "36.0 kmh (Anem.)",
         "36.0 (Anem.)"},
        {"words_unchanged", kSpeed, "5 KTS (Estim.)", " KTS", "05.0 KTS (Estim.)", "05.0 (Estim.)"},
        {"greater", kLevel, "> 2500 m", " m", "> 2500 m", "> 2500"},
        {"greater_converted", kLevel, "> 2500 m", " ft", "> 8200.0000 ft", "> 8200.0000"},
        {"formatted_before_below_one", kDistance, "00.2 km", " m", "00200 m", "00200"},
        {"leading_zeros", kDistance, "00500 m", " km", "00.5 km", "00.5"},
        {"pressure", kPressure, "1013.2 hpa", " inHg", "29.92 inHg", "29.92"},
        {"pressure_whole", kPressure, "1013 hpa", " hpa", "1013.0 hpa", "1013.0"},
        {"pressure_low", kPressure, "500 hpa", " hpa", "0500.0 hpa", "0500.0"},
        {"pressure_at_20", kPressure, "20 hpa", " hpa", "0020.0 hpa", "0020.0"},
        {"pressure_below_20", kPressure, "19.9 hpa", " hpa", "19.9 hpa", "19.9"},
        {"tendency", kPressure, "2.5 hpa", " hpa", "2.5 hpa", "2.5"},
        {"tendency_negative", kPressure, "-1.2 hpa", " hpa", "-1.2 hpa", "-1.2"},
        {"tendency_zero", kPressure, "0 hpa", " hpa", "0.0 hpa", "0.0"},
        {"tendency_in_inches", kPressure, "-1.2 hpa", " inHg", "-00.04 inHg", "-00.04"},
        {"tendency_from_inches", kPressure, "0.05 inHg", " hpa", "1.7 hpa", "1.7"},
        {"pressure_from_inches", kPressure, "29.92 inHg", " hpa", "1013.2 hpa", "1013.2"},
        {"millimetres_hold_metres", kLevel, "5 mm", " m", "00005 mm", "5m"},
    }),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Passing, ConvertToReqUnitTest,
    testing::ValuesIn<UnitCase>({
        {"no_unit", kLevel, "Sky Clear", " ft", "Sky Clear", "Sky Clear"},
        {"no_unit_trimmed", kLevel, " Sky Clear ", " ft", "Sky Clear", "Sky Clear"},
        {"empty", kLevel, "", " ft", "", ""},
        {"unit_of_metar", kSpeed, "5 kt", " mps", "5 kt", "5 kt"},
        {"unit_of_another_kind", kTemperature, "5 mps", " °F", "5 mps", "5 mps"},
        {"unit_without_blank", kLevel, "450m", " ft", "450m", "450m"},
        {"nautical_miles_as_source", kDistance, "5 NM", " km", "5 NM", "5 NM"},
        {"no_way_to_the_unit", kDistance, "5 SM", " ft", "5 SM", "5 SM"},
        {"no_way_trimmed", kDistance, " 5 SM ", " ft", "5 SM", "5 SM"},
        {"missing_visibility", kDistance, "Missing", " SM", "Missing", "Missing"},
    }),
    [](const auto& test) { return std::string(test.param.name); });

TEST(ConvertToReqUnit, TakesTheNumberOfAKind) {
  TextUtility units;
  units.SetUnit(UnitKind::Temperature, " °F");
  const ConversionUtility conversion(units);
  EXPECT_EQ(conversion.ConvertToReqUnit("12.3 °C", 4U, true), "54.1 °F");
  EXPECT_EQ(conversion.ConvertToReqUnit("450 m", 0U, true), "00450 m");
  EXPECT_EQ(conversion.ConvertToReqUnit(" 12.3 °C ", 5U, true), "12.3 °C");
  EXPECT_EQ(conversion.ConvertToReqUnit(" 12.3 °C ", 255U, false), "12.3 °C");
}

// The decimal of the earlier format stands behind the converted number until the mask is applied.
TEST(ConvertToReqUnit, TakesTextsThatWereFormattedBefore) {
  EXPECT_EQ(Convert("05.0 km", kDistance, " SM", true), "03.1 SM");
  EXPECT_EQ(Convert("1013.0 hpa", kPressure, " inHg", true), "29.91 inHg");
  EXPECT_EQ(Convert("-05.0 °C", kTemperature, " °F", true), "23.0 °F");
}

TEST(ConvertToReqUnit, AsksForTheUnitAtEachCall) {
  TextUtility units;
  const ConversionUtility conversion(units);
  EXPECT_EQ(conversion.ConvertToReqUnit("10 mps", UnitKind::Speed, true), "10.0 mps");
  units.SetUnit(UnitKind::Speed, " kmh");
  EXPECT_EQ(conversion.ConvertToReqUnit("10 mps", UnitKind::Speed, true), "36.0 kmh");
}

}  // namespace
}  // namespace zg
