// The program's interfaces to a user, on a terminal: log lines, messages and progress go to
// standard error.
#pragma once

#include <string>
#include <string_view>

#include "shell/Platform.h"

namespace zg {

// A line on standard error. Control characters, which a bulletin may hold, are shown as "?" on a
// terminal.
void PrintError(std::string_view line);

class ConsoleLog : public LogList {
 protected:
  void Write(std::string_view text) override;
};

class ConsolePrompt : public Prompt {
 public:
  void Show(Icon icon, std::string_view text) override;
};

class SteadyClock : public Clock {
 public:
  std::int64_t TickCount() override;
};

// A line on standard error that is written over as a run goes on, some times a second.
class ConsoleProgress : public Progress {
 public:
  ConsoleProgress(bool shown, Clock& clock) noexcept : shown_(shown), clock_(clock) {}

  void Begin(std::int64_t maximum) override;
  void Advance(std::int64_t position) override { position_ = position; }
  void Yield() override;
  // Takes the line away.
  void End();

 private:
  bool shown_;
  Clock& clock_;
  std::int64_t maximum_ = 0;
  std::int64_t position_ = 0;
  std::int64_t shownAt_ = 0;
  bool visible_ = false;
};

}  // namespace zg
