// The language and the units of reports as the parameters have them, and the table of the units
// that there are to choose from.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "shell/GenericUtility.h"
#include "tables/TextUtility.h"

namespace zg {

// A unit that can be chosen: the menu entry that chooses it, and the suffix that values get, with
// its leading blank.
struct UnitEntry {
  std::string_view Menu;
  std::string_view Suffix;
};

// The units of one kind of quantity: their submenu and the parameter that holds the choice, which
// is a suffix without its blank.
struct UnitGroup {
  UnitKind Kind;
  std::string_view Menu;
  std::string_view Key;
  std::span<const UnitEntry> Entries;
};

// In the order of UnitKind.
const std::array<UnitGroup, kUnitKinds>& UnitGroups() noexcept;

// What the parameters choose.
struct UnitChoice {
  bool Converts = false;  // "UnitConversion" is "Yes"
  // The entry chosen of each group; nothing where the parameter has a text that is no unit.
  std::array<std::optional<std::size_t>, kUnitKinds> Entries;
};

// Reads the units into the texts. A parameter that is no unit leaves the unit of its kind as it
// was. Where values are not converted they stay in the unit of their message: all suffixes are
// empty.
UnitChoice ReadUnits(const GenericUtility& parameters, TextUtility& texts);

// Reads the language ("Language") and the units.
void ReadLanguageAndUnits(const GenericUtility& parameters, TextUtility& texts);

}  // namespace zg
