#include "tables/SynopReportText.h"

#include <string>

#include "shell/GenericUtility.h"
#include "tables/StationText.h"
#include "text/Windows1252.h"

namespace zg {
namespace {

// Each way in which a number of a SYNOP message becomes a text.
enum class Rule : std::uint32_t {
  DayAndTime,
  Celsius,
  Pressure,
  WholePressure,
  Tendency,
  Humidity,
  LowestCloud,
  Visibility,
  WindSpeed,
  TensOfDegrees,
  WaveDirection,
  MaxWindDirection,
  WholeMetres,
  PrecipitAmount,
  HighCloudType,
  ShipSpeed,
  Seconds,
  WaveHeight,
  Millimetres,
  Centimetres,
  MetresPerSecond,
  TenthsPerSecond,
  CloudHeigh,
};

using Maker = ReportTextMaker<Rule>;
using CodeTable = std::string_view (TextUtility::*)(std::uint8_t) const noexcept;

// A code and its text, where the code was reported.
void StoreCode(std::uint8_t raw, CodeTable table, const TextUtility& tables, std::string_view& text,
               std::uint8_t& code) {
  if (IsMissing(raw)) return;
  text = (tables.*table)(raw);
  code = raw;
}

std::string_view CelsiusText(float value, Maker& make) {
  if (IsMissing(value)) return {};
  return make.Quantity(Rule::Celsius, UnitKind::Temperature, value, " °C");
}

std::string_view PressureText(float value, Maker& make) {
  if (IsMissing(value)) return {};
  return make.Quantity(Rule::Pressure, UnitKind::Pressure, value, " hpa");
}

std::string_view AmountText(std::int16_t value, Maker& make) {
  if (IsMissing(value)) return {};
  return make.Of(Rule::PrecipitAmount, value, [&] { return make.Tables().PrecipitAmount(value); });
}

std::string_view WholeSpeedText(std::uint8_t value, Maker& make) {
  if (IsMissing(value)) return {};
  return make.Quantity(Rule::MetresPerSecond, UnitKind::Speed, value, " mps");
}

// Tenths of a metre a second.
std::string_view TenthsSpeedText(std::int16_t value, Maker& make) {
  if (IsMissing(value)) return {};
  return make.Converted(Rule::TenthsPerSecond, UnitKind::Speed, value,
                        [&] { return PlainDecimal(value / 10.0) + " mps"; });
}

std::string_view SecondsText(std::uint8_t value, Maker& make) {
  return IsMissing(value) ? std::string_view{} : make.Plain(Rule::Seconds, value, " sec");
}

std::string_view WaveHeightText(float value, Maker& make) {
  return IsMissing(value) ? std::string_view{} : make.Plain(Rule::WaveHeight, value, " m");
}

std::string_view WaveDirectionText(std::uint8_t value, Maker& make) {
  if (IsMissing(value)) return {};
  return make.Plain(Rule::WaveDirection, value * 10, " deg");
}

// "15/12:30Z" from YYGGgg.
std::string_view DayAndTimeText(std::string_view value, Maker& make) {
  constexpr std::string_view mask = "00/00:00Z";
  std::uint32_t time = 0;
  if (!ReadFigures(value, time)) return make.Arena().Copy(FormatText(value, mask));
  return make.Of(Rule::DayAndTime, time, [&] { return FormatText(value, mask); });
}

// "12:30Z" from GGgg.
std::string_view ClockText(std::string_view value, Maker& make) {
  return IsMissing(value) ? std::string_view{} : make.Arena().Copy(FormatText(value, "00:00Z"));
}

std::string_view FreeText(std::string_view value, Maker& make) {
  return IsMissing(value) ? std::string_view{} : make.Arena().Copy(value);
}

// The symbol of the total cloud cover N in the symbol font.
std::string_view CoverSymbol(std::uint8_t cover) noexcept {
  if (cover == 0) return "Q";
  if (cover <= 2) return "R";
  if (cover <= 5) return "B";
  return cover <= 8 ? "S" : "";
}

// ff with the unit and the kind of measurement that iw tells (WMO code table 1855); nothing for
// another iw.
std::string_view WindSpeedText(std::uint8_t speed, std::uint8_t indicator, Maker& make) {
  struct Suffix {
    std::uint8_t indicator;
    std::string_view text;
  };
  static constexpr std::array<Suffix, 4> Suffixes = {{
      {0, " mps (Estim.)"},
      {1, " mps (Anem.)"},
      {3, " KTS (Estim.)"},
      {4, " KTS (Anem.)"},
  }};
  for (const Suffix& suffix : Suffixes) {
    if (suffix.indicator != indicator) continue;
    return make.Converted(Rule::WindSpeed, UnitKind::Speed, indicator * 256 + speed, [&] {
      return PlainDecimal(static_cast<int>(speed)).append(suffix.text);
    });
  }
  return {};
}

void StoreSkyAndWind(const SynopRawData& raw, Maker& make, SynopData& record) {
  const TextUtility& tables = make.Tables();
  StoreCode(raw.StationType, &TextUtility::StationType, tables, record.StationType,
            record.StationTypeCode);
  record.IssueTime = DayAndTimeText(raw.IssueTime, make);
  record.TimeOfObservation = ClockText(raw.TimeOfObservation, make);
  if (!IsMissing(raw.LowestCloud)) {
    record.LowestCloud = make.Of(Rule::LowestCloud, raw.LowestCloud, [&] {
      return RemoveLeadingZeros(make.Convert(tables.LowestCloud(raw.LowestCloud), UnitKind::Level));
    });
    record.LowestCloudCode = raw.LowestCloud;
  }
  if (!IsMissing(raw.Visibility)) {
    record.Visibility = make.Converted(Rule::Visibility, UnitKind::Distance, raw.Visibility,
                                       [&] { return tables.Visibility(raw.Visibility); });
    record.VisibilityCode = raw.Visibility;
  }
  if (!IsMissing(raw.PrecipInd)) record.PrecipInd = tables.PrecipInd(raw.PrecipInd);
  StoreCode(raw.CloudCover, &TextUtility::CloudCover, tables, record.CloudCover,
            record.CloudCoverCode);
  if (!IsMissing(raw.CloudCover)) record.WeatherSymb = CoverSymbol(raw.CloudCover);
  if (!IsMissing(raw.WindSpeed)) {
    record.WindSpeed = WindSpeedText(raw.WindSpeed, raw.WindUnitInd, make);
  }
  if (!IsMissing(raw.WindDirection)) {
    record.WindDirection = make.Masked(Rule::TensOfDegrees, raw.WindDirection * 10, "000 deg");
  }
}

void StoreTemperatureAndPressure(const SynopRawData& raw, Maker& make, SynopData& record) {
  record.Temperature = CelsiusText(raw.Temperature, make);
  if (!IsMissing(raw.DewPoint)) {
    record.DewPoint = CelsiusText(raw.DewPoint, make);
  } else if (!IsMissing(raw.Humidity)) {
    record.DewPoint = make.Plain(Rule::Humidity, raw.Humidity, " %");
    SetFlag(record.FilterFlags, SynopFlag::HumidityInDewPoint);
  }
  record.StatPressure = PressureText(raw.StatPressure, make);
  record.SeaLevPressure = PressureText(raw.SeaLevPressure, make);
  if (!IsMissing(raw.GeopotPressure)) {
    record.GeopotPressure =
        make.Quantity(Rule::WholePressure, UnitKind::Pressure, raw.GeopotPressure, " hpa");
  }
  if (!IsMissing(raw.GeopotHeight)) {
    record.GeopotHeight = make.Quantity(Rule::WholeMetres, UnitKind::Level, raw.GeopotHeight, " m");
  }
  StoreCode(raw.PressTendency, &TextUtility::PressTendency, make.Tables(), record.PressTendency,
            record.PressTendencyCode);
  if (!IsMissing(raw.PressTendencyVal)) {
    record.PressTendencyVal = make.Tendency(Rule::Tendency, raw.PressTendencyVal);
  }
}

void StoreWeatherAndClouds(const SynopRawData& raw, Maker& make, SynopData& record) {
  const TextUtility& tables = make.Tables();
  constexpr std::uint8_t skyUnchanged = 2;  // ww that keeps the symbol of the cloud cover
  StoreCode(raw.PresentWeather, &TextUtility::PresentWeather, tables, record.PresentWeather,
            record.PresentWeatherCode);
  if (!IsMissing(raw.PresentWeather) && raw.PresentWeather != skyUnchanged) {
    record.WeatherSymb = tables.PresentWeatherSymb(raw.PresentWeather);
  }
  StoreCode(raw.PastWeather1, &TextUtility::PastWeather, tables, record.PastWeather1,
            record.PastWeather1Code);
  StoreCode(raw.PastWeather2, &TextUtility::PastWeather, tables, record.PastWeather2,
            record.PastWeather2Code);
  record.PrecipitAmount1 = AmountText(raw.PrecipitAmount1, make);
  record.PrecipitAmount1Code = raw.PrecipitAmount1;
  StoreCode(raw.PrecipitDuration1, &TextUtility::PrecipitDuration, tables, record.PrecipitDuration1,
            record.PrecipitDuration1Code);
  StoreCode(raw.CloudAmount, &TextUtility::CloudCover, tables, record.CloudAmount,
            record.CloudAmountCode);
  StoreCode(raw.LowCloudType, &TextUtility::LowCloudType, tables, record.LowCloudType,
            record.LowCloudTypeCode);
  StoreCode(raw.MiddleCloudType, &TextUtility::MiddleCloudType, tables, record.MiddleCloudType,
            record.MiddleCloudTypeCode);
  if (!IsMissing(raw.HighCloudType)) {
    record.HighCloudType =
        make.Converted(Rule::HighCloudType, UnitKind::Level, raw.HighCloudType,
                       [&] { return std::string(tables.HighCloudType(raw.HighCloudType)); });
    record.HighCloudTypeCode = raw.HighCloudType;
  }
}

void StoreSea(const SynopRawData& raw, Maker& make, SynopData& record) {
  const TextUtility& tables = make.Tables();
  StoreCode(raw.ShipDirection, &TextUtility::ShipDirection, tables, record.ShipDirection,
            record.ShipDirectionCode);
  if (!IsMissing(raw.ShipAvSpeed)) {
    record.ShipAvSpeed = make.Of(Rule::ShipSpeed, raw.ShipAvSpeed, [&] {
      return RemoveLeadingZeros(tables.ShipAvSpeed(raw.ShipAvSpeed));
    });
    record.ShipAvSpeedCode = raw.ShipAvSpeed;
  }
  record.SeaTemperature = CelsiusText(raw.SeaTemperature, make);
  if (!record.SeaTemperature.empty()) {
    StoreCode(raw.SeaTemperType, &TextUtility::SeaTemperType, tables, record.SeaTemperType,
              record.SeaTemperTypeCode);
  }
  record.WetTemperature = CelsiusText(raw.WetTemperature, make);
  if (!record.WetTemperature.empty()) {
    StoreCode(raw.WetTemperType, &TextUtility::WetTemperType, tables, record.WetTemperType,
              record.WetTemperTypeCode);
  }
  record.WavePeriod = SecondsText(raw.WavePeriod, make);
  record.WaveHeight = WaveHeightText(raw.WaveHeight, make);
  record.WavePeriodPredom = SecondsText(raw.WavePeriodPredom, make);
  record.WaveHeightPredom = WaveHeightText(raw.WaveHeightPredom, make);
  record.WaveDirPredom = WaveDirectionText(raw.WaveDirPredom, make);
  record.WavePeriodSecond = SecondsText(raw.WavePeriodSecond, make);
  record.WaveHeightSecond = WaveHeightText(raw.WaveHeightSecond, make);
  record.WaveDirSecond = WaveDirectionText(raw.WaveDirSecond, make);
  StoreCode(raw.SeaIceBearingEdge, &TextUtility::SeaIceBearingEdge, tables,
            record.SeaIceBearingEdge, record.SeaIceBearingEdgeCode);
  StoreCode(raw.SeaIceConcentration, &TextUtility::SeaIceConcentration, tables,
            record.SeaIceConcentration, record.SeaIceConcentrationCode);
  StoreCode(raw.SeaIceStage, &TextUtility::SeaIceStage, tables, record.SeaIceStage,
            record.SeaIceStageCode);
  StoreCode(raw.IceOfLandOrigin, &TextUtility::IceOfLandOrigin, tables, record.IceOfLandOrigin,
            record.IceOfLandOriginCode);
  StoreCode(raw.IceSituation, &TextUtility::IceSituation, tables, record.IceSituation,
            record.IceSituationCode);
  StoreCode(raw.ShipIceAccretion, &TextUtility::ShipIceAccretion, tables, record.ShipIceAccretion,
            record.ShipIceAccretionCode);
  if (!IsMissing(raw.ThicknessOfIce)) {
    record.ThicknessOfIce = make.Plain(Rule::Millimetres, raw.ThicknessOfIce, " mm");
  }
  StoreCode(raw.RateIceAccretion, &TextUtility::RateIceAccretion, tables, record.RateIceAccretion,
            record.RateIceAccretionCode);
}

void StoreClimate(const SynopRawData& raw, Maker& make, SynopData& record) {
  const TextUtility& tables = make.Tables();
  if (!IsMissing(raw.SnowDepth)) {
    record.SnowDepth = make.Masked(Rule::Centimetres, raw.SnowDepth, "00 cm");
  }
  StoreCode(raw.SnowState, &TextUtility::SnowState, tables, record.SnowState, record.SnowStateCode);
  record.MaxTemperature = CelsiusText(raw.MaxTemperature, make);
  record.MinTemperature = CelsiusText(raw.MinTemperature, make);
  record.RegionalData1 = FreeText(raw.RegionalData1, make);
  record.RegionalData2 = FreeText(raw.RegionalData2, make);
  record.OtherInfo = FreeText(raw.OtherInfo, make);
  record.PrecipitAmount2 = AmountText(raw.PrecipitAmount2, make);
  if (!IsMissing(raw.PrecipitDuration2)) {
    record.PrecipitDuration2 = tables.PrecipitDuration(raw.PrecipitDuration2);
  }
  record.PastPrecipitAmount = AmountText(raw.PastPrecipitAmount, make);
  record.SupplInfo = WholeSpeedText(raw.SupplInfo, make);
  for (std::size_t i = 0; i < SynopCloudLayers; ++i) {
    if (!IsMissing(raw.CloudCovLayer[i])) {
      record.CloudCovLayer[i] = tables.CloudCover(raw.CloudCovLayer[i]);
    }
    if (!IsMissing(raw.TypeOfCloud[i])) {
      record.TypeOfCloud[i] = tables.TypeOfCloud(raw.TypeOfCloud[i]);
    }
    if (!IsMissing(raw.HeighOfCloud[i])) {
      record.HeighOfCloud[i] = make.Of(Rule::CloudHeigh, raw.HeighOfCloud[i], [&] {
        return RemoveLeadingZeros(
            make.Convert(tables.CloudHeigh(raw.HeighOfCloud[i]), UnitKind::Level));
      });
    }
  }
}

void StoreSeaWind(const SynopRawData& raw, Maker& make, SynopData& record) {
  record.WindAt10mt = TenthsSpeedText(raw.WindAt10mt, make);
  record.WindAt20mt = TenthsSpeedText(raw.WindAt20mt, make);
  record.MaxWindSpeedTime = ClockText(raw.MaxWindSpeedTime, make);
  record.ContinueWindTime = ClockText(raw.ContinueWindTime, make);
  record.MaxWindSpeed = WholeSpeedText(raw.MaxWindSpeed, make);
  if (!IsMissing(raw.MaxWindDir)) {
    record.MaxWindDir = make.Masked(Rule::MaxWindDirection, raw.MaxWindDir * 10, "000 deg");
  }
  for (std::size_t i = 0; i < ContinuousWinds; ++i) {
    if (raw.CountinuousWindRaw[i].empty()) continue;
    const std::string word = Utf8ToWindows1252(raw.CountinuousWindRaw[i]);  // one byte a character
    record.CountinuousWindDir[i] = make.Arena().Copy(Windows1252ToUtf8(Mid(word, 1, 3)) + " deg");
    record.CountinuousWindSpeed[i] = make.Arena().Copy(
        make.Convert(PlainDecimal(Value(Mid(word, 4, 3)) / 10) + " mps", UnitKind::Speed));
  }
}

}  // namespace

const SynopData& StoreSynopRecord(const SynopRawData& raw, int stationRow, const ReportUnits& units,
                                  MessageStore<SynopData>& store) {
  StoreTexts& texts = store.Texts();
  Maker make(units, texts);
  SynopData& record = store.Add();
  record.Msg = texts.Arena.Copy(raw.Msg);
  record.FilterFlags = raw.FilterFlags;
  record.Station = FillStationTexts(raw.Station, stationRow, units.Texts, texts);
  if (IsMissing(record.Station.AddedInfo)) record.Station.AddedInfo = {};
  StoreSkyAndWind(raw, make, record);
  StoreTemperatureAndPressure(raw, make, record);
  StoreWeatherAndClouds(raw, make, record);
  StoreSea(raw, make, record);
  StoreClimate(raw, make, record);
  StoreSeaWind(raw, make, record);
  return record;
}

}  // namespace zg
