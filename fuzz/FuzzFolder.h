// What a fuzz target needs on the disk, in a folder of its process alone.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "stations/DBUtility.h"

namespace zg::fuzz {

// Tells the reason and ends the fuzzer as a crash: a target that has lost its surroundings, and a
// result that may not be, have to be seen.
[[noreturn]] void Die(std::string_view reason);

// A folder among the temporary files, which goes with the object.
class FuzzFolder {
 public:
  FuzzFolder();
  FuzzFolder(const FuzzFolder&) = delete;
  FuzzFolder& operator=(const FuzzFolder&) = delete;
  ~FuzzFolder();

  const std::string& Path() const noexcept { return path_; }  // ends in "/"

  // Writes a file and returns its path.
  std::string Write(std::string_view name, const std::uint8_t* data, std::size_t size) const;

  // Copies the database that the build has made and opens the copy, whose station table it empties.
  void OpenDatabase(DBUtility& database) const;

 private:
  std::string path_;
};

}  // namespace zg::fuzz
