// Reading whole files, as bytes or as lines of UTF-8 text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zg {

// `Error` is the path and the reason in English where the file could not be read, else empty.
struct FileBytes {
  std::string Bytes;
  std::string Error;
  bool Ok() const noexcept { return Error.empty(); }
};

struct TextLines {
  std::vector<std::string> Lines;
  std::string Error;
  bool Ok() const noexcept { return Error.empty(); }
};

// Everything in the file, up to its end. Pipes and devices are read too; a folder is an error.
FileBytes ReadFileBytes(const std::string& path);

// The lines of a text file in UTF-8, without their line ends. A file that is no valid UTF-8 is read
// as Windows-1252; a byte order mark in front is dropped.
TextLines ReadTextLines(const std::string& path);

// Cuts a text at its line ends, each of them CR LF, CR or LF. What follows the last line end is a
// line only if it is not empty.
std::vector<std::string_view> SplitLines(std::string_view text);

}  // namespace zg
