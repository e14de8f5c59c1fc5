// Operations on lists of text lines, as the list controls of the program hold them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zg {

// What a decoder calls a country that it cannot tell; never listed.
inline constexpr std::string_view Unknow = "Unknow";

// Adds the trimmed line at the end, unless it is empty or "Unknow" or stands in the list already:
// then ItemPresent is true afterwards. With ItemPresent true on entry nothing is added.
void AddLineOnList(std::vector<std::string>& List, std::string_view Line, bool& ItemPresent);

// Removes the first entry that equals the trimmed line. Only lines behind "Unknow" in the order of
// their bytes are removed.
void RemoveLineOnList(std::vector<std::string>& List, std::string_view Line);

// The parts of a text that was joined with ", ". Each part ends ahead of a comma and the next
// begins two characters behind it; the last is what remains, so there is always one.
std::vector<std::string> FillList(std::string_view Text);

}  // namespace zg
