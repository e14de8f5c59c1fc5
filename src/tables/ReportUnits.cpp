#include "tables/ReportUnits.h"

#include <array>
#include <string>
#include <string_view>

#include "text/TextRules.h"

namespace zg {
namespace {

struct UnitKey {
  UnitKind kind;
  std::string_view key;
};
constexpr std::array<UnitKey, kUnitKinds> UnitKeys = {{
    {UnitKind::Level, "LevelUnit"},
    {UnitKind::Speed, "SpeedUnit"},
    {UnitKind::Distance, "DistUnit"},
    {UnitKind::Pressure, "PressureUnit"},
    {UnitKind::Temperature, "TemperUnit"},
}};

}  // namespace

void ReadLanguageAndUnits(const GenericUtility& parameters, TextUtility& texts) {
  texts.SetLanguage(
      ToInteger<std::uint8_t>(Value(parameters.GetParameter("Language"))).value_or(1));
  const bool converts = parameters.GetParameter("UnitConversion") == "Yes";
  for (const UnitKey& row : UnitKeys) {
    // Suffixes begin with a blank; the parameter file stores them trimmed.
    const std::string unit = converts ? parameters.GetParameter(row.key) : std::string();
    texts.SetUnit(row.kind, unit.empty() ? unit : " " + unit);
  }
}

}  // namespace zg
