// The words of a METAR and of a TAF, behind a station and its times.
#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string words(reinterpret_cast<const char*>(data), size);
  zg::fuzz::SharedFuzzDecoder().DecodeTyped("METAR LIRF 151250Z " + words);
  zg::fuzz::SharedFuzzDecoder().DecodeTyped("TAF LIRF 151100Z 151212 " + words);
  return 0;
}
