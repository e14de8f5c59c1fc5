// Where zgdecode writes its records: standard output, or a file that appears whole or not at all.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "shell/AtomicFile.h"

namespace zg {

class OutputStream {
 public:
  // An empty path is standard output.
  explicit OutputStream(const std::string& path);

  // The text to append to; call FlushIfFull now and then.
  std::string& Buffer() noexcept { return buffer_; }

  // Writes what is in the buffer if it is much. False once anything could not be written.
  bool FlushIfFull();
  // Writes the rest and completes the file. True if all of it is written.
  bool Finish();

  const std::string& Error() const noexcept { return error_; }

 private:
  bool Flush();

  std::unique_ptr<AtomicFile> file_;  // none: standard output
  std::string buffer_;
  std::string error_;
};

}  // namespace zg
