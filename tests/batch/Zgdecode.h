// What tests of the whole program share: running zgdecode as a process of its own, and an
// application directory with the shipped settings and a few stations.
#pragma once

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "shell/TestSupport.h"
#include "stations/TestDatabase.h"

namespace zg::test {

struct ProgramRun {
  int Status = -1;     // exit status; -1 if a signal has ended the program
  std::string Output;  // standard output
  std::string Errors;  // standard error
};

inline std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

// Runs zgdecode in `workingFolder` with `input` as its standard input.
inline ProgramRun RunZgdecode(std::vector<std::string> arguments, std::string_view input = {},
                              const std::string& workingFolder = "/") {
  const TemporaryFolder folder;
  WriteTestFile(folder / "in", input);
  const std::string paths[] = {folder / "in", folder / "out", folder / "err"};
  std::string program = std::string(ZG_BINARY_DIR) + "/zgdecode";
  std::vector<char*> pointers = {program.data()};
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);

  const pid_t child = fork();
  if (child == 0) {
    for (int stream = 0; stream < 3; ++stream) {
      const int flags = stream == 0 ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC;
      if (dup2(open(paths[stream].c_str(), flags, 0600), stream) != stream) _exit(126);
    }
    if (chdir(workingFolder.c_str()) == 0) execv(program.c_str(), pointers.data());
    _exit(127);
  }
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) {
    ADD_FAILURE() << "zgdecode was not started";
    return {};
  }
  return {.Status = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
          .Output = ReadTestFile(paths[1]),
          .Errors = ReadTestFile(paths[2])};
}

// An application directory: the shipped settings, behind the lines that a test wants to be in
// force, station lists, and the shipped database, still empty.
class ApplicationFolder {
 public:
  enum class Lists {
    Short,    // forty stations, of tests/golden/app
    Shipped,  // the world
  };

  explicit ApplicationFolder(const std::string& settings = "", Lists lists = Lists::Short) {
    const std::string source = ZG_SOURCE_DIR;
    const std::string listFolder =
        source + (lists == Lists::Short ? "/tests/golden/app/" : "/data/");
    // Of two lines with the same key the first is in force.
    WriteTestFile(folder_ / "zephyrgram.ini",
                  settings + ReadTestFile(source + "/data/zephyrgram.ini"));
    for (const char* list : {"wmo_index.txt", "icao_index.txt"}) {
      WriteTestFile(folder_ / list, ReadTestFile(listFolder + list));
    }
    MakeDatabase(Database(), ShipCountryRows(source + "/data/ship_country.csv"));
  }

  const std::string& Path() const { return folder_.Path(); }
  std::string operator/(std::string_view name) const { return folder_ / name; }
  std::string Database() const { return folder_ / "ICAOData.mdb"; }

  // Lets the program build its station table, so that no later run logs that it does.
  void BuildStations() const { RunZgdecode({"--app", Path(), "/dev/null"}); }

 private:
  static std::string ShipCountryRows(const std::string& path) {
    std::string rows;
    for (const std::string& line : SplitLines(ReadTestFile(path))) {
      if (line.starts_with("StartIndex")) continue;
      const std::size_t comma = line.find(',');
      std::string country = line.substr(comma + 1);
      country.erase(std::remove(country.begin(), country.end(), '"'), country.end());
      std::string quoted;
      for (const char c : country) quoted.append(c == '\'' ? 2 : 1, c);
      rows += "insert into ShipCountry values (" + line.substr(0, comma) + ", '" + quoted + "');";
    }
    return rows;
  }

  TemporaryFolder folder_;
};

}  // namespace zg::test
