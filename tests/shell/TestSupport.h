// What tests of files and messages share: a folder of their own, and implementations of the core's
// interfaces that keep what they are told.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "shell/Platform.h"

namespace zg::test {

// A fresh folder, removed with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zgtest-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) ADD_FAILURE() << "no temporary folder";
    path_ = pattern + "/";
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  // Ends in "/".
  const std::string& Path() const { return path_; }
  std::string operator/(std::string_view name) const { return std::string(path_).append(name); }

  // Names of all entries, sorted.
  std::vector<std::string> Entries() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::string path_;
};

inline void WriteTestFile(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), std::ssize(bytes));
}

inline std::string ReadTestFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Permission bits of a file, 0 if there is none.
inline unsigned ModeOf(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777u : 0;
}

struct RecordingPrompt : Prompt {
  struct Box {
    Icon icon;
    std::string text;
  };
  std::vector<Box> Boxes;
  void Show(Icon icon, std::string_view text) override {
    Boxes.push_back({icon, std::string(text)});
  }
};

struct RecordingLog : LogList {
  std::vector<std::string> Lines;
  int Refreshes = 0;
  void Refresh() override { ++Refreshes; }

 protected:
  void Write(std::string_view text) override { Lines.emplace_back(text); }
};

struct RecordingProgress : Progress {
  std::int64_t Maximum = -1;
  std::vector<std::int64_t> Positions;
  int Yields = 0;
  void Begin(std::int64_t maximum) override { Maximum = maximum; }
  void Advance(std::int64_t position) override { Positions.push_back(position); }
  void Yield() override { ++Yields; }
};

}  // namespace zg::test
