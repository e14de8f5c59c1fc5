// The filters that decide which messages are decoded into the store: by country, by quadrant of the
// globe and by kind of station.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/GenericUtility.h"
#include "stations/DBUtility.h"

namespace zg {

struct MessageFilters {
  // Names of the countries wanted; one empty name lets every country pass.
  std::vector<std::string> CountryList{std::string()};
  // 1 north-east, 2 south-east, 4 south-west, 8 north-west.
  std::uint8_t QuadrantMask = 15;
  // 1 buoy, 2 ship, 4 land.
  std::uint8_t StationMask = 7;
};

// The filters as the parameters "CountryFilter", "QuadrantFilter" and "StationType" have them. A
// mask that is no number of 8 bits is 0, which lets nothing pass.
MessageFilters ReadMessageFilters(const GenericUtility& genericUtility);

// True if the list lets the country pass. A message without a country never passes.
bool CheckCountryList(const std::vector<std::string>& CountryList,
                      std::string_view Country) noexcept;

// "CountryFilter" into names and back: each name is followed by ", "; nothing behind the last comma
// is no name.
std::vector<std::string> SplitCountryFilter(std::string_view text);
std::string JoinCountryFilter(const std::vector<std::string>& countries);

// The names of all countries of the station table, each once. A database that fails gives none.
std::vector<std::string> GetAllCountryList(DBUtility& dbUtility);

}  // namespace zg
