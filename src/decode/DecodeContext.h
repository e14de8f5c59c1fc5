// What the decoders of one run work with, and whom they tell what they have done.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "decode/MessageFilters.h"
#include "decode/MessageStore.h"
#include "shell/Platform.h"
#include "stations/StationDirectory.h"
#include "tables/ReportText.h"
#include "text/TextArena.h"
#include "text/TextRules.h"
#include "text/Windows1252.h"

namespace zg {

// A message that has passed the filters, as a decode window shows it. UTF-8.
struct AcceptedMessage {
  std::string_view Country;
  std::string_view ListName;  // the station, with the position of a ship or buoy
  std::string_view Station;
  std::string_view MsgId;
  std::string_view Type;
  std::string_view Sender;
  std::string_view SenderCity;
  std::string_view Day;   // two digits
  std::string_view Time;  // "12:50"
  int DecodedCount = 0;   // messages stored before this one
};

// Follows a run. Views are valid during the call, stored records until their store is reset.
class DecodeObserver {
 public:
  DecodeObserver() = default;
  DecodeObserver(const DecodeObserver&) = delete;
  DecodeObserver& operator=(const DecodeObserver&) = delete;
  virtual ~DecodeObserver() = default;

  // False saves the making of what MessageAccepted gets.
  virtual bool WantsAccepted() const { return false; }
  virtual void MessageAccepted(const AcceptedMessage&) {}
  // An accepted message turned out to be NIL: its station leaves the list.
  virtual void StationRemoved(std::string_view /*listName*/) {}

  virtual void MetarStored(const MetarRawData&, const MetarData&) {}
  virtual void SynopStored(const SynopRawData&, const SynopData&) {}
  // A line went to the wrong-line file. UTF-8.
  virtual void WrongLine(std::string_view) {}
};

// Everything but the stores is constant in a run. Nothing is owned.
struct DecodeContext {
  const StationDirectory& Stations;
  ReportUnits Units;
  MessageFilters Filters;
  MessageStores& Stores;
  LogList& Log;
  DecodeObserver& Observer;

  const TextUtility& Texts() const noexcept { return Units.Texts; }
};

// What became of a message.
struct DecodeOutcome {
  bool Stored = false;
  bool PrintWrongLine = false;  // the message is to go to the wrong-line file
};

// Shows a message that has passed the filters. `time` is YYGGgg of its heading or report.
inline void Publish(const DecodeContext& context, const StationBlock& station,
                    std::string_view listName, std::string_view time, int decodedCount) {
  const std::string clock = std::string(Mid(time, 3, 2)) + ":" + std::string(Mid(time, 5, 2));
  AcceptedMessage accepted;
  accepted.Country = station.Country;
  accepted.ListName = listName;
  accepted.Station = station.Station;
  accepted.MsgId = station.MsgId;
  accepted.Type = station.Type;
  accepted.Sender = station.Sender;
  accepted.SenderCity = context.Stations.GetStationByIcaoName(station.Sender);
  accepted.Day = Mid(time, 1, 2);
  accepted.Time = clock;
  accepted.DecodedCount = decodedCount;
  context.Observer.MessageAccepted(accepted);
}

// What a decoder needs while it works on one message.
class MessageScratch {
 public:
  // Forgets the message before and takes up this one; returns it as Text does.
  std::string_view Begin(std::string_view message) {
    arena_.Clear();
    ascii_ = IsAscii(message);
    return Text(message);
  }

  // A word of the message as a text of a record: the same view where it is ASCII, else a copy in
  // UTF-8 that is valid until Begin.
  std::string_view Text(std::string_view word) {
    return ascii_ || IsAscii(word) ? word : arena_.CopyWindows1252(word);
  }
  std::string_view Copy(std::string_view text) { return arena_.Copy(text); }

 private:
  TextArena arena_;
  bool ascii_ = false;  // the whole message is
};

// Logs a text in the language in force, with the number of the line behind it.
inline void LogAtLine(DecodeContext& context, std::string_view italian, std::string_view english,
                      std::int32_t line, std::string_view behind = {}) {
  std::string text(context.Texts().Choose(italian, english));
  context.Log.Log(text.append(PlainDecimal(line)).append(behind));
}

// Logs a word that could not be read as what it seemed to be.
inline void LogWrongItem(DecodeContext& context, std::int32_t line, std::string_view word) {
  LogAtLine(context, "Item errato. - Linea: ", "Wrong item found. - Line: ", line,
            " - Item: " + Windows1252ToUtf8(word));
}

// The bits that the four quadrants have in the quadrant filter, by the value of the quadrant (WMO
// code table 3333); 0 for no quadrant.
constexpr std::uint8_t QuadrantFilterBit(int quadrant) noexcept {
  switch (quadrant) {
    case 1:
      return 1;
    case 3:
      return 2;
    case 5:
      return 4;
    case 7:
      return 8;
    default:
      return 0;
  }
}

// The flag of a quadrant in FilterFlags, the same for all records; call for the four quadrants
// only.
constexpr unsigned QuadrantFlag(int quadrant) noexcept {
  switch (quadrant) {
    case 1:
      return MetarFlag::NorthEast;
    case 3:
      return MetarFlag::SouthEast;
    case 5:
      return MetarFlag::SouthWest;
    default:
      return MetarFlag::NorthWest;
  }
}

}  // namespace zg
