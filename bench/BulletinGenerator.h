// Bulletin files for the benchmarks: made in memory, the same bytes for the same seed and the same
// station directory. Nothing of them comes from anybody's archive.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "stations/StationDirectory.h"

namespace zg::bench {

enum class BulletinKind : std::uint8_t {
  MetarCycle,    // time stamp, report, blank line, ended by line feeds; 30 % from the United States
  MetarCircuit,  // the rest are circuit bulletins: ZCZC, heading, wrapped lines, NNNN, CR CR LF
  SynopLand,
  SynopSea,  // ships and buoys
  Taf,
  MetarAndTaf,  // bulletins of METAR and of TAF in turn
};

// Stations that a message can come from and be stored: they have a country and a position.
struct ReportingStations {
  std::vector<std::string_view> Aerodromes;    // outside the United States
  std::vector<std::string_view> UsAerodromes;  // K..., PA.., PH..
  std::vector<std::int32_t> LandStations;      // WMO index numbers
};

// Views into the directory, which must outlive them.
ReportingStations ListReportingStations(const StationDirectory& directory);

// A file of exactly `messages` messages. Empty if the stations that it needs are missing.
std::string GenerateBulletins(BulletinKind kind, const ReportingStations& stations,
                              std::size_t messages, std::uint64_t seed);

}  // namespace zg::bench
