#include "shell/AtomicFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

#include "shell/TestSupport.h"

namespace zg {
namespace {

using test::ModeOf;
using test::ReadTestFile;
using test::TemporaryFolder;
using test::WriteTestFile;

using Names = std::vector<std::string>;

// Lets files of this process grow to a number of bytes only, as a full disk would.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = signal(SIGXFSZ, SIG_IGN);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  sighandler_t handler_ = SIG_DFL;
};

TEST(AtomicFile, WritesAllSizes) {
  // Around the size of the buffer, in one piece and in small ones.
  for (const std::size_t size : {0u, 1u, 65535u, 65536u, 65537u, 200000u}) {
    for (const std::size_t piece : {7u, 65536u, 300000u}) {
      SCOPED_TRACE(std::to_string(size) + " in pieces of " + std::to_string(piece));
      const TemporaryFolder folder;
      std::string content(size, 'x');
      for (std::size_t i = 0; i < size; ++i) content[i] = static_cast<char>('a' + i % 23);
      AtomicFile file(folder / "out.txt");
      for (std::size_t at = 0; at < size; at += piece) {
        EXPECT_TRUE(file.Write(std::string_view(content).substr(at, piece)));
      }
      EXPECT_TRUE(file.Commit());
      EXPECT_EQ(file.Error(), "");
      EXPECT_EQ(ReadTestFile(folder / "out.txt"), content);
      EXPECT_EQ(folder.Entries(), Names{"out.txt"});
    }
  }
}

TEST(AtomicFile, TargetIsOldUntilCommit) {
  const TemporaryFolder folder;
  WriteTestFile(folder / "out.txt", "old");
  AtomicFile file(folder / "out.txt");
  file.Write("new");
  EXPECT_EQ(ReadTestFile(folder / "out.txt"), "old");
  EXPECT_TRUE(file.Commit());
  EXPECT_EQ(ReadTestFile(folder / "out.txt"), "new");
}

TEST(AtomicFile, WithoutCommitNothingStays) {
  const TemporaryFolder folder;
  WriteTestFile(folder / "out.txt", "old");
  {
    AtomicFile file(folder / "out.txt");
    file.Write(std::string(100000, 'x'));
  }
  EXPECT_EQ(ReadTestFile(folder / "out.txt"), "old");
  EXPECT_EQ(folder.Entries(), Names{"out.txt"});
}

TEST(AtomicFile, SecondCommitFails) {
  const TemporaryFolder folder;
  AtomicFile file(folder / "out.txt");
  file.Write("text");
  EXPECT_TRUE(file.Commit());
  EXPECT_FALSE(file.Write("more"));
  EXPECT_FALSE(file.Commit());
  EXPECT_EQ(ReadTestFile(folder / "out.txt"), "text");
}

TEST(AtomicFile, Mode) {
  const mode_t mask = umask(022);
  const TemporaryFolder folder;
  for (const unsigned mode : {0600u, 0644u}) {
    const std::string path = folder / "out.txt";
    WriteTestFile(path, "old");
    chmod(path.c_str(), 0666);
    AtomicFile file(path, mode);
    EXPECT_TRUE(file.Commit());
    EXPECT_EQ(ModeOf(path), mode);
  }
  umask(mask);
}

TEST(AtomicFile, LongestName) {
  const TemporaryFolder folder;
  const std::string name(255, 'n');
  AtomicFile file(folder / name);
  file.Write("text");
  EXPECT_TRUE(file.Commit()) << file.Error();
  EXPECT_EQ(ReadTestFile(folder / name), "text");
}

TEST(AtomicFile, StaleTemporaryIsNoHindrance) {
  const TemporaryFolder folder;
  const std::string stale = ".zg-" + std::to_string(getpid()) + "-0.tmp";
  WriteTestFile(folder / stale, "stale");
  AtomicFile file(folder / "out.txt");
  file.Write("text");
  EXPECT_TRUE(file.Commit());
  EXPECT_EQ(ReadTestFile(folder / "out.txt"), "text");
  EXPECT_EQ(ReadTestFile(folder / stale), "stale");
}

TEST(AtomicFile, LinkToAFileIsReplaced) {
  const TemporaryFolder folder;
  WriteTestFile(folder / "file", "untouched");
  std::filesystem::create_symlink(folder / "file", folder / "link");
  AtomicFile file(folder / "link");
  file.Write("new");
  EXPECT_TRUE(file.Commit());
  EXPECT_EQ(ReadTestFile(folder / "file"), "untouched");
  EXPECT_FALSE(std::filesystem::is_symlink(folder / "link"));
  EXPECT_EQ(ReadTestFile(folder / "link"), "new");
}

TEST(AtomicFile, CannotBegin) {
  const TemporaryFolder folder;
  struct Row {
    const char* name;
    std::string path;
    const char* error;
  };
  const Row rows[] = {
      {"no folder", folder / "none/out.txt", ": No such file or directory"},
      {"a folder", folder.Path(), ": Is a directory"},
      {"a file as folder", folder / "file/out.txt", ": Not a directory"},
  };
  WriteTestFile(folder / "file", "");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    AtomicFile file(row.path);
    EXPECT_EQ(file.Error(), row.path + row.error);
    EXPECT_FALSE(file.Write("text"));
    EXPECT_FALSE(file.Commit());
  }
  EXPECT_EQ(folder.Entries(), Names{"file"});
}

TEST(AtomicFile, FullDiskKeepsTheOldFile) {
  constexpr std::size_t Limit = 4096;
  // Beyond the limit by one, within the buffer, and in a direct write.
  for (const std::size_t size : {Limit + 1, std::size_t{20000}, std::size_t{200000}}) {
    SCOPED_TRACE(size);
    const TemporaryFolder folder;
    WriteTestFile(folder / "out.txt", "old");
    bool committed = true;
    std::string error;
    {
      const FileSizeLimit limit(Limit);
      AtomicFile file(folder / "out.txt");
      file.Write(std::string(size, 'x'));
      committed = file.Commit();
      error = file.Error();
    }
    EXPECT_FALSE(committed);
    EXPECT_EQ(error, folder / "out.txt" + ": File too large");
    EXPECT_EQ(ReadTestFile(folder / "out.txt"), "old");
    EXPECT_EQ(folder.Entries(), Names{"out.txt"});
  }
}

TEST(AtomicFile, FullDevice) {
  AtomicFile file("/dev/full");
  EXPECT_TRUE(file.Write("text"));
  EXPECT_FALSE(file.Commit());
  EXPECT_EQ(file.Error(), "/dev/full: No space left on device");
}

TEST(AtomicFile, DeviceIsWrittenDirectly) {
  AtomicFile file("/dev/null");
  EXPECT_TRUE(file.Write(std::string(200000, 'x')));
  EXPECT_TRUE(file.Commit());
  struct stat status {};
  ASSERT_EQ(stat("/dev/null", &status), 0);
  EXPECT_TRUE(S_ISCHR(status.st_mode));
}

TEST(AtomicFile, PipeIsWrittenDirectly) {
  const TemporaryFolder folder;
  const std::string path = folder / "pipe";
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  std::string read;
  std::thread reader([&] { read = ReadTestFile(path); });
  AtomicFile file(path);
  file.Write(std::string(100000, 'p'));
  EXPECT_TRUE(file.Commit());
  reader.join();
  EXPECT_EQ(read, std::string(100000, 'p'));
  EXPECT_EQ(folder.Entries(), Names{"pipe"});
}

}  // namespace
}  // namespace zg
