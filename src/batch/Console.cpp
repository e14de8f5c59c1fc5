#include "batch/Console.h"

#include <unistd.h>

#include <chrono>

#include "text/TextRules.h"

namespace zg {
namespace {

constexpr std::int64_t MillisecondsBetween = 200;

void WriteToStandardError(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(STDERR_FILENO, text.data(), text.size());
    if (written <= 0) return;  // nobody is left to be told
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace

void PrintError(std::string_view line) {
  std::string text(line);
  static const bool terminal = isatty(STDERR_FILENO) != 0;
  for (char& c : text) {
    if (!terminal) break;
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '?';
  }
  WriteToStandardError(text += '\n');
}

void ConsoleLog::Write(std::string_view text) { PrintError(text); }

void ConsolePrompt::Show(Icon /*icon*/, std::string_view text) { PrintError(text); }

std::int64_t SteadyClock::TickCount() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

void ConsoleProgress::Begin(std::int64_t maximum) {
  maximum_ = maximum;
  position_ = 0;
  shownAt_ = clock_.TickCount();
}

void ConsoleProgress::Yield() {
  if (!shown_ || maximum_ <= 0) return;
  const std::int64_t now = clock_.TickCount();
  if (now - shownAt_ < MillisecondsBetween) return;
  shownAt_ = now;
  visible_ = true;
  const double part = static_cast<double>(position_) / static_cast<double>(maximum_);
  WriteToStandardError("\r" + FormatNumber(part * 100, "0") + " %   ");
}

void ConsoleProgress::End() {
  if (visible_) WriteToStandardError("\r        \r");
  visible_ = false;
}

}  // namespace zg
