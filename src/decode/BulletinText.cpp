#include "decode/BulletinText.h"

#include <algorithm>
#include <cstring>

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
  // Mostly there is no carriage return at all.
  if (bytes.find('\r') == std::string::npos) {
    for (char& c : bytes) c = c == '\n' ? '\r' : c;
  } else {
    char before = '\n';  // as it was
    for (char& c : bytes) {
      const char here = c;
      if (here == '\n' && before != '\r') c = '\r';
      before = here;
    }
  }
  bytes += AddedLineEnd;
}

LineReader::LineReader(std::string_view bytes, bool repaired) noexcept
    : bytes_(bytes), end_(bytes.size()) {
  if (repaired && bytes.ends_with(AddedLineEnd)) {
    end_ -= AddedLineEnd.size();
    extraLine_ = true;
  }
  if (end_ == 0) return;
  nextFeed_ = Find('\n');
  nextReturn_ = Find('\r');
}

// Where the character stands next; the end if it does not.
std::size_t LineReader::Find(char c) const noexcept {
  const char* start = bytes_.data() + position_;
  const void* found = std::memchr(start, c, end_ - position_);
  return found == nullptr
             ? end_
             : position_ + static_cast<std::size_t>(static_cast<const char*>(found) - start);
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
  if (nextFeed_ < position_) nextFeed_ = Find('\n');
  if (nextReturn_ < position_) nextReturn_ = Find('\r');
  const std::size_t lineEnd = std::min(nextFeed_, nextReturn_);
  line = {bytes_.data() + position_, lineEnd - position_};
  position_ = lineEnd + LengthOfLineEnd(lineEnd);
  return true;
}

// Of CR CR LF, CR LF, CR or LF at a position; 0 at the end.
std::size_t LineReader::LengthOfLineEnd(std::size_t at) const noexcept {
  const std::size_t rest = end_ - at;
  if (rest < 2 || bytes_[at] == '\n') return std::min<std::size_t>(rest, 1);
  if (bytes_[at + 1] == '\n') return 2;
  return rest > 2 && bytes_[at + 1] == '\r' && bytes_[at + 2] == '\n' ? 3 : 1;
}

}  // namespace zg
