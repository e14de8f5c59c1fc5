#include "text/Windows1252.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

std::string AllBytes() {
  std::string bytes;
  for (int c = 0; c < 256; ++c) bytes += static_cast<char>(c);
  return bytes;
}

TEST(Windows1252, ToUtf8) {
  struct Row {
    const char* name;
    std::string bytes;
    std::string utf8;
  };
  const Row rows[] = {
      {"nothing", "", ""},
      {"ascii", "LIRF 151250Z=", "LIRF 151250Z="},
      {"nul stays", std::string("A\0B", 3), std::string("A\0B", 3)},
      {"letter with accent", "citt\xE0", "citt\xC3\xA0"},
      {"first of Latin-1", "\xA0", "\xC2\xA0"},
      {"last of Latin-1", "\xFF", "\xC3\xBF"},
      {"euro, three bytes", "\x80", "\xE2\x82\xAC"},
      {"dash", "\x96", "\xE2\x80\x93"},
      {"s with caron, two bytes", "\x9A", "\xC5\xA1"},
      {"undefined byte as control", "\x81", "\xC2\x81"},
  };
  for (const Row& row : rows) EXPECT_EQ(Windows1252ToUtf8(row.bytes), row.utf8) << row.name;
}

TEST(Windows1252, EveryByteComesBack) {
  const std::string bytes = AllBytes();
  const std::string utf8 = Windows1252ToUtf8(bytes);
  EXPECT_TRUE(IsUtf8(utf8));
  EXPECT_EQ(Utf8ToWindows1252(utf8), bytes);
}

TEST(Windows1252, FromUtf8) {
  struct Row {
    const char* name;
    std::string utf8;
    std::string bytes;
  };
  const Row rows[] = {
      {"nothing", "", ""},
      {"ascii", "AAXX 15121", "AAXX 15121"},
      {"in the set", "\xC3\xA0\xE2\x82\xAC", "\xE0\x80"},
      {"not in the set", "a\xE2\x86\x92z", "a?z"},
      {"beyond the first plane", "\xF0\x9F\x8C\xA7", "?"},
      {"control that the set has a character for", "\xC2\x80", "?"},
      {"stray byte", "a\xE0z", "a?z"},
      {"two stray bytes", "\xFF\xFE", "??"},
      {"character cut off", "a\xE2\x82", "a??"},
  };
  for (const Row& row : rows) EXPECT_EQ(Utf8ToWindows1252(row.utf8), row.bytes) << row.name;
}

TEST(Windows1252, IsUtf8) {
  struct Row {
    const char* name;
    std::string text;
    bool valid;
  };
  const Row rows[] = {
      {"nothing", "", true},
      {"ascii", "abc", true},
      {"nul", std::string(1, '\0'), true},
      {"two bytes", "\xC2\x80", true},
      {"three bytes", "\xE0\xA0\x80", true},
      {"four bytes", "\xF0\x90\x80\x80", true},
      {"highest", "\xF4\x8F\xBF\xBF", true},
      {"just below the surrogates", "\xED\x9F\xBF", true},
      {"just above the surrogates", "\xEE\x80\x80", true},
      {"lone follower", "\x80", false},
      {"no follower", "\xC3", false},
      {"wrong follower",
       "\xC3"
       "A",
       false},
      {"overlong, two bytes", "\xC0\xAF", false},
      {"overlong, lead C1", "\xC1\xBF", false},
      {"overlong, three bytes", "\xE0\x9F\xBF", false},
      {"overlong, four bytes", "\xF0\x8F\xBF\xBF", false},
      {"low surrogate", "\xED\xA0\x80", false},
      {"high surrogate", "\xED\xBF\xBF", false},
      {"beyond the last", "\xF4\x90\x80\x80", false},
      {"lead F5", "\xF5\x80\x80\x80", false},
      {"three bytes cut", "\xE2\x82", false},
      {"four bytes cut", "\xF0\x9F\x8C", false},
  };
  for (const Row& row : rows) EXPECT_EQ(IsUtf8(row.text), row.valid) << row.name;
}

TEST(Windows1252, IsAscii) {
  EXPECT_TRUE(IsAscii(""));
  EXPECT_TRUE(IsAscii(std::string("a\0\x7F", 3)));
  EXPECT_FALSE(IsAscii("a\x80"));
  EXPECT_FALSE(IsAscii("\xFF"));
}

TEST(Windows1252, IsAsciiOfEachLength) {
  for (std::size_t length = 1; length <= 20; ++length) {
    EXPECT_TRUE(IsAscii(std::string(length, '\x7F'))) << length;
    for (std::size_t at = 0; at < length; ++at) {
      std::string text(length, 'A');
      text[at] = '\x80';
      EXPECT_FALSE(IsAscii(text)) << length << " at " << at;
    }
  }
}

// A letter with an accent is made a capital wherever in a long text it stands.
TEST(Windows1252, UpperCaseOfLongTexts) {
  for (const std::size_t at : {0U, 254U, 255U, 256U, 257U, 511U, 512U, 599U}) {
    std::string text(600, 'a');
    std::string capitals(600, 'A');
    text[at] = '\xE0';
    capitals[at] = '\xC0';
    UpperCaseWindows1252(text);
    EXPECT_EQ(text, capitals) << at;
  }
}

TEST(Windows1252, UpperCase) {
  struct Row {
    const char* name;
    std::string bytes;
    std::string upper;
  };
  const Row rows[] = {
      {"nothing", "", ""},
      {"ascii", "lirf 151250z {q1015}=", "LIRF 151250Z {Q1015}="},
      {"neighbours of the letters", "@`[{", "@`[{"},
      {"accents", "\xE0\xE8\xE9\xEC\xF2\xF9", "\xC0\xC8\xC9\xCC\xD2\xD9"},
      {"ends of the block", "\xE0\xFE", "\xC0\xDE"},
      {"s, oe, z", "\x9A\x9C\x9E", "\x8A\x8C\x8E"},
      {"y with diaeresis", "\xFF", "\x9F"},
      {"division is no letter", "\xF7", "\xF7"},
      {"multiplication is none", "\xD7", "\xD7"},
      {"sharp s has no capital here", "\xDF", "\xDF"},
      {"micro has none either", "\xB5", "\xB5"},
      {"florin has none either", "\x83", "\x83"},
      {"nul", std::string("a\0b", 3), std::string("A\0B", 3)},
  };
  for (const Row& row : rows) {
    std::string bytes = row.bytes;
    UpperCaseWindows1252(bytes);
    EXPECT_EQ(bytes, row.upper) << row.name;
  }
}

TEST(Windows1252, UpperCaseTwiceIsUpperCase) {
  std::string once = AllBytes();
  UpperCaseWindows1252(once);
  std::string twice = once;
  UpperCaseWindows1252(twice);
  EXPECT_EQ(twice, once);
}

}  // namespace
}  // namespace zg
