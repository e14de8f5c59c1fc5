// Decodes SYNOP messages of land and sea stations (code forms FM 12 and FM 13) into the store.
#pragma once

#include "decode/BulletinMessage.h"
#include "decode/DecodeContext.h"
#include "decode/synop/SynopRecord.h"
#include "decode/synop/SynopWalk.h"

namespace zg {

class SynopDecoder {
 public:
  explicit SynopDecoder(DecodeContext& context) noexcept : context_(context) {}

  // Decodes one message. A group that cannot be read is logged and stays missing; it does not lose
  // the message. `decodedCount` is the number of messages stored before it.
  DecodeOutcome DecodeSynopMessage(const BulletinMessage& message, int decodedCount);

  // Tells what the look-up of a station has found that a message to come is probably of: where it
  // is that station nothing is looked up again. The view has to hold until the next call.
  void Expect(const StationFound& station) noexcept { expected_ = station; }

 private:
  enum class Step { GoOn, Reject, Drop };

  Step ReadHeading(const BulletinMessage& message, SynopWalk& walk);
  Step ReadSeaHeader(const BulletinMessage& message, SynopWalk& walk);
  Step ReadLandHeader(SynopWalk& walk);
  Step FindStation(bool singleMessage);
  Step PassQuadrant(bool singleMessage);
  void ReadSections(SynopWalk& walk);
  void LogWithoutInformation(std::int32_t line);

  DecodeContext& context_;
  SynopRawData raw_;
  MessageScratch scratch_;
  StationFound expected_;
  int stationRow_ = -1;
  std::string_view listName_;
};

}  // namespace zg
