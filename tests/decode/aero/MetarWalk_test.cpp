#include "decode/aero/MetarWalk.h"

#include <bit>

#include "decode/aero/MetarTestSupport.h"

namespace zg {
namespace {

using test::Describe;
using test::SplitWords;

// One word on offer, alone or with words behind it.
struct Offer {
  explicit Offer(std::string_view text, bool remarks = false) : words(SplitWords(text)) {
    walk.WordList = words;
    walk.Word = words[0];
    if (!remarks) return;
    walk.OpenSection();
    walk.Section().SectionType = SectionKind::Remarks;
    walk.InRemarks = true;
  }

  std::vector<std::string_view> words;
  MetarRawData raw;
  MessageScratch scratch;
  MetarWalk walk{.Raw = raw, .Scratch = scratch, .WordList = {}};
};

// The entry of the table that takes the first of the words, found without the index: its number,
// or the size of the table.
std::size_t TakenBy(std::span<const Recogniser> table, std::string_view text, bool remarks) {
  for (std::size_t i = 0; i < table.size(); ++i) {
    Offer offer(text, remarks);
    const std::string_view word = offer.walk.Word;
    if (!table[i].First.empty() && !Holds(table[i].First, word.substr(0, 1))) continue;
    if ((table[i].Needs & ~FeaturesOf(word)) != 0) continue;
    if (remarks && table[i].OutsideRemarks) continue;
    if (table[i].Try(offer.walk, word) != Verdict::Declined) return i;
  }
  return table.size();
}

std::string_view NameOf(std::span<const Recogniser> table, std::size_t number) {
  return number < table.size() ? table[number].Name : "";
}

// A word for each test, in the order of the tests.
constexpr std::string_view WordsInOrder[] = {
    "TAF",           "AUTO",    "CAVOK",      "NOSIG",       "NSW",        "NSC",
    "9999",          "1 1/2SM", "5KM",        "AFT 12",      "WND RA",     "09010KT",
    "Q1013",         "18/12",   "BECMG 1518", "BKN020",      "CLR",        "FEW010",
    "QNH1013",       "FM12",    "OVC010",     "PROB30 1518", "R24/1500",   "RMK",
    "SCT010",        "SKC",     "10SM",       "TEMPO 1518",  "INTER 1518", "VV010",
    "WS020/24045KT", "TCU",     "CB",         "CU",          "151250Z",    "RA"};

TEST(MetarWalk, OrderOfTests) {
  const auto table = MetarRecognisers();
  std::size_t last = 0;
  for (std::string_view words : WordsInOrder) {
    const std::size_t number = TakenBy(table, words, false);
    EXPECT_LT(number, table.size()) << words;
    EXPECT_TRUE(words == WordsInOrder[0] || number > last) << words << " at " << number;
    last = number;
  }
}

TEST(MetarWalk, WhoTakesAWord) {
  struct Row {
    const char* words;
    const char* name;
  };
  const Row rows[] = {
      {"TAF", "Message type"},
      {"NOSIG", "No significant change"},
      {"NSW", "No significant weather"},
      {"9999", "Visibility of 10 km or more"},
      {"3 RA", "Whole miles of visibility"},
      {"3", ""},
      {"27010KT", "Surface wind"},
      {"/////KT", "Surface wind"},
      {"10KM", "Visibility in kilometres"},
      {"27010KMH", "Surface wind"},
      {"WS020/24045KT", "Wind shear"},
      {"WS", "Wind shear"},
      {"Q1013", "Altimeter setting"},
      {"A2992", "Altimeter setting"},
      {"Q////", ""},
      {"QNH1013", "QNH"},
      {"18/12", "Temperature and dew point"},
      {"T25/12Z", "Temperature and dew point"},
      {"1/2SM", "Visibility in statute miles"},
      {"P6SM", "Visibility in statute miles"},
      {"R24/1500", "Runway visual range"},
      {"R24/1500FT", "Runway visual range"},
      {"R16/////", "Runway visual range"},
      {"R16", ""},
      {"BKN///", "Broken cloud"},
      {"SCT///CB", "Scattered cloud"},
      {"FEW/12", "Few cloud"},
      {"BECMG 1820", "Gradual change"},
      {"BECMG", "Gradual change"},
      {"TEMPO RA", "Temporary change"},
      {"TEMPO", ""},
      {"INTER", ""},
      {"PROB30", "Probability"},
      {"FM1230", "Change from a time on"},
      {"FM", ""},
      {"FG", "Weather"},
      {"BR", "Weather"},
      {"VCSH", "Weather"},
      {"VC", "Weather"},
      {"VV///", "Vertical visibility"},
      {"SKC", "Sky clear"},
      {"TCUSCT030", "Towering cumulus"},
      {"CBBKN010", "Cumulonimbus"},
      {"CUBKN010", "Cumulus"},
      {"CBCB", ""},
      {"TSNO", ""},
      {"151250Z", "Time of observation"},
      {"1512502", ""},
      {"RMK", "Remarks"},
      {"AFT", ""},
      {"WND", ""},
      {"4000", ""},
      {"///", ""},
      {"=", ""},
  };
  for (const Row& row : rows) {
    const auto table = MetarRecognisers();
    EXPECT_EQ(NameOf(table, TakenBy(table, row.words, false)), row.name) << row.words;
  }
}

TEST(MetarWalk, WhoTakesARemark) {
  struct Row {
    const char* word;
    const char* name;
  };
  const Row rows[] = {
      {"AO1", "Automatic station without precipitation discriminator"},
      {"A02", "Automatic station with precipitation discriminator"},
      {"SLP132", "Sea level pressure"},
      {"10167", "Maximum temperature of 6 hours"},
      {"20139", "Minimum temperature of 6 hours"},
      {"30010", "Precipitation of 3 hours"},
      {"4/012", "Snow depth on ground"},
      {"401561022", "Maximum and minimum temperature of 24 hours"},
      {"53022", "Pressure tendency of 3 hours"},
      {"60012", "Precipitation of 6 hours"},
      {"70123", "Precipitation of 24 hours"},
      {"8/123", "Cloud types"},
      {"98096", "Duration of sunshine"},
      {"933036", "Water equivalent of snow on ground"},
      {"PWINO", "Precipitation of the last hour"},
      {"T01560122", "Temperature and dew point in tenths"},
      {"AO3", ""},
      {"AO", ""},
      {"AO12", ""},
      {"1016", ""},
      {"101670", ""},
      {"1A167", ""},
      {"401561", ""},
      {"500FT", ""},
      {"1/2V5", ""},
      {"9V120", ""},
      {"04512", ""},
      {"T0156", ""},
      {"TCU", ""},
  };
  for (const Row& row : rows) {
    const auto table = RemarkRecognisers();
    EXPECT_EQ(NameOf(table, TakenBy(table, row.word, true)), row.name) << row.word;
  }
}

TEST(MetarWalk, NotInRemarks) {
  const auto table = MetarRecognisers();
  for (const char* word : {"27010KT", "18/12", "TCU", "CB", "CU", "TCUSCT030"}) {
    EXPECT_LT(TakenBy(table, word, false), table.size()) << word;
    EXPECT_EQ(TakenBy(table, word, true), table.size()) << word;
  }
}

// The index only leaves out entries that would decline.
TEST(MetarWalk, IndexAgreesWithTheTable) {
  constexpr std::string_view more[] = {"+RA",
                                       "-SHRA",
                                       "VCTS",
                                       "M05/M07",
                                       "T25/12Z",
                                       "WS",
                                       "XPROB40 1518",
                                       "XBECMG 1518",
                                       "ABC",
                                       "R24",
                                       "\xC4"
                                       "BC",
                                       "///",
                                       "0",
                                       "=",
                                       "1/0SM",
                                       "270P9KT",
                                       "A29.92",
                                       "A2.9.9.2.",
                                       "QNH",
                                       "FM",
                                       "FM1Z2Z3",
                                       "B",
                                       "TC",
                                       "+",
                                       "VC",
                                       "M05/",
                                       "KT",
                                       "SM",
                                       "PROB",
                                       "BECMGTEMPOTEMPOTEMPO 1518",
                                       "SCT0300000000000",
                                       "+SHRASNGRTSFZDZ"};
  const auto table = MetarRecognisers();
  const RecogniserIndex index(table);
  const auto check = [&](std::string_view words) {
    for (const bool remarks : {false, true}) {
      const std::size_t number = TakenBy(table, words, remarks);
      Offer offer(words, remarks);
      std::uint64_t candidates =
          index.Candidates(offer.walk.Word, FeaturesOf(offer.walk.Word), remarks);
      std::size_t found = table.size();
      for (; candidates != 0 && found == table.size(); candidates &= candidates - 1) {
        const auto next = static_cast<std::size_t>(std::countr_zero(candidates));
        Offer again(words, remarks);
        if (table[next].Try(again.walk, again.walk.Word) != Verdict::Declined) found = next;
      }
      EXPECT_EQ(found, number) << words << (remarks ? " in remarks" : "");
    }
  };
  for (std::string_view words : WordsInOrder) check(words);
  for (std::string_view words : more) check(words);
}

TEST(MetarWalk, OfferWord) {
  struct Row {
    const char* name;
    const char* words;
    Verdict verdict;
    std::size_t wordIndex;
    const char* fields;
  };
  const Row rows[] = {
      {"taken", "RA", Verdict::Taken, 0, "Weather0=RA"},
      {"taken with the word behind", "27010KT 4000", Verdict::Taken, 1,
       "Flags=11,15 OrizVisibility=4000 WindDir=27 WindSpeed=10"},
      {"rewritten and taken", "TCUSCT030", Verdict::Taken, 0,
       "CloudCover0=3 CloudType0=8 CloudHeigh0=30"},
      {"declined", "ABC", Verdict::Declined, 0, ""},
      {"wrong", "1/0SM", Verdict::Wrong, 0, "Flags=14"},
      {"period passed", "PROB30 TEMPO 1518", Verdict::Taken, 2,
       "| SectionType=5 SectionFlags=1 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0"},
      {"no period to pass", "PROB30 TEMPO RA", Verdict::Taken, 0, "| SectionType=5 SectionFlags=1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Offer offer(row.words);
    EXPECT_EQ(OfferWord(offer.walk), row.verdict);
    EXPECT_EQ(offer.walk.WordIndex, row.wordIndex);
    EXPECT_EQ(Describe(offer.raw), row.fields);
  }
}

TEST(MetarWalk, PartsOfAWord) {
  std::uint8_t strict = MissingByte;
  EXPECT_TRUE(SetStrict(strict, ""));
  EXPECT_TRUE(SetStrict(strict, "//"));
  EXPECT_EQ(strict, MissingByte);
  EXPECT_FALSE(SetStrict(strict, "1/"));
  EXPECT_FALSE(SetStrict(strict, "256"));
  EXPECT_EQ(strict, MissingByte);
  EXPECT_TRUE(SetStrict(strict, "07"));
  EXPECT_EQ(strict, 7);
  EXPECT_TRUE(SetStrict(strict, "1.5"));
  EXPECT_EQ(strict, 2);

  std::int16_t lenient = MissingShort;
  EXPECT_TRUE(SetLenient(lenient, ""));
  EXPECT_TRUE(SetLenient(lenient, "///"));
  EXPECT_EQ(lenient, MissingShort);
  EXPECT_FALSE(SetLenient(lenient, "99999"));
  EXPECT_EQ(lenient, MissingShort);
  EXPECT_TRUE(SetLenient(lenient, "12X"));
  EXPECT_EQ(lenient, 12);
  EXPECT_TRUE(SetLenient(lenient, "X"));
  EXPECT_EQ(lenient, 0);
  EXPECT_TRUE((SetLenient<1, 10>(lenient, "270")));
  EXPECT_EQ(lenient, 27);
  EXPECT_TRUE((SetLenient<1, 10>(lenient, "255")));
  EXPECT_EQ(lenient, 26);
  EXPECT_TRUE((SetLenient<1, 10>(lenient, "245")));
  EXPECT_EQ(lenient, 24);
  EXPECT_TRUE((SetLenient<1000>(lenient, "32")));
  EXPECT_EQ(lenient, 32000);
  EXPECT_FALSE((SetLenient<1000>(lenient, "33")));
  EXPECT_EQ(lenient, 32000);
}

TEST(MetarWalk, OpenSection) {
  Offer offer("RA");
  for (int i = 1; i <= 20; ++i) {
    offer.walk.WeatherSlot = 3;
    offer.walk.CloudLayer = 2;
    offer.walk.OpenSection();
    EXPECT_EQ(offer.raw.SectionIndex, std::min(i, 14));
    EXPECT_EQ(offer.walk.WeatherSlot, -1);
    EXPECT_EQ(offer.walk.CloudLayer, 0u);
  }
}

}  // namespace
}  // namespace zg
