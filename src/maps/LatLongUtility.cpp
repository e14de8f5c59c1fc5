#include "maps/LatLongUtility.h"

#include <cmath>

#include "text/TextRules.h"

namespace zg {
namespace {

// How the texts of one axis are written.
struct Axis {
  std::string_view degrees;  // number mask
  char positive;
  char negative;
};

constexpr Axis Latitude{"00", 'N', 'S'};
constexpr Axis Longitude{"000", 'E', 'W'};

constexpr std::string_view Minutes = "00";

// Tenths of a degree of a position text without regard to its letter.
double Amount(std::string_view text) noexcept {
  const std::size_t degrees = text.size() == 6 ? 2 : 3;
  if (text.size() != 6 && text.size() != 7) return 0.0;
  return Value(Mid(text, 1, degrees)) * 10.0 + Value(Mid(text, degrees + 2, 2)) / 6.0;
}

float Signed(double amount, bool negative) noexcept {
  return static_cast<float>(negative && amount != 0.0 ? -amount : amount);
}

std::string PositionText(double amount, char letter, const Axis& axis) {
  const double degrees = std::floor(amount / 10.0);
  std::string text = FormatNumber(degrees, axis.degrees);
  text += '.';
  text += FormatNumber(std::fmod(amount, 10.0) * 6.0, Minutes);
  text += letter;
  return text;
}

std::string RoundedPositionText(float value, const Axis& axis) {
  const double amount = std::fabs(static_cast<double>(value));
  const double degrees = std::floor(amount / 10.0);
  std::string text = FormatNumber(degrees, axis.degrees);
  text += '.';
  text += FormatNumber(RoundHalfEven((amount - degrees * 10.0) * 6.0), Minutes);
  text += value < 0.0f ? axis.negative : axis.positive;
  return text;
}

float NumberOf(std::string_view text, const Axis& axis) noexcept {
  if (!Holds(text, ".")) return static_cast<float>(Value(Trim(text)));
  text = Trim(text);
  return Signed(Amount(text), !text.empty() && text.back() == axis.negative);
}

}  // namespace

std::string ComputeLatLong(std::optional<float> Lat, std::optional<float> Long,
                           std::optional<int> Quadrant) {
  if (!Lat || !Long || !Quadrant) return {};
  const int quadrant = *Quadrant;
  if (quadrant != 1 && quadrant != 3 && quadrant != 5 && quadrant != 7) return {};
  const bool south = quadrant == 3 || quadrant == 5;
  const bool west = quadrant == 5 || quadrant == 7;
  return PositionText(std::fabs(static_cast<double>(*Lat)),
                      south ? Latitude.negative : Latitude.positive, Latitude) +
         " " +
         PositionText(std::fabs(static_cast<double>(*Long)),
                      west ? Longitude.negative : Longitude.positive, Longitude);
}

float GetPosition(std::string_view Text) {
  const std::string_view text = Trim(Text);
  const char letter = text.empty() ? ' ' : text.back();
  return Signed(Amount(text), letter == 'S' || letter == 'W');
}

std::string TrimLatLong(std::string_view Text, SixtyMinutes sixtyMinutes) {
  if (Text.size() == 6 || Text.size() == 7) return std::string(Text);
  if (Text.size() != 9 && Text.size() != 10) return {};
  const Axis& axis = Text.size() == 9 ? Latitude : Longitude;
  const std::size_t width = axis.degrees.size();
  double degrees = Value(Mid(Text, 1, width));
  double minutes = Value(Mid(Text, width + 2, 2));
  if (Value(Mid(Text, width + 5, 2)) > 30.0) {
    minutes += 1.0;
    if (minutes >= 60.0) {
      degrees += 1.0;
      if (sixtyMinutes == SixtyMinutes::MakeADegree) minutes = 0.0;
    }
  }
  const std::string text =
      FormatNumber(degrees, axis.degrees) + "." + FormatNumber(minutes, Minutes);
  return std::string(Mid(text, 1, width + 3)) + Text.back();
}

std::string GetStationLatInText(float Value) { return RoundedPositionText(Value, Latitude); }

std::string GetStationLongInText(float Value) { return RoundedPositionText(Value, Longitude); }

float GetStationLatInNum(std::string_view Text) { return NumberOf(Text, Latitude); }

float GetStationLongInNum(std::string_view Text) { return NumberOf(Text, Longitude); }

}  // namespace zg
