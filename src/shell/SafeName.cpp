#include "shell/SafeName.h"

#include <algorithm>
#include <array>

namespace zg {
namespace {

constexpr std::size_t MaxLength = 200;

// Names that are devices on some systems, with any extension and in either case.
constexpr std::array<std::string_view, 22> Devices{
    "con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4", "com5", "com6", "com7",
    "com8", "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"};

bool IsForbidden(char c) noexcept {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F || c == '/' || c == '\\' || c == ':';
}

bool IsDevice(std::string_view name) noexcept {
  const std::string_view stem = name.substr(0, name.find('.'));
  const auto equal = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b; };
  return std::any_of(Devices.begin(), Devices.end(), [&](std::string_view device) {
    return std::equal(stem.begin(), stem.end(), device.begin(), device.end(), equal);
  });
}

}  // namespace

std::optional<std::string> SafeName(std::string_view name) {
  if (name.empty() || name.size() > MaxLength || name.front() == '.') return std::nullopt;
  if (std::any_of(name.begin(), name.end(), IsForbidden)) return std::nullopt;
  if (IsDevice(name)) return std::nullopt;
  return std::string(name);
}

}  // namespace zg
