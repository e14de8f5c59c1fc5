#include "shell/GenericUtility.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <limits>

#include "shell/FileText.h"
#include "shell/TestSupport.h"

namespace zg {
namespace {

using test::ModeOf;
using test::ReadTestFile;
using test::RecordingPrompt;
using test::TemporaryFolder;
using test::WriteTestFile;

using Names = std::vector<std::string>;

// --- Bit fields ----------------------------------------------------------------------------------

TEST(Flags, SetAndRead) {
  struct Row {
    std::int32_t before;
    std::uint8_t position;
    std::uint8_t count;
    std::int64_t data;
    std::int32_t after;
    std::int32_t read;
  };
  constexpr std::int32_t Min = std::numeric_limits<std::int32_t>::min();
  const Row rows[] = {
      {0, 0, 1, 1, 1, 1},
      {0, 4, 3, 5, 0x50, 5},
      {-1, 4, 3, 5, ~0x20, 5},
      {-1, 4, 3, 0, ~0x70, 0},
      {0x7F, 2, 0, 0, 0x7F, 0},
      {0, 31, 1, 1, Min, 1},
      {0, 30, 2, 3, Min | 0x40000000, 3},
      {-1, 0, 32, 0x12345678, 0x12345678, 0x12345678},
      {0, 0, 32, 0xFFFFFFFF, -1, -1},
      {0, 4, 2, 7, 0x70, 3},  // data wider than the field reaches the bits above
      {0, 30, 1, 2, Min, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::to_string(row.position) + "+" + std::to_string(row.count));
    std::int32_t flags = row.before;
    EXPECT_TRUE(SetFlags(flags, row.position, row.count, row.data));
    EXPECT_EQ(flags, row.after);
    EXPECT_EQ(ReadFlags(flags, row.position, row.count), row.read);
  }
}

TEST(Flags, FieldBeyondTheWord) {
  struct Row {
    std::uint8_t position;
    std::uint8_t count;
  };
  for (const Row& row : {Row{30, 3}, Row{32, 1}, Row{0, 33}, Row{33, 0}, Row{255, 255}}) {
    std::int32_t flags = 5;
    EXPECT_FALSE(SetFlags(flags, row.position, row.count, 1));
    EXPECT_EQ(flags, 5);
    EXPECT_EQ(ReadFlags(flags, row.position, row.count), std::nullopt);
  }
}

TEST(Flags, SingleBits) {
  for (unsigned bit = 0; bit < 32; ++bit) {
    std::int32_t flags = 0;
    SetFlag(flags, bit);
    EXPECT_EQ(static_cast<std::uint32_t>(flags), 1u << bit);
    for (unsigned other = 0; other < 32; ++other) EXPECT_EQ(HasFlag(flags, other), other == bit);
  }
}

// --- Scrambling ----------------------------------------------------------------------------------

// The shift of place i, from the last character, is i mod 2 + i mod 3 + i mod 5 + i mod 7 + 1: that
// is 5, 7, 8, 10, 9, 8.
TEST(Scrambling, Encript) {
  struct Row {
    const char* text;
    const char* digits;
  };
  const Row rows[] = {
      {"", ""},
      {"A", "C3"},     // 41 - 5 = 3C, reversed
      {"AB", "A3D3"},  // 42 - 5 = 3D and 41 - 7 = 3A: "3D3A" reversed
      {"secret", "B6C595A6E5F6"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Encript(row.text), row.digits) << row.text;
    EXPECT_EQ(Decript(row.digits), row.text) << row.digits;
  }
}

TEST(Scrambling, TwoPassesAreTwiceOne) {
  EXPECT_EQ(Encript2("secret"), "A3D2E3D2230393D2B3D2F313");
  EXPECT_EQ(Decript2(Encript(Encript("secret"))), "secret");
}

TEST(Scrambling, EveryPrintableTextComesBack) {
  for (int code = 32; code < 256; ++code) {
    for (std::size_t length = 1; length <= 40; length += 3) {
      const std::string text(length, static_cast<char>(code));
      EXPECT_EQ(Decript2(Encript2(text)), text);
    }
  }
  const std::string all = " !\"#$%&'()*+,-./0123456789:;<=>?@ABCXYZ[\\]^_`abcxyz{|}~\xC3\xA0";
  EXPECT_EQ(Decript2(Encript2(all)), all);
}

TEST(Scrambling, DecriptTakesAnything) {
  for (const std::string text : {"x", "zz", "C3 ", "12345", "\xFF\xFF", "----"}) {
    EXPECT_EQ(Decript(text).size(), (text.size() + 1) / 2);
  }
}

// --- Parameters ----------------------------------------------------------------------------------

struct Parameters : testing::Test {
  Parameters() { texts.SetLanguage(1); }

  // Writes the parameter file, reads a key and says what came out.
  std::string Get(std::string_view file, std::string_view key, std::string_view fallback = {}) {
    WriteTestFile(ini, file);
    return utility.GetParameter(key, fallback);
  }

  // Writes the parameter file, sets a key and returns the file.
  std::string Set(std::string_view file, std::string_view key, std::string_view value) {
    WriteTestFile(ini, file);
    utility.SetParameter(key, value);
    return ReadTestFile(ini);
  }

  TemporaryFolder folder;
  std::string ini = folder / "zephyrgram.ini";
  std::string def = folder / "zephyrgram.def";
  RecordingPrompt prompt;
  TextUtility texts;
  GenericUtility utility{folder.Path(), prompt, texts};
};

TEST_F(Parameters, Get) {
  struct Row {
    const char* name;
    const char* file;
    const char* key;
    const char* value;
  };
  const Row rows[] = {
      {"plain", "Language = 1\n", "Language", "1"},
      {"no line end", "Language = 1", "Language", "1"},
      {"CR LF", "Other = 2\r\nLanguage = 1\r\n", "Language", "1"},
      {"without blanks", "Language=1\n", "Language", "1"},
      {"blanks around", "Language =   a b  \n", "Language", "a b"},
      {"only the first equals sign counts", "Url = http://h/?a=b\n", "Url", "http://h/?a=b"},
      {"empty value", "Picture1Name = \n", "Picture1Name", ""},
      {"empty value without blank", "Picture1Name =\n", "Picture1Name", ""},
      {"twice: the first", "A = 1\nA = 2\n", "A", "1"},
      {"first of the lines that begin so", "URLType = x\nURL = 3\n", "URL", "x"},
      {"case counts", "UrlType = x\nURL = 3\n", "URL", "3"},
      {"no equals sign", "URL and more\nURL = 3\n", "URL", "3"},
      {"a blank in front is no key", " URL = 2\nURL = 3\n", "URL", "3"},
      {"comments", "# URL = 1\n; URL = 2\n\nURL = 3\n", "URL", "3"},
      {"8-bit file",
       "TemperUnit = \xB0"
       "C\n",
       "TemperUnit", "°C"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Get(row.file, row.key), row.value);
    EXPECT_EQ(Get(row.file, row.key, "default"), row.value);
  }
  EXPECT_TRUE(prompt.Boxes.empty());
}

TEST_F(Parameters, MissingKeyWithDefault) {
  EXPECT_EQ(Get("A = 1\nNone without equals\n", "None", "7"), "7");
  EXPECT_TRUE(prompt.Boxes.empty());
}

TEST_F(Parameters, MissingKey) {
  EXPECT_EQ(Get("A = 1\n", "None"), "");
  ASSERT_EQ(prompt.Boxes.size(), 1u);
  EXPECT_EQ(prompt.Boxes[0].icon, Prompt::Icon::Critical);
  EXPECT_EQ(prompt.Boxes[0].text, "Parameter not Found in " + ini + ": [None]");
}

TEST_F(Parameters, UnreadableFile) {
  EXPECT_EQ(utility.GetParameter("Language", "1"), "");
  ASSERT_EQ(prompt.Boxes.size(), 1u);
  EXPECT_EQ(prompt.Boxes[0].icon, Prompt::Icon::Critical);
  EXPECT_EQ(prompt.Boxes[0].text, ini + ": No such file or directory: [Language]");
  std::filesystem::create_directory(ini);
  EXPECT_EQ(utility.GetParameter("Language"), "");
  ASSERT_EQ(prompt.Boxes.size(), 2u);
  EXPECT_EQ(prompt.Boxes[1].text, ini + ": Is a directory: [Language]");
}

TEST_F(Parameters, Set) {
  struct Row {
    const char* name;
    const char* file;
    const char* key;
    const char* value;
    const char* after;
  };
  const Row rows[] = {
      {"replace", "A = 1\nB = 2\n", "A", "3", "A = 3\nB = 2\n"},
      {"blanks come around the sign", "A=1\n", "A", "3", "A = 3\n"},
      {"trimmed", "  A  =1\n", " A ", "  3 ", "A = 3\n"},
      {"every line of the key", "A = 1\nB = 2\nA = 4\n", "A", "3", "A = 3\nB = 2\nA = 3\n"},
      {"a longer key is another", "AB = 1\nA = 2\n", "A", "3", "AB = 1\nA = 3\n"},
      {"case counts", "a = 1\n", "A", "3", "a = 1\nA = 3\n"},
      {"append", "B = 2\n", "A", " 3 ", "B = 2\nA = 3\n"},
      {"append the key as given", "B = 2\n", " A", "3", "B = 2\n A = 3\n"},
      {"append to a line without end", "B = 2", "A", "3", "B = 2\nA = 3\n"},
      {"into an empty file", "", "A", "3", "A = 3\n"},
      {"empty value", "A = 1\n", "A", "", "A = \n"},
      {"value with equals sign", "A = 1=2\n", "A", "3=4", "A = 3=4\n"},
      {"other lines stay", "# c\n\n x \nA = 1\nno sign\n", "A", "3",
       "# c\n\n x \nA = 3\nno sign\n"},
      {"a value is one line", "A = 1\n", "A", "3\r\nB = 4", "A = 3  B = 4\n"},
      {"UTF-8",
       "A = \xB0"
       "C\n",
       "B", "°F", "A = °C\nB = °F\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Set(row.file, row.key, row.value), row.after);
  }
  EXPECT_TRUE(prompt.Boxes.empty());
  EXPECT_EQ(folder.Entries(), Names{"zephyrgram.ini"});
}

TEST_F(Parameters, WhatIsSetIsReadAtOnce) {
  Set("A = 1\n", "New", "  value ");
  EXPECT_EQ(utility.GetParameter("New"), "value");
  utility.SetParameter("New", "other");
  EXPECT_EQ(utility.GetParameter("New"), "other");
}

TEST_F(Parameters, FileIsPrivate) {
  WriteTestFile(ini, "A = 1\n");
  std::filesystem::permissions(ini, std::filesystem::perms(0644));
  utility.SetParameter("A", "2");
  EXPECT_EQ(ModeOf(ini), 0600u);
}

TEST_F(Parameters, FailedReadLoadsDefaults) {
  WriteTestFile(def, "A = shipped\n");
  utility.SetParameter("A", "2");
  ASSERT_EQ(prompt.Boxes.size(), 1u);
  EXPECT_EQ(prompt.Boxes[0].icon, Prompt::Icon::None);
  EXPECT_EQ(prompt.Boxes[0].text, ini + ": No such file or directory- Default values loaded");
  EXPECT_EQ(ReadTestFile(ini), "A = shipped\n");
  EXPECT_EQ(ModeOf(ini), 0600u);
}

TEST_F(Parameters, FailureInItalian) {
  texts.SetLanguage(0);
  WriteTestFile(def, "A = shipped\n");
  utility.SetParameter("A", "2");
  ASSERT_EQ(prompt.Boxes.size(), 1u);
  EXPECT_EQ(prompt.Boxes[0].text, ini + ": No such file or directory- Caricati Valori di Default");
}

TEST_F(Parameters, FailureWithoutDefaults) {
  utility.SetParameter("A", "2");
  ASSERT_EQ(prompt.Boxes.size(), 2u);
  EXPECT_EQ(prompt.Boxes[1].icon, Prompt::Icon::Critical);
  EXPECT_EQ(prompt.Boxes[1].text, def + ": No such file or directory");
  EXPECT_TRUE(folder.Entries().empty());
}

// Sets a parameter while no file may grow beyond a number of bytes.
void SetOnFullDisk(const GenericUtility& utility, rlim_t bytes, std::string_view value) {
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto handler = signal(SIGXFSZ, SIG_IGN);
  rlimit limit = before;
  limit.rlim_cur = bytes;
  setrlimit(RLIMIT_FSIZE, &limit);
  utility.SetParameter("A", value);
  setrlimit(RLIMIT_FSIZE, &before);
  signal(SIGXFSZ, handler);
}

TEST_F(Parameters, FailedWriteLoadsDefaultsAndKeepsABackup) {
  WriteTestFile(ini, "A = mine\n");
  WriteTestFile(def, "A = shipped\n");
  SetOnFullDisk(utility, 64, std::string(100, 'x'));
  ASSERT_EQ(prompt.Boxes.size(), 1u);
  EXPECT_EQ(prompt.Boxes[0].icon, Prompt::Icon::None);
  EXPECT_EQ(prompt.Boxes[0].text, ini + ": File too large- Default values loaded");
  EXPECT_EQ(ReadTestFile(ini), "A = shipped\n");
  EXPECT_EQ(ReadTestFile(ini + ".bak"), "A = mine\n");
  EXPECT_EQ(ModeOf(ini + ".bak"), 0600u);
  EXPECT_EQ(folder.Entries(), (Names{"zephyrgram.def", "zephyrgram.ini", "zephyrgram.ini.bak"}));
}

TEST_F(Parameters, FullDiskKeepsTheFile) {
  const std::string mine = std::string("A = mine\n# ").append(100, 'c') + "\n";
  WriteTestFile(ini, mine);
  WriteTestFile(def, "A = shipped\n");
  SetOnFullDisk(utility, 64, "2");
  ASSERT_EQ(prompt.Boxes.size(), 2u);
  EXPECT_EQ(prompt.Boxes[1].text, ini + ".bak: File too large");
  EXPECT_EQ(ReadTestFile(ini), mine);
  EXPECT_EQ(folder.Entries(), (Names{"zephyrgram.def", "zephyrgram.ini"}));
}

TEST_F(Parameters, FlagsTellTheirError) {
  std::int32_t flags = 3;
  utility.SetFlags(flags, 30, 2, 1);
  EXPECT_EQ(flags, 0x40000003);
  EXPECT_EQ(utility.ReadFlags(flags, 30, 2), 1);
  EXPECT_TRUE(prompt.Boxes.empty());
  utility.SetFlags(flags, 30, 3, 0);
  EXPECT_EQ(flags, 0x40000003);
  EXPECT_EQ(utility.ReadFlags(flags, 30, 3), 0);
  ASSERT_EQ(prompt.Boxes.size(), 2u);
  EXPECT_EQ(prompt.Boxes[0].text, "SetFlags Error");
  EXPECT_EQ(prompt.Boxes[1].text, "ReadFlags Error");
}

// --- The shipped files ---------------------------------------------------------------------------

// Every key that the program reads, by how many there are of it and the number of the first.
struct KeyFamily {
  const char* name;
  int first;
  int count;  // 0: one key without a number
  const char* behind;
};

constexpr KeyFamily Keys[] = {
    {"Language", 0, 0, ""},
    {"DayForDeleteFiles", 0, 0, ""},
    {"MaxMessages", 0, 0, ""},
    {"IndexKeyWMOStation", 0, 0, ""},
    {"IcaoIdKeyWMOStation", 0, 0, ""},
    {"ConnectionTimeout", 0, 0, ""},
    {"Picture", 1, 5, "Name"},
    {"Picture", 1, 5, "File"},
    {"BrowserUrl", 0, 0, ""},
    {"BrowserCaption", 0, 0, ""},
    {"UrlType", 0, 0, ""},
    {"URL", 0, 0, ""},
    {"SynopBuoysUrl", 0, 0, ""},
    {"SynopShipUrl", 0, 0, ""},
    {"FrontsUrl", 0, 0, ""},
    {"SynopEuropeUrl", 0, 0, ""},
    {"SynopWorldUrl", 0, 0, ""},
    {"MetarWorldUrl", 0, 0, ""},
    {"TafWorldUrl", 0, 0, ""},
    {"CyclesUrl", 0, 0, ""},
    {"MetarCyclesXX", 0, 0, ""},
    {"TAFCyclesXX", 0, 0, ""},
    {"TimeSched", 0, 8, ""},
    {"EnableSched", 0, 8, ""},
    {"AddressSched", 0, 4, ""},
    {"EnableAddress", 0, 4, ""},
    {"EnableDecoding", 0, 4, ""},
    {"UserAddress", 0, 4, ""},
    {"PasswAddress", 0, 4, ""},
    {"AddressFtpForCSV", 0, 0, ""},
    {"UserFtpForCSV", 0, 0, ""},
    {"PasswFtpForCSV", 0, 0, ""},
    {"TemperUnit", 0, 0, ""},
    {"LevelUnit", 0, 0, ""},
    {"PressureUnit", 0, 0, ""},
    {"SpeedUnit", 0, 0, ""},
    {"DistUnit", 0, 0, ""},
    {"UnitConversion", 0, 0, ""},
    {"BuoyColor", 0, 0, ""},
    {"LandColor", 0, 0, ""},
    {"ShipColor", 0, 0, ""},
    {"FieldFontName", 0, 0, ""},
    {"FieldFontSize", 0, 0, ""},
    {"LastSynopField", 0, 0, ""},
    {"LastMetarField", 0, 0, ""},
    {"SynopDataFields", 0, 0, ""},
    {"MetarDataFields", 0, 0, ""},
    {"UnitsOnGlobalView", 0, 0, ""},
    {"CountryFilter", 0, 0, ""},
    {"QuadrantFilter", 0, 0, ""},
    {"StationType", 0, 0, ""},
};

Names AllKeys() {
  Names keys;
  for (const KeyFamily& key : Keys) {
    if (key.count == 0) keys.emplace_back(key.name);
    for (int i = key.first; i < key.first + key.count; ++i) {
      keys.push_back(std::string(key.name).append(std::to_string(i)).append(key.behind));
    }
  }
  return keys;
}

// The keys of a file, in its order.
Names KeysOf(const std::string& path) {
  Names keys;
  for (const std::string& line : ReadTextLines(path).Lines) {
    const std::size_t sign = line.find(" = ");
    if (!line.starts_with('#') && sign != std::string::npos) keys.push_back(line.substr(0, sign));
  }
  return keys;
}

const std::string Data = std::string(ZG_SOURCE_DIR) + "/data/";

TEST(ShippedParameters, DefineEveryKeyOnce) {
  Names expected = AllKeys();
  Names found = KeysOf(Data + "zephyrgram.ini");
  std::sort(expected.begin(), expected.end());
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, expected);
}

TEST(ShippedParameters, NoKeyIsHiddenByALongerOne) {
  const Names lines = ReadTextLines(Data + "zephyrgram.ini").Lines;
  for (const std::string& key : KeysOf(Data + "zephyrgram.ini")) {
    const auto first = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
      return line.starts_with(key) && line.find('=') != std::string::npos;
    });
    ASSERT_NE(first, lines.end());
    EXPECT_TRUE(first->starts_with(key + " = ")) << *first;
  }
}

TEST(ShippedParameters, DefaultsAreTheSame) {
  EXPECT_EQ(ReadTestFile(Data + "zephyrgram.ini"), ReadTestFile(Data + "zephyrgram.def"));
}

}  // namespace
}  // namespace zg
