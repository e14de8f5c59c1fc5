#include "shell/SafeName.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

using namespace std::string_view_literals;

TEST(SafeName, PlainNamesPass) {
  const std::string longest(200, 'n');
  for (const std::string_view name :
       {"00Z.TXT"sv, "sn.0001.txt"sv, "a"sv, "name with blanks.txt"sv, "a..b"sv, "a."sv, "~x"sv,
        "-rf"sv, "%2e%2e%2f"sv, "console.txt"sv, "com10"sv, "null"sv, "\xC3\xA9t\xC3\xA9.txt"sv,
        "\xE9.txt"sv, std::string_view(longest)}) {
    EXPECT_EQ(SafeName(name), std::string(name));
  }
}

TEST(SafeName, OthersAreRefused) {
  const std::string tooLong(201, 'n');
  for (const std::string_view name : {""sv,          "."sv,
                                      ".."sv,        "..."sv,
                                      ".bashrc"sv,   "../../.bashrc"sv,
                                      "../x"sv,      "x/.."sv,
                                      "/etc/x"sv,    "a/b"sv,
                                      "a/"sv,        "a\\..\\b"sv,
                                      "..\\x"sv,     "\\\\host\\x"sv,
                                      "C:x"sv,       "C:\\x"sv,
                                      "x:stream"sv,  "a\0b"sv,
                                      "\0"sv,        "a\nb"sv,
                                      "a\rb"sv,      "\tx"sv,
                                      "a\x1b]0;x"sv, "a\x7f"sv,
                                      "CON"sv,       "con"sv,
                                      "Nul.txt"sv,   "aux.tar.gz"sv,
                                      "PRN"sv,       "com1"sv,
                                      "LPT9.x"sv,    std::string_view(tooLong)}) {
    EXPECT_EQ(SafeName(name), std::nullopt) << name;
  }
}

}  // namespace
}  // namespace zg
