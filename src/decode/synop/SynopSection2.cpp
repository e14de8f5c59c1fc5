// Section 2 of FM 12 and FM 13: sea, waves and ice.
#include <array>

#include "decode/synop/SynopWalk.h"

namespace zg {
namespace {

// The kinds of measurement Ss and Sw (WMO code tables 3850 and 3855) whose temperature is negative.
bool IsNegativeKind(std::string_view figure) noexcept {
  return figure == "1" || figure == "3" || figure == "5" || figure == "7";
}

// 0SsTwTwTw and 8SwTbTbTb. A kind that says negative turns the field's sign even where no value
// stands, so that a missing value becomes its negative and shows as a number.
void ReadTemperature(SynopWalk& walk, float& field, std::uint8_t& kind) {
  if (!walk.AreSolidi(3, 3)) {
    const double value = Value(walk.Part(3, 3));
    field = static_cast<float>(walk.IsSolidus(5) ? value : 0.1 * value);
  }
  walk.SetFigure(kind, 2);
  if (IsNegativeKind(walk.Part(2, 1))) field = Signed(static_cast<double>(field), true);
}

void ReadSeaTemperature(SynopWalk& walk) {
  ReadTemperature(walk, walk.Raw.SeaTemperature, walk.Raw.SeaTemperType);
}

void ReadWetTemperature(SynopWalk& walk) {
  ReadTemperature(walk, walk.Raw.WetTemperature, walk.Raw.WetTemperType);
}

// Period in seconds and height in half metres. Solidi count as 0.
template <std::uint8_t SynopRawData::*Period, float SynopRawData::*Height>
void ReadWaves(SynopWalk& walk) {
  walk.SetLenient(walk.Raw.*Period, 2, 2);
  walk.Raw.*Height = static_cast<float>(0.5 * Value(walk.Part(4, 2)));
}

void ReadWaveDirections(SynopWalk& walk) {
  walk.SetReported(walk.Raw.WaveDirPredom, 2, 2);
  walk.SetReported(walk.Raw.WaveDirSecond, 4, 2);
}

void ReadIceAccretion(SynopWalk& walk) {
  walk.SetFigure(walk.Raw.ShipIceAccretion, 2);
  walk.SetReported(walk.Raw.ThicknessOfIce, 3, 2);
  walk.SetFigure(walk.Raw.RateIceAccretion, 5);
}

// 70HwaHwaHwa: tenths of a metre, of which the two last figures count.
void ReadMeasuredWaves(SynopWalk& walk) {
  walk.Raw.WaveHeight = static_cast<float>(0.1 * Value(walk.Part(4, 2)));
}

// ICE and the word ciSibiDizi behind it.
void ReadSeaIce(SynopWalk& walk) {
  if (walk.Word() != "ICE") return;
  ++walk.WordIndex;
  if (walk.AtEnd()) return;
  walk.SetFigure(walk.Raw.SeaIceConcentration, 1);
  walk.SetFigure(walk.Raw.SeaIceStage, 2);
  walk.SetFigure(walk.Raw.IceOfLandOrigin, 3);
  walk.SetFigure(walk.Raw.SeaIceBearingEdge, 4);
  walk.SetFigure(walk.Raw.IceSituation, 5);
}

constexpr std::array<SynopGroup, 10> Groups = {{
    {'0', "Sea temperature", "0SsTwTwTw", ReadSeaTemperature},
    {'1', "Waves, measured", "1PwaPwaHwaHwa",
     ReadWaves<&SynopRawData::WavePeriod, &SynopRawData::WaveHeight>},
    {'2', "Waves, estimated", "2PwPwHwHw",
     ReadWaves<&SynopRawData::WavePeriod, &SynopRawData::WaveHeight>},
    {'3', "Directions of swell", "3dw1dw1dw2dw2", ReadWaveDirections},
    {'4', "First swell", "4Pw1Pw1Hw1Hw1",
     ReadWaves<&SynopRawData::WavePeriodPredom, &SynopRawData::WaveHeightPredom>},
    {'5', "Second swell", "5Pw2Pw2Hw2Hw2",
     ReadWaves<&SynopRawData::WavePeriodSecond, &SynopRawData::WaveHeightSecond>},
    {'6', "Ice accretion", "6IsEsEsRs", ReadIceAccretion},
    {'7', "Height of waves in tenths", "70HwaHwaHwa", ReadMeasuredWaves},
    {'8', "Wet-bulb temperature", "8swTbTbTb", ReadWetTemperature},
    {'I', "Sea ice", "ICE ciSibiDizi", ReadSeaIce},
}};

constexpr SynopSection Section("345", "2345", Groups);

}  // namespace

const SynopSection& Section2() noexcept { return Section; }

void ReadShipMovement(SynopWalk& walk) {
  if (walk.Word().size() != 5) return;
  walk.SetFigure(walk.Raw.ShipDirection, 4);
  walk.SetFigure(walk.Raw.ShipAvSpeed, 5);
}

}  // namespace zg
