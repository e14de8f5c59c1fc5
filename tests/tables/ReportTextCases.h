// What the tests of METAR and SYNOP report texts share: a stored record made from a working record,
// and tables of values with the texts that they give.
#pragma once

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "decode/MessageStore.h"
#include "stations/StationBlock.h"
#include "tables/ConversionUtility.h"
#include "tables/ReportText.h"
#include "tables/TextUtility.h"

namespace zg::test {

inline constexpr const char* NoUnit = "";

// A station with everything that a list can tell.
inline StationBlock DenverStation() {
  return {.WMOIndex = 72565,
          .State = "CO",
          .Station = "Denver",
          .Country = "United States",
          .IcaoName = "KDEN",
          .LatPosition = 398.3333f,
          .LongPosition = -1046.6666f,
          .StationHT = "1656",
          .SensorHT = "1657",
          .Quadrant = 7,
          .MsgId = "SAUS31",
          .Type = "METAR",
          .Sender = "KWBC",
          .AddedInfo = "RRA"};
}

// The record that `StoreRecord` makes of a working record, in a language (English where none is
// given) and with one unit chosen.
template <typename RawData, typename StoredData, auto StoreRecord>
struct StoredRecord {
  using Raw = RawData;
  using Data = StoredData;

  explicit StoredRecord(const Raw& raw) : StoredRecord(raw, 1, UnitKind::Level, NoUnit) {}
  StoredRecord(const Raw& raw, std::uint8_t language, UnitKind kind, const char* unit)
      : data(Make(raw, language, kind, unit)) {}

  const Data& Make(const Raw& raw, std::uint8_t language, UnitKind kind, const char* unit) {
    texts.SetLanguage(language);
    texts.SetUnit(kind, unit);
    return StoreRecord(raw, -1, {texts, conversion}, store);
  }

  TextUtility texts;
  ConversionUtility conversion{texts};
  MessageStore<Data> store;
  const Data& data;
};

// What `set` writes into an empty working record, and the text that `get` finds in the stored one.
template <typename Stored>
struct ValueCase {
  const char* name;
  void (*set)(typename Stored::Raw&);
  std::string_view (*get)(const typename Stored::Data&);
  UnitKind kind;
  const char* unit;
  const char* english;
  const char* italian = nullptr;  // none: as in English
};

template <typename Stored>
void ExpectValues(const std::vector<ValueCase<Stored>>& cases) {
  for (const ValueCase<Stored>& row : cases) {
    typename Stored::Raw raw;
    row.set(raw);
    const std::string_view english = row.english;
    const std::string_view italian = row.italian == nullptr ? row.english : row.italian;
    EXPECT_EQ(row.get(Stored(raw, 1, row.kind, row.unit).data), english) << row.name;
    EXPECT_EQ(row.get(Stored(raw, 0, row.kind, row.unit).data), italian) << row.name;
  }
}

// The two functions of a ValueCase, where `Stored` is the record under test.
#define ZG_SET(statements) [](Stored::Raw& r) { statements; }
#define ZG_GET(field) [](const Stored::Data& d) -> std::string_view { return d.field; }

}  // namespace zg::test
