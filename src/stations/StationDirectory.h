// The station tables in memory: read once from the database, then asked for every message. A
// look-up allocates nothing. Loaded, the directory is constant, and several threads may ask it at
// once.
//
// Where a name is in two rows the one that was inserted first is found.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "stations/DBUtility.h"
#include "stations/StationBlock.h"
#include "text/TextArena.h"

namespace zg {

// A row of "MeteoStations". Texts are trimmed and live as long as the directory.
struct alignas(64) StationRow {
  int id = 0;                  // running number of the row in the directory, from 0
  std::int32_t WMOIndex = -1;  // block and station number as one number, -1 without one
  std::string_view Country;
  std::string_view IcaoName;
  std::string_view State;
  std::string_view Station;
  float Lat = 0.0f;            // tenths of a degree, north positive
  float Long = 0.0f;           // tenths of a degree, east positive
  std::string_view StationHT;  // whole metres, at least four digits; empty where unknown
  std::string_view SensorHT;
  int Quadrant = 0;  // by the letters of the position (WMO code table 3333); 0 without letters
};

// What a look-up of a word has found: made when the word is first seen, it serves once more when
// the word is decoded.
struct StationFound {
  std::string_view Word;  // the station, as the line has it; a view into the line
  const StationRow* Row = nullptr;
  bool ByNumber = false;  // by its WMO index, not by its indicator
};

// Fills in what the block does not know yet from a row: the name always, everything else where the
// block has nothing. A null row changes nothing.
void LoadStationRecord(const StationRow* row, StationBlock& Block);

class StationDirectory {
 public:
  StationDirectory() = default;
  StationDirectory(StationDirectory&&) noexcept = default;
  StationDirectory& operator=(StationDirectory&&) noexcept = default;

  // Reads "MeteoStations" and "ShipCountry", in place of what was there. False if the database
  // fails: then the directory holds what could be read.
  bool Load(DBUtility& dbUtility);

  // Number of the load: what was made from the rows holds while it and the directory are the same.
  int Generation() const noexcept { return generation_; }

  std::size_t Size() const noexcept { return rows_.size(); }
  const std::vector<StationRow>& Rows() const noexcept { return rows_; }

  // The row of a WMO index given as a word ("03772"); null if there is none or if the word is no
  // number. Rows without an index are not found.
  const StationRow* FindByWMOIndex(std::string_view word) const noexcept;
  // The row of an ICAO location indicator; null if there is none.
  const StationRow* FindByIcaoName(std::string_view IcaoName) const noexcept;

  // Looks up a word that is the one or the other: figures are a WMO index.
  StationFound FindByWord(std::string_view word) const noexcept;
  // The first two look-ups where this one may have been made before: then it is not made again.
  const StationRow* FindByWMOIndex(std::string_view word,
                                   const StationFound& before) const noexcept {
    return before.ByNumber && before.Word == word ? before.Row : FindByWMOIndex(word);
  }
  const StationRow* FindByIcaoName(std::string_view IcaoName,
                                   const StationFound& before) const noexcept {
    const bool same = before.Row != nullptr && !before.ByNumber && before.Word == IcaoName;
    return same ? before.Row : FindByIcaoName(IcaoName);
  }
  // Has the place brought near where a look-up of this word will look.
  void ExpectWord(std::string_view word) const noexcept;

  // Country of a place name; of a ship or buoy, whose list name ends in "]", by its call sign.
  std::string_view GetCountryByStation(std::string_view Station) const noexcept;
  // The row with name, position and quadrant of a station; null if there is none.
  const StationRow* GetStationByWMOIndex(std::int32_t WMOIndex) const noexcept;
  std::string_view GetIcaoNameByStation(std::string_view Station) const noexcept;
  std::string_view GetStationByIcaoName(std::string_view IcaoName) const noexcept;
  // WMO index of a place name; nothing if there is no such place, -1 if it has none.
  std::optional<std::int32_t> GetICAOIdByStation(std::string_view Station) const noexcept;
  // Names of all stations of a country, in the order of the table.
  std::vector<std::string_view> GetWMOList(std::string_view Country) const;
  std::string_view GetCountryByWMOIndex(std::int32_t WMOIndex) const noexcept;

  // Country to which the series of a radio call sign is allocated (ITU Radio Regulations, Appendix
  // 42). Empty for "SHIP" and for less than three characters.
  std::string_view GetShipCountry(std::string_view CallSign) const noexcept;

 private:
  // Open addressing with the key beside the row, so that no row is looked at in vain: a number or a
  // name of up to seven characters as it stands, a longer name by its hash. The size is a power
  // of 2.
  struct Slot {
    std::uint64_t key = 0;
    std::uint32_t row = 0;  // number of the row plus 1, 0 where the slot is free
  };
  using Slots = std::vector<Slot>;
  struct ShipRange {
    std::int64_t StartIndex;
    std::string_view Country;
  };

  bool LoadStations(DBUtility& dbUtility);
  bool LoadShipRanges(DBUtility& dbUtility);
  void BuildSlots();
  const StationRow* FindByNumber(std::int64_t number) const noexcept;
  const StationRow* FindByName(const Slots& slots, std::string_view StationRow::*field,
                               std::string_view name) const noexcept;

  int generation_ = 0;
  TextArena texts_;
  std::vector<StationRow> rows_;
  std::vector<ShipRange> shipRanges_;  // by StartIndex
  Slots byWMOIndex_;
  Slots byIcaoName_;
  Slots byStation_;
};

}  // namespace zg
