#include "decode/synop/SynopTestSupport.h"

namespace zg {
namespace {

using test::ExpectGroups;

TEST(SynopSection2, ShipMovement) {
  ExpectGroups("///// ///// ", {
                                   {"22254", "Flags=10 ShipDirection=5 ShipAvSpeed=4"},
                                   {"222//", "Flags=10"},
                                   {"222", "Flags=10"},
                                   {"2225/", "Flags=10 ShipDirection=5"},
                                   {"222/4", "Flags=10 ShipAvSpeed=4"},
                                   {"222X4", "Flags=10 ShipAvSpeed=4", "222X4"},
                               });
}

TEST(SynopSection2, Groups) {
  ExpectGroups("///// ///// 222 ",
               {
                   // 0SsTwTwTw
                   {"00123", "Flags=10 SeaTemperature=12.3 SeaTemperType=0"},
                   {"01123", "Flags=10 SeaTemperature=-12.3 SeaTemperType=1"},
                   {"02123", "Flags=10 SeaTemperature=12.3 SeaTemperType=2"},
                   {"03123", "Flags=10 SeaTemperature=-12.3 SeaTemperType=3"},
                   {"04123", "Flags=10 SeaTemperature=12.3 SeaTemperType=4"},
                   {"05123", "Flags=10 SeaTemperature=-12.3 SeaTemperType=5"},
                   {"07123", "Flags=10 SeaTemperature=-12.3 SeaTemperType=7"},
                   {"09123", "Flags=10 SeaTemperature=12.3 SeaTemperType=9"},
                   {"0/123", "Flags=10 SeaTemperature=12.3"},
                   {"0012/", "Flags=10 SeaTemperature=12 SeaTemperType=0"},
                   {"00///", "Flags=10 SeaTemperType=0"},
                   {"0////", "Flags=10"},
                   {"0A123", "Flags=10 SeaTemperature=12.3", "0A123"},
                   {"01000", "Flags=10 SeaTemperature=0 SeaTemperType=1"},
                   // A sign without a value turns the missing value.
                   {"01///", "Flags=10 SeaTemperature=-3.402823e+38 SeaTemperType=1"},
                   {"01/// 01///", "Flags=10 SeaTemperType=1"},
                   // 1PwaPwaHwaHwa and 2PwPwHwHw
                   {"10305", "Flags=10 WavePeriod=3 WaveHeight=2.5"},
                   {"1////", "Flags=10 WavePeriod=0 WaveHeight=0"},
                   {"20404", "Flags=10 WavePeriod=4 WaveHeight=2"},
                   {"10305 20404", "Flags=10 WavePeriod=4 WaveHeight=2"},
                   {"22212", "Flags=10 WavePeriod=22 WaveHeight=6"},
                   // 3dw1dw1dw2dw2
                   {"32315", "Flags=10 WaveDirPredom=23 WaveDirSecond=15"},
                   {"3//15", "Flags=10 WaveDirSecond=15"},
                   {"323//", "Flags=10 WaveDirPredom=23"},
                   {"3////", "Flags=10"},
                   // 4Pw1Pw1Hw1Hw1 and 5Pw2Pw2Hw2Hw2
                   {"40611", "Flags=10 WavePeriodPredom=6 WaveHeightPredom=5.5"},
                   {"4////", "Flags=10 WavePeriodPredom=0 WaveHeightPredom=0"},
                   {"50708", "Flags=10 WavePeriodSecond=7 WaveHeightSecond=4"},
                   {"5////", "Flags=10 WavePeriodSecond=0 WaveHeightSecond=0"},
                   // 6IsEsEsRs
                   {"61203", "Flags=10 ShipIceAccretion=1 ThicknessOfIce=20 RateIceAccretion=3"},
                   {"6////", "Flags=10"},
                   {"6/20/", "Flags=10 ThicknessOfIce=20"},
                   {"6X20X", "Flags=10 ThicknessOfIce=20", "6X20X 6X20X"},
                   // 70HwaHwaHwa
                   {"70125", "Flags=10 WaveHeight=2.5"},
                   {"10305 70112", "Flags=10 WavePeriod=3 WaveHeight=1.2"},
                   {"70112 10305", "Flags=10 WavePeriod=3 WaveHeight=2.5"},
                   // 8SwTbTbTb
                   {"80050", "Flags=10 WetTemperature=5 WetTemperType=0"},
                   {"81050", "Flags=10 WetTemperature=-5 WetTemperType=1"},
                   {"82050", "Flags=10 WetTemperature=5 WetTemperType=2"},
                   {"87050", "Flags=10 WetTemperature=-5 WetTemperType=7"},
                   {"8005/", "Flags=10 WetTemperature=5 WetTemperType=0"},
                   {"8/050", "Flags=10 WetTemperature=5"},
                   {"85///", "Flags=10 WetTemperature=-3.402823e+38 WetTemperType=5"},
                   // ICE
                   {"ICE 21345",
                    "Flags=10 SeaIceConcentration=2 SeaIceStage=1 SeaIceBearingEdge=4 "
                    "IceOfLandOrigin=3 IceSituation=5"},
                   {"ICE 2/3/4", "Flags=10 SeaIceConcentration=2 IceOfLandOrigin=3 IceSituation=4"},
                   {"ICE /////", "Flags=10"},
                   {"ICE", "Flags=10"},
                   {"ICE 2A3B4", "Flags=10 SeaIceConcentration=2 IceOfLandOrigin=3 IceSituation=4",
                    "2A3B4 2A3B4"},
                   {"ICE 10305 20404",
                    "Flags=10 WavePeriod=4 WaveHeight=2 SeaIceConcentration=1 SeaIceStage=0 "
                    "SeaIceBearingEdge=0 IceOfLandOrigin=3 IceSituation=5"},
                   {"ICING IN 10305", "Flags=10 WavePeriod=3 WaveHeight=2.5"},
                   // Passed over.
                   {"9//// RMK /0123", "Flags=10"},
               });
}

TEST(SynopSection2, Markers) {
  ExpectGroups(
      "///// ///// 222 ",
      {
          {"10305 333 10203", "Flags=10,11 MaxTemperature=20.3 WavePeriod=3 WaveHeight=2.5"},
          {"33312 10203", "Flags=10,11 MaxTemperature=20.3"},
          {"444 10305", "Flags=10"},
          {"44412 10305", "Flags=10"},
          {"555 1/123", "Flags=10,12 WindAt10mt=123"},
          {"55512 1/123", "Flags=10,12 WindAt10mt=123"},
          // Out of order: nothing behind it is read.
          {"222 10305", "Flags=10"},
          {"22212", "Flags=10 WavePeriod=22 WaveHeight=6"},
      });
}

}  // namespace
}  // namespace zg
