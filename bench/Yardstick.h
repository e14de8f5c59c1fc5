// What a decoder cannot do without, and nothing else: the measure that its speed is set against.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zg::bench {

class Yardstick {
 public:
  struct Count {
    std::size_t Lines = 0;
    std::size_t Words = 0;
    std::size_t Letters = 0;  // in all words
  };

  // Goes through a file line by line: copies each line in upper case into one buffer and cuts it
  // into words at its blanks. Takes no memory once the buffer has the length of the longest line.
  Count CountWords(std::string_view bytes);

 private:
  std::string line_;
};

}  // namespace zg::bench
