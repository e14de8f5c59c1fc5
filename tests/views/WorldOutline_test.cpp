#include "views/WorldOutline.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "shell/TestSupport.h"

namespace zg {
namespace {

// A file of records of code, latitude, longitude.
std::string Bytes(std::initializer_list<std::array<int, 3>> records) {
  std::string bytes;
  for (const auto& record : records) {
    for (const int number : record) {
      bytes += static_cast<char>(number & 0xFF);
      bytes += static_cast<char>(number >> 8 & 0xFF);
    }
  }
  return bytes;
}

struct OutlineCase {
  const char* Name;
  std::string Bytes;
  int Step;
  std::vector<OutlineLine> Lines;
};

const std::vector<OutlineCase>& Cases() {
  static const std::vector<OutlineCase> cases = {
      {"no file", "", 10, {}},
      {"a line", Bytes({{1001, 0, 0}, {1, 2700, 540}}), 10, {{{0, 0}, {2700, 540}}}},
      {"south and west",
       Bytes({{1001, -5400, -10800}, {1, 5400, 10800}}),
       10,
       {{{-5400, -10800}, {5400, 10800}}}},
      {"1000 continues and 1001 begins",
       Bytes({{1001, 0, 0}, {1000, 0, 60}, {1001, 60, 0}, {1, 60, 60}}),
       10,
       {{{0, 0}, {0, 60}}, {{60, 0}, {60, 60}}}},
      {"codes below 1 are no points",
       Bytes({{1001, 0, 0}, {0, 90, 90}, {-1, 80, 80}, {1, 0, 60}}),
       10,
       {{{0, 0}, {0, 60}}}},
      {"a line need not be begun", Bytes({{1, 0, 0}, {1, 0, 60}}), 10, {{{0, 0}, {0, 60}}}},
      {"near points go, the last one stays",
       Bytes({{1001, 0, 0}, {1, 0, 9}, {1, 0, 10}, {1, 9, 19}, {1, 0, 19}}),
       10,
       {{{0, 0}, {0, 10}, {0, 19}}}},
      {"a ring stays closed",
       Bytes({{1001, 0, 0}, {1, 0, 60}, {1, 60, 60}, {1, 0, 0}}),
       10,
       {{{0, 0}, {0, 60}, {60, 60}, {0, 0}}}},
      {"too small to be seen", Bytes({{1001, 0, 0}, {1, 5, 5}, {1, 0, 0}}), 10, {}},
      {"a point alone",
       Bytes({{1001, 0, 0}, {1001, 0, 60}, {1, 60, 60}}),
       10,
       {{{0, 60}, {60, 60}}}},
      {"the end is missing",
       Bytes({{1001, 0, 0}, {1, 0, 60}, {1, 0, 120}}).substr(0, 17),
       10,
       {{{0, 0}, {0, 60}}}},
  };
  return cases;
}

TEST(WorldOutline, ReadsLines) {
  for (const OutlineCase& row : Cases()) {
    EXPECT_EQ(ReadOutline(row.Bytes, row.Step), row.Lines) << row.Name;
  }
}

TEST(WorldOutline, TakesCoastsAndIslands) {
  const test::TemporaryFolder folder;
  EXPECT_TRUE(ReadWorldOutline(folder.Path(), 10).empty());
  test::WriteTestFile(folder / "Island.pnt", Bytes({{1001, 0, 0}, {1, 0, 60}}));
  EXPECT_EQ(ReadWorldOutline(folder.Path(), 10), (std::vector<OutlineLine>{{{0, 0}, {0, 60}}}));
  test::WriteTestFile(folder / "Coast.pnt", Bytes({{1001, 0, 0}, {1, 60, 0}}));
  EXPECT_EQ(ReadWorldOutline(folder.Path(), 10),
            (std::vector<OutlineLine>{{{0, 0}, {60, 0}}, {{0, 0}, {0, 60}}}));
}

}  // namespace
}  // namespace zg
