#include "decode/MessageFilters.h"

#include <algorithm>

#include "decode/ListUtility.h"
#include "text/TextRules.h"

namespace zg {
namespace {

std::uint8_t ReadMask(const GenericUtility& genericUtility, std::string_view key) {
  return ToInteger<std::uint8_t>(Value(genericUtility.GetParameter(key))).value_or(0);
}

}  // namespace

MessageFilters ReadMessageFilters(const GenericUtility& genericUtility) {
  MessageFilters filters;
  filters.CountryList = SplitCountryFilter(genericUtility.GetParameter("CountryFilter"));
  filters.QuadrantMask = ReadMask(genericUtility, "QuadrantFilter");
  filters.StationMask = ReadMask(genericUtility, "StationType");
  return filters;
}

bool CheckCountryList(const std::vector<std::string>& CountryList,
                      std::string_view Country) noexcept {
  if (Country.empty()) return false;
  const std::string_view country = Trim(Country);
  return std::any_of(CountryList.begin(), CountryList.end(), [&](std::string_view element) {
    const std::string_view name = Trim(element);
    return name.empty() || name == country;
  });
}

std::vector<std::string> SplitCountryFilter(std::string_view text) {
  std::vector<std::string> countries = FillList(text);
  if (countries.size() > 1 && countries.back().empty()) countries.pop_back();
  return countries;
}

std::string JoinCountryFilter(const std::vector<std::string>& countries) {
  std::string text;
  for (const std::string& country : countries) {
    text += country;
    text += ", ";
  }
  return text;
}

std::vector<std::string> GetAllCountryList(DBUtility& dbUtility) {
  std::vector<std::string> countries;
  dbUtility.ReadRows("select distinct Country from MeteoStations", [&](const RowView& row) {
    const std::string_view country = Trim(row.Text(0));
    if (!country.empty()) countries.emplace_back(country);
  });
  return countries;
}

}  // namespace zg
