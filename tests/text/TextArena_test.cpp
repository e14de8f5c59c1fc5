#include "text/TextArena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace zg {
namespace {

TEST(TextArena, CopyIsItsOwn) {
  TextArena arena;
  std::string text = "Roma Fiumicino";
  const std::string_view copy = arena.Copy(text);
  text = "something else";
  EXPECT_EQ(copy, "Roma Fiumicino");
}

TEST(TextArena, EmptyTextTakesNothing) {
  TextArena arena;
  EXPECT_TRUE(arena.Copy("").empty());
  EXPECT_TRUE(arena.CopyWindows1252("").empty());
  EXPECT_EQ(arena.Capacity(), 0u);
}

TEST(TextArena, CopiesStayWhileItGrows) {
  TextArena arena;
  std::vector<std::string_view> copies;
  for (int i = 0; i < 20'000; ++i) copies.push_back(arena.Copy("text " + std::to_string(i)));
  for (int i = 0; i < 20'000; ++i) {
    ASSERT_EQ(copies[static_cast<std::size_t>(i)], "text " + std::to_string(i));
  }
}

TEST(TextArena, TextsOfAnySize) {
  TextArena arena;
  const std::string_view small = arena.Copy("small");
  for (const std::size_t size : {std::size_t{1}, std::size_t{16 * 1024}, std::size_t{16 * 1024 + 1},
                                 std::size_t{5'000'000}}) {
    EXPECT_EQ(arena.Copy(std::string(size, 'x')), std::string(size, 'x')) << size;
  }
  EXPECT_EQ(small, "small");
  EXPECT_GE(arena.Capacity(), std::size_t{5'000'000});
}

TEST(TextArena, CopyWindows1252) {
  TextArena arena;
  EXPECT_EQ(arena.CopyWindows1252("PLAIN"), "PLAIN");
  EXPECT_EQ(arena.CopyWindows1252("CITT\xC0"), "CITT\xC3\x80");
}

TEST(TextArena, MakeAlignsAndInitialises) {
  struct Item {
    double number = 2.5;
    std::string_view text = "Unk";
  };
  TextArena arena;
  for (int i = 0; i < 100; ++i) {
    arena.Copy("abc");  // three bytes put the next place out of line
    const Item* items = arena.Make<Item>(3);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(items) % alignof(Item), 0u);
    EXPECT_EQ(items[2].number, 2.5);
    EXPECT_EQ(items[2].text, "Unk");
  }
}

TEST(TextArena, ClearKeepsTheMemory) {
  TextArena arena;
  for (int round = 0; round < 3; ++round) {
    for (int i = 0; i < 1000; ++i) arena.Copy(std::string(100, 'x'));
  }
  const std::size_t before = arena.Capacity();
  for (int round = 0; round < 10; ++round) {
    arena.Clear();
    for (int i = 0; i < 3000; ++i) arena.Copy(std::string(100, 'y'));
  }
  EXPECT_EQ(arena.Capacity(), before);
}

TEST(TextArena, LargeTextBehindClear) {
  TextArena arena;
  arena.Copy("first round");
  arena.Clear();
  EXPECT_EQ(arena.Copy(std::string(40'000, 'z')), std::string(40'000, 'z'));
  EXPECT_EQ(arena.Copy("behind"), "behind");
}

TEST(TextArena, MovingKeepsTheTexts) {
  TextArena arena;
  const std::string_view copy = arena.Copy("kept");
  const TextArena moved = std::move(arena);
  EXPECT_EQ(copy, "kept");
  EXPECT_GT(moved.Capacity(), 0u);
}

}  // namespace
}  // namespace zg
