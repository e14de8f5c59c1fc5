#include "decode/synop/SynopTestSupport.h"

namespace zg {
namespace {

using test::ExpectGroups;

TEST(SynopSection1, VisibilityGroup) {
  ExpectGroups("", {
                       {"41256", "PrecipInd=4 StationType=1 LowestCloud=2 Visibility=56"},
                       {"/////", ""},
                       {"4////", "PrecipInd=4"},
                       {"/1///", "StationType=1"},
                       {"//2//", "LowestCloud=2"},
                       {"///56", "Visibility=56"},
                       {"///5/", "Visibility=5"},
                       {"///00", "Visibility=0"},
                       {"A1256", "StationType=1 LowestCloud=2 Visibility=56", "A1256"},
                       {"4AB56", "PrecipInd=4 Visibility=56", "4AB56 4AB56"},
                       // What is not there is no solidus: an empty figure, and nought of two.
                       {"412", "PrecipInd=4 StationType=1 LowestCloud=2 Visibility=0"},
                       {"41", "PrecipInd=4 StationType=1 Visibility=0", "41"},
                   });
}

TEST(SynopSection1, WindGroup) {
  ExpectGroups("///// ", {
                             {"82703", "CloudCover=8 WindDirection=27 WindSpeed=3"},
                             {"/////", ""},
                             {"8////", "CloudCover=8"},
                             {"/27//", "WindDirection=27"},
                             {"///03", "WindSpeed=3"},
                             {"/9999", "WindDirection=99 WindSpeed=99"},
                             {"A2703", "WindDirection=27 WindSpeed=3", "A2703"},
                             {"8XX03", "CloudCover=8 WindDirection=0 WindSpeed=3"},
                         });
}

TEST(SynopSection1, Groups) {
  ExpectGroups("///// ///// ",
               {
                   // 00fff
                   {"00123", "WindSpeed=123"},
                   {"00255", ""},  // the missing value itself
                   {"00256", "", "00256"},
                   {"00///", ""},
                   {"0012/", "", "0012/"},
                   {"01123", ""},
                   {"0/123", ""},
                   {"00123 00099", "WindSpeed=123"},
                   // 1SnTTT
                   {"10123", "Temperature=12.3"},
                   {"11123", "Temperature=-12.3"},
                   {"12123", "Temperature=12.3"},
                   {"1/123", "Temperature=12.3"},
                   {"1012/", "Temperature=12"},
                   {"1112/", "Temperature=-12"},
                   {"10///", ""},
                   {"1////", ""},
                   {"11000", "Temperature=0"},
                   {"1012", "Temperature=1.2"},
                   {"101234", "Temperature=12.3"},
                   {"10123 10456", "Temperature=45.6"},
                   // 2SnTdTdTd, 29UUU
                   {"20101", "DewPoint=10.1"},
                   {"21101", "DewPoint=-10.1"},
                   {"2010/", "DewPoint=10"},
                   {"20///", ""},
                   {"29075", "Humidity=75"},
                   {"29100", "Humidity=100"},
                   {"29///", ""},
                   {"22101", ""},
                   {"2/101", ""},
                   // 3P0P0P0P0
                   {"30123", "StatPressure=1012.3"},
                   {"39987", "StatPressure=998.7"},
                   {"34999", "StatPressure=1499.9"},
                   {"35000", "StatPressure=500"},
                   {"3998/", "StatPressure=99.8"},
                   {"3012/", "StatPressure=1.2"},
                   {"3////", ""},
                   // 4PPPP
                   {"40123", "SeaLevPressure=1012.3"},
                   {"49987", "SeaLevPressure=998.7"},
                   {"4998/", "SeaLevPressure=99.8"},
                   {"4////", ""},
                   {"40///", ""},
                   // 4a3hhh
                   {"41234", "GeopotHeight=1234 GeopotPressure=1000"},
                   {"42750", "GeopotHeight=750 GeopotPressure=925"},
                   {"45800", "GeopotHeight=800 GeopotPressure=500"},
                   {"47100", "GeopotHeight=1100 GeopotPressure=700"},
                   {"48499", "GeopotHeight=1499 GeopotPressure=850"},
                   {"48500", "GeopotHeight=500 GeopotPressure=850"},
                   {"41///", ""},
                   {"4123/", "GeopotHeight=1023 GeopotPressure=1000"},
                   // 5appp
                   {"51012", "PressTendency=1 PressTendencyVal=1.2"},
                   {"54012", "PressTendency=4 PressTendencyVal=1.2"},
                   {"56012", "PressTendency=6 PressTendencyVal=-1.2"},
                   {"58000", "PressTendency=8 PressTendencyVal=0"},
                   {"51///", "PressTendency=1"},
                   {"5/012", "PressTendencyVal=-1.2"},
                   {"5/000", "PressTendencyVal=0"},
                   {"5////", ""},
                   {"5A012", "PressTendencyVal=-1.2", "5A012"},
                   // 6RRRtR
                   {"60021", "PrecipitAmount1=2 PrecipitDuration1=1"},
                   {"69901", "PrecipitAmount1=990 PrecipitDuration1=1"},
                   {"6002/", "PrecipitAmount1=2"},
                   {"6///1", "PrecipitDuration1=1"},
                   {"6////", ""},
                   {"6002X", "PrecipitAmount1=2", "6002X"},
                   // 7wwW1W2
                   {"76123", "PresentWeather=61 PastWeather1=2 PastWeather2=3"},
                   {"701//", "PresentWeather=1"},
                   {"7//23", "PastWeather1=2 PastWeather2=3"},
                   {"7////", ""},
                   {"761A3", "PresentWeather=61 PastWeather2=3", "761A3"},
                   // 8NhCLCMCH
                   {"83512", "CloudAmount=3 LowCloudType=5 MiddleCloudType=1 HighCloudType=2"},
                   {"8////", ""},
                   {"8/5//", "LowCloudType=5"},
                   {"8A5/2", "LowCloudType=5 HighCloudType=2", "8A5/2"},
                   {"835", "CloudAmount=3 LowCloudType=5", "835 835"},
                   // 9GGgg
                   {"91230", "TimeOfObservation=1230"},
                   {"90030", "TimeOfObservation=30"},
                   {"90000", "TimeOfObservation=0"},
                   {"92359", "TimeOfObservation=2359"},
                   {"99030", "TimeOfObservation=30"},
                   {"92400", "TimeOfObservation=-6600"},
                   {"912//", "TimeOfObservation=12"},
                   {"9////", ""},
                   // Passed over.
                   {"CCA RMK X", ""},
                   {"A0123", ""},
                   {"/0123", ""},
               });
}

TEST(SynopSection1, HighWindYieldsToTheWindGroup) {
  ExpectGroups("///// ", {
                             {"///// 00123", "WindSpeed=123"},
                             {"///05 00123", "WindSpeed=5"},
                             {"///99 00123", "WindSpeed=99"},
                             {"///00 00123", "WindSpeed=0"},
                         });
}

// Five or three characters that begin with the marker end the section, a dew point among them.
TEST(SynopSection1, Markers) {
  ExpectGroups(
      "///// ///// ",
      {
          {"10123 222 10305", "Flags=10 Temperature=12.3 WavePeriod=3 WaveHeight=2.5"},
          {"22211 10305", "Flags=10 ShipDirection=1 ShipAvSpeed=1 WavePeriod=3 WaveHeight=2.5"},
          {"333 10203", "Flags=11 MaxTemperature=20.3"},
          {"33301 10203", "Flags=11 MaxTemperature=20.3"},
          {"444 10203", ""},
          {"44401 10203", ""},
          {"555 1/123", "Flags=12 WindAt10mt=123"},
          {"55501 1/123", "Flags=12 WindAt10mt=123"},
          {"2222 10123", "Temperature=12.3"},
          {"222222 10123", "Temperature=12.3"},
          {"111 10123", "Temperature=12.3"},
      });
}

}  // namespace
}  // namespace zg
