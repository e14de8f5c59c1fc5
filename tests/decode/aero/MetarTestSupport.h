// Reports of METAR, SPECI and TAF for tests, decoded from words.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "decode/FieldLine.h"
#include "decode/TypedDecoder.h"
#include "decode/aero/MetarDecoder.h"

namespace zg::test {

// The codes of a weather set, by their bits.
inline std::string WeatherBitsText(std::uint32_t bits) {
  constexpr std::array<std::string_view, 31> names = {
      "MI", "BC", "PR", "DR", "BL", "SH", "TS", "FZ", "DZ", "RA", "SN",
      "SG", "IC", "PE", "GR", "GS", "BR", "FG", "FU", "VA", "DU", "SA",
      "HZ", "PO", "SQ", "FC", "SS", "DS", "-",  "+",  "VC"};
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if ((bits >> i & 1U) != 0) text.append(text.empty() ? "" : ",").append(names[i]);
  }
  return text;
}

inline void DescribeSection(FieldLine& line, const MetarRawSection& section) {
  if (section.SectionType != 0) line.Number("SectionType", section.SectionType);
  if (section.SectionFlags != 0) line.Number("SectionFlags", section.SectionFlags);
  line.Reported("FromHour", section.FromHour);
  line.Reported("FromMinute", section.FromMinute);
  line.Reported("ToHour", section.ToHour);
  line.Reported("ToMinute", section.ToMinute);
  line.Reported("AltimeterPressure", section.AltimeterPressure);
  line.Reported("SeaPressureLevel", section.SeaPressureLevel);
  line.Reported("OrizVisibility", section.OrizVisibility);
  line.Reported("VisibilityDir", section.VisibilityDir);
  line.Reported("WindDir", section.WindDir);
  line.Reported("WindSpeed", section.WindSpeed);
  line.Reported("WindDirRange", section.WindDirRange);
  line.Reported("Gust", section.Gust);
  line.Reported("CloudCover", section.CloudCover);
  line.Reported("CloudType", section.CloudType);
  line.Reported("CloudHeigh", section.CloudHeigh);
  for (std::size_t i = 0; i < section.Weather.size(); ++i) {
    if (section.Weather[i] != 0) {
      line.Text("Weather" + std::to_string(i), WeatherBitsText(section.Weather[i]));
    }
  }
}

// All that is not missing: flags (but those of quadrant and type), the report, further sections
// each behind "|", the values of the whole message behind ";". Station and times are left out.
inline std::string Describe(const MetarRawData& raw) {
  FieldLine line;
  line.Reported("Flags",
                std::string_view(BitsText(static_cast<std::uint32_t>(raw.FilterFlags), 7)));
  for (int i = 0; i <= raw.SectionIndex; ++i) {
    if (i > 0) line.Break("|");
    DescribeSection(line, raw.Section[static_cast<std::size_t>(i)]);
  }
  FieldLine whole;
  whole.Reported("ForecastTemperature", raw.ForecastTemperature);
  whole.Reported("ForecastTemperatureHour", raw.ForecastTemperatureHour);
  whole.Reported("Temperature", raw.Temperature);
  whole.Reported("Dewpoint", raw.Dewpoint);
  if (!IsMissing(raw.RVRRunway)) whole.Text("RVRRunway", raw.RVRRunway);
  whole.Reported("RVRVisibility", raw.RVRVisibility);
  whole.Reported("RVRVisibilitymax", raw.RVRVisibilitymax);
  whole.Reported("VerticalVisibility", raw.VerticalVisibility);
  whole.Reported("WindShearLevel", raw.WindShearLevel);
  whole.Reported("WindShearDir", raw.WindShearDir);
  whole.Reported("WindShearSpeed", raw.WindShearSpeed);
  if (!raw.OtherRemarks.empty()) whole.Text("OtherRemarks", "'" + raw.OtherRemarks + "'");
  if (!raw.WindRemarks.empty()) whole.Text("WindRemarks", "'" + raw.WindRemarks + "'");
  whole.Reported("MaxTemperature6h", raw.MaxTemperature6h);
  whole.Reported("MinTemperature6h", raw.MinTemperature6h);
  whole.Reported("MaxTemperature24h", raw.MaxTemperature24h);
  whole.Reported("MinTemperature24h", raw.MinTemperature24h);
  whole.Reported("PrecipHour", raw.PrecipHour);
  whole.Reported("Precip3h", raw.Precip3h);
  whole.Reported("Precip6h", raw.Precip6h);
  whole.Reported("Precip24h", raw.Precip24h);
  whole.Reported("SnowDepth", raw.SnowDepth);
  whole.Reported("PressTendency", raw.PressTendency);
  whole.Reported("PressTendencyVal", raw.PressTendencyVal);
  whole.Reported("LowCloudType", raw.LowCloudType);
  whole.Reported("MiddleCloudType", raw.MiddleCloudType);
  whole.Reported("HighCloudType", raw.HighCloudType);
  whole.Reported("Sunshine", raw.Sunshine);
  whole.Reported("Water", raw.Water);
  const std::string values = whole.Take();
  if (!values.empty()) line.Break("; " + values);
  return line.Take();
}

struct MetarKeeper : DecodeObserver {
  std::string Fields;
  void MetarStored(const MetarRawData& raw, const MetarData&) override { Fields = Describe(raw); }
};

// Decodes typed reports of a station that no list has.
class WordsDecoder {
 public:
  // The fields that `words` set behind the station and, but for a forecast, the time.
  std::string Decode(MessageType type, std::string_view words) {
    std::string text = type == MessageType::TAF ? "LIRF " : "LIRF 151250Z ";
    text += words;
    return DecodeText(type, text);
  }
  // The same for a text that begins with the station.
  std::string DecodeText(MessageType type, std::string_view text) {
    return decoder_.Decode(type, text);
  }
  std::string Wrong() const { return decoder_.Wrong(); }

 private:
  TypedDecoder<MetarDecoder, &MetarDecoder::DecodeMetarMessage, MetarKeeper> decoder_;
};

// Words of a report and all that they set; `wrong` are the words logged as wrong items. One decoder
// takes all cases, so that none may leave a trace.
struct WordsCase {
  const char* name;
  const char* words;
  const char* fields;
  const char* wrong = "";
};

inline void ExpectWords(const std::vector<WordsCase>& cases,
                        MessageType type = MessageType::METAR) {
  WordsDecoder decoder;
  for (const WordsCase& row : cases) {
    EXPECT_EQ(decoder.Decode(type, row.words), row.fields) << row.name << ": " << row.words;
    EXPECT_EQ(decoder.Wrong(), row.wrong) << row.name << ": " << row.words;
  }
}

}  // namespace zg::test
