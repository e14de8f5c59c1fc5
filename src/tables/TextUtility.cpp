#include "tables/TextUtility.h"

#include "tables/CodeTables.h"
#include "text/TextRules.h"

namespace zg {
namespace {

// Codes 90 to 99 of WMO code table 1677: heights told as ranges.
constexpr std::array<std::string_view, 10> kEstimatedHeights = {
    "0 to 50 m",     "50 to 100 m",    "100 to 200 m",   "200 to 300 m",   "300 to 600 m",
    "600 to 1000 m", "1000 to 1500 m", "1500 to 2000 m", "2000 to 2500 m", "> 2500 m"};

// Codes 89 to 100 of WMO code table 4377: more than the scale, then the steps of visibility at sea,
// then solidi.
constexpr std::array<std::string_view, 12> kVisibilitySteps = {
    "> 70.0 km", "> 0.05 km", "0.05 km", "00.2 km", "00.5 km",   "01.0 km",
    "02.0 km",   "04.0 km",   "10.0 km", "20.0 km", "> 50.0 km", "Missing"};

// In this order: what is longer goes before the " m" and " km" that it may hold.
constexpr std::array<std::string_view, 16> kSuffixes = {
    " mm",   " kmh", " km", " ft", " mps", " KTS",     " SM",       " hpa",
    " inHg", " sec", " °C", " °F", " m",   " (Anem.)", " (Estim.)", " deg"};

}  // namespace

std::string TextUtility::CloudHeigh(std::uint8_t key) const {
  const auto metres = [](int height) { return FormatNumber(height, "0 m"); };
  if (key == 0) return "< 30 m";
  if (key <= 50) return metres(key * 30);
  if (key <= 55) return {};
  if (key <= 80) return metres((key - 50) * 300);
  if (key <= 88) return metres((key - 80) * 1500 + 9000);
  if (key == 89) return "> 21000 m";
  if (key <= 99) return std::string(kEstimatedHeights[key - 90U]);
  return {};
}

std::string TextUtility::PrecipitAmount(std::int16_t key) const {
  if (key <= 0 || key > 999) return {};
  if (key <= 988) return FormatNumber(key, "000 mm");
  if (key == 989) return ">989 mm";
  if (key == 990) return "Trace   ";
  return "000 mm";
}

std::string TextUtility::Visibility(std::uint8_t key) const {
  const auto kilometres = [](double distance) { return FormatNumber(distance, "00.0 km"); };
  if (key == 0) return "> 0.1 km";
  if (key <= 50) return kilometres(key / 10.0);
  if (key <= 55) return {};
  if (key <= 80) return kilometres(key - 50);
  if (key <= 88) return kilometres((key - 80) * 5 + 30);
  if (key <= 100) return std::string(kVisibilitySteps[key - 89U]);
  return {};
}

std::string_view TextUtility::Find(std::span<const tables::CodeRow> table, int key) const noexcept {
  if (key < 0 || static_cast<std::size_t>(key) >= table.size()) return {};
  const tables::CodeRow& row = table[static_cast<std::size_t>(key)];
  return Choose(row.Italian, row.English);
}

std::string_view TextUtility::Quadrant(std::int16_t key) const noexcept {
  return Find(tables::kQuadrant, key);
}

std::string_view TextUtility::WindTypeInd(std::uint8_t key) const noexcept {
  return Find(tables::kWindTypeInd, key);
}

std::string_view TextUtility::PrecipInd(std::uint8_t key) const noexcept {
  return Find(tables::kPrecipInd, key);
}

std::string_view TextUtility::StationType(std::uint8_t key) const noexcept {
  return Find(tables::kStationType, key);
}

std::string_view TextUtility::LowestCloud(std::uint8_t key) const noexcept {
  return Find(tables::kLowestCloud, key);
}

std::string_view TextUtility::LowestCloudShort(std::uint8_t key) const noexcept {
  return Find(tables::kLowestCloudShort, key);
}

std::string_view TextUtility::CloudCover(std::uint8_t key) const noexcept {
  return Find(tables::kCloudCover, key);
}

std::string_view TextUtility::CloudCoverShort(std::uint8_t key) const noexcept {
  return Find(tables::kCloudCoverShort, key);
}

std::string_view TextUtility::PressTendency(std::uint8_t key) const noexcept {
  return Find(tables::kPressTendency, key);
}

std::string_view TextUtility::PrecipitDuration(std::uint8_t key) const noexcept {
  return Find(tables::kPrecipitDuration, key);
}

std::string_view TextUtility::PresentWeather(std::uint8_t key) const noexcept {
  return Find(tables::kPresentWeather, key);
}

std::string_view TextUtility::PresentWeatherSymb(std::uint8_t key) const noexcept {
  return Find(tables::kPresentWeatherSymb, key);
}

std::string_view TextUtility::PastWeather(std::uint8_t key) const noexcept {
  return Find(tables::kPastWeather, key);
}

std::string_view TextUtility::PastWeatherSymb(std::uint8_t key) const noexcept {
  return Find(tables::kPastWeatherSymb, key);
}

std::string_view TextUtility::LowCloudType(std::uint8_t key) const noexcept {
  return Find(tables::kLowCloudType, key);
}

std::string_view TextUtility::MiddleCloudType(std::uint8_t key) const noexcept {
  return Find(tables::kMiddleCloudType, key);
}

std::string_view TextUtility::HighCloudType(std::uint8_t key) const noexcept {
  return Find(tables::kHighCloudType, key);
}

std::string_view TextUtility::LowCloudTypeForMetar(std::uint8_t key) const noexcept {
  return Find(tables::kLowCloudTypeForMetar, key);
}

std::string_view TextUtility::MiddleCloudTypeForMetar(std::uint8_t key) const noexcept {
  return Find(tables::kMiddleCloudTypeForMetar, key);
}

std::string_view TextUtility::HighCloudTypeForMetar(std::uint8_t key) const noexcept {
  return Find(tables::kHighCloudTypeForMetar, key);
}

std::string_view TextUtility::ShipDirection(std::uint8_t key) const noexcept {
  return Find(tables::kShipDirection, key);
}

std::string_view TextUtility::ShipDirectionShort(std::uint8_t key) const noexcept {
  return Find(tables::kShipDirectionShort, key);
}

std::string_view TextUtility::ShipAvSpeed(std::uint8_t key) const noexcept {
  return Find(tables::kShipAvSpeed, key);
}

std::string_view TextUtility::ShipAvSpeedShort(std::uint8_t key) const noexcept {
  return Find(tables::kShipAvSpeedShort, key);
}

std::string_view TextUtility::SnowState(std::uint8_t key) const noexcept {
  return Find(tables::kSnowState, key);
}

std::string_view TextUtility::TypeOfCloud(std::uint8_t key) const noexcept {
  return Find(tables::kTypeOfCloud, key);
}

std::string_view TextUtility::TypeOfCloudShort(std::uint8_t key) const noexcept {
  return Find(tables::kTypeOfCloudShort, key);
}

std::string_view TextUtility::SeaTemperType(std::uint8_t key) const noexcept {
  return Find(tables::kSeaTemperType, key);
}

std::string_view TextUtility::ShipIceAccretion(std::uint8_t key) const noexcept {
  return Find(tables::kShipIceAccretion, key);
}

std::string_view TextUtility::RateIceAccretion(std::uint8_t key) const noexcept {
  return Find(tables::kRateIceAccretion, key);
}

std::string_view TextUtility::WetTemperType(std::uint8_t key) const noexcept {
  return Find(tables::kWetTemperType, key);
}

std::string_view TextUtility::SeaIceConcentration(std::uint8_t key) const noexcept {
  return Find(tables::kSeaIceConcentration, key);
}

std::string_view TextUtility::SeaIceStage(std::uint8_t key) const noexcept {
  return Find(tables::kSeaIceStage, key);
}

std::string_view TextUtility::SeaIceBearingEdge(std::uint8_t key) const noexcept {
  return Find(tables::kSeaIceBearingEdge, key);
}

std::string_view TextUtility::IceOfLandOrigin(std::uint8_t key) const noexcept {
  return Find(tables::kIceOfLandOrigin, key);
}

std::string_view TextUtility::IceSituation(std::uint8_t key) const noexcept {
  return Find(tables::kIceSituation, key);
}

std::string_view TextUtility::Weather(std::uint8_t key) const noexcept {
  return Find(tables::kWeather, key);
}

std::string_view TextUtility::WeatherSymb(std::uint8_t) const noexcept { return {}; }

std::string TextUtility::RemoveUnits(std::string_view text) {
  std::string result(text);
  if (text.empty() || !(IsDigit(text[0]) || Holds("+-><", text.substr(0, 1)))) return result;
  for (std::string_view suffix : kSuffixes) {
    if (Holds(result, suffix)) result = ReplaceAll(result, suffix, "");
  }
  return result;
}

}  // namespace zg
