#include "decode/aero/MetarTestSupport.h"

namespace zg {
namespace {

using test::ExpectWords;

TEST(MetarRemarks, Groups) {
  ExpectWords({
      {"opens a section", "RMK", "| SectionType=1"},
      {"AO1", "RMK AO1", "Flags=7 | SectionType=1"},
      {"A01", "RMK A01", "Flags=7 | SectionType=1"},
      {"AO2", "RMK AO2", "Flags=8 | SectionType=1"},
      {"A02", "RMK A02", "Flags=8 | SectionType=1"},
      {"not ahead of the remarks", "AO2 SLP132", ""},
      {"sea level pressure", "RMK SLP132", "Flags=27 | SectionType=1 SeaPressureLevel=132"},
      {"sea level pressure not reported", "RMK SLP///", "Flags=27 | SectionType=1"},
      {"QNH behind it", "RMK SLP132 QNH1013", "| SectionType=1 SeaPressureLevel=1013"},
      {"QNH ahead of it", "QNH1013 RMK SLP132",
       "Flags=27 SeaPressureLevel=1013 | SectionType=1 SeaPressureLevel=132"},
      {"maximum of 6 hours", "RMK 10167", "| SectionType=1 ; MaxTemperature6h=16.7"},
      {"maximum below zero", "RMK 11021", "| SectionType=1 ; MaxTemperature6h=-2.1"},
      {"maximum not reported", "RMK 1////", "| SectionType=1"},
      {"minimum of 6 hours", "RMK 20139", "| SectionType=1 ; MinTemperature6h=13.9"},
      {"minimum below zero", "RMK 21139", "| SectionType=1 ; MinTemperature6h=-13.9"},
      {"any sign but 0 is negative", "RMK 22139", "| SectionType=1 ; MinTemperature6h=-13.9"},
      {"nought has no sign", "RMK 11000", "| SectionType=1 ; MaxTemperature6h=0"},
      {"precipitation of 3 hours", "RMK 30010", "| SectionType=1 ; Precip3h=10"},
      {"precipitation not reported", "RMK 3////", "| SectionType=1"},
      {"snow depth", "RMK 4/012", "| SectionType=1 ; SnowDepth=12"},
      {"extremes of 24 hours", "RMK 401561022",
       "| SectionType=1 ; MaxTemperature24h=15.6 MinTemperature24h=-2.2"},
      {"one of them not reported", "RMK 4////0022", "| SectionType=1 ; MinTemperature24h=2.2"},
      {"tendency", "RMK 53022", "| SectionType=1 ; PressTendency=3 PressTendencyVal=2.2"},
      {"tendency of a fall", "RMK 57012", "| SectionType=1 ; PressTendency=7 PressTendencyVal=1.2"},
      {"tendency not reported", "RMK 5////", "| SectionType=1"},
      {"value of the tendency not reported", "RMK 53///", "| SectionType=1 ; PressTendency=3"},
      {"precipitation of 6 hours", "RMK 60012", "| SectionType=1 ; Precip6h=12"},
      {"precipitation of 24 hours", "RMK 70123", "| SectionType=1 ; Precip24h=123"},
      {"cloud types", "RMK 8/123",
       "| SectionType=1 ; LowCloudType=1 MiddleCloudType=2 HighCloudType=3"},
      {"a solidus among them is wrong", "RMK 8/1/3", "| SectionType=1 ; LowCloudType=1", "8/1/3"},
      {"all of them solidi", "RMK 8////", "| SectionType=1", "8////"},
      {"sunshine", "RMK 98096", "| SectionType=1 ; Sunshine=96"},
      {"water of the snow", "RMK 933036", "| SectionType=1 ; Water=36"},
      {"water not reported", "RMK 933///", "| SectionType=1"},
      {"precipitation of the hour", "RMK P0012", "| SectionType=1 ; PrecipHour=12"},
      {"any length", "RMK P9", "| SectionType=1 ; PrecipHour=9"},
      {"any word with P", "RMK PK", "| SectionType=1 ; PrecipHour=0"},
      {"precipitation of the hour not reported", "RMK P////", "| SectionType=1"},
      {"tenths replace the degrees", "18/12 RMK T01560122",
       "| SectionType=1 ; Temperature=15.6 Dewpoint=12.2"},
      {"tenths below zero", "RMK T11561122", "| SectionType=1 ; Temperature=-15.6 Dewpoint=-12.2"},
      {"no tenths of the dew point", "18/12 RMK T0156////",
       "| SectionType=1 ; Temperature=15.6 Dewpoint=12"},
      {"a whole row", "RMK AO2 SLP132 T01560122 10167 20139 53022",
       "Flags=8,27 | SectionType=1 SeaPressureLevel=132 ; Temperature=15.6 Dewpoint=12.2 "
       "MaxTemperature6h=16.7 MinTemperature6h=13.9 PressTendency=3 PressTendencyVal=2.2"},
  });
}

TEST(MetarRemarks, OtherWords) {
  ExpectWords({
      {"joined by blanks", "RMK RAB05 CIG 010", "| SectionType=1 ; OtherRemarks='RAB05 CIG 010'"},
      {"five figures beginning with 0", "RMK 04512", "| SectionType=1 ; OtherRemarks='04512'"},
      {"groups of another length", "RMK 101 2013 T0156",
       "| SectionType=1 ; OtherRemarks='101 2013 T0156'"},
      {"more than figures", "RMK 1/2V5 500FT", "| SectionType=1 ; OtherRemarks='1/2V5 500FT'"},
      {"no wind, no temperature, no cloud form", "RMK 27010KT M08/M12 TCU CB CU",
       "| SectionType=1 ; OtherRemarks='27010KT M08/M12 TCU CB CU'"},
      {"general groups are read", "RMK Q1013 FEW010 RA",
       "| SectionType=1 AltimeterPressure=1013 CloudCover0=1 CloudHeigh0=10 Weather0=RA"},
      {"fillers", "RMK AMD COR LTD TO CLD VIS AND WIND TEND OR NOT SKED ABC",
       "| SectionType=1 ; OtherRemarks='ABC'"},
      {"words of a landing", "RMK LDG XLDGX", "| SectionType=1"},
      {"words ending in NO", "RMK TSNO RVRNO NO XNOX", "| SectionType=1 ; OtherRemarks='XNOX'"},
      {"nothing ahead of the remarks", "ABC RMK", "| SectionType=1"},
  });
}

TEST(MetarRemarks, ChangeGroupBehindThem) {
  ExpectWords({
      {"remarks go on", "RMK ABC TEMPO 1518 XYZ",
       "| SectionType=1 | SectionType=2 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0 ; "
       "OtherRemarks='ABC XYZ'"},
      {"their groups do not", "RMK TEMPO 1518 10167",
       "| SectionType=1 | SectionType=2 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0 ; "
       "OtherRemarks='10167'"},
      {"no wind, no temperature", "RMK TEMPO 1518 27010KT 18/12",
       "| SectionType=1 | SectionType=2 FromHour=15 FromMinute=0 ToHour=18 ToMinute=0 ; "
       "OtherRemarks='27010KT 18/12'"},
      {"remarks twice", "RMK AO1 RMK AO2", "Flags=7,8 | SectionType=1 | SectionType=1"},
      {"peak wind", "RMK PK WND 27035/15",
       "| SectionType=1 ; WindRemarks='Wind 27035/15 ' PrecipHour=0"},
  });
}

}  // namespace
}  // namespace zg
