// Writing a file so that it is either old or new, never half of each: the bytes go into a temporary
// file in the same folder, and Commit puts it in place of the target once all of it is on the disk.
// Everything that the program writes for a user goes through here.
//
// A target that exists and is no regular file (a device, a pipe) cannot be replaced; it is opened
// and written as it is. A symbolic link to a file is replaced, its file stays.
#pragma once

#include <string>
#include <string_view>

namespace zg {

class AtomicFile {
 public:
  // Opens the temporary. `mode` are the permissions of the finished file, less the process's mask:
  // 0600 for a file that holds passwords. A failure shows in Error and makes every further call
  // fail.
  explicit AtomicFile(std::string path, unsigned mode = 0644);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  // Without a Commit that succeeded the temporary is removed and the target stays as it was.
  ~AtomicFile();

  // Appends the bytes. They are buffered: a full disk may show only at a later call.
  bool Write(std::string_view bytes);

  // Writes the rest, forces it onto the disk and moves the file to its name. True only if every
  // step worked; may be called once.
  [[nodiscard]] bool Commit();

  // The path and what went wrong with it, in English; empty as long as nothing has.
  const std::string& Error() const noexcept { return error_; }

 private:
  void Fail(std::string_view what);
  void Close() noexcept;
  bool Flush();
  bool SyncFolder();

  std::string path_;
  std::string temporary_;  // empty when the target itself is open, and after the rename
  std::string buffer_;
  std::string error_;
  int descriptor_ = -1;
};

}  // namespace zg
