// Units of measurement: value texts such as "1013.2 hpa", "100 to 200 m" or "5 KTS (Anem.)" turned
// into the unit that the user has chosen, and given a form of fixed width.
//
// Everything here works on texts, so that measured values, ranges and texts of code tables go the
// same way; a text without a known unit passes. A unit is known by its suffix, which begins with
// one blank. A decimal comma is read as a point, and a number is written with a point. Missing
// values do not come here. Nothing fails: a text without a number stays as it is.
#pragma once

#include <string>
#include <string_view>

#include "tables/TextUtility.h"

namespace zg {

// Conversions of one number, given and returned as text. The number is the one that the text
// begins with, 0 if it begins with none; the result has four decimals ("16.4042").

// Whole tens of metres or feet, rounded down (1 ft = 0.3048 m).
std::string ConvertFeetToMeter(std::string_view text);
std::string ConvertMeterToFeet(std::string_view text);

// Speed: metres a second, kilometres an hour, knots (1 kt = 1.852 km/h).
std::string ConvertKmhToMps(std::string_view text);
std::string ConvertMpsToKmh(std::string_view text);
std::string ConvertMpsToKt(std::string_view text);
std::string ConvertKtToMps(std::string_view text);
std::string ConvertKmhToKt(std::string_view text);
std::string ConvertKtToKmh(std::string_view text);

// Distance: metres, kilometres, statute miles (1 mi = 1.6093 km), nautical miles (1 NM = 1.852 km).
std::string ConvertMeterToKm(std::string_view text);
std::string ConvertKmToMeter(std::string_view text);
std::string ConvertMeterToMiles(std::string_view text);
std::string ConvertMeterToMarineMiles(std::string_view text);
std::string ConvertMilesToMeter(std::string_view text);
std::string ConvertMilesToKm(std::string_view text);
std::string ConvertMilesToMarineMiles(std::string_view text);
std::string ConvertKmToMiles(std::string_view text);
std::string ConvertKmToMarineMiles(std::string_view text);

// Pressure: hectopascals (millibars), inches of mercury (1 inHg = 33.8639 hPa).
std::string ConvertMbarToInhg(std::string_view text);
std::string ConvertInhgToMbar(std::string_view text);

// Temperature: degrees Celsius and Fahrenheit.
std::string ConvertDegCToFar(std::string_view text);
std::string ConvertFarToDegC(std::string_view text);

// Inches to whole millimetres, rounded down, as plain decimal text without decimals.
std::string ConvertInchToMillimeter(std::string_view text);

// The number of a text at place `index` (from 1) as plain decimal text; empty if there are fewer.
// Numbers that equal 0 do not count: in "0 to 50 m" the first number is "50", so that a 0 keeps its
// form when its unit changes. Only the first number has a sign, and only at the beginning of the
// text; everywhere else "-" divides numbers.
std::string GetValueOnString(std::string_view text, int index);

// Formats what stands ahead of the first blank by a number mask ("00.0"), or the whole text if it
// has no blank: "5 mps" gives "05.0 mps". What is no number stays: "> 2500 m". Decimals ".0" and
// ".00" ahead of a blank, left by an earlier format, are taken off first.
std::string FormatByMask(std::string_view text, std::string_view mask);

// Takes the leading zeros off a formatted value, and blanks off its ends: "00300 m" gives "300 m".
// A single zero ahead of a blank stays ("0 to 50 m"); a text of zeros only becomes empty.
std::string RemoveLeadingZeros(std::string_view text);

class ConversionUtility {
 public:
  // `units` says which units are chosen; it is not owned, and asked at each call.
  explicit ConversionUtility(const TextUtility& units) noexcept : units_(units) {}

  // The text in the unit chosen for the kind, both ends of a range, the first number by the mask of
  // the unit. With `viewUnit` false the unit is left out. A text without a unit of this kind, or
  // with one that has no way to the chosen unit, comes back trimmed.
  std::string ConvertToReqUnit(std::string_view text, UnitKind kind, bool viewUnit) const;

  // The same for the number of a kind; above 4 the text comes back trimmed.
  std::string ConvertToReqUnit(std::string_view text, unsigned unitType, bool viewUnit) const;

 private:
  const TextUtility& units_;
};

}  // namespace zg
