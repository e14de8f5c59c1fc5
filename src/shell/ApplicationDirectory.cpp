#include "shell/ApplicationDirectory.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace zg {
namespace {

namespace fs = std::filesystem;

constexpr const char* Settings = "zephyrgram.ini";

fs::path ExecutableFolder() {
  std::error_code error;
  const fs::path executable = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::path() : executable.parent_path();
}

fs::path UserDataFolder() {
  const char* data = std::getenv("XDG_DATA_HOME");  // NOLINT(concurrency-mt-unsafe): at start-up
  if (data != nullptr && data[0] == '/') return data;
  const char* home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
  return home != nullptr && home[0] == '/' ? fs::path(home) / ".local/share" : fs::path();
}

}  // namespace

std::string WithSeparator(std::string path) {
  if (path.empty() || path.back() != '/') path += '/';
  return path;
}

ApplicationDirectory FindApplicationDirectory() {
  const fs::path portable = ExecutableFolder();
  std::error_code error;
  if (!portable.empty() && fs::exists(portable / Settings, error) &&
      access(portable.c_str(), W_OK) == 0) {
    return {WithSeparator(portable.string()), {}};
  }
  const fs::path data = UserDataFolder();
  if (data.empty()) return {{}, "No home folder: HOME and XDG_DATA_HOME are not set"};
  const fs::path folder = data / "zephyrgram";
  const fs::path installed = portable.parent_path() / "share/zephyrgram";
  fs::create_directories(folder, error);
  if (!error && !fs::exists(folder / Settings, error)) {
    if (!fs::is_directory(installed, error)) {
      return {WithSeparator(folder.string()), "No settings: neither " +
                                                  (folder / Settings).string() + " nor " +
                                                  installed.string() + " is there"};
    }
    fs::copy(installed, folder, fs::copy_options::recursive | fs::copy_options::skip_existing,
             error);
  }
  if (error) return {WithSeparator(folder.string()), folder.string() + ": " + error.message()};
  return {WithSeparator(folder.string()), {}};
}

}  // namespace zg
