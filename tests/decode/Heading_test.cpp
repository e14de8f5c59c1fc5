#include "decode/Heading.h"

#include <gtest/gtest.h>

#include <string>

namespace zg {
namespace {

TEST(Heading, IsWmoHeading) {
  struct Row {
    const char* line;
    bool heading;
  };
  const Row rows[] = {
      {"SAIT31 LIIB 151200", true},
      {"SAIT31 LIIB 151200 COR", true},
      {"SAIT31 LIIB 1", true},
      {"SAIT01 LIIB 151200", true},
      {"SAIT3X LIIB 151200", true},  // the number is what the two characters begin with
      {"SAIT31 LIIB", false},        // no blank at position 12
      {"SAIT31 LIIBX 151200", false},
      {"SAIT31  LIB 151200", true},
      {"SAIT311 LIIB 151200", false},
      {"SAIT00 LIIB 151200", false},
      {"SAITXX LIIB 151200", false},
      {"SAITX1 LIIB 151200", false},
      {"SA1T31 LIIB 151200", false},
      {"S IT31 LIIB 151200", false},
      {"sait31 LIIB 151200", false},
      {"\xC0"
       "AIT31 LIIB 151200",
       false},
      {"PROB30 1214 3000 BR", false},
      {"PROC30 1214 3000 BR", true},
      {"TEMPO1 2345 6789", false},
      {"LIRF 151250Z 27010KT", false},
      {"16242 32980 70510", false},
      {"ASUS1 KWBC 151200", true},
      {"XX ASUS1", true},
      {"ASUS1", true},
      {"ASUS", false},
      {"", false},
      {"=", false},
  };
  for (const Row& row : rows) EXPECT_EQ(IsWmoHeading(row.line), row.heading) << row.line;
}

TEST(Heading, ClassifyHeading) {
  struct Row {
    const char* line;
    MessageType type;
  };
  const Row rows[] = {
      {"ASUS1 KWBC 151200", MessageType::FRONTS},
      {"NOTE ASUS1", MessageType::FRONTS},
      {"ASUS1 AAXX BBXX", MessageType::FRONTS},
      {"AAXX 15121", MessageType::AAXX},
      {"SMIT01 LIIB 151200 AAXX 15121", MessageType::AAXX},
      {"BBXX AAXX", MessageType::AAXX},
      {"BBXX", MessageType::BBXX},
      {"SAIT31 LIIB 151200 BBXX", MessageType::BBXX},
      {"FCIT31 LIIB 151000", MessageType::TAF},
      {"FTIT31 LIIB 151000", MessageType::TAF},
      {"SAIT31 LIIB 151200", MessageType::METAR},
      {"SPIT31 LIIB 151200", MessageType::SPECI},
      {"WSIT31 LIIB 151200", MessageType::SIGMET},
      {"SMIT01 LIIB 151200", MessageType::Unknown},
      {"FBIT31 LIIB 151000", MessageType::Unknown},
      {"FCIT31", MessageType::Unknown},  // two letters of no heading say nothing
      {"FTIT31", MessageType::Unknown},
      {"SAIT31", MessageType::Unknown},
      {"SPIT31", MessageType::Unknown},
      {"WSIT31", MessageType::Unknown},
      {"SAINT", MessageType::Unknown},
      {"METAR LIRF 151250Z", MessageType::Unknown},
      {"", MessageType::Unknown},
  };
  for (const Row& row : rows) EXPECT_EQ(ClassifyHeading(row.line), row.type) << row.line;
}

TEST(Heading, MessageTypeName) {
  struct Row {
    MessageType type;
    const char* name;
  };
  const Row rows[] = {
      {MessageType::Unknown, ""},      {MessageType::AAXX, "AAXX"},
      {MessageType::BBXX, "BBXX"},     {MessageType::METAR, "METAR"},
      {MessageType::TAF, "TAF"},       {MessageType::SPECI, "SPECI"},
      {MessageType::FRONTS, "FRONTS"}, {MessageType::SIGMET, "SIGMET"},
  };
  for (const Row& row : rows) EXPECT_EQ(MessageTypeName(row.type), row.name);
}

TEST(Heading, IsTimeGroup) {
  struct Row {
    const char* word;
    bool group;
  };
  const Row rows[] = {
      {"1212", true},     {"2424", true},    {"0001", true},    {"0024", true},
      {"2524", false},    {"2425", false},   {"0000", false},   {"9999", false},
      {"151212", true},   {"312424", true},  {"000001", true},  {"001212", true},
      {"321212", false},  {"152512", false}, {"151225", false}, {"151250", false},
      {"000000", false},  {"12", false},     {"121", false},    {"15121", false},
      {"1512121", false}, {"", false},       {"12A2", false},   {"12.2", false},
      {"+122", false},    {"-122", false},   {"////", false},   {"1 12", false},
  };
  for (const Row& row : rows) EXPECT_EQ(IsTimeGroup(row.word), row.group) << row.word;
}

TEST(Heading, IsValidTime) {
  struct Row {
    const char* word;
    bool valid;
  };
  const Row rows[] = {
      {"0000", true},    {"2359", true},    {"2400", false},   {"1260", false},
      {"010000", true},  {"312359", true},  {"000000", false}, {"321200", false},
      {"152400", false}, {"151260", false}, {"151218", true},  {"151224", true},
      {"", false},       {"12", false},     {"12345", false},  {"1234567", false},
      {"12.0", false},   {"+120", false},   {"12/2", false},
  };
  for (const Row& row : rows) EXPECT_EQ(IsValidTime(row.word), row.valid) << row.word;
}

TEST(Heading, TypeWords) {
  EXPECT_EQ(ReportTypeOfWord("METAR"), MessageType::METAR);
  EXPECT_EQ(ReportTypeOfWord("SPECI"), MessageType::SPECI);
  EXPECT_EQ(ReportTypeOfWord("TAF"), MessageType::TAF);
  for (const char* word : {"", "METARS", "AAXX", "AMD", "COR", "LIRF"}) {
    EXPECT_EQ(ReportTypeOfWord(word), MessageType::Unknown) << word;
  }
  for (const char* word : {"METAR", "SPECI", "TAF", "AMD", "COR"}) {
    EXPECT_TRUE(IsTypeOrCorrectionWord(word)) << word;
  }
  for (const char* word : {"", "AUTO", "LIRF", "NIL", "AMDS"}) {
    EXPECT_FALSE(IsTypeOrCorrectionWord(word)) << word;
  }
}

// What stands behind a station in a bulletin of no known type.
TEST(Heading, FindReportStartByWhatFollowsTheStation) {
  struct Row {
    const char* name;
    const char* report;
    const char* station;  // "" where none is found
    MessageType type;
  };
  constexpr MessageType None = MessageType::Unknown;
  constexpr MessageType Metar = MessageType::METAR;
  constexpr MessageType Taf = MessageType::TAF;
  const Row rows[] = {
      {"period of four digits", "LIRF 1212 27010KT=", "LIRF", Taf},
      {"period of six digits", "LIRF 151212 27010KT=", "LIRF", Taf},
      {"six digits that are no period", "LIRF 151250 27010KT=", "LIRF", None},
      {"four digits that are no period", "LIRF 9999 27010KT=", "", None},
      {"time of six digits", "LIRF 151250Z 27010KT=", "LIRF", Metar},
      {"time of four digits", "LIRF 1250Z 27010KT=", "LIRF", Metar},
      {"time as last word of a line", "LIRF 151250Z", "", None},
      {"time with the equals sign", "LIRF 151250Z=", "", None},
      {"time of five digits", "LIRF 15125Z 27010KT=", "", None},
      {"time and period", "LIRF 151100Z 151212 27010KT=", "LIRF", Taf},
      {"time and period of four digits", "LIRF 1100Z 1212 27010KT=", "LIRF", Taf},
      {"visibility behind the wind is no period", "LIRF 151250Z 27010KT 2000 BR=", "LIRF", Metar},
      {"the same with MPS", "LIRF 151250Z 27005MPS 2000 BR=", "LIRF", Metar},
      {"the same with KMH", "LIRF 151250Z 27020KMH 2000 BR=", "LIRF", Metar},
      {"METAR ends the test", "LIRF 151250Z METAR 1212=", "LIRF", Metar},
      {"period too far behind", "LIRF 151250Z COR AUTO RTD 1212=", "LIRF", Metar},
      {"amended", "LIRF AMD 151212 27010KT=", "LIRF", Taf},
      {"wind in knots", "LIRF 27010KT 9999=", "LIRF", Metar},
      {"wind in knots and a visibility", "LIRF 27010KT 2000 BR=", "LIRF", Metar},
      {"wind in metres", "LIRF 27005MPS 9999=", "LIRF", Metar},
      {"wind with gust has KT elsewhere", "LIRF 27010G20KT 9999=", "", None},
      {"wind in kilometres", "LIRF 27010KMH 9999=", "", None},
      {"TAF behind the station", "LIRF TAF 151100Z 151212=", "LIRF", Taf},
      {"word beginning TAF", "LIRF TAFOR 151212=", "LIRF", Taf},
      {"METAR behind the station", "LIRF METAR 27010KT=", "LIRF", Metar},
      {"SPECI behind the station is not seen", "LIRF SPECI 27010KT=", "", None},
      {"type word ahead", "METAR LIRF 151250Z 27010KT=", "LIRF", Metar},
      {"the first that qualifies", "XXXX LIRF 151250Z LIML 151250Z 00000KT=", "LIRF", Metar},
      {"AUTO is no station", "AUTO 151250Z LIRF 151250Z 27010KT=", "LIRF", Metar},
      {"a number is no station", "1512 151250Z LIRF 151250Z 27010KT=", "LIRF", Metar},
      {"digits in a station", "K1G4 151250Z 27010KT=", "K1G4", Metar},
      {"three letters", "LIR 151250Z 27010KT=", "", None},
      {"five letters", "LIRFX 151250Z 27010KT=", "", None},
      {"several blanks", "METAR  LIRF   151250Z   27010KT=", "LIRF", Metar},
      {"no report", "EETN NIL=", "", None},
      {"nothing", "", "", None},
  };
  const std::string heading = "SIXX31 LIIB 151200 ";
  for (const Row& row : rows) {
    const std::string text = heading + row.report;
    const ReportStart start = FindReportStart(text, heading.size());
    EXPECT_TRUE(start.Searched) << row.name;
    EXPECT_FALSE(start.TypeWordFirst) << row.name;
    ASSERT_EQ(start.Found, *row.station != '\0') << row.name;
    if (!start.Found) continue;
    EXPECT_TRUE(text.substr(start.Position).starts_with(row.station)) << row.name;
    EXPECT_EQ(start.Type, row.type) << row.name;
  }
}

TEST(Heading, FindReportStartWithoutHeading) {
  struct Row {
    const char* name;
    const char* text;
    bool searched;
    const char* station;
    MessageType type;
    bool typeWordFirst;
  };
  const Row rows[] = {
      {"four characters first", "LIRF 151250Z 27010KT=", true, "LIRF", MessageType::METAR, false},
      {"four characters and a period", "LIRF 151212 27010KT=", true, "LIRF", MessageType::TAF,
       false},
      {"four characters, nothing found", "LIRF NIL=", true, "", MessageType::Unknown, false},
      {"a typed heading", "SAIT31 LIIB 151200 LIRF 151250Z 27010KT=", true, "LIRF",
       MessageType::METAR, false},
      {"the centre of a heading is no station", "SAIT31 LIIB 151200 NIL=", true, "",
       MessageType::Unknown, false},
      {"six characters without a centre", "FOGGY= TODAY", false, "", MessageType::Unknown, false},
      {"five characters", "16242 32980 70510 10150=", false, "", MessageType::Unknown, false},
      {"an equals sign", "=", false, "", MessageType::Unknown, false},
      {"nothing", "", false, "", MessageType::Unknown, false},
      {"METAR", "METAR LIRF 151250Z 27010KT=", true, "LIRF", MessageType::METAR, true},
      {"SPECI", "SPECI LIRF 151250Z 27010KT=", true, "LIRF", MessageType::SPECI, true},
      {"TAF", "TAF LIRF 151100Z 151212=", true, "LIRF", MessageType::TAF, true},
      {"METAR in front of a period", "METAR LIRF 151212=", true, "LIRF", MessageType::METAR, true},
      {"TAF AMD", "TAF AMD LIRF 151212=", true, "LIRF", MessageType::TAF, true},
      {"METAR COR", "METAR COR LIRF 151250Z=", true, "LIRF", MessageType::METAR, true},
      {"TAF TAF", "TAF TAF COR LIRF 151212=", true, "LIRF", MessageType::TAF, true},
      {"type word and NIL station", "METAR LIRF NIL=", true, "LIRF", MessageType::METAR, true},
      {"type word alone", "METAR =", true, "", MessageType::METAR, true},
  };
  for (const Row& row : rows) {
    const std::string text = row.text;
    const ReportStart start = FindReportStart(text, 0);
    EXPECT_EQ(start.Searched, row.searched) << row.name;
    EXPECT_EQ(start.TypeWordFirst, row.typeWordFirst) << row.name;
    ASSERT_EQ(start.Found, *row.station != '\0') << row.name;
    if (!start.Found) continue;
    EXPECT_TRUE(text.substr(start.Position).starts_with(row.station)) << row.name;
    EXPECT_EQ(start.Type, row.type) << row.name;
  }
}

}  // namespace
}  // namespace zg
