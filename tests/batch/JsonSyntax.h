// Whether a text is JSON (RFC 8259): a parser that builds nothing.
#pragma once

#include <string_view>

namespace zg::test {

class JsonSyntax {
 public:
  // True if the whole text is one value, blanks around it allowed.
  static bool IsValid(std::string_view text) {
    JsonSyntax parser{text};
    return parser.Value() && parser.rest_.empty();
  }

 private:
  explicit JsonSyntax(std::string_view text) : rest_(text) {}

  bool Value() {
    SkipBlanks();
    bool valid = false;
    if (Take('{')) {
      valid = Items('}', [this] { return Name() && Value(); });
    } else if (Take('[')) {
      valid = Items(']', [this] { return Value(); });
    } else if (!rest_.empty() && rest_[0] == '"') {
      valid = String();
    } else {
      valid = Word("true") || Word("false") || Word("null") || Number();
    }
    SkipBlanks();
    return valid;
  }

  template <typename Item>
  bool Items(char end, Item item) {
    SkipBlanks();
    if (Take(end)) return true;
    do {
      if (!item()) return false;
    } while (Take(','));
    return Take(end);
  }

  bool Name() {
    SkipBlanks();
    if (!String()) return false;
    SkipBlanks();
    return Take(':');
  }

  bool String() {
    if (!Take('"')) return false;
    while (!rest_.empty()) {
      const char c = rest_[0];
      rest_.remove_prefix(1);
      if (c == '"') return true;
      if (static_cast<unsigned char>(c) < 0x20) return false;
      if (c == '\\' && !Escape()) return false;
    }
    return false;
  }

  bool Escape() {
    if (Take('u')) {
      const bool digits = rest_.size() >= 4 && rest_.substr(0, 4).find_first_not_of(
                                                   "0123456789abcdefABCDEF") == rest_.npos;
      if (digits) rest_.remove_prefix(4);
      return digits;
    }
    return Take('"') || Take('\\') || Take('/') || Take('b') || Take('f') || Take('n') ||
           Take('r') || Take('t');
  }

  bool Number() {
    Take('-');
    if (!Take('0') && !Digits()) return false;
    if (Take('.') && !Digits()) return false;
    if (!Take('e') && !Take('E')) return true;
    if (!Take('+')) Take('-');
    return Digits();
  }

  bool Digits() {
    const std::size_t count = rest_.find_first_not_of("0123456789");
    const std::size_t taken = count == rest_.npos ? rest_.size() : count;
    rest_.remove_prefix(taken);
    return taken > 0;
  }

  bool Word(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }

  bool Take(char c) { return Word({&c, 1}); }

  void SkipBlanks() {
    while (!rest_.empty() && (rest_[0] == ' ' || rest_[0] == '\t')) rest_.remove_prefix(1);
  }

  std::string_view rest_;
};

}  // namespace zg::test
