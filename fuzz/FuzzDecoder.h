// A decoder for fuzz targets: everything in memory, nothing on the disk, nothing shown.
#pragma once

#include <string>

#include "decode/MeteoDecode.h"

namespace zg {

class NullLog : public LogList {
 protected:
  void Write(std::string_view) override {}
};

class NullPrompt : public Prompt {
 public:
  void Show(Icon, std::string_view) override {}
};

class NullClock : public Clock {
 public:
  std::int64_t TickCount() override { return ++ticks_; }

 private:
  std::int64_t ticks_ = 0;
};

class NullProgress : public Progress {
 public:
  void Begin(std::int64_t) override {}
  void Advance(std::int64_t) override {}
  void Yield() override {}
};

// Writes each record as JSON and drops it, so that every text of it is read.
class JsonObserver : public DecodeObserver {
 public:
  bool WantsAccepted() const override { return true; }
  void MetarStored(const MetarRawData& raw, const MetarData& data) override;
  void SynopStored(const SynopRawData& raw, const SynopData& data) override;

 private:
  std::string line_;
};

class FuzzDecoder {
 public:
  // The filters are open. Stations stand in a directory of a few.
  FuzzDecoder();

  void DecodeFile(std::string bytes);
  void DecodeTyped(std::string_view text);

 private:
  NullLog log_;
  NullPrompt prompt_;
  NullClock clock_;
  NullProgress progress_;
  JsonObserver observer_;
  DBUtility database_;
  StationDirectory stations_;
  TextUtility texts_;
  ConversionUtility conversion_;
  MessageStores stores_;
  DecodeContext context_;
};

// One decoder for all inputs of a target.
FuzzDecoder& SharedFuzzDecoder();

}  // namespace zg
