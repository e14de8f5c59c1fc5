#include "Yardstick.h"

#include <algorithm>

namespace zg::bench {
namespace {

constexpr char UpperCase(char c) noexcept {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

Yardstick::Count Yardstick::CountWords(std::string_view bytes) {
  Count count;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    while (line.ends_with('\r')) line.remove_suffix(1);
    line_ = line;
    std::transform(line_.begin(), line_.end(), line_.begin(), UpperCase);
    line = line_;
    ++count.Lines;
    for (std::size_t at = line.find_first_not_of(' '); at != std::string_view::npos;
         at = line.find_first_not_of(' ', at)) {
      const std::string_view word = line.substr(at, line.find(' ', at) - at);
      ++count.Words;
      count.Letters += word.size();
      at += word.size();
    }
  }
  return count;
}

}  // namespace zg::bench
