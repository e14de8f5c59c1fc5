#include "decode/FrontsDecoder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zg {
namespace {

using List = std::vector<std::string>;

// The words of an analysis, behind those of its heading.
struct Analysis {
  BulletinMessage Message;

  explicit Analysis(std::string_view words,
                    std::string_view heading = "ASUS1 KWBC 151200 CODSUS VALID 151800Z") {
    Message.Type = MessageType::FRONTS;
    Add(heading);
    Add(words);
  }
  void Add(std::string_view words) {
    while (!words.empty()) {
      const std::size_t end = std::min(words.find(' '), words.size());
      Message.WordList.push_back(words.substr(0, end));
      words.remove_prefix(std::min(end + 1, words.size()));
    }
  }
};

// "type pressure lat/long" of each row.
List Points(const std::vector<FrontsRow>& rows) {
  List points;
  for (const FrontsRow& row : rows) {
    points.push_back(std::to_string(row.Type) + " " + row.Pressure + " " + row.Lat + "/" +
                     row.Long);
  }
  return points;
}

TEST(FrontsDecoder, Points) {
  struct Row {
    const char* name;
    const char* words;
    List points;
  };
  const Row rows[] = {
      {"nothing", "", {}},
      {"words only", "HIGHS LOWS COLD WK", {}},
      {"cold front of three points", "COLD 3012 3014 3116", {"6  30/12", "-1  30/14", "-1  31/16"}},
      {"two highs", "HIGHS 1030 4515 1028 5012", {"0 1030 45/15", "0 1028 50/12"}},
      {"two lows", "LOWS 998 45115 1001 50120", {"1 998 45/115", "1 1001 50/120"}},
      {"stationary", "STNRY 3012 3014", {"2  30/12", "-1  30/14"}},
      {"occluded", "OCFNT 3012", {"3  30/12"}},
      {"trough", "TROF 3012", {"5  30/12"}},
      {"warm", "WARM 3012", {"7  30/12"}},
      {"strength leaves the type", "COLD WK 3012 MDT 3014", {"6  30/12", "-1  30/14"}},
      {"another front of the same kind",
       "COLD 3012 3014 COLD 4012 4014",
       {"6  30/12", "-1  30/14", "6  40/12", "-1  40/14"}},
      {"highs behind a front",
       "WARM 3012 3014 HIGHS 1030 4515",
       {"7  30/12", "-1  30/14", "0 1030 45/15"}},
      {"a number without a type is a high", "1030 4515", {"0 1030 45/15"}},
      {"position of five characters", "COLD 30125", {"6  30/125"}},
      {"position of three characters", "COLD 301", {"6  /"}},
      {"position of six characters", "COLD 301250 3012", {"6  /", "-1  30/12"}},
      {"position of a centre is the next word, whatever it is",
       "HIGHS 1030 WARM 3012",
       {"0 1030 WA/RM"}},
      {"the word behind it is a pressure again",
       "HIGHS 1030 WARM 3012 4515",
       {"0 1030 WA/RM", "0 3012 45/15"}},
  };
  for (const Row& row : rows) {
    std::vector<FrontsRow> fronts;
    DecodeFronts(Analysis(row.words).Message, fronts);
    EXPECT_EQ(Points(fronts), row.points) << row.name;
  }
}

TEST(FrontsDecoder, EndBehindAPressure) {
  struct Row {
    const char* name;
    const char* words;
    bool complete;
    std::size_t rows;
  };
  const Row rows[] = {
      {"high", "COLD 3012 HIGHS 1030", false, 1},
      {"low", "LOWS 998 4515 1001", false, 1},
      {"at once", "HIGHS 1030", false, 0},
      {"whole", "LOWS 998 4515 1001 5012", true, 2},
      {"nothing", "", true, 0},
  };
  for (const Row& row : rows) {
    std::vector<FrontsRow> fronts;
    EXPECT_EQ(DecodeFronts(Analysis(row.words).Message, fronts), row.complete) << row.name;
    EXPECT_EQ(fronts.size(), row.rows) << row.name;
  }
}

TEST(FrontsDecoder, TimesAndNumbers) {
  std::vector<FrontsRow> rows;
  EXPECT_TRUE(DecodeFronts(Analysis("COLD 3012 3014 HIGHS 1030 4515").Message, rows));
  ASSERT_EQ(rows.size(), 3u);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].RecNum, FirstFrontsRecord + static_cast<std::int32_t>(i));
    EXPECT_EQ(rows[i].Validity, "151800");
    EXPECT_EQ(rows[i].MsgTime, "151200");
  }
  EXPECT_EQ(FirstFrontsRecord, 10000);
}

TEST(FrontsDecoder, FewerWordsThanAHeading) {
  for (const char* heading : {"", "ASUS1", "ASUS1 KWBC 151200 1030 4515"}) {
    std::vector<FrontsRow> rows;
    EXPECT_TRUE(DecodeFronts(Analysis("", heading).Message, rows)) << heading;
    EXPECT_TRUE(rows.empty()) << heading;
  }
}

TEST(FrontsDecoder, TextsAreUtf8) {
  std::vector<FrontsRow> rows;
  DecodeFronts(Analysis("COLD 3012", "ASUS1 KWBC 15\xC0 CODSUS VALID \xC0").Message, rows);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].MsgTime, "15\xC3\x80");
  EXPECT_EQ(rows[0].Validity, "\xC3\x80");
}

}  // namespace
}  // namespace zg
