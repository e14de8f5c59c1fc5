// What some runs have decoded, counted for a reader who sees it the first time.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "decode/StationTexts.h"

namespace zg {

class DecodeSummary {
 public:
  // Counts a stored record.
  void Add(const StationTexts& station);
  void AddWrongLine() noexcept { ++wrongLines_; }
  void AddRun(std::int64_t bytes, std::int64_t milliseconds) noexcept;

  // The counts as lines of text: messages by type, stations, countries, wrong lines, time, speed.
  std::string Text() const;

 private:
  std::map<std::string, int, std::less<>> byType_;
  std::set<std::string, std::less<>> stations_;
  std::map<std::string, int, std::less<>> byCountry_;
  int messages_ = 0;
  int files_ = 0;
  int wrongLines_ = 0;
  std::int64_t bytes_ = 0;
  std::int64_t milliseconds_ = 0;
};

}  // namespace zg
