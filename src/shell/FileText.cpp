#include "shell/FileText.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

#include "text/Windows1252.h"

namespace zg {

FileBytes ReadFileBytes(const std::string& path) {
  FileBytes result;
  const auto fail = [&](int number) {
    result.Bytes.clear();
    result.Error = path + ": " + std::generic_category().message(number);
  };
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) {
    fail(errno);
    return result;
  }
  struct stat status {};
  if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
    result.Bytes.reserve(static_cast<std::size_t>(status.st_size));
  }
  std::array<char, 64 * 1024> chunk;
  while (true) {
    const ssize_t count = read(descriptor, chunk.data(), chunk.size());
    if (count > 0) {
      result.Bytes.append(chunk.data(), static_cast<std::size_t>(count));
    } else if (count == 0) {
      break;
    } else if (errno != EINTR) {
      fail(errno);
      break;
    }
  }
  close(descriptor);
  return result;
}

TextLines ReadTextLines(const std::string& path) {
  FileBytes file = ReadFileBytes(path);
  TextLines result;
  if (!file.Ok()) {
    result.Error = std::move(file.Error);
    return result;
  }
  if (!IsUtf8(file.Bytes)) file.Bytes = Windows1252ToUtf8(file.Bytes);
  std::string_view text = file.Bytes;
  constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
  for (std::string_view line : SplitLines(text)) result.Lines.emplace_back(line);
  return result;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    const bool isPair = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    text.remove_prefix(end + (isPair ? 2 : 1));
  }
  return lines;
}

}  // namespace zg
