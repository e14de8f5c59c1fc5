// Where the benchmarks run: an application directory of their own with the files as shipped, in the
// folder for temporary files. Nothing of the build tree or of a user is changed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shell/Platform.h"
#include "stations/DBUtility.h"
#include "stations/StationDirectory.h"
#include "stations/StationImport.h"

namespace zg::bench {

// Nobody listens: what is measured is the core alone.
class NullLog : public LogList {
 protected:
  void Write(std::string_view) override {}
};

class NullPrompt : public Prompt {
 public:
  void Show(Icon, std::string_view) override {}
};

class NullProgress : public Progress {
 public:
  void Begin(std::int64_t) override {}
  void Advance(std::int64_t) override {}
  void Yield() override {}
};

class NullClock : public Clock {
 public:
  std::int64_t TickCount() override { return 0; }
};

class WorkFolder {
 public:
  // Copies the settings, the station lists and the database, whose station table it empties.
  // A failure shows in Error.
  WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  // Removes the folder with everything in it.
  ~WorkFolder();

  const std::string& Path() const noexcept { return path_; }  // ends in "/"
  const std::string& Error() const noexcept { return error_; }

  // A database with an empty station table, new at each call; the one before is gone.
  std::string MakeEmptyDatabase() const;
  // Fills the station table of such a database from the station lists.
  StationBuild BuildStations(DBUtility& database) const;
  // The stations of all lists, built and loaded.
  StationDirectory LoadStations() const;

 private:
  std::string path_;
  std::string error_;
};

}  // namespace zg::bench
