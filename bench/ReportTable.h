// Gathers the results of all benchmarks and prints them as two tables at the end: one row a
// bulletin file, and one row for each other piece of work. The tables are Markdown, to be pasted as
// they are.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zg::bench {

// A benchmark on a bulletin file is named "<file>/<measure>", any other by a plain name.
inline constexpr std::string_view YardstickMeasure = "yardstick";
inline constexpr std::string_view DecodeMeasure = "decode";
inline constexpr std::string_view JsonMeasure = "json";

// Counters of the decode measure.
inline constexpr const char* MessagesCounter = "messages";
inline constexpr const char* AllocationsCounter = "allocations";  // per message
inline constexpr const char* RecordBytesCounter = "record_bytes";

class ReportTable : public benchmark::BenchmarkReporter {
 public:
  // `names` of all benchmarks in the order of the rows; results come in any order, and what was not
  // measured has no row.
  explicit ReportTable(const std::vector<std::string>& names);

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  // True if a benchmark has stopped with an error.
  bool Failed() const noexcept { return failed_; }

 private:
  // The values of one counter, one for each repetition.
  using Samples = std::vector<double>;

  double Median(const std::string& name, std::string_view counter) const;
  bool HasFile(std::string_view file) const;
  void PrintFiles();
  void PrintTimes();

  std::vector<std::string> files_;
  std::vector<std::string> works_;
  std::map<std::string, std::map<std::string, Samples, std::less<>>, std::less<>> samples_;
  bool failed_ = false;
};

}  // namespace zg::bench
