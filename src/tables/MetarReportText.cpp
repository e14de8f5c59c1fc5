#include "tables/MetarReportText.h"

#include <algorithm>

#include "shell/GenericUtility.h"
#include "tables/StationText.h"
#include "text/Windows1252.h"

namespace zg {
namespace {

// Each way in which a number of a METAR, SPECI or TAF becomes a text.
enum class Rule : std::uint32_t {
  DayAndTime,
  Time,
  DayAndPeriod,
  Period,
  Celsius,
  CelsiusTable,
  Hour,
  HourMinute,
  Metres,
  Feet,
  HundredFeet,
  DistanceMetres,
  Miles,
  Degrees,
  TensOfDegrees,
  Knots,
  Kmh,
  Mps,
  Altimeter,
  SeaPressure,
  InchHundredths,
  Inches,
  Millimetres,
  Minutes,
  Tendency,
  Weather,
  ClearBelow,
};

using Maker = ReportTextMaker<Rule>;

// Names of the section kinds, by SectionKind.
struct SectionName {
  std::string_view italian;
  std::string_view english;
};
constexpr std::array<SectionName, 8> SectionNames = {{
    {"", ""},
    {"Remarks", "Remarks"},
    {"Fenomeni Occasionali", "Occasional"},
    {"Cambiamento Graduale", "Gradul change"},
    {"Cambiamento", "Change"},
    {"Cambiamento con 30% di Probabilita'", "Change with 30% Probability"},
    {"Cambiamento con 40% di Probabilita'", "Change with 40% Probability"},
    {"Fenomeni Intermittenti", "Intermittent"},
}};

// From here on an altimeter setting is in hundredths of an inch, not in hectopascals.
constexpr std::int16_t FirstInchSetting = 1501;

// "15/12:50Z" from ddhhmm, "12:50Z" from hhmm; nothing from another number of characters.
std::string_view TimeText(std::string_view digits, Maker& make) {
  if (std::uint32_t time = 0;
      (digits.size() == 6 || digits.size() == 4) && ReadFigures(digits, time)) {
    const bool day = digits.size() == 6;
    return make.Of(day ? Rule::DayAndTime : Rule::Time, time,
                   [&] { return FormatText(digits, day ? "00/00:00Z" : "00:00Z"); });
  }
  const std::size_t count = CharacterCount(digits);
  if (count == 6) return make.Arena().Copy(FormatText(digits, "00/00:00Z"));
  if (count == 4) return make.Arena().Copy(FormatText(digits, "00:00Z"));
  return {};
}

// "15/12:00Z - 18:00Z" from a period ddhhhh, "12:00Z - 18:00Z" from hhhh.
std::string_view PeriodText(std::string_view period, Maker& make) {
  if (!IsDigits(period) || (period.size() != 6 && period.size() != 4)) return {};
  return make.Of(period.size() == 6 ? Rule::DayAndPeriod : Rule::Period,
                 static_cast<int>(Value(period)), [&] {
                   std::string text;
                   if (period.size() == 6) text.append(period.substr(0, 2)).append("/");
                   const std::string_view hours = Right(period, 4);
                   text.append(hours.substr(0, 2)).append(":00Z - ");
                   return text.append(hours.substr(2)).append(":00Z");
                 });
}

std::string_view SectionTime(std::uint8_t hour, std::uint8_t minute, Maker& make) {
  if (IsMissing(hour)) return {};
  return make.Of(Rule::HourMinute, hour * 256 + minute, [&] {
    std::string text = FormatNumber(hour, "00");
    return text += IsMissing(minute) ? ":00Z" : ":" + FormatNumber(minute, "00Z");
  });
}

std::string_view CelsiusText(float value, Maker& make) {
  return IsMissing(value) ? std::string_view{}
                          : make.Quantity(Rule::Celsius, UnitKind::Temperature, value, " °C");
}

std::string_view FeetText(std::int32_t hundreds, Maker& make) {
  return make.Converted(Rule::HundredFeet, UnitKind::Level, hundreds,
                        [&] { return PlainDecimal(static_cast<double>(hundreds) * 100) + " ft"; });
}

// Hundredths of an inch as millimetres of water.
std::string_view PrecipitationText(std::int16_t value, Maker& make) {
  if (IsMissing(value)) return {};
  return make.Of(Rule::InchHundredths, value,
                 [&] { return ConvertInchToMillimeter(PlainDecimal(value / 100.0)) + " mm"; });
}

std::string_view PressureText(std::int16_t value, Maker& make) {
  return make.Converted(Rule::Altimeter, UnitKind::Pressure, value, [&] {
    return value < FirstInchSetting ? FormatNumber(value, "0000 hpa")
                                    : PlainDecimal(value / 100.0) + " inHg";
  });
}

// SLPppp: tenths of hPa whose hundreds are left out.
std::string_view SeaPressureText(std::int16_t value, Maker& make) {
  return make.Converted(Rule::SeaPressure, UnitKind::Pressure, value, [&] {
    return value >= 500 ? FormatNumber(value / 10.0 + 900, "0000.0 hpa")
                        : PlainDecimal(value / 10.0 + 1000) + " hpa";
  });
}

// A wind speed in the unit that the message gives. Knots are written " kt", a suffix that no
// conversion knows, so that they stay as reported.
std::string_view SpeedText(std::uint8_t value, std::int32_t flags, Maker& make) {
  if (IsMissing(value)) return {};
  if (HasFlag(flags, MetarFlag::WindKt)) {
    return make.Quantity(Rule::Knots, UnitKind::Speed, value, " kt");
  }
  if (HasFlag(flags, MetarFlag::WindKmh)) {
    return make.Quantity(Rule::Kmh, UnitKind::Speed, value, " kmh");
  }
  if (HasFlag(flags, MetarFlag::WindMps)) {
    return make.Quantity(Rule::Mps, UnitKind::Speed, value, " mps");
  }
  return {};
}

std::string_view VisibilityText(std::int32_t value, std::int32_t flags, Maker& make) {
  if (IsMissing(value)) return {};
  if (HasFlag(flags, MetarFlag::VisibilityMetres)) {
    return make.Quantity(Rule::DistanceMetres, UnitKind::Distance, value, " m");
  }
  if (HasFlag(flags, MetarFlag::VisibilityMiles)) {
    return make.Converted(Rule::Miles, UnitKind::Distance, value,
                          [&] { return FormatNumber(value / 1000.0, "0.0 SM"); });
  }
  return {};
}

std::string_view RunwayRangeText(std::int16_t value, std::int32_t flags, Maker& make) {
  if (IsMissing(value)) return {};
  return HasFlag(flags, MetarFlag::RvrFeet)
             ? make.Quantity(Rule::Feet, UnitKind::Level, value, " ft")
             : make.Quantity(Rule::Metres, UnitKind::Level, value, " m");
}

void StoreClouds(const MetarRawSection& raw, Maker& make, MetarSection& section) {
  const TextUtility& tables = make.Tables();
  for (std::size_t i = 0; i < MetarCloudLayers; ++i) {
    const bool cover = !IsMissing(raw.CloudCover[i]);
    const bool type = !IsMissing(raw.CloudType[i]);
    const bool height = !IsMissing(raw.CloudHeigh[i]);
    if (cover) {
      section.CloudCover[i] = tables.CloudCover(raw.CloudCover[i]);
      section.CloudCoverShort[i] = tables.CloudCoverShort(raw.CloudCover[i]);
    }
    if (type) {
      section.CloudType[i] = tables.TypeOfCloud(raw.CloudType[i]);
      section.CloudTypeShort[i] = tables.TypeOfCloudShort(raw.CloudType[i]);
    }
    if (height) section.CloudHeigh[i] = FeetText(raw.CloudHeigh[i], make);
    if (cover || type || height) section.CloudLayers = static_cast<std::int16_t>(i + 1);
  }
}

void StoreSection(const MetarRawSection& raw, std::int32_t flags, Maker& make,
                  MetarSection& section) {
  const TextUtility& tables = make.Tables();
  section.SectionType = raw.SectionType;
  const SectionName& name = SectionNames[raw.SectionType];
  section.SectionName = tables.Choose(name.italian, name.english);
  section.FromTime = SectionTime(raw.FromHour, raw.FromMinute, make);
  section.ToTime = SectionTime(raw.ToHour, raw.ToMinute, make);
  if (!IsMissing(raw.AltimeterPressure)) {
    section.AltimeterPressure = PressureText(raw.AltimeterPressure, make);
  }
  if (!IsMissing(raw.SeaPressureLevel)) {
    section.SeaPressureLevel = HasFlag(flags, MetarFlag::SeaPressure)
                                   ? SeaPressureText(raw.SeaPressureLevel, make)
                                   : PressureText(raw.SeaPressureLevel, make);
  }
  section.OrizVisibility = VisibilityText(raw.OrizVisibility, flags, make);
  if (!IsMissing(raw.VisibilityDir)) section.VisibilityDir = make.Arena().Copy(raw.VisibilityDir);
  if (!IsMissing(raw.WindDir)) {
    section.WindDir = make.Of(Rule::TensOfDegrees, raw.WindDir,
                              [&] { return FormatNumber(raw.WindDir * 10, "000 deg"); });
  }
  section.WindSpeed = SpeedText(raw.WindSpeed, flags, make);
  if (raw.WindSpeed == 0) {
    section.WindSpeed = tables.Choose("Calma", "Calm");
    section.WindDir = {};
  }
  if (!IsMissing(raw.WindDirRange)) {
    section.WindDirRange = make.Arena().Copy(std::string(raw.WindDirRange) + " deg");
  }
  section.Gust = SpeedText(raw.Gust, flags, make);
  StoreClouds(raw, make, section);
  for (std::size_t i = 0; i < ShownWeather; ++i) {
    if (raw.Weather[i] == 0) continue;
    section.Weather[i] = make.Of(Rule::Weather, raw.Weather[i],
                                 [&] { return ComposeWeatherField(raw.Weather[i], tables); });
    section.WeatherCount = static_cast<std::int16_t>(i + 1);
  }
}

void StoreHead(const MetarRawData& raw, Maker& make, MetarData& record) {
  record.ObservationTime = TimeText(raw.ObservationTime, make);
  record.BulletinTime = TimeText(raw.BulletinTime, make);
  record.ValidPeriod = PeriodText(raw.ValidPeriod, make);
  for (std::size_t i = 0; i < raw.ForecastTemperature.size(); ++i) {
    const std::uint8_t value = raw.ForecastTemperature[i];
    const std::uint8_t hour = raw.ForecastTemperatureHour[i];
    if (!IsMissing(value)) {
      record.ForecastTemperature[i] =
          make.Converted(Rule::CelsiusTable, UnitKind::Temperature, value,
                         [&] { return PlainDecimal(value - 100) + " °C"; });
    }
    if (!IsMissing(hour)) {
      record.ForecastTemperatureTime[i] =
          make.Of(Rule::Hour, hour, [&] { return FormatNumber(hour, "00") + ":00Z"; });
    }
  }
}

void StoreWholeMessage(const MetarRawData& raw, Maker& make, MetarData& record) {
  const TextUtility& tables = make.Tables();
  record.Temperature = CelsiusText(raw.Temperature, make);
  record.Dewpoint = CelsiusText(raw.Dewpoint, make);
  if (!IsMissing(raw.RVRRunway)) record.RVRRunway = make.Arena().Copy(raw.RVRRunway);
  record.RVRVisibility = RunwayRangeText(raw.RVRVisibility, raw.FilterFlags, make);
  if (!record.RVRVisibility.empty()) {
    const bool above = HasFlag(raw.FilterFlags, MetarFlag::RvrAbove);
    if (above || HasFlag(raw.FilterFlags, MetarFlag::RvrBelow)) {
      record.RVRVisibility =
          make.Arena().Copy((above ? "> " : "< ") + std::string(record.RVRVisibility));
    }
  }
  record.RVRVisibilitymax = RunwayRangeText(raw.RVRVisibilitymax, raw.FilterFlags, make);
  if (!IsMissing(raw.VerticalVisibility)) {
    record.VerticalVisibility = FeetText(raw.VerticalVisibility, make);
    record.VerticalVisibilityCopy = record.VerticalVisibility;
  }
  if (!IsMissing(raw.WindShearLevel)) record.WindShearLevel = FeetText(raw.WindShearLevel, make);
  if (!IsMissing(raw.WindShearDir)) {
    record.WindShearDir = make.Masked(Rule::Degrees, raw.WindShearDir, "000 deg");
  }
  if (!IsMissing(raw.WindShearSpeed)) {
    record.WindShearSpeed = make.Quantity(Rule::Knots, UnitKind::Speed, raw.WindShearSpeed, " kt");
  }
  record.OtherRemarks = make.Arena().Copy(raw.OtherRemarks);
  record.WindRemarks = make.Arena().Copy(raw.WindRemarks);
  record.MaxTemperature6h = CelsiusText(raw.MaxTemperature6h, make);
  record.MinTemperature6h = CelsiusText(raw.MinTemperature6h, make);
  record.MaxTemperature24h = CelsiusText(raw.MaxTemperature24h, make);
  record.MinTemperature24h = CelsiusText(raw.MinTemperature24h, make);
  if (!IsMissing(raw.Sunshine)) record.Sunshine = make.Plain(Rule::Minutes, raw.Sunshine, " min");
  record.PrecipHour = PrecipitationText(raw.PrecipHour, make);
  record.Precip3h = PrecipitationText(raw.Precip3h, make);
  record.Precip6h = PrecipitationText(raw.Precip6h, make);
  record.Precip24h = PrecipitationText(raw.Precip24h, make);
  if (!IsMissing(raw.Water)) record.Water = make.Plain(Rule::Millimetres, raw.Water, " mm");
  if (!IsMissing(raw.SnowDepth)) {
    record.SnowDepth = make.Of(Rule::Inches, raw.SnowDepth, [&] {
      return ConvertInchToMillimeter(PlainDecimal(static_cast<int>(raw.SnowDepth))) + " mm";
    });
  }
  if (!IsMissing(raw.PressTendency)) record.PressTendency = tables.PressTendency(raw.PressTendency);
  if (!IsMissing(raw.PressTendencyVal)) {
    record.PressTendencyVal = make.Tendency(Rule::Tendency, raw.PressTendencyVal);
  }
  if (!IsMissing(raw.LowCloudType)) {
    record.LowCloudType = tables.LowCloudTypeForMetar(raw.LowCloudType);
  }
  if (!IsMissing(raw.MiddleCloudType)) {
    record.MiddleCloudType = tables.MiddleCloudTypeForMetar(raw.MiddleCloudType);
  }
  if (!IsMissing(raw.HighCloudType)) {
    record.HighCloudType = tables.HighCloudTypeForMetar(raw.HighCloudType);
  }
}

// What the flags say of the whole report, on its first section and after everything else.
void ApplyFlags(const MetarRawData& raw, Maker& make, MetarSection& report, MetarData& record) {
  const TextUtility& tables = make.Tables();
  const std::int32_t flags = raw.FilterFlags;
  record.IsAO1 = HasFlag(flags, MetarFlag::AO1);
  record.IsAO2 = HasFlag(flags, MetarFlag::AO2);
  record.IsCOR = HasFlag(flags, MetarFlag::Cor);
  record.IsAMD = HasFlag(flags, MetarFlag::Amd);
  record.IsManual = !HasFlag(flags, MetarFlag::Auto);
  if (HasFlag(flags, MetarFlag::Skc)) {
    report.CloudCover[0] = tables.Choose("Cielo Sereno", "Sky Clear");
    report.CloudCoverShort[0] = "0/8";
  }
  if (HasFlag(flags, MetarFlag::Cavok)) {
    report.Weather[0] = tables.Choose("Tempo e Visibilita' OK", "Ceiling and Visibility OK");
  }
  if (HasFlag(flags, MetarFlag::Clr)) {
    record.VerticalVisibility = make.Converted(Rule::ClearBelow, UnitKind::Level, 0, [&] {
      return std::string(tables.Choose("Nessuna nube sotto 12000 ft", "No Clouds under 12000 ft"));
    });
    record.VerticalVisibilityCopy = "CLR";
  }
  if (HasFlag(flags, MetarFlag::NoSignificantChange)) {
    report.Weather[0] = tables.Choose("Fenomeni non significativi", "No Significant Weather");
    report.WeatherCount = 1;
  }
  if (HasFlag(flags, MetarFlag::WindVariable))
    report.WindDir = tables.Choose("Variabile", "Variable");
  if (HasFlag(flags, MetarFlag::Nsc)) {
    report.CloudCover[0] = tables.Choose("Nubi non significative", "No Significant Clouds");
  }
  if (HasFlag(flags, MetarFlag::WindShear)) {
    const std::string text =
        std::string(record.WindRemarks) +
        std::string(tables.Choose(" Conditione di Wind-Shear", " Wind-Shear Condition"));
    record.WindRemarks = make.Arena().Copy(Trim(text));
  }
}

}  // namespace

std::string ComposeWeatherField(std::uint32_t mask, const TextUtility& textUtility) {
  std::string text;
  for (std::uint8_t bit = 0; bit <= 30; ++bit) {
    if ((mask >> bit & 1U) != 0) text.append(textUtility.Weather(bit)).append(" ");
  }
  return std::string(Trim(text));
}

const MetarData& StoreMetarRecord(const MetarRawData& raw, int stationRow, const ReportUnits& units,
                                  MessageStore<MetarData>& store) {
  StoreTexts& texts = store.Texts();
  Maker make(units, texts);
  MetarData& record = store.Add();
  record.RawText = texts.Arena.Copy(raw.RawText);
  record.FilterFlags = raw.FilterFlags;
  record.Station = FillStationTexts(raw.Station, stationRow, units.Texts, texts);
  StoreHead(raw, make, record);
  StoreWholeMessage(raw, make, record);

  const auto count = static_cast<std::size_t>(raw.SectionIndex) + 1;
  auto* sections = texts.Arena.Make<MetarSection>(count);
  for (std::size_t i = 0; i < count; ++i) {
    StoreSection(raw.Section[i], raw.FilterFlags, make, sections[i]);
  }
  record.Section = {sections, count};
  ApplyFlags(raw, make, sections[0], record);
  texts.Arena.PrefetchNext(2 * sizeof(MetarSection));
  return record;
}

}  // namespace zg
