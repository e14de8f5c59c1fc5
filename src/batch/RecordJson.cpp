#include "batch/RecordJson.h"

#include <array>
#include <concepts>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>

#include "batch/JsonWriter.h"
#include "decode/MissingValues.h"

namespace zg {
namespace {

// A field of a record and its key.
template <typename Record, typename T>
struct Field {
  std::string_view name;
  T Record::*member;
};
// An array whose elements have keys of their own: the name and a number.
template <typename Record, typename T>
struct Row {
  std::string_view name;
  T Record::*member;
};
// An array that is written longer than it is, with empty texts behind it.
template <typename Record, typename T>
struct Padded {
  std::string_view name;
  T Record::*member;
  std::size_t size;
};
// A number that a record computes.
template <typename Record>
struct Count {
  std::string_view name;
  std::int16_t (Record::*count)() const noexcept;
};

// clang 14 deduces the arguments of aggregates with these only.
template <typename Record, typename T>
Field(std::string_view, T Record::*) -> Field<Record, T>;
template <typename Record, typename T>
Row(std::string_view, T Record::*) -> Row<Record, T>;
template <typename Record, typename T>
Padded(std::string_view, T Record::*, std::size_t) -> Padded<Record, T>;
template <typename Record>
Count(std::string_view, std::int16_t (Record::*)() const noexcept) -> Count<Record>;

// The keys of each record in their order.
#define ZG_FIELD(Record, name) \
  Field { #name, &Record::name }

constexpr auto SynopRawFields = std::tuple{ZG_FIELD(SynopRawData, Accepted),
                                           ZG_FIELD(SynopRawData, Msg),
                                           Field{"StationBlock", &SynopRawData::Station},
                                           ZG_FIELD(SynopRawData, FilterFlags),
                                           ZG_FIELD(SynopRawData, TimeOfObservation),
                                           ZG_FIELD(SynopRawData, IssueTime),
                                           ZG_FIELD(SynopRawData, WindUnitInd),
                                           ZG_FIELD(SynopRawData, PrecipInd),
                                           ZG_FIELD(SynopRawData, StationType),
                                           ZG_FIELD(SynopRawData, LowestCloud),
                                           ZG_FIELD(SynopRawData, Visibility),
                                           ZG_FIELD(SynopRawData, CloudCover),
                                           ZG_FIELD(SynopRawData, WindDirection),
                                           ZG_FIELD(SynopRawData, WindSpeed),
                                           ZG_FIELD(SynopRawData, DewPoint),
                                           ZG_FIELD(SynopRawData, Humidity),
                                           ZG_FIELD(SynopRawData, Temperature),
                                           ZG_FIELD(SynopRawData, StatPressure),
                                           ZG_FIELD(SynopRawData, SeaLevPressure),
                                           ZG_FIELD(SynopRawData, GeopotHeight),
                                           ZG_FIELD(SynopRawData, GeopotPressure),
                                           ZG_FIELD(SynopRawData, PressTendency),
                                           ZG_FIELD(SynopRawData, PressTendencyVal),
                                           ZG_FIELD(SynopRawData, PrecipitAmount1),
                                           ZG_FIELD(SynopRawData, PrecipitDuration1),
                                           ZG_FIELD(SynopRawData, PresentWeather),
                                           ZG_FIELD(SynopRawData, PastWeather1),
                                           ZG_FIELD(SynopRawData, PastWeather2),
                                           ZG_FIELD(SynopRawData, CloudAmount),
                                           ZG_FIELD(SynopRawData, LowCloudType),
                                           ZG_FIELD(SynopRawData, MiddleCloudType),
                                           ZG_FIELD(SynopRawData, HighCloudType),
                                           ZG_FIELD(SynopRawData, MaxTemperature),
                                           ZG_FIELD(SynopRawData, MinTemperature),
                                           ZG_FIELD(SynopRawData, RegionalData1),
                                           ZG_FIELD(SynopRawData, RegionalData2),
                                           ZG_FIELD(SynopRawData, SnowState),
                                           ZG_FIELD(SynopRawData, SnowDepth),
                                           ZG_FIELD(SynopRawData, OtherInfo),
                                           ZG_FIELD(SynopRawData, PrecipitAmount2),
                                           ZG_FIELD(SynopRawData, PrecipitDuration2),
                                           ZG_FIELD(SynopRawData, PastPrecipitAmount),
                                           Row{"CloudCovLayer", &SynopRawData::CloudCovLayer},
                                           Row{"TypeOfCloud", &SynopRawData::TypeOfCloud},
                                           Row{"HeighOfCloud", &SynopRawData::HeighOfCloud},
                                           ZG_FIELD(SynopRawData, SupplInfo),
                                           ZG_FIELD(SynopRawData, CountinuousWindRaw),
                                           ZG_FIELD(SynopRawData, WindAt10mt),
                                           ZG_FIELD(SynopRawData, WindAt20mt),
                                           ZG_FIELD(SynopRawData, MaxWindSpeedTime),
                                           ZG_FIELD(SynopRawData, MaxWindSpeed),
                                           ZG_FIELD(SynopRawData, MaxWindDir),
                                           ZG_FIELD(SynopRawData, ContinueWindTime),
                                           ZG_FIELD(SynopRawData, ShipDirection),
                                           ZG_FIELD(SynopRawData, ShipAvSpeed),
                                           ZG_FIELD(SynopRawData, SeaTemperature),
                                           ZG_FIELD(SynopRawData, SeaTemperType),
                                           ZG_FIELD(SynopRawData, WavePeriod),
                                           ZG_FIELD(SynopRawData, WaveHeight),
                                           ZG_FIELD(SynopRawData, WavePeriodPredom),
                                           ZG_FIELD(SynopRawData, WaveHeightPredom),
                                           ZG_FIELD(SynopRawData, WaveDirPredom),
                                           ZG_FIELD(SynopRawData, WavePeriodSecond),
                                           ZG_FIELD(SynopRawData, WaveHeightSecond),
                                           ZG_FIELD(SynopRawData, WaveDirSecond),
                                           ZG_FIELD(SynopRawData, ShipIceAccretion),
                                           ZG_FIELD(SynopRawData, ThicknessOfIce),
                                           ZG_FIELD(SynopRawData, RateIceAccretion),
                                           ZG_FIELD(SynopRawData, WetTemperature),
                                           ZG_FIELD(SynopRawData, WetTemperType),
                                           ZG_FIELD(SynopRawData, SeaIceConcentration),
                                           ZG_FIELD(SynopRawData, SeaIceStage),
                                           ZG_FIELD(SynopRawData, SeaIceBearingEdge),
                                           ZG_FIELD(SynopRawData, IceOfLandOrigin),
                                           ZG_FIELD(SynopRawData, IceSituation)};

constexpr auto SynopFields = std::tuple{ZG_FIELD(SynopData, Msg),
                                        Field{"StationBlock", &SynopData::Station},
                                        ZG_FIELD(SynopData, FilterFlags),
                                        ZG_FIELD(SynopData, TimeOfObservation),
                                        ZG_FIELD(SynopData, IssueTime),
                                        ZG_FIELD(SynopData, PrecipInd),
                                        ZG_FIELD(SynopData, StationType),
                                        ZG_FIELD(SynopData, StationTypeCode),
                                        ZG_FIELD(SynopData, LowestCloud),
                                        ZG_FIELD(SynopData, LowestCloudCode),
                                        ZG_FIELD(SynopData, Visibility),
                                        ZG_FIELD(SynopData, VisibilityCode),
                                        ZG_FIELD(SynopData, CloudCover),
                                        ZG_FIELD(SynopData, CloudCoverCode),
                                        ZG_FIELD(SynopData, WindDirection),
                                        ZG_FIELD(SynopData, WindSpeed),
                                        ZG_FIELD(SynopData, DewPoint),
                                        ZG_FIELD(SynopData, Humidity),
                                        ZG_FIELD(SynopData, Temperature),
                                        ZG_FIELD(SynopData, StatPressure),
                                        ZG_FIELD(SynopData, SeaLevPressure),
                                        ZG_FIELD(SynopData, GeopotHeight),
                                        ZG_FIELD(SynopData, GeopotPressure),
                                        ZG_FIELD(SynopData, PressTendency),
                                        ZG_FIELD(SynopData, PressTendencyCode),
                                        ZG_FIELD(SynopData, PressTendencyVal),
                                        ZG_FIELD(SynopData, PrecipitAmount1),
                                        ZG_FIELD(SynopData, PrecipitAmount1Code),
                                        ZG_FIELD(SynopData, PrecipitDuration1),
                                        ZG_FIELD(SynopData, PrecipitDuration1Code),
                                        ZG_FIELD(SynopData, PresentWeather),
                                        ZG_FIELD(SynopData, PresentWeatherCode),
                                        ZG_FIELD(SynopData, WeatherSymb),
                                        ZG_FIELD(SynopData, PastWeather1),
                                        ZG_FIELD(SynopData, PastWeather1Code),
                                        ZG_FIELD(SynopData, PastWeather2),
                                        ZG_FIELD(SynopData, PastWeather2Code),
                                        ZG_FIELD(SynopData, CloudAmount),
                                        ZG_FIELD(SynopData, CloudAmountCode),
                                        ZG_FIELD(SynopData, LowCloudType),
                                        ZG_FIELD(SynopData, LowCloudTypeCode),
                                        ZG_FIELD(SynopData, MiddleCloudType),
                                        ZG_FIELD(SynopData, MiddleCloudTypeCode),
                                        ZG_FIELD(SynopData, HighCloudType),
                                        ZG_FIELD(SynopData, HighCloudTypeCode),
                                        ZG_FIELD(SynopData, MaxTemperature),
                                        ZG_FIELD(SynopData, MinTemperature),
                                        ZG_FIELD(SynopData, RegionalData1),
                                        ZG_FIELD(SynopData, RegionalData2),
                                        ZG_FIELD(SynopData, SnowState),
                                        ZG_FIELD(SynopData, SnowStateCode),
                                        ZG_FIELD(SynopData, SnowDepth),
                                        ZG_FIELD(SynopData, OtherInfo),
                                        ZG_FIELD(SynopData, PrecipitAmount2),
                                        ZG_FIELD(SynopData, PrecipitDuration2),
                                        ZG_FIELD(SynopData, PastPrecipitAmount),
                                        Row{"CloudCovLayer", &SynopData::CloudCovLayer},
                                        Row{"TypeOfCloud", &SynopData::TypeOfCloud},
                                        Row{"HeighOfCloud", &SynopData::HeighOfCloud},
                                        ZG_FIELD(SynopData, SupplInfo),
                                        ZG_FIELD(SynopData, CountinuousWindDir),
                                        ZG_FIELD(SynopData, CountinuousWindSpeed),
                                        ZG_FIELD(SynopData, WindAt10mt),
                                        ZG_FIELD(SynopData, WindAt20mt),
                                        ZG_FIELD(SynopData, MaxWindSpeedTime),
                                        ZG_FIELD(SynopData, MaxWindSpeed),
                                        ZG_FIELD(SynopData, MaxWindDir),
                                        ZG_FIELD(SynopData, ContinueWindTime),
                                        ZG_FIELD(SynopData, ShipDirection),
                                        ZG_FIELD(SynopData, ShipDirectionCode),
                                        ZG_FIELD(SynopData, ShipAvSpeed),
                                        ZG_FIELD(SynopData, ShipAvSpeedCode),
                                        ZG_FIELD(SynopData, SeaTemperature),
                                        ZG_FIELD(SynopData, SeaTemperType),
                                        ZG_FIELD(SynopData, SeaTemperTypeCode),
                                        ZG_FIELD(SynopData, WavePeriod),
                                        ZG_FIELD(SynopData, WaveHeight),
                                        ZG_FIELD(SynopData, WavePeriodPredom),
                                        ZG_FIELD(SynopData, WaveHeightPredom),
                                        ZG_FIELD(SynopData, WaveDirPredom),
                                        ZG_FIELD(SynopData, WavePeriodSecond),
                                        ZG_FIELD(SynopData, WaveHeightSecond),
                                        ZG_FIELD(SynopData, WaveDirSecond),
                                        ZG_FIELD(SynopData, ShipIceAccretion),
                                        ZG_FIELD(SynopData, ShipIceAccretionCode),
                                        ZG_FIELD(SynopData, ThicknessOfIce),
                                        ZG_FIELD(SynopData, RateIceAccretion),
                                        ZG_FIELD(SynopData, RateIceAccretionCode),
                                        ZG_FIELD(SynopData, WetTemperature),
                                        ZG_FIELD(SynopData, WetTemperType),
                                        ZG_FIELD(SynopData, WetTemperTypeCode),
                                        ZG_FIELD(SynopData, SeaIceConcentration),
                                        ZG_FIELD(SynopData, SeaIceConcentrationCode),
                                        ZG_FIELD(SynopData, SeaIceStage),
                                        ZG_FIELD(SynopData, SeaIceStageCode),
                                        ZG_FIELD(SynopData, SeaIceBearingEdge),
                                        ZG_FIELD(SynopData, SeaIceBearingEdgeCode),
                                        ZG_FIELD(SynopData, IceOfLandOrigin),
                                        ZG_FIELD(SynopData, IceOfLandOriginCode),
                                        ZG_FIELD(SynopData, IceSituation),
                                        ZG_FIELD(SynopData, IceSituationCode)};

constexpr auto MetarRawSectionFields = std::tuple{ZG_FIELD(MetarRawSection, SectionType),
                                                  ZG_FIELD(MetarRawSection, SectionFlags),
                                                  ZG_FIELD(MetarRawSection, FromHour),
                                                  ZG_FIELD(MetarRawSection, FromMinute),
                                                  ZG_FIELD(MetarRawSection, ToHour),
                                                  ZG_FIELD(MetarRawSection, ToMinute),
                                                  ZG_FIELD(MetarRawSection, AltimeterPressure),
                                                  ZG_FIELD(MetarRawSection, SeaPressureLevel),
                                                  ZG_FIELD(MetarRawSection, OrizVisibility),
                                                  ZG_FIELD(MetarRawSection, VisibilityDir),
                                                  ZG_FIELD(MetarRawSection, WindDir),
                                                  ZG_FIELD(MetarRawSection, WindSpeed),
                                                  ZG_FIELD(MetarRawSection, WindDirRange),
                                                  ZG_FIELD(MetarRawSection, Gust),
                                                  ZG_FIELD(MetarRawSection, CloudCover),
                                                  ZG_FIELD(MetarRawSection, CloudType),
                                                  ZG_FIELD(MetarRawSection, CloudHeigh),
                                                  ZG_FIELD(MetarRawSection, Weather)};

constexpr auto MetarRawFields = std::tuple{ZG_FIELD(MetarRawData, Accepted),
                                           ZG_FIELD(MetarRawData, RawText),
                                           Field{"StationBlock", &MetarRawData::Station},
                                           ZG_FIELD(MetarRawData, ObservationTime),
                                           ZG_FIELD(MetarRawData, ValidPeriod),
                                           ZG_FIELD(MetarRawData, BulletinTime),
                                           ZG_FIELD(MetarRawData, FilterFlags),
                                           ZG_FIELD(MetarRawData, Section),
                                           ZG_FIELD(MetarRawData, SectionIndex),
                                           ZG_FIELD(MetarRawData, ForecastTemperature),
                                           ZG_FIELD(MetarRawData, ForecastTemperatureHour),
                                           ZG_FIELD(MetarRawData, Temperature),
                                           ZG_FIELD(MetarRawData, Dewpoint),
                                           ZG_FIELD(MetarRawData, RVRRunway),
                                           ZG_FIELD(MetarRawData, RVRVisibility),
                                           ZG_FIELD(MetarRawData, RVRVisibilitymax),
                                           ZG_FIELD(MetarRawData, VerticalVisibility),
                                           ZG_FIELD(MetarRawData, WindShearLevel),
                                           ZG_FIELD(MetarRawData, WindShearDir),
                                           ZG_FIELD(MetarRawData, WindShearSpeed),
                                           ZG_FIELD(MetarRawData, OtherRemarks),
                                           ZG_FIELD(MetarRawData, WindRemarks),
                                           ZG_FIELD(MetarRawData, MaxTemperature6h),
                                           ZG_FIELD(MetarRawData, MinTemperature6h),
                                           ZG_FIELD(MetarRawData, MaxTemperature24h),
                                           ZG_FIELD(MetarRawData, MinTemperature24h),
                                           ZG_FIELD(MetarRawData, PrecipHour),
                                           ZG_FIELD(MetarRawData, Precip3h),
                                           ZG_FIELD(MetarRawData, Precip6h),
                                           ZG_FIELD(MetarRawData, Precip24h),
                                           ZG_FIELD(MetarRawData, SnowDepth),
                                           ZG_FIELD(MetarRawData, PressTendency),
                                           ZG_FIELD(MetarRawData, PressTendencyVal),
                                           ZG_FIELD(MetarRawData, LowCloudType),
                                           ZG_FIELD(MetarRawData, MiddleCloudType),
                                           ZG_FIELD(MetarRawData, HighCloudType),
                                           ZG_FIELD(MetarRawData, Sunshine),
                                           ZG_FIELD(MetarRawData, Water)};

constexpr auto MetarSectionFields =
    std::tuple{ZG_FIELD(MetarSection, SectionType),
               ZG_FIELD(MetarSection, SectionName),
               ZG_FIELD(MetarSection, FromTime),
               ZG_FIELD(MetarSection, ToTime),
               ZG_FIELD(MetarSection, AltimeterPressure),
               ZG_FIELD(MetarSection, SeaPressureLevel),
               ZG_FIELD(MetarSection, OrizVisibility),
               ZG_FIELD(MetarSection, VisibilityDir),
               ZG_FIELD(MetarSection, WindDir),
               ZG_FIELD(MetarSection, WindSpeed),
               ZG_FIELD(MetarSection, WindDirRange),
               ZG_FIELD(MetarSection, Gust),
               ZG_FIELD(MetarSection, CloudCover),
               ZG_FIELD(MetarSection, CloudCoverShort),
               ZG_FIELD(MetarSection, CloudType),
               ZG_FIELD(MetarSection, CloudTypeShort),
               ZG_FIELD(MetarSection, CloudHeigh),
               ZG_FIELD(MetarSection, CloudLayers),
               Padded{"Weather", &MetarSection::Weather, WeatherSlots},
               ZG_FIELD(MetarSection, WeatherCount)};

constexpr auto MetarFields = std::tuple{ZG_FIELD(MetarData, RawText),
                                        Field{"StationBlock", &MetarData::Station},
                                        ZG_FIELD(MetarData, ObservationTime),
                                        ZG_FIELD(MetarData, ValidPeriod),
                                        ZG_FIELD(MetarData, BulletinTime),
                                        ZG_FIELD(MetarData, FilterFlags),
                                        ZG_FIELD(MetarData, Section),
                                        Count{"SectionCount", &MetarData::SectionCount},
                                        ZG_FIELD(MetarData, ForecastTemperature),
                                        ZG_FIELD(MetarData, ForecastTemperatureTime),
                                        ZG_FIELD(MetarData, Temperature),
                                        ZG_FIELD(MetarData, Dewpoint),
                                        ZG_FIELD(MetarData, RVRRunway),
                                        ZG_FIELD(MetarData, RVRVisibility),
                                        ZG_FIELD(MetarData, RVRVisibilitymax),
                                        ZG_FIELD(MetarData, VerticalVisibility),
                                        ZG_FIELD(MetarData, VerticalVisibilityCopy),
                                        ZG_FIELD(MetarData, WindShearLevel),
                                        ZG_FIELD(MetarData, WindShearDir),
                                        ZG_FIELD(MetarData, WindShearSpeed),
                                        ZG_FIELD(MetarData, OtherRemarks),
                                        ZG_FIELD(MetarData, WindRemarks),
                                        ZG_FIELD(MetarData, MaxTemperature6h),
                                        ZG_FIELD(MetarData, MinTemperature6h),
                                        ZG_FIELD(MetarData, MaxTemperature24h),
                                        ZG_FIELD(MetarData, MinTemperature24h),
                                        ZG_FIELD(MetarData, Sunshine),
                                        ZG_FIELD(MetarData, PrecipHour),
                                        ZG_FIELD(MetarData, Precip3h),
                                        ZG_FIELD(MetarData, Precip6h),
                                        ZG_FIELD(MetarData, Precip24h),
                                        ZG_FIELD(MetarData, Water),
                                        ZG_FIELD(MetarData, SnowDepth),
                                        ZG_FIELD(MetarData, PressTendency),
                                        ZG_FIELD(MetarData, PressTendencyVal),
                                        ZG_FIELD(MetarData, LowCloudType),
                                        ZG_FIELD(MetarData, MiddleCloudType),
                                        ZG_FIELD(MetarData, HighCloudType),
                                        ZG_FIELD(MetarData, IsAO1),
                                        ZG_FIELD(MetarData, IsAO2),
                                        ZG_FIELD(MetarData, IsCOR),
                                        ZG_FIELD(MetarData, IsAMD),
                                        ZG_FIELD(MetarData, IsManual)};

constexpr auto StationRawFields =
    std::tuple{ZG_FIELD(StationBlock, State),       ZG_FIELD(StationBlock, Station),
               ZG_FIELD(StationBlock, Country),     ZG_FIELD(StationBlock, IcaoName),
               ZG_FIELD(StationBlock, LatPosition), ZG_FIELD(StationBlock, LongPosition),
               ZG_FIELD(StationBlock, StationHT),   ZG_FIELD(StationBlock, SensorHT),
               ZG_FIELD(StationBlock, Quadrant),    ZG_FIELD(StationBlock, MsgId),
               ZG_FIELD(StationBlock, Type),        ZG_FIELD(StationBlock, Sender),
               ZG_FIELD(StationBlock, AddedInfo),   ZG_FIELD(StationBlock, StationKind)};

constexpr auto PlaceFields =
    std::tuple{ZG_FIELD(StationPlace, WMOIndex),     ZG_FIELD(StationPlace, State),
               ZG_FIELD(StationPlace, Station),      ZG_FIELD(StationPlace, Country),
               ZG_FIELD(StationPlace, IcaoName),     ZG_FIELD(StationPlace, LatPosition),
               ZG_FIELD(StationPlace, LongPosition), ZG_FIELD(StationPlace, StationHT),
               ZG_FIELD(StationPlace, SensorHT),     ZG_FIELD(StationPlace, Quadrant)};

constexpr auto StationFields = std::tuple{
    ZG_FIELD(StationTexts, MsgId), ZG_FIELD(StationTexts, Type), ZG_FIELD(StationTexts, Sender),
    ZG_FIELD(StationTexts, AddedInfo), ZG_FIELD(StationTexts, StationKind)};

constexpr auto FrontsFields = std::tuple{
    ZG_FIELD(FrontsRow, Type),    ZG_FIELD(FrontsRow, RecNum),   ZG_FIELD(FrontsRow, Validity),
    ZG_FIELD(FrontsRow, MsgTime), ZG_FIELD(FrontsRow, Pressure), ZG_FIELD(FrontsRow, Lat),
    ZG_FIELD(FrontsRow, Long)};

#undef ZG_FIELD

// The keys and values of a record, its fields written by `values`.
template <typename Values, typename Record, typename Fields>
void WriteFields(JsonWriter& json, const Record& record, const Fields& fields,
                 const Values& values);

// Values as they stand.
struct PlainValues {
  JsonWriter& json;

  void operator()(std::string_view text) const { json.Text(text); }
  void operator()(bool value) const { json.Boolean(value); }
  template <std::integral T>
  void operator()(T value) const {
    json.Number(value);
  }
  template <typename T, std::size_t N>
  void operator()(const std::array<T, N>& values) const {
    json.BeginArray();
    for (const T& value : values) (*this)(value);
    json.EndArray();
  }
  void operator()(const StationTexts& station) const {
    json.BeginObject();
    WriteFields(json, *station.Place, PlaceFields, *this);
    WriteFields(json, station, StationFields, *this);
    json.EndObject();
  }
  void operator()(std::span<const MetarSection> sections) const {
    json.BeginArray();
    for (const MetarSection& section : sections) {
      json.BeginObject();
      WriteFields(json, section, MetarSectionFields, *this);
      json.EndObject();
    }
    json.EndArray();
  }
};

// Numbers and texts of working records: null in place of the missing value of their width.
struct RawValues {
  JsonWriter& json;
  std::size_t sections = 0;  // sections in use

  template <typename T>
  requires std::integral<T> || std::floating_point<T>
  void operator()(T value) const {
    if (IsMissing(value)) {
      json.Null();
    } else {
      json.Number(value);
    }
  }
  // Bit sets have no missing value.
  void operator()(std::uint32_t bits) const { json.Number(bits); }
  void operator()(std::string_view text) const {
    if (IsMissing(text)) {
      json.Null();
    } else {
      json.Text(text);
    }
  }
  void operator()(const std::string& text) const { (*this)(std::string_view(text)); }
  template <typename T>
  void operator()(const std::optional<T>& value) const {
    if (value) {
      json.Number(*value);
    } else {
      json.Null();
    }
  }
  template <typename T, std::size_t N>
  void operator()(const std::array<T, N>& values) const {
    json.BeginArray();
    for (const T& value : values) (*this)(value);
    json.EndArray();
  }
  void operator()(const StationBlock& station) const {
    json.BeginObject();
    json.Key("WMOIndex");
    if (station.WMOIndex == -1) {
      json.Null();
    } else {
      json.Number(station.WMOIndex);
    }
    WriteFields(json, station, StationRawFields, *this);
    json.EndObject();
  }
  void operator()(const std::array<MetarRawSection, MaxSections>& all) const {
    json.BeginArray();
    for (std::size_t i = 0; i < sections; ++i) {
      json.BeginObject();
      WriteFields(json, all[i], MetarRawSectionFields, *this);
      json.EndObject();
    }
    json.EndArray();
  }
};

template <typename Values, typename Record, typename T>
void WriteField(JsonWriter& json, const Record& record, const Field<Record, T>& field,
                const Values& values) {
  json.Key(field.name);
  values(record.*field.member);
}
template <typename Values, typename Record, typename T>
void WriteField(JsonWriter& json, const Record& record, const Row<Record, T>& row,
                const Values& values) {
  const T& elements = record.*row.member;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    json.Key(row.name, i);
    values(elements[i]);
  }
}
template <typename Values, typename Record, typename T>
void WriteField(JsonWriter& json, const Record& record, const Padded<Record, T>& padded,
                const Values& values) {
  const T& elements = record.*padded.member;
  json.Key(padded.name);
  json.BeginArray();
  for (std::size_t i = 0; i < padded.size; ++i) {
    values(i < elements.size() ? elements[i] : std::string_view{});
  }
  json.EndArray();
}
template <typename Values, typename Record>
void WriteField(JsonWriter& json, const Record& record, const Count<Record>& count,
                const Values& values) {
  json.Key(count.name);
  values((record.*count.count)());
}

template <typename Values, typename Record, typename Fields>
void WriteFields(JsonWriter& json, const Record& record, const Fields& fields,
                 const Values& values) {
  std::apply([&](const auto&... field) { (WriteField(json, record, field, values), ...); }, fields);
}

template <typename Raw, typename RawFields, typename Data, typename DataFields>
void AppendLine(std::string& out, RecordFields which, std::string_view store, const Raw& raw,
                const RawFields& rawFields, std::size_t sections, const Data& data,
                const DataFields& dataFields) {
  JsonWriter json(out);
  json.BeginObject();
  json.Key("Store");
  json.Text(store);
  if (which != RecordFields::Raw) WriteFields(json, data, dataFields, PlainValues{json});
  if (which != RecordFields::Data) {
    json.Key("Raw");
    json.BeginObject();
    WriteFields(json, raw, rawFields, RawValues{json, sections});
    json.EndObject();
  }
  json.EndObject();
  json.EndLine();
}

}  // namespace

void AppendRecord(std::string& out, RecordFields fields, const SynopRawData& raw,
                  const SynopData& data) {
  AppendLine(out, fields, "SYNOP", raw, SynopRawFields, 0, data, SynopFields);
}

void AppendRecord(std::string& out, RecordFields fields, const MetarRawData& raw,
                  const MetarData& data) {
  AppendLine(out, fields, "METAR", raw, MetarRawFields,
             static_cast<std::size_t>(raw.SectionIndex) + 1, data, MetarFields);
}

void AppendRecord(std::string& out, const FrontsRow& row) {
  JsonWriter json(out);
  json.BeginObject();
  json.Key("Store");
  json.Text("FRONTS");
  WriteFields(json, row, FrontsFields, PlainValues{json});
  json.EndObject();
  json.EndLine();
}

}  // namespace zg
