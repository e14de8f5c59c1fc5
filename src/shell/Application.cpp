#include "shell/Application.h"

#include <algorithm>
#include <utility>

#include "decode/MeteoDecode.h"
#include "text/TextRules.h"

namespace zg {

std::string ApplicationVersion(std::string_view version) {
  const std::size_t second = version.find('.', version.find('.') + 1);
  std::string revision(version.substr(std::min(second, version.size() - 1) + 1));
  revision.insert(0, 4 - std::min<std::size_t>(4, revision.size()), '0');
  return std::string("Rel. ").append(version.substr(0, second)).append(" Build ").append(revision);
}

Application::Application(std::string applicationPath, LogList& log, Prompt& prompt, Clock& clock)
    : ApplicationPath(std::move(applicationPath)),
      MeteoFilesPath(ApplicationPath + "MeteoFiles/"),
      WrongFilesPath(ApplicationPath + "WrongFiles/"),
      Caption(ApplicationTitle),
      Log(log),
      Messages(prompt),
      Time(clock),
      Parameters(ApplicationPath, prompt, Texts),
      Database(prompt) {}

std::int32_t Application::MaxMessages() const {
  const std::string text = Parameters.GetParameter("MaxMessages");
  if (text.empty()) return LargestMaxMessages;
  return ToInteger<std::int32_t>(Value(text)).value_or(LargestMaxMessages + 1);
}

}  // namespace zg
