#include "decode/ValueTexts.h"

#include <algorithm>
#include <utility>

namespace zg {

void ValueTexts::Clear() noexcept {
  std::fill(slots_.begin(), slots_.end(), Slot{});
  count_ = 0;
}

void ValueTexts::Grow() {
  std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
  for (const Slot& slot : old) {
    if (slot.key != 0) *Find(slot.key) = slot;
  }
}

}  // namespace zg
