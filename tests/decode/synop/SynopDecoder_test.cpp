#include "decode/synop/SynopDecoder.h"

#include "decode/DecoderBench.h"
#include "decode/synop/SynopTestSupport.h"

namespace zg {
namespace {

using test::BitsText;
using test::DecoderBench;
using test::Describe;

using Lines = std::vector<std::string>;
constexpr auto AAXX = MessageType::AAXX;
constexpr auto BBXX = MessageType::BBXX;

// The decoder between the words of a message and the store.
struct SynopBench : DecoderBench {
  SynopBench() {
    Observer.OnSynop = [this](const SynopRawData& raw) {
      Keep(Describe(raw), raw.FilterFlags);
      WindUnitInd = raw.WindUnitInd;
    };
  }

  DecodeOutcome Decode(MessageType type, std::string_view text, bool heading = true,
                       bool single = false) {
    return decoder.DecodeSynopMessage(Begin(type, text, heading, single),
                                      static_cast<int>(Synops().size()));
  }
  const SynopData& Last() const { return Synops().back(); }

  int WindUnitInd = -1;
  SynopDecoder decoder{Context};
};

TEST(SynopDecoder, LandHeading) {
  struct Row {
    const char* name;
    const char* text;
    const char* addedInfo;
  };
  const Row rows[] = {
      {"plain", "SMIY01 LIIB 151200 AAXX 15121 16242 41256 82703 10123", ""},
      {"added information", "SMIY01 LIIB 151200 RRA AAXX 15121 16242 41256 82703 10123", "RRA"},
      {"time cut", "SMIY01 LIIB 15120099 AAXX 15121 16242 41256 82703 10123", ""},
  };
  SynopBench bench;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ASSERT_TRUE(bench.Decode(AAXX, row.text).Stored);
    const SynopData& record = bench.Last();
    EXPECT_EQ(record.Msg, row.text);
    EXPECT_EQ(record.Station.MsgId, "SMIY01");
    EXPECT_EQ(record.Station.Sender, "LIIB");
    EXPECT_EQ(record.Station.AddedInfo, row.addedInfo);
    EXPECT_EQ(record.Station.Type, "AAXX");
    EXPECT_EQ(record.IssueTime, "15/12:00Z");
    EXPECT_EQ(record.Station.WMOIndex(), 16242);
    EXPECT_EQ(record.Station.Station(), "Roma Fiumicino");
    EXPECT_EQ(record.Station.Country(), "Italy");
    EXPECT_EQ(record.Station.IcaoName(), "LIRF");
    EXPECT_EQ(record.Station.LatPosition(), "41.48N");
    EXPECT_EQ(record.Station.LongPosition(), "012.14E");
    EXPECT_EQ(record.Station.StationHT(), "0002");
    EXPECT_EQ(record.Station.SensorHT(), "0003");
    EXPECT_EQ(record.Station.Quadrant(), "North-Est");
    EXPECT_EQ(record.Station.StationKind, 1);
    EXPECT_EQ(bench.Flags, "1,4,7,9");
    EXPECT_EQ(bench.WindUnitInd, 1);
    EXPECT_EQ(bench.Fields,
              "PrecipInd=4 StationType=1 LowestCloud=2 Visibility=56 CloudCover=8 "
              "WindDirection=27 WindSpeed=3 Temperature=12.3");
    EXPECT_TRUE(bench.Log.Lines.empty());
  }
}

TEST(SynopDecoder, SeaHeading) {
  struct Row {
    const char* name;
    const char* text;
    const char* station;
    const char* country;
    std::int32_t kind;
    const char* latitude;
    const char* longitude;
    const char* quadrant;
    const char* flags;
  };
  const Row rows[] = {
      {"ship, north-east", "BBXX DBBH 15121 99423 10123 41256 82703", "DBBH", "Germany", 2,
       "42.18N", "012.18E", "North-Est", "1,6,8,9"},
      {"ship, south-east", "BBXX DBBH 15121 99423 30123 41256 82703", "DBBH", "Germany", 2,
       "42.18S", "012.18E", "South-Est", "3,6,8,9"},
      {"ship, south-west", "BBXX DBBH 15121 99423 50123 41256 82703", "DBBH", "Germany", 2,
       "42.18S", "012.18W", "South-West", "2,6,8,9"},
      {"ship, north-west", "BBXX DBBH 15121 99423 70123 41256 82703", "DBBH", "Germany", 2,
       "42.18N", "012.18W", "North-West", "0,6,8,9"},
      {"letter at the second place", "BBXX 9CAA 15121 99423 10123 41256 82703", "9CAA", "", 2,
       "42.18N", "012.18E", "North-Est", "1,6,8,9"},
      {"buoy", "BBXX 62001 15121 99423 10123 41256 82703", "62001", "Unknow", 3, "42.18N",
       "012.18E", "North-Est", "1,5,8,9"},
      {"no latitude", "BBXX DBBH 15121 99/// 10123 41256 82703", "DBBH", "Germany", 2, "",
       "012.18E", "North-Est", "1,6,8,9"},
      {"no longitude", "BBXX DBBH 15121 99423 1//// 41256 82703", "DBBH", "Germany", 2, "42.18N",
       "", "North-Est", "1,6,8,9"},
      {"no position at all, south-west", "BBXX DBBH 15121 99/// 5//// 41256 82703", "DBBH",
       "Germany", 2, "", "", "South-West", "2,6,8,9"},
      {"the front of the latitude does not count", "BBXX DBBH XX121 XX423 10123 41256 82703",
       "DBBH", "Germany", 2, "42.18N", "012.18E", "North-Est", "1,6,8,9"},
  };
  SynopBench bench;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ASSERT_TRUE(bench.Decode(BBXX, row.text, false, true).Stored);
    const StationTexts& station = bench.Last().Station;
    EXPECT_EQ(station.Station(), row.station);
    EXPECT_EQ(station.Country(), row.country);
    EXPECT_EQ(station.StationKind, row.kind);
    EXPECT_EQ(station.LatPosition(), row.latitude);
    EXPECT_EQ(station.LongPosition(), row.longitude);
    EXPECT_EQ(station.Quadrant(), row.quadrant);
    EXPECT_EQ(station.WMOIndex(), -1);
    EXPECT_EQ(station.Type, "BBXX");
    EXPECT_EQ(bench.Flags, row.flags);
    EXPECT_EQ(bench.WindUnitInd, 1);
  }
  // With a heading in front.
  ASSERT_TRUE(
      bench.Decode(BBXX, "SMVD01 EDZW 151200 RRB BBXX DBBH 15121 99423 10123 41256 82703").Stored);
  EXPECT_EQ(bench.Last().Station.MsgId, "SMVD01");
  EXPECT_EQ(bench.Last().Station.Sender, "EDZW");
  EXPECT_EQ(bench.Last().Station.AddedInfo, "RRB");
  EXPECT_EQ(bench.Last().IssueTime, "15/12:00Z");
  EXPECT_EQ(bench.Last().Station.Station(), "DBBH");
}

TEST(SynopDecoder, WithoutInformation) {
  struct Row {
    const char* name;
    MessageType type;
    const char* text;
    bool heading;
    bool stored;
  };
  const Row rows[] = {
      {"eight words", AAXX, "SMIY01 LIIB 151200 AAXX 15121 16242 41256 82703", true, false},
      {"nine words", AAXX, "SMIY01 LIIB 151200 AAXX 15121 16242 41256 82703 10123", true, true},
      {"eight words of a ship", BBXX, "SMVD01 EDZW 151200 BBXX DBBH 15121 99423 10123", true,
       false},
      {"no heading, five words", AAXX, "AAXX 15121 16242 41256 82703", false, false},
      {"no heading, six words", AAXX, "AAXX 15121 16242 41256 82703 10123", false, true},
      {"no words", AAXX, "", true, false},
      {"ship reports nothing", BBXX, "SMVD01 EDZW 151200 BBXX DBBH NIL X X X", true, false},
      {"with equals sign", BBXX, "SMVD01 EDZW 151200 BBXX DBBH NIL= X X X", true, false},
  };
  for (const Row& row : rows) {
    for (const bool single : {false, true}) {
      SCOPED_TRACE(std::string(row.name) + (single ? ", typed" : ""));
      SynopBench bench;
      const auto outcome = bench.Decode(row.type, row.text, row.heading, single);
      EXPECT_EQ(outcome.Stored, row.stored);
      EXPECT_EQ(outcome.PrintWrongLine, !row.stored && !single);
      EXPECT_EQ(bench.Log.Lines,
                row.stored ? Lines{} : Lines{"Message without informations. Line: 7"});
      EXPECT_EQ(bench.Synops().size(), row.stored ? 1u : 0u);
    }
  }
  SynopBench bench;
  bench.Texts.SetLanguage(0);
  bench.Decode(AAXX, "AAXX");
  EXPECT_EQ(bench.Log.Lines, Lines{"Messaggio senza informazioni. Line: 7"});
}

TEST(SynopDecoder, StationNil) {
  for (const std::uint8_t language : {std::uint8_t{0}, std::uint8_t{1}}) {
    SynopBench bench;
    bench.Texts.SetLanguage(language);
    const auto outcome = bench.Decode(BBXX, "SMVD01 EDZW 151200 BBXX NIL 15121 99423 10123 41256");
    EXPECT_FALSE(outcome.Stored);
    EXPECT_TRUE(outcome.PrintWrongLine);
    EXPECT_EQ(bench.Log.Lines, Lines{"Station = NIL; Line: 7 - Item: 15121"});
  }
}

TEST(SynopDecoder, NoTypeWord) {
  constexpr const char* text = "SMIY01 LIIB 151200 15121 16242 41256 82703 10123 20101";
  SynopBench bench;
  auto outcome = bench.Decode(AAXX, text);
  EXPECT_FALSE(outcome.Stored);
  EXPECT_TRUE(outcome.PrintWrongLine);
  EXPECT_EQ(bench.Log.Lines, Lines{"Wrong Char on Field; Line: 7 - Item: 15121"});
  bench.Texts.SetLanguage(0);
  outcome = bench.Decode(AAXX, text, true, true);
  EXPECT_FALSE(outcome.Stored);
  EXPECT_FALSE(outcome.PrintWrongLine);
  EXPECT_EQ(bench.Log.Lines, Lines{"Carattere Illecito; Line: 7 - Item: 15121"});
}

TEST(SynopDecoder, WindUnit) {
  struct Row {
    const char* name;
    MessageType type;
    const char* text;
    int windUnit;
    const char* windSpeed;
    Lines log;
  };
  // Each message comes behind the one before.
  const Row rows[] = {
      {"ship, knots", BBXX, "BBXX DBBH 15124 99423 10123 ///// ///10", 4, "10.0 KTS (Anem.)", {}},
      {"ship that does not say",
       BBXX,
       "BBXX DBBH 1512/ 99423 10123 ///// ///10",
       4,
       "10.0 KTS (Anem.)",
       {}},
      {"land that cannot be read",
       AAXX,
       "AAXX 1512/ 16242 ///// ///10 10123",
       4,
       "10.0 KTS (Anem.)",
       {"Wrong item found. - Line: 7 - Item: 1512/"}},
      {"land, metres a second",
       AAXX,
       "AAXX 15120 16242 ///// ///10 10123",
       0,
       "10.0 mps (Estim.)",
       {}},
      {"ship of a letter is nought",
       BBXX,
       "BBXX DBBH 1512X 99423 10123 ///// ///10",
       0,
       "10.0 mps (Estim.)",
       {}},
      {"land, unknown unit", AAXX, "AAXX 15122 16242 ///// ///10 10123", 2, "", {}},
      {"carried over from land", BBXX, "BBXX DBBH 1512/ 99423 10123 ///// ///10", 2, "", {}},
  };
  SynopBench bench;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ASSERT_TRUE(bench.Decode(row.type, row.text, false, true).Stored);
    EXPECT_EQ(bench.WindUnitInd, row.windUnit);
    EXPECT_EQ(bench.Last().WindSpeed, row.windSpeed);
    EXPECT_EQ(bench.Log.Lines, row.log);
  }
}

TEST(SynopDecoder, NoIssueTimeWithoutHeading) {
  SynopBench bench;
  ASSERT_TRUE(bench.Decode(AAXX, "SMIY01 LIIB 151200 AAXX 15121 16242 41256 82703 10123").Stored);
  ASSERT_TRUE(bench.Decode(AAXX, "AAXX 15121 16242 41256 82703 10123", false).Stored);
  EXPECT_EQ(bench.Last().IssueTime, "");
  EXPECT_EQ(bench.Last().Station.MsgId, "");
}

TEST(SynopDecoder, Filters) {
  struct Row {
    const char* name;
    MessageType type;
    const char* text;
    std::vector<std::string> countries;
    std::uint8_t quadrants;
    std::uint8_t kinds;
    bool storedFromFile;
    bool storedTyped;
  };
  constexpr const char* rome = "AAXX 15121 16242 41256 82703 10123";
  constexpr const char* ship = "BBXX DBBH 15121 99423 70123 41256 82703";
  constexpr const char* buoy = "BBXX 62001 15121 99423 50123 41256 82703";
  constexpr const char* southEast = "BBXX DBBH 15121 99423 30123 41256 82703";
  const Row rows[] = {
      {"land, open", AAXX, rome, {""}, 15, 7, true, true},
      {"ship, open", BBXX, ship, {""}, 15, 7, true, true},
      {"buoy, open", BBXX, buoy, {""}, 15, 7, true, true},
      {"land alone: land", AAXX, rome, {""}, 15, 4, true, true},
      {"land alone: ship", BBXX, ship, {""}, 15, 4, false, true},
      {"ships alone: ship", BBXX, ship, {""}, 15, 2, true, true},
      {"ships alone: buoy", BBXX, buoy, {""}, 15, 2, false, true},
      {"buoys alone: buoy", BBXX, buoy, {""}, 15, 1, true, true},
      {"buoys alone: land", AAXX, rome, {""}, 15, 1, false, true},
      {"its country", AAXX, rome, {"Italy"}, 15, 7, true, true},
      {"another country", AAXX, rome, {"Germany"}, 15, 7, false, true},
      {"country of the ship", BBXX, ship, {"Germany"}, 15, 7, true, true},
      {"country of buoys", BBXX, buoy, {"Unknow"}, 15, 7, true, true},
      {"north-east alone", AAXX, rome, {""}, 1, 7, true, true},
      {"south-east alone", BBXX, southEast, {""}, 2, 7, true, true},
      {"south-west alone", BBXX, buoy, {""}, 4, 7, true, true},
      {"north-west alone", BBXX, ship, {""}, 8, 7, true, true},
      {"not north-east", AAXX, rome, {""}, 14, 7, false, true},
      {"not south-east", BBXX, southEast, {""}, 13, 7, false, true},
      {"not south-west", BBXX, buoy, {""}, 11, 7, false, true},
      {"not north-west", BBXX, ship, {""}, 7, 7, false, true},
      {"unknown land station",
       AAXX,
       "AAXX 15121 99999 41256 82703 10123",
       {""},
       15,
       7,
       false,
       false},
      {"ship without country",
       BBXX,
       "BBXX SHIP 15121 99423 70123 41256 82703",
       {""},
       15,
       7,
       false,
       true},
      {"no quadrant", BBXX, "BBXX DBBH 15121 99423 /0123 41256 82703", {""}, 15, 7, false, false},
      {"another quadrant",
       BBXX,
       "BBXX DBBH 15121 99423 20123 41256 82703",
       {""},
       15,
       7,
       false,
       false},
      {"quadrant that is no figure",
       BBXX,
       "BBXX DBBH 15121 99423 X0123 41256 82703",
       {""},
       15,
       7,
       false,
       false},
  };
  for (const Row& row : rows) {
    for (const bool single : {false, true}) {
      SCOPED_TRACE(std::string(row.name) + (single ? ", typed" : ""));
      SynopBench bench;
      bench.Context.Filters = {row.countries, row.quadrants, row.kinds};
      const auto outcome = bench.Decode(row.type, row.text, false, single);
      const bool stored = single ? row.storedTyped : row.storedFromFile;
      EXPECT_EQ(outcome.Stored, stored);
      // What the filters drop leaves no trace.
      EXPECT_FALSE(outcome.PrintWrongLine);
      EXPECT_TRUE(bench.Log.Lines.empty());
      EXPECT_EQ(bench.Synops().size(), stored ? 1u : 0u);
      EXPECT_EQ(bench.Observer.Messages.size(), stored && !single ? 1u : 0u);
    }
  }
}

TEST(SynopDecoder, Publish) {
  struct Row {
    MessageType type;
    const char* text;
    const char* country;
    const char* listName;
    const char* station;
  };
  const Row rows[] = {
      {AAXX, "SMUK01 EGLL 151230 AAXX 15121 16242 41256 82703 10123", "Italy", "Roma Fiumicino",
       "Roma Fiumicino"},
      {BBXX, "SMUK01 EGLL 151230 BBXX DBBH 15121 99423 10123 41256 82703", "Germany",
       "DBBH [42.18N 012.18E]", "DBBH"},
      {BBXX, "SMUK01 EGLL 151230 BBXX 62001 15121 99423 70123 41256 82703", "Unknow",
       "62001 [42.18N 012.18W]", "62001"},
      {BBXX, "SMUK01 EGLL 151230 BBXX DBBH 15121 99/// 10123 41256 82703", "Germany", "DBBH []",
       "DBBH"},
  };
  SynopBench bench;
  int stored = 0;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.listName);
    ASSERT_TRUE(bench.Decode(row.type, row.text).Stored);
    ASSERT_EQ(bench.Observer.Messages.size(), 1u);
    const auto& message = bench.Observer.Messages[0];
    EXPECT_EQ(message.Country, row.country);
    EXPECT_EQ(message.ListName, row.listName);
    EXPECT_EQ(message.Station, row.station);
    EXPECT_EQ(message.MsgId, "SMUK01");
    EXPECT_EQ(message.Type, MessageTypeName(row.type));
    EXPECT_EQ(message.Sender, "EGLL");
    EXPECT_EQ(message.SenderCity, "London Heathrow");
    EXPECT_EQ(message.Day, "15");
    EXPECT_EQ(message.Time, "12:30");
    EXPECT_EQ(message.DecodedCount, stored++);
  }
}

TEST(SynopDecoder, Nil) {
  SynopBench bench;
  const auto outcome = bench.Decode(AAXX, "SMIY01 LIIB 151200 AAXX 15121 16242 NIL X X");
  EXPECT_FALSE(outcome.Stored);
  EXPECT_TRUE(outcome.PrintWrongLine);
  EXPECT_TRUE(bench.Log.Lines.empty());
  EXPECT_TRUE(bench.Synops().empty());
  EXPECT_EQ(bench.Observer.Messages.size(), 1u);  // the country stays in its list
  EXPECT_EQ(bench.Observer.Removed, Lines{"Roma Fiumicino"});
}

TEST(SynopDecoder, NilOfAnotherSpelling) {
  const Lines threeLetters(3, "Wrong item found. - Line: 7 - Item: NIL=");
  SynopBench bench;
  EXPECT_TRUE(bench.Decode(AAXX, "SMIY01 LIIB 151200 AAXX 15121 16242 NIL= ///// 10123").Stored);
  EXPECT_EQ(bench.Log.Lines, threeLetters);
  EXPECT_EQ(bench.Fields, "Visibility=0 Temperature=12.3");
  EXPECT_TRUE(bench.Observer.Removed.empty());
  // A typed message is not looked at for it.
  EXPECT_TRUE(bench.Decode(AAXX, "AAXX 15121 16242 NIL ///// 10123", false, true).Stored);
  EXPECT_EQ(bench.Log.Lines, Lines(3, "Wrong item found. - Line: 7 - Item: NIL"));
}

TEST(SynopDecoder, ShipThatTurnsOutNil) {
  SynopBench bench;
  const auto outcome = bench.Decode(BBXX, "SMVD01 EDZW 151200 BBXX DBBH 15121 99423 10123 NIL");
  EXPECT_FALSE(outcome.Stored);
  EXPECT_TRUE(outcome.PrintWrongLine);
  EXPECT_EQ(bench.Observer.Removed, Lines{"DBBH [42.18N 012.18E]"});
}

TEST(SynopDecoder, LogOfWrongItems) {
  SynopBench bench;
  bench.Texts.SetLanguage(0);
  EXPECT_TRUE(bench.Decode(AAXX, "AAXX 15121 16242 X//// ///// 10123", false, true).Stored);
  EXPECT_EQ(bench.Log.Lines, Lines{"Item errato. - Linea: 7 - Item: X////"});
}

// Section 5 is read of sea messages only; sections 2 and 3 of both.
TEST(SynopDecoder, SectionsOfLandMessages) {
  SynopBench bench;
  ASSERT_TRUE(bench
                  .Decode(AAXX,
                          "AAXX 15121 16242 ///// ///// 22254 10305 333 10203 555 1/123 2/456 "
                          "31230 40512 61310 090234",
                          false, true)
                  .Stored);
  EXPECT_EQ(bench.Fields,
            "Flags=10,11 MaxTemperature=20.3 ShipDirection=5 ShipAvSpeed=4 WavePeriod=3 "
            "WaveHeight=2.5");
  EXPECT_EQ(bench.Flags, "1,4,7,9,10,11");
  EXPECT_TRUE(bench.Log.Lines.empty());
}

TEST(SynopDecoder, HumidityStandsInDewPoint) {
  SynopBench bench;
  ASSERT_TRUE(bench.Decode(AAXX, "AAXX 15121 16242 ///// ///// 29075", false, true).Stored);
  EXPECT_EQ(bench.Last().DewPoint, "75 %");
  EXPECT_EQ(bench.Last().Humidity, "");
  EXPECT_EQ(BitsText(static_cast<std::uint32_t>(bench.Last().FilterFlags)), "1,4,7,9,13");
  EXPECT_EQ(bench.Flags, "1,4,7,9");
}

// Bulletins are Windows-1252 inside, records UTF-8.
TEST(SynopDecoder, TextsAreUtf8) {
  SynopBench bench;
  ASSERT_TRUE(bench.Decode(BBXX, "BBXX DB\xC0H 15121 99423 10123 \xC0////", false, true).Stored);
  EXPECT_EQ(bench.Last().Station.Station(), "DB\xC3\x80H");
  EXPECT_EQ(bench.Last().Msg, "BBXX DB\xC3\x80H 15121 99423 10123 \xC3\x80////");
  EXPECT_EQ(bench.Log.Lines, Lines{"Wrong item found. - Line: 7 - Item: \xC3\x80////"});
}

}  // namespace
}  // namespace zg
