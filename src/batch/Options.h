// The command line of zgdecode.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "batch/RecordJson.h"

namespace zg {

enum class OutputFormat : std::uint8_t { JsonLines, Csv };

struct Options {
  std::string ApplicationDirectory;  // empty: the one that the desktop program uses
  std::string Output;                // empty: standard output
  OutputFormat Format = OutputFormat::JsonLines;
  RecordFields Fields = RecordFields::Data;
  bool Message = false;   // each file holds one typed message
  bool Progress = false;  // show progress even if standard error is no terminal
  bool Summary = false;   // a summary in place of the records
  bool Help = false;
  bool Version = false;
  std::vector<std::string> Files;  // "-" is standard input
  std::string Error;               // what is wrong with the arguments; empty if nothing is
};

// `arguments` without the name of the program.
Options ParseOptions(std::span<const std::string_view> arguments);

// What --help prints.
std::string_view Usage() noexcept;

}  // namespace zg
