#include "decode/TypedMessage.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "shell/AtomicFile.h"
#include "shell/FileText.h"
#include "text/TextRules.h"
#include "text/Windows1252.h"

namespace zg {
namespace {

std::string PathOf(const std::string& applicationPath) {
  return applicationPath + std::string(TypedMessageFile);
}

// True for the bytes of a UTF-8 character behind its first.
constexpr bool IsContinuation(char c) noexcept {
  return (static_cast<unsigned char>(c) & 0xC0u) == 0x80u;
}

std::string UpperCase(std::string_view text) {
  std::string bytes = Utf8ToWindows1252(text);
  UpperCaseWindows1252(bytes);
  return Windows1252ToUtf8(bytes);
}

}  // namespace

std::string CutTypedMessage(std::string_view text) {
  if (text.empty()) return {};
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) return std::string(Trim(text)) + " =";
  std::size_t end = equals + 2;
  while (end < text.size() && IsContinuation(text[end])) ++end;
  return std::string(text.substr(0, end));
}

TypedMessage LoadTypedMessage(const std::string& applicationPath) {
  TypedMessage message;
  const std::string path = PathOf(applicationPath);
  if (access(path.c_str(), F_OK) != 0) return message;
  TextLines file = ReadTextLines(path);
  message.Error = std::move(file.Error);
  for (const std::string& line : file.Lines) message.Text += UpperCase(line) + "\n";
  return message;
}

std::string SaveTypedMessage(const std::string& applicationPath, std::string_view text) {
  std::string message = CutTypedMessage(text);
  if (!message.empty() && message.back() != '\n') message += '\n';
  AtomicFile file(PathOf(applicationPath));
  if (file.Write(message) && file.Commit()) return {};
  return file.Error();
}

std::string DeleteTypedMessage(const std::string& applicationPath) {
  const std::string path = PathOf(applicationPath);
  if (unlink(path.c_str()) == 0 || errno == ENOENT) return {};
  return path + ": " + std::generic_category().message(errno);
}

}  // namespace zg
