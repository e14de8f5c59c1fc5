#include "WorkFolder.h"

#include <stdlib.h>

#include <filesystem>
#include <system_error>

#include "shell/GenericUtility.h"
#include "tables/TextUtility.h"

namespace zg::bench {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view EmptyDatabase = "Empty.mdb";
constexpr std::string_view Database = "ICAOData.mdb";

}  // namespace

WorkFolder::WorkFolder() {
  std::string pattern = (fs::temp_directory_path() / "zgbench-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    error_ = "no temporary folder";
    return;
  }
  path_ = pattern + "/";
  std::error_code failure;
  for (const std::string_view name :
       {std::string_view("zephyrgram.ini"), std::string_view("zephyrgram.def"),
        std::string_view("wmo_index.txt"), std::string_view("icao_index.txt")}) {
    if (!failure)
      fs::copy_file(std::string(ZG_SOURCE_DIR "/data/").append(name),
                    std::string(path_).append(name), failure);
  }
  const std::string empty = std::string(path_).append(EmptyDatabase);
  if (!failure) {
    fs::copy_file(std::string(ZG_BINARY_DIR "/").append(Database), empty, failure);
  }
  if (failure) {
    error_ = "the application files cannot be copied: " + failure.message();
    return;
  }
  // The program may have been started in the build tree and have filled the table.
  NullPrompt prompt;
  DBUtility database(prompt);
  if (!database.ConnectDatabase(empty) || !database.Query("delete from MeteoStations")) {
    error_ = "the station table cannot be emptied: " + database.Error();
  }
}

WorkFolder::~WorkFolder() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove_all(path_, ignored);
}

std::string WorkFolder::MakeEmptyDatabase() const {
  const std::string copy = std::string(path_).append(Database);
  std::error_code failure;
  for (const std::string_view side : {"-wal", "-shm", "-journal"}) {
    fs::remove(std::string(copy).append(side), failure);
  }
  fs::copy_file(std::string(path_).append(EmptyDatabase), copy,
                fs::copy_options::overwrite_existing, failure);
  return copy;
}

StationBuild WorkFolder::BuildStations(DBUtility& database) const {
  NullPrompt prompt;
  NullLog log;
  NullProgress progress;
  const TextUtility texts;
  const GenericUtility parameters(path_, prompt, texts);
  return BuildStationTable(parameters, database, texts, log, progress, prompt);
}

StationDirectory WorkFolder::LoadStations() const {
  NullPrompt prompt;
  DBUtility database(prompt);
  StationDirectory stations;
  if (database.ConnectDatabase(MakeEmptyDatabase()) &&
      BuildStations(database).Outcome == StationBuild::Result::Built) {
    stations.Load(database);
  }
  return stations;
}

}  // namespace zg::bench
