#include "Yardstick.h"

#include <algorithm>
#include <cctype>

namespace zg::bench {
namespace {

// As one writes it without a thought for speed.
char UpperCase(char c) noexcept {
  return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

}  // namespace

Yardstick::Count Yardstick::SplitLines(std::string_view bytes) {
  Count count;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    while (line.ends_with('\r')) line.remove_suffix(1);
    line_ = line;
    std::transform(line_.begin(), line_.end(), line_.begin(), UpperCase);
    line = line_;
    words_.clear();
    for (std::size_t at = line.find_first_not_of(' '); at != std::string_view::npos;
         at = line.find_first_not_of(' ', at)) {
      words_.push_back(line.substr(at, line.find(' ', at) - at));
      at += words_.back().size();
    }
    ++count.Lines;
    count.Words += words_.size();
  }
  return count;
}

}  // namespace zg::bench
