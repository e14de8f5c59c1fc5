// The decoder of typed messages, which tells in which store a message has become a record.
#pragma once

#include <string_view>

#include "shell/ApplicationDecoder.h"

namespace zg {

class LineDecoder : private DecodeObserver, private Progress {
 public:
  enum class Family { None, Synop, Metar };

  explicit LineDecoder(Application& app) : decoder_(app, *this, *this) {}

  // Decodes a message (UTF-8). None if it became no record; that has been logged.
  Family Decode(std::string_view text) {
    family_ = Family::None;
    decoder_.DecodeLine(text);
    return family_;
  }

 private:
  void SynopStored(const SynopRawData&, const SynopData&) override { family_ = Family::Synop; }
  void MetarStored(const MetarRawData&, const MetarData&) override { family_ = Family::Metar; }
  void Begin(std::int64_t) override {}
  void Advance(std::int64_t) override {}
  void Yield() override {}

  ApplicationDecoder decoder_;
  Family family_ = Family::None;
};

}  // namespace zg
