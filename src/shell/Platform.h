// What the core asks of whoever runs it: a log, a message box, a clock, a moment for the window
// system. The desktop program, the batch decoder and the tests each implement these interfaces;
// the core itself never prints, never reads the clock and never shows anything.
//
// All texts are UTF-8 and already in the language in force.
#pragma once

#include <cstdint>
#include <string_view>

namespace zg {

// The log of a run. Texts are logged as they stand, trailing blanks included; whoever shows them
// adds date and time.
class LogList {
 public:
  // False silences Log; the station import clears it while it reads a list.
  bool Enabled = true;

  LogList() = default;
  LogList(const LogList&) = delete;
  LogList& operator=(const LogList&) = delete;
  virtual ~LogList() = default;

  // Adds one entry, if Enabled.
  void Log(std::string_view text) {
    if (Enabled) Write(text);
  }

  // Repaints whatever shows the log.
  virtual void Refresh() {}

 protected:
  virtual void Write(std::string_view text) = 0;
};

// A message box. The call returns when the user has closed it.
class Prompt {
 public:
  enum class Icon { None, Information, Critical };

  Prompt() = default;
  Prompt(const Prompt&) = delete;
  Prompt& operator=(const Prompt&) = delete;
  virtual ~Prompt() = default;

  virtual void Show(Icon icon, std::string_view text) = 0;
};

// Milliseconds since some fixed moment; only differences count.
class Clock {
 public:
  Clock() = default;
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;
  virtual ~Clock() = default;

  virtual std::int64_t TickCount() = 0;
};

// How far a long piece of work has come. Called from inside the work, at its yield points, so that
// a window can repaint itself and take a click.
class Progress {
 public:
  Progress() = default;
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  virtual ~Progress() = default;

  // The work begins and will end at `maximum` (bytes of a file).
  virtual void Begin(std::int64_t maximum) = 0;
  // It has come to `position`, from 0 to the maximum.
  virtual void Advance(std::int64_t position) = 0;
  // Events of the window system may be handled now.
  virtual void Yield() = 0;
};

}  // namespace zg
