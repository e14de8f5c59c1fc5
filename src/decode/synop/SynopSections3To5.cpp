// Sections 3 to 5 of FM 12 and FM 13: climatological groups, section 4 that is passed over, and the
// wind report that sea messages carry in section 5.
#include <array>

#include "decode/synop/SynopWalk.h"

namespace zg {
namespace {

constexpr double Tenth = 0.1;

// Four figures kept as the text of a number.
template <std::string SynopRawData::*Field>
void ReadRegional(SynopWalk& walk) {
  if (!walk.AreSolidi(2, 4)) walk.Raw.*Field = PlainDecimal(Value(walk.Part(2, 4)));
}

// 1SnTxTxTx: the first of a message holds. A solidus only ends the number: 1012/ is 1.2 degrees.
void ReadMaximum(SynopWalk& walk) {
  if (!IsMissing(walk.Raw.MaxTemperature) || walk.AreSolidi(3, 3)) return;
  walk.Raw.MaxTemperature = Signed(Tenth * Value(walk.Part(3, 3)), walk.Is(2, '1'));
}

// 2SnTnTnTn: the last of a message holds. Solidi leave whole degrees: 2012/ is 12 degrees.
void ReadMinimum(SynopWalk& walk) {
  if (walk.AreSolidi(3, 3)) return;
  double value = Tenth * Value(walk.Part(3, 3));
  if (walk.AreSolidi(4, 2)) {
    value = Value(walk.Part(3, 1));
  } else if (walk.IsSolidus(5)) {
    value = Value(walk.Part(3, 2));
  }
  walk.Raw.MinTemperature = Signed(value, walk.Is(2, '1'));
}

void ReadSnow(SynopWalk& walk) {
  walk.SetFigure(walk.Raw.SnowState, 2);
  walk.SetReported(walk.Raw.SnowDepth, 3, 3);
}

void ReadPrecipitation(SynopWalk& walk) {
  constexpr std::uint8_t dayWithoutFigure = 10;  // the code that reads 24 hours
  walk.SetReported(walk.Raw.PrecipitAmount2, 2, 3);
  if (walk.IsSolidus(5)) {
    walk.Raw.PrecipitDuration2 = dayWithoutFigure;
  } else {
    walk.SetStrict(walk.Raw.PrecipitDuration2, 5, 1);
  }
}

void ReadDayPrecipitation(SynopWalk& walk) {
  const std::string_view figures = walk.Part(2, 4);
  if (figures != "////" && figures != "9999") {
    walk.SetLenient(walk.Raw.PastPrecipitAmount, 2, 3);
  }
}

// 8NsChshs. A fifth layer has no place: one wrong item, unless all its parts are solidi.
void ReadCloudLayer(SynopWalk& walk) {
  const std::size_t layer = walk.CloudLayer++;
  if (layer >= SynopCloudLayers) {
    const bool given = !walk.IsSolidus(2) || !walk.IsSolidus(3) || !walk.AreSolidi(4, 2);
    if (given) walk.WrongItem();
    return;
  }
  walk.SetFigure(walk.Raw.CloudCovLayer[layer], 2);
  walk.SetFigure(walk.Raw.TypeOfCloud[layer], 3);
  if (walk.AreSolidi(4, 2)) return;
  if (walk.IsSolidus(5)) {
    walk.SetStrict(walk.Raw.HeighOfCloud[layer], 4, 1);
  } else {
    walk.SetLenient(walk.Raw.HeighOfCloud[layer], 4, 2);
  }
}

void ReadSupplement(SynopWalk& walk) { walk.SetReported(walk.Raw.SupplInfo, 4, 2); }

constexpr std::array<SynopGroup, 10> Groups3 = {{
    {'0', "Regional group", "0....", ReadRegional<&SynopRawData::RegionalData1>},
    {'1', "Maximum temperature", "1snTxTxTx", ReadMaximum},
    {'2', "Minimum temperature", "2snTnTnTn", ReadMinimum},
    {'3', "Regional group", "3Ejjj", ReadRegional<&SynopRawData::RegionalData2>},
    {'4', "Snow on the ground", "4E'sss", ReadSnow},
    {'5', "Other information", "5j1j2j3j4", ReadRegional<&SynopRawData::OtherInfo>},
    {'6', "Precipitation", "6RRRtR", ReadPrecipitation},
    {'7', "Precipitation of 24 hours", "7R24R24R24R24", ReadDayPrecipitation},
    {'8', "Cloud layer", "8NsChshs", ReadCloudLayer},
    {'9', "Supplementary information", "9SpSpspsp", ReadSupplement},
}};

constexpr SynopSection Third("45", "2345", Groups3);
constexpr SynopSection Fourth("5", "2345", {});

// dddfff, a wind of the last ten-minute periods.
void ReadContinuousWind(SynopWalk& walk) {
  const std::size_t index = walk.ContinuousWind++;
  if (index >= ContinuousWinds) {
    walk.WrongItem();
    return;
  }
  walk.Raw.CountinuousWindRaw[index] = walk.Scratch.Text(walk.Word());
}

template <std::int16_t SynopRawData::*Field>
void ReadWindAt(SynopWalk& walk) {
  if (!walk.AreSolidi(3, 3)) walk.SetStrict(walk.Raw.*Field, 3, 3);
}

template <std::string_view SynopRawData::*Field>
void ReadClock(SynopWalk& walk) {
  if (!walk.AreSolidi(2, 4)) walk.Raw.*Field = walk.Scratch.Text(walk.Part(2, 4));
}

void ReadMaximumWind(SynopWalk& walk) {
  if (!walk.AreSolidi(2, 2)) walk.SetStrict(walk.Raw.MaxWindDir, 2, 2);
  if (!walk.AreSolidi(4, 2)) walk.SetStrict(walk.Raw.MaxWindSpeed, 4, 2);
}

constexpr std::array<SynopGroup, 5> Groups5 = {{
    {'1', "Wind at 10 m", "11fff", ReadWindAt<&SynopRawData::WindAt10mt>},
    {'2', "Wind at 20 m", "22fff", ReadWindAt<&SynopRawData::WindAt20mt>},
    {'3', "Time of the maximum wind", "3GGgg", ReadClock<&SynopRawData::MaxWindSpeedTime>},
    {'4', "Maximum wind", "4ddff", ReadMaximumWind},
    {'6', "Time of the continuous winds", "6GGgg", ReadClock<&SynopRawData::ContinueWindTime>},
}};

constexpr SynopSection Fifth("", "", Groups5);

}  // namespace

const SynopSection& Section3() noexcept { return Third; }
const SynopSection& Section4() noexcept { return Fourth; }

void ReadSection5(SynopWalk& walk) {
  for (; !walk.AtEnd(); ++walk.WordIndex) {
    if (walk.Word().size() == 6) {
      ReadContinuousWind(walk);
      continue;
    }
    Fifth.ReadGroup(walk);
  }
}

}  // namespace zg
