// What a decoder cannot do without, and nothing else: the measure that its speed is set against.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zg::bench {

class Yardstick {
 public:
  struct Count {
    std::size_t Lines = 0;
    std::size_t Words = 0;
  };

  // Goes through a file character by character: copies each line in upper case into one buffer and
  // splits it at its blanks into a list of its words, which holds until the next line. Takes no
  // memory once the buffer and the list have the length of the longest line.
  Count SplitLines(std::string_view bytes);

 private:
  std::string line_;                                        // without its blanks
  std::vector<std::pair<std::size_t, std::size_t>> words_;  // place and length
};

}  // namespace zg::bench
