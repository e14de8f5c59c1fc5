#include "decode/DecodeLists.h"

#include <gtest/gtest.h>

#include "decode/ListUtility.h"

namespace zg {
namespace {

using Lines = std::vector<std::string>;

Lines LinesOf(const LineList& list) {
  Lines lines;
  for (std::size_t i = 0; i < list.Count(); ++i) lines.emplace_back(list.At(i));
  return lines;
}

TEST(DecodeLists, FollowsMessages) {
  DecodeLists lists;
  AcceptedMessage message{.Country = "Italy",
                          .ListName = "IBVT [41.30N 012.10E]",
                          .Station = "IBVT",
                          .MsgId = "SMVX01",
                          .Type = "BBXX",
                          .Sender = "LIRF",
                          .SenderCity = "Roma",
                          .Day = "15",
                          .Time = "12:00",
                          .DecodedCount = 7};
  lists.MessageAccepted(message);
  EXPECT_TRUE(lists.WantsAccepted());
  EXPECT_EQ(lists.Country, "Italy");
  EXPECT_EQ(lists.Station, "IBVT");
  EXPECT_EQ(lists.MsgId, "SMVX01");
  EXPECT_EQ(lists.Type, "BBXX");
  EXPECT_EQ(lists.Sender, "LIRF");
  EXPECT_EQ(lists.SenderCity, "Roma");
  EXPECT_EQ(lists.Day, "15");
  EXPECT_EQ(lists.Time, "12:00");
  EXPECT_EQ(lists.DecodedCount, 7);
  EXPECT_EQ(LinesOf(lists.Stations), Lines({"IBVT [41.30N 012.10E]"}));
  EXPECT_EQ(LinesOf(lists.Countries), Lines({"Italy"}));

  message.Country = Unknow;
  message.ListName = "WIGO";
  lists.MessageAccepted(message);
  lists.StationRemoved("WIGO");
  EXPECT_EQ(lists.Country, Unknow) << "shown, but not listed";
  EXPECT_EQ(lists.Countries.Count(), 1U);
  EXPECT_EQ(lists.Stations.Count(), 1U);

  lists.Clear();
  EXPECT_EQ(lists.Countries.Count() + lists.Stations.Count(), 0U);
  EXPECT_EQ(lists.Type + lists.Day + lists.Time + lists.MsgId + lists.Sender + lists.SenderCity +
                lists.Country + lists.Station,
            "");
  EXPECT_EQ(lists.DecodedCount, 0);
}

TEST(DecodeLists, FilterTexts) {
  struct Row {
    std::uint8_t mask;
    const char* quadrants;
    const char* stations;
  };
  const Row rows[] = {{0, "", ""},
                      {1, "NE ", "Buoy "},
                      {2, "SE ", "Ship "},
                      {4, "SW ", "Land "},
                      {8, "NW ", ""},
                      {7, "NE SE SW ", "Buoy Ship Land "},
                      {15, "NE SE SW NW ", "Buoy Ship Land "},
                      {9, "NE NW ", "Buoy "},
                      {0xF0, "", ""}};
  for (const Row& row : rows) {
    EXPECT_EQ(QuadrantFilterText(row.mask), row.quadrants) << int{row.mask};
    EXPECT_EQ(StationFilterText(row.mask), row.stations) << int{row.mask};
  }
}

TEST(DecodeLists, PercentText) {
  struct Row {
    std::int64_t position;
    std::int64_t maximum;
    const char* text;
  };
  const Row rows[] = {
      {0, 0, ""},         {0, 200, "%"},      {1, 1000, "%"},
      {1, 200, "1%"},     {10, 200, "5%"},    {99, 200, "50%"},
      {199, 200, "100%"}, {200, 200, "100%"}, {3'000'000'000, 4'000'000'000, "75%"}};
  for (const Row& row : rows) {
    EXPECT_EQ(PercentText(row.position, row.maximum), row.text)
        << row.position << " of " << row.maximum;
  }
}

TEST(DecodeLists, FileNameOfPath) {
  struct Row {
    const char* path;
    const char* name;
  };
  const Row rows[] = {{"", ""},
                      {"abc.txt", "abc.txt"},
                      {"/a/b/abc.txt", "abc.txt"},
                      {"C:\\MeteoFiles\\abc.txt", "abc.txt"},
                      {"/a\\b/c\\abc.txt", "abc.txt"},
                      {"/a/", ""}};
  for (const Row& row : rows) EXPECT_EQ(FileNameOfPath(row.path), row.name) << row.path;
}

}  // namespace
}  // namespace zg
