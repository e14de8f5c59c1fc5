#include "ReportTable.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <ostream>

namespace zg::bench {
namespace {

constexpr const char* Items = "items_per_second";
constexpr const char* Bytes = "bytes_per_second";
constexpr std::string_view Milliseconds = "milliseconds";
constexpr double Million = 1e6;

std::string NameOf(std::string_view file, std::string_view measure) {
  return std::string(file).append("/").append(measure);
}

void AddOnce(std::vector<std::string>& names, std::string_view name) {
  if (std::find(names.begin(), names.end(), name) == names.end()) names.emplace_back(name);
}

// A cell of a table; a value that was not measured is a dash.
void PrintCell(std::ostream& out, double value, int decimals, int width) {
  out << " " << std::setw(width);
  if (std::isnan(value)) {
    out << "-";
  } else {
    out << std::fixed << std::setprecision(decimals) << value;
  }
  out << " |";
}

}  // namespace

ReportTable::ReportTable(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const std::size_t slash = name.rfind('/');
    AddOnce(slash == std::string::npos ? works_ : files_, name.substr(0, slash));
  }
}

bool ReportTable::ReportContext(const Context& context) {
  PrintBasicContext(&GetErrorStream(), context);
#ifndef __OPTIMIZE__
  GetErrorStream() << "***WARNING*** Built without optimisation: the numbers say nothing.\n";
#endif
  return true;
}

void ReportTable::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration) continue;
    const std::string& name = run.run_name.function_name;
    if (run.error_occurred) {
      GetErrorStream() << name << ": " << run.error_message << "\n";
      failed_ = true;
      continue;
    }
    auto& samples = samples_[name];
    for (const auto& [counter, value] : run.counters) samples[counter].push_back(value);
    samples[std::string(Milliseconds)].push_back(run.GetAdjustedRealTime() * 1000 /
                                                 GetTimeUnitMultiplier(run.time_unit));
  }
}

double ReportTable::Median(const std::string& name, std::string_view counter) const {
  const auto measure = samples_.find(name);
  if (measure == samples_.end()) return std::nan("");
  const auto found = measure->second.find(counter);
  if (found == measure->second.end()) return std::nan("");
  Samples samples = found->second;
  const auto middle = samples.begin() + std::ssize(samples) / 2;
  std::nth_element(samples.begin(), middle, samples.end());
  return *middle;
}

bool ReportTable::HasFile(std::string_view file) const {
  const auto hasMeasure = [&](std::string_view measure) {
    return samples_.contains(NameOf(file, measure));
  };
  return hasMeasure(YardstickMeasure) || hasMeasure(DecodeMeasure) || hasMeasure(JsonMeasure);
}

void ReportTable::Finalize() {
  std::erase_if(files_, [this](const std::string& file) { return !HasFile(file); });
  std::erase_if(works_, [this](const std::string& work) { return !samples_.contains(work); });
  if (!files_.empty()) PrintFiles();
  if (!works_.empty()) PrintTimes();
  GetOutputStream().flush();
}

void ReportTable::PrintFiles() {
  std::ostream& out = GetOutputStream();
  out << "\n| file | messages | messages/s | MB/s | yardstick/s | ratio | allocs/msg | "
         "bytes/record "
         "| JSON records/s | JSON MB/s |\n"
         "|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|\n";
  for (const std::string& file : files_) {
    const std::string decode = NameOf(file, DecodeMeasure);
    const std::string json = NameOf(file, JsonMeasure);
    const double rate = Median(decode, Items);
    const double yardstick = Median(NameOf(file, YardstickMeasure), Items);
    out << "| " << std::left << std::setw(22) << file << std::right << " |";
    PrintCell(out, Median(decode, MessagesCounter), 0, 6);
    PrintCell(out, rate, 0, 9);
    PrintCell(out, Median(decode, Bytes) / Million, 1, 6);
    PrintCell(out, yardstick, 0, 9);
    PrintCell(out, rate / yardstick, 3, 5);
    PrintCell(out, Median(decode, AllocationsCounter), 4, 7);
    PrintCell(out, Median(decode, RecordBytesCounter), 0, 5);
    PrintCell(out, Median(json, Items), 0, 8);
    PrintCell(out, Median(json, Bytes) / Million, 0, 5);
    out << "\n";
  }
}

void ReportTable::PrintTimes() {
  std::ostream& out = GetOutputStream();
  out << "\n| work | ms |\n|---|---:|\n";
  for (const std::string& work : works_) {
    out << "| " << std::left << std::setw(28) << work << std::right << " |";
    PrintCell(out, Median(work, Milliseconds), 1, 8);
    out << "\n";
  }
}

}  // namespace zg::bench
