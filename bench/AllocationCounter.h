// Counts what the program takes from the heap. Linking AllocationCounter.cpp puts the global
// operator new of the whole executable in place of the library's.
#pragma once

#include <cstdint>

namespace zg::bench {

// Calls of operator new since the start of the program, by any thread and in every form.
std::uint64_t AllocationCount() noexcept;

}  // namespace zg::bench
