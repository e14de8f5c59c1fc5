// Windows-1252, the character set in which bulletins are read and CSV files are written, against
// UTF-8, in which the program holds its texts. The five bytes that Windows-1252 leaves undefined
// (81, 8D, 8F, 90, 9D) stand for the control characters of the same number, so that nothing is lost
// on the way to UTF-8 and back.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zg {

// True if no byte is above 127: such a text is the same in both character sets.
bool IsAscii(std::string_view text) noexcept;

// True if the text is well-formed UTF-8 (no overlong form, no surrogate, nothing above U+10FFFF).
bool IsUtf8(std::string_view text) noexcept;

// Number of characters of a UTF-8 text.
std::size_t CharacterCount(std::string_view text) noexcept;

std::string Windows1252ToUtf8(std::string_view bytes);

// A character that Windows-1252 does not have becomes "?", and so does a byte that is no UTF-8.
std::string Utf8ToWindows1252(std::string_view text);

// Upper-cases Windows-1252 text in place; letters above 127 too, where their capital is in the set.
void UpperCaseWindows1252(std::string& bytes) noexcept;

}  // namespace zg
