// Decodes METAR, SPECI and TAF messages (code forms FM 15, FM 16, FM 51) into the store.
#pragma once

#include <vector>

#include "decode/BulletinMessage.h"
#include "decode/DecodeContext.h"
#include "decode/aero/MetarRecord.h"

namespace zg {

class MetarDecoder {
 public:
  explicit MetarDecoder(DecodeContext& context) noexcept : context_(context) {}

  // Decodes one message. A word that no group fits is passed over, one that cannot be read is
  // logged; neither loses the message. `decodedCount` is the number of messages stored before it.
  DecodeOutcome DecodeMetarMessage(const BulletinMessage& message, int decodedCount);

  // Tells what the look-up of a station has found that a message to come is probably of: where it
  // is that station nothing is looked up again. The view has to hold until the next call.
  void Expect(const StationFound& station) noexcept { expected_ = station; }

 private:
  void DecodeHeading(const BulletinMessage& message);
  bool FindTime(const BulletinMessage& message);
  bool PassesFilters(bool singleMessage);
  void DecodeWords(const BulletinMessage& message);
  DecodeOutcome Reject(bool printWrongLine);

  DecodeContext& context_;
  MetarRawData raw_;
  MessageScratch scratch_;
  StationFound expected_;
  std::size_t wordIndex_ = 0;
  std::vector<std::string_view> forms_;
};

}  // namespace zg
