#include "decode/synop/SynopTestSupport.h"

namespace zg {
namespace {

using test::ExpectGroups;

TEST(SynopSection3, Groups) {
  ExpectGroups("///// ///// 333 ",
               {
                   {"", "Flags=11"},
                   // Regional groups
                   {"01234", "Flags=11 RegionalData1=1234"},
                   {"00012", "Flags=11 RegionalData1=12"},
                   {"0////", "Flags=11"},
                   {"0///4", "Flags=11 RegionalData1=0"},
                   {"31234", "Flags=11 RegionalData2=1234"},
                   {"3////", "Flags=11"},
                   {"51234", "Flags=11 OtherInfo=1234"},
                   {"5////", "Flags=11"},
                   {"50005 51234", "Flags=11 OtherInfo=1234"},
                   // 1SnTxTxTx
                   {"10203", "Flags=11 MaxTemperature=20.3"},
                   {"11203", "Flags=11 MaxTemperature=-20.3"},
                   {"10203 10250", "Flags=11 MaxTemperature=20.3"},
                   {"1012/", "Flags=11 MaxTemperature=1.2"},
                   {"10///", "Flags=11"},
                   {"10/// 10250", "Flags=11 MaxTemperature=25"},
                   // 2SnTnTnTn
                   {"20100", "Flags=11 MinTemperature=10"},
                   {"20100 20150", "Flags=11 MinTemperature=15"},
                   {"21035", "Flags=11 MinTemperature=-3.5"},
                   {"2012/", "Flags=11 MinTemperature=12"},
                   {"201//", "Flags=11 MinTemperature=1"},
                   {"2112/", "Flags=11 MinTemperature=-12"},
                   {"21///", "Flags=11"},
                   {"21000", "Flags=11 MinTemperature=0"},
                   // 4E'sss
                   {"46012", "Flags=11 SnowState=6 SnowDepth=12"},
                   {"46///", "Flags=11 SnowState=6"},
                   {"4/012", "Flags=11 SnowDepth=12"},
                   {"4A012", "Flags=11 SnowDepth=12", "4A012"},
                   // 6RRRtR
                   {"60021", "Flags=11 PrecipitAmount2=2 PrecipitDuration2=1"},
                   {"69901", "Flags=11 PrecipitAmount2=990 PrecipitDuration2=1"},
                   {"6012/", "Flags=11 PrecipitAmount2=12 PrecipitDuration2=10"},
                   {"6////", "Flags=11 PrecipitDuration2=10"},
                   {"6012A", "Flags=11 PrecipitAmount2=12", "6012A"},
                   {"6012", "Flags=11 PrecipitAmount2=12", "6012"},
                   // 7R24
                   {"70123", "Flags=11 PastPrecipitAmount=12"},
                   {"79999", "Flags=11"},
                   {"79998", "Flags=11 PastPrecipitAmount=999"},
                   {"7////", "Flags=11"},
                   // 8NsChshs
                   {"81030", "Flags=11 CloudCovLayer0=1 TypeOfCloud0=0 HeighOfCloud0=30"},
                   {"84/3/", "Flags=11 CloudCovLayer0=4 HeighOfCloud0=3"},
                   {"846//", "Flags=11 CloudCovLayer0=4 TypeOfCloud0=6"},
                   {"84/X/", "Flags=11 CloudCovLayer0=4", "84/X/"},
                   {"8//// 81030", "Flags=11 CloudCovLayer1=1 TypeOfCloud1=0 HeighOfCloud1=30"},
                   {"8AB12", "Flags=11 HeighOfCloud0=12", "8AB12 8AB12"},
                   // 9SpSpspsp
                   {"91104", "Flags=11 SupplInfo=4"},
                   {"91010", "Flags=11 SupplInfo=10"},
                   {"91104 90721", "Flags=11 SupplInfo=21"},
                   {"910//", "Flags=11"},
                   // Passed over.
                   {"RMK /1234", "Flags=11"},
               });
}

TEST(SynopSection3, CloudLayers) {
  constexpr const char* four =
      "Flags=11 CloudCovLayer0=1 CloudCovLayer1=3 CloudCovLayer2=6 CloudCovLayer3=9 "
      "TypeOfCloud0=0 TypeOfCloud1=3 TypeOfCloud2=6 TypeOfCloud3=8 HeighOfCloud0=30 "
      "HeighOfCloud1=60 HeighOfCloud2=70 HeighOfCloud3=90";
  ExpectGroups("///// ///// 333 81030 83360 86670 89890 ",
               {
                   {"", four},
                   // One line for a layer, however many of its parts are given.
                   {"85555", four, "85555"},
                   {"85///", four, "85///"},
                   {"8///5", four, "8///5"},
                   {"8////", four},
                   {"85555 8//// 84444", four, "85555 84444"},
               });
}

TEST(SynopSection3, Markers) {
  ExpectGroups("///// ///// 333 10203 ",
               {
                   {"222 10305", "Flags=11 MaxTemperature=20.3"},
                   {"333 20100", "Flags=11 MaxTemperature=20.3"},
                   {"444 20100", "Flags=11 MaxTemperature=20.3"},
                   {"44412 20100", "Flags=11 MaxTemperature=20.3"},
                   {"555 1/123", "Flags=11,12 MaxTemperature=20.3 WindAt10mt=123"},
                   {"55512 1/123", "Flags=11,12 MaxTemperature=20.3 WindAt10mt=123"},
                   // Five figures beginning with 222 and 333 are groups here.
                   {"222//", "Flags=11 MaxTemperature=20.3 MinTemperature=2"},
                   {"33312", "Flags=11 MaxTemperature=20.3 RegionalData2=3312"},
               });
}

TEST(SynopSection4, IsPassedOver) {
  ExpectGroups("///// ///// 444 ", {
                                       {"10123 22254 33312", ""},
                                       {"10123 222 10305", ""},
                                       {"10123 333 10203", ""},
                                       {"10123 444 10203", ""},
                                       {"10123 555 1/123", "Flags=12 WindAt10mt=123"},
                                       {"10123 55512 1/123", "Flags=12 WindAt10mt=123"},
                                   });
}

TEST(SynopSection5, Groups) {
  ExpectGroups("///// ///// 555 ",
               {
                   {"1/123 2/456 31230 40512 61310 090234",
                    "Flags=12 CountinuousWindRaw0=090234 WindAt10mt=123 WindAt20mt=456 "
                    "MaxWindSpeedTime=1230 MaxWindSpeed=12 MaxWindDir=5 ContinueWindTime=1310"},
                   {"1//// 2//// 3//// 4//// 6////", "Flags=12"},
                   {"11123", "Flags=12 WindAt10mt=123"},
                   {"1/12A 2/12A", "Flags=12", "1/12A 2/12A"},
                   {"4//12", "Flags=12 MaxWindSpeed=12"},
                   {"405//", "Flags=12 MaxWindDir=5"},
                   {"4AB12", "Flags=12 MaxWindSpeed=12", "4AB12"},
                   {"4/512", "Flags=12 MaxWindSpeed=12", "4/512"},
                   {"3AB/1", "Flags=12 MaxWindSpeedTime=AB/1"},
                   {"51234 71234 81234 91234 01234 RMK", "Flags=12"},
                   {"ABCDEF", "Flags=12 CountinuousWindRaw0=ABCDEF"},
                   // No marker ends it.
                   {"222 10203 333", "Flags=12 WindAt10mt=203 WindAt20mt=2 MaxWindSpeedTime=33"},
               });
}

TEST(SynopSection5, ContinuousWinds) {
  constexpr const char* six =
      "Flags=12 CountinuousWindRaw0=010001 CountinuousWindRaw1=010002 CountinuousWindRaw2=010003 "
      "CountinuousWindRaw3=010004 CountinuousWindRaw4=010005 CountinuousWindRaw5=010006";
  ExpectGroups("///// ///// 555 010001 010002 010003 010004 010005 010006 ",
               {
                   {"", six},
                   {"010007", six, "010007"},
                   {"010007 010008", six, "010007 010008"},
               });
}

TEST(SynopSections, InTheirOrder) {
  ExpectGroups(
      "///// ///// ",
      {
          {"10123 22254 10305 333 10203 444 55555 555 1/123",
           "Flags=10,11,12 Temperature=12.3 MaxTemperature=20.3 WindAt10mt=123 "
           "ShipDirection=5 ShipAvSpeed=4 WavePeriod=3 WaveHeight=2.5"},
          {"22254 444 555 1/123", "Flags=10,12 WindAt10mt=123 ShipDirection=5 ShipAvSpeed=4"},
          {"333 10203 222 10305 444 555 1/123", "Flags=11 MaxTemperature=20.3"},
      });
}

}  // namespace
}  // namespace zg
