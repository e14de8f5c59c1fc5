// A bulletin file as bytes: the repair of its line ends, and its lines.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zg {

// True if the bytes look like a file whose lines end in a bare line feed: the first line, measured
// up to a carriage return, is longer than a tenth of the file.
bool NeedsLineFeedRepair(std::string_view bytes) noexcept;

// Makes every line feed that does not follow a carriage return a carriage return, and adds CR LF at
// the end. All other bytes stay.
void RepairLineFeeds(std::string& bytes);

// Cuts bytes into lines. A line ends at CR CR LF, CR LF, CR or LF, whichever stands there: circuit
// files mix them. What follows the last line end is a line too, unless it is empty.
class LineReader {
 public:
  // With `repaired`, the last CR LF is the one that RepairLineFeeds has added. It reads as an empty
  // line of its own, whatever stands before it, and so closes a report at the end of the file.
  LineReader(std::string_view bytes, bool repaired) noexcept;

  // The next line without its line end. False when there is none; then `line` is empty.
  bool Next(std::string_view& line) noexcept;

  // What follows the line that was read last, its line end in front left out.
  std::string_view Ahead() const noexcept { return bytes_.substr(position_); }

  // Bytes read so far.
  std::size_t Position() const noexcept { return position_; }

 private:
  std::size_t Find(char c) const noexcept;
  std::size_t LengthOfLineEnd(std::size_t at) const noexcept;

  std::string_view bytes_;
  std::size_t position_ = 0;
  std::size_t nextFeed_ = 0;    // the first line feed at or behind position_
  std::size_t nextReturn_ = 0;  // the first carriage return
  std::size_t end_;             // end of the lines that are cut in the ordinary way
  bool extraLine_ = false;      // the added line end is still to be read
};

}  // namespace zg
