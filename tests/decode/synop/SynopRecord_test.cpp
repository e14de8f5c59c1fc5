#include "decode/synop/SynopRecord.h"

#include "decode/synop/SynopTestSupport.h"

namespace zg {
namespace {

TEST(SynopRecord, NewRecordHasNothing) {
  const SynopRawData raw;
  EXPECT_EQ(test::Describe(raw), "");
  EXPECT_EQ(raw.TimeOfObservation, "Unk");
  EXPECT_EQ(raw.RegionalData1, "Unk");
  EXPECT_EQ(raw.RegionalData2, "Unk");
  EXPECT_EQ(raw.OtherInfo, "Unk");
  EXPECT_EQ(raw.MaxWindSpeedTime, "Unk");
  EXPECT_EQ(raw.ContinueWindTime, "Unk");
  EXPECT_EQ(raw.SeaTemperature, MissingFloat);
  EXPECT_EQ(raw.PrecipitAmount1, MissingShort);
  EXPECT_EQ(raw.Visibility, MissingByte);
}

TEST(SynopRecord, Reset) {
  SynopRawData raw;
  raw.Accepted = 1;
  raw.Msg = "AAXX 12001=";
  raw.Station.WMOIndex = 16242;
  raw.Station.Station = "Roma";
  raw.Station.LatPosition = 1.0f;
  raw.Station.Quadrant = 1;
  raw.Station.StationKind = 2;
  raw.Station.AddedInfo = "RRA";
  raw.FilterFlags = -1;
  raw.IssueTime = "151200";
  raw.WindUnitInd = 4;
  raw.TimeOfObservation = "1230";
  raw.Visibility = 50;
  raw.Temperature = -raw.Temperature;
  raw.CloudCovLayer.fill(1);
  raw.CountinuousWindRaw.fill("010001");
  raw.MaxWindSpeedTime = "1230";

  ResetSynopRecord(raw);

  EXPECT_EQ(raw.IssueTime, "151200");
  EXPECT_EQ(raw.WindUnitInd, 4);
  EXPECT_EQ(raw.Accepted, 0);
  EXPECT_EQ(raw.Msg, "");
  EXPECT_EQ(raw.FilterFlags, 0);
  EXPECT_EQ(raw.Station.WMOIndex, -1);
  EXPECT_EQ(raw.Station.Station, "");
  EXPECT_EQ(raw.Station.AddedInfo, "");
  EXPECT_FALSE(raw.Station.LatPosition || raw.Station.Quadrant);
  EXPECT_EQ(raw.Station.StationKind, 0);
  EXPECT_EQ(raw.Temperature, MissingFloat);
  EXPECT_EQ(test::Describe(raw), "");
}

}  // namespace
}  // namespace zg
