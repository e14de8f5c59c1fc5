#include "decode/aero/MetarTestSupport.h"

namespace zg {
namespace {

using test::ExpectWords;
using test::WordsCase;
using test::WordsDecoder;

TEST(MetarGroups, WordsThatSetAFlag) {
  ExpectWords({
      {"automatic", "AUTO", "Flags=9"},
      {"ceiling and visibility", "CAVOK", "Flags=10"},
      {"no change", "NOSIG", "Flags=19"},
      {"no weather", "NSW", "Flags=19"},
      {"no cloud", "NSC", "Flags=23"},
      {"clear", "CLR", "Flags=17"},
      {"sky clear", "SKC", "Flags=16"},
      {"message type", "TAF", ""},
      {"longer words are others", "AUTOX NOSIGX SKC020 CLRX", ""},
      {"correction mark behind the time", "COR 27010KT", "Flags=11,18 WindDir=27 WindSpeed=10"},
  });
}

TEST(MetarGroups, Wind) {
  ExpectWords({
      {"knots", "27010KT", "Flags=11 WindDir=27 WindSpeed=10"},
      {"kilometres an hour", "27010KMH", "Flags=12 WindDir=27 WindSpeed=10"},
      {"metres a second", "36005MPS", "Flags=13 WindDir=36 WindSpeed=5"},
      {"gust", "27010G25KT", "Flags=11 WindDir=27 WindSpeed=10 Gust=25"},
      {"gust in metres a second", "09010G17MPS", "Flags=13 WindDir=9 WindSpeed=10 Gust=17"},
      {"variable", "VRB03KT", "Flags=11,20 WindSpeed=3"},
      {"variable with gust", "VRB03G15KT", "Flags=11,20 WindSpeed=3 Gust=15"},
      {"calm", "00000KT", "Flags=11 WindDir=0 WindSpeed=0"},
      {"half tens to even, up", "27510KT", "Flags=11 WindDir=28 WindSpeed=10"},
      {"half tens to even, down", "26510KT", "Flags=11 WindDir=26 WindSpeed=10"},
      {"nothing reported", "/////KT", "Flags=11"},
      {"speed not reported", "270//KT", "Flags=11 WindDir=27"},
      {"speed of three solidi", "270///KT", "Flags=11 WindDir=27"},
      {"direction not reported", "///10KT", "Flags=11 WindSpeed=10"},
      {"variable, speed not reported", "VRB//KT", "Flags=11,20"},
      {"gust not reported", "27010G//KT", "Flags=11 WindDir=27 WindSpeed=10"},
      {"only two figures of a speed count", "270105KT", "Flags=11 WindDir=27 WindSpeed=10"},
      {"speed that is no number", "270P9KT", "Flags=11 WindDir=27", "270P9KT"},
      {"gust that is no number", "27010GP9KT", "Flags=11 WindDir=27 WindSpeed=10", "27010GP9KT"},
      {"no visibility behind a wrong wind", "270P9KT 4000", "Flags=11 WindDir=27", "270P9KT"},
      {"another unit", "27010KTS", ""},
  });
}

TEST(MetarGroups, BehindTheWind) {
  ExpectWords({
      {"visibility", "27010KT 4000", "Flags=11,15 OrizVisibility=4000 WindDir=27 WindSpeed=10"},
      {"9999", "27010KT 9999", "Flags=11,15 OrizVisibility=9999 WindDir=27 WindSpeed=10"},
      {"leading zeros", "27010KT 0050", "Flags=11,15 OrizVisibility=50 WindDir=27 WindSpeed=10"},
      {"one letter of direction", "27010KT 4000N",
       "Flags=11,15 OrizVisibility=4000 VisibilityDir=N WindDir=27 WindSpeed=10"},
      {"two letters", "27010KT 4000NE",
       "Flags=11,15 OrizVisibility=4000 VisibilityDir=NE WindDir=27 WindSpeed=10"},
      {"solidi are no direction", "27010KT 4000//",
       "Flags=11,15 OrizVisibility=4000 WindDir=27 WindSpeed=10"},
      {"six figures are none", "27010KT 520003", "Flags=11 WindDir=27 WindSpeed=10"},
      {"nor is NDV", "27010KT 9999NDV", "Flags=11 WindDir=27 WindSpeed=10"},
      {"nor three figures", "27010KT 800", "Flags=11 WindDir=27 WindSpeed=10"},
      {"range of direction", "27010KT 240V300",
       "Flags=11 WindDir=27 WindSpeed=10 WindDirRange=240-300"},
      {"no visibility behind a range", "35010KT 350V040 9000",
       "Flags=11 WindDir=35 WindSpeed=10 WindDirRange=350-040"},
      {"no range of letters", "27010KT ABCVDEF", "Flags=11 WindDir=27 WindSpeed=10"},
      {"a word of the loop", "27010KT RA", "Flags=11 WindDir=27 WindSpeed=10 Weather0=RA"},
      {"no visibility elsewhere", "27010KT RA 4000",
       "Flags=11 WindDir=27 WindSpeed=10 Weather0=RA"},
      {"9999 elsewhere", "27010KT RA 9999",
       "Flags=11,15 OrizVisibility=10000 WindDir=27 WindSpeed=10 Weather0=RA"},
      {"a second wind replaces the first", "27010G20KT 4000 VRB05MPS 9999",
       "Flags=11,13,15,20 OrizVisibility=9999 WindDir=27 WindSpeed=5 Gust=20"},
  });
}

TEST(MetarGroups, Visibility) {
  ExpectWords({
      {"kilometres", "5KM", "Flags=15 OrizVisibility=5000"},
      {"with a point", "1.5KM", "Flags=15 OrizVisibility=1500"},
      {"miles", "10SM", "Flags=14 OrizVisibility=10000"},
      {"one mile", "1SM", "Flags=14 OrizVisibility=1000"},
      {"more than six", "P6SM", "Flags=14 OrizVisibility=6000"},
      {"half a mile", "1/2SM", "Flags=14 OrizVisibility=500"},
      {"a sixteenth rounds halves up", "1/16SM", "Flags=14 OrizVisibility=63"},
      {"two thirds", "2/3SM", "Flags=14 OrizVisibility=667"},
      {"less than a quarter", "M1/4SM", "Flags=14 OrizVisibility=250"},
      {"mixed, one word", "11/2SM", "Flags=14 OrizVisibility=1500"},
      {"mixed, two words", "1 1/2SM", "Flags=14 OrizVisibility=1500"},
      {"mixed, two and a quarter", "2 1/4SM", "Flags=14 OrizVisibility=2250"},
      {"mixed cuts", "1 1/16SM", "Flags=14 OrizVisibility=1062"},
      {"mixed cuts a third", "1 1/3SM", "Flags=14 OrizVisibility=1333"},
      {"one figure alone", "2 RA", "Flags=14 OrizVisibility=2000 Weather0=RA"},
      {"one figure as last word", "RA 2", "Weather0=RA"},
      {"no fraction behind it", "1 10SM", "Flags=14 OrizVisibility=10000"},
      {"division by zero", "1/0SM", "Flags=14", "1/0SM"},
      {"division by zero, mixed", "11/0SM", "Flags=14", "11/0SM"},
      {"division by zero in the second word", "1 1/0SM", "Flags=14 OrizVisibility=1000", "1/0SM"},
      {"not reported", "////SM", "Flags=14"},
      {"vertical", "VV010", "; VerticalVisibility=10"},
      {"vertical, sky not seen", "VV///", ""},
      {"vertical, nothing behind it", "VV", ""},
  });
}

TEST(MetarGroups, RunwayVisualRange) {
  ExpectWords({
      {"metres", "R24/1500", "; RVRRunway=24 RVRVisibility=1500"},
      {"runway with letter", "R24L/0800", "; RVRRunway=24L RVRVisibility=800"},
      {"feet", "R24/2000FT", "Flags=24 ; RVRRunway=24 RVRVisibility=2000"},
      {"above", "R24/P1500", "Flags=25 ; RVRRunway=24 RVRVisibility=1500"},
      {"below", "R24/M0050", "Flags=26 ; RVRRunway=24 RVRVisibility=50"},
      {"above, in feet", "R24R/P6000FT", "Flags=24,25 ; RVRRunway=24R RVRVisibility=6000"},
      {"no change", "R24/0600N", "; RVRRunway=24 RVRVisibility=600"},
      {"rise", "R24/0600U", "; RVRRunway=24 RVRVisibility=600"},
      {"fall", "R24/0600D", "; RVRRunway=24 RVRVisibility=600"},
      {"range", "R24/0500V0900", "; RVRRunway=24 RVRVisibility=500 RVRVisibilitymax=900"},
      {"letters on both sides of V", "R06/1000DV1500U",
       "; RVRRunway=06 RVRVisibility=1000 RVRVisibilitymax=1500"},
      {"range in feet", "R06/2000V4000FT",
       "Flags=24 ; RVRRunway=06 RVRVisibility=2000 RVRVisibilitymax=4000"},
      {"range with a bound", "R06/M0600V1500",
       "Flags=26 ; RVRRunway=06 RVRVisibility=600 RVRVisibilitymax=1500"},
      {"upper bound", "R06/0600VP1500",
       "Flags=25 ; RVRRunway=06 RVRVisibility=600 RVRVisibilitymax=1500"},
      {"not reported", "R16/////", "; RVRRunway=16"},
      {"upper end not reported", "R16/0600V////", "; RVRRunway=16 RVRVisibility=600"},
      {"a bad end leaves the other", "R16/0600VX", "; RVRRunway=16 RVRVisibility=600",
       "R16/0600VX"},
      {"another runway replaces it", "R16/0600 R34/0700", "; RVRRunway=34 RVRVisibility=700"},
      {"no solidus", "R24", ""},
  });
}

TEST(MetarGroups, Pressure) {
  ExpectWords({
      {"hectopascals", "Q1015", "AltimeterPressure=1015"},
      {"leading zero", "Q0998", "AltimeterPressure=998"},
      {"inches", "A2992", "AltimeterPressure=2992"},
      {"points are taken out", "A29.92", "AltimeterPressure=2992"},
      {"not reported", "Q//// A////", ""},
      {"too long", "Q10155", ""},
      {"no number", "QABCD", ""},
      {"sea level", "QNH1013", "SeaPressureLevel=1013"},
      {"sea level in inches", "QNH2992INS", "SeaPressureLevel=2992"},
      {"sea level not reported", "QNH////", ""},
  });
}

TEST(MetarGroups, Temperature) {
  ExpectWords({
      {"both", "18/12", "; Temperature=18 Dewpoint=12"},
      {"below zero", "M05/M07", "; Temperature=-5 Dewpoint=-7"},
      {"minus nought is nought", "M00/M01", "; Temperature=0 Dewpoint=-1"},
      {"no dew point", "18/", "; Temperature=18"},
      {"dew point not reported", "18///", "; Temperature=18"},
      {"temperature not reported", "//12", ""},
      {"dew point alone", "XX/12", "; Dewpoint=12"},
      {"neither", "///", ""},
      {"neither, of five", "/////", ""},
      {"neither number", "AB/CD", ""},
      {"a number that no field holds", "01/M002222222222222222222222222222222222222222222",
       "; Temperature=1", "01/M002222222222222222222222222222222222222222222"},
  });
}

TEST(MetarGroups, Clouds) {
  ExpectWords({
      {"few", "FEW030", "CloudCover0=1 CloudHeigh0=30"},
      {"scattered", "SCT020", "CloudCover0=3 CloudHeigh0=20"},
      {"broken", "BKN100", "CloudCover0=6 CloudHeigh0=100"},
      {"overcast", "OVC005", "CloudCover0=8 CloudHeigh0=5"},
      {"towering", "SCT025TCU", "CloudCover0=3 CloudType0=8 CloudHeigh0=25"},
      {"cumulonimbus", "BKN020CB", "CloudCover0=6 CloudType0=9 CloudHeigh0=20"},
      {"any other suffix", "FEW010X", "CloudCover0=1 CloudType0=9 CloudHeigh0=10"},
      {"height not reported", "BKN///", "CloudCover0=6"},
      {"nothing behind the cover", "BKN", "CloudCover0=6"},
      {"form without height", "SCT///CB", "CloudCover0=3 CloudType0=9"},
      {"form not reported", "FEW030///", "CloudCover0=1 CloudHeigh0=30"},
      {"three layers", "FEW010 SCT020 BKN030",
       "CloudCover0=1 CloudCover1=3 CloudCover2=6 CloudHeigh0=10 CloudHeigh1=20 CloudHeigh2=30"},
      {"a fourth replaces the third", "FEW010 SCT020 BKN030 OVC040",
       "CloudCover0=1 CloudCover1=3 CloudCover2=8 CloudHeigh0=10 CloudHeigh1=20 CloudHeigh2=40"},
      {"form ahead of its group", "TCUSCT030", "CloudCover0=3 CloudType0=8 CloudHeigh0=30"},
      {"cumulonimbus ahead", "CBBKN020", "CloudCover0=6 CloudType0=9 CloudHeigh0=20"},
      {"cumulus ahead", "CUFEW015", "CloudCover0=1 CloudType0=9 CloudHeigh0=15"},
      {"form alone", "TCU", "CloudType0=8"},
      {"cumulonimbus alone", "CB", "CloudType0=9"},
      {"cumulus alone", "CU", "CloudType0=9"},
      {"a form alone is of the layer to come", "FEW010 CB SCT020",
       "CloudCover0=1 CloudCover1=3 CloudType1=9 CloudHeigh0=10 CloudHeigh1=20"},
      {"a form that gives itself", "CBCB", ""},
      {"forms that go round", "CBCU CUCB TCUCB TCUTCU CBCBCB", ""},
  });
}

TEST(MetarGroups, WindShear) {
  ExpectWords({
      {"warning of a runway", "WS R24", "Flags=22"},
      {"all runways", "WS ALL RWY", "Flags=22"},
      {"with values", "WS020/24045KT", "; WindShearLevel=20 WindShearDir=240 WindShearSpeed=45"},
      {"is no wind, whatever follows", "WS020/24045KT 4000",
       "; WindShearLevel=20 WindShearDir=240 WindShearSpeed=45"},
      {"no level", "WS/24045KT", "; WindShearDir=240 WindShearSpeed=45"},
      {"direction not reported", "WS020////45KT", "; WindShearLevel=20 WindShearSpeed=45"},
      {"level out of range", "WS300/24045KT", "", "WS300/24045KT"},
      {"direction that is no number", "WS020/ABC45KT", "; WindShearLevel=20", "WS020/ABC45KT"},
  });
}

TEST(MetarGroups, ChangeGroups) {
  ExpectWords(
      {
          {"gradual", "151218 BECMG 1820",
           "| SectionType=3 FromHour=18 FromMinute=0 ToHour=20 ToMinute=0"},
          {"gradual without period", "151218 BECMG RA", "| SectionType=3 Weather0=RA"},
          {"gradual as last word", "151218 BECMG", ""},
          {"any word that holds it", "151218 XBECMG 1820",
           "| SectionType=3 FromHour=18 FromMinute=0 ToHour=20 ToMinute=0"},
          {"temporary", "151218 TEMPO 1518 RA",
           "| SectionType=2 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0 Weather0=RA"},
          {"temporary without period", "151218 TEMPO RA", "| SectionType=2 Weather0=RA"},
          {"temporary as last word", "151218 RA TEMPO", "Weather0=RA"},
          {"intermittent", "151218 INTER 1518",
           "| SectionType=7 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0"},
          {"intermittent as last word", "151218 INTER", ""},
          {"from an hour", "151218 FM12", "| SectionType=4 FromHour=12 FromMinute=0"},
          {"minutes are dropped", "151218 FM1230", "| SectionType=4 FromHour=12 FromMinute=0"},
          {"with Z", "151218 FM1230Z", "| SectionType=4 FromHour=12 FromMinute=0"},
          {"FM of another length", "151218 FM151230 FM1 FM123", ""},
          {"FM that is no number", "151218 FMAB FM12AB", ""},
          {"30 per cent", "151218 PROB30 1518",
           "| SectionType=5 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0"},
          {"40 per cent", "151218 PROB40 1518",
           "| SectionType=6 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0"},
          {"another number", "151218 PROB50 1518",
           "| FromHour=15 FromMinute=0 ToHour=18 ToMinute=0"},
          {"with TEMPO", "151218 PROB30 TEMPO 1518",
           "| SectionType=5 SectionFlags=1 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0"},
          {"with INTER", "151218 PROB40 INTER 1518",
           "| SectionType=6 SectionFlags=2 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0"},
          {"with both", "151218 PROB30 TEMPO INTER 1518",
           "| SectionType=5 SectionFlags=3 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0"},
          {"without period TEMPO opens another", "151218 PROB30 TEMPO RA",
           "| SectionType=5 SectionFlags=1 | SectionType=2 Weather0=RA"},
          {"probability as last word", "151218 PROB30", "| SectionType=5", "PROB30"},
          {"TEMPO as last word behind it", "151218 PROB30 TEMPO", "| SectionType=5 SectionFlags=1",
           "PROB30"},
          {"clouds and weather begin anew", "151218 RA SCT010 BKN020 TEMPO 1518 SN OVC030",
           "CloudCover0=3 CloudCover1=6 CloudHeigh0=10 CloudHeigh1=20 Weather0=RA | SectionType=2 "
           "FromHour=15 FromMinute=0 ToHour=18 ToMinute=0 CloudCover0=8 CloudHeigh0=30 "
           "Weather0=SN"},
          {"the whole of a forecast",
           "151100Z 151212 27010KT 9999 SCT020 TEMPO 1518 4000 RA BECMG 1820 VRB03KT",
           "Flags=11,15,20 OrizVisibility=9999 WindDir=27 WindSpeed=10 CloudCover0=3 "
           "CloudHeigh0=20 | SectionType=2 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0 "
           "Weather0=RA | SectionType=3 FromHour=18 FromMinute=0 ToHour=20 ToMinute=0 "
           "WindSpeed=3"},
      },
      MessageType::TAF);
}

TEST(MetarGroups, FifteenSections) {
  std::string words = "151218";
  std::string fields;
  for (int i = 1; i <= 13; ++i) {
    words += " FM0" + std::to_string(i % 10);
    fields += (i > 1 ? " " : "") + std::string("| SectionType=4 FromHour=") +
              std::to_string(i % 10) + " FromMinute=0";
  }
  // The fourteenth is the last; what comes behind it is added there, under its own type.
  words += " TEMPO 1518 RA Q1013 FM20 SN BECMG 2122";
  fields +=
      " | SectionType=3 FromHour=21 FromMinute=0 ToHour=22 ToMinute=0 AltimeterPressure=1013 "
      "Weather0=SN";
  WordsDecoder decoder;
  EXPECT_EQ(decoder.Decode(MessageType::TAF, words), fields);
  EXPECT_EQ(decoder.Wrong(), "");
  // The next report has none of them left.
  EXPECT_EQ(decoder.Decode(MessageType::TAF, "151218 RA FM12"),
            "Weather0=RA | SectionType=4 FromHour=12 FromMinute=0");
}

TEST(MetarGroups, ForecastTemperature) {
  ExpectWords(
      {
          {"with hour", "151218 T25/12Z", "; ForecastTemperature0=125 ForecastTemperatureHour0=12"},
          {"below zero", "151218 TM05/06Z", "; ForecastTemperature0=95 ForecastTemperatureHour0=6"},
          {"another letter is no number", "151218 TX25/12Z", "; ForecastTemperatureHour0=12"},
          {"two", "151218 T25/12Z T15/03Z",
           "; ForecastTemperature0=125 ForecastTemperature1=115 ForecastTemperatureHour0=12 "
           "ForecastTemperatureHour1=3"},
          {"a third", "151218 T25/12Z T15/03Z T10/05Z",
           "; ForecastTemperature0=125 ForecastTemperature1=115 ForecastTemperatureHour0=12 "
           "ForecastTemperatureHour1=3",
           "T10/05Z"},
          {"only numbers count", "151218 TAA/BBZ T25/12Z",
           "; ForecastTemperature0=125 ForecastTemperatureHour0=12"},
          {"hour not reported", "151218 T25/", "; ForecastTemperature0=125"},
          {"temperature not reported", "151218 T/12Z", "; ForecastTemperatureHour0=12"},
          {"each takes a place", "151218 T25/ T/12Z",
           "; ForecastTemperature0=125 ForecastTemperatureHour1=12"},
          {"out of range", "151218 T200/12Z", "", "T200/12Z"},
      },
      MessageType::TAF);
}

TEST(MetarGroups, FreeWordsOfForecasts) {
  ExpectWords(
      {
          {"after an hour", "151218 AFT 12", "; WindRemarks='After 12:00 '"},
          {"after a time", "151218 AFT 1230Z", "; WindRemarks='After 12:30 '"},
          {"after a word", "151218 AFT RA", "Weather0=RA ; WindRemarks='After '"},
          {"after as last word", "151218 AFT", "; WindRemarks='After '"},
          {"after twice", "151218 AFT 12 AFT 1345", "; WindRemarks='After After 12:00 13:45 '"},
          {"wind", "151218 WND 27010KT RA", "Weather0=RA ; WindRemarks='Wind 27010KT '"},
          {"wind drops what was there", "151218 AFT 12 WND 27010KT RA",
           "Weather0=RA ; WindRemarks='Wind 27010KT '"},
          {"wind, after", "151218 WND 27010KT AFT 12", "; WindRemarks='After Wind 27010KT 12:00 '"},
          {"all of its parts", "151218 WND 27010KT VRB05KT 250V310 27035/15",
           "; WindRemarks='Wind 27010KT VRB05KT 250-31027035/15 '"},
          {"wind alone", "151218 WND RA", "Weather0=RA ; WindRemarks='Wind '"},
          {"words end behind the wind", "151218 WND 27010KT", "; WindRemarks='Wind 27010KT '",
           "27010KT"},
          {"words end behind the variation", "151218 WND VRB05KT 250V310",
           "; WindRemarks='Wind VRB05KT 250-310'", "250V310"},
          {"as last word", "151218 WND", ""},
          {"ahead of a time", "151218 WND 151300Z", ""},
      },
      MessageType::TAF);
}

}  // namespace
}  // namespace zg
