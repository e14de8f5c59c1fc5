// The rules by which the scanner tells headings, message types and the beginning of a report. Lines
// and texts are upper-case, trimmed, with words divided by blanks.
//
// An abbreviated heading is TTAAii CCCC YYGGgg [BBB] (WMO-No. 386, Attachment II-5).
#pragma once

#include <cstddef>
#include <string_view>

#include "decode/BulletinMessage.h"

namespace zg {

// True for an abbreviated heading: blanks at positions 7 and 12, four letters and a number that is
// not 0 in front ("PROB30 ..." is none), or any line that holds "ASUS1".
bool IsWmoHeading(std::string_view line) noexcept;

// The message type that a line tells: "AAXX" or "BBXX" anywhere in it, or the first two letters of
// a heading (FC and FT forecasts, SA and SP reports, WS SIGMET, ASUS1 frontal analysis). Unknown if
// it tells none.
MessageType ClassifyHeading(std::string_view line) noexcept;

// True for four digits hhhh or six digits ddhhhh as in the period of a forecast: hours to 24, days
// to 31, not all zero.
bool IsTimeGroup(std::string_view word) noexcept;

// True for hhmm or ddhhmm: hours to 23, minutes to 59, days 1 to 31.
bool IsValidTime(std::string_view word) noexcept;

// Where the report of a METAR, SPECI or TAF starts in a text.
struct ReportStart {
  bool Searched = false;  // false: the text has not the look of a report at all
  bool Found = false;
  std::size_t Position = 0;                 // of the station, from 0
  MessageType Type = MessageType::Unknown;  // what the look of the report tells of its type
  bool TypeWordFirst = false;               // no heading: the text begins with METAR, SPECI or TAF
};

// Finds the station: a word of four characters followed by what follows a station (a time, a
// period, a wind, AMD, TAF, METAR). `text` is the heading of `headerLength` characters and the
// message behind it. What the report looks like is found out only with `wantType`; else the type in
// the result counts only for a text that begins with its type word.
ReportStart FindReportStart(std::string_view text, std::size_t headerLength,
                            bool wantType = true) noexcept;

// METAR, SPECI or TAF where the word is that; else Unknown.
MessageType ReportTypeOfWord(std::string_view word) noexcept;

// True for the words that may stand between the type word and the station of a report that has no
// heading.
bool IsTypeOrCorrectionWord(std::string_view word) noexcept;

}  // namespace zg
