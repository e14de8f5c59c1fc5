// The language and the units of reports as the parameters have them.
#pragma once

#include "shell/GenericUtility.h"
#include "tables/TextUtility.h"

namespace zg {

// Sets the language from "Language", and the units from "LevelUnit", "SpeedUnit", "DistUnit",
// "PressureUnit" and "TemperUnit" if "UnitConversion" is "Yes"; else values stay in the units of
// the messages.
void ReadLanguageAndUnits(const GenericUtility& parameters, TextUtility& texts);

}  // namespace zg
