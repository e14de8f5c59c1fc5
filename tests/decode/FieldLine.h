// What a working record holds, told as one line of text, so that a case says all that a message
// sets and that it sets nothing else.
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "decode/MissingValues.h"
#include "text/TextRules.h"

namespace zg::test {

inline std::vector<std::string_view> SplitWords(std::string_view text) {
  std::vector<std::string_view> words;
  while (!(text = Trim(text)).empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    words.push_back(word);
    text.remove_prefix(word.size());
  }
  return words;
}

// Writes "Name=value" for each field that is not missing, divided by blanks.
class FieldLine {
 public:
  void Text(std::string_view name, std::string_view value) {
    if (!line_.empty() && !line_.ends_with(' ')) line_ += ' ';
    line_.append(name).append("=").append(value);
  }
  void Number(std::string_view name, std::int64_t value) { Text(name, std::to_string(value)); }
  template <std::integral T>
  void Reported(std::string_view name, T value) {
    if (!IsMissing(value)) Number(name, value);
  }
  void Reported(std::string_view name, float value) {
    if (IsMissing(value)) return;
    std::array<char, 32> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.7g", static_cast<double>(value));
    Text(name, buffer.data());
  }
  void Reported(std::string_view name, std::string_view value) {
    if (!value.empty() && !IsMissing(value)) Text(name, value);
  }
  template <typename T, std::size_t N>
  void Reported(std::string_view name, const std::array<T, N>& values) {
    for (std::size_t i = 0; i < N; ++i) Reported(std::string(name) + std::to_string(i), values[i]);
  }
  void Break(std::string_view mark) {
    if (!line_.empty() && !line_.ends_with(' ')) line_ += ' ';
    line_.append(mark).append(" ");
  }
  std::string Take() { return std::string(Trim(line_)); }

 private:
  std::string line_;
};

// The bits of a flag word from `first` on: "9,18".
inline std::string BitsText(std::uint32_t flags, int first = 0) {
  std::string text;
  for (int i = first; i < 32; ++i) {
    if ((flags >> i & 1U) != 0) text += (text.empty() ? "" : ",") + std::to_string(i);
  }
  return text;
}

// The words of the log lines about wrong items, divided by blanks; other lines as they are.
inline std::string WrongItems(const std::vector<std::string>& log) {
  constexpr std::string_view front = "Wrong item found. - Line: 7 - Item: ";
  std::string items;
  for (const std::string& entry : log) {
    if (!items.empty()) items += ' ';
    items += entry.starts_with(front) ? entry.substr(front.size()) : entry;
  }
  return items;
}

}  // namespace zg::test
