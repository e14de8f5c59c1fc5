#include "decode/ListUtility.h"

#include <algorithm>

#include "text/TextRules.h"

namespace zg {

void AddLineOnList(std::vector<std::string>& List, std::string_view Line, bool& ItemPresent) {
  Line = Trim(Line);
  if (Line.empty() || Line == Unknow) return;
  if (!ItemPresent) ItemPresent = std::find(List.begin(), List.end(), Line) != List.end();
  if (!ItemPresent) List.emplace_back(Line);
}

void RemoveLineOnList(std::vector<std::string>& List, std::string_view Line) {
  Line = Trim(Line);
  if (Line.empty() || Line <= Unknow) return;
  const auto entry = std::find(List.begin(), List.end(), Line);
  if (entry != List.end()) List.erase(entry);
}

std::vector<std::string> FillList(std::string_view Text) {
  std::vector<std::string> result;
  while (true) {
    const std::size_t comma = Text.find(',');
    result.emplace_back(Text.substr(0, comma));
    if (comma == std::string_view::npos) return result;
    Text.remove_prefix(std::min(comma + 2, Text.size()));
  }
}

}  // namespace zg
