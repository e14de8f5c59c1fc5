#include "decode/aero/MetarDecoder.h"

#include "decode/DecoderBench.h"
#include "decode/aero/MetarTestSupport.h"

namespace zg {
namespace {

using test::DecoderBench;
using test::Describe;
using test::WordsDecoder;

// The decoder between the words of a message and the store.
struct MetarBench : DecoderBench {
  MetarBench() {
    Observer.OnMetar = [this](const MetarRawData& raw) { Keep(Describe(raw), raw.FilterFlags); };
  }

  // `headerEnd` is the index of the station; words without heading have the station in front, or
  // type words ahead of it.
  DecodeOutcome Decode(MessageType type, std::string_view text, std::size_t headerEnd,
                       bool heading = true, bool single = false) {
    BulletinMessage message = Begin(type, text, heading, single);
    message.HeaderEnd = headerEnd;
    return decoder.DecodeMetarMessage(message, static_cast<int>(Metars().size()));
  }
  DecodeOutcome DecodeTypedReport(std::string_view text, MessageType type = MessageType::METAR) {
    return Decode(type, text, 0, false, true);
  }
  const MetarData& Last() const { return Metars().back(); }

  MetarDecoder decoder{Context};
};

TEST(MetarDecoder, Example) {
  MetarBench bench;
  ASSERT_TRUE(bench.DecodeTypedReport("LIRF 151250Z 27010KT 9999 FEW030 18/12 Q1015 NOSIG").Stored);
  EXPECT_EQ(bench.Fields,
            "Flags=11,15,19 AltimeterPressure=1015 OrizVisibility=9999 WindDir=27 WindSpeed=10 "
            "CloudCover0=1 CloudHeigh0=30 ; Temperature=18 Dewpoint=12");
  EXPECT_EQ(bench.Flags, "1,5,11,15,19");
  EXPECT_TRUE(bench.Log.Lines.empty());
}

TEST(MetarDecoder, Heading) {
  struct Row {
    const char* name;
    MessageType type;
    const char* text;
    std::size_t headerEnd;
    const char* addedInfo;
    const char* bulletinTime;
    const char* flags;
  };
  const Row rows[] = {
      {"METAR", MessageType::METAR, "SAIY31 LIIB 151200 METAR LIRF 151250Z 27010KT", 4, "",
       "15/12:00Z", "1,5,11"},
      {"SPECI", MessageType::SPECI, "SPIY31 LIIB 151200 SPECI LIRF 151250Z 27010KT", 4, "",
       "15/12:00Z", "1,4,11"},
      {"TAF", MessageType::TAF, "FCIY31 LIIB 151200 TAF LIRF 151100Z 151212 27010KT", 4, "",
       "15/12:00Z", "1,6,11"},
      {"no type word", MessageType::METAR, "SAIY31 LIIB 151200 LIRF 151250Z 27010KT", 3, "",
       "15/12:00Z", "1,5,11"},
      {"added information", MessageType::METAR, "SAIY31 LIIB 151200 RRA METAR LIRF 151250Z 27010KT",
       5, "RRA", "15/12:00Z", "1,5,11"},
      {"the first of them", MessageType::METAR,
       "SAIY31 LIIB 151200 CCA CCB METAR LIRF 151250Z 27010KT", 6, "CCA", "15/12:00Z", "1,5,11"},
      {"behind the type word", MessageType::METAR,
       "SAIY31 LIIB 151200 METAR COR LIRF 151250Z 27010KT", 5, "COR", "15/12:00Z", "1,5,11"},
      {"words that hold a type word", MessageType::TAF,
       "FCIY31 LIIB 151200 XTAFX AMD LIRF 151212 27010KT", 5, "AMD", "15/12:00Z", "1,6,11"},
      {"time in the heading cut", MessageType::METAR, "SAIY31 LIIB 151200123 LIRF 151250Z 27010KT",
       3, "", "15/12:00Z", "1,5,11"},
      {"four figures of time", MessageType::METAR, "SAIY31 LIIB 1200 LIRF 151250Z 27010KT", 3, "",
       "12:00Z", "1,5,11"},
      {"another length of time", MessageType::METAR, "SAIY31 LIIB 15120 LIRF 151250Z 27010KT", 3,
       "", "", "1,5,11"},
  };
  MetarBench bench;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ASSERT_TRUE(bench.Decode(row.type, row.text, row.headerEnd).Stored);
    const MetarData& record = bench.Last();
    EXPECT_EQ(record.RawText, row.text);
    EXPECT_EQ(record.Station.MsgId, std::string_view(row.text).substr(0, 6));
    EXPECT_EQ(record.Station.Sender, "LIIB");
    EXPECT_EQ(record.Station.Type, MessageTypeName(row.type));
    EXPECT_EQ(record.Station.AddedInfo, row.addedInfo);
    EXPECT_EQ(record.BulletinTime, row.bulletinTime);
    EXPECT_EQ(record.Station.Station(), "Roma Fiumicino");
    EXPECT_EQ(bench.Flags, row.flags);
  }
}

TEST(MetarDecoder, TypeWordsWithoutHeading) {
  struct Row {
    const char* text;
    std::size_t headerEnd;
    const char* flags;
  };
  const Row rows[] = {
      {"LIRF 151250Z", 0, "1,5"},
      {"METAR LIRF 151250Z", 1, "1,5"},
      {"METAR COR LIRF 151250Z", 2, "1,5,18"},
      {"METAR AMD METAR LIRF 151250Z", 3, "1,5,21"},
  };
  MetarBench bench;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    ASSERT_TRUE(bench.Decode(MessageType::METAR, row.text, row.headerEnd, false).Stored);
    EXPECT_EQ(bench.Last().Station.Station(), "Roma Fiumicino");
    EXPECT_EQ(bench.Last().Station.MsgId, "");
    EXPECT_EQ(bench.Last().Station.Sender, "");
    EXPECT_EQ(bench.Last().BulletinTime, "");
    EXPECT_EQ(bench.Flags, row.flags);
  }
}

TEST(MetarDecoder, Time) {
  struct Row {
    const char* name;
    MessageType type;
    const char* text;
    const char* observation;
    const char* period;
    const char* flags;
  };
  constexpr auto METAR = MessageType::METAR;
  constexpr auto TAF = MessageType::TAF;
  const Row rows[] = {
      {"six figures", METAR, "LIRF 151250Z", "15/12:50Z", "", "1,5"},
      {"four figures", METAR, "LIRF 1250Z", "12:50Z", "", "1,5"},
      {"correction ahead", METAR, "LIRF COR 151250Z", "15/12:50Z", "", "1,5,18"},
      {"amendment ahead", METAR, "LIRF AMD 151250Z", "15/12:50Z", "", "1,5,21"},
      {"correction behind", METAR, "LIRF 151250Z COR 27010KT", "15/12:50Z", "", "1,5,11,18"},
      {"amendment behind", METAR, "LIRF 151250Z AMD 27010KT", "15/12:50Z", "", "1,5,11,21"},
      {"not two words behind", METAR, "LIRF 151250Z AUTO COR", "15/12:50Z", "", "1,5,9"},
      {"words passed over", METAR, "LIRF METAR X 151250Z", "15/12:50Z", "", "1,5"},
      {"groups ahead are lost", METAR, "LIRF 27010KT 151250Z", "15/12:50Z", "", "1,5"},
      {"no period of an observation", METAR, "LIRF 151212 151250Z", "15/12:50Z", "", "1,5"},
      {"time and period", TAF, "LIRF 151100Z 151218", "15/11:00Z", "15/12:00Z - 18:00Z", "1,6"},
      {"period of four figures", TAF, "LIRF 151100Z 1218", "15/11:00Z", "12:00Z - 18:00Z", "1,6"},
      {"period alone", TAF, "LIRF 151218 27010KT", "", "15/12:00Z - 18:00Z", "1,6,11"},
      {"time behind the period", TAF, "LIRF 151218 151100Z", "15/11:00Z", "15/12:00Z - 18:00Z",
       "1,6"},
      {"time alone", TAF, "LIRF 151100Z 27010KT", "15/11:00Z", "", "1,6,11"},
      {"amendment between station and time", TAF, "LIRF AMD 151100Z 151218", "15/11:00Z",
       "15/12:00Z - 18:00Z", "1,6,21"},
      {"amendment behind both", TAF, "LIRF 151100Z 151218 AMD 27010KT", "15/11:00Z",
       "15/12:00Z - 18:00Z", "1,6,11,21"},
      {"24 is no minute", TAF, "LIRF 151224 151260 151218", "", "15/12:00Z - 24:00Z", "1,6"},
      {"no valid period", TAF, "LIRF 321218 152418 151260 151100Z", "15/11:00Z", "", "1,6"},
      {"Z of no time", METAR, "LIRF XYZ", "", "", "1,5"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    MetarBench bench;
    ASSERT_TRUE(bench.DecodeTypedReport(row.text, row.type).Stored);
    EXPECT_EQ(bench.Last().ObservationTime, row.observation);
    EXPECT_EQ(bench.Last().ValidPeriod, row.period);
    EXPECT_EQ(bench.Flags, row.flags);
  }
}

TEST(MetarDecoder, TimesOutliveTheirReport) {
  MetarBench bench;
  ASSERT_TRUE(bench.Decode(MessageType::TAF, "FCIY31 LIIB 151200 LIRF 151100Z 151218", 3).Stored);
  ASSERT_TRUE(bench.Decode(MessageType::TAF, "FCIY31 LIIB 161200 LIRF 161100Z", 3).Stored);
  EXPECT_EQ(bench.Last().ObservationTime, "16/11:00Z");
  EXPECT_EQ(bench.Last().ValidPeriod, "15/12:00Z - 18:00Z");
  ASSERT_TRUE(bench.Decode(MessageType::TAF, "FCIY31 LIIB 171200 LIRF 171218 171111Z", 3).Stored);
  // A later time word is only read while there is none.
  EXPECT_EQ(bench.Last().ObservationTime, "16/11:00Z");
  EXPECT_EQ(bench.Last().BulletinTime, "17/12:00Z");
  // A report that begins with its station keeps the time of the bulletin, one that begins with its
  // type has none.
  ASSERT_TRUE(bench.Decode(MessageType::METAR, "LIRF 181250Z", 0, false).Stored);
  EXPECT_EQ(bench.Last().BulletinTime, "17/12:00Z");
  ASSERT_TRUE(bench.Decode(MessageType::METAR, "METAR LIRF 181250Z", 1, false).Stored);
  EXPECT_EQ(bench.Last().BulletinTime, "");
}

// What a rejected report has read of its times stays too.
TEST(MetarDecoder, TimesOutliveARejectedReport) {
  MetarBench bench;
  EXPECT_FALSE(bench.Decode(MessageType::TAF, "FCIY31 LIIB 151200 LIRF 151100Z NIL", 3).Stored);
  ASSERT_TRUE(bench.DecodeTypedReport("LIRF 161218", MessageType::TAF).Stored);
  EXPECT_EQ(bench.Last().ObservationTime, "15/11:00Z");
  EXPECT_EQ(bench.Last().BulletinTime, "15/12:00Z");
  EXPECT_EQ(bench.Last().Station.MsgId, "");
}

TEST(MetarDecoder, NoTime) {
  struct Row {
    std::uint8_t language;
    bool single;
    bool printed;
    const char* line;
  };
  const Row rows[] = {
      {1, false, true, "Observ. Time or Valid Time not found. - Line: 7"},
      {0, false, true, "Observ. Time o Valid Time non trovato. - Linea: 7"},
      {1, true, false, "Observ. Time or Valid Time not found. - Line: 7"},
  };
  for (const Row& row : rows) {
    MetarBench bench;
    bench.Texts.SetLanguage(row.language);
    for (const char* text : {"LIRF 27010KT 9999", "LIRF", "LIRF 151218"}) {
      SCOPED_TRACE(text);
      const auto outcome = bench.Decode(MessageType::METAR, text, 0, false, row.single);
      EXPECT_FALSE(outcome.Stored);
      EXPECT_EQ(outcome.PrintWrongLine, row.printed);
      EXPECT_EQ(bench.Log.Lines, std::vector<std::string>{row.line});
      EXPECT_TRUE(bench.Metars().empty());
      EXPECT_TRUE(bench.Observer.Messages.empty());
    }
  }
}

TEST(MetarDecoder, Station) {
  MetarBench bench;
  ASSERT_TRUE(bench.DecodeTypedReport("KDEN 151250Z").Stored);
  const StationTexts& denver = bench.Last().Station;
  EXPECT_EQ(denver.WMOIndex(), 72565);
  EXPECT_EQ(denver.Station(), "Denver");
  EXPECT_EQ(denver.Country(), "United States [CO]");
  EXPECT_EQ(denver.State(), "CO");
  EXPECT_EQ(denver.IcaoName(), "KDEN");
  EXPECT_EQ(denver.LatPosition(), "39.50N");
  EXPECT_EQ(denver.LongPosition(), "104.40W");
  EXPECT_EQ(denver.StationHT(), "1656");
  EXPECT_EQ(denver.SensorHT(), "");
  EXPECT_EQ(denver.Quadrant(), "North-West");
  EXPECT_EQ(denver.StationKind, 1);
}

TEST(MetarDecoder, UnknownStation) {
  MetarBench bench;
  // In a file it is dropped, and nobody hears of it.
  const auto inFile = bench.Decode(MessageType::METAR, "ZZZZ 151250Z 27010KT", 0, false);
  EXPECT_FALSE(inFile.Stored);
  EXPECT_FALSE(inFile.PrintWrongLine);
  EXPECT_TRUE(bench.Log.Lines.empty());
  // Typed it is kept with its indicator.
  EXPECT_TRUE(bench.DecodeTypedReport("ZZZZ 151250Z 27010KT").Stored);
  EXPECT_EQ(bench.Last().Station.Station(), "ZZZZ");
  EXPECT_EQ(bench.Last().Station.Country(), "");
  EXPECT_EQ(bench.Last().Station.Quadrant(), "");
  EXPECT_EQ(bench.Last().Station.LatPosition(), "");
  EXPECT_EQ(bench.Last().Station.WMOIndex(), -1);
  EXPECT_EQ(bench.Flags, "5,11");
}

TEST(MetarDecoder, StationWithoutName) {
  for (const bool single : {true, false}) {
    for (const std::uint8_t language : {std::uint8_t{1}, std::uint8_t{0}}) {
      MetarBench bench;
      test::RunSql(bench.Folder / "ICAOData.mdb",
                   "insert into MeteoStations (WMOIndex, IcaoName, Station, Country, StationLat, "
                   "StationLong) values (1, 'LIXX', '', 'Italy', '41.48N', '012.14E');");
      ASSERT_TRUE(bench.Stations.Load(bench.Database));
      bench.Texts.SetLanguage(language);
      const auto outcome = bench.Decode(MessageType::METAR, "LIXX 151250Z", 0, false, single);
      EXPECT_FALSE(outcome.Stored);
      EXPECT_EQ(outcome.PrintWrongLine, !single);
      EXPECT_EQ(bench.Log.Lines,
                std::vector<std::string>{language == 1 ? "Unknown Meteo Station: "
                                                       : "Stazione Meteo sconosciuta: "});
    }
  }
}

TEST(MetarDecoder, Filters) {
  struct Row {
    const char* name;
    const char* station;
    std::vector<std::string> countries;
    std::uint8_t quadrants;
    bool single;
    bool stored;
    const char* flags;
  };
  const Row rows[] = {
      {"open, north-east", "LIRF", {""}, 15, false, true, "1,5"},
      {"open, north-west", "EGLL", {""}, 15, false, true, "0,5"},
      {"open, south-east", "YSSY", {""}, 15, false, true, "3,5"},
      {"open, south-west", "SAEZ", {""}, 15, false, true, "2,5"},
      {"north-east alone", "LIRF", {""}, 1, false, true, "1,5"},
      {"south-east alone", "YSSY", {""}, 2, false, true, "3,5"},
      {"south-west alone", "SAEZ", {""}, 4, false, true, "2,5"},
      {"north-west alone", "EGLL", {""}, 8, false, true, "0,5"},
      {"not north-east", "LIRF", {""}, 14, false, false, ""},
      {"not south-east", "YSSY", {""}, 13, false, false, ""},
      {"not south-west", "SAEZ", {""}, 11, false, false, ""},
      {"not north-west", "EGLL", {""}, 7, false, false, ""},
      {"its country", "LIRF", {"Italy"}, 15, false, true, "1,5"},
      {"another country", "LIRF", {"France"}, 15, false, false, ""},
      {"no country", "XXNC", {""}, 15, false, false, ""},
      {"typed, all closed", "LIRF", {"France"}, 0, true, true, "1,5"},
      {"typed, no country", "XXNC", {""}, 0, true, true, "1,5"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    MetarBench bench;
    bench.Context.Filters.CountryList = row.countries;
    bench.Context.Filters.QuadrantMask = row.quadrants;
    bench.Context.Filters.StationMask = 0;  // for SYNOP only
    const auto outcome = bench.Decode(MessageType::METAR, std::string(row.station) + " 151250Z", 0,
                                      false, row.single);
    EXPECT_EQ(outcome.Stored, row.stored);
    EXPECT_FALSE(outcome.PrintWrongLine);
    EXPECT_EQ(bench.Metars().size(), row.stored ? 1u : 0u);
    EXPECT_EQ(bench.Flags, row.flags);
    EXPECT_TRUE(bench.Log.Lines.empty());
    EXPECT_EQ(bench.Observer.Messages.size(), row.stored && !row.single ? 1u : 0u);
  }
}

TEST(MetarDecoder, Publish) {
  MetarBench bench;
  ASSERT_TRUE(bench.Decode(MessageType::METAR, "SAUK31 EGLL 151200 LIRF 161250Z", 3).Stored);
  ASSERT_EQ(bench.Observer.Messages.size(), 1u);
  const auto first = bench.Observer.Messages[0];
  EXPECT_EQ(first.Country, "Italy");
  EXPECT_EQ(first.ListName, "Roma Fiumicino");
  EXPECT_EQ(first.Station, "Roma Fiumicino");
  EXPECT_EQ(first.MsgId, "SAUK31");
  EXPECT_EQ(first.Type, "METAR");
  EXPECT_EQ(first.Sender, "EGLL");
  EXPECT_EQ(first.SenderCity, "London Heathrow");
  EXPECT_EQ(first.Day, "15");
  EXPECT_EQ(first.Time, "12:00");
  EXPECT_EQ(first.DecodedCount, 0);
  // Without a bulletin time the time of observation stands in.
  ASSERT_TRUE(bench.Decode(MessageType::SPECI, "SPECI LIRF 161250Z", 1, false).Stored);
  const auto second = bench.Observer.Messages[0];
  EXPECT_EQ(second.Type, "SPECI");
  EXPECT_EQ(second.SenderCity, "");
  EXPECT_EQ(second.Day, "16");
  EXPECT_EQ(second.Time, "12:50");
  EXPECT_EQ(second.DecodedCount, 1);
}

TEST(MetarDecoder, Nil) {
  for (const bool single : {false, true}) {
    MetarBench bench;
    const auto outcome = bench.Decode(MessageType::METAR, "LIRF 151250Z NIL", 0, false, single);
    EXPECT_FALSE(outcome.Stored);
    EXPECT_EQ(outcome.PrintWrongLine, !single);
    EXPECT_TRUE(bench.Metars().empty());
    EXPECT_TRUE(bench.Log.Lines.empty());
    EXPECT_EQ(bench.Observer.Messages.size(), single ? 0u : 1u);
    EXPECT_EQ(bench.Observer.Removed,
              single ? std::vector<std::string>{} : std::vector<std::string>{"Roma Fiumicino"});
  }
  // Elsewhere it is a word like any other.
  MetarBench bench;
  EXPECT_TRUE(bench.DecodeTypedReport("LIRF 151250Z AUTO NIL").Stored);
  EXPECT_EQ(bench.Fields, "Flags=9");
}

TEST(MetarDecoder, WrongItemsAreLogged) {
  MetarBench bench;
  ASSERT_TRUE(bench.DecodeTypedReport("LIRF 151250Z 1/0SM RA").Stored);
  EXPECT_EQ(bench.Log.Lines, std::vector<std::string>{"Wrong item found. - Line: 7 - Item: 1/0SM"});
  EXPECT_EQ(bench.Fields, "Flags=14 Weather0=RA");
  bench.Texts.SetLanguage(0);
  ASSERT_TRUE(bench.DecodeTypedReport("LIRF 151250Z 1/0SM RA").Stored);
  EXPECT_EQ(bench.Log.Lines, std::vector<std::string>{"Item errato. - Linea: 7 - Item: 1/0SM"});
}

TEST(MetarDecoder, NothingCarriesOver) {
  WordsDecoder decoder;
  decoder.Decode(MessageType::METAR,
                 "27010KT 9999 RA FEW010 SCT020 18/12 Q1013 RMK AO2 SLP132 ABC T01560122");
  EXPECT_EQ(decoder.Decode(MessageType::METAR, "AUTO"), "Flags=9");
  EXPECT_EQ(decoder.Decode(MessageType::METAR, "27010KT CB BKN010 SN"),
            "Flags=11 WindDir=27 WindSpeed=10 CloudCover0=6 CloudType0=9 CloudHeigh0=10 "
            "Weather0=SN");
}

// Bulletins are Windows-1252 inside, records UTF-8.
TEST(MetarDecoder, TextsAreUtf8) {
  MetarBench bench;
  ASSERT_TRUE(bench.DecodeTypedReport("LIRF 151250Z 1/0SM RMK CIT\xC0").Stored);
  EXPECT_EQ(bench.Last().RawText, "LIRF 151250Z 1/0SM RMK CIT\xC3\x80");
  EXPECT_EQ(bench.Last().OtherRemarks, "CIT\xC3\x80");
  ASSERT_TRUE(bench.DecodeTypedReport("LIRF 151250Z \xC0/0SM").Stored);
  EXPECT_EQ(bench.Log.Lines,
            std::vector<std::string>{"Wrong item found. - Line: 7 - Item: \xC3\x80/0SM"});
}

}  // namespace
}  // namespace zg
