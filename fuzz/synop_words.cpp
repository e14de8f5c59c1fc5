// The groups of a SYNOP message, behind the header of a ship and behind that of a land station.
#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string words(reinterpret_cast<const char*>(data), size);
  zg::fuzz::SharedFuzzDecoder().DecodeTyped("BBXX IBCD 15124 99402 10123 " + words);
  zg::fuzz::SharedFuzzDecoder().DecodeTyped("AAXX 15124 16242 " + words);
  return 0;
}
