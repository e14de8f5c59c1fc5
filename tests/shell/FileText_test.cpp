#include "shell/FileText.h"

#include <gtest/gtest.h>

#include "shell/TestSupport.h"

namespace zg {
namespace {

using test::TemporaryFolder;
using test::WriteTestFile;
using namespace std::string_view_literals;

TEST(FileText, SplitLines) {
  struct Row {
    const char* name;
    std::string_view text;
    std::vector<std::string_view> lines;
  };
  const Row rows[] = {
      {"nothing", "", {}},
      {"one line without an end", "a", {"a"}},
      {"one line", "a\n", {"a"}},
      {"blank lines", "\n\n", {"", ""}},
      {"LF", "a\nb", {"a", "b"}},
      {"CR LF", "a\r\nb\r\n", {"a", "b"}},
      {"CR", "a\rb\r", {"a", "b"}},
      {"mixed", "a\r\n\rb\n\r\nc", {"a", "", "b", "", "c"}},
      {"LF CR is two ends", "a\n\rb", {"a", "", "b"}},
      {"NUL is a character", "a\0b\nc"sv, {"a\0b"sv, "c"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(SplitLines(row.text), row.lines);
  }
}

TEST(FileText, ReadTextLines) {
  struct Row {
    const char* name;
    std::string_view bytes;
    std::vector<std::string> lines;
  };
  const Row rows[] = {
      {"empty file", "", {}},
      {"UTF-8",
       "Temper = \xC2\xB0"
       "C\n",
       {"Temper = °C"}},
      {"Windows-1252",
       "Temper = \xB0"
       "C\r\n\x80\r\n",
       {"Temper = °C", "€"}},
      {"byte order mark",
       "\xEF\xBB\xBF"
       "URL = 1\n",
       {"URL = 1"}},
      {"byte order mark alone", "\xEF\xBB\xBF", {}},
  };
  const TemporaryFolder folder;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    WriteTestFile(folder / "text", row.bytes);
    const TextLines file = ReadTextLines(folder / "text");
    EXPECT_TRUE(file.Ok());
    EXPECT_EQ(file.Lines, row.lines);
  }
}

TEST(FileText, ReadFileBytes) {
  const TemporaryFolder folder;
  std::string content;
  for (int i = 0; i < 200000; ++i) content += static_cast<char>(i % 256);
  WriteTestFile(folder / "bytes", content);
  const FileBytes file = ReadFileBytes(folder / "bytes");
  EXPECT_TRUE(file.Ok());
  EXPECT_EQ(file.Bytes, content);
}

TEST(FileText, Errors) {
  const TemporaryFolder folder;
  struct Row {
    const char* name;
    std::string path;
    const char* error;
  };
  const Row rows[] = {
      {"missing", folder / "none", ": No such file or directory"},
      {"a folder", folder.Path(), ": Is a directory"},
      {"empty path", "", ": No such file or directory"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const FileBytes bytes = ReadFileBytes(row.path);
    EXPECT_FALSE(bytes.Ok());
    EXPECT_EQ(bytes.Error, row.path + row.error);
    const TextLines lines = ReadTextLines(row.path);
    EXPECT_EQ(lines.Error, row.path + row.error);
    EXPECT_TRUE(lines.Lines.empty());
  }
}

}  // namespace
}  // namespace zg
