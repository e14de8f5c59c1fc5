// Memory for the texts of a store: handed out from large chunks, never given back one by one, and
// freed or reused as a whole. A view into an arena stays valid until Clear or the end of the arena.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

namespace zg {

class TextArena {
 public:
  TextArena() = default;
  TextArena(TextArena&&) noexcept = default;
  TextArena& operator=(TextArena&&) noexcept = default;

  // A copy of the text, which the arena owns. An empty text takes no memory.
  std::string_view Copy(std::string_view text);

  // The text in UTF-8, given as Windows-1252. Plain copying where it is ASCII.
  std::string_view CopyWindows1252(std::string_view bytes);

  // `count` objects set up by their default member initialisers. They are never destroyed.
  template <typename T>
  T* Make(std::size_t count) {
    static_assert(std::is_trivially_destructible_v<T>);
    void* memory = Allocate(count * sizeof(T), alignof(T));
    T* objects = static_cast<T*>(memory);
    std::uninitialized_value_construct_n(objects, count);
    return objects;
  }

  // Forgets everything handed out. The chunks are kept for the next round.
  void Clear() noexcept;

  // Has the memory that is handed out next brought near.
  void PrefetchNext(std::size_t size) const noexcept;

  // Bytes taken from the system.
  std::size_t Capacity() const noexcept;

 private:
  struct Chunk {
    std::unique_ptr<std::byte[]> memory;
    std::size_t size;
  };

  void* Allocate(std::size_t size, std::size_t alignment);

  std::vector<Chunk> chunks_;
  std::size_t chunk_ = 0;  // the chunk in use
  std::size_t used_ = 0;   // bytes of it handed out
};

}  // namespace zg
