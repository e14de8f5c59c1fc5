// AddLineOnList and RemoveLineOnList for lists of thousands of lines: each line stands once, in
// order of arrival, and is found by its hash, so that no operation walks the list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text/TextArena.h"

namespace zg {

// A line that is removed leaves a gap, so that the lines behind it keep their index until Settle.
class LineList {
 public:
  // Adds the trimmed line at the end, unless it is empty, "Unknow", or in the list already.
  void Add(std::string_view line);

  // Removes the trimmed line, if it stands behind "Unknow" in the order of bytes.
  void Remove(std::string_view line);

  void Clear() noexcept;

  // Number of lines, gaps not counted.
  std::size_t Count() const noexcept { return count_; }

  // The line at an index from 0. Empty for a gap, and beyond the end.
  std::string_view At(std::size_t index) const noexcept;

  // Closes the gaps: from now on the indexes are 0 to Count() - 1. The result says how many of the
  // first lines are the same as after the Settle before; a view has only the others to renew.
  std::size_t Settle();

 private:
  static constexpr std::uint32_t None = UINT32_MAX;

  // A line that has been in the list since Clear; it may have left it.
  struct Known {
    std::string_view Text;  // in the arena
    std::uint32_t Index;    // None while it is not in the list
  };
  struct Slot {
    std::uint32_t Hash;
    std::uint32_t Number = None;  // of a known line
  };

  Slot& FindSlot(std::string_view line, std::uint32_t hash) noexcept;
  void GrowSlots();

  TextArena arena_;
  std::vector<Known> known_;
  std::vector<Slot> slots_;           // open addressing; a power of two, never more than half full
  std::vector<std::uint32_t> lines_;  // numbers of known lines; None is a gap
  std::size_t count_ = 0;
  std::size_t settled_ = 0;  // lines at the last Settle
  std::size_t changed_ = 0;  // the first index that has changed since
};

}  // namespace zg
