// The groups of METAR, SPECI and TAF (code forms FM 15, FM 16, FM 51 of WMO-No. 306), and the one
// ordered table in which they are tried.
#include <algorithm>
#include <bit>
#include <cmath>

#include "decode/Heading.h"
#include "decode/aero/MetarWalk.h"
#include "shell/GenericUtility.h"

namespace zg {
namespace {

constexpr int MaxRewrites = 16;  // of one word; a cloud form is written in front of one group

void Set(MetarWalk& walk, unsigned flag) noexcept { SetFlag(walk.Raw.FilterFlags, flag); }

bool SetRounded(std::int32_t& field, double value, double rounding) noexcept {
  const double whole = std::floor(value + rounding);
  if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) return false;
  field = static_cast<std::int32_t>(whole);
  return true;
}

std::string Without(std::string_view word, char letter) {
  std::string rest(word);
  std::erase(rest, letter);
  return rest;
}

// --- Words of the report as a whole ------------------------------------------------------------

Verdict TryTypeWord(MetarWalk&, std::string_view word) {
  return word == "TAF" ? Verdict::Taken : Verdict::Declined;
}

// Words that stand for themselves and set a flag.
enum class FlagWord { Auto, Cavok, Nosig, Nsw, Nsc, Clr, Skc };
struct FlagRow {
  std::string_view word;
  unsigned flag;
};
constexpr std::array<FlagRow, 7> FlagRows = {{
    {"AUTO", MetarFlag::Auto},
    {"CAVOK", MetarFlag::Cavok},
    {"NOSIG", MetarFlag::NoSignificantChange},
    {"NSW", MetarFlag::NoSignificantChange},
    {"NSC", MetarFlag::Nsc},
    {"CLR", MetarFlag::Clr},
    {"SKC", MetarFlag::Skc},
}};

template <FlagWord Row>
Verdict TryFlag(MetarWalk& walk, std::string_view word) {
  constexpr const FlagRow& row = FlagRows[static_cast<std::size_t>(Row)];
  if (word != row.word) return Verdict::Declined;
  Set(walk, row.flag);
  return Verdict::Taken;
}

// --- Visibility --------------------------------------------------------------------------------

// VVVV with up to two letters of direction Dv, or solidi in their place, as it follows the wind.
bool IsVisibility(std::string_view word) noexcept {
  if (word.size() < 4 || word.size() > 6 || !IsDigits(word.substr(0, 4))) return false;
  const std::string_view behind = word.substr(4);
  return behind.empty() || IsSolidi(behind) ||
         behind.find_first_not_of("NESW") == std::string_view::npos;
}

void DecodeVisibility(MetarWalk& walk, std::string_view word) {
  Set(walk, MetarFlag::VisibilityMetres);
  MetarRawSection& section = walk.Section();
  SetLenient(section.OrizVisibility, word.substr(0, 4));
  if (!IsNotReported(word.substr(4))) section.VisibilityDir = walk.Scratch.Text(word.substr(4, 2));
}

Verdict TryTenKilometres(MetarWalk& walk, std::string_view word) {
  if (word != "9999") return Verdict::Declined;
  Set(walk, MetarFlag::VisibilityMetres);
  walk.Section().OrizVisibility = 10000;
  return Verdict::Taken;
}

// Whole miles ahead of a fraction: 1 1/2SM.
Verdict TryWholeMiles(MetarWalk& walk, std::string_view word) {
  if (word.size() != 1 || walk.IsLastWord()) return Verdict::Declined;
  Set(walk, MetarFlag::VisibilityMiles);
  std::int32_t& visibility = walk.Section().OrizVisibility;
  visibility = (word[0] - '0') * 1000;
  const std::string_view next = walk.Ahead();
  if (!next.ends_with("SM")) return Verdict::Taken;
  const double divisor = Value(Mid(next, 3));
  if (divisor == 0) return Verdict::Taken;
  ++walk.WordIndex;
  return TakenIf(
      SetRounded(visibility, visibility + std::trunc(Value(Mid(next, 1, 1)) / divisor * 1000), 0));
}

Verdict TryKilometres(MetarWalk& walk, std::string_view word) {
  Set(walk, MetarFlag::VisibilityMetres);
  return TakenIf(SetLenient<1000>(walk.Section().OrizVisibility, word.substr(0, word.size() - 2)));
}

// VVVVVSM: whole miles, a fraction, or both written together (11/2SM); P6SM above, M1/4SM below.
Verdict TryMiles(MetarWalk& walk, std::string_view word) {
  Set(walk, MetarFlag::VisibilityMiles);
  std::int32_t& visibility = walk.Section().OrizVisibility;
  if (word == "P6SM") {
    visibility = 6000;
    return Verdict::Taken;
  }
  if (IsNotReported(word.substr(0, word.size() - 2))) return Verdict::Taken;
  double whole = 0;
  double part = Value(word);
  double divisor = 1;
  if (Holds(word, '/')) {
    if (word.size() == 6 && IsDigit(word[1])) {
      whole = Value(Mid(word, 1, 1));
      part = Value(Mid(word, 2, 1));
      divisor = Value(Mid(word, 4, 1));
    } else {
      divisor = Value(Mid(word, 3));
    }
  }
  if (divisor == 0) return Verdict::Wrong;
  return TakenIf(SetRounded(visibility, whole * 1000 + part / divisor * 1000, 0.5));
}

Verdict TryVerticalVisibility(MetarWalk& walk, std::string_view word) {
  if (!word.starts_with("VV")) return Verdict::Declined;
  return TakenIf(SetLenient(walk.Raw.VerticalVisibility, word.substr(2)));
}

// R24/P1500, R06L/1000V1500U, R24/2000V4000FT: runway, value or range, tendency.
Verdict TryRunwayVisualRange(MetarWalk& walk, std::string_view word) {
  const std::size_t solidus = word.find('/');
  MetarRawData& raw = walk.Raw;
  raw.RVRRunway = walk.Scratch.Text(word.substr(1, solidus - 1));
  std::string range(word);
  if (Holds(range, "FT")) {
    Set(walk, MetarFlag::RvrFeet);
    range = ReplaceAll(range, "FT", "");
  }
  range.erase(0, std::min(range.find('/') + 1, range.size()));
  if (Holds(range, 'M')) {
    Set(walk, MetarFlag::RvrBelow);
    std::erase(range, 'M');
  } else if (Holds(range, 'P')) {
    Set(walk, MetarFlag::RvrAbove);
    std::erase(range, 'P');
  }
  std::erase_if(range, [](char c) { return c == 'D' || c == 'U' || c == 'N'; });
  const std::size_t v = range.find('V');
  if (v == std::string::npos) return TakenIf(SetLenient(raw.RVRVisibility, range));
  return TakenIf(SetStrict(raw.RVRVisibility, std::string_view(range).substr(0, v)) &&
                 SetStrict(raw.RVRVisibilitymax, std::string_view(range).substr(v + 1)));
}

// --- Wind --------------------------------------------------------------------------------------

// dndndnVdxdxdx, the limits of a variable direction.
bool IsDirectionRange(std::string_view word) noexcept {
  return Holds(word, 'V') && IsNumeric(Mid(word, 1, 3)) && IsNumeric(Right(word, 3));
}

// The unit of wind speed that a word ends in.
std::string_view UnitOfWind(std::string_view word) noexcept {
  return Right(word, word.ends_with("KT") ? 2 : 3);
}

// dddffGfmfm with its unit, and the visibility or the directions that follow it. Only here a word
// of four figures is a visibility.
Verdict TryWind(MetarWalk& walk, std::string_view word) {
  if (word.starts_with("WS")) return Verdict::Declined;
  MetarRawSection& section = walk.Section();
  // A part that begins in the unit is not there: 27010GKT has no gust.
  const std::size_t unit = word.size() - UnitOfWind(word).size() + 1;
  const auto part = [&](std::size_t start, std::size_t count) {
    return start < unit ? Mid(word, start, count) : std::string_view{};
  };
  Set(walk, word.ends_with("KT") || Holds(word, "KT") ? MetarFlag::WindKt
            : Holds(word, "KMH")                      ? MetarFlag::WindKmh
                                                      : MetarFlag::WindMps);
  // Most are figures up to the unit, and hold nothing else.
  const bool plain = unit == 6 && IsDigits(word.substr(0, 5));
  if (!plain && Holds(word, 'V') && Holds(word, "VRB")) {
    Set(walk, MetarFlag::WindVariable);
  } else if (!SetLenient<1, 10>(section.WindDir, part(1, 3))) {
    return Verdict::Wrong;
  }
  if (!SetStrict(section.WindSpeed, part(4, 2))) return Verdict::Wrong;
  if (!plain && Holds(word, 'G') && !SetStrict(section.Gust, part(7, 2))) return Verdict::Wrong;
  if (walk.IsLastWord()) return Verdict::Taken;

  const std::string_view next = walk.Ahead();
  if (IsVisibility(next)) {
    DecodeVisibility(walk, next);
    ++walk.WordIndex;
  } else if (IsDirectionRange(next)) {
    std::string range(next);
    range[3] = '-';
    section.WindDirRange = walk.Scratch.Copy(Windows1252ToUtf8(range));
    ++walk.WordIndex;
  }
  return Verdict::Taken;
}

// WS020/24045KT; without values the word is a warning for the runways.
Verdict TryWindShear(MetarWalk& walk, std::string_view word) {
  if (!word.starts_with("WS")) return Verdict::Declined;
  if (!word.ends_with("KT")) {
    Set(walk, MetarFlag::WindShear);
    return Verdict::Taken;
  }
  const std::size_t solidus = word.find('/');
  if (solidus == std::string_view::npos) return Verdict::Taken;
  const std::string_view behind = word.substr(solidus + 1);
  return TakenIf(SetLenient(walk.Raw.WindShearLevel, Mid(word.substr(0, solidus), 3)) &&
                 SetStrict(walk.Raw.WindShearDir, Mid(behind, 1, 3)) &&
                 SetLenient(walk.Raw.WindShearSpeed, Mid(behind, 4)));
}

// --- Pressure and temperature ------------------------------------------------------------------

// QPHPHPHPH in hectopascals or APHPHPHPH in hundredths of an inch.
Verdict TryAltimeter(MetarWalk& walk, std::string_view word) {
  const std::string_view setting = word.substr(1);
  if (std::uint32_t whole = 0; setting.size() == 4 && ReadFigures(setting, whole)) {
    walk.Section().AltimeterPressure = static_cast<std::int16_t>(whole);
    return Verdict::Taken;
  }
  if (Holds(word, '.')) return TryAltimeter(walk, Without(word, '.'));
  if (setting.size() != 4 || !IsNumeric(setting)) return Verdict::Declined;
  return TakenIf(SetStrict(walk.Section().AltimeterPressure, setting));
}

Verdict TryQnh(MetarWalk& walk, std::string_view word) {
  const std::string_view setting = Mid(word, 4, 4);
  if (!word.starts_with("QNH") || setting.size() != 4 || !IsNumeric(setting)) {
    return Verdict::Declined;
  }
  walk.Raw.FilterFlags &= ~(1 << MetarFlag::SeaPressure);
  return TakenIf(SetStrict(walk.Section().SeaPressureLevel, setting));
}

bool HasCloudCover(std::string_view word) noexcept {
  const std::string_view cover = word.substr(0, 3);
  return cover == "FEW" || cover == "SCT" || cover == "BKN" || cover == "OVC";
}

// T25/12Z: a temperature of a forecast and its hour. Two of them have a place.
Verdict TryForecastTemperature(MetarWalk& walk, std::string_view before, std::string_view behind) {
  if (!IsNumeric(before) && !IsNumeric(behind)) return Verdict::Declined;
  ++walk.ForecastIndex;
  const auto index = static_cast<std::size_t>(walk.ForecastIndex);
  if (index >= walk.Raw.ForecastTemperature.size()) return Verdict::Wrong;
  if (IsNumeric(before)) {
    const auto value = ToInteger<std::uint8_t>(Value(before) + 100);
    if (!value) return Verdict::Wrong;
    walk.Raw.ForecastTemperature[index] = *value;
  }
  if (!IsNumeric(behind)) return Verdict::Taken;
  return TakenIf(SetStrict(walk.Raw.ForecastTemperatureHour[index], behind));
}

// Degrees, strictly, with M or "-" for minus.
std::optional<double> ReadDegrees(std::string_view part) noexcept {
  if (!part.starts_with('M')) return StrictNumber(part);
  part.remove_prefix(1);
  if (part.starts_with('+') || part.starts_with('-')) return std::nullopt;
  const std::optional<double> number = StrictNumber(part);
  if (!number) return std::nullopt;
  return -*number;
}

// Puts degrees into a field, unless there are none. False if the field cannot hold the number.
bool SetDegrees(float& field, std::optional<double> degrees) noexcept {
  if (!degrees) return true;
  const std::optional<float> value = ToSingle(*degrees + 0.0);  // no minus ahead of a zero
  if (value) field = *value;
  return value.has_value();
}

// True if there are figures, solidi and M only, as in most temperatures.
bool IsPlainTemperature(std::string_view word) noexcept {
  return std::all_of(word.begin(), word.end(),
                     [](char c) { return (c >= '/' && c <= '9') || c == 'M'; });
}

// T'T'/T'dT'd in whole degrees, M for minus; with a T the form of a forecast.
Verdict TryTemperature(MetarWalk& walk, std::string_view word) {
  const bool plain = IsPlainTemperature(word);
  const bool runway = word.size() > 1 && word[0] == 'R' && IsDigit(word[1]);
  if (!plain && (runway || Holds(word, "SM") || HasCloudCover(word))) return Verdict::Declined;
  const bool forecast = !plain && Holds(word, 'T');
  if (forecast) {
    std::string group(word);
    std::erase_if(group, [](char c) { return c == 'T' || c == 'Z'; });
    std::replace(group.begin(), group.end(), 'M', '-');
    const std::size_t solidus = group.find('/');
    return TryForecastTemperature(walk, std::string_view(group).substr(0, solidus),
                                  std::string_view(group).substr(solidus + 1));
  }
  std::size_t solidus = 0;
  while (word[solidus] != '/') ++solidus;
  const std::optional<double> temperature = ReadDegrees(word.substr(0, solidus));
  const std::optional<double> dewpoint = ReadDegrees(word.substr(solidus + 1));
  if (!temperature && !dewpoint) return Verdict::Declined;
  return TakenIf(SetDegrees(walk.Raw.Temperature, temperature) &&
                 SetDegrees(walk.Raw.Dewpoint, dewpoint));
}

// --- Clouds ------------------------------------------------------------------------------------

// NsNsNshshshs(cc): cover, height in hundreds of feet, form. A fourth layer replaces the third.
template <std::uint8_t Cover>
Verdict TryCloud(MetarWalk& walk, std::string_view word) {
  constexpr std::string_view code = Cover == 6   ? "BKN"
                                    : Cover == 1 ? "FEW"
                                    : Cover == 3 ? "SCT"
                                                 : "OVC";
  if (!word.starts_with(code)) return Verdict::Declined;
  MetarRawSection& section = walk.Section();
  const std::size_t layer = walk.CloudLayer;
  section.CloudCover[layer] = Cover;
  if (!SetLenient(section.CloudHeigh[layer], Mid(word, 4, 3))) return Verdict::Wrong;
  const std::string_view form = Mid(word, 7);
  if (!IsNotReported(form)) section.CloudType[layer] = form == "TCU" ? 8 : 9;
  if (walk.CloudLayer + 1 < MetarCloudLayers) ++walk.CloudLayer;
  return Verdict::Taken;
}

// Forms of cloud that may stand by themselves, with their type (WMO code table 0500).
enum class CloudForm { TowerCumulus, Cumulonimbus, Cumulus };
struct CloudFormRow {
  std::string_view word;
  std::uint8_t type;
};
constexpr std::array<CloudFormRow, 3> CloudFormRows = {{{"TCU", 8}, {"CB", 9}, {"CU", 9}}};

// A form of cloud by itself, or written ahead of its group: TCUSCT030 is read as SCT030TCU.
template <CloudForm Row>
Verdict TryCloudForm(MetarWalk& walk, std::string_view word) {
  constexpr std::string_view form = CloudFormRows[static_cast<std::size_t>(Row)].word;
  if (!word.starts_with(form)) return Verdict::Declined;
  if (word.size() == form.size()) {
    walk.Section().CloudType[walk.CloudLayer] = CloudFormRows[static_cast<std::size_t>(Row)].type;
    return Verdict::Taken;
  }
  if (walk.Forms.size() >= MaxRewrites) return Verdict::Declined;
  walk.Forms.push_back(word);
  const std::string_view rewritten =
      walk.Scratch.Copy(std::string(word.substr(form.size())).append(form));
  if (std::find(walk.Forms.begin(), walk.Forms.end(), rewritten) != walk.Forms.end()) {
    return Verdict::Declined;
  }
  walk.Word = rewritten;
  return Verdict::Again;
}

// --- Change groups -----------------------------------------------------------------------------

// GGGeGe, the hours of a change.
bool IsChangePeriod(std::string_view word) noexcept { return word.size() == 4 && IsNumeric(word); }

bool SetPeriod(MetarRawSection& section, std::string_view period) noexcept {
  section.FromMinute = section.ToMinute = 0;
  return SetStrict(section.FromHour, period.substr(0, 2)) &&
         SetStrict(section.ToHour, period.substr(2));
}

// Opens the section of a change group and reads its period, if one follows.
Verdict OpenChange(MetarWalk& walk, std::uint8_t type) {
  walk.OpenSection();
  walk.Section().SectionType = type;
  const std::string_view period = walk.Ahead();
  if (!IsChangePeriod(period)) return Verdict::Taken;
  ++walk.WordIndex;
  return TakenIf(SetPeriod(walk.Section(), period));
}

Verdict TryBecmg(MetarWalk& walk, std::string_view word) {
  if (!Holds(word, "BECMG")) return Verdict::Declined;
  return walk.IsLastWord() ? Verdict::Taken : OpenChange(walk, SectionKind::Becmg);
}

Verdict TryTempo(MetarWalk& walk, std::string_view word) {
  if (word != "TEMPO" || walk.IsLastWord()) return Verdict::Declined;
  return OpenChange(walk, SectionKind::Tempo);
}

Verdict TryInter(MetarWalk& walk, std::string_view word) {
  if (word != "INTER" || walk.IsLastWord()) return Verdict::Declined;
  return OpenChange(walk, SectionKind::Inter);
}

// FMGG or FMGGgg. The minutes of the longer form are not kept.
Verdict TryFrom(MetarWalk& walk, std::string_view word) {
  if (!word.starts_with("FM")) return Verdict::Declined;
  const std::string time = Without(word, 'Z');
  const std::string_view hours = std::string_view(time).substr(2);
  if ((hours.size() != 2 && hours.size() != 4) || !IsDigits(hours)) return Verdict::Declined;
  walk.OpenSection();
  MetarRawSection& section = walk.Section();
  section.SectionType = SectionKind::From;
  section.FromMinute = 0;
  return TakenIf(SetStrict(section.FromHour, hours.substr(0, 2)));
}

// PROB30 or PROB40, alone or with TEMPO or INTER, and the period. Without a period the change word
// behind it opens a section of its own.
Verdict TryProb(MetarWalk& walk, std::string_view word) {
  if (!Holds(word, "PROB")) return Verdict::Declined;
  walk.OpenSection();
  MetarRawSection& section = walk.Section();
  const std::string_view percent = Mid(word, 5, 2);
  if (percent == "30") section.SectionType = SectionKind::Prob30;
  if (percent == "40") section.SectionType = SectionKind::Prob40;
  std::size_t k = 1;
  if (walk.Ahead(k) == "TEMPO") {
    section.SectionFlags |= 1;
    ++k;
  }
  if (walk.Ahead(k) == "INTER") {
    section.SectionFlags |= 2;
    ++k;
  }
  const std::string_view period = walk.Ahead(k);
  if (period.empty()) return Verdict::Wrong;  // the word list ends
  if (!IsChangePeriod(period)) return Verdict::Taken;
  walk.WordIndex += k;
  return TakenIf(SetPeriod(section, period));
}

Verdict TryRemarks(MetarWalk& walk, std::string_view word) {
  if (word != "RMK") return Verdict::Declined;
  walk.OpenSection();
  walk.Section().SectionType = SectionKind::Remarks;
  walk.InRemarks = true;
  return Verdict::Taken;
}

// --- Free words of forecasts -------------------------------------------------------------------

// AFT 12 or AFT 1230: what is told holds after that time.
Verdict TryAfter(MetarWalk& walk, std::string_view word) {
  if (word != "AFT") return Verdict::Declined;
  std::string& remarks = walk.Raw.WindRemarks;
  remarks.insert(0, "After ");
  const std::string time = Without(walk.Ahead(), 'Z');
  if (!IsDigits(time) || (time.size() != 2 && time.size() != 4)) return Verdict::Declined;
  remarks += time.substr(0, 2);
  remarks += time.size() == 2 ? ":00 " : ":" + time.substr(2) + " ";
  ++walk.WordIndex;
  return Verdict::Taken;
}

// WND and the wind, its variation and its limits behind it.
Verdict TryWindRemark(MetarWalk& walk, std::string_view word) {
  if (word != "WND" || walk.IsLastWord() || walk.Ahead().ends_with('Z')) return Verdict::Declined;
  std::string& remarks = walk.Raw.WindRemarks;
  if (!Holds(remarks, "WND")) remarks = "Wind ";
  const auto take = [&](std::string_view text, std::string_view behind) {
    remarks.append(walk.Scratch.Text(text)).append(behind);
    ++walk.WordIndex;
  };
  if (EndsInWindUnit(walk.Ahead())) take(walk.Ahead(), " ");
  if (walk.IsLastWord()) return Verdict::Wrong;
  if (Holds(walk.Ahead(), "VRB")) take(walk.Ahead(), " ");
  if (walk.IsLastWord()) return Verdict::Wrong;
  if (walk.Ahead().size() == 7 && Holds(walk.Ahead(), 'V')) {
    take(ReplaceAll(walk.Ahead(), "V", "-"), "");
  }
  if (walk.IsLastWord()) return Verdict::Wrong;
  if (Mid(walk.Ahead(), 6, 1) == "/") take(walk.Ahead(), " ");
  return Verdict::Taken;
}

// --- Times -------------------------------------------------------------------------------------

Verdict TryLateTime(MetarWalk& walk, std::string_view word) {
  if (word.size() != 7 || !word.ends_with('Z') || !IsNumeric(word.substr(0, 6)) ||
      !walk.Raw.ObservationTime.empty()) {
    return Verdict::Declined;
  }
  walk.Raw.ObservationTime = word.substr(0, 6);
  return Verdict::Taken;
}

// The order of tests. Where two groups look alike the one that stands first has the word.
using namespace WordFeature;
constexpr std::array<Recogniser, 36> Table = {{
    // name, symbolic form, first characters, length, features, outside remarks only, recogniser
    {"Message type", "TAF", "T", Exactly(3), None, false, TryTypeWord},
    {"Automatic station", "AUTO", "A", Exactly(4), None, false, TryFlag<FlagWord::Auto>},
    {"Ceiling and visibility OK", "CAVOK", "C", Exactly(5), None, false, TryFlag<FlagWord::Cavok>},
    {"No significant change", "NOSIG", "N", Exactly(5), None, false, TryFlag<FlagWord::Nosig>},
    {"No significant weather", "NSW", "N", Exactly(3), None, false, TryFlag<FlagWord::Nsw>},
    {"No significant cloud", "NSC", "N", Exactly(3), None, false, TryFlag<FlagWord::Nsc>},
    {"Visibility of 10 km or more", "9999", "9", Exactly(4), None, false, TryTenKilometres},
    {"Whole miles of visibility", "V", "0123456789", Exactly(1), None, false, TryWholeMiles},
    {"Visibility in kilometres", "VVKM", "", AtLeast(2), Kilometres, false, TryKilometres},
    {"Time behind which it holds", "AFT GGgg", "A", Exactly(3), None, false, TryAfter},
    {"Wind in free words", "WND dddffKT", "W", Exactly(3), None, false, TryWindRemark},
    {"Surface wind", "dddffGfmfm", "", AtLeast(2), WindUnit, true, TryWind},
    {"Altimeter setting", "QPHPHPHPH, APHPHPHPH", "AQ", AtLeast(5), None, false, TryAltimeter},
    {"Temperature and dew point", "T'T'/T'dT'd, TTFTF/GFGFZ", "", AtLeast(1), Solidus, true,
     TryTemperature},
    {"Gradual change", "BECMG GGGeGe", "", AtLeast(5), LetterG, false, TryBecmg},
    {"Broken cloud", "BKNhshshs", "B", AtLeast(3), None, false, TryCloud<6>},
    {"Clear below 12,000 ft", "CLR", "C", Exactly(3), None, false, TryFlag<FlagWord::Clr>},
    {"Few cloud", "FEWhshshs", "F", AtLeast(3), None, false, TryCloud<1>},
    {"QNH", "QNHPHPHPHPH", "Q", AtLeast(7), None, false, TryQnh},
    {"Change from a time on", "FMGGgg", "F", AtLeast(4), None, false, TryFrom},
    {"Overcast", "OVChshshs", "O", AtLeast(3), None, false, TryCloud<8>},
    {"Probability", "PROBC2C2 GGGeGe", "", AtLeast(4), LetterP, false, TryProb},
    {"Runway visual range", "RDRDR/VRVRVRVR", "R", AtLeast(2), Solidus, false,
     TryRunwayVisualRange},
    {"Remarks", "RMK", "R", Exactly(3), None, false, TryRemarks},
    {"Scattered cloud", "SCThshshs", "S", AtLeast(3), None, false, TryCloud<3>},
    {"Sky clear", "SKC", "S", Exactly(3), None, false, TryFlag<FlagWord::Skc>},
    {"Visibility in statute miles", "VVVVVSM", "", AtLeast(2), Miles, false, TryMiles},
    {"Temporary change", "TEMPO GGGeGe", "T", Exactly(5), None, false, TryTempo},
    {"Intermittent change", "INTER GGGeGe", "I", Exactly(5), None, false, TryInter},
    {"Vertical visibility", "VVhshshs", "V", AtLeast(2), None, false, TryVerticalVisibility},
    {"Wind shear", "WShwshwshws/dddffKT", "W", AtLeast(2), None, false, TryWindShear},
    {"Towering cumulus", "TCU", "T", AtLeast(3), None, true, TryCloudForm<CloudForm::TowerCumulus>},
    {"Cumulonimbus", "CB", "C", AtLeast(2), None, true, TryCloudForm<CloudForm::Cumulonimbus>},
    {"Cumulus", "CU", "C", AtLeast(2), None, true, TryCloudForm<CloudForm::Cumulus>},
    {"Time of observation", "YYGGggZ", "", Exactly(7), EndsInZ, false, TryLateTime},
    {"Weather", "w'w'", "+-BDFGHIMPRSTV", AtLeast(2), None, false, TryWeather},
}};

}  // namespace

std::span<const Recogniser> MetarRecognisers() noexcept { return Table; }

}  // namespace zg
