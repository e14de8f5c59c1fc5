#include "text/TextArena.h"

#include <algorithm>
#include <cstring>

#include "text/MemoryHints.h"
#include "text/Windows1252.h"

namespace zg {
namespace {
constexpr std::size_t FirstChunkSize = 16 * 1024;
constexpr std::size_t LargestChunkSize = std::size_t{8} * 1024 * 1024;
}  // namespace

std::string_view TextArena::Copy(std::string_view text) {
  if (text.empty()) return {};
  char* memory = static_cast<char*>(Allocate(text.size(), 1));
  std::memcpy(memory, text.data(), text.size());
  return {memory, text.size()};
}

std::string_view TextArena::CopyWindows1252(std::string_view bytes) {
  return IsAscii(bytes) ? Copy(bytes) : Copy(Windows1252ToUtf8(bytes));
}

void TextArena::Clear() noexcept {
  chunk_ = 0;
  used_ = 0;
}

void TextArena::PrefetchNext(std::size_t size) const noexcept {
  if (chunk_ >= chunks_.size()) return;
  const std::size_t rest = chunks_[chunk_].size - used_;
  PrefetchForWriting(chunks_[chunk_].memory.get() + used_, std::min(size, rest));
}

std::size_t TextArena::Capacity() const noexcept {
  std::size_t total = 0;
  for (const Chunk& chunk : chunks_) total += chunk.size;
  return total;
}

void* TextArena::Allocate(std::size_t size, std::size_t alignment) {
  while (chunk_ < chunks_.size()) {
    const std::size_t start = (used_ + alignment - 1) & ~(alignment - 1);
    if (start <= chunks_[chunk_].size && size <= chunks_[chunk_].size - start) {
      used_ = start + size;
      return chunks_[chunk_].memory.get() + start;
    }
    ++chunk_;
    used_ = 0;
  }
  const std::size_t doubled =
      chunks_.empty() ? FirstChunkSize : std::min(chunks_.back().size * 2, LargestChunkSize);
  const std::size_t chunkSize = std::max(doubled, size);
  chunks_.push_back({std::make_unique_for_overwrite<std::byte[]>(chunkSize), chunkSize});
  AdviseLargePages(chunks_.back().memory.get(), chunkSize);
  used_ = size;
  return chunks_.back().memory.get();
}

}  // namespace zg
