// What the log list of the main window holds: the last 1000 entries.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

namespace zg {

class LogLines {
 public:
  static constexpr std::size_t Most = 1000;

  // Adds `dateTime`, " - " and the text. An entry that is in the list already, to the second, is
  // not added again. Beyond the limit the oldest goes. True if it was added.
  bool Add(std::string_view dateTime, std::string_view text);

  const std::deque<std::string>& Lines() const noexcept { return lines_; }
  // Entries that have gone since the beginning: the number of the first line, from 0.
  std::size_t Gone() const noexcept { return gone_; }

 private:
  std::deque<std::string> lines_;
  std::size_t gone_ = 0;
};

}  // namespace zg
