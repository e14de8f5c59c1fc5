#include "tables/ReportUnits.h"

#include <string>

#include "text/TextRules.h"

namespace zg {
namespace {

constexpr std::array<UnitEntry, 2> LevelUnits = {{{"mnuFeet", " ft"}, {"mnuHighMeter", " m"}}};
constexpr std::array<UnitEntry, 3> SpeedUnits = {
    {{"mnuKnots", " KTS"}, {"mnuMeterPerSec", " mps"}, {"mnuKmPerHour", " kmh"}}};
constexpr std::array<UnitEntry, 4> DistanceUnits = {
    {{"mnuMMiles", " NM"}, {"mnuMiles", " SM"}, {"mnuKilometer", " km"}, {"mnuDistMeter", " m"}}};
constexpr std::array<UnitEntry, 2> PressureUnits = {{{"mnuInHg", " inHg"}, {"mnuBar", " hpa"}}};
constexpr std::array<UnitEntry, 2> TemperatureUnits = {
    {{"mnuDegreeCent", " °C"}, {"mnuDegreeFar", " °F"}}};

constexpr std::array<UnitGroup, kUnitKinds> Groups = {{
    {UnitKind::Level, "mnuLevelUnit", "LevelUnit", LevelUnits},
    {UnitKind::Speed, "mnuSpeedUnit", "SpeedUnit", SpeedUnits},
    {UnitKind::Distance, "mnuDistanceUnit", "DistUnit", DistanceUnits},
    {UnitKind::Pressure, "mnuPressureUnit", "PressureUnit", PressureUnits},
    {UnitKind::Temperature, "mnuTemperatureUnit", "TemperUnit", TemperatureUnits},
}};

}  // namespace

const std::array<UnitGroup, kUnitKinds>& UnitGroups() noexcept { return Groups; }

UnitChoice ReadUnits(const GenericUtility& parameters, TextUtility& texts) {
  UnitChoice choice;
  for (const UnitGroup& group : Groups) {
    const std::string unit = " " + parameters.GetParameter(group.Key);
    for (std::size_t i = 0; i < group.Entries.size(); ++i) {
      if (group.Entries[i].Suffix != unit) continue;
      choice.Entries[static_cast<std::size_t>(group.Kind)] = i;
      texts.SetUnit(group.Kind, unit);
    }
  }
  choice.Converts = parameters.GetParameter("UnitConversion") == "Yes";
  if (!choice.Converts) {
    for (const UnitGroup& group : Groups) texts.SetUnit(group.Kind, {});
  }
  return choice;
}

void ReadLanguageAndUnits(const GenericUtility& parameters, TextUtility& texts) {
  texts.SetLanguage(
      ToInteger<std::uint8_t>(Value(parameters.GetParameter("Language"))).value_or(1));
  ReadUnits(parameters, texts);
}

}  // namespace zg
