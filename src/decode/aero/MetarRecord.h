// The two records of a METAR, SPECI or TAF: MetarRawData, which the decoder fills with numbers, and
// MetarData, the texts made from it that a store keeps. Code forms FM 15, FM 16 and FM 51.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "decode/MissingValues.h"
#include "decode/StationTexts.h"
#include "stations/StationBlock.h"

namespace zg {

// Bit positions of FilterFlags in the records of METAR, SPECI and TAF.
namespace MetarFlag {
enum : std::uint8_t {
  NorthWest,  // quadrant 7
  NorthEast,  // quadrant 1
  SouthWest,  // quadrant 5
  SouthEast,  // quadrant 3
  Speci,
  Metar,
  Taf,
  AO1,
  AO2,
  Auto,
  Cavok,
  WindKt,
  WindKmh,
  WindMps,
  VisibilityMiles,
  VisibilityMetres,
  Skc,
  Clr,
  Cor,
  NoSignificantChange,  // NOSIG, NSW
  WindVariable,
  Amd,
  WindShear,  // WS without values
  Nsc,
  RvrFeet,
  RvrAbove,
  RvrBelow,
  SeaPressure,  // SLP present
};
}  // namespace MetarFlag

// What a section is: the report itself, its remarks, or a change group.
namespace SectionKind {
enum : std::uint8_t { Report, Remarks, Tempo, Becmg, From, Prob30, Prob40, Inter };
}

inline constexpr std::size_t MaxSections = 15;
inline constexpr std::size_t MetarCloudLayers = 3;
inline constexpr std::size_t WeatherSlots = 10;
inline constexpr std::size_t ShownWeather = 3;  // the slots that are made into texts

struct MetarRawSection {
  std::uint8_t SectionType = SectionKind::Report;
  std::int32_t SectionFlags = 0;  // bit 0 TEMPO inside PROB, bit 1 INTER inside PROB
  std::uint8_t FromHour = MissingByte;
  std::uint8_t FromMinute = MissingByte;
  std::uint8_t ToHour = MissingByte;
  std::uint8_t ToMinute = MissingByte;
  std::int16_t AltimeterPressure = MissingShort;  // hPa; from 1501 upward inches times 100
  std::int16_t SeaPressureLevel = MissingShort;   // tenths of hPa less the hundreds, or a QNH
  std::int32_t OrizVisibility = MissingLong;      // metres, or miles times 1000
  std::string_view VisibilityDir = Unk;
  std::uint8_t WindDir = MissingByte;  // tens of degrees
  std::uint8_t WindSpeed = MissingByte;
  std::string_view WindDirRange = Unk;  // "350-040"
  std::uint8_t Gust = MissingByte;
  std::array<std::uint8_t, MetarCloudLayers> CloudCover = {MissingByte, MissingByte, MissingByte};
  std::array<std::uint8_t, MetarCloudLayers> CloudType = {MissingByte, MissingByte, MissingByte};
  std::array<std::int32_t, MetarCloudLayers> CloudHeigh = {MissingLong, MissingLong, MissingLong};
  std::array<std::uint32_t, WeatherSlots> Weather = {};  // bit sets over WeatherCodes
};

// The working record: overwritten by each message. Its views are valid while the message is.
struct MetarRawData {
  std::int16_t Accepted = 0;
  std::string_view RawText;  // the message with its "="
  StationBlock Station;
  std::string ObservationTime;  // this and the next two outlive a reset: a report without the
  std::string ValidPeriod;      // word shows what the report before it had
  std::string BulletinTime;
  std::int32_t FilterFlags = 0;
  std::array<MetarRawSection, MaxSections> Section;
  std::int16_t SectionIndex = 0;  // last section in use
  std::array<std::uint8_t, 2> ForecastTemperature = {MissingByte, MissingByte};  // plus 100
  std::array<std::uint8_t, 2> ForecastTemperatureHour = {MissingByte, MissingByte};
  float Temperature = MissingFloat;  // degrees Celsius
  float Dewpoint = MissingFloat;
  std::string_view RVRRunway = Unk;
  std::int16_t RVRVisibility = MissingShort;  // metres, or feet with the flag RvrFeet
  std::int16_t RVRVisibilitymax = MissingShort;
  std::int16_t VerticalVisibility = MissingShort;  // hundreds of feet
  std::uint8_t WindShearLevel = MissingByte;       // hundreds of feet
  std::int16_t WindShearDir = MissingShort;        // degrees
  std::uint8_t WindShearSpeed = MissingByte;       // knots
  std::string OtherRemarks;                        // remark words that nothing has read
  std::string WindRemarks;                         // "After ..." and "Wind ..." of a forecast
  float MaxTemperature6h = MissingFloat;
  float MinTemperature6h = MissingFloat;
  float MaxTemperature24h = MissingFloat;
  float MinTemperature24h = MissingFloat;
  std::int16_t PrecipHour = MissingShort;  // hundredths of an inch, as the next three
  std::int16_t Precip3h = MissingShort;
  std::int16_t Precip6h = MissingShort;
  std::int16_t Precip24h = MissingShort;
  std::int16_t SnowDepth = MissingShort;  // inches
  std::uint8_t PressTendency = MissingByte;
  float PressTendencyVal = MissingFloat;  // hPa
  std::uint8_t LowCloudType = MissingByte;
  std::uint8_t MiddleCloudType = MissingByte;
  std::uint8_t HighCloudType = MissingByte;
  std::int16_t Sunshine = MissingShort;  // minutes
  std::int16_t Water = MissingShort;
};

// Sets the record to the missing values. RawText, ObservationTime, ValidPeriod and BulletinTime
// stay as the message before left them.
void ResetMetarRecord(MetarRawData& record);

// One section of a stored record, all in texts of the units and language of the run.
struct MetarSection {
  std::uint8_t SectionType = SectionKind::Report;
  std::string_view SectionName;
  std::string_view FromTime;
  std::string_view ToTime;
  std::string_view AltimeterPressure;
  std::string_view SeaPressureLevel;
  std::string_view OrizVisibility;
  std::string_view VisibilityDir;
  std::string_view WindDir;
  std::string_view WindSpeed;
  std::string_view WindDirRange;
  std::string_view Gust;
  std::array<std::string_view, MetarCloudLayers> CloudCover;
  std::array<std::string_view, MetarCloudLayers> CloudCoverShort;
  std::array<std::string_view, MetarCloudLayers> CloudType;
  std::array<std::string_view, MetarCloudLayers> CloudTypeShort;
  std::array<std::string_view, MetarCloudLayers> CloudHeigh;
  std::int16_t CloudLayers = 0;
  std::array<std::string_view, ShownWeather> Weather;  // slots 4 to 10 are never shown
  std::int16_t WeatherCount = 0;
};

// The stored record. Empty texts stand for what was not reported.
struct MetarData {
  std::string_view RawText;
  StationTexts Station;
  std::string_view ObservationTime;
  std::string_view ValidPeriod;
  std::string_view BulletinTime;
  std::int32_t FilterFlags = 0;
  std::span<const MetarSection> Section;  // the sections in use; the first is the report
  std::array<std::string_view, 2> ForecastTemperature;
  std::array<std::string_view, 2> ForecastTemperatureTime;
  std::string_view Temperature;
  std::string_view Dewpoint;
  std::string_view RVRRunway;
  std::string_view RVRVisibility;
  std::string_view RVRVisibilitymax;
  std::string_view VerticalVisibility;
  std::string_view VerticalVisibilityCopy;
  std::string_view WindShearLevel;
  std::string_view WindShearDir;
  std::string_view WindShearSpeed;
  std::string_view OtherRemarks;
  std::string_view WindRemarks;
  std::string_view MaxTemperature6h;
  std::string_view MinTemperature6h;
  std::string_view MaxTemperature24h;
  std::string_view MinTemperature24h;
  std::string_view Sunshine;
  std::string_view PrecipHour;
  std::string_view Precip3h;
  std::string_view Precip6h;
  std::string_view Precip24h;
  std::string_view Water;
  std::string_view SnowDepth;
  std::string_view PressTendency;
  std::string_view PressTendencyVal;
  std::string_view LowCloudType;
  std::string_view MiddleCloudType;
  std::string_view HighCloudType;
  bool IsAO1 = false;
  bool IsAO2 = false;
  bool IsCOR = false;
  bool IsAMD = false;
  bool IsManual = true;

  std::int16_t SectionCount() const noexcept { return static_cast<std::int16_t>(Section.size()); }
};

}  // namespace zg
