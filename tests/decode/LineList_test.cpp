#include "decode/LineList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "decode/ListUtility.h"

namespace zg {
namespace {

using Lines = std::vector<std::string>;

Lines LinesOf(const LineList& list) {
  Lines lines;
  for (std::size_t i = 0; i < list.Count(); ++i) lines.emplace_back(list.At(i));
  return lines;
}

// The same through the functions that walk the list.
struct WalkedList {
  Lines Entries;

  void Add(std::string_view line) {
    bool present = false;
    AddLineOnList(Entries, line, present);
  }
  void Remove(std::string_view line) { RemoveLineOnList(Entries, line); }
};

TEST(LineList, OneOperation) {
  struct Row {
    const char* name;
    Lines before;
    const char* add;
    const char* remove;
    Lines after;
  };
  const Row rows[] = {
      {"added at the end", {"b"}, "a", "", {"b", "a"}},
      {"trimmed", {}, "  a b ", "", {"a b"}},
      {"there already", {"a", "b"}, " a", "", {"a", "b"}},
      {"case counts", {"A"}, "a", "", {"A", "a"}},
      {"nothing", {"b"}, "   ", "", {"b"}},
      {"Unknow is never listed", {"b"}, " Unknow ", "", {"b"}},
      {"Unknown is", {}, "Unknown", "", {"Unknown"}},
      {"removed from the middle", {"Rome", "Vienna", "Zagreb"}, "", " Vienna", {"Rome", "Zagreb"}},
      {"removed at the end", {"Rome", "Vienna"}, "", "Vienna", {"Rome"}},
      {"the last one", {"Vienna"}, "", "Vienna", {}},
      {"ahead of Unknow in order", {"Rome"}, "", "Rome", {"Rome"}},
      {"not in the list", {"Rome"}, "", "Vienna", {"Rome"}},
      {"added and removed", {"Rome"}, "Vienna", "Vienna", {"Rome"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    LineList list;
    for (const std::string& line : row.before) list.Add(line);
    list.Add(row.add);
    list.Remove(row.remove);
    EXPECT_EQ(list.Count(), row.after.size());
    list.Settle();
    EXPECT_EQ(LinesOf(list), row.after);
  }
}

TEST(LineList, LinesStayInTheirPlaceUntilSettle) {
  LineList list;
  for (const char* line : {"Vienna", "Warsaw", "Zagreb"}) list.Add(line);
  EXPECT_EQ(list.Settle(), 0U);

  list.Remove("Warsaw");
  EXPECT_EQ(list.At(1), "");
  EXPECT_EQ(list.At(2), "Zagreb");
  EXPECT_EQ(list.At(3), "");
  list.Add("Warsaw");
  EXPECT_EQ(list.Count(), 3U);

  EXPECT_EQ(list.Settle(), 1U) << "only Vienna stands where it stood";
  EXPECT_EQ(LinesOf(list), Lines({"Vienna", "Zagreb", "Warsaw"}));
  EXPECT_EQ(list.Settle(), 3U) << "nothing has changed";

  list.Add("Utti");
  EXPECT_EQ(list.Settle(), 3U) << "the new one alone";
  list.Clear();
  list.Add("Vienna");
  EXPECT_EQ(list.Settle(), 0U) << "another list, though it begins in the same way";
  EXPECT_EQ(LinesOf(list), Lines({"Vienna"}));
}

// A view that renews what Settle tells it shows what the walking functions make.
TEST(LineList, LikeTheFunctionsThatWalk) {
  std::mt19937 random(20031115);
  LineList list;
  WalkedList walked;
  Lines view;
  for (int step = 0; step < 20000; ++step) {
    const std::string line =
        std::string(random() % 2 == 0 ? "Station " : "Zone ") + std::to_string(random() % 60);
    switch (random() % 8) {
      case 0:
      case 1:
      case 2:
        list.Remove(line);
        walked.Remove(line);
        break;
      case 3: {
        view.resize(std::min(view.size(), list.Settle()));
        for (std::size_t i = view.size(); i < list.Count(); ++i) view.emplace_back(list.At(i));
        ASSERT_EQ(view, walked.Entries) << "step " << step;
        break;
      }
      default:
        list.Add(line);
        walked.Add(line);
        break;
    }
    ASSERT_EQ(list.Count(), walked.Entries.size()) << "step " << step;
  }
}

}  // namespace
}  // namespace zg
