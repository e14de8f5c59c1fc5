// A parameter file: reading every key that the decoder reads, and writing one.
#include "FuzzFolder.h"
#include "decode/MessageFilters.h"
#include "shell/NullPlatform.h"
#include "tables/ReportUnits.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static zg::test::NullPrompt prompt;
  static const zg::fuzz::FuzzFolder folder;
  folder.Write("zephyrgram.ini", data, size);
  zg::TextUtility texts;
  const zg::GenericUtility parameters(folder.Path(), prompt, texts);
  zg::ReadLanguageAndUnits(parameters, texts);
  zg::ReadMessageFilters(parameters);
  parameters.SetParameter("URL", "1");

  // Bytes of at least 32 come back from the scrambling as they were.
  std::string text(reinterpret_cast<const char*>(data), size);
  zg::Decript2(text);
  std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < 32; });
  if (zg::Decript2(zg::Encript2(text)) != text) zg::fuzz::Die("a password is lost");
  return 0;
}
