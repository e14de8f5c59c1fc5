#include "shell/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace zg {
namespace {

constexpr std::size_t BufferSize = 64 * 1024;
constexpr int MaxNames = 1000;  // tries for a temporary name that is free

// The folder of a path, with its "/"; "./" for a bare name.
std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

std::string ErrorText(int number) { return std::generic_category().message(number); }

// Sockets, pipes and some devices cannot be synced; that is no failure.
bool SyncDescriptor(int descriptor) noexcept {
  return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool WriteFully(int descriptor, std::string_view bytes) noexcept {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

AtomicFile::AtomicFile(std::string path, unsigned mode) : path_(std::move(path)) {
  // stat looks through a link: one to a device is written through, one to a file is replaced.
  struct stat status {};
  const bool exists = stat(path_.c_str(), &status) == 0;
  if (exists && S_ISDIR(status.st_mode)) {
    Fail(ErrorText(EISDIR));
    return;
  }
  if (exists && !S_ISREG(status.st_mode)) {
    descriptor_ = open(path_.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
  } else {
    // Short names of their own, so that a long file name leaves room for them.
    const std::string stem = FolderOf(path_) + ".zg-" + std::to_string(getpid()) + "-";
    for (int i = 0; i < MaxNames && descriptor_ < 0; ++i) {
      temporary_ = stem + std::to_string(i) + ".tmp";
      descriptor_ = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                         static_cast<mode_t>(mode));
      if (descriptor_ < 0 && errno != EEXIST) break;
    }
    if (descriptor_ < 0) temporary_.clear();
  }
  if (descriptor_ < 0) {
    Fail(ErrorText(errno));
    return;
  }
  buffer_.reserve(BufferSize);
}

AtomicFile::~AtomicFile() { Close(); }

void AtomicFile::Fail(std::string_view what) {
  if (error_.empty()) error_.append(path_).append(": ").append(what);
  Close();
}

void AtomicFile::Close() noexcept {
  if (descriptor_ >= 0) close(descriptor_);
  descriptor_ = -1;
  if (!temporary_.empty()) unlink(temporary_.c_str());
  temporary_.clear();
}

bool AtomicFile::Flush() {
  if (!WriteFully(descriptor_, buffer_)) {
    Fail(ErrorText(errno));
    return false;
  }
  buffer_.clear();
  return true;
}

bool AtomicFile::Write(std::string_view bytes) {
  if (descriptor_ < 0) return false;
  if (buffer_.size() + bytes.size() < BufferSize) {
    buffer_ += bytes;
    return true;
  }
  if (!Flush()) return false;
  if (bytes.size() < BufferSize) {
    buffer_ += bytes;
  } else if (!WriteFully(descriptor_, bytes)) {
    Fail(ErrorText(errno));
    return false;
  }
  return true;
}

bool AtomicFile::SyncFolder() {
  const int folder = open(FolderOf(path_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) {
    Fail(ErrorText(errno));
    return false;
  }
  const bool synced = SyncDescriptor(folder);
  if (!synced) Fail(ErrorText(errno));
  close(folder);
  return synced;
}

bool AtomicFile::Commit() {
  if (descriptor_ < 0) {
    if (error_.empty()) Fail("already closed");
    return false;
  }
  if (!Flush()) return false;
  if (!SyncDescriptor(descriptor_)) {
    Fail(ErrorText(errno));
    return false;
  }
  // The descriptor is gone after close, whatever it returns.
  if (close(std::exchange(descriptor_, -1)) != 0) {
    Fail(ErrorText(errno));
    return false;
  }
  if (temporary_.empty()) return true;
  if (rename(temporary_.c_str(), path_.c_str()) != 0) {
    Fail(ErrorText(errno));
    return false;
  }
  temporary_.clear();
  return SyncFolder();
}

}  // namespace zg
