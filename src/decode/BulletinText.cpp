#include "decode/BulletinText.h"

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
  char before = '\0';
  for (char& c : bytes) {
    const char original = c;
    if (c == '\n' && before != '\r') c = '\r';
    before = original;
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

bool LineReader::Next(std::string_view& line) noexcept {
  line = {};
  if (position_ >= end_) {
    if (!extraLine_) return false;
    extraLine_ = false;
    position_ = bytes_.size();
    return true;
  }
  const std::string_view rest = bytes_.substr(position_, end_ - position_);
  std::size_t length = 0;
  while (length < rest.size() && rest[length] != '\r' && rest[length] != '\n') ++length;
  line = rest.substr(0, length);
  const std::string_view behind = rest.substr(length);
  std::size_t ending = behind.empty() ? 0 : 1;
  if (behind.starts_with("\r\r\n")) {
    ending = 3;
  } else if (behind.starts_with("\r\n")) {
    ending = 2;
  }
  position_ += length + ending;
  return true;
}

}  // namespace zg
