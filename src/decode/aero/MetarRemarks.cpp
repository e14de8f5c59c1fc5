// The groups of the remarks section that North American reports carry (United States federal
// meteorological handbook No. 1, chapter 12: additive and automated maintenance data).
#include "decode/aero/MetarWalk.h"
#include "shell/GenericUtility.h"

namespace zg {
namespace {

// Behind its first character a coded group has figures and solidi only; 1/2V5 and 500FT are words
// of the language.
bool IsCodedGroup(std::string_view word, std::size_t length) noexcept {
  if (word.size() != length) return false;
  for (char c : word.substr(1)) {
    if (!IsDigit(c) && c != '/') return false;
  }
  return true;
}

// A signed temperature snTTT in tenths of a degree: negative unless sn is 0.
bool SetTemperature(float& field, std::string_view snTTT) noexcept {
  const std::string_view tenths = Mid(snTTT, 2, 3);
  if (IsNotReported(tenths)) return true;
  const double value = Value(tenths) / 10;
  field = static_cast<float>(snTTT[0] == '0' || value == 0 ? value : -value);
  return true;
}

template <unsigned Flag>
Verdict TryStationKind(MetarWalk& walk, std::string_view word) {
  constexpr char digit = Flag == MetarFlag::AO1 ? '1' : '2';
  if (word.size() != 3 || (word[1] != 'O' && word[1] != '0') || word[2] != digit) {
    return Verdict::Declined;
  }
  SetFlag(walk.Raw.FilterFlags, Flag);
  return Verdict::Taken;
}

Verdict TrySeaPressure(MetarWalk& walk, std::string_view word) {
  if (!word.starts_with("SLP")) return Verdict::Declined;
  SetFlag(walk.Raw.FilterFlags, MetarFlag::SeaPressure);
  if (word.size() == 3) return Verdict::Taken;
  return TakenIf(SetLenient(walk.Section().SeaPressureLevel, Right(word, 3)));
}

template <float MetarRawData::*Field>
Verdict TryTemperature6h(MetarWalk& walk, std::string_view word) {
  if (!IsCodedGroup(word, 5)) return Verdict::Declined;
  return TakenIf(SetTemperature(walk.Raw.*Field, word.substr(1)));
}

// A five-figure group whose last three figures are the value.
template <std::int16_t MetarRawData::*Field>
Verdict TryLastThree(MetarWalk& walk, std::string_view word) {
  if (!IsCodedGroup(word, 5)) return Verdict::Declined;
  return TakenIf(SetStrict(walk.Raw.*Field, Mid(word, 3, 3)));
}

template <float MetarRawData::*First, float MetarRawData::*Second>
Verdict TryTwoTemperatures(MetarWalk& walk, std::string_view word) {
  if (!IsCodedGroup(word, 9)) return Verdict::Declined;
  return TakenIf(SetTemperature(walk.Raw.*First, Mid(word, 2, 4)) &&
                 SetTemperature(walk.Raw.*Second, Mid(word, 6, 4)));
}

Verdict TryTendency(MetarWalk& walk, std::string_view word) {
  if (!IsCodedGroup(word, 5)) return Verdict::Declined;
  if (!SetStrict(walk.Raw.PressTendency, Mid(word, 2, 1))) return Verdict::Wrong;
  const std::string_view tenths = Mid(word, 3, 3);
  if (IsNotReported(tenths)) return Verdict::Taken;
  const std::optional<double> value = StrictNumber(tenths);
  if (value) walk.Raw.PressTendencyVal = static_cast<float>(*value / 10);
  return TakenIf(value.has_value());
}

// Here a solidus is no missing value: clouds that could not be seen are a fault of the group.
Verdict TryCloudTypes(MetarWalk& walk, std::string_view word) {
  if (!IsCodedGroup(word, 5)) return Verdict::Declined;
  std::uint8_t* const fields[] = {&walk.Raw.LowCloudType, &walk.Raw.MiddleCloudType,
                                  &walk.Raw.HighCloudType};
  for (std::size_t i = 0; i < 3; ++i) {
    const auto code = StrictInteger<std::uint8_t>(Mid(word, 3 + i, 1));
    if (!code) return Verdict::Wrong;
    *fields[i] = *code;
  }
  return Verdict::Taken;
}

Verdict TryWater(MetarWalk& walk, std::string_view word) {
  if (!IsCodedGroup(word, word.size()) || word.size() == 5) return Verdict::Declined;
  return TakenIf(SetStrict(walk.Raw.Water, Right(word, 3)));
}

// Any word that begins with P is taken, PK of a peak wind too.
Verdict TryPrecipHour(MetarWalk& walk, std::string_view word) {
  return TakenIf(SetLenient(walk.Raw.PrecipHour, word.substr(1)));
}

constexpr std::array<Recogniser, 16> Table = {{
    {"Automatic station without precipitation discriminator", "AO1", "A", Exactly(3),
     WordFeature::None, false, TryStationKind<MetarFlag::AO1>},
    {"Automatic station with precipitation discriminator", "AO2", "A", Exactly(3),
     WordFeature::None, false, TryStationKind<MetarFlag::AO2>},
    {"Sea level pressure", "SLPppp", "S", AtLeast(3), WordFeature::None, false, TrySeaPressure},
    {"Maximum temperature of 6 hours", "1snTxTxTx", "1", Exactly(5), WordFeature::None, false,
     TryTemperature6h<&MetarRawData::MaxTemperature6h>},
    {"Minimum temperature of 6 hours", "2snTnTnTn", "2", Exactly(5), WordFeature::None, false,
     TryTemperature6h<&MetarRawData::MinTemperature6h>},
    {"Precipitation of 3 hours", "3RRRR", "3", Exactly(5), WordFeature::None, false,
     TryLastThree<&MetarRawData::Precip3h>},
    {"Snow depth on ground", "4/sss", "4", Exactly(5), WordFeature::None, false,
     TryLastThree<&MetarRawData::SnowDepth>},
    {"Maximum and minimum temperature of 24 hours", "4snTxTxTxsnTnTnTn", "4", Exactly(9),
     WordFeature::None, false,
     TryTwoTemperatures<&MetarRawData::MaxTemperature24h, &MetarRawData::MinTemperature24h>},
    {"Pressure tendency of 3 hours", "5appp", "5", Exactly(5), WordFeature::None, false,
     TryTendency},
    {"Precipitation of 6 hours", "6RRRR", "6", Exactly(5), WordFeature::None, false,
     TryLastThree<&MetarRawData::Precip6h>},
    {"Precipitation of 24 hours", "7R24R24R24R24", "7", Exactly(5), WordFeature::None, false,
     TryLastThree<&MetarRawData::Precip24h>},
    {"Cloud types", "8/CLCMCH", "8", Exactly(5), WordFeature::None, false, TryCloudTypes},
    {"Duration of sunshine", "98mmm", "9", Exactly(5), WordFeature::None, false,
     TryLastThree<&MetarRawData::Sunshine>},
    {"Water equivalent of snow on ground", "933RRR", "9", AtLeast(1), WordFeature::None, false,
     TryWater},
    {"Precipitation of the last hour", "Prrrr", "P", AtLeast(1), WordFeature::None, false,
     TryPrecipHour},
    {"Temperature and dew point in tenths", "Tsn'T'T'T'sn'T'dT'dT'd", "T", Exactly(9),
     WordFeature::None, false,
     TryTwoTemperatures<&MetarRawData::Temperature, &MetarRawData::Dewpoint>},
}};

}  // namespace

std::span<const Recogniser> RemarkRecognisers() noexcept { return Table; }

}  // namespace zg
