#include "FuzzFolder.h"

#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace zg::fuzz {
namespace {

namespace fs = std::filesystem;

}  // namespace

void Die(std::string_view reason) {
  std::fprintf(stderr, "fuzz: %.*s\n", static_cast<int>(reason.size()), reason.data());
  std::abort();
}

FuzzFolder::FuzzFolder() {
  std::string pattern = (fs::temp_directory_path() / "zgfuzz-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) Die("no temporary folder");
  path_ = pattern + "/";
}

FuzzFolder::~FuzzFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string FuzzFolder::Write(std::string_view name, const std::uint8_t* data,
                              std::size_t size) const {
  const std::string path = std::string(path_).append(name);
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  file.close();
  if (!file) Die(path + " cannot be written");
  return path;
}

void FuzzFolder::OpenDatabase(DBUtility& database) const {
  const std::string copy = path_ + "ICAOData.mdb";
  std::error_code failure;
  fs::copy_file(ZG_BINARY_DIR "/ICAOData.mdb", copy, failure);
  if (failure) Die("the database of the build cannot be copied: " + failure.message());
  // Nothing has to outlive the process, so nothing has to reach the disk.
  if (!database.ConnectDatabase(copy) || !database.Query("pragma synchronous = off") ||
      !database.Query("delete from MeteoStations")) {
    Die("the database cannot be used: " + database.Error());
  }
}

}  // namespace zg::fuzz
