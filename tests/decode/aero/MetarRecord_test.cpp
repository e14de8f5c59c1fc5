#include "decode/aero/MetarRecord.h"

#include <gtest/gtest.h>

#include <bit>

#include "decode/aero/MetarTestSupport.h"

namespace zg {
namespace {

TEST(MetarRecord, MissingValues) {
  EXPECT_EQ(MissingByte, 255);
  EXPECT_EQ(MissingShort, 32767);
  EXPECT_EQ(MissingLong, 2147483647);
  EXPECT_EQ(std::bit_cast<std::uint32_t>(MissingFloat), 0x7F7FFFFDu);
  EXPECT_EQ(Unk, "Unk");
  EXPECT_FALSE(IsMissing(-MissingFloat));
  EXPECT_FALSE(IsMissing(std::string_view()));
}

TEST(MetarRecord, NewRecordHasNothing) {
  const MetarRawData raw;
  EXPECT_EQ(test::Describe(raw), "");
  EXPECT_EQ(raw.Temperature, MissingFloat);
  EXPECT_EQ(raw.RVRRunway, "Unk");
  EXPECT_EQ(raw.Section[0].VisibilityDir, "Unk");
  EXPECT_EQ(raw.Section[0].WindDirRange, "Unk");
}

TEST(MetarRecord, Reset) {
  MetarRawData raw;
  raw.Accepted = 1;
  raw.RawText = "METAR LIRF=";
  raw.Station = {.WMOIndex = 16242,
                 .State = "CO",
                 .Station = "Denver",
                 .Country = "Italy",
                 .IcaoName = "KDEN",
                 .LatPosition = 1.0f,
                 .LongPosition = 2.0f,
                 .StationHT = "0001",
                 .SensorHT = "0002",
                 .Quadrant = 1,
                 .MsgId = "SAIY31",
                 .Type = "METAR",
                 .Sender = "LIIB",
                 .AddedInfo = "COR",
                 .StationKind = 1};
  raw.ObservationTime = "151250";
  raw.ValidPeriod = "151218";
  raw.BulletinTime = "151200";
  raw.FilterFlags = -1;
  for (MetarRawSection& section : raw.Section) {
    section = {.SectionType = 1,
               .SectionFlags = 3,
               .FromHour = 1,
               .FromMinute = 2,
               .ToHour = 3,
               .ToMinute = 4,
               .AltimeterPressure = 5,
               .SeaPressureLevel = 6,
               .OrizVisibility = 7,
               .VisibilityDir = "N",
               .WindDir = 8,
               .WindSpeed = 9,
               .WindDirRange = "350-040",
               .Gust = 10,
               .CloudCover = {1, 2, 3},
               .CloudType = {4, 5, 6},
               .CloudHeigh = {7, 8, 9},
               .Weather = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}};
  }
  raw.SectionIndex = 14;
  raw.ForecastTemperature = {1, 2};
  raw.ForecastTemperatureHour = {3, 4};
  raw.Temperature = raw.Dewpoint = 1;
  raw.RVRRunway = "24";
  raw.RVRVisibility = raw.RVRVisibilitymax = raw.VerticalVisibility = 1;
  raw.WindShearLevel = raw.WindShearSpeed = 1;
  raw.WindShearDir = 1;
  raw.OtherRemarks = raw.WindRemarks = "text";
  raw.MaxTemperature6h = raw.MinTemperature6h = 1;
  raw.MaxTemperature24h = raw.MinTemperature24h = 1;
  raw.PrecipHour = raw.Precip3h = raw.Precip6h = raw.Precip24h = raw.SnowDepth = 1;
  raw.PressTendency = 1;
  raw.PressTendencyVal = 1;
  raw.LowCloudType = raw.MiddleCloudType = raw.HighCloudType = 1;
  raw.Sunshine = raw.Water = 1;

  ResetMetarRecord(raw);

  // What outlives a reset.
  EXPECT_EQ(raw.RawText, "METAR LIRF=");
  EXPECT_EQ(raw.ObservationTime, "151250");
  EXPECT_EQ(raw.ValidPeriod, "151218");
  EXPECT_EQ(raw.BulletinTime, "151200");
  // All else is missing, in the sections beyond the first too.
  EXPECT_EQ(raw.Accepted, 0);
  EXPECT_EQ(raw.FilterFlags, 0);
  EXPECT_EQ(raw.SectionIndex, 0);
  raw.SectionIndex = 14;
  std::string bars(14 * 2 - 1, ' ');
  for (std::size_t i = 0; i < bars.size(); i += 2) bars[i] = '|';
  EXPECT_EQ(test::Describe(raw), bars);
  EXPECT_EQ(raw.Temperature, MissingFloat);
  EXPECT_EQ(raw.RVRRunway, "Unk");

  const StationBlock& station = raw.Station;
  EXPECT_EQ(station.WMOIndex, -1);
  for (std::string_view text :
       {station.State, station.Station, station.Country, station.IcaoName, station.StationHT,
        station.SensorHT, station.MsgId, station.Type, station.Sender, station.AddedInfo}) {
    EXPECT_EQ(text, "");
  }
  EXPECT_FALSE(station.LatPosition || station.LongPosition || station.Quadrant);
  EXPECT_EQ(station.StationKind, 0);
}

}  // namespace
}  // namespace zg
