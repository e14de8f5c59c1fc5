// Label files: the fixed captions of a form in one language, "frmMain.ita" and "frmMain.eng" beside
// the program, so that captions can be corrected without building anything.
//
// A line is "name = text". The first one stands for the form itself, whatever its name; the others
// give the captions of controls by their names. Lines without "=" say nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tables/TextUtility.h"

namespace zg {

// As text of the first line: the form keeps the caption that it has.
inline constexpr std::string_view NoChange = "nochange";

struct LabelFile {
  std::optional<std::string> FormCaption;                     // nothing: it stays
  std::vector<std::pair<std::string, std::string>> Captions;  // of controls, in order of the file
  std::string Error;  // path and reason, in English, if the file could not be read

  // The caption of a control; where the file has several, the last. Null if it has none. Members
  // of a control array, "mnuTaf(2)", go by the name of the array.
  const std::string* Find(std::string_view control) const noexcept;
};

// "frmMain.ita" or "frmMain.eng".
std::string LabelFileName(std::string_view form, const TextUtility& texts);

LabelFile ReadLabelFile(const std::string& path);

}  // namespace zg
