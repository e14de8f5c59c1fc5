#include "AllocationCounter.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::uint64_t> allocations{0};

void* Allocate(std::size_t size, std::size_t alignment) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  size = std::max<std::size_t>(size, 1);
  // aligned_alloc wants a multiple of the alignment.
  void* memory =
      alignment <= alignof(std::max_align_t)
          ? std::malloc(size)
          : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

// The array and nothrow forms of the library call these.
void* operator new(std::size_t size) { return Allocate(size, 0); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return Allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }

namespace zg::bench {

std::uint64_t AllocationCount() noexcept { return allocations.load(std::memory_order_relaxed); }

}  // namespace zg::bench
