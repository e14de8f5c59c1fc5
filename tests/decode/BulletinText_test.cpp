#include "decode/BulletinText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace zg {
namespace {

struct Line {
  std::string text;
  std::size_t position;  // behind it
  bool operator==(const Line&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Line& line) {
    return out << '"' << line.text << "\" " << line.position;
  }
};

std::vector<Line> LinesOf(std::string_view bytes, bool repaired) {
  LineReader reader(bytes, repaired);
  std::vector<Line> lines;
  std::string_view line;
  while (reader.Next(line)) lines.push_back({std::string(line), reader.Position()});
  EXPECT_TRUE(line.empty());
  return lines;
}

TEST(BulletinText, NeedsLineFeedRepair) {
  const auto file = [](std::size_t first, std::string_view end, std::size_t size) {
    return std::string(first, 'a').append(end).append(size - first - end.size(), 'b');
  };
  struct Row {
    const char* name;
    std::string bytes;
    bool needs;
  };
  const Row rows[] = {
      {"empty", "", false},
      {"first line is a tenth", file(10, "\r\n", 100), false},
      {"first line above a tenth", file(11, "\r\n", 100), true},
      {"a tenth is no whole number", file(10, "\r\n", 99), true},
      {"below the fraction", file(9, "\r\n", 91), false},
      {"carriage return alone ends it", file(10, "\r", 100), false},
      {"line feed does not end it", file(5, "\n", 100), true},
      {"line feeds up to the first return", "12345\n789A\r\n" + std::string(88, 'x'), false},
      {"line feeds and a late return", "12345\n789AB\r\n" + std::string(87, 'x'), true},
      {"empty first line", "\r\nabc", false},
      {"no line end at all", "abc", true},
      {"one line with its end", "abc\r\n", true},
  };
  for (const Row& row : rows) EXPECT_EQ(NeedsLineFeedRepair(row.bytes), row.needs) << row.name;
}

TEST(BulletinText, RepairLineFeeds) {
  struct Row {
    const char* name;
    std::string before;
    std::string after;
  };
  const Row rows[] = {
      {"line feeds", "a\nb\n", "a\rb\r\r\n"},
      {"without the last one", "a\nb", "a\rb\r\n"},
      {"blank lines", "a\n\n\nb\n", "a\r\r\rb\r\r\n"},
      {"line ends that are whole", "a\r\nb\r\n", "a\r\nb\r\n\r\n"},
      {"line ends of the circuit", "a\r\r\nb\r\r\n", "a\r\r\nb\r\r\n\r\n"},
      {"line feed ahead of a whole end", "a\n\r\nb", "a\r\r\nb\r\n"},
      {"line feed at the start", "\n\r\n", "\r\r\n\r\n"},
      {"line feeds around a return", "\n\n\r\n\n", "\r\r\r\n\r\r\n"},
      {"mixed", "a\r\nb\nc\r\r\n\n\nNNNN\r\n", "a\r\nb\rc\r\r\n\r\rNNNN\r\n\r\n"},
      {"other bytes stay", std::string("\t\0\xE0\x1A\n", 5), std::string("\t\0\xE0\x1A\r\r\n", 7)},
  };
  for (const Row& row : rows) {
    std::string bytes = row.before;
    RepairLineFeeds(bytes);
    EXPECT_EQ(bytes, row.after) << row.name;
  }
}

TEST(BulletinText, LineReader) {
  struct Row {
    const char* name;
    std::string bytes;
    std::vector<Line> lines;
  };
  const Row rows[] = {
      {"nothing", "", {}},
      {"one line without end", "abc", {{"abc", 3}}},
      {"carriage return and line feed", "a\r\nb\r\n", {{"a", 3}, {"b", 6}}},
      {"circuit", "a\r\r\nb\r\r\n", {{"a", 4}, {"b", 8}}},
      {"line feed", "a\nb\n", {{"a", 2}, {"b", 4}}},
      {"carriage return", "a\rb\r", {{"a", 2}, {"b", 4}}},
      {"mixed", "a\nb\rc\r\nd\r\r\ne", {{"a", 2}, {"b", 4}, {"c", 7}, {"d", 11}, {"e", 12}}},
      {"two line feeds", "a\n\nb", {{"a", 2}, {"", 3}, {"b", 4}}},
      {"two carriage returns", "a\r\rb", {{"a", 2}, {"", 3}, {"b", 4}}},
      {"three carriage returns and a line feed", "a\r\r\r\n", {{"a", 2}, {"", 5}}},
      {"line feed ahead of carriage return", "a\n\rb", {{"a", 2}, {"", 3}, {"b", 4}}},
      {"ends at a carriage return pair", "a\r\r", {{"a", 2}, {"", 3}}},
      {"nul and control characters",
       std::string("\0\x1A\n\x0C", 4),
       {{std::string("\0\x1A", 2), 3}, {"\x0C", 4}}},
  };
  for (const Row& row : rows) EXPECT_EQ(LinesOf(row.bytes, false), row.lines) << row.name;
}

// Ahead is what the next lines are cut from, behind any kind of line end.
TEST(BulletinText, LineReaderAhead) {
  const std::string bytes = "a\nb\rc\r\nd\r\r\n\ne";
  const char* const ahead[] = {
      "b\rc\r\nd\r\r\n\ne", "c\r\nd\r\r\n\ne", "d\r\r\n\ne", "\ne", "e", ""};
  LineReader reader(bytes, false);
  EXPECT_EQ(reader.Ahead(), bytes);
  std::string_view line;
  for (const char* rest : ahead) {
    ASSERT_TRUE(reader.Next(line)) << rest;
    EXPECT_EQ(reader.Ahead(), rest);
  }
  EXPECT_FALSE(reader.Next(line));
  EXPECT_EQ(reader.Ahead(), "");
}

TEST(BulletinText, LineReaderOfNothing) {
  LineReader reader({}, false);
  std::string_view line = "before";
  EXPECT_FALSE(reader.Next(line));
  EXPECT_EQ(line, "");
  EXPECT_EQ(reader.Ahead(), "");
}

TEST(BulletinText, LineReaderOfARepairedFile) {
  struct Row {
    const char* name;
    std::string bytes;
    std::vector<Line> lines;
  };
  const Row rows[] = {
      {"added end is a line of its own", "a\r\r\n", {{"a", 2}, {"", 4}}},
      {"behind a line without end", "a\r\n", {{"a", 1}, {"", 3}}},
      {"behind a whole line end", "a\r\n\r\n", {{"a", 3}, {"", 5}}},
      {"behind a circuit line end", "a\r\r\n\r\n", {{"a", 4}, {"", 6}}},
      {"alone", "\r\n", {{"", 2}}},
      {"missing", "a\rb", {{"a", 2}, {"b", 3}}},
  };
  for (const Row& row : rows) EXPECT_EQ(LinesOf(row.bytes, true), row.lines) << row.name;
}

// Whatever is repaired and cut into lines, the characters of the lines are those of the file.
TEST(BulletinText, NothingIsLost) {
  const std::string parts[] = {"A", "\n", "\r\n", "\r\r\n", "\r", "B="};
  for (int code = 0; code < 6 * 6 * 6 * 6 * 6; ++code) {
    std::string bytes;
    for (int i = 0, rest = code; i < 5; ++i, rest /= 6) {
      bytes += parts[static_cast<std::size_t>(rest % 6)];
    }
    std::string characters;
    for (char c : bytes) {
      if (c != '\r' && c != '\n') characters += c;
    }
    for (const bool repaired : {false, true}) {
      std::string file = bytes;
      if (repaired) RepairLineFeeds(file);
      std::string read;
      const std::vector<Line> lines = LinesOf(file, repaired);
      for (const Line& line : lines) read += line.text;
      ASSERT_EQ(read, characters) << code << repaired;
      ASSERT_EQ(lines.back().position, file.size()) << code << repaired;
    }
  }
}

}  // namespace
}  // namespace zg
