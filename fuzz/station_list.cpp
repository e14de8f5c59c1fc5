// A station list read into an empty table, and the directory made from it.
#include "FuzzFolder.h"
#include "shell/NullPlatform.h"
#include "stations/StationDirectory.h"
#include "stations/StationImport.h"

namespace {

struct Target {
  zg::test::NullPrompt prompt;
  zg::test::NullLog log;
  zg::test::NullProgress progress;
  zg::fuzz::FuzzFolder folder;
  zg::DBUtility database{prompt};

  Target() { folder.OpenDatabase(database); }

  void Import(const std::string& list) {
    database.Query("begin");
    const zg::StationImport import = zg::ImportStationList(list, database, log, progress);
    zg::StationDirectory stations;
    if (!stations.Load(database)) zg::fuzz::Die("the table cannot be read: " + database.Error());
    if (stations.Size() != static_cast<std::size_t>(import.Rows)) zg::fuzz::Die("rows are lost");
    database.Query("rollback");
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Target target;
  target.Import(target.folder.Write("list.txt", data, size));
  return 0;
}
