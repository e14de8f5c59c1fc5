#include "shell/LogLines.h"

#include <algorithm>

#include "text/TextRules.h"

namespace zg {

bool LogLines::Add(std::string_view dateTime, std::string_view text) {
  const std::string entry(Trim(std::string(dateTime).append(" - ").append(text)));
  // An equal entry is of the same second, so it stands among the last ones.
  for (auto line = lines_.rbegin(); line != lines_.rend() && line->starts_with(dateTime); ++line) {
    if (*line == entry) return false;
  }
  lines_.push_back(entry);
  if (lines_.size() > Most) {
    lines_.pop_front();
    ++gone_;
  }
  return true;
}

}  // namespace zg
