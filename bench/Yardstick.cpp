#include "Yardstick.h"

namespace zg::bench {
namespace {

constexpr char UpperCase(char c) noexcept {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

// Character by character, as one writes it without a thought for speed.
Yardstick::Count Yardstick::SplitLines(std::string_view bytes) {
  Count count;
  line_.clear();
  words_.clear();
  std::size_t wordAt = 0;
  const auto endWord = [&] {
    if (line_.size() > wordAt) words_.emplace_back(wordAt, line_.size() - wordAt);
    wordAt = line_.size();
  };
  for (const char c : bytes) {
    if (c != ' ' && c != '\n' && c != '\r') {
      line_.push_back(UpperCase(c));
      continue;
    }
    endWord();
    if (c != '\n') continue;
    ++count.Lines;
    count.Words += words_.size();
    line_.clear();
    words_.clear();
    wordAt = 0;
  }
  endWord();
  count.Words += words_.size();
  return count;
}

}  // namespace zg::bench
