// What the decode window shows of a run: the countries and the stations that have reported, and the
// message that came last; and the texts of its fields.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "decode/DecodeContext.h"
#include "decode/LineList.h"

namespace zg {

// Follows a run. The texts are those of the last message that has passed the filters.
struct DecodeLists : DecodeObserver {
  LineList Countries;
  LineList Stations;
  std::string Type;
  std::string Day;
  std::string Time;
  std::string MsgId;
  std::string Sender;
  std::string SenderCity;
  std::string Country;
  std::string Station;
  int DecodedCount = 0;  // messages stored when it came

  // Empties all, for a new run.
  void Clear();

  bool WantsAccepted() const override { return true; }
  void MessageAccepted(const AcceptedMessage& message) override;
  void StationRemoved(std::string_view listName) override { Stations.Remove(listName); }
};

// The quadrants that "QuadrantFilter" lets pass, such as "NE NW ", and the kinds of station that
// "StationType" lets pass, such as "Ship Land "; the masks are those of MessageFilters.
std::string QuadrantFilterText(std::uint8_t mask);
std::string StationFilterText(std::uint8_t mask);

// How much of the file is read, "42%". Below half a percent there is no figure; of an empty file
// there is nothing to say.
std::string PercentText(std::int64_t position, std::int64_t maximum);

// What follows the last separator of a path, of either kind.
std::string_view FileNameOfPath(std::string_view path) noexcept;

}  // namespace zg
