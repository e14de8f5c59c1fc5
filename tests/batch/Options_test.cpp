#include "batch/Options.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

using Arguments = std::vector<std::string_view>;
using Files = std::vector<std::string>;

TEST(Options, Defaults) {
  const Options options = ParseOptions(Arguments{"a.txt"});
  EXPECT_EQ(options.Error, "");
  EXPECT_EQ(options.Files, Files{"a.txt"});
  EXPECT_EQ(options.ApplicationDirectory, "");
  EXPECT_EQ(options.Output, "");
  EXPECT_EQ(options.Format, OutputFormat::JsonLines);
  EXPECT_EQ(options.Fields, RecordFields::Data);
  EXPECT_FALSE(options.Message || options.Progress || options.Summary || options.Help ||
               options.Version);
}

TEST(Options, Flags) {
  struct Row {
    const char* argument;
    bool Options::*field;
  };
  const Row rows[] = {{"--message", &Options::Message},
                      {"--progress", &Options::Progress},
                      {"--summary", &Options::Summary},
                      {"--help", &Options::Help},
                      {"--version", &Options::Version}};
  for (const Row& row : rows) {
    const Options options = ParseOptions(Arguments{row.argument, "a.txt"});
    EXPECT_EQ(options.Error, "") << row.argument;
    EXPECT_TRUE(options.*row.field) << row.argument;
    EXPECT_EQ(options.Message + options.Progress + options.Summary + options.Help + options.Version,
              1)
        << row.argument;
  }
}

TEST(Options, Values) {
  struct Row {
    Arguments arguments;
    const char* directory;
    const char* output;
    RecordFields fields;
  };
  const Row rows[] = {
      {{"--app", "dir", "x"}, "dir", "", RecordFields::Data},
      {{"--app=dir", "x"}, "dir", "", RecordFields::Data},
      {{"--app=a=b", "x"}, "a=b", "", RecordFields::Data},
      {{"--output", "out.jsonl", "x"}, "", "out.jsonl", RecordFields::Data},
      {{"x", "--output=out.jsonl"}, "", "out.jsonl", RecordFields::Data},
      {{"--app", "--message", "x"}, "--message", "", RecordFields::Data},
      {{"--fields", "data", "x"}, "", "", RecordFields::Data},
      {{"--fields", "raw", "x"}, "", "", RecordFields::Raw},
      {{"--fields=both", "x"}, "", "", RecordFields::Both},
      {{"--fields", "raw", "--fields", "both", "x"}, "", "", RecordFields::Both},
      {{"--format", "jsonl", "x"}, "", "", RecordFields::Data},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.arguments[0]));
    const Options options = ParseOptions(row.arguments);
    EXPECT_EQ(options.Error, "");
    EXPECT_EQ(options.ApplicationDirectory, row.directory);
    EXPECT_EQ(options.Output, row.output);
    EXPECT_EQ(options.Fields, row.fields);
    EXPECT_EQ(options.Files, Files{"x"});
  }
}

TEST(Options, Formats) {
  struct Row {
    Arguments arguments;
    OutputFormat format;
  };
  const Row rows[] = {
      {{"--format", "jsonl", "x"}, OutputFormat::JsonLines},
      {{"--format", "csv", "x"}, OutputFormat::Csv},
      {{"--format=csv", "x"}, OutputFormat::Csv},
      {{"--format", "csv", "--format", "jsonl", "x"}, OutputFormat::JsonLines},
      {{"x", "--format", "csv", "--fields", "raw"}, OutputFormat::Csv},
  };
  for (const Row& row : rows) {
    const Options options = ParseOptions(row.arguments);
    EXPECT_EQ(options.Error, "");
    EXPECT_EQ(options.Format, row.format);
  }
}

TEST(Options, Files) {
  struct Row {
    Arguments arguments;
    Files files;
  };
  const Row rows[] = {
      {{"a", "b", "c"}, {"a", "b", "c"}},
      {{"-"}, {"-"}},
      {{"a", "-", "--message", "b"}, {"a", "-", "b"}},
      {{"--", "--message", "-x"}, {"--message", "-x"}},
      {{"--help"}, {}},
      {{"--version"}, {}},
      {{""}, {""}},
  };
  for (const Row& row : rows) {
    const Options options = ParseOptions(row.arguments);
    EXPECT_EQ(options.Error, "") << row.arguments[0];
    EXPECT_EQ(options.Files, row.files) << row.arguments[0];
  }
}

TEST(Options, Errors) {
  struct Row {
    Arguments arguments;
    const char* part;  // of what is said
  };
  const Row rows[] = {
      {{}, "FILE"},
      {{"--message"}, "FILE"},
      {{"--"}, "FILE"},
      {{"--nonsense", "x"}, "--nonsense"},
      {{"--nonsense=1", "x"}, "--nonsense"},
      {{"-m", "x"}, "-m"},
      {{"--app"}, "--app"},
      {{"x", "--output"}, "--output"},
      {{"--output=", "x"}, "--output"},
      {{"--fields", "all", "x"}, "all"},
      {{"--fields", "", "x"}, "--fields"},
      {{"--fields", "RAW", "x"}, "RAW"},
      {{"--format", "xml", "x"}, "xml"},
      {{"--format", "CSV", "x"}, "CSV"},
  };
  for (const Row& row : rows) {
    const Options options = ParseOptions(row.arguments);
    EXPECT_NE(options.Error, "") << row.part;
    EXPECT_NE(options.Error.find(row.part), std::string::npos) << options.Error;
  }
}

TEST(Options, UsageNamesAllOptions) {
  for (const char* name : {"--app", "--format", "--fields", "--message", "--output", "--progress",
                           "--summary", "--help", "--version"}) {
    EXPECT_NE(Usage().find(name), std::string_view::npos) << name;
  }
  EXPECT_TRUE(Usage().starts_with("Usage: zgdecode [options] FILE..."));
  EXPECT_TRUE(Usage().ends_with('\n'));
}

}  // namespace
}  // namespace zg
