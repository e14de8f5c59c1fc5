// A decoder for fuzz targets, with nobody to tell anything.
#pragma once

#include <string>
#include <string_view>

#include "FuzzFolder.h"
#include "decode/DecodeParts.h"
#include "decode/MeteoDecode.h"
#include "shell/NullPlatform.h"

namespace zg::fuzz {

// Writes each record as JSON, so that every text of it is read, and dies if that is not JSON in
// UTF-8.
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
  // The filters are open; the stations are those of the golden bulletins.
  FuzzDecoder();

  // Both tell the records in English with every unit converted, or, where the length of the input
  // is odd, in Italian with the units of the message.
  void DecodeFile(std::string bytes);
  void DecodeTyped(std::string_view text);

 private:
  void ChooseTexts(std::size_t length);
  void ImportStations(const char* list);
  MeteoDecode MakeDecoder();

  FuzzFolder folder_;
  test::NullPrompt prompt_;
  test::NullClock clock_;
  test::NullProgress progress_;
  DBUtility database_{prompt_};
  test::DecodeParts<test::NullLog, JsonObserver> parts_;
};

// One decoder for all inputs of a target.
FuzzDecoder& SharedFuzzDecoder();

}  // namespace zg::fuzz
