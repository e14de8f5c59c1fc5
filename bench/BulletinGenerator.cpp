#include "BulletinGenerator.h"

#include <algorithm>
#include <array>
#include <optional>

#include "ReportGenerator.h"

namespace zg::bench {
namespace {

constexpr std::string_view CircuitLineEnd = "\r\r\n";
constexpr std::size_t CircuitLineLength = 69;
constexpr std::size_t LeastLineLength = 4;
constexpr std::string_view Indent = "     ";
constexpr int UsPercent = 30;

bool IsAerodromeIndicator(std::string_view name) noexcept {
  return name.size() == 4 &&
         std::all_of(name.begin(), name.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

bool IsUsIndicator(std::string_view name) noexcept {
  return name.starts_with('K') || name.starts_with("PA") || name.starts_with("PH");
}

// Hands out stations in a random order, each once before any comes again, as in a real collection.
template <typename Station>
class Rota {
 public:
  Rota(std::vector<Station> stations, RandomSource& random) : stations_(std::move(stations)) {
    random.Shuffle(stations_);
  }
  bool Empty() const noexcept { return stations_.empty(); }
  const Station& Next() {
    next_ = (next_ + 1) % stations_.size();
    return stations_[next_];
  }

 private:
  std::vector<Station> stations_;
  std::size_t next_ = 0;
};

class FileGenerator {
 public:
  FileGenerator(const ReportingStations& stations, std::uint64_t seed)
      : random_(seed),
        aerodromes_(stations.Aerodromes, random_),
        usAerodromes_(stations.UsAerodromes, random_),
        landStations_(stations.LandStations, random_) {}

  std::string Generate(BulletinKind kind, std::size_t messages) {
    if (aerodromes_.Empty() || usAerodromes_.Empty() || landStations_.Empty()) return {};
    if (kind == BulletinKind::MetarCycle) {
      while (messages-- > 0) AppendCycleReport();
    } else {
      AppendCircuitFile(kind, messages);
    }
    return std::move(file_);
  }

 private:
  void AppendCycleReport() {
    file_.append("2003/11/15 12:00\n");
    AppendAnyMetar(file_);
    file_.append("\n\n");
  }

  void AppendAnyMetar(std::string& out) {
    if (random_.Chance(UsPercent)) {
      AppendUsMetar(out, random_, usAerodromes_.Next());
    } else {
      AppendMetar(out, random_, aerodromes_.Next());
    }
  }

  void AppendCircuitFile(BulletinKind kind, std::size_t messages) {
    for (int number = 1; messages > 0; ++number) {
      const auto reports = std::min(messages, static_cast<std::size_t>(random_.Between(5, 30)));
      AppendBulletin(kind, number, reports);
      messages -= reports;
    }
  }

  void AppendBulletin(BulletinKind kind, int number, std::size_t reports) {
    if (kind == BulletinKind::MetarAndTaf) {
      kind = number % 2 == 0 ? BulletinKind::Taf : BulletinKind::MetarCircuit;
    }
    const std::string digits = std::to_string(number % 1000);
    AppendLine("ZCZC " + std::string(3 - digits.size(), '0') + digits);
    AppendLine(std::string(DesignatorOf(kind)) + " " + std::string(aerodromes_.Next()) + " 151200");
    AppendLine(TypeLineOf(kind));
    for (; reports > 0; --reports) {
      report_.clear();
      AppendReport(kind);
      report_ += '=';
      AppendWrapped(report_);
    }
    AppendLine("NNNN");
    AppendLine("");
  }

  static std::string_view DesignatorOf(BulletinKind kind) {
    switch (kind) {
      case BulletinKind::SynopLand:
        return "SMXX01";
      case BulletinKind::SynopSea:
        return "SMVX01";
      case BulletinKind::Taf:
        return "FCXX31";
      default:
        return "SAXX31";
    }
  }

  static std::string_view TypeLineOf(BulletinKind kind) {
    switch (kind) {
      case BulletinKind::SynopLand:
        return "AAXX 15124";
      case BulletinKind::SynopSea:
        return "BBXX";
      case BulletinKind::Taf:
        return "TAF";
      default:
        return "METAR";
    }
  }

  void AppendReport(BulletinKind kind) {
    switch (kind) {
      case BulletinKind::SynopLand:
        AppendLandSynop(report_, random_, landStations_.Next());
        break;
      case BulletinKind::SynopSea:
        if (random_.Chance(60)) {
          AppendShipSynop(report_, random_);
        } else {
          AppendBuoySynop(report_, random_);
        }
        break;
      case BulletinKind::Taf:
        AppendTaf(report_, random_, aerodromes_.Next(), "\n");
        break;
      default:
        AppendAnyMetar(report_);
        break;
    }
  }

  void AppendLine(std::string_view line) { file_.append(line).append(CircuitLineEnd); }

  // Breaks a report at its line feeds, and at blanks where a line gets too long. Every line but the
  // first is indented. A last word of less than four characters is not left alone: such a line
  // would be taken for filling between reports.
  void AppendWrapped(std::string_view report) {
    std::string line;
    while (!report.empty()) {
      const std::size_t end = std::min(report.find_first_of(" \n"), report.size());
      const bool shortEnd = end == report.size() && end < LeastLineLength;
      if (line.size() + end > CircuitLineLength && !shortEnd) {
        line.pop_back();
        AppendLine(line);
        line = Indent;
      }
      line.append(report, 0, end);
      const bool lineEnds = end < report.size() && report[end] == '\n';
      report.remove_prefix(std::min(end + 1, report.size()));
      if (lineEnds) {
        AppendLine(line);
        line = Indent;
      } else if (!report.empty()) {
        line += ' ';
      }
    }
    AppendLine(line);
  }

  RandomSource random_;
  Rota<std::string_view> aerodromes_;
  Rota<std::string_view> usAerodromes_;
  Rota<std::int32_t> landStations_;
  std::string file_;
  std::string report_;
};

}  // namespace

ReportingStations ListReportingStations(const StationDirectory& directory) {
  ReportingStations stations;
  for (const StationRow& row : directory.Rows()) {
    if (row.Country.empty() || row.Quadrant == 0) continue;
    // Where two rows have the same key, the one that a look-up finds counts.
    if (IsAerodromeIndicator(row.IcaoName) && directory.FindByIcaoName(row.IcaoName) == &row) {
      (IsUsIndicator(row.IcaoName) ? stations.UsAerodromes : stations.Aerodromes)
          .push_back(row.IcaoName);
    }
    if (row.WMOIndex > 0 && directory.GetStationByWMOIndex(row.WMOIndex) == &row) {
      stations.LandStations.push_back(row.WMOIndex);
    }
  }
  return stations;
}

std::string GenerateBulletins(BulletinKind kind, const ReportingStations& stations,
                              std::size_t messages, std::uint64_t seed) {
  return FileGenerator(stations, seed).Generate(kind, messages);
}

}  // namespace zg::bench
