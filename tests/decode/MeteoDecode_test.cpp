#include "decode/MeteoDecode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "decode/DecodeFixture.h"

namespace zg {
namespace {

using test::DecodeFixture;
using test::ReadTestFile;
using test::WriteTestFile;

using List = std::vector<std::string>;

// A file of lines with whole line ends, long enough behind its first line to need no repair.
std::string File(const List& lines) {
  std::string bytes = "\r\n";
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// What the log says beside the lines of every run.
List Messages(const DecodeFixture& fixture) {
  List lines;
  for (const std::string& line : fixture.Log.Lines) {
    const bool ofEveryRun = line.starts_with("Decoding ") || line.starts_with("File ") ||
                            line.starts_with("Decodifica ") || line.starts_with("Velocita ") ||
                            line.starts_with("Chiusura ");
    if (!ofEveryRun) lines.push_back(line);
  }
  return lines;
}

List Stations(const DecodeFixture& fixture) {
  List names;
  for (const SynopData& record : fixture.Synops()) names.emplace_back(record.Station.Station());
  for (const MetarData& record : fixture.Metars()) names.emplace_back(record.Station.Station());
  return names;
}

const std::string Heading = "SAIT31 LIIB 151200";
const std::string Rome = "LIRF 151250Z 27010KT CAVOK 15/10 Q1015=";
const std::string London = "EGLL 151250Z 00000KT 3000 BR 10/09 Q1016=";
const std::string LandHeading = "SMIT01 LIIB 151200";
const std::string RomeSynop = "16242 32980 70510 10150 20100 40150=";
const std::string LondonSynop = "03772 32980 70510 10150 20100 40150=";
const std::string Ship = "BBXX DABC 15124 99545 10075 41398 70510 10150=";

// --- files and their log ---

TEST(MeteoDecode, LogOfARun) {
  struct Row {
    const char* name;
    std::uint8_t language;
    std::string bytes;
    List log;
  };
  const std::string whole = File({Heading, Rome});  // 63 bytes
  const std::string feeds = Heading + "\n" + Rome;  // 58 bytes, 60 behind the repair
  ASSERT_EQ(whole.size(), 63u);
  ASSERT_EQ(feeds.size(), 58u);
  const Row rows[] = {
      {"English",
       1,
       whole,
       {"Decoding ... a/b.txt (63Bytes)", "Decoding Speed: 252.00 Bytes/sec",
        "File a/b.txt Closed"}},
      {"Italian",
       0,
       whole,
       {"Decodifica ... a/b.txt (63Bytes)", "Velocita di Decodifica: 252.00 Bytes/sec",
        "Chiusura File: a/b.txt"}},
      {"English, repaired",
       1,
       feeds,
       {"Formatting ... Wait!", "Decoding ... a/b.txt (60Bytes)",
        "Decoding Speed: 240.00 Bytes/sec", "File a/b.txt Closed"}},
      {"Italian, repaired",
       0,
       feeds,
       {"Formattazione ... Attendere!", "Decodifica ... a/b.txt (60Bytes)",
        "Velocita di Decodifica: 240.00 Bytes/sec", "Chiusura File: a/b.txt"}},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    fixture.Texts.SetLanguage(row.language);
    fixture.Ticks.Step = 250;
    const MeteoDecode::Summary summary = fixture.Decode(row.bytes, "a/b.txt");
    EXPECT_EQ(fixture.Log.Lines, row.log) << row.name;
    EXPECT_TRUE(summary.Read) << row.name;
    EXPECT_EQ(summary.DecodedCount, 1) << row.name;
    EXPECT_EQ(summary.Error, "") << row.name;
    EXPECT_TRUE(fixture.Boxes.Boxes.empty()) << row.name;
  }
}

TEST(MeteoDecode, NoTimeCountsAsAMillisecond) {
  DecodeFixture fixture;
  fixture.Decode(File({Heading, Rome}));
  ASSERT_EQ(fixture.Log.Lines.size(), 3u);
  EXPECT_EQ(fixture.Log.Lines[1], "Decoding Speed: 63000.00 Bytes/sec");
}

TEST(MeteoDecode, EmptyFile) {
  DecodeFixture fixture;
  fixture.Decode(File({Heading, Rome}));
  fixture.Log.Lines.clear();
  WriteTestFile(fixture.Folder / "empty.txt", "");
  const MeteoDecode::Summary summary = fixture.Decoder().DecodeFile(fixture.Folder / "empty.txt");
  EXPECT_TRUE(summary.Read);
  EXPECT_EQ(summary.Bytes, 0);
  EXPECT_EQ(summary.Lines, 0);
  EXPECT_EQ(fixture.Log.Lines, List{});
  EXPECT_FALSE(std::filesystem::exists(fixture.WrongFilePath("empty.txt")));
  EXPECT_EQ(fixture.Metars().size(), 1u);
  EXPECT_EQ(ReadTestFile(fixture.Folder / "empty.txt"), "");
}

TEST(MeteoDecode, FileThatIsNotThere) {
  DecodeFixture fixture;
  fixture.Decode(File({Heading, Rome}));
  fixture.Log.Lines.clear();
  const MeteoDecode::Summary summary = fixture.Decoder().DecodeFile(fixture.Folder / "none.txt");
  EXPECT_FALSE(summary.Read);
  EXPECT_NE(summary.Error, "");
  ASSERT_EQ(fixture.Boxes.Boxes.size(), 1u);
  EXPECT_EQ(fixture.Boxes.Boxes[0].icon, Prompt::Icon::Critical);
  EXPECT_EQ(fixture.Log.Lines, List{fixture.Boxes.Boxes[0].text});
  EXPECT_EQ(fixture.Metars().size(), 1u);
}

TEST(MeteoDecode, WrongLineFileThatCannotBeWritten) {
  DecodeFixture fixture;
  WriteTestFile(fixture.Folder / "WrongFiles", "in the way");
  const MeteoDecode::Summary summary = fixture.Decode(File({Heading, Rome}));
  EXPECT_TRUE(summary.Read);
  EXPECT_NE(summary.Error, "");
  EXPECT_EQ(summary.DecodedCount, 1);
  ASSERT_EQ(fixture.Boxes.Boxes.size(), 1u);
  EXPECT_NE(std::find(fixture.Log.Lines.begin(), fixture.Log.Lines.end(), summary.Error),
            fixture.Log.Lines.end());
}

// The repair is made once on the disk, and nothing is left beside the file.
TEST(MeteoDecode, RepairOnTheDisk) {
  DecodeFixture fixture;
  std::string before = Heading + "\n";
  std::string after = Heading + "\r";
  for (int i = 0; i < 5; ++i) {
    before += Rome + "\n";
    after += Rome + "\r";
  }
  after += "\r\n";
  const std::string path = fixture.Folder / "feeds.txt";
  WriteTestFile(path, before);
  EXPECT_EQ(fixture.Decoder().DecodeFile(path).DecodedCount, 5);
  EXPECT_EQ(ReadTestFile(path), after);
  EXPECT_EQ(fixture.Log.Lines.front(), "Formatting ... Wait!");
  EXPECT_EQ(fixture.Log.Lines.size(), 4u);
  EXPECT_EQ(fixture.Folder.Entries(), (List{"ICAOData.mdb", "WrongFiles", "feeds.txt"}));

  fixture.Log.Lines.clear();
  const MeteoDecode::Summary second = fixture.Decoder().DecodeFile(path);
  EXPECT_EQ(second.DecodedCount, 5);
  EXPECT_EQ(second.Bytes, std::ssize(after));
  EXPECT_EQ(ReadTestFile(path), after);
  EXPECT_EQ(fixture.Log.Lines.size(), 3u);
}

TEST(MeteoDecode, RepairInMemoryOnly) {
  DecodeFixture fixture;
  fixture.Settings.RewriteFiles = false;
  const std::string path = fixture.Folder / "feeds.txt";
  WriteTestFile(path, Heading + "\n" + Rome + "\n");
  EXPECT_EQ(fixture.Decoder().DecodeFile(path).DecodedCount, 1);
  EXPECT_EQ(ReadTestFile(path), Heading + "\n" + Rome + "\n");
  EXPECT_EQ(fixture.Log.Lines.front(), "Formatting ... Wait!");
}

TEST(MeteoDecode, FileWithoutNeedOfRepairIsNotTouched) {
  DecodeFixture fixture;
  const std::string path = fixture.Folder / "whole.txt";
  const std::string bytes = File({Heading, Rome});
  WriteTestFile(path, bytes);
  EXPECT_EQ(fixture.Decoder().DecodeFile(path).DecodedCount, 1);
  EXPECT_EQ(ReadTestFile(path), bytes);
}

TEST(MeteoDecode, LineEnds) {
  struct Row {
    const char* name;
    std::string bytes;
  };
  const std::string report = "LIRF 151250Z 27010KT CAVOK";
  const Row rows[] = {
      {"line feed", Heading + "\n" + report + "\n15/10=\n"},
      {"no end of the last line", Heading + "\n" + report + "\n15/10="},
      {"carriage return", Heading + "\r" + report + "\r15/10=\r"},
      {"carriage return and line feed", Heading + "\r\n" + report + "\r\n15/10=\r\n"},
      {"circuit", "\x01\r\r\n" + Heading + "\r\r\n" + report + "\r\r\n15/10=\r\r\n\r\r\n"},
      {"mixed", "\x01\r\r\n" + Heading + "\r\n" + report + "\n15/10=\r\r\n\n\n\n\n\nNNNN\r\r\n"},
      {"mixed, repaired", Heading + "\n" + report + "\r\n15/10=\r\r\n\n\n\n\n\nNNNN\n"},
      {"one long line first",
       std::string(500, '-') + "\r\n" + Heading + "\r\n" + report + "\r\n15/10=\r\n"},
  };
  for (const Row& row : rows) {
    // Text ahead of a heading would stand behind the report in it; a question mark takes it away.
    std::string bytes = row.bytes;
    std::replace(bytes.begin(), bytes.end(), '-', '?');
    DecodeFixture fixture;
    const MeteoDecode::Summary summary = fixture.Decode(bytes);
    EXPECT_EQ(summary.DecodedCount, 1) << row.name;
    ASSERT_EQ(fixture.Metars().size(), 1u) << row.name;
    EXPECT_EQ(fixture.Metars()[0].RawText, Heading + " " + report + " 15/10=") << row.name;
    EXPECT_EQ(fixture.Progress.Positions.back(), summary.Bytes) << row.name;
  }
}

TEST(MeteoDecode, TimeStampFiles) {
  const std::string stamp = "2003/11/15 12:50";
  const std::string rome = "LIRF 151250Z 27010KT";
  const std::string london = "EGLL 151250Z 00000KT";
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {
      {"line feeds, blank line at the end",
       stamp + "\n" + rome + "\n\n" + stamp + "\n" + london + "\n\n"},
      {"line feeds, final line end only",
       stamp + "\n" + rome + "\n\n" + stamp + "\n" + london + "\n"},
      {"line feeds, no final line end", stamp + "\n" + rome + "\n\n" + stamp + "\n" + london},
      {"line ends whole, blank line at the end",
       stamp + "\r\n" + rome + "\r\n\r\n" + stamp + "\r\n" + london + "\r\n\r\n"},
      {"line ends whole, final line end only",
       stamp + "\r\n" + rome + "\r\n\r\n" + stamp + "\r\n" + london + "\r\n"},
      {"line ends whole, no final line end",
       stamp + "\r\n" + rome + "\r\n\r\n" + stamp + "\r\n" + london},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    fixture.Decode(row.bytes);
    EXPECT_EQ(Stations(fixture), (List{"Roma Fiumicino", "London Heathrow"})) << row.name;
    EXPECT_EQ(Messages(fixture), List{"Formatting ... Wait!"}) << row.name;
    EXPECT_EQ(fixture.WrongFile(), "") << row.name;
  }
}

TEST(MeteoDecode, LowerCaseDecodesLikeUpperCase) {
  DecodeFixture fixture;
  fixture.Decode(File({"sait31 liib 151200", "lirf 151250z 27010kt cavok 15/10 q1015="}));
  ASSERT_EQ(fixture.Metars().size(), 1u);
  EXPECT_EQ(fixture.Metars()[0].RawText, Heading + " " + Rome);
  EXPECT_EQ(fixture.Metars()[0].Temperature,
            "15.0 \xC2\xB0"
            "C");
}

// --- progress and stop ---

TEST(MeteoDecode, ProgressAndYields) {
  DecodeFixture fixture;
  const std::string bytes = File(List(34, "AB"));  // 35 lines
  const MeteoDecode::Summary summary = fixture.Decode(bytes);
  EXPECT_EQ(summary.Lines, 35);
  EXPECT_EQ(fixture.Progress.Maximum, std::ssize(bytes));
  EXPECT_EQ(fixture.Progress.Yields, 3);
  const std::vector<std::int64_t>& positions = fixture.Progress.Positions;
  ASSERT_GE(positions.size(), 35u);
  EXPECT_EQ(positions.front(), 2);
  EXPECT_EQ(positions.back(), std::ssize(bytes));
  EXPECT_TRUE(std::is_sorted(positions.begin(), positions.end()));
}

// Does something at a yield, as a click in a window would.
struct ClickAtYield : test::RecordingProgress {
  int At = 1;
  std::function<void()> Click;
  void Yield() override {
    RecordingProgress::Yield();
    if (Yields == At && Click) Click();
  }
};

TEST(MeteoDecode, StopInTheMiddle) {
  DecodeFixture fixture;
  ClickAtYield progress;
  fixture.UseProgress(progress);
  progress.Click = [&fixture] { fixture.Decoder().CloseFile(); };
  List lines{Heading, "WORDS OF NOTE"};  // lines 2 and 3
  lines.resize(60, Rome);
  const std::string bytes = File(lines);
  const MeteoDecode::Summary summary = fixture.Decode(bytes);
  EXPECT_EQ(summary.Lines, 10);
  EXPECT_EQ(summary.Bytes, std::ssize(bytes));
  EXPECT_EQ(summary.DecodedCount, 7);
  EXPECT_EQ(fixture.Metars().size(), 7u);
  const auto position = 2 + 20 + 15 + 7 * (std::ssize(Rome) + 2);
  EXPECT_EQ(progress.Positions.back(), position);
  EXPECT_EQ(fixture.Log.Lines,
            (List{"Decoding ... bulletin.txt (" + std::to_string(bytes.size()) + "Bytes)",
                  "Decoding Speed: " + std::to_string(position) + "000.00 Bytes/sec",
                  "File bulletin.txt Closed"}));
  EXPECT_TRUE(std::filesystem::exists(fixture.WrongFilePath()));

  EXPECT_EQ(fixture.Decode(bytes).DecodedCount, 58) << "the stop is used up";
}

// The loop looks at the stop behind a line, so one that was set before lets a line pass.
TEST(MeteoDecode, StopAheadOfTheFile) {
  DecodeFixture fixture;
  fixture.Decoder().CloseFile();
  EXPECT_EQ(fixture.Decode(File({Heading, Rome, Rome})).Lines, 1);
  EXPECT_EQ(fixture.Decode(File({Heading, Rome, Rome})).DecodedCount, 2);
}

TEST(MeteoDecode, BreakIdlesUntilItIsTakenBack) {
  DecodeFixture fixture;
  ClickAtYield progress;
  fixture.UseProgress(progress);
  progress.At = 5;
  progress.Click = [&fixture] { fixture.Decoder().SetBreak(false); };
  EXPECT_FALSE(fixture.Decoder().Break());
  fixture.Decoder().SetBreak(true);
  EXPECT_TRUE(fixture.Decoder().Break());
  EXPECT_EQ(fixture.Decode(File({Heading, Rome, Rome})).DecodedCount, 2);
  EXPECT_EQ(progress.Yields, 5);
  EXPECT_FALSE(fixture.Decoder().Break());
}

// --- store limit ---

TEST(MeteoDecode, MaxMessages) {
  struct Row {
    const char* name;
    std::int32_t maximum;
    std::uint8_t language;
    int stored;
    List log;
  };
  const Row rows[] = {
      {"three", 3, 1, 3, {"3 Msg: Max Message number reached."}},
      {"three, Italian", 3, 0, 3, {"3 Msg: Numero Massimo di messaggi raggiunto."}},
      {"one", 1, 1, 1, {"1 Msg: Max Message number reached."}},
      {"none", 0, 1, 1, {"1 Msg: Max Message number reached."}},
      {"as many as there are", 5, 1, 5, {"5 Msg: Max Message number reached."}},
      {"more than there are", 6, 1, 5, {}},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    fixture.Settings.MaxMessages = row.maximum;
    fixture.Texts.SetLanguage(row.language);
    const MeteoDecode::Summary summary =
        fixture.Decode(File({Heading, Rome, Rome, Rome, Rome, Rome}));
    EXPECT_EQ(summary.DecodedCount, row.stored) << row.name;
    EXPECT_EQ(fixture.Metars().size(), static_cast<std::size_t>(row.stored)) << row.name;
    EXPECT_EQ(summary.Lines, 2 + row.stored) << row.name;
    EXPECT_EQ(Messages(fixture), row.log) << row.name;
  }
}

TEST(MeteoDecode, MaxMessagesOfSynop) {
  DecodeFixture fixture;
  fixture.Settings.MaxMessages = 2;
  fixture.Decode(File({LandHeading, "AAXX 15121", RomeSynop, RomeSynop, RomeSynop}));
  EXPECT_EQ(fixture.Synops().size(), 2u);
  EXPECT_EQ(Messages(fixture), List{"2 Msg: Max Message number reached."});
}

TEST(MeteoDecode, LargestMaxMessages) {
  DecodeFixture fixture;
  fixture.Settings.MaxMessages = 40'000;
  std::string bytes = File({Heading});
  for (int i = 0; i < 32'770; ++i) bytes += "LIRF 1250Z CAVOK=\r\n";
  EXPECT_EQ(fixture.Decode(bytes).DecodedCount, 32'767);
  EXPECT_EQ(fixture.Metars().size(), 32'767u);
  const List log = Messages(fixture);
  ASSERT_EQ(log.size(), 2u);
  EXPECT_NE(log[0].find("32767"), std::string::npos);
  EXPECT_EQ(log[1], "32767 Msg: Max Message number reached.");
}

TEST(MeteoDecode, LargestMaxMessagesAsItIsNeedsNoWord) {
  DecodeFixture fixture;
  fixture.Settings.MaxMessages = 32'767;
  fixture.Decoder();
  EXPECT_EQ(fixture.Log.Lines, List{});
}

// --- store family ---

TEST(MeteoDecode, StoreFamily) {
  struct Row {
    const char* name;
    List lines;
    std::size_t synops;
    std::size_t metars;
  };
  const Row rows[] = {
      {"SYNOP only", {LandHeading, "AAXX 15121", RomeSynop}, 1, 0},
      {"METAR only", {Heading, Rome}, 0, 1},
      {"METAR, SPECI and TAF are one family",
       {Heading, Rome, "SPIT31 LIIB 151200", Rome, "FTIT31 LIIB 151000", "LIRF 151212 27010KT="},
       0,
       3},
      {"AAXX and BBXX are one family",
       {LandHeading, "AAXX 15121", RomeSynop, "SNVX11 KWBC 151200", Ship},
       2,
       0},
      {"SYNOP first", {LandHeading, "AAXX 15121", RomeSynop, Heading, Rome}, 1, 0},
      {"METAR first", {Heading, Rome, LandHeading, "AAXX 15121", RomeSynop}, 0, 1},
      {"and again SYNOP",
       {LandHeading, "AAXX 15121", RomeSynop, Heading, Rome, LandHeading, "AAXX 15121", RomeSynop},
       2,
       0},
      {"a message that the decoder drops chooses too",
       {Heading, "XXXX 151250Z 27010KT=", LandHeading, "AAXX 15121", RomeSynop},
       0,
       0},
      {"a message that the decoder rejects chooses too",
       {LandHeading, "AAXX 15121", "16242 NIL=", Heading, Rome},
       0,
       0},
      {"an unknown message does not",
       {"WORDS OF NOTE=", LandHeading, "AAXX 15121", RomeSynop},
       1,
       0},
      {"a SIGMET does not",
       {"WSIT31 LIIB 151200", "LIRR 151200 SIGMET=", LandHeading, "AAXX 15121", RomeSynop},
       1,
       0},
      {"a frontal analysis does not",
       {"ASUS1 KWBC 151200", "CODSUS VALID 151200Z COLD 3012 3014", "NNNN", Heading, Rome},
       0,
       1},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    fixture.Decode(File(row.lines));
    EXPECT_EQ(fixture.Synops().size(), row.synops) << row.name;
    EXPECT_EQ(fixture.Metars().size(), row.metars) << row.name;
  }
}

TEST(MeteoDecode, ARunReplacesItsStoreOnly) {
  DecodeFixture fixture;
  fixture.Decode(File({LandHeading, "AAXX 15121", RomeSynop, LondonSynop}));
  fixture.Decode(File({Heading, Rome, London, Rome}));
  EXPECT_EQ(fixture.Synops().size(), 2u);
  EXPECT_EQ(fixture.Metars().size(), 3u);
  fixture.Decode(File({Heading, London}));
  EXPECT_EQ(fixture.Synops().size(), 2u);
  ASSERT_EQ(fixture.Metars().size(), 1u);
  EXPECT_EQ(fixture.Metars()[0].Station.Station(), "London Heathrow");
  fixture.Decode(File({"WORDS OF NOTE=", "WSIT31 LIIB 151200", "LIRR 151200 SIGMET="}));
  EXPECT_EQ(fixture.Synops().size(), 2u);
  EXPECT_EQ(fixture.Metars().size(), 1u);
}

TEST(MeteoDecode, ResetErasesTheStores) {
  DecodeFixture fixture;
  fixture.Decode(File({LandHeading, "AAXX 15121", RomeSynop}));
  fixture.Decode(File({Heading, Rome}));
  fixture.Stores.SynopStore.Reset(10);
  fixture.Stores.MetarStore.Reset(10);
  EXPECT_EQ(fixture.Stores.SynopStore.Count(), 0u);
  EXPECT_EQ(fixture.Stores.MetarStore.Count(), 0u);
}

// What a store keeps of stations is that of the present run.
TEST(MeteoDecode, StationTextsFollowLanguageAndDirectory) {
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {
      {"METAR", File({Heading, Rome})},
      {"SYNOP", File({LandHeading, "AAXX 15121", RomeSynop})},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    const auto station = [&fixture] {
      return fixture.Metars().empty() ? fixture.Synops()[0].Station : fixture.Metars()[0].Station;
    };
    fixture.Decode(row.bytes);
    EXPECT_EQ(station().Quadrant(), "North-Est") << row.name;
    fixture.Texts.SetLanguage(0);
    fixture.Decode(row.bytes);
    EXPECT_EQ(station().Quadrant(), "Nord-Est") << row.name;
    EXPECT_EQ(station().Station(), "Roma Fiumicino") << row.name;
    EXPECT_TRUE(
        fixture.Database.Query("update MeteoStations set Station = 'Fiumicino', Country = 'Lazio' "
                               "where WMOIndex = 16242"));
    EXPECT_TRUE(fixture.Stations.Load(fixture.Database));
    fixture.Decode(row.bytes);
    EXPECT_EQ(station().Station(), "Fiumicino") << row.name;
    EXPECT_EQ(station().Country(), "Lazio") << row.name;
  }
}

// --- filters ---

TEST(MeteoDecode, Filters) {
  struct Row {
    const char* name;
    MessageFilters filters;
    List lines;
    List stations;
  };
  const List metars = {Heading,
                       Rome,
                       London,
                       "YSSY 151250Z 27010KT=",
                       "SAEZ 151250Z 27010KT=",
                       "XXXX 151250Z 27010KT=",
                       "XXNC 151250Z 27010KT="};
  const List synops = {LandHeading,
                       "AAXX 15121",
                       RomeSynop,
                       "99999 32980 70510 10150=",
                       "BBXX DABC 15124 99545 10075 41398 70510=",
                       "BBXX SHIP 15124 99545 10075 41398 70510=",
                       "BBXX 62103 15124 99545 70075 41398 70510=",
                       "BBXX DSAA 15124 99545 20075 41398 70510="};
  const Row rows[] = {
      {"open", {}, metars, {"Roma Fiumicino", "London Heathrow", "Sydney Airport", "Ezeiza"}},
      {"north-east", {{""}, 1, 7}, metars, {"Roma Fiumicino"}},
      {"south-east", {{""}, 2, 7}, metars, {"Sydney Airport"}},
      {"south-west", {{""}, 4, 7}, metars, {"Ezeiza"}},
      {"north-west", {{""}, 8, 7}, metars, {"London Heathrow"}},
      {"no quadrant", {{""}, 0, 7}, metars, {}},
      {"kind of station does not count", {{""}, 1, 0}, metars, {"Roma Fiumicino"}},
      {"countries", {{"Italy", "Argentina"}, 15, 7}, metars, {"Roma Fiumicino", "Ezeiza"}},
      {"no country of the list", {{"Malta"}, 15, 7}, metars, {}},
      {"no list", {{}, 15, 7}, metars, {}},
      {"open, SYNOP", {}, synops, {"Roma Fiumicino", "DABC", "62103"}},
      {"land", {{""}, 15, 4}, synops, {"Roma Fiumicino"}},
      {"ships", {{""}, 15, 2}, synops, {"DABC"}},
      {"buoys", {{""}, 15, 1}, synops, {"62103"}},
      {"no kind", {{""}, 15, 0}, synops, {}},
      {"north-west, SYNOP", {{""}, 8, 7}, synops, {"62103"}},
      {"country of a ship", {{"Germany"}, 15, 7}, synops, {"DABC"}},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    fixture.Context.Filters = row.filters;
    fixture.Decode(File(row.lines));
    EXPECT_EQ(Stations(fixture), row.stations) << row.name;
    EXPECT_EQ(Messages(fixture), List{}) << row.name;
    EXPECT_EQ(fixture.WrongFile(), "") << row.name;
    EXPECT_EQ(fixture.Observer.Messages.size(), row.stations.size()) << row.name;
  }
}

TEST(MeteoDecode, QuadrantFlags) {
  struct Row {
    const char* station;
    std::int32_t flag;
  };
  const Row rows[] = {{"EGLL", 1}, {"LIRF", 2}, {"SAEZ", 4}, {"YSSY", 8}};
  for (const Row& row : rows) {
    for (const bool typed : {false, true}) {
      DecodeFixture fixture;
      const std::string report = std::string("METAR ") + row.station + " 151250Z 27010KT=";
      if (typed) {
        fixture.DecodeTyped(report);
      } else {
        fixture.Decode(File({report}));
      }
      ASSERT_EQ(fixture.Metars().size(), 1u) << row.station << typed;
      EXPECT_EQ(fixture.Metars()[0].FilterFlags & 15, row.flag) << row.station << typed;
    }
  }
}

// A call sign belongs to the range that begins at it or below it.
TEST(MeteoDecode, CountryOfShips) {
  struct Row {
    const char* sign;
    const char* country;
  };
  const Row rows[] = {
      {"DAA1", "Germany"}, {"DABC", "Germany"}, {"DRZZ", "Germany"}, {"DSA1", "Korea"},
      {"IAAA", "Italy"},   {"IZZZ", "Italy"},   {"JAAA", "Japan"},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    const std::string report = std::string("BBXX ") + row.sign + " 15124 99545 10075 41398 70510=";
    fixture.Decode(File({report}));
    ASSERT_EQ(fixture.Synops().size(), 1u) << row.sign;
    EXPECT_EQ(fixture.Synops()[0].Station.Country(), row.country) << row.sign;
  }
}

// --- what a window is told ---

TEST(MeteoDecode, AcceptedMessages) {
  DecodeFixture fixture;
  fixture.Decode(File({"SAIT31 EGLL 151200 COR", Rome, "LIRF 151251Z NIL=", London}));
  ASSERT_EQ(fixture.Observer.Messages.size(), 3u);
  const auto& first = fixture.Observer.Messages[0];
  EXPECT_EQ(first.Country, "Italy");
  EXPECT_EQ(first.ListName, "Roma Fiumicino");
  EXPECT_EQ(first.Station, "Roma Fiumicino");
  EXPECT_EQ(first.MsgId, "SAIT31");
  EXPECT_EQ(first.Type, "METAR");
  EXPECT_EQ(first.Sender, "EGLL");
  EXPECT_EQ(first.SenderCity, "London Heathrow");
  EXPECT_EQ(first.Day, "15");
  EXPECT_EQ(first.Time, "12:00");
  EXPECT_EQ(first.DecodedCount, 0);
  EXPECT_EQ(fixture.Observer.Messages[2].DecodedCount, 1);
  EXPECT_EQ(fixture.Observer.Removed, List{"Roma Fiumicino"});
  EXPECT_EQ(fixture.WrongFile(), "SAIT31 EGLL 151200 COR LIRF 151251Z NIL=\n");
}

TEST(MeteoDecode, AcceptedShip) {
  DecodeFixture fixture;
  fixture.Decode(File({"SNVX11 EGLL 151200", Ship}));
  ASSERT_EQ(fixture.Observer.Messages.size(), 1u);
  const auto& ship = fixture.Observer.Messages[0];
  EXPECT_EQ(ship.Country, "Germany");
  EXPECT_EQ(ship.Station, "DABC");
  EXPECT_TRUE(ship.ListName.starts_with("DABC ["));
  EXPECT_TRUE(ship.ListName.ends_with("]"));
  EXPECT_EQ(ship.Type, "BBXX");
  EXPECT_EQ(ship.Day, "15");
  EXPECT_EQ(ship.Time, "12:00");
}

// --- wrong-line file ---

TEST(MeteoDecode, WrongLineFile) {
  DecodeFixture fixture;
  const MeteoDecode::Summary summary = fixture.Decode(File({
      "WORDS OF", "  NOTE=",                       // unknown
      Heading, "EETN NIL=",                        // no station
      Rome,                                        //
      "SAIT32 LIIB 151200", "CITT\xE0",            // broken by the next heading
      "SAIT33 LIIB 151200", "LIRF 27010KT 9999=",  // no time
      "XXXX 151250Z 27010KT=",                     // dropped: no trace
      London,                                      //
  }));
  const List lines = {"WORDS OF NOTE=", Heading + " EETN NIL=", "SAIT32 LIIB 151200 CITT\xC3\x80",
                      "SAIT33 LIIB 151200 LIRF 27010KT 9999="};
  std::string file;
  for (const std::string& line : lines) file += line + "\n";
  EXPECT_EQ(fixture.WrongFile(), file);
  EXPECT_EQ(fixture.Observer.WrongLines, lines);
  EXPECT_EQ(summary.WrongLines, 4);
  EXPECT_EQ(summary.DecodedCount, 2);
  EXPECT_EQ(Messages(fixture), (List{"Unknow Message. Line: 3", "Header not Found. Line: 5",
                                     "Unaspected Header. Line: 9",
                                     "Observ. Time or Valid Time not found. - Line: 10"}));
}

TEST(MeteoDecode, NameOfTheWrongLineFile) {
  struct Row {
    const char* name;
    const char* file;
  };
  const Row rows[] = {
      {"abc.txt", "abc.txt"},
      {"/folder/abc.txt", "abc.txt"},
      {"C:\\folder\\abc.txt", "abc.txt"},
      {"folder/mixed\\abc", "abc"},
      {"-", "-"},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    fixture.Decode(File({"WORDS OF NOTE="}), row.name);
    EXPECT_EQ(fixture.WrongFile(row.file), "WORDS OF NOTE=\n") << row.name;
    EXPECT_EQ(fixture.Folder.Entries(), (List{"ICAOData.mdb", "WrongFiles"})) << row.name;
  }
}

TEST(MeteoDecode, WrongLineFileIsReplacedAndStaysWhenEmpty) {
  DecodeFixture fixture;
  fixture.Decode(File({"WORDS OF NOTE="}));
  EXPECT_EQ(fixture.WrongFile(), "WORDS OF NOTE=\n");
  fixture.Decode(File({Heading, Rome}));
  EXPECT_TRUE(std::filesystem::exists(fixture.WrongFilePath()));
  EXPECT_EQ(fixture.WrongFile(), "");
}

// --- carry-overs ---

TEST(MeteoDecode, TimesOutliveAReport) {
  DecodeFixture fixture;
  fixture.Decode(
      File({"FTIT31 LIIB 151000", "LIRF 151100Z 151212 27010KT=", "EGLL 161218 27010KT="}));
  ASSERT_EQ(fixture.Metars().size(), 2u);
  EXPECT_EQ(fixture.Metars()[0].ObservationTime, "15/11:00Z");
  EXPECT_EQ(fixture.Metars()[1].ObservationTime, "15/11:00Z");
  EXPECT_NE(fixture.Metars()[1].ValidPeriod, fixture.Metars()[0].ValidPeriod);

  fixture.Decode(File({Heading, "LIRF 161250Z 27010KT="}));
  EXPECT_NE(fixture.Metars()[0].ValidPeriod, "") << "the object is the same";

  DecodeFixture fresh;
  fresh.Decode(File({Heading, "LIRF 161250Z 27010KT="}));
  EXPECT_EQ(fresh.Metars()[0].ValidPeriod, "");
}

TEST(MeteoDecode, WindUnitOutlivesAReport) {
  DecodeFixture fixture;
  std::vector<int> units;
  fixture.Observer.OnSynop = [&units](const SynopRawData& raw) {
    units.push_back(raw.WindUnitInd);
  };
  fixture.Decode(File({"SNVX11 KWBC 151200", "BBXX DABC 15124 99545 10075 41398 70510=",
                       "BBXX DABD 1512/ 99545 10075 41398 70510="}));
  fixture.Decode(File({"BBXX DABD 1512/ 99545 10075 41398 70510="}));
  EXPECT_EQ(units, (std::vector<int>{4, 4, 4}));
}

TEST(MeteoDecode, TheScannerBeginsAnewWithEachFile) {
  DecodeFixture fixture;
  fixture.Decode(File({Heading, "LIRF 151250Z"}));
  fixture.Decode(File({"EGLL 151250Z 00000KT="}));
  ASSERT_EQ(fixture.Metars().size(), 1u);
  EXPECT_EQ(fixture.Metars()[0].RawText, "EGLL 151250Z 00000KT=");
  EXPECT_EQ(Messages(fixture), List{});
}

// --- typed messages ---

TEST(MeteoDecode, TypedMessages) {
  struct Row {
    const char* name;
    const char* text;
    List stations;
    List log;
  };
  const Row rows[] = {
      {"METAR", "METAR LIRF 151250Z 27010KT =", {"Roma Fiumicino"}, {}},
      {"lower case", "metar lirf 151250z 27010kt =", {"Roma Fiumicino"}, {}},
      {"unknown station keeps its identifier", "METAR XXXX 151250Z 27010KT =", {"XXXX"}, {}},
      {"station without country", "METAR XXNC 151250Z 27010KT =", {"Nowhere"}, {}},
      {"SYNOP", "AAXX 15121 16242 32980 70510 10150 =", {"Roma Fiumicino"}, {}},
      {"SYNOP of an unknown station",
       "AAXX 15121 99999 32980 70510 10150 =",
       {},
       {"Wrong Message."}},
      {"ship without country", "BBXX SHIP 15124 99545 10075 41398 70510 =", {"SHIP"}, {}},
      {"empty", "", {}, {"Wrong Message."}},
      {"an equals sign", "=", {}, {"Unknow Message. Line: 1", "Wrong Message."}},
      {"unknown", "HELLO WORLD =", {}, {"Unknow Message. Line: 1", "Wrong Message."}},
      {"not closed", "METAR LIRF 151250Z 27010KT", {}, {"Wrong Message."}},
      {"no time",
       "METAR LIRF 27010KT =",
       {},
       {"Observ. Time or Valid Time not found. - Line: 1", "Wrong Message."}},
      {"NIL", "METAR LIRF 151250Z NIL =", {}, {"Wrong Message."}},
  };
  for (const Row& row : rows) {
    DecodeFixture fixture;
    fixture.Context.Filters = {{"Malta"}, 0, 0};  // typed messages are never filtered
    EXPECT_EQ(fixture.DecodeTyped(row.text), !row.stations.empty()) << row.name;
    EXPECT_EQ(Stations(fixture), row.stations) << row.name;
    EXPECT_EQ(fixture.Log.Lines, row.log) << row.name;
    EXPECT_EQ(fixture.Folder.Entries(), List{"ICAOData.mdb"}) << row.name;
    EXPECT_TRUE(fixture.Boxes.Boxes.empty()) << row.name;
  }
}

TEST(MeteoDecode, TypedMessageInItalian) {
  DecodeFixture fixture;
  fixture.Texts.SetLanguage(0);
  EXPECT_FALSE(fixture.DecodeTyped("HELLO WORLD ="));
  EXPECT_EQ(fixture.Log.Lines, (List{"Messaggio non elaborato. Line: 1", "Messaggio errato."}));
}

TEST(MeteoDecode, TypedMessageReplacesTheStoreOfItsFamily) {
  DecodeFixture fixture;
  fixture.Decode(File({LandHeading, "AAXX 15121", RomeSynop, LondonSynop}));
  fixture.Decode(File({Heading, Rome, London}));
  EXPECT_TRUE(fixture.DecodeTyped("METAR YSSY 151250Z 27010KT ="));
  EXPECT_EQ(fixture.Synops().size(), 2u);
  ASSERT_EQ(fixture.Metars().size(), 1u);
  EXPECT_EQ(fixture.Metars()[0].Station.Station(), "Sydney Airport");
  EXPECT_FALSE(fixture.DecodeTyped("HELLO WORLD ="));
  EXPECT_EQ(fixture.Metars().size(), 1u);
  EXPECT_TRUE(fixture.DecodeTyped("AAXX 15121 16242 32980 70510 10150 ="));
  EXPECT_EQ(fixture.Synops().size(), 1u);
  EXPECT_EQ(fixture.Metars().size(), 1u);
}

TEST(MeteoDecode, NormaliseTypedMessage) {
  struct Row {
    const char* text;
    const char* line;
  };
  const Row rows[] = {
      {"", ""},
      {"METAR LIRF", "METAR LIRF ="},
      {"  METAR LIRF  ", "METAR LIRF ="},
      {" ", " ="},
      {"METAR LIRF=", "METAR LIRF="},
      {"METAR LIRF=X", "METAR LIRF=X"},
      {"METAR LIRF=XYZ", "METAR LIRF=X"},
      {"METAR LIRF =\r\nMETAR LIML =", "METAR LIRF = "},
      {"METAR\r\nLIRF\r\n", "METAR LIRF  ="},
      {"METAR\nLIRF=", "METAR LIRF="},
      {"A  B   C    D=", "A B  C  D="},
      {"  METAR LIRF=", " METAR LIRF="},
  };
  for (const Row& row : rows) EXPECT_EQ(NormaliseTypedMessage(row.text), row.line) << row.text;
}

TEST(MeteoDecode, TypedMessageOfSeveralLines) {
  DecodeFixture fixture;
  EXPECT_TRUE(fixture.DecodeTyped(NormaliseTypedMessage("METAR LIRF\r\n151250Z\r\n27010KT")));
  ASSERT_EQ(fixture.Metars().size(), 1u);
  EXPECT_EQ(fixture.Metars()[0].RawText, "METAR LIRF 151250Z 27010KT =");
}

TEST(MeteoDecode, TypedTextAboveAscii) {
  DecodeFixture fixture;
  EXPECT_TRUE(fixture.DecodeTyped("METAR LIRF 151250Z 27010KT RMK citt\xC3\xA0 ="));
  ASSERT_EQ(fixture.Metars().size(), 1u);
  EXPECT_TRUE(fixture.Metars()[0].RawText.ends_with("CITT\xC3\x80 ="));
}

// --- fronts ---

List Fronts(DecodeFixture& fixture) {
  List rows;
  fixture.Database.ReadRows(
      "select Type, RecNum, Validity, MsgTime, Pressure, Lat, \"Long\" from Fronts order by rowid",
      [&rows](const RowView& row) {
        std::string text;
        for (int column = 0; column < 7; ++column) {
          if (column > 0) text += ' ';
          text += row.IsNull(column) ? "NULL" : std::string(row.Text(column));
        }
        rows.push_back(text);
      });
  return rows;
}

TEST(MeteoDecode, FrontsFillTheTable) {
  for (const std::uint8_t language : {std::uint8_t{1}, std::uint8_t{0}}) {
    DecodeFixture fixture;
    fixture.Texts.SetLanguage(language);
    const MeteoDecode::Summary summary =
        fixture.Decode(File({"ASUS1 KWBC 151200", "CODSUS", "VALID 151500Z", "HIGHS 1030 4515",
                             "COLD WK 3012", "30114", "NNNN"}));
    EXPECT_TRUE(summary.FrontsDecoded);
    EXPECT_EQ(summary.DecodedCount, 0);
    EXPECT_EQ(Fronts(fixture),
              (List{"0 10000 151500 151200 1030 45 15", "6 10001 151500 151200  30 12",
                    "-1 10002 151500 151200  30 114"}));
    EXPECT_EQ(Messages(fixture),
              List{language == 1 ? "Fronts Database Updated!" : "Database dei Fronti Aggiornato!"});
  }
}

TEST(MeteoDecode, SecondAnalysisReplacesTheFirst) {
  DecodeFixture fixture;
  const List first = {"ASUS1 KWBC 151200", "CODSUS VALID 151500Z COLD 3012 3014", "NNNN"};
  const List second = {"ASUS1 KWBC 151800", "CODSUS VALID 152100Z WARM 4012", "NNNN"};
  List both = first;
  both.insert(both.end(), second.begin(), second.end());
  fixture.Decode(File(both));
  EXPECT_EQ(Fronts(fixture), List{"7 10000 152100 151800  40 12"});

  // The heading alone empties the table.
  fixture.Decode(File({first[0]}));
  EXPECT_EQ(Fronts(fixture), List{});
}

TEST(MeteoDecode, FrontsThatEndBehindAPressure) {
  DecodeFixture fixture;
  fixture.Decode(File({"ASUS1 KWBC 151200", "CODSUS VALID 151500Z COLD 3012 HIGHS 1030", "NNNN"}));
  EXPECT_EQ(Fronts(fixture), List{"6 10000 151500 151200  30 12"});
  const List log = Messages(fixture);
  ASSERT_EQ(log.size(), 1u);
  EXPECT_TRUE(log[0].ends_with("; Line: 4")) << log[0];
}

TEST(MeteoDecode, FrontsLeaveTheStores) {
  DecodeFixture fixture;
  fixture.Decode(File({Heading, Rome}));
  fixture.Decode(File({"ASUS1 KWBC 151200", "CODSUS VALID 151500Z COLD 3012", "NNNN"}));
  EXPECT_EQ(fixture.Metars().size(), 1u);
}

TEST(MeteoDecode, FrontsWithoutADatabase) {
  DecodeFixture fixture;
  DBUtility none(fixture.Boxes);
  MeteoDecode decoder(fixture.Settings, fixture.Context, none, fixture.Boxes, fixture.Ticks,
                      fixture.Progress);
  const MeteoDecode::Summary summary = decoder.DecodeBytes(
      "fronts.txt",
      File({"ASUS1 KWBC 151200", "CODSUS VALID 151500Z COLD 3012", "NNNN", Heading, Rome}));
  EXPECT_EQ(summary.DecodedCount, 1);
}

// --- hostile input ---

TEST(MeteoDecode, TruncatedMessages) {
  const std::string bytes = File({Heading, Rome, London});
  DecodeFixture fixture;
  for (std::size_t length = 1; length <= bytes.size(); ++length) {
    const MeteoDecode::Summary summary = fixture.Decode(std::string_view(bytes).substr(0, length));
    EXPECT_TRUE(summary.Read);
    EXPECT_EQ(fixture.Log.Lines.back(), "File bulletin.txt Closed");
  }
  EXPECT_EQ(fixture.Decode(std::string_view(bytes).substr(0, bytes.size() - 10)).DecodedCount, 1);
}

// Every run comes to its end, and the next one is none the worse for it.
TEST(MeteoDecode, RandomBytes) {
  DecodeFixture fixture;
  std::mt19937 random(20031115);
  for (int round = 0; round < 30; ++round) {
    std::string bytes(20'000, ' ');
    for (char& c : bytes) c = static_cast<char>(random() & 0xFFU);
    fixture.Log.Lines.clear();
    EXPECT_TRUE(fixture.Decode(bytes).Read);
    EXPECT_EQ(fixture.Log.Lines.back(), "File bulletin.txt Closed");
  }
  EXPECT_EQ(fixture.Decode(File({Heading, Rome})).DecodedCount, 1);
}

// Pieces of bulletins in any order.
TEST(MeteoDecode, RandomPieces) {
  const List pieces = {"\r\n",
                       "\r\n",
                       "\n",
                       "\r",
                       " ",
                       " ",
                       "=",
                       "=\r\n",
                       "ZCZC",
                       "NNNN",
                       "?",
                       "2003/11/15 12:50",
                       "ASUS1",
                       "AAXX",
                       "AAXX 15121",
                       "BBXX",
                       "METAR",
                       "TAF",
                       "SPECI",
                       "AMD",
                       "COR",
                       "NIL",
                       "AUTO",
                       "SAIT31 LIIB 151200",
                       "FTIT31 LIIB 151000",
                       "WSIT31 LIIB 151200",
                       "SMIT01 LIIB 151200",
                       "LIRF",
                       "DABC",
                       "16242",
                       "151250Z",
                       "151212",
                       "27010KT",
                       "WS020/24045KT",
                       "9999",
                       "CAVOK",
                       "CBCB",
                       "PROB30",
                       "BECMG",
                       "TEMPO",
                       "FM",
                       "RMK",
                       "WND",
                       "AFT",
                       "1",
                       "1/2SM",
                       "R16/",
                       "222//",
                       "333",
                       "444",
                       "555",
                       "/////",
                       "VC",
                       "SNRA",
                       "A",
                       "Q",
                       "T",
                       "4",
                       "8/",
                       "HIGHS",
                       "COLD",
                       "1030",
                       "4515",
                       "\xE0",
                       "//",
                       "KT",
                       "SM",
                       "QNH",
                       "VV",
                       "SLP",
                       "M",
                       "99545",
                       "10075",
                       "41398"};
  DecodeFixture fixture;
  std::mt19937 random(16242);
  for (int round = 0; round < 60; ++round) {
    std::string bytes;
    for (int i = 0; i < 1500; ++i) {
      bytes += pieces[random() % pieces.size()];
      if (random() % 4 != 0) bytes += ' ';
    }
    fixture.Log.Lines.clear();
    fixture.Observer.WrongLines.clear();
    const MeteoDecode::Summary summary = fixture.Decode(bytes);
    EXPECT_TRUE(summary.Read);
    EXPECT_GE(summary.Lines, summary.DecodedCount);
    for (const std::string& line : fixture.Observer.WrongLines) EXPECT_NE(line, "") << round;
    for (const SynopData& record : fixture.Synops()) {
      EXPECT_EQ(record.Msg.find('\0'), std::string_view::npos) << round;
    }
    EXPECT_EQ(fixture.Log.Lines.back(), "File bulletin.txt Closed");
  }
}

TEST(MeteoDecode, NulsAndCharactersAboveAscii) {
  DecodeFixture fixture;
  const std::string nuls(3, '\0');
  fixture.Decode(File(
      {Heading, "LIRF 151250Z 27010KT " + nuls + " RMK \xE0\x81\xFF=", nuls + "\x80\x9E WORDS="}));
  ASSERT_EQ(fixture.Metars().size(), 1u);
  EXPECT_EQ(fixture.Metars()[0].RawText,
            Heading + " LIRF 151250Z 27010KT " + nuls + " RMK \xC3\x80\xC2\x81\xC5\xB8=");
  EXPECT_EQ(fixture.WrongFile(), Heading + " " + nuls + "\xE2\x82\xAC\xC5\xBD WORDS=\n");
}

TEST(MeteoDecode, HugeMessages) {
  const std::string report = "LIRF 151250Z 27010KT ";
  const std::string synop = "AAXX 15121 16242 32980 70510 ";
  struct Row {
    const char* name;
    std::string head;
    const char* part;  // what follows the head, `count` times
    std::size_t count;
    const char* end;
    int stored;
  };
  const Row rows[] = {
      {"one word of 10 MB", report, "X", 10'000'000, "=", 1},
      {"CBCB of 10 MB", report, "CB", 5'000'000, "=", 1},
      {"cloud word of 10 MB", report + "SCT030", "CB", 5'000'000, "=", 1},
      {"solidi of 10 MB", report, "/", 10'000'000, "=", 1},
      {"digits of 10 MB", report, "1", 10'000'000, "=", 1},
      {"weather of 10 MB", report, "SNRA", 2'500'000, "=", 1},
      {"remark of 10 MB", report + "RMK ", "X", 10'000'000, "=", 1},
      {"a million words", report, "ABC ", 1'000'000, "=", 1},
      {"a million words of remarks", report + "RMK ", "ABC ", 1'000'000, "=", 1},
      {"a million stations", "", "ABCD ", 1'000'000, "=", 0},
      {"a million blanks", report, " ", 1'000'000, "=", 1},
      {"group of 10 MB", synop, "1", 10'000'000, "=", 1},
      {"a million groups", synop, "10150 ", 1'000'000, "=", 1},
      {"a million solidi groups", synop, "///// ", 1'000'000, "=", 1},
      {"10 MB without an end", "", "ABCD ", 2'000'000, "", 0},
  };
  for (const Row& row : rows) {
    std::string line = row.head;
    for (std::size_t i = 0; i < row.count; ++i) line += row.part;
    DecodeFixture fixture;
    fixture.Settings.MaxMessages = 10;
    EXPECT_EQ(fixture.Decode(File({line + row.end})).DecodedCount, row.stored) << row.name;
  }
}

TEST(MeteoDecode, EndlessReport) {
  DecodeFixture fixture;
  const MeteoDecode::Summary summary =
      fixture.Decode(File({Heading}) + File(List(100'000, "LIRF 151250Z 27010KT")));
  EXPECT_EQ(summary.Lines, 100'003);
  EXPECT_EQ(summary.DecodedCount, 0);
}

}  // namespace
}  // namespace zg
