// The words of a METAR, behind a station and a time.
#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string words(reinterpret_cast<const char*>(data), size);
  zg::SharedFuzzDecoder().DecodeTyped("METAR LIRF 151250Z " + words);
  zg::SharedFuzzDecoder().DecodeTyped("TAF LIRF 151100Z 151212 " + words);
  return 0;
}
