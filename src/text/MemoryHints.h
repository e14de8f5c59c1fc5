// Hints to the processor and the kernel about large memory that is filled from one end to the
// other. They change nothing but speed, and do nothing where the platform has no such thing.
#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <cstdint>

namespace zg {

inline constexpr std::size_t CacheLine = 64;

// Has `size` bytes from `memory` on brought near, to be written soon.
inline void PrefetchForWriting(const void* memory, std::size_t size) noexcept {
  const char* at = static_cast<const char*>(memory);
  for (std::size_t done = 0; done < size; done += CacheLine) __builtin_prefetch(at + done, 1);
}

// The same to be read.
inline void PrefetchForReading(const void* memory, std::size_t size = 1) noexcept {
  const char* at = static_cast<const char*>(memory);
  for (std::size_t done = 0; done < size; done += CacheLine) __builtin_prefetch(at + done, 0);
}

// Asks for large pages: a walk through many megabytes then needs few entries of the page table.
inline void AdviseLargePages(void* memory, std::size_t size) noexcept {
#ifdef MADV_HUGEPAGE
  constexpr std::size_t page = std::size_t{2} * 1024 * 1024;
  const std::size_t skipped = (page - reinterpret_cast<std::uintptr_t>(memory) % page) % page;
  if (size < skipped + page) return;
  madvise(static_cast<char*>(memory) + skipped, (size - skipped) / page * page, MADV_HUGEPAGE);
#else
  static_cast<void>(memory);
  static_cast<void>(size);
#endif
}

}  // namespace zg
