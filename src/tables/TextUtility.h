// What codes mean in the language in force, and the units that the user has chosen.
//
// One TextUtility serves a whole run. It holds the language and the units only: the texts are the
// constant tables of CodeTables.h, so that a view of one stays valid for the life of the program,
// whatever language is chosen later. Texts are UTF-8.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zg {

namespace tables {
struct CodeRow;
}

// The kinds of quantities whose unit the user chooses.
enum class UnitKind : unsigned {
  Level = 0,
  Speed = 1,
  Distance = 2,
  Pressure = 3,
  Temperature = 4
};
inline constexpr std::size_t kUnitKinds = 5;

class TextUtility {
 public:
  // The language in force: 0 is Italian, any other value is English.
  std::uint8_t Language() const noexcept { return language_; }
  void SetLanguage(std::uint8_t language) noexcept { language_ = language; }
  bool IsItalian() const noexcept { return language_ == 0; }

  // The one of the two texts that is in the language in force.
  std::string_view Choose(std::string_view italian, std::string_view english) const noexcept {
    return IsItalian() ? italian : english;
  }

  // The suffix of the unit chosen for a kind, with its leading blank (" kmh"). Empty: values stay
  // in the unit of the message. The view holds until the kind's next SetUnit.
  std::string_view Unit(UnitKind kind) const noexcept {
    return units_[static_cast<std::size_t>(kind)];
  }
  void SetUnit(UnitKind kind, std::string_view suffix) {
    units_[static_cast<std::size_t>(kind)] = suffix;
  }

  bool SameLanguageAndUnits(const TextUtility& other) const noexcept {
    return language_ == other.language_ && units_ == other.units_;
  }

  // hshs, height of the base of a cloud layer (WMO code table 1677) in metres: 56 is "1800 m".
  // Codes 51 to 55 and above 99 are empty. The same in both languages, as are the next two.
  std::string CloudHeigh(std::uint8_t key) const;

  // RRR, amount of precipitation (WMO code table 3590) in whole millimetres: 1 is "001 mm". 0 and
  // codes out of the table are empty. 991 to 999, the tenths, are less than a whole millimetre and
  // read "000 mm".
  std::string PrecipitAmount(std::int16_t key) const;

  // VV, horizontal visibility (WMO code table 4377) in kilometres: 50 is "05.0 km". 51 to 55 and
  // codes above 100 are empty; 100 stands for solidi and is "Missing".
  std::string Visibility(std::uint8_t key) const;

  // The code tables, named as in CodeTables.h. A code without a meaning, and one beyond the table,
  // is an empty text.
  std::string_view Quadrant(std::int16_t key) const noexcept;
  std::string_view WindTypeInd(std::uint8_t key) const noexcept;
  std::string_view PrecipInd(std::uint8_t key) const noexcept;
  std::string_view StationType(std::uint8_t key) const noexcept;
  std::string_view LowestCloud(std::uint8_t key) const noexcept;
  std::string_view LowestCloudShort(std::uint8_t key) const noexcept;
  std::string_view CloudCover(std::uint8_t key) const noexcept;
  std::string_view CloudCoverShort(std::uint8_t key) const noexcept;
  std::string_view PressTendency(std::uint8_t key) const noexcept;
  std::string_view PrecipitDuration(std::uint8_t key) const noexcept;
  std::string_view PresentWeather(std::uint8_t key) const noexcept;
  std::string_view PresentWeatherSymb(std::uint8_t key) const noexcept;
  std::string_view PastWeather(std::uint8_t key) const noexcept;
  std::string_view PastWeatherSymb(std::uint8_t key) const noexcept;
  std::string_view LowCloudType(std::uint8_t key) const noexcept;
  std::string_view MiddleCloudType(std::uint8_t key) const noexcept;
  std::string_view HighCloudType(std::uint8_t key) const noexcept;
  std::string_view LowCloudTypeForMetar(std::uint8_t key) const noexcept;
  std::string_view MiddleCloudTypeForMetar(std::uint8_t key) const noexcept;
  std::string_view HighCloudTypeForMetar(std::uint8_t key) const noexcept;
  std::string_view ShipDirection(std::uint8_t key) const noexcept;
  std::string_view ShipDirectionShort(std::uint8_t key) const noexcept;
  std::string_view ShipAvSpeed(std::uint8_t key) const noexcept;
  std::string_view ShipAvSpeedShort(std::uint8_t key) const noexcept;
  std::string_view SnowState(std::uint8_t key) const noexcept;
  std::string_view TypeOfCloud(std::uint8_t key) const noexcept;
  std::string_view TypeOfCloudShort(std::uint8_t key) const noexcept;
  std::string_view SeaTemperType(std::uint8_t key) const noexcept;
  std::string_view ShipIceAccretion(std::uint8_t key) const noexcept;
  std::string_view RateIceAccretion(std::uint8_t key) const noexcept;
  std::string_view WetTemperType(std::uint8_t key) const noexcept;
  std::string_view SeaIceConcentration(std::uint8_t key) const noexcept;
  std::string_view SeaIceStage(std::uint8_t key) const noexcept;
  std::string_view SeaIceBearingEdge(std::uint8_t key) const noexcept;
  std::string_view IceOfLandOrigin(std::uint8_t key) const noexcept;
  std::string_view IceSituation(std::uint8_t key) const noexcept;
  std::string_view Weather(std::uint8_t key) const noexcept;
  // Weather of aerodrome reports has no symbols: always empty.
  std::string_view WeatherSymb(std::uint8_t key) const noexcept;

  // Takes the unit suffixes off a value: "> 2500 m" gives "> 2500", "5.1 mps (Anem.)" gives "5.1".
  // A text that does not begin with a digit, a sign, "<" or ">" is no value and stays as it is.
  static std::string RemoveUnits(std::string_view text);

 private:
  // The text of a code in the language in force, empty where the table has none.
  std::string_view Find(std::span<const tables::CodeRow> table, int key) const noexcept;

  std::uint8_t language_ = 1;
  std::array<std::string, kUnitKinds> units_;
};

}  // namespace zg
