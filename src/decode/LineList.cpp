#include "decode/LineList.h"

#include <algorithm>
#include <functional>

#include "decode/ListUtility.h"
#include "text/TextRules.h"

namespace zg {
namespace {

constexpr std::size_t FewestSlots = 64;

std::uint32_t HashOf(std::string_view line) noexcept {
  return static_cast<std::uint32_t>(std::hash<std::string_view>()(line));
}

}  // namespace

void LineList::Add(std::string_view line) {
  line = Trim(line);
  if (line.empty() || line == Unknow) return;
  if (slots_.size() <= known_.size() * 2) GrowSlots();
  const std::uint32_t hash = HashOf(line);
  Slot& slot = FindSlot(line, hash);
  if (slot.Number == None) {
    slot = {hash, static_cast<std::uint32_t>(known_.size())};
    known_.push_back({arena_.Copy(line), None});
  }
  Known& known = known_[slot.Number];
  if (known.Index != None) return;
  known.Index = static_cast<std::uint32_t>(lines_.size());
  lines_.push_back(slot.Number);
  ++count_;
}

void LineList::Remove(std::string_view line) {
  line = Trim(line);
  if (line.empty() || line <= Unknow || slots_.empty()) return;
  const Slot& slot = FindSlot(line, HashOf(line));
  if (slot.Number == None || known_[slot.Number].Index == None) return;
  std::uint32_t& index = known_[slot.Number].Index;
  changed_ = std::min<std::size_t>(changed_, index);
  lines_[index] = None;
  index = None;
  --count_;
  while (!lines_.empty() && lines_.back() == None) lines_.pop_back();
}

void LineList::Clear() noexcept {
  lines_.clear();
  known_.clear();
  std::fill(slots_.begin(), slots_.end(), Slot{0, None});
  arena_.Clear();
  count_ = changed_ = 0;
}

std::string_view LineList::At(std::size_t index) const noexcept {
  if (index >= lines_.size() || lines_[index] == None) return {};
  return known_[lines_[index]].Text;
}

std::size_t LineList::Settle() {
  const std::size_t same = std::min({changed_, settled_, lines_.size()});
  std::erase(lines_, None);
  for (std::size_t i = same; i < lines_.size(); ++i) {
    known_[lines_[i]].Index = static_cast<std::uint32_t>(i);
  }
  settled_ = changed_ = lines_.size();
  return same;
}

// The slot of the line, or the free one in which it belongs.
LineList::Slot& LineList::FindSlot(std::string_view line, std::uint32_t hash) noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].Number != None &&
         (slots_[at].Hash != hash || known_[slots_[at].Number].Text != line)) {
    at = (at + 1) & mask;
  }
  return slots_[at];
}

void LineList::GrowSlots() {
  std::vector<Slot> old(std::max(FewestSlots, slots_.size() * 2), Slot{0, None});
  old.swap(slots_);
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.Number == None) continue;
    std::size_t at = slot.Hash & mask;
    while (slots_[at].Number != None) at = (at + 1) & mask;
    slots_[at] = slot;
  }
}

}  // namespace zg
