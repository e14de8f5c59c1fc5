// The texts of a store that are made from a value: each made once and shared by all records of the
// run that hold the value. Temperatures, pressures, heights and the like repeat thousands of times
// in a file, and language and units stand still while it is decoded.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text/TextArena.h"

namespace zg {

class ValueTexts {
 public:
  // Texts are kept in `arena`, which is not owned.
  explicit ValueTexts(TextArena& arena) noexcept : arena_(arena) {}

  // The text of `value` by `rule` (any number that tells rules apart), made by `make()` the first
  // time that the pair is met. `make` returns something that a string_view can be taken of.
  template <typename Make>
  std::string_view Get(std::uint32_t rule, std::uint32_t value, Make make) {
    const std::uint64_t key = ((std::uint64_t{rule} + 1) << 32U) | value;
    Slot* slot = Find(key);
    if (slot->key == key) return slot->text;
    const std::string_view text = arena_.Copy(make());
    if (2 * ++count_ > slots_.size()) {
      Grow();
      slot = Find(key);
    }
    *slot = {key, text};
    return text;
  }

  // Forgets all; to be called when the arena is cleared.
  void Clear() noexcept;

  std::size_t Count() const noexcept { return count_; }
  std::size_t Capacity() const noexcept { return slots_.size() * sizeof(Slot); }

 private:
  struct Slot {
    std::uint64_t key = 0;  // 0 is free
    std::string_view text;
  };
  static constexpr std::size_t FirstSize = 1024;  // a power of 2

  Slot* Find(std::uint64_t key) noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = static_cast<std::size_t>((key * 0x9E3779B97F4A7C15U) >> 32U) & mask;
    while (slots_[at].key != 0 && slots_[at].key != key) at = (at + 1) & mask;
    return &slots_[at];
  }
  void Grow();

  TextArena& arena_;
  std::vector<Slot> slots_ = std::vector<Slot>(FirstSize);
  std::size_t count_ = 0;
};

}  // namespace zg
