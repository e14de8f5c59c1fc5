// The core's interfaces to a user with nobody behind them: for fuzzers and benchmarks, where only
// the core itself counts, and for tests that do not look at what it tells.
#pragma once

#include <cstdint>
#include <string_view>

#include "shell/Platform.h"

namespace zg::test {

class NullLog : public LogList {
 protected:
  void Write(std::string_view) override {}
};

class NullPrompt : public Prompt {
 public:
  void Show(Icon, std::string_view) override {}
};

// Time stands still.
class NullClock : public Clock {
 public:
  std::int64_t TickCount() override { return 0; }
};

class NullProgress : public Progress {
 public:
  void Begin(std::int64_t) override {}
  void Advance(std::int64_t) override {}
  void Yield() override {}
};

}  // namespace zg::test
