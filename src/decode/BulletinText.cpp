#include "decode/BulletinText.h"

#include <algorithm>

namespace zg {
namespace {
constexpr std::string_view AddedLineEnd = "\r\n";
}

bool NeedsLineFeedRepair(std::string_view bytes) noexcept {
  if (bytes.empty()) return false;
  const std::size_t end = bytes.find('\r');
  const std::size_t first = end == std::string_view::npos ? bytes.size() : end;
  return first * 10 > bytes.size();
}

void RepairLineFeeds(std::string& bytes) {
  std::size_t changed = std::string::npos;  // the line feed that was changed last
  for (std::size_t at = bytes.find('\n'); at != std::string::npos; at = bytes.find('\n', at + 1)) {
    if (at > 0 && bytes[at - 1] == '\r' && changed != at - 1) continue;
    bytes[at] = '\r';
    changed = at;
  }
  bytes += AddedLineEnd;
}

LineReader::LineReader(std::string_view bytes, bool repaired) noexcept
    : bytes_(bytes), end_(bytes.size()) {
  if (repaired && bytes.ends_with(AddedLineEnd)) {
    end_ -= AddedLineEnd.size();
    extraLine_ = true;
  }
}

// Where the character stands next; the end if it does not.
std::size_t LineReader::Find(char c) const noexcept {
  return std::min(bytes_.find(c, position_), end_);
}

bool LineReader::Next(std::string_view& line) noexcept {
  line = {};
  if (position_ >= end_) {
    if (!extraLine_) return false;
    extraLine_ = false;
    position_ = bytes_.size();
    return true;
  }
  // Each kind of line end is searched for once up to where it is: no byte is looked at thrice.
  if (!started_ || nextFeed_ < position_) nextFeed_ = Find('\n');
  if (!started_ || nextReturn_ < position_) nextReturn_ = Find('\r');
  started_ = true;
  const std::size_t lineEnd = std::min(nextFeed_, nextReturn_);
  line = bytes_.substr(position_, lineEnd - position_);
  const std::string_view behind = bytes_.substr(lineEnd, end_ - lineEnd);
  std::size_t ending = behind.empty() ? 0 : 1;
  if (behind.starts_with("\r\r\n")) {
    ending = 3;
  } else if (behind.starts_with("\r\n")) {
    ending = 2;
  }
  position_ = lineEnd + ending;
  return true;
}

}  // namespace zg
