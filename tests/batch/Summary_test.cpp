#include "batch/Summary.h"

#include <gtest/gtest.h>

#include <deque>

namespace zg {
namespace {

// A station whose place lives as long as the test program.
StationTexts Station(std::string_view type, std::string_view name, std::string_view country) {
  static std::deque<StationPlace> places;
  StationPlace& place = places.emplace_back();
  place.Station = name;
  place.Country = country;
  StationTexts station;
  station.Place = &place;
  station.Type = type;
  return station;
}

bool Has(const std::string& text, std::string_view line) {
  return ("\n" + text).find("\n" + std::string(line) + "\n") != std::string::npos;
}

TEST(Summary, Nothing) {
  const std::string text = DecodeSummary().Text();
  EXPECT_TRUE(Has(text, "Messages        0 decoded from 0 files")) << text;
  EXPECT_TRUE(Has(text, "Stations        0")) << text;
  EXPECT_TRUE(Has(text, "Countries       0")) << text;
  EXPECT_TRUE(Has(text, "Not decoded     0 lines")) << text;
}

TEST(Summary, Counts) {
  DecodeSummary summary;
  summary.Add(Station("METAR", "Denver", "United States [CO]"));
  summary.Add(Station("METAR", "Reno", "United States [NV]"));
  summary.Add(Station("SPECI", "Denver", "United States [CO]"));
  summary.Add(Station("TAF", "Roma", "Italy"));
  summary.Add(Station("AAXX", "Roma", "Italy "));
  summary.Add(Station("BBXX", "DBBH", "Germany"));
  summary.AddWrongLine();
  summary.AddRun(1500000, 400);
  summary.AddRun(500000, 100);
  const std::string text = summary.Text();
  EXPECT_EQ(text,
            "Messages        6 decoded from 2 files\n"
            "                     2  METAR   aerodrome reports\n"
            "                     1  SPECI   special aerodrome reports\n"
            "                     1  TAF     aerodrome forecasts\n"
            "                     1  AAXX    SYNOP reports from land stations\n"
            "                     1  BBXX    SYNOP reports from ships and buoys\n"
            "Stations        4\n"
            "Countries       3: United States, Italy, Germany\n"
            "Not decoded     1 line, kept in WrongFiles\n"
            "Time            0.500 s\n"
            "Speed           12 messages a second, 4.0 MB/s\n");
}

TEST(Summary, ManyCountries) {
  DecodeSummary summary;
  for (const char* country : {"A", "B", "C", "D", "E", "F"}) {
    summary.Add(Station("METAR", country, country));
  }
  summary.Add(Station("METAR", "F", "F"));
  summary.AddRun(1, 0);
  const std::string text = summary.Text();
  EXPECT_TRUE(Has(text, "Countries       6: F, A, B, C, D ...")) << text;
  EXPECT_TRUE(Has(text, "Messages        7 decoded from 1 file")) << text;
}

}  // namespace
}  // namespace zg
