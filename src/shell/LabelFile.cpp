#include "shell/LabelFile.h"

#include <algorithm>

#include "shell/FileText.h"
#include "text/TextRules.h"

namespace zg {

const std::string* LabelFile::Find(std::string_view control) const noexcept {
  const std::string_view name = control.substr(0, control.find('('));
  const auto found = std::find_if(Captions.rbegin(), Captions.rend(),
                                  [name](const auto& row) { return row.first == name; });
  return found == Captions.rend() ? nullptr : &found->second;
}

std::string LabelFileName(std::string_view form, const TextUtility& texts) {
  return std::string(form).append(texts.Choose(".ita", ".eng"));
}

LabelFile ReadLabelFile(const std::string& path) {
  LabelFile labels;
  TextLines text = ReadTextLines(path);
  labels.Error = std::move(text.Error);
  bool first = true;
  for (const std::string_view line : text.Lines) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view name = Trim(line.substr(0, equals));
    const std::string_view caption = Trim(line.substr(equals + 1));
    if (!first) {
      labels.Captions.emplace_back(name, caption);
    } else if (caption != NoChange) {
      labels.FormCaption = caption;
    }
    first = false;
  }
  return labels;
}

}  // namespace zg
