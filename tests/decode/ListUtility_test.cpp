#include "decode/ListUtility.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

using List = std::vector<std::string>;

TEST(ListUtility, AddLineOnList) {
  struct Row {
    const char* name;
    List before;
    const char* line;
    bool present;
    List after;
    bool presentAfter;
  };
  const Row rows[] = {
      {"new", {"b"}, "a", false, {"b", "a"}, false},
      {"into an empty list", {}, "a", false, {"a"}, false},
      {"trimmed", {}, "  a b ", false, {"a b"}, false},
      {"there already", {"a", "b"}, "a", false, {"a", "b"}, true},
      {"there once trimmed", {"a"}, " a", false, {"a"}, true},
      {"case counts", {"A"}, "a", false, {"A", "a"}, false},
      {"known to be present", {"b"}, "a", true, {"b"}, true},
      {"empty", {"b"}, "", false, {"b"}, false},
      {"blanks", {"b"}, "   ", false, {"b"}, false},
      {"Unknow", {"b"}, " Unknow ", false, {"b"}, false},
      {"Unknown is another word", {}, "Unknown", false, {"Unknown"}, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    List list = row.before;
    bool present = row.present;
    AddLineOnList(list, row.line, present);
    EXPECT_EQ(list, row.after);
    EXPECT_EQ(present, row.presentAfter);
  }
}

TEST(ListUtility, RemoveLineOnList) {
  struct Row {
    const char* name;
    const char* line;
    List after;
  };
  const List before = {"Rome", "Vienna", "Unknow", "Vienna", "zero"};
  const Row rows[] = {
      {"the first of two", "Vienna", {"Rome", "Unknow", "Vienna", "zero"}},
      {"trimmed", " zero ", {"Rome", "Vienna", "Unknow", "Vienna"}},
      {"ahead of Unknow in order", "Rome", before},
      {"Unknow itself", "Unknow", before},
      {"not in the list", "Zagreb", before},
      {"empty", "", before},
      {"blanks", "  ", before},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    List list = before;
    RemoveLineOnList(list, row.line);
    EXPECT_EQ(list, row.after);
  }
}

TEST(ListUtility, FillList) {
  struct Row {
    const char* text;
    List parts;
  };
  const Row rows[] = {
      {"", {""}},
      {"Italy", {"Italy"}},
      {"Italy, France", {"Italy", "France"}},
      {"Italy, France, ", {"Italy", "France", ""}},
      {"Italy, France,", {"Italy", "France", ""}},
      {"Italy,France", {"Italy", "rance"}},  // one character behind a comma is always passed over
      {", , ", {"", "", ""}},
      {",,,", {"", "", ""}},
      {",", {"", ""}},
      {"a, b , c", {"a", "b ", "c"}},
  };
  for (const Row& row : rows) EXPECT_EQ(FillList(row.text), row.parts) << row.text;
}

}  // namespace
}  // namespace zg
