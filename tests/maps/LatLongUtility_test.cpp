#include "maps/LatLongUtility.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

namespace zg {
namespace {

TEST(LatLongUtility, ComputeLatLong) {
  struct Row {
    std::optional<float> latitude;
    std::optional<float> longitude;
    std::optional<int> quadrant;
    const char* text;
  };
  constexpr auto None = std::nullopt;
  const Row rows[] = {
      {455.0f, 123.0f, 1, "45.30N 012.18E"},
      {455.0f, 123.0f, 3, "45.30S 012.18E"},
      {455.0f, 123.0f, 5, "45.30S 012.18W"},
      {455.0f, 123.0f, 7, "45.30N 012.18W"},
      {-455.0f, -123.0f, 1, "45.30N 012.18E"},  // amounts only: the quadrant gives the letters
      {0.0f, 0.0f, 5, "00.00S 000.00W"},
      {9.0f, 1799.0f, 1, "00.54N 179.54E"},
      {899.0f, 1800.0f, 7, "89.54N 180.00W"},
      {999.0f, 9999.0f, 1, "99.54N 999.54E"},
      {455.0f, 123.0f, 2, ""},
      {455.0f, 123.0f, 0, ""},
      {455.0f, 123.0f, 8, ""},
      {455.0f, 123.0f, None, ""},
      {None, 123.0f, 1, ""},
      {455.0f, None, 1, ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ComputeLatLong(row.latitude, row.longitude, row.quadrant), row.text);
  }
}

TEST(LatLongUtility, GetPosition) {
  struct Row {
    const char* text;
    float value;
  };
  const Row rows[] = {
      {"45.30N", 455.0f},    {"45.30S", -455.0f},
      {"012.18E", 123.0f},   {"012.18W", -123.0f},
      {"  45.30N ", 455.0f}, {"45-30N", 455.0f},
      {"00.00N", 0.0f},      {"89.59N", 899.8333333f},
      {"179.60W", -1800.0f}, {"45.30X", 455.0f},
      {"AB.CDN", 0.0f},      {"4x.3xN", 40.5f},  // 4 degrees, 3 minutes
      {"45.3N", 0.0f},       {"", 0.0f},
      {"   ", 0.0f},         {"45.30.00N", 0.0f},
  };
  for (const Row& row : rows) {
    EXPECT_FLOAT_EQ(GetPosition(row.text), row.value) << row.text;
  }
  EXPECT_FALSE(std::signbit(GetPosition("00.00S")));
}

TEST(LatLongUtility, TrimLatLong) {
  struct Row {
    const char* text;
    const char* minutesStay;
    const char* minutesMakeADegree;
  };
  const Row rows[] = {
      {"51.29N", "51.29N", "51.29N"},
      {"000.27W", "000.27W", "000.27W"},
      {"anyone", "anyone", "anyone"},
      {"51.29.40N", "51.30N", "51.30N"},
      {"51.29.30N", "51.29N", "51.29N"},
      {"51.29.31N", "51.30N", "51.30N"},
      {"45.59.31N", "46.60N", "46.00N"},
      {"51.59.31S", "52.60S", "52.00S"},
      {"51.59.30S", "51.59S", "51.59S"},
      {"009.05.59E", "009.06E", "009.06E"},
      {"099.59.59W", "100.60W", "100.00W"},
      {"-1.05.00S", "-01.0S", "-01.0S"},  // cut at its place, whatever the number was
      {"", "", ""},
      {"5.29N", "", ""},
      {"51.29.4N", "", ""},
      {"0051.29.40N", "", ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(TrimLatLong(row.text), row.minutesStay) << row.text;
    EXPECT_EQ(TrimLatLong(row.text, SixtyMinutes::MakeADegree), row.minutesMakeADegree) << row.text;
  }
}

TEST(LatLongUtility, NumberToText) {
  struct Row {
    float value;
    const char* latitude;
    const char* longitude;
  };
  const Row rows[] = {
      {0.0f, "00.00N", "000.00E"},           {-0.0f, "00.00N", "000.00E"},
      {455.0f, "45.30N", "045.30E"},         {-455.0f, "45.30S", "045.30W"},
      {123.0f, "12.18N", "012.18E"},         {454.8333333f, "45.29N", "045.29E"},
      {1799.8333333f, "179.59N", "179.59E"}, {-5.0f, "00.30S", "000.30W"},
      {459.99f, "45.60N", "045.60E"},  // rounded minutes may be 60
      {450.25f, "45.02N", "045.02E"},  // 1.5 minutes: to the even one
      {450.75f, "45.04N", "045.04E"},  // 4.5 minutes
  };
  for (const Row& row : rows) {
    EXPECT_EQ(GetStationLatInText(row.value), row.latitude);
    EXPECT_EQ(GetStationLongInText(row.value), row.longitude);
  }
}

TEST(LatLongUtility, EveryMinuteComesBack) {
  for (int degrees = 0; degrees < 90; ++degrees) {
    for (int minutes = 0; minutes < 60; ++minutes) {
      char text[32];
      snprintf(text, sizeof text, "%02d.%02dS", degrees, minutes);
      const std::string expected = degrees + minutes == 0 ? "00.00N" : text;
      EXPECT_EQ(GetStationLatInText(GetPosition(text)), expected);
      EXPECT_EQ(GetStationLatInText(GetStationLatInNum(text)), expected);
      snprintf(text, sizeof text, "%03d.%02dE", degrees * 2, minutes);
      EXPECT_EQ(GetStationLongInText(GetPosition(text)), text);
    }
  }
}

TEST(LatLongUtility, TextToNumber) {
  struct Row {
    const char* text;
    float latitude;
    float longitude;
  };
  const Row rows[] = {
      {"455", 455.0f, 455.0f},     {"-455", -455.0f, -455.0f},   {"45.30N", 455.0f, 455.0f},
      {"45.30S", -455.0f, 455.0f}, {"012.18W", 123.0f, -123.0f}, {"", 0.0f, 0.0f},
      {"45.5", 0.0f, 0.0f},        {"north", 0.0f, 0.0f},
  };
  for (const Row& row : rows) {
    EXPECT_FLOAT_EQ(GetStationLatInNum(row.text), row.latitude) << row.text;
    EXPECT_FLOAT_EQ(GetStationLongInNum(row.text), row.longitude) << row.text;
  }
}

}  // namespace
}  // namespace zg
