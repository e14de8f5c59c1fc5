// A bulletin file through the whole pipeline.
#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zg::fuzz::SharedFuzzDecoder().DecodeFile(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
