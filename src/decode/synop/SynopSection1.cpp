// Section 1 of FM 12 and FM 13: the groups that every report has.
#include <array>

#include "decode/synop/SynopWalk.h"

namespace zg {
namespace {

constexpr double Tenth = 0.1;

// 00fff, a wind speed of three figures where ff could not hold it.
void ReadHighWind(SynopWalk& walk) {
  if (walk.AtEnd() || !IsMissing(walk.Raw.WindSpeed)) return;
  if (walk.Is(2, '0') && !walk.AreSolidi(3, 3)) walk.SetStrict(walk.Raw.WindSpeed, 3, 3);
}

// The amount of a temperature TTT: tenths of a degree, or whole degrees if the tenths are a
// solidus.
double Degrees(const SynopWalk& walk) noexcept {
  return walk.IsSolidus(5) ? Value(walk.Part(3, 2)) : Tenth * Value(walk.Part(3, 3));
}

void ReadTemperature(SynopWalk& walk) {
  if (walk.AreSolidi(3, 3)) return;
  walk.Raw.Temperature = Signed(Degrees(walk), walk.Is(2, '1'));
}

// 2SnTdTdTd, or with 9 as sign a relative humidity.
void ReadDewPoint(SynopWalk& walk) {
  if (walk.AreSolidi(3, 3)) return;
  const bool negative = walk.Is(2, '1');
  if (negative || walk.Is(2, '0')) {
    walk.Raw.DewPoint = Signed(Degrees(walk), negative);
  } else if (walk.Is(2, '9')) {
    walk.Raw.Humidity = static_cast<float>(Value(walk.Part(3, 3)));
  }
}

// Tenths of hPa without the thousands. With a solidus for the tenths the figures count as tenths
// all the same.
void ReadPressure(const SynopWalk& walk, float& field) {
  if (!walk.IsSolidus(5)) {
    const double pressure = Tenth * Value(walk.Part(2, 4));
    field = static_cast<float>(pressure < 500 ? pressure + 1000 : pressure);
  } else if (!walk.AreSolidi(3, 3)) {
    field = static_cast<float>(Tenth * Value(walk.Part(2, 3)));
  }
}

void ReadStationPressure(SynopWalk& walk) { ReadPressure(walk, walk.Raw.StatPressure); }

// 4PPPP, or 4a3hhh with the height of a standard level (WMO code table 0264).
void ReadSeaLevelPressure(SynopWalk& walk) {
  struct Level {
    char figure;
    std::int16_t pressure;
  };
  static constexpr std::array<Level, 5> Levels = {
      {{'1', 1000}, {'2', 925}, {'5', 500}, {'7', 700}, {'8', 850}}};
  for (const Level& level : Levels) {
    if (!walk.Is(2, level.figure)) continue;
    if (walk.AreSolidi(3, 3)) return;
    walk.SetLenient(walk.Raw.GeopotHeight, 3, 3);
    if (walk.Raw.GeopotHeight < 500) {
      walk.Raw.GeopotHeight = static_cast<std::int16_t>(walk.Raw.GeopotHeight + 1000);
    }
    walk.Raw.GeopotPressure = level.pressure;
    return;
  }
  ReadPressure(walk, walk.Raw.SeaLevPressure);
}

// 5appp: from 5 on the characteristic is of a fall (WMO code table 0200).
void ReadTendency(SynopWalk& walk) {
  walk.SetFigure(walk.Raw.PressTendency, 2);
  if (walk.AreSolidi(3, 3)) return;
  walk.Raw.PressTendencyVal = Signed(Tenth * Value(walk.Part(3, 3)), walk.Raw.PressTendency >= 5);
}

void ReadPrecipitation(SynopWalk& walk) {
  walk.SetReported(walk.Raw.PrecipitAmount1, 2, 3);
  walk.SetFigure(walk.Raw.PrecipitDuration1, 5);
}

void ReadWeather(SynopWalk& walk) {
  walk.SetReported(walk.Raw.PresentWeather, 2, 2);
  walk.SetFigure(walk.Raw.PastWeather1, 4);
  walk.SetFigure(walk.Raw.PastWeather2, 5);
}

void ReadClouds(SynopWalk& walk) {
  walk.SetFigure(walk.Raw.CloudAmount, 2);
  walk.SetFigure(walk.Raw.LowCloudType, 3);
  walk.SetFigure(walk.Raw.MiddleCloudType, 4);
  walk.SetFigure(walk.Raw.HighCloudType, 5);
}

// 9GGgg. Beyond the clock the first figure is taken as a repeated 9.
void ReadTime(SynopWalk& walk) {
  if (walk.AreSolidi(2, 4)) return;
  const double time = Value(walk.Part(2, 4));
  walk.Raw.TimeOfObservation = PlainDecimal(time > 2359 ? time - 9000 : time);
}

constexpr std::array<SynopGroup, 10> Groups = {{
    {'0', "Wind speed of three figures", "00fff", ReadHighWind},
    {'1', "Air temperature", "1snTTT", ReadTemperature},
    {'2', "Dew point or humidity", "2snTdTdTd, 29UUU", ReadDewPoint},
    {'3', "Pressure at station level", "3P0P0P0P0", ReadStationPressure},
    {'4', "Pressure at sea level, or height of a level", "4PPPP, 4a3hhh", ReadSeaLevelPressure},
    {'5', "Pressure tendency", "5appp", ReadTendency},
    {'6', "Precipitation", "6RRRtR", ReadPrecipitation},
    {'7', "Present and past weather", "7wwW1W2", ReadWeather},
    {'8', "Clouds", "8NhCLCMCH", ReadClouds},
    {'9', "Time of observation", "9GGgg", ReadTime},
}};

constexpr SynopSection Section("2345", "2345", Groups);

constexpr bool IsMarker(std::string_view word, std::string_view figures) noexcept {
  return word[0] == word[1] && word[1] == word[2] && Holds(figures, word[0]);
}

}  // namespace

const SynopSection& Section1() noexcept { return Section; }

void ReadVisibilityGroup(SynopWalk& walk) {
  walk.SetFigure(walk.Raw.PrecipInd, 1);
  walk.SetFigure(walk.Raw.StationType, 2);
  walk.SetFigure(walk.Raw.LowestCloud, 3);
  walk.SetReported(walk.Raw.Visibility, 4, 2);
}

void ReadWindGroup(SynopWalk& walk) {
  walk.SetFigure(walk.Raw.CloudCover, 1);
  walk.SetReported(walk.Raw.WindDirection, 2, 2);
  walk.SetReported(walk.Raw.WindSpeed, 4, 2);
}

void ReadSection(SynopWalk& walk, const SynopSection& section) {
  for (; !walk.AtEnd(); ++walk.WordIndex) {
    const std::string_view word = walk.Word();
    if (word.size() == 5 && IsMarker(word, section.LongMarkers)) return;
    if (word.size() == 3 && IsMarker(word, section.ShortMarkers)) return;
    section.ReadGroup(walk);
  }
}

}  // namespace zg
