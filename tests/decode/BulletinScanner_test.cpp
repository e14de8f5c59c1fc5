#include "decode/BulletinScanner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "shell/TestSupport.h"

namespace zg {
namespace {

using List = std::vector<std::string>;

std::string Join(const std::vector<std::string_view>& words) {
  std::string text;
  for (const std::string_view word : words) {
    if (!text.empty()) text += ' ';
    text += word;
  }
  return text;
}

// Takes what the scanner finds. A message is noted as "TYPE text", its words as one line.
struct RecordingClient : ScannerClient {
  List Messages;
  List Words;
  List Printed;
  std::vector<std::size_t> HeaderEnds;
  std::vector<bool> Headings;
  std::vector<std::int32_t> LineCounts;
  int Resets = 0;
  bool Stores = true;

  bool DecodeMessage(const BulletinMessage& message) override {
    Messages.push_back(std::string(MessageTypeName(message.Type)) + " " +
                       std::string(message.Text));
    Words.push_back(Join(message.WordList));
    HeaderEnds.push_back(message.HeaderEnd);
    Headings.push_back(message.HasHeading);
    LineCounts.push_back(message.LineCount);
    return Stores;
  }
  void PrintWrongLine(std::string_view line) override { Printed.emplace_back(line); }
  void ResetFronts() override { ++Resets; }
};

struct Scan {
  RecordingClient Client;
  test::RecordingLog Log;
  TextUtility Texts;
  BulletinScanner Scanner{Client, Log, Texts};
  std::vector<BulletinScanner::Result> Results;

  explicit Scan(const List& lines, bool singleMessage = false, std::uint8_t language = 1) {
    Texts.SetLanguage(language);
    Scanner.Reset(singleMessage);
    Feed(lines);
  }
  void Feed(const List& lines) {
    for (const std::string& line : lines) Results.push_back(Scanner.ScanLine(line));
  }
};

struct StreamRow {
  const char* name;
  List lines;
  List messages;
  List printed;
  List log;
};

void Check(const std::vector<StreamRow>& rows) {
  for (const StreamRow& row : rows) {
    const Scan scan(row.lines);
    EXPECT_EQ(scan.Client.Messages, row.messages) << row.name;
    EXPECT_EQ(scan.Client.Printed, row.printed) << row.name;
    EXPECT_EQ(scan.Log.Lines, row.log) << row.name;
  }
}

constexpr const char* Rome = "LIRF 151250Z 27010KT CAVOK 15/10 Q1015=";
constexpr const char* Milan = "LIML 151250Z 00000KT 3000 BR 10/09 Q1016=";
const std::string Heading = "SAIT31 LIIB 151200";
const std::string LandHeading = "SMIT01 LIIB 151200";
const std::string SeaHeading = "SNVX11 KWBC 151200";
constexpr const char* RomeSynop = "16242 32980 70510 10150 20100 40150=";
constexpr const char* AquilaSynop = "16230 32980 00000 10080 20050=";

TEST(BulletinScanner, AeronauticalBulletins) {
  Check({
      {"one report", {Heading, Rome}, {"METAR " + Heading + " " + Rome}, {}, {}},
      {"type word on a line of its own",
       {Heading, "METAR", Rome, Milan},
       {"METAR " + Heading + " METAR " + Rome, "METAR " + Heading + " METAR " + Milan},
       {},
       {}},
      {"TAF on a line of its own is a separator",
       {"FTIT31 LIIB 151000", "TAF", "LIRF 151100Z 151212 27010KT="},
       {"TAF FTIT31 LIIB 151000 LIRF 151100Z 151212 27010KT="},
       {},
       {}},
      {"FC is a forecast too",
       {"FCIT31 LIIB 151000", "LIRF 151212 27010KT="},
       {"TAF FCIT31 LIIB 151000 LIRF 151212 27010KT="},
       {},
       {}},
      {"SP is a special report",
       {"SPIT31 LIIB 151200", Rome},
       {std::string("SPECI SPIT31 LIIB 151200 ") + Rome},
       {},
       {}},
      {"type words in front of each report do not pile up",
       {Heading, std::string("METAR ") + Rome, std::string("METAR ") + Milan,
        std::string("METAR ") + Rome},
       {"METAR " + Heading + " METAR " + Rome, "METAR " + Heading + " METAR METAR " + Milan,
        "METAR " + Heading + " METAR METAR " + Rome},
       {},
       {}},
      {"report on several lines",
       {Heading, "LIRF 151250Z", "27010KT", " CAVOK 15/10 ", "Q1015="},
       {"METAR " + Heading + " " + Rome},
       {},
       {}},
      {"second report on several lines",
       {Heading, Milan, "LIRF 151250Z 27010KT", "CAVOK 15/10", "Q1015="},
       {"METAR " + Heading + " " + Milan, "METAR " + Heading + " " + Rome},
       {},
       {}},
      {"equals sign alone closes the report before it",
       {Heading, Milan, "LIRF 151250Z 27010KT", "="},
       {"METAR " + Heading + " " + Milan, "METAR " + Heading + " LIRF 151250Z 27010KT ="},
       {},
       {}},
      {"equals sign alone closes the first report",
       {Heading, "LIRF 151250Z 27010KT", "="},
       {"METAR " + Heading + " LIRF 151250Z 27010KT ="},
       {},
       {}},
      {"equals sign and blanks at the end of a line",
       {Heading, "LIRF 151250Z 27010KT=   "},
       {"METAR " + Heading + " LIRF 151250Z 27010KT="},
       {},
       {}},
      {"equals sign inside a line closes nothing",
       {Heading, "LIRF 151250Z 27010KT= CAVOK", "="},
       {"METAR " + Heading + " LIRF 151250Z 27010KT= CAVOK ="},
       {},
       {}},
      {"NNNN does not close a report",
       {Heading, "LIRF 151250Z", "NNNN", "27010KT="},
       {"METAR " + Heading + " LIRF 151250Z 27010KT="},
       {},
       {}},
      {"ZCZC, blank and short lines are passed over",
       {"ZCZC 123", "", Heading, "\x03", "AB", "LIRF 151250Z", "ZCZC", "", "123", "27010KT="},
       {"METAR " + Heading + " LIRF 151250Z 27010KT="},
       {},
       {}},
      {"a line with a question mark is passed over as a whole",
       {Heading, "LIRF 1512?0Z 27010KT=", "?", Milan},
       {"METAR " + Heading + " " + Milan},
       {},
       {}},
      {"two bulletins",
       {"ZCZC", Heading, Rome, "NNNN", "ZCZC", "FTIT31 LIIB 151000",
        "LIML 151212 00000KT=", "NNNN"},
       {"METAR " + Heading + " " + Rome, "TAF FTIT31 LIIB 151000 LIML 151212 00000KT="},
       {},
       {}},
      {"report that is never closed", {Heading, "LIRF 151250Z 27010KT"}, {}, {}, {}},
      {"a heading of no known type tells by the look of the report",
       {"SIXX31 LIIB 151200", Rome, Milan},
       {std::string("METAR SIXX31 LIIB 151200 ") + Rome,
        std::string("METAR SIXX31 LIIB 151200 ") + Milan},
       {},
       {}},
      {"a forecast by its look",
       {"SIXX31 LIIB 151200", "LIRF 151100Z 151212 27010KT="},
       {"TAF SIXX31 LIIB 151200 LIRF 151100Z 151212 27010KT="},
       {},
       {}},
      {"the look counts only where the type is not known",
       {Heading, "LIRF 151100Z 151212 27010KT="},
       {"METAR " + Heading + " LIRF 151100Z 151212 27010KT="},
       {},
       {}},
      {"several blanks inside a line",
       {Heading, "LIRF  151250Z   27010KT="},
       {"METAR " + Heading + " LIRF  151250Z   27010KT="},
       {},
       {}},
  });
}

// Without "=" and time stamps a report stays open; what was gathered is not emptied by a heading.
TEST(BulletinScanner, OpenReportGrowsOverHeadings) {
  const Scan scan({Heading, Rome, "LIMC 151250Z 00000KT", "SAIT32 LIIB 151300", Milan});
  EXPECT_EQ(scan.Client.Messages,
            (List{"METAR " + Heading + " " + Rome,
                  std::string("METAR SAIT32 LIIB 151300 ") + Milan + " LIMC 151250Z 00000KT"}));
  EXPECT_EQ(scan.Log.Lines, List{});
  EXPECT_EQ(scan.Client.Printed, List{});
}

TEST(BulletinScanner, BrokenHeadingStage) {
  Check({
      {"a heading inside the heading stage",
       {Heading, "LIRF 151250Z", "SAIT32 LIIB 151300", Milan},
       {std::string("METAR SAIT32 LIIB 151300 ") + Milan},
       {Heading + " LIRF 151250Z"},
       {"Unaspected Header. Line: 3"}},
      {"a heading behind the line with AAXX",
       {LandHeading, "AAXX 15121", "SMIT02 LIIB 151200", "AAXX 15121", RomeSynop},
       {std::string("AAXX SMIT02 LIIB 151200 AAXX 15121 ") + RomeSynop},
       {LandHeading + " AAXX 15121"},
       {"Unaspected Header. Line: 3"}},
      {"a bulletin without reports",
       {Heading, "NIL", "NNNN", "SAIT32 LIIB 151300", Milan},
       {std::string("METAR SAIT32 LIIB 151300 ") + Milan},
       {Heading},
       {"Unaspected Header. Line: 4"}},
      {"no station in the first report",
       {Heading, "EETN NIL=", Rome},
       {"METAR " + Heading + " " + Rome},
       {Heading + " EETN NIL="},
       {"Header not Found. Line: 2"}},
      {"no station in the first report of an unknown type",
       {"SIXX31 LIIB 151200", "EETN NIL=", Rome},
       {std::string("METAR SIXX31 LIIB 151200 ") + Rome},
       {"SIXX31 LIIB 151200 EETN NIL="},
       {"Header not Found. Line: 2"}},
      {"no station in a later report",
       {Heading, Rome, "EETN NIL=", Milan},
       {"METAR " + Heading + " " + Rome, "METAR " + Heading + " " + Milan},
       {Heading + " EETN NIL="},
       {"Header not Found. Line: 3"}},
      {"several lines that hold no station leave the heading too",
       {Heading, "TEXT OF NO", "INTEREST=", Rome},
       {"METAR " + Heading + " " + Rome},
       {Heading + " TEXT OF NO INTEREST="},
       {"Header not Found. Line: 3"}},
  });
}

TEST(BulletinScanner, UnknownMessages) {
  Check({
      {"text without heading",
       {"WORDS OF NOTE", "AND MORE="},
       {},
       {"WORDS OF NOTE AND MORE="},
       {"Unknow Message. Line: 2"}},
      {"equals sign alone", {"="}, {}, {"="}, {"Unknow Message. Line: 1"}},
      {"a station, but no type that is known",
       {"SIXX01 KPKB 151200", "LIRF 180955 00000 45///="},
       {},
       {"SIXX01 KPKB 151200 LIRF 180955 00000 45///="},
       {"Unknow Message. Line: 2"}},
      {"station and six digits that are no period",
       {"LIRF 151250 27010KT="},
       {},
       {"LIRF 151250 27010KT="},
       {"Unknow Message. Line: 1"}},
      {"the next report is read",
       {"WORDS OF NOTE=", Rome},
       {std::string("METAR ") + Rome},
       {"WORDS OF NOTE="},
       {"Unknow Message. Line: 1"}},
  });
}

// A report of unknown type in which no station is found: told twice in the log, and the text is
// there to be looked up.
TEST(BulletinScanner, UnknownMessageWithoutStation) {
  const Scan scan({"LIRF NIL="});
  EXPECT_EQ(scan.Client.Messages, List{});
  EXPECT_EQ(scan.Log.Lines, (List{"Header not Found. Line: 1", "Unknow Message. Line: 1"}));
  ASSERT_FALSE(scan.Client.Printed.empty());
  for (const std::string& line : scan.Client.Printed) EXPECT_EQ(line, "LIRF NIL=");
}

TEST(BulletinScanner, TimeStampFiles) {
  const std::string stamp = "2003/11/15 12:50";
  Check({
      {"a blank line closes",
       {stamp, "LIRF 151250Z 27010KT", "", stamp, "LIML 151250Z 00000KT", ""},
       {"METAR LIRF 151250Z 27010KT =", "METAR LIML 151250Z 00000KT ="},
       {},
       {}},
      {"blanks are a blank line",
       {stamp, "LIRF 151250Z 27010KT", "   "},
       {"METAR LIRF 151250Z 27010KT ="},
       {},
       {}},
      {"report on two lines",
       {stamp, "LIRF 151250Z 27010KT", "CAVOK", ""},
       {"METAR LIRF 151250Z 27010KT CAVOK ="},
       {},
       {}},
      {"forecast by its look",
       {stamp, "LIRF 151100Z 151212 27010KT", "TEMPO 1214 3000 BR", ""},
       {"TAF LIRF 151100Z 151212 27010KT TEMPO 1214 3000 BR ="},
       {},
       {}},
      {"forecast by its word",
       {stamp, "TAF LIRF 151100Z 151212 27010KT", ""},
       {"TAF TAF LIRF 151100Z 151212 27010KT ="},
       {},
       {}},
      {"only the first blank line closes",
       {stamp, "LIRF 151250Z 27010KT", "", "", "LIML 151250Z 00000KT", "", "="},
       {"METAR LIRF 151250Z 27010KT =", "METAR LIML 151250Z 00000KT ="},
       {},
       {}},
      {"without a time stamp a blank line closes nothing",
       {"LIRF 151250Z 27010KT", "", "CAVOK="},
       {"METAR LIRF 151250Z 27010KT CAVOK="},
       {},
       {}},
      {"a short date is a time stamp",
       {"2003/11/1", "LIRF 151250Z 27010KT", ""},
       {"METAR LIRF 151250Z 27010KT ="},
       {},
       {}},
      {"letters ahead of the slash are none",
       {"ABCD/11/15 12:50", "LIRF 151250Z 27010KT", "", "="},
       {},
       {"ABCD/11/15 12:50 LIRF 151250Z 27010KT ="},
       {"Unknow Message. Line: 4"}},
  });
}

TEST(BulletinScanner, SynopBulletins) {
  const std::string land = LandHeading + " AAXX 15121 ";
  Check({
      {"one heading for all reports",
       {LandHeading, "AAXX 15121", RomeSynop, AquilaSynop},
       {"AAXX " + land + RomeSynop, "AAXX " + land + AquilaSynop},
       {},
       {}},
      {"reports on several lines",
       {LandHeading, "AAXX 15121", "16242 32980", "70510", "10150=", "16230 32980", "00000="},
       {"AAXX " + land + "16242 32980 70510 10150=", "AAXX " + land + "16230 32980 00000="},
       {},
       {}},
      {"the report begins on the line with AAXX",
       {LandHeading, "AAXX 15121 16242 32980", "70510="},
       {"AAXX " + land + "16242 32980 70510="},
       {},
       {}},
      {"and may end there",
       {LandHeading, std::string("AAXX 15121 ") + RomeSynop, AquilaSynop},
       {"AAXX " + land + RomeSynop, "AAXX " + land + AquilaSynop},
       {},
       {}},
      {"AAXX on the line of the heading",
       {LandHeading + " AAXX 15121", RomeSynop, AquilaSynop},
       {"AAXX " + land + RomeSynop, "AAXX " + land + AquilaSynop},
       {},
       {}},
      {"even with the report",
       {LandHeading + " AAXX 15121 " + RomeSynop, AquilaSynop},
       {"AAXX " + land + RomeSynop, "AAXX " + land + AquilaSynop},
       {},
       {}},
      {"a correction in the heading",
       {LandHeading + " CCA", "AAXX 15121", RomeSynop},
       {"AAXX " + LandHeading + " CCA AAXX 15121 " + RomeSynop},
       {},
       {}},
      {"the heading of ships",
       {SeaHeading, "BBXX", "DABC 15124 99545 10075 41398=", "DDEF 15124 99545 70075 41398="},
       {"BBXX " + SeaHeading + " BBXX DABC 15124 99545 10075 41398=",
        "BBXX " + SeaHeading + " BBXX DDEF 15124 99545 70075 41398="},
       {},
       {}},
      {"BBXX before each ship",
       {SeaHeading, "BBXX DABC 15124 99545 10075=", "BBXX DDEF 15184 99545 70075=", "BBXX",
        "DGHI 15124 99545 70075="},
       {"BBXX " + SeaHeading + " BBXX DABC 15124 99545 10075=",
        "BBXX " + SeaHeading + " BBXX DDEF 15184 99545 70075=",
        "BBXX " + SeaHeading + " BBXX DGHI 15124 99545 70075="},
       {},
       {}},
      {"AAXX with another time for this and the following reports",
       {LandHeading, "AAXX 15121", RomeSynop, std::string("AAXX 15184 ") + AquilaSynop, RomeSynop},
       {"AAXX " + land + RomeSynop, "AAXX " + LandHeading + " AAXX 15184 " + AquilaSynop,
        "AAXX " + LandHeading + " AAXX 15184 " + RomeSynop},
       {},
       {}},
      {"land behind sea",
       {SeaHeading, "BBXX DABC 15124 99545 10075=", std::string("AAXX 15121 ") + RomeSynop},
       {"BBXX " + SeaHeading + " BBXX DABC 15124 99545 10075=",
        "AAXX " + SeaHeading + " AAXX 15121 " + RomeSynop},
       {},
       {}},
      {"AAXX behind a heading that was none of its own",
       {"SIXX31 LIIB 151200", "EETN NIL=", std::string("AAXX 15121 ") + RomeSynop},
       {std::string("AAXX SIXX31 LIIB 151200 AAXX 15121 ") + RomeSynop},
       {"SIXX31 LIIB 151200 EETN NIL="},
       {"Header not Found. Line: 2"}},
      {"the same behind a bulletin with a longer heading",
       {LandHeading + " CORRECTED COPY", "AAXX 15121", RomeSynop, "SIXX31 LIIB 151200",
        "EETN NIL=", std::string("AAXX 15121 ") + RomeSynop},
       {"AAXX " + LandHeading + " CORRECTED COPY AAXX 15121 " + RomeSynop,
        std::string("AAXX SIXX31 LIIB 151200 AAXX 15121 ") + RomeSynop},
       {"SIXX31 LIIB 151200 EETN NIL="},
       {"Header not Found. Line: 5"}},
      {"an open report grows over a heading",
       {LandHeading, "AAXX 15121", "16242 32980", "SMIT02 LIIB 151200", "AAXX 15121", AquilaSynop},
       {std::string("AAXX SMIT02 LIIB 151200 AAXX 15121 16242 32980 ") + AquilaSynop},
       {},
       {}},
      {"NNNN does not close",
       {LandHeading, "AAXX 15121", "16242 32980", "NNNN", "70510="},
       {"AAXX " + land + "16242 32980 70510="},
       {},
       {}},
  });
}

TEST(BulletinScanner, TypeLinesWithoutHeading) {
  Check({
      {"AAXX once for several reports",
       {"AAXX 15121", RomeSynop, AquilaSynop},
       {std::string("AAXX AAXX 15121 ") + RomeSynop, std::string("AAXX AAXX 15121 ") + AquilaSynop},
       {},
       {}},
      {"ended by NNNN",
       {"AAXX 15121", RomeSynop, "NNNN", AquilaSynop},
       {std::string("AAXX AAXX 15121 ") + RomeSynop},
       {AquilaSynop},
       {"Unknow Message. Line: 4"}},
      {"ended by ZCZC",
       {"AAXX 15121", RomeSynop, "ZCZC 001", AquilaSynop},
       {std::string("AAXX AAXX 15121 ") + RomeSynop},
       {AquilaSynop},
       {"Unknow Message. Line: 4"}},
      {"ended by a heading",
       {"AAXX 15121", RomeSynop, Heading, Milan},
       {std::string("AAXX AAXX 15121 ") + RomeSynop, "METAR " + Heading + " " + Milan},
       {},
       {}},
      {"not ended by a blank or short line",
       {"AAXX 15121", RomeSynop, "", "123", AquilaSynop},
       {std::string("AAXX AAXX 15121 ") + RomeSynop, std::string("AAXX AAXX 15121 ") + AquilaSynop},
       {},
       {}},
      {"AAXX before each report",
       {std::string("AAXX 15121 ") + RomeSynop, std::string("AAXX 15184 ") + AquilaSynop},
       {std::string("AAXX AAXX 15121 ") + RomeSynop, std::string("AAXX AAXX 15184 ") + AquilaSynop},
       {},
       {}},
      {"BBXX once",
       {"BBXX", "DABC 15124 99545 10075=", "DDEF 15124 99545 70075="},
       {"BBXX BBXX DABC 15124 99545 10075=", "BBXX BBXX DDEF 15124 99545 70075="},
       {},
       {}},
      {"BBXX before each ship",
       {"BBXX DABC 15124 99545 10075=", "BBXX DDEF 15124 99545 70075="},
       {"BBXX BBXX DABC 15124 99545 10075=", "BBXX BBXX DDEF 15124 99545 70075="},
       {},
       {}},
      {"envelopes one behind the other",
       {"ZCZC", "AAXX 15121", RomeSynop, "NNNN", "ZCZC", "BBXX", "DABC 15124 99545 10075=", "NNNN"},
       {std::string("AAXX AAXX 15121 ") + RomeSynop, "BBXX BBXX DABC 15124 99545 10075="},
       {},
       {}},
      {"an envelope without reports is over at its end",
       {"AAXX 15121", "NNNN", Heading, Rome},
       {"METAR " + Heading + " " + Rome},
       {},
       {}},
      {"words ahead of AAXX pass for a heading",
       {std::string("COPY OF AAXX 15121 ") + RomeSynop},
       {std::string("AAXX COPY OF AAXX 15121 ") + RomeSynop},
       {},
       {}},
      {"which serves no other report, land",
       {std::string("COPY OF AAXX 15121 ") + RomeSynop, AquilaSynop},
       {std::string("AAXX COPY OF AAXX 15121 ") + RomeSynop},
       {AquilaSynop},
       {"Header not found on AAXX Msg. Line: 2"}},
      {"which serves no other report, sea",
       {"COPY OF BBXX DABC 15124 99545 10075=", "DDEF 15124 99545 70075="},
       {"BBXX COPY OF BBXX DABC 15124 99545 10075="},
       {"DDEF 15124 99545 70075="},
       {"Header not found on BBXX Msg. Line: 2"}},
  });
}

TEST(BulletinScanner, TypeWordsWithoutHeading) {
  Check({
      {"each names its type",
       {std::string("METAR ") + Rome, std::string("SPECI ") + Milan,
        "TAF LIMC 151100Z 151212 00000KT="},
       {std::string("METAR METAR ") + Rome, std::string("SPECI SPECI ") + Milan,
        "TAF TAF LIMC 151100Z 151212 00000KT="},
       {},
       {}},
      {"corrections",
       {"TAF AMD LIRF 151212 27010KT=", std::string("METAR COR ") + Milan},
       {"TAF TAF AMD LIRF 151212 27010KT=", std::string("METAR METAR COR ") + Milan},
       {},
       {}},
      {"behind a type line",
       {"AAXX 15121", RomeSynop, std::string("METAR ") + Milan},
       {std::string("AAXX AAXX 15121 ") + RomeSynop, std::string("METAR METAR ") + Milan},
       {},
       {}},
  });
}

TEST(BulletinScanner, Fronts) {
  const std::string heading = "ASUS1 KWBC 151200";
  const List analysis = {heading, "CODSUS", "VALID 151200Z", "HIGHS 1030 4515", "COLD 3012 3014"};
  const std::string text =
      "FRONTS ASUS1 KWBC 151200 CODSUS VALID 151200Z HIGHS 1030 4515 COLD 3012 3014";
  const auto with = [&analysis](const List& more) {
    List lines = analysis;
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
  };
  Check({
      {"NNNN ends it", with({"NNNN"}), {text}, {}, {}},
      {"ZCZC ends it", with({"ZCZC 002"}), {text}, {}, {}},
      {"a short word ends it", with({"END"}), {text}, {}, {}},
      {"a blank line does not", with({"", "WARM 3116", "NNNN"}), {text + " WARM 3116"}, {}, {}},
      {"it ends once", with({"NNNN", "NNNN", "ZCZC", "AB"}), {text}, {}, {}},
      {"without an end nothing is known", analysis, {}, {}, {}},
      {"reports behind it",
       with({"NNNN", "ZCZC", Heading, Rome}),
       {text, "METAR " + Heading + " " + Rome},
       {},
       {}},
  });
}

TEST(BulletinScanner, EachAnalysisEmptiesTheTable) {
  const List analysis = {"ASUS1 KWBC 151200", "CODSUS", "VALID 151200Z", "HIGHS 1030 4515", "NNNN"};
  Scan scan({analysis[0]});
  EXPECT_EQ(scan.Client.Resets, 1);
  scan.Feed({analysis.begin() + 1, analysis.end()});
  EXPECT_EQ(scan.Client.Resets, 1);
  scan.Feed(analysis);
  EXPECT_EQ(scan.Client.Resets, 2);
  EXPECT_EQ(scan.Client.Messages.size(), 2u);
}

TEST(BulletinScanner, Sigmet) {
  Check({
      {"has no decoder",
       {"WSIT31 LIIB 151200", "LIRR 151200 SIGMET 1 VALID="},
       {},
       {},
       {"Message Type on line 2"}},
      {"without a time no report is found",
       {"WSIT31 LIIB 151200", "LIRR SIGMET 1 VALID="},
       {},
       {"WSIT31 LIIB 151200 LIRR SIGMET 1 VALID="},
       {"Header not Found. Line: 2"}},
  });
}

TEST(BulletinScanner, LogInItalian) {
  struct Row {
    const char* name;
    List lines;
    List log;
  };
  const Row rows[] = {
      {"heading", {Heading, "SAIT32 LIIB 151300"}, {"Header inaspettato. Line: 2"}},
      {"unknown", {"WORDS OF NOTE="}, {"Messaggio non elaborato. Line: 1"}},
      {"no station", {Heading, "EETN NIL="}, {"Header non trovato. Line: 2"}},
      {"no AAXX",
       {std::string("COPY OF AAXX 15121 ") + RomeSynop, AquilaSynop},
       {"Header non trovato (AAXX). Line: 2"}},
      {"no BBXX",
       {"COPY OF BBXX DABC 15124 99545 10075=", "DDEF 15124 99545 70075="},
       {"Header non trovato (BBXX). Line: 2"}},
      {"no decoder",
       {"WSIT31 LIIB 151200", "LIRR 151200 SIGMET 1 VALID="},
       {"Tipo di messaggio non riconosciuto alla linea 2"}},
  };
  for (const Row& row : rows) {
    const Scan scan(row.lines, false, 0);
    EXPECT_EQ(scan.Log.Lines, row.log) << row.name;
  }
}

TEST(BulletinScanner, WordList) {
  struct Row {
    const char* name;
    List lines;
    const char* words;
    std::size_t headerEnd;
    bool heading;
  };
  const Row rows[] = {
      {"heading",
       {Heading, "LIRF 151250Z 27010KT="},
       "SAIT31 LIIB 151200 LIRF 151250Z 27010KT",
       3,
       true},
      {"type word",
       {Heading, "METAR", "LIRF 151250Z 27010KT="},
       "SAIT31 LIIB 151200 METAR LIRF 151250Z 27010KT",
       4,
       true},
      {"correction",
       {Heading + " COR", "LIRF 151250Z 27010KT="},
       "SAIT31 LIIB 151200 COR LIRF 151250Z 27010KT",
       4,
       true},
      {"blanks",
       {Heading, "LIRF   151250Z  27010KT  ="},
       "SAIT31 LIIB 151200 LIRF 151250Z 27010KT",
       3,
       true},
      {"no heading", {"LIRF 151250Z 27010KT="}, "LIRF 151250Z 27010KT", 0, false},
      {"no heading, type word",
       {"METAR LIRF 151250Z 27010KT="},
       "METAR LIRF 151250Z 27010KT",
       1,
       false},
      {"no heading, type word and correction",
       {"TAF AMD LIRF 151212 27010KT="},
       "TAF AMD LIRF 151212 27010KT",
       2,
       false},
  };
  for (const Row& row : rows) {
    const Scan scan(row.lines);
    ASSERT_EQ(scan.Client.Words, List{row.words}) << row.name;
    EXPECT_EQ(scan.Client.HeaderEnds[0], row.headerEnd) << row.name;
    EXPECT_EQ(scan.Client.Headings[0], row.heading) << row.name;
  }
}

TEST(BulletinScanner, SynopWordListTellsItsHeading) {
  const Scan with({LandHeading, "AAXX 15121", RomeSynop});
  ASSERT_EQ(with.Client.Headings.size(), 1u);
  EXPECT_TRUE(with.Client.Headings[0]);
  EXPECT_EQ(with.Client.Words[0], LandHeading + " AAXX 15121 16242 32980 70510 10150 20100 40150");
  const Scan without({"AAXX 15121", RomeSynop});
  ASSERT_EQ(without.Client.Headings.size(), 1u);
  EXPECT_FALSE(without.Client.Headings[0]);
  EXPECT_EQ(without.Client.Words[0], "AAXX 15121 16242 32980 70510 10150 20100 40150");
}

// The last character of an analysis is no equals sign and stays.
TEST(BulletinScanner, FrontsWordListKeepsItsEnd) {
  const Scan scan({"ASUS1 KWBC 151200", "CODSUS VALID 151200Z", "COLD 3012 3014", "NNNN"});
  EXPECT_EQ(scan.Client.Words, List{"ASUS1 KWBC 151200 CODSUS VALID 151200Z COLD 3012 3014"});
}

TEST(BulletinScanner, Results) {
  Scan scan({Heading, Rome, "LIML 151250Z"});
  ASSERT_EQ(scan.Results.size(), 3u);
  EXPECT_FALSE(scan.Results[0].Complete);
  EXPECT_TRUE(scan.Results[0].Failed);
  EXPECT_TRUE(scan.Results[1].Complete);
  EXPECT_FALSE(scan.Results[1].Failed);
  EXPECT_FALSE(scan.Results[2].Complete);
  EXPECT_TRUE(scan.Results[2].Failed);
  scan.Client.Stores = false;
  scan.Feed({"00000KT="});
  EXPECT_TRUE(scan.Results[3].Complete);
  EXPECT_TRUE(scan.Results[3].Failed);
  scan.Feed({"EETN NIL="});
  EXPECT_TRUE(scan.Results[4].Complete);
  EXPECT_TRUE(scan.Results[4].Failed);
}

TEST(BulletinScanner, LineCountIsThatOfTheLastLine) {
  const Scan scan({"ZCZC", "", Heading, "LIRF 151250Z", "27010KT=", "?", Milan});
  EXPECT_EQ(scan.Client.LineCounts, (std::vector<std::int32_t>{5, 7}));
  EXPECT_EQ(scan.Scanner.LineCount(), 7);
}

TEST(BulletinScanner, TypedMessages) {
  struct Row {
    const char* name;
    const char* line;
    List messages;
    bool heading;
    List log;
  };
  const Row rows[] = {
      {"METAR", "METAR LIRF 151250Z 27010KT =", {"METAR METAR LIRF 151250Z 27010KT ="}, false, {}},
      {"SPECI", "SPECI LIRF 151250Z 27010KT =", {"SPECI SPECI LIRF 151250Z 27010KT ="}, false, {}},
      {"TAF", "TAF LIRF 151212 27010KT =", {"TAF TAF LIRF 151212 27010KT ="}, false, {}},
      {"by its look", "LIRF 151250Z 27010KT =", {"METAR LIRF 151250Z 27010KT ="}, false, {}},
      {"forecast by its look", "LIRF 151212 27010KT =", {"TAF LIRF 151212 27010KT ="}, false, {}},
      {"with a heading",
       "FTIT31 LIIB 151000 LIRF 151100Z 151212 27010KT =",
       {"TAF FTIT31 LIIB 151000 LIRF 151100Z 151212 27010KT ="},
       true,
       {}},
      {"with a heading of another kind",
       "SIXX31 LIIB 151200 LIRF 151250Z 27010KT =",
       {"METAR SIXX31 LIIB 151200 LIRF 151250Z 27010KT ="},
       true,
       {}},
      {"AAXX",
       "AAXX 15121 16242 32980 70510 =",
       {"AAXX AAXX 15121 16242 32980 70510 ="},
       false,
       {}},
      {"AAXX with a heading",
       "SMIT01 LIIB 151200 AAXX 15121 16242 32980 70510 =",
       {"AAXX SMIT01 LIIB 151200 AAXX 15121 16242 32980 70510 ="},
       true,
       {}},
      {"BBXX", "BBXX DABC 15124 99545 10075 =", {"BBXX BBXX DABC 15124 99545 10075 ="}, false, {}},
      {"unknown", "HELLO WORLD =", {}, false, {"Unknow Message. Line: 1"}},
      {"no station",
       "LIRF HELLO =",
       {},
       false,
       {"Header not Found. Line: 1", "Unknow Message. Line: 1"}},
      {"question mark", "METAR LIRF ? =", {}, false, {}},
      {"short", "AB", {}, false, {}},
      {"no equals sign", "METAR LIRF 151250Z 27010KT", {}, false, {}},
  };
  for (const Row& row : rows) {
    const Scan scan({row.line}, true);
    EXPECT_EQ(scan.Client.Messages, row.messages) << row.name;
    EXPECT_EQ(scan.Client.Printed, List{}) << row.name;
    EXPECT_EQ(scan.Log.Lines, row.log) << row.name;
    EXPECT_EQ(scan.Results[0].Complete, !row.messages.empty() || !row.log.empty()) << row.name;
    if (row.messages.empty()) continue;
    EXPECT_EQ(scan.Client.Headings[0], row.heading) << row.name;
  }
}

TEST(BulletinScanner, ResetForgetsAll) {
  Scan scan({Heading, Milan, "LIRF 151250Z"});
  scan.Scanner.Reset(false);
  scan.Client.Messages.clear();
  scan.Feed({"WORDS OF NOTE="});
  EXPECT_EQ(scan.Client.Messages, List{});
  EXPECT_EQ(scan.Client.Printed, List{"WORDS OF NOTE="});
  EXPECT_EQ(scan.Log.Lines, List{"Unknow Message. Line: 1"});
  scan.Scanner.Reset(false);
  scan.Feed({"2003/11/15 12:50", "LIRF 151250Z 27010KT"});
  scan.Scanner.Reset(false);
  scan.Feed({"LIML 151250Z 00000KT", "", "="});
  EXPECT_EQ(scan.Client.Messages, List{"METAR LIML 151250Z 00000KT ="});
}

}  // namespace
}  // namespace zg
