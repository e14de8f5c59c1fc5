#include "batch/JsonWriter.h"

namespace zg {
namespace {

bool NeedsEscape(char c) noexcept {
  return c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20;
}

void AppendEscaped(std::string& out, char c) {
  static constexpr std::string_view hex = "0123456789abcdef";
  switch (c) {
    case '"':
    case '\\':
      (out += '\\') += c;
      break;
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    default:
      const auto code = static_cast<unsigned char>(c);
      ((out += "\\u00") += hex[code >> 4U]) += hex[code & 15U];
  }
}

}  // namespace

void JsonWriter::Text(std::string_view text) {
  Separate();
  out_ += '"';
  std::size_t done = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!NeedsEscape(text[i])) continue;
    out_.append(text, done, i - done);
    AppendEscaped(out_, text[i]);
    done = i + 1;
  }
  out_.append(text, done);
  out_ += '"';
}

}  // namespace zg
