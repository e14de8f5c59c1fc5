#include "batch/OutputStream.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace zg {
namespace {
constexpr std::size_t FullBuffer = std::size_t{64} * 1024;
}

OutputStream::OutputStream(const std::string& path) {
  buffer_.reserve(2 * FullBuffer);
  if (path.empty()) return;
  file_ = std::make_unique<AtomicFile>(path);
  error_ = file_->Error();
}

bool OutputStream::FlushIfFull() { return buffer_.size() < FullBuffer ? error_.empty() : Flush(); }

bool OutputStream::Finish() {
  Flush();
  if (file_ && error_.empty() && !file_->Commit()) error_ = file_->Error();
  return error_.empty();
}

bool OutputStream::Flush() {
  if (file_) {
    if (error_.empty() && !file_->Write(buffer_)) error_ = file_->Error();
  } else {
    std::string_view rest = buffer_;
    while (error_.empty() && !rest.empty()) {
      const ssize_t written = write(STDOUT_FILENO, rest.data(), rest.size());
      if (written >= 0) {
        rest.remove_prefix(static_cast<std::size_t>(written));
      } else if (errno != EINTR) {
        error_ = "standard output: " + std::generic_category().message(errno);
      }
    }
  }
  buffer_.clear();
  return error_.empty();
}

}  // namespace zg
