#include "batch/Summary.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "text/TextRules.h"

namespace zg {
namespace {

constexpr std::size_t CountriesNamed = 5;

// What the message types are called in plain words.
struct TypeLine {
  std::string_view type;
  std::string_view text;
};
constexpr std::array<TypeLine, 5> TypeLines = {{
    {"METAR", "METAR   aerodrome reports"},
    {"SPECI", "SPECI   special aerodrome reports"},
    {"TAF", "TAF     aerodrome forecasts"},
    {"AAXX", "AAXX    SYNOP reports from land stations"},
    {"BBXX", "BBXX    SYNOP reports from ships and buoys"},
}};

template <typename Map>
void Count(Map& map, std::string_view key) {
  auto found = map.find(key);
  if (found == map.end()) found = map.emplace(std::string(key), 0).first;
  ++found->second;
}

std::string Line(std::string_view label, std::string_view value) {
  std::string line(label);
  line.resize(std::max<std::size_t>(line.size(), 16), ' ');
  return line.append(value).append("\n");
}

std::string CountText(int count, std::string_view one, std::string_view many) {
  return PlainDecimal(count).append(" ").append(count == 1 ? one : many);
}

}  // namespace

void DecodeSummary::Add(const StationTexts& station) {
  ++messages_;
  Count(byType_, station.Type);
  if (stations_.find(station.Station()) == stations_.end()) stations_.emplace(station.Station());
  // A state of the United States is no country.
  Count(byCountry_, Trim(station.Country().substr(0, station.Country().find(" ["))));
}

void DecodeSummary::AddRun(std::int64_t bytes, std::int64_t milliseconds) noexcept {
  ++files_;
  bytes_ += bytes;
  milliseconds_ += milliseconds;
}

std::string DecodeSummary::Text() const {
  std::string text = Line("Messages", CountText(messages_, "decoded", "decoded") + " from " +
                                          CountText(files_, "file", "files"));
  for (const TypeLine& row : TypeLines) {
    const auto found = byType_.find(row.type);
    if (found == byType_.end()) continue;
    const std::string count = PlainDecimal(found->second);
    text += Line("", std::string(count.size() < 6 ? 6 - count.size() : 0, ' ') + count + "  " +
                         std::string(row.text));
  }
  std::vector<std::pair<std::string_view, int>> countries(byCountry_.begin(), byCountry_.end());
  std::stable_sort(countries.begin(), countries.end(),
                   [](const auto& a, const auto& b) { return a.second > b.second; });
  text += Line("Stations", PlainDecimal(static_cast<int>(stations_.size())));
  std::string named;
  for (std::size_t i = 0; i < std::min(countries.size(), CountriesNamed); ++i) {
    named += (i == 0 ? ": " : ", ") + std::string(countries[i].first);
  }
  if (countries.size() > CountriesNamed) named += " ...";
  text += Line("Countries", PlainDecimal(static_cast<int>(countries.size())) + named);
  text += Line("Not decoded", CountText(wrongLines_, "line", "lines") +
                                  (wrongLines_ > 0 ? ", kept in WrongFiles" : ""));
  const double seconds = std::max(static_cast<double>(milliseconds_) / 1000, 0.001);
  text += Line("Time", FormatNumber(seconds, "0.000") + " s");
  return text + Line("Speed", FormatNumber(messages_ / seconds, "0") + " messages a second, " +
                                  FormatNumber(static_cast<double>(bytes_) / 1e6 / seconds, "0.0") +
                                  " MB/s");
}

}  // namespace zg
