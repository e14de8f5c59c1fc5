// Writes JSON (RFC 8259) into a text: one object a line, keys in the order in which they come.
// Texts are UTF-8. Everything is appended; nothing fails.
#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <string>
#include <string_view>

namespace zg {

class JsonWriter {
 public:
  explicit JsonWriter(std::string& out) noexcept : out_(out) {}

  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }

  void Key(std::string_view name) {
    Separate();
    ((out_ += '"') += name) += "\":";
    first_ = true;
  }
  // The key of element `index` of a row of fields: name and number.
  void Key(std::string_view name, std::size_t index) {
    Separate();
    ((((out_ += '"') += name) += static_cast<char>('0' + index))) += "\":";
    first_ = true;
  }

  void Text(std::string_view text);
  void Null() { Literal("null"); }
  void Boolean(bool value) { Literal(value ? "true" : "false"); }

  template <std::integral T>
  void Number(T value) {
    Separate();
    std::array<char, 24> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    out_.append(buffer.data(), end.ptr);
  }
  // The shortest form that reads back to the same 32-bit float; null for what JSON cannot say,
  // infinity and no number.
  void Number(float value) {
    if (!std::isfinite(value)) return Null();
    Separate();
    std::array<char, 64> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    out_.append(buffer.data(), end.ptr);
  }

  // Ends the line of an object.
  void EndLine() {
    out_ += '\n';
    first_ = true;
  }

 private:
  void Separate() {
    if (!first_) out_ += ',';
    first_ = false;
  }
  void Open(char bracket) {
    Separate();
    out_ += bracket;
    first_ = true;
  }
  void Close(char bracket) {
    out_ += bracket;
    first_ = false;
  }
  void Literal(std::string_view text) {
    Separate();
    out_ += text;
  }

  std::string& out_;
  bool first_ = true;  // no comma ahead of the next value
};

}  // namespace zg
