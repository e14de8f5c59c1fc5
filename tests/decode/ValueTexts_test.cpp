#include "decode/ValueTexts.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace zg {
namespace {

TEST(ValueTexts, MadeOnceForEachPair) {
  TextArena arena;
  ValueTexts texts(arena);
  int made = 0;
  const auto get = [&](std::uint32_t rule, std::uint32_t value) {
    return texts.Get(rule, value, [&] {
      ++made;
      return std::to_string(rule) + ":" + std::to_string(value);
    });
  };
  const std::string_view first = get(1, 1013);
  EXPECT_EQ(first, "1:1013");
  EXPECT_EQ(get(1, 1013).data(), first.data());
  EXPECT_EQ(made, 1);
  EXPECT_EQ(get(2, 1013), "2:1013");
  EXPECT_EQ(get(1, 1014), "1:1014");
  EXPECT_EQ(made, 3);
}

TEST(ValueTexts, EndsOfTheRanges) {
  constexpr std::uint32_t Most = std::numeric_limits<std::uint32_t>::max();
  TextArena arena;
  ValueTexts texts(arena);
  const auto name = [](std::string_view text) { return [text] { return text; }; };
  EXPECT_EQ(texts.Get(0, 0, name("zero")), "zero");
  EXPECT_EQ(texts.Get(0, Most, name("highest value")), "highest value");
  EXPECT_EQ(texts.Get(1, 0, name("next rule")), "next rule");
  EXPECT_EQ(texts.Get(0, 0, name("made again")), "zero");
}

TEST(ValueTexts, EmptyTextIsATextToo) {
  TextArena arena;
  ValueTexts texts(arena);
  int made = 0;
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(texts
                    .Get(5, 7,
                         [&] {
                           ++made;
                           return std::string();
                         })
                    .empty());
  }
  EXPECT_EQ(made, 1);
}

TEST(ValueTexts, AllPairsAreFoundBehindGrowth) {
  TextArena arena;
  ValueTexts texts(arena);
  const std::size_t before = texts.Capacity();
  const auto check = [&](const char* round) {
    for (std::uint32_t rule = 0; rule < 20; ++rule) {
      for (std::uint32_t value = 0; value < 500; ++value) {
        const std::string text = std::to_string(rule * 1000 + value);
        ASSERT_EQ(texts.Get(rule, value, [&] { return text; }), text) << round;
      }
    }
  };
  check("made");
  EXPECT_GT(texts.Capacity(), before);
  check("found");
}

TEST(ValueTexts, ClearForgets) {
  TextArena arena;
  ValueTexts texts(arena);
  texts.Get(1, 1, [] { return "Italian"; });
  texts.Clear();
  arena.Clear();
  EXPECT_EQ(texts.Get(1, 1, [] { return "English"; }), "English");
}

}  // namespace
}  // namespace zg
