#include "stations/StationDirectory.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <string>
#include <unordered_map>

#include "maps/LatLongUtility.h"
#include "text/MemoryHints.h"
#include "text/TextRules.h"
#include "text/Windows1252.h"

namespace zg {
namespace {

constexpr std::int32_t NoIndex = -1;
constexpr std::int64_t MaxReserve = 100'000;  // rows; whatever the database says of its size
constexpr std::string_view HeightMask = "0000";

constexpr std::size_t ShortName = 7;  // characters that fit a key together with their number

// Spreads the bits of a key over a hash table (Fibonacci hashing).
std::size_t HashKey(std::uint64_t key) noexcept {
  return static_cast<std::size_t>(key * 0x9E3779B97F4A7C15u >> 32U);
}

std::uint64_t KeyOf(std::int64_t number) noexcept { return static_cast<std::uint64_t>(number); }

std::uint64_t KeyOf(std::string_view name) noexcept {
  if (name.size() > ShortName) return std::hash<std::string_view>()(name);
  std::uint64_t key = 0;
  for (char c : name) key = key << 8U | static_cast<unsigned char>(c);
  return key << 8U | name.size();
}

std::size_t HashName(std::string_view name) noexcept { return HashKey(KeyOf(name)); }

// Copies texts into an arena; a text that comes again is the same view.
class TextPool {
 public:
  explicit TextPool(TextArena& arena) : arena_(arena) {}

  // For texts that are mostly different.
  std::string_view Copy(std::string_view text) {
    text = Trim(text);
    if (IsAscii(text) || IsUtf8(text)) return arena_.Copy(text);
    return arena_.Copy(Windows1252ToUtf8(text));
  }

  // For texts of which there are few, and often the same several times on end.
  std::string_view Share(std::string_view text) {
    text = Trim(text);
    if (text.empty()) return {};
    if (text == last_) return last_;
    const auto known = shared_.find(text);
    if (known != shared_.end()) return last_ = known->second;
    last_ = Copy(text);
    shared_.emplace(std::string(text), last_);
    return last_;
  }

  std::string_view Height(std::optional<double> metres) {
    if (!metres) return {};
    const auto known = heights_.find(*metres);
    if (known != heights_.end()) return known->second;
    const std::string_view copy = arena_.Copy(FormatNumber(*metres, HeightMask));
    heights_.emplace(*metres, copy);
    return copy;
  }

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept { return HashName(text); }
    std::size_t operator()(double number) const noexcept {
      return HashKey(std::bit_cast<std::uint64_t>(number));
    }
  };

  TextArena& arena_;
  std::unordered_map<std::string, std::string_view, Hash, std::equal_to<>> shared_;
  std::unordered_map<double, std::string_view, Hash> heights_;
  std::string_view last_;
};

char LastLetter(std::string_view text) noexcept { return text.empty() ? ' ' : text.back(); }

// Quadrant of the globe (WMO code table 3333) by the letters of a position.
int QuadrantOf(char latitude, char longitude) noexcept {
  if (latitude == 'N') return longitude == 'E' ? 1 : longitude == 'W' ? 7 : 0;
  if (latitude == 'S') return longitude == 'E' ? 3 : longitude == 'W' ? 5 : 0;
  return 0;
}

int QuadrantOf(float latitude, float longitude) noexcept {
  if (latitude >= 0.0f) return longitude >= 0.0f ? 1 : 7;
  return longitude >= 0.0f ? 3 : 5;
}

}  // namespace

void LoadStationRecord(const StationRow* row, StationBlock& Block) {
  if (row == nullptr) return;
  const auto fill = [](std::string_view& field, std::string_view value) {
    if (field.empty()) field = value;
  };
  Block.Station = row->Station;
  if (Block.WMOIndex == NoIndex) Block.WMOIndex = row->WMOIndex;
  fill(Block.Country, row->Country);
  fill(Block.IcaoName, row->IcaoName);
  fill(Block.State, row->State);
  if (!Block.LatPosition) Block.LatPosition = row->Lat;
  if (!Block.LongPosition) Block.LongPosition = row->Long;
  fill(Block.SensorHT, row->SensorHT);
  fill(Block.StationHT, row->StationHT);
  if (!Block.Quadrant) Block.Quadrant = QuadrantOf(*Block.LatPosition, *Block.LongPosition);
}

bool StationDirectory::Load(DBUtility& dbUtility) {
  const int generation = generation_ + 1;
  *this = StationDirectory();
  generation_ = generation;
  const bool stations = LoadStations(dbUtility);
  const bool ships = LoadShipRanges(dbUtility);
  BuildSlots();
  return stations && ships;
}

bool StationDirectory::LoadStations(DBUtility& dbUtility) {
  TextPool pool(texts_);
  dbUtility.ReadRows("select max(rowid) from MeteoStations", [&](const RowView& view) {
    rows_.reserve(
        static_cast<std::size_t>(std::clamp<std::int64_t>(view.Integer(0), 0, MaxReserve)));
  });
  return dbUtility.ReadRows(
      "select WMOIndex, Country, IcaoName, State, Station, StationLat, StationLong, StationHT, "
      "SensorHT from MeteoStations order by rowid",
      [&](const RowView& view) {
        StationRow row;
        row.id = static_cast<int>(rows_.size());
        const std::optional<double> index = view.Number(0);
        row.WMOIndex = index ? ToInteger<std::int32_t>(*index).value_or(NoIndex) : NoIndex;
        row.Country = pool.Share(view.Text(1));
        row.IcaoName = pool.Copy(view.Text(2));
        row.State = pool.Share(view.Text(3));
        row.Station = pool.Copy(view.Text(4));
        const std::string_view latitude = Trim(view.Text(5));
        const std::string_view longitude = Trim(view.Text(6));
        row.Lat = GetPosition(latitude);
        row.Long = GetPosition(longitude);
        row.Quadrant = QuadrantOf(LastLetter(latitude), LastLetter(longitude));
        row.StationHT = pool.Height(view.Number(7));
        row.SensorHT = pool.Height(view.Number(8));
        rows_.push_back(row);
      });
}

bool StationDirectory::LoadShipRanges(DBUtility& dbUtility) {
  TextPool pool(texts_);
  return dbUtility.ReadRows(
      "select StartIndex, Country from ShipCountry order by StartIndex, rowid",
      [&](const RowView& view) {
        shipRanges_.push_back({view.Integer(0), pool.Share(view.Text(1))});
      });
}

void StationDirectory::BuildSlots() {
  std::size_t size = 16;
  while (size < rows_.size() * 2) size *= 2;
  for (Slots* slots : {&byWMOIndex_, &byIcaoName_, &byStation_}) slots->assign(size, Slot());

  // Puts a row into the first free slot, unless a row with the same key got there before it.
  const auto place = [&](Slots& slots, std::uint64_t key, const StationRow& row, const auto& same) {
    std::size_t at = HashKey(key) & (size - 1);
    for (; slots[at].row != 0; at = (at + 1) & (size - 1)) {
      if (slots[at].key == key && same(rows_[slots[at].row - 1])) return;
    }
    slots[at] = {key, static_cast<std::uint32_t>(row.id) + 1};
  };
  const auto placeName = [&](Slots& slots, std::string_view StationRow::*field,
                             const StationRow& row) {
    if ((row.*field).empty()) return;
    place(slots, KeyOf(row.*field), row,
          [&](const StationRow& other) { return other.*field == row.*field; });
  };
  for (const StationRow& row : rows_) {
    if (row.WMOIndex != NoIndex) {
      place(byWMOIndex_, KeyOf(row.WMOIndex), row, [](const StationRow&) { return true; });
    }
    placeName(byIcaoName_, &StationRow::IcaoName, row);
    placeName(byStation_, &StationRow::Station, row);
  }
}

const StationRow* StationDirectory::FindByNumber(std::int64_t number) const noexcept {
  if (byWMOIndex_.empty()) return nullptr;
  const std::size_t mask = byWMOIndex_.size() - 1;
  const std::uint64_t key = KeyOf(number);
  for (std::size_t at = HashKey(key) & mask; byWMOIndex_[at].row != 0; at = (at + 1) & mask) {
    if (byWMOIndex_[at].key == key) return &rows_[byWMOIndex_[at].row - 1];
  }
  return nullptr;
}

const StationRow* StationDirectory::FindByName(const Slots& slots,
                                               std::string_view StationRow::*field,
                                               std::string_view name) const noexcept {
  if (slots.empty() || name.empty()) return nullptr;
  const std::size_t mask = slots.size() - 1;
  const std::uint64_t key = KeyOf(name);
  for (std::size_t at = HashKey(key) & mask; slots[at].row != 0; at = (at + 1) & mask) {
    if (slots[at].key != key) continue;
    const StationRow& row = rows_[slots[at].row - 1];
    // A short key says the whole name.
    if (name.size() <= ShortName || row.*field == name) return &row;
  }
  return nullptr;
}

const StationRow* StationDirectory::FindByWMOIndex(std::string_view word) const noexcept {
  const std::optional<double> number = StrictNumber(word);
  if (!number) return nullptr;
  const std::optional<std::int32_t> whole = ToInteger<std::int32_t>(*number);
  return whole && static_cast<double>(*whole) == *number ? FindByNumber(*whole) : nullptr;
}

// Names with the quote that a query puts around them find nothing: ' in look-ups by indicator and
// for indicators, " in the others.
const StationRow* StationDirectory::FindByIcaoName(std::string_view IcaoName) const noexcept {
  if (Holds(IcaoName, '\'')) return nullptr;
  return FindByName(byIcaoName_, &StationRow::IcaoName, IcaoName);
}

StationFound StationDirectory::FindByWord(std::string_view word) const noexcept {
  std::uint32_t number = 0;
  if (ReadFigures(word, number)) {
    return {.Word = word, .Row = FindByNumber(number), .ByNumber = true};
  }
  return {.Word = word, .Row = FindByIcaoName(word)};
}

void StationDirectory::ExpectWord(std::string_view word) const noexcept {
  std::uint32_t number = 0;
  const bool isNumber = ReadFigures(word, number);
  const Slots& slots = isNumber ? byWMOIndex_ : byIcaoName_;
  if (word.empty() || slots.empty()) return;
  const std::uint64_t key = isNumber ? KeyOf(std::int64_t{number}) : KeyOf(word);
  PrefetchForReading(&slots[HashKey(key) & (slots.size() - 1)]);
}

std::string_view StationDirectory::GetCountryByStation(std::string_view Station) const noexcept {
  if (Station.ends_with(']')) {
    const auto begins = Station.substr(0, 2);
    const bool isCallSign = std::any_of(begins.begin(), begins.end(), IsLetter);
    return isCallSign ? GetShipCountry(Station.substr(0, Station.find(' '))) : std::string_view();
  }
  if (Holds(Station, "\"")) return {};
  const StationRow* row = FindByName(byStation_, &StationRow::Station, Station);
  return row != nullptr ? row->Country : std::string_view();
}

const StationRow* StationDirectory::GetStationByWMOIndex(std::int32_t WMOIndex) const noexcept {
  return FindByNumber(WMOIndex);
}

std::string_view StationDirectory::GetIcaoNameByStation(std::string_view Station) const noexcept {
  if (Holds(Station, "'")) return {};
  const StationRow* row = FindByName(byStation_, &StationRow::Station, Station);
  return row != nullptr ? row->IcaoName : std::string_view();
}

std::string_view StationDirectory::GetStationByIcaoName(std::string_view IcaoName) const noexcept {
  const StationRow* row = FindByIcaoName(IcaoName);
  return row != nullptr ? row->Station : std::string_view();
}

std::optional<std::int32_t> StationDirectory::GetICAOIdByStation(
    std::string_view Station) const noexcept {
  if (Holds(Station, "\"")) return std::nullopt;
  const StationRow* row = FindByName(byStation_, &StationRow::Station, Station);
  if (row == nullptr) return std::nullopt;
  return row->WMOIndex;
}

std::vector<std::string_view> StationDirectory::GetWMOList(std::string_view Country) const {
  std::vector<std::string_view> names;
  if (Holds(Country, "\"")) return names;
  for (const StationRow& row : rows_) {
    if (row.Country == Country) names.push_back(row.Station);
  }
  return names;
}

std::string_view StationDirectory::GetCountryByWMOIndex(std::int32_t WMOIndex) const noexcept {
  const StationRow* row = FindByNumber(WMOIndex);
  return row != nullptr ? row->Country : std::string_view();
}

std::string_view StationDirectory::GetShipCountry(std::string_view CallSign) const noexcept {
  if (CallSign.size() < 3 || CallSign.starts_with("SHIP")) return {};
  std::int64_t key = 0;
  for (char c : CallSign.substr(0, 3)) key = key * 256 + static_cast<unsigned char>(c);
  const auto above = std::upper_bound(
      shipRanges_.begin(), shipRanges_.end(), key,
      [](std::int64_t value, const ShipRange& it) { return value < it.StartIndex; });
  return above == shipRanges_.begin() ? std::string_view() : std::prev(above)->Country;
}

}  // namespace zg
