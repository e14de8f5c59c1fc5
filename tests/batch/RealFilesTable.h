// What the circulated bulletins come to with the shipped station lists and settings: counts that
// change only when a rule of decoding or a list does, and then for a reason that can be told.
#pragma once

#include <cstddef>
#include <ostream>
#include <string_view>

namespace zg::test {

struct RealFile {
  std::string_view name;
  std::ptrdiff_t records;     // lines of standard output
  std::ptrdiff_t wrongLines;  // lines of the wrong-line file
  std::ptrdiff_t logLines;    // lines of standard error

  bool operator==(const RealFile&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const RealFile& file) {
  return out << "{\"" << file.name << "\", " << file.records << ", " << file.wrongLines << ", "
             << file.logLines << "},";
}

// clang-format off
inline constexpr RealFile RealFileTable[] = {
    {"none", 0, 0, 0},
};
// clang-format on

}  // namespace zg::test
