// Station blocks made into the texts of a stored record.
#pragma once

#include "decode/MessageStore.h"
#include "decode/StationTexts.h"
#include "stations/StationBlock.h"
#include "tables/TextUtility.h"

namespace zg {

// What sent a message: 1 land for "AAXX"; else 2 (ship) if one of the first two characters of the
// identifier is a capital letter, as in a call sign, and 3 (buoy) if neither is.
std::int32_t ClassifyStation(std::string_view Station, std::string_view Type) noexcept;

// The texts of a block: the country with its state, the name of the quadrant, positions in degrees
// and minutes, the kind of station. `stationRow` is the number of the directory row that filled the
// block, -1 if none did: the texts of a row are made once for a store.
StationTexts FillStationTexts(const StationBlock& block, int stationRow,
                              const TextUtility& textUtility, StoreTexts& texts);

}  // namespace zg
