// A parameter file: reading every key that the decoder reads, and writing one.
#include <unistd.h>

#include <cstdio>
#include <filesystem>

#include "FuzzDecoder.h"
#include "decode/MessageFilters.h"
#include "tables/ReportUnits.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static zg::NullPrompt prompt;
  static const std::string folder = "/tmp/zephyrgram_fuzz_" + std::to_string(getpid()) + "/";
  std::filesystem::create_directories(folder);
  std::FILE* file = std::fopen((folder + "zephyrgram.ini").c_str(), "wb");
  if (file == nullptr) return 0;
  std::fwrite(data, 1, size, file);
  std::fclose(file);
  zg::TextUtility texts;
  const zg::GenericUtility parameters(folder, prompt, texts);
  zg::ReadLanguageAndUnits(parameters, texts);
  zg::ReadMessageFilters(parameters);
  parameters.SetParameter("URL", "1");
  const std::string hidden = zg::Encript2(std::string(reinterpret_cast<const char*>(data), size));
  zg::Decript2(hidden);
  return 0;
}
