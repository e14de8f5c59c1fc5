#include "decode/synop/SynopDecoder.h"

#include "decode/ListUtility.h"
#include "maps/LatLongUtility.h"
#include "shell/GenericUtility.h"
#include "tables/StationText.h"
#include "tables/SynopReportText.h"

namespace zg {
namespace {

// Fewer words than this hold no observation, not counting the three of the bulletin's heading.
constexpr std::size_t LeastWords = 6;
constexpr std::size_t HeadingWords = 3;

// Bits of the station filter.
constexpr std::uint8_t WantBuoys = 1;
constexpr std::uint8_t WantShips = 2;
constexpr std::uint8_t WantLand = 4;

bool BeginsWithLetter(std::string_view word) noexcept {
  return !word.empty() && IsLetter(word.front());
}

}  // namespace

DecodeOutcome SynopDecoder::DecodeSynopMessage(const BulletinMessage& message, int decodedCount) {
  ResetSynopRecord(raw_);
  stationRow_ = -1;
  listName_ = {};
  raw_.Msg = scratch_.Begin(message.Text);
  SynopWalk walk{.Context = context_,
                 .Raw = raw_,
                 .Scratch = scratch_,
                 .WordList = message.WordList,
                 .LineCount = message.LineCount};
  Step step = ReadHeading(message, walk);
  if (step == Step::GoOn) step = FindStation(message.SingleMessage);
  if (step == Step::GoOn) step = PassQuadrant(message.SingleMessage);
  if (step == Step::GoOn && !message.SingleMessage) {
    if (context_.Observer.WantsAccepted()) {
      Publish(context_, raw_.Station, listName_, raw_.IssueTime, decodedCount);
    }
    if (walk.Word() == "NIL") {
      context_.Observer.StationRemoved(listName_);
      step = Step::Reject;
    }
  }
  if (step != Step::GoOn) {
    ResetSynopRecord(raw_);
    return {.Stored = false, .PrintWrongLine = step == Step::Reject && !message.SingleMessage};
  }
  ReadSections(walk);
  const SynopData& stored =
      StoreSynopRecord(raw_, stationRow_, context_.Units, context_.Stores.SynopStore);
  context_.Observer.SynopStored(raw_, stored);
  return {.Stored = true, .PrintWrongLine = false};
}

void SynopDecoder::LogWithoutInformation(std::int32_t line) {
  LogAtLine(context_,
            "Messaggio senza informazioni. Line: ", "Message without informations. Line: ", line);
}

SynopDecoder::Step SynopDecoder::ReadHeading(const BulletinMessage& message, SynopWalk& walk) {
  const std::size_t headingWords = message.HasHeading ? HeadingWords : 0;
  if (message.WordList.size() < LeastWords + headingWords) {
    LogWithoutInformation(message.LineCount);
    return Step::Reject;
  }
  const bool sea = message.Type == MessageType::BBXX;
  SetFlag(raw_.FilterFlags, sea ? SynopFlag::SeaMessage : SynopFlag::LandMessage);
  if (message.HasHeading) {
    raw_.Station.MsgId = scratch_.Text(walk.TakeWord());
    raw_.Station.Sender = scratch_.Text(walk.TakeWord());
    raw_.IssueTime = scratch_.Text(Mid(walk.TakeWord(), 1, 6));
    if (BeginsWithLetter(walk.Word()) && walk.Word() != MessageTypeName(message.Type)) {
      raw_.Station.AddedInfo = scratch_.Text(walk.TakeWord());
    }
  } else {
    raw_.IssueTime.clear();
  }
  return sea ? ReadSeaHeader(message, walk) : ReadLandHeader(walk);
}

// BBXX D....D YYGGiw 99LaLaLa QcLoLoLoLo.
SynopDecoder::Step SynopDecoder::ReadSeaHeader(const BulletinMessage& message, SynopWalk& walk) {
  StationBlock& station = raw_.Station;
  station.Type = scratch_.Text(walk.TakeWord());
  station.Station = scratch_.Text(walk.TakeWord());
  if (station.Station == "NIL") {
    context_.Log.Log("Station = NIL; Line: " + PlainDecimal(message.LineCount) +
                     " - Item: " + Windows1252ToUtf8(walk.Word()));
    return Step::Reject;
  }
  if (walk.Word() == "NIL" || walk.Word() == "NIL=") {
    LogWithoutInformation(message.LineCount);
    return Step::Reject;
  }
  if (!walk.Word().ends_with('/')) {
    if (const auto unit = ToInteger<std::uint8_t>(Value(Right(walk.Word(), 1)))) {
      raw_.WindUnitInd = *unit;
    }
  }
  ++walk.WordIndex;
  if (!walk.AreSolidi(3, 3)) station.LatPosition = static_cast<float>(Value(walk.Part(3, 3)));
  ++walk.WordIndex;
  if (!walk.AreSolidi(2, 4)) {
    station.LongPosition = static_cast<float>(Value(walk.Part(2, 4)));
  }
  if (const std::string_view quadrant = walk.Part(1, 1); quadrant != "/") {
    station.Quadrant = IsDigits(quadrant) ? quadrant[0] - '0' : 0;
  }
  ++walk.WordIndex;
  const int quadrant = station.Quadrant.value_or(0);
  if (station.LatPosition && (quadrant == 3 || quadrant == 5)) {
    station.LatPosition = Signed(static_cast<double>(*station.LatPosition), true);
  }
  if (station.LongPosition && (quadrant == 5 || quadrant == 7)) {
    station.LongPosition = Signed(static_cast<double>(*station.LongPosition), true);
  }
  return Step::GoOn;
}

// AAXX YYGGiw IIiii.
SynopDecoder::Step SynopDecoder::ReadLandHeader(SynopWalk& walk) {
  if (!BeginsWithLetter(walk.Word())) {
    LogAtLine(context_, "Carattere Illecito; Line: ", "Wrong Char on Field; Line: ", walk.LineCount,
              " - Item: " + Windows1252ToUtf8(walk.Word()));
    return Step::Reject;
  }
  raw_.Station.Type = scratch_.Text(walk.TakeWord());
  walk.SetStrict(raw_.WindUnitInd, walk.Word().size(), 1);
  ++walk.WordIndex;
  raw_.Station.Station = scratch_.Text(walk.TakeWord());
  return Step::GoOn;
}

// Station, country and the name for the list; the filters of station kind and country.
SynopDecoder::Step SynopDecoder::FindStation(bool singleMessage) {
  StationBlock& station = raw_.Station;
  const std::int32_t kind = ClassifyStation(station.Station, station.Type);
  std::uint8_t wanted = 0;
  if (kind == StationKinds::Land) {
    SetFlag(raw_.FilterFlags, SynopFlag::Land);
    wanted = WantLand;
    const StationRow* row = context_.Stations.FindByWMOIndex(station.Station, expected_);
    if (row != nullptr) stationRow_ = row->id;
    LoadStationRecord(row, station);
    listName_ = station.Station;
  } else {
    const bool ship = kind == StationKinds::Ship;
    SetFlag(raw_.FilterFlags, ship ? SynopFlag::Ship : SynopFlag::Buoy);
    wanted = ship ? WantShips : WantBuoys;
    station.Country = ship ? context_.Stations.GetShipCountry(station.Station) : Unknow;
    if (context_.Observer.WantsAccepted()) {
      listName_ = scratch_.Copy(
          std::string(station.Station) + " [" +
          ComputeLatLong(station.LatPosition, station.LongPosition, station.Quadrant) + "]");
    } else {
      listName_ = station.Station;
    }
  }
  if (!singleMessage && (context_.Filters.StationMask & wanted) == 0) return Step::Drop;
  if (listName_.empty() && !singleMessage) return Step::Reject;
  if (!singleMessage && !CheckCountryList(context_.Filters.CountryList, station.Country)) {
    return Step::Drop;
  }
  return Step::GoOn;
}

// The quadrant filter. A message that is in no quadrant has no place on a map and is dropped in
// every mode.
SynopDecoder::Step SynopDecoder::PassQuadrant(bool singleMessage) {
  const int quadrant = raw_.Station.Quadrant.value_or(0);
  const std::uint8_t bit = QuadrantFilterBit(quadrant);
  if (bit == 0) return Step::Drop;
  SetFlag(raw_.FilterFlags, QuadrantFlag(quadrant));
  const bool passes = singleMessage || (context_.Filters.QuadrantMask & bit) != 0;
  return passes ? Step::GoOn : Step::Drop;
}

// The sections follow each other in a fixed order: what stands behind a marker out of order is not
// read.
void SynopDecoder::ReadSections(SynopWalk& walk) {
  const bool sea = raw_.Station.Type == "BBXX";
  if (!sea && raw_.Station.Type != "AAXX") return;
  const auto opens = [&walk](std::string_view marker) { return walk.Part(1, 3) == marker; };

  SetFlag(raw_.FilterFlags, SynopFlag::Section1);
  ReadVisibilityGroup(walk);
  ++walk.WordIndex;
  ReadWindGroup(walk);
  ++walk.WordIndex;
  ReadSection(walk, Section1());
  if (opens("222")) {
    SetFlag(raw_.FilterFlags, SynopFlag::Section2);
    ReadShipMovement(walk);
    ++walk.WordIndex;
    ReadSection(walk, Section2());
  }
  if (opens("333")) {
    SetFlag(raw_.FilterFlags, SynopFlag::Section3);
    ++walk.WordIndex;
    ReadSection(walk, Section3());
  }
  if (opens("444")) {
    ++walk.WordIndex;
    ReadSection(walk, Section4());
  }
  if (sea && opens("555")) {
    SetFlag(raw_.FilterFlags, SynopFlag::Section5);
    ++walk.WordIndex;
    ReadSection5(walk);
  }
}

}  // namespace zg
