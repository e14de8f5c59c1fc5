#include "shell/GenericUtility.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "shell/AtomicFile.h"
#include "shell/FileText.h"
#include "text/TextRules.h"

namespace zg {
namespace {

constexpr std::string_view ParameterFile = "zephyrgram.ini";
constexpr std::string_view DefaultsFile = "zephyrgram.def";
constexpr std::string_view BackupFile = "zephyrgram.ini.bak";
constexpr unsigned PrivateMode = 0600;  // the file holds passwords

constexpr unsigned FlagBits = 32;

// The bits of a field, in 64 bits so that a field of all 32 fits.
constexpr std::uint64_t Mask(unsigned position, unsigned count) noexcept {
  return ((std::uint64_t{1} << count) - 1) << position;
}

// How far the character at place i (from 1) is moved by the scrambling: 1 to 14.
constexpr int Shift(std::size_t i) noexcept {
  return static_cast<int>(i % 2 + i % 3 + i % 5 + i % 7 + 1);
}

std::string WriteLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line;
    text += '\n';
  }
  return text;
}

std::string OneLine(std::string_view value) {
  std::string line(value);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return line;
}

// Replaces the file by the text; the reason where that fails.
std::string WriteFile(const std::string& path, std::string_view text) {
  AtomicFile file(path, PrivateMode);
  file.Write(text);
  return file.Commit() ? std::string() : file.Error();
}

}  // namespace

bool SetFlags(std::int32_t& Flags, std::uint8_t Position, std::uint8_t NunOfBit,
              std::int64_t Data) noexcept {
  if (unsigned{Position} + NunOfBit > FlagBits) return false;
  const std::uint64_t kept = static_cast<std::uint32_t>(Flags) & ~Mask(Position, NunOfBit);
  const std::uint64_t placed = static_cast<std::uint64_t>(Data) << Position;
  Flags = static_cast<std::int32_t>(static_cast<std::uint32_t>(kept | placed));
  return true;
}

std::optional<std::int32_t> ReadFlags(std::int32_t Flags, std::uint8_t Position,
                                      std::uint8_t NunOfBit) noexcept {
  if (unsigned{Position} + NunOfBit > FlagBits) return std::nullopt;
  const std::uint64_t field = static_cast<std::uint32_t>(Flags) & Mask(Position, NunOfBit);
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(field >> Position));
}

std::string Encript(std::string_view InputValue) {
  std::string result;
  std::size_t i = 1;
  for (auto c = InputValue.rbegin(); c != InputValue.rend(); ++c, ++i) {
    const int code = static_cast<unsigned char>(*c) - Shift(i);
    // Upper-case digits without padding; a code below 0 can only come from a control character and
    // shows as its low byte.
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned>(code) & 0xFFu;
    if (byte >= 16) result += Digits[byte / 16];
    result += Digits[byte % 16];
  }
  std::reverse(result.begin(), result.end());
  return result;
}

std::string Decript(std::string_view InputValue) {
  const std::string digits(InputValue.rbegin(), InputValue.rend());
  std::string result;
  for (std::size_t at = 0, i = 1; at < digits.size(); at += 2, ++i) {
    const std::string_view pair = Mid(digits, at + 1, 2);
    unsigned code = 0;
    const auto read = std::from_chars(pair.data(), pair.data() + pair.size(), code, 16);
    if (read.ec != std::errc() || read.ptr != pair.data() + pair.size()) code = 0;
    result += static_cast<char>(static_cast<unsigned char>(code + static_cast<unsigned>(Shift(i))));
  }
  std::reverse(result.begin(), result.end());
  return result;
}

std::string Encript2(std::string_view InputValue) { return Encript(Encript(InputValue)); }

std::string Decript2(std::string_view InputValue) { return Decript(Decript(InputValue)); }

GenericUtility::GenericUtility(std::string applicationPath, Prompt& prompt,
                               const TextUtility& textUtility)
    : applicationPath_(std::move(applicationPath)), prompt_(prompt), textUtility_(textUtility) {}

std::string GenericUtility::PathOf(std::string_view name) const {
  std::string path = applicationPath_;
  path += name;
  return path;
}

std::string GenericUtility::GetParameter(std::string_view Param, std::string_view Default) const {
  const std::string path = PathOf(ParameterFile);
  const TextLines file = ReadTextLines(path);
  for (const std::string& line : file.Lines) {
    if (!line.starts_with(Param)) continue;
    const std::size_t equals = line.find('=');
    if (equals != std::string::npos) return std::string(Trim(Mid(line, equals + 2)));
  }
  if (file.Ok() && !Default.empty()) return std::string(Default);
  const std::string reason = file.Ok() ? "Parameter not Found in " + path : file.Error;
  prompt_.Show(Prompt::Icon::Critical, reason + ": [" + std::string(Param) + "]");
  return {};
}

void GenericUtility::SetParameter(std::string_view Param, std::string_view Value) const {
  const std::string path = PathOf(ParameterFile);
  TextLines file = ReadTextLines(path);
  if (!file.Ok()) {
    LoadDefaults(file.Error);
    return;
  }
  const std::string value = OneLine(Trim(Value));
  bool found = false;
  for (std::string& line : file.Lines) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) continue;
    const std::string key(Trim(std::string_view(line).substr(0, equals)));
    if (key != Trim(Param)) continue;
    line = key + " = " + value;
    found = true;
  }
  if (!found) file.Lines.push_back(OneLine(Param) + " = " + value);
  if (const std::string error = WriteFile(path, WriteLines(file.Lines)); !error.empty()) {
    LoadDefaults(error);
  }
}

// The new file stands complete before the old one goes, and the old one stays as the backup.
void GenericUtility::LoadDefaults(std::string_view failure) const {
  prompt_.Show(Prompt::Icon::None, std::string(failure) + std::string(textUtility_.Choose(
                                                              "- Caricati Valori di Default",
                                                              "- Default values loaded")));
  const FileBytes defaults = ReadFileBytes(PathOf(DefaultsFile));
  std::string error = defaults.Error;
  const std::string path = PathOf(ParameterFile);
  if (error.empty()) {
    const FileBytes old = ReadFileBytes(path);
    if (old.Ok()) error = WriteFile(PathOf(BackupFile), old.Bytes);
  }
  if (error.empty()) error = WriteFile(path, defaults.Bytes);
  if (!error.empty()) prompt_.Show(Prompt::Icon::Critical, error);
}

void GenericUtility::SetFlags(std::int32_t& Flags, std::uint8_t Position, std::uint8_t NunOfBit,
                              std::int64_t Data) const {
  if (!zg::SetFlags(Flags, Position, NunOfBit, Data)) {
    prompt_.Show(Prompt::Icon::None, SetFlagsError);
  }
}

std::int32_t GenericUtility::ReadFlags(std::int32_t Flags, std::uint8_t Position,
                                       std::uint8_t NunOfBit) const {
  const std::optional<std::int32_t> field = zg::ReadFlags(Flags, Position, NunOfBit);
  if (!field) prompt_.Show(Prompt::Icon::None, ReadFlagsError);
  return field.value_or(0);
}

}  // namespace zg
