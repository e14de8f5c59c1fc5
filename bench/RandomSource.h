// Random numbers that are the same on every machine: the engine is fixed by the C++ standard, its
// distributions are not, so the few that are needed stand here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>

namespace zg::bench {

class RandomSource {
 public:
  explicit RandomSource(std::uint64_t seed) : engine_(seed) {}

  // A whole number from low to high, both included. The bias of the remainder does not matter here.
  int Between(int low, int high) {
    const auto span = static_cast<std::uint64_t>(high - low + 1);
    return low + static_cast<int>(engine_() % span);
  }
  bool Chance(int percent) { return Between(1, 100) <= percent; }

  template <typename Table>
  const auto& Pick(const Table& table) {
    return table[engine_() % std::size(table)];
  }

  template <typename List>
  void Shuffle(List& list) {
    for (std::size_t left = list.size(); left > 1; --left) {
      std::swap(list[left - 1], list[engine_() % left]);
    }
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace zg::bench
