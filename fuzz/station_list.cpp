// A station list read into an empty table.
#include <unistd.h>

#include <cstdio>

#include "FuzzDecoder.h"
#include "stations/StationImport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static zg::NullPrompt prompt;
  static zg::NullLog log;
  static zg::NullProgress progress;
  static zg::DBUtility database(prompt);
  static const std::string list = "/tmp/zephyrgram_fuzz_" + std::to_string(getpid()) + ".txt";
  if (!database.IsConnected() && !database.ConnectDatabase("ICAOData.mdb")) return 0;
  std::FILE* file = std::fopen(list.c_str(), "wb");
  if (file == nullptr) return 0;
  std::fwrite(data, 1, size, file);
  std::fclose(file);
  database.Query("begin");
  zg::ImportStationList(list, database, log, progress);
  database.Query("rollback");
  return 0;
}
