#include "decode/aero/MetarTestSupport.h"

namespace zg {
namespace {

using test::ExpectWords;
using test::WordsDecoder;

TEST(MetarWeather, EachCodeHasItsBit) {
  for (const char* code :
       {"MI", "BC", "PR", "DR", "BL", "SH", "TS", "FZ", "DZ", "RA", "SN", "SG", "IC", "PE",
        "GR", "GS", "BR", "FG", "FU", "VA", "DU", "SA", "HZ", "PO", "SQ", "FC", "SS", "DS"}) {
    WordsDecoder decoder;
    EXPECT_EQ(decoder.Decode(MessageType::METAR, code), std::string("Weather0=") + code);
    EXPECT_EQ(decoder.Wrong(), "");
  }
}

TEST(MetarWeather, Words) {
  ExpectWords({
      {"light", "-RA", "Weather0=RA,-"},
      {"heavy", "+SN", "Weather0=SN,+"},
      {"in the vicinity", "VCTS", "Weather0=TS,VC"},
      {"two codes", "SHRA", "Weather0=SH,RA"},
      {"the order of the codes does not count", "SNRA", "Weather0=RA,SN"},
      {"nor here", "RASN", "Weather0=RA,SN"},
      {"two codes with a sign", "+TSRA", "Weather0=TS,RA,+"},
      {"three codes with a sign", "-RADZSN", "Weather0=DZ,RA,SN,-"},
      {"funnel cloud", "+FC", "Weather0=FC,+"},
      {"two codes in the vicinity", "VCBLSN", "Weather0=BL,SN,VC"},
      {"three codes want a sign", "TSRAGR", ""},
      {"three letters want a sign", "RAS", ""},
      {"VC alone", "VC", ""},
      {"sign alone", "- +", ""},
      {"a sign and half a code", "-R", ""},
      {"a pair that is no code", "RAXX", ""},
      {"the first pair is no code", "XXRA", ""},
      {"a sign and a pair that is no code", "-RAXX", ""},
      {"codes stand at pairs only", "TSNO", ""},
      {"nor across them", "DSNT", ""},
      {"pairs behind a sign", "-TSSN", "Weather0=TS,SN,-"},
      {"a sign ahead of VC", "-VCSH", ""},
      {"lower case is none", "ra", ""},
  });
}

TEST(MetarWeather, Slots) {
  ExpectWords({
      {"one a word", "RA BR", "Weather0=RA Weather1=BR"},
      {"mist, then snow and rain", "BR SNRA", "Weather0=BR Weather1=RA,SN"},
      {"vicinity, then showers", "VCSH -SHRA", "Weather0=SH,VC Weather1=SH,RA,-"},
      {"rain, then rain and snow", "RA RASN", "Weather0=RA Weather1=RA,SN"},
      {"the same again", "RA RA", "Weather0=RA"},
      {"all of its codes are there", "SHRA RA", "Weather0=SH,RA"},
      {"and without the sign", "-RA RA", "Weather0=RA,-"},
      {"the sign is not there", "RA -RA", "Weather0=RA Weather1=RA,-"},
      {"only the last slot counts", "RA BR RA", "Weather0=RA Weather1=BR Weather2=RA"},
      {"no trace between them", "RA RAXX SN", "Weather0=RA Weather1=SN"},
      {"eleven phenomena", "RA SN RA SN RA SN RA SN RA SN BR",
       "Weather0=RA Weather1=SN Weather2=RA Weather3=SN Weather4=RA Weather5=SN Weather6=RA "
       "Weather7=SN Weather8=RA Weather9=SN",
       "BR"},
      {"a section has its own", "RA SN RA SN RA SN RA SN RA SN BR TEMPO FG",
       "Weather0=RA Weather1=SN Weather2=RA Weather3=SN Weather4=RA Weather5=SN Weather6=RA "
       "Weather7=SN Weather8=RA Weather9=SN | SectionType=2 Weather0=FG",
       "BR"},
  });
}

// VC as a word of its own tells of the word beside it, where a code stands at the third character
// or further.
TEST(MetarWeather, VicinityAsAWord) {
  ExpectWords({
      {"ahead of two codes", "VC TSRA", "Weather0=TS,RA,VC"},
      {"behind two codes", "SHRA VC", "Weather0=SH,RA,VC"},
      {"behind a sign and two codes", "-SHRA VC", "Weather0=SH,RA,-,VC"},
      {"not of one code", "VC TS", "Weather0=TS"},
      {"not of one code ahead of it", "RA VC", "Weather0=RA"},
      {"not of a sign and one code", "+RA VC", "Weather0=RA,+"},
      {"not over a word", "VC BR TSRA", "Weather0=BR Weather1=TS,RA"},
  });
}

}  // namespace
}  // namespace zg
