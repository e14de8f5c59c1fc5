// Reports made up from random weather, in the words of the code forms FM 12 (SYNOP), FM 13 (SHIP),
// FM 15 (METAR) and FM 51 (TAF). They are well formed and plausible group by group, so that a
// decoder does all of its work on them; the weather of one station has nothing to do with the next.
//
// Each function appends one report to `out`: words with one blank between them, neither "=" nor
// line end behind.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "RandomSource.h"

namespace zg::bench {

// Day and hour of all reports.
inline constexpr std::string_view ReportDayHour = "1512";

// An aerodrome report as most of the world sends it: metres, hectopascals, often a trend.
void AppendMetar(std::string& out, RandomSource& random, std::string_view station);
// One of the United States: statute miles, inches of mercury, a RMK section of coded groups.
void AppendUsMetar(std::string& out, RandomSource& random, std::string_view station);
// An aerodrome forecast with a valid period of six digits and up to four change groups, each of
// which begins with the text `changeGap` in place of a blank (a line end, where lines are broken).
void AppendTaf(std::string& out, RandomSource& random, std::string_view station,
               std::string_view changeGap);

// A land station, from its IIiii on.
void AppendLandSynop(std::string& out, RandomSource& random, std::int32_t WMOIndex);
// A ship with a call sign of an allocated series, or a moored buoy, from its identifier on.
void AppendShipSynop(std::string& out, RandomSource& random);
void AppendBuoySynop(std::string& out, RandomSource& random);

}  // namespace zg::bench
