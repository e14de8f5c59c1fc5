// Measures the decoder on bulletin files made in memory, and on files named on the command line:
//
//   zg_bench [--messages=N] [--benchmark_...] [FILE...]
//
// Each file is measured with the yardstick, the decoder and the writer of JSON Lines.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "AllocationCounter.h"
#include "BulletinGenerator.h"
#include "ReportTable.h"
#include "WorkFolder.h"
#include "Yardstick.h"
#include "batch/RecordJson.h"
#include "decode/MeteoDecode.h"
#include "shell/FileText.h"

namespace zg::bench {
namespace {

constexpr std::size_t DefaultMessages = 30000;
constexpr std::uint64_t Seed = 20031115;

// Repetitions in a random order even out what else the machine does. Arguments of the user follow
// and win.
constexpr std::array<const char*, 3> DefaultArguments = {
    "--benchmark_repetitions=9", "--benchmark_enable_random_interleaving=true",
    "--benchmark_min_time=0.1"};

struct GeneratedKind {
  std::string_view Name;
  BulletinKind Kind;
};

constexpr std::array GeneratedKinds = {
    GeneratedKind{"METAR cycle", BulletinKind::MetarCycle},
    GeneratedKind{"METAR bulletins", BulletinKind::MetarCircuit},
    GeneratedKind{"SYNOP land", BulletinKind::SynopLand},
    GeneratedKind{"SYNOP ships and buoys", BulletinKind::SynopSea},
    GeneratedKind{"TAF bulletins", BulletinKind::Taf},
    GeneratedKind{"METAR and TAF", BulletinKind::MetarAndTaf}};

struct BulletinFile {
  std::string Name;
  std::string Bytes;
  int Messages = 0;  // that have to be stored; 0 if that is not known beforehand
};

// A decoder with everything that it needs. Decoding the same file again and again is the steady
// state: the stores, their arenas and the decoder's buffers have grown to their size.
class DecodeRig {
 public:
  DecodeRig(const WorkFolder& folder, const StationDirectory& stations)
      : context_{.Stations = stations,
                 .Units = {texts_, conversion_},
                 .Filters = {},
                 .Stores = stores_,
                 .Log = log_,
                 .Observer = observer_},
        database_(prompt_),
        decoder_({.ApplicationPath = folder.Path()}, context_, database_, prompt_, clock_,
                 progress_) {}

  MeteoDecode::Summary Decode(std::string bytes) {
    return decoder_.DecodeBytes("Benchmark.txt", std::move(bytes));
  }

  // The store that the first message has chosen.
  template <typename Visitor>
  void VisitStore(const Visitor& visit) const {
    if (stores_.SynopStore.Count() > 0) {
      visit(stores_.SynopStore);
    } else {
      visit(stores_.MetarStore);
    }
  }

 private:
  NullLog log_;
  NullPrompt prompt_;
  NullClock clock_;
  NullProgress progress_;
  DecodeObserver observer_;
  TextUtility texts_;
  ConversionUtility conversion_{texts_};
  MessageStores stores_;
  DecodeContext context_;
  DBUtility database_;
  MeteoDecode decoder_;
};

// What a first run makes of a file; nullptr if that is what it should be.
const char* FaultOf(const BulletinFile& file, const MeteoDecode::Summary& summary) {
  if (!summary.Error.empty()) return "the wrong-line file cannot be written";
  if (summary.DecodedCount == 0) return "no message is stored";
  if (file.Messages != 0 && summary.DecodedCount != file.Messages) return "messages are lost";
  if (file.Messages != 0 && summary.WrongLines != 0) return "there are wrong lines";
  return nullptr;
}

void CountRates(benchmark::State& state, std::size_t items, std::size_t bytes) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

// `messages` is what the decoder stores of the file.
void MeasureYardstick(benchmark::State& state, const BulletinFile& file, std::size_t messages) {
  Yardstick yardstick;
  for (auto _ : state) benchmark::DoNotOptimize(yardstick.SplitLines(file.Bytes));
  CountRates(state, messages, file.Bytes.size());
}

void MeasureDecode(benchmark::State& state, const BulletinFile& file, const WorkFolder& folder,
                   const StationDirectory& stations) {
  DecodeRig rig(folder, stations);
  const MeteoDecode::Summary first = rig.Decode(file.Bytes);
  if (const char* fault = FaultOf(file, first)) state.SkipWithError(fault);
  const auto messages = static_cast<std::size_t>(first.DecodedCount);
  std::uint64_t allocations = 0;
  for (auto _ : state) {
    state.PauseTiming();
    std::string bytes = file.Bytes;
    const std::uint64_t before = AllocationCount();
    state.ResumeTiming();
    benchmark::DoNotOptimize(rig.Decode(std::move(bytes)));
    allocations += AllocationCount() - before;
  }
  CountRates(state, messages, file.Bytes.size());
  state.counters[MessagesCounter] = first.DecodedCount;
  state.counters[AllocationsCounter] =
      static_cast<double>(allocations) /
      (static_cast<double>(state.iterations()) * static_cast<double>(messages));
  rig.VisitStore([&](const auto& store) {
    state.counters[RecordBytesCounter] =
        static_cast<double>(store.MemoryInUse()) / static_cast<double>(store.Count());
  });
}

void AppendStored(std::string& out, const SynopData& record) {
  static const SynopRawData none;
  AppendRecord(out, RecordFields::Data, none, record);
}

void AppendStored(std::string& out, const MetarData& record) {
  static const MetarRawData none;
  AppendRecord(out, RecordFields::Data, none, record);
}

// Writing alone, of records that are stored already.
void MeasureJson(benchmark::State& state, const BulletinFile& file, const WorkFolder& folder,
                 const StationDirectory& stations) {
  constexpr std::size_t FullBuffer = 1 << 16;
  DecodeRig rig(folder, stations);
  if (const char* fault = FaultOf(file, rig.Decode(file.Bytes))) state.SkipWithError(fault);
  std::string out;
  std::size_t written = 0;
  std::size_t records = 0;
  rig.VisitStore([&](const auto& store) {
    records = store.Count();
    for (auto _ : state) {
      written = 0;
      for (const auto& record : store.Records()) {
        AppendStored(out, record);
        if (out.size() < FullBuffer) continue;
        written += out.size();
        out.clear();
      }
      written += out.size();
      out.clear();
    }
  });
  CountRates(state, records, written);
}

void MeasureDirectoryLoad(benchmark::State& state, const WorkFolder& folder) {
  NullPrompt prompt;
  DBUtility database(prompt);
  if (!database.ConnectDatabase(folder.MakeEmptyDatabase()) ||
      folder.BuildStations(database).Outcome != StationBuild::Result::Built) {
    state.SkipWithError("the station table cannot be built");
  }
  for (auto _ : state) {
    StationDirectory stations;
    if (!stations.Load(database)) state.SkipWithError("the stations cannot be read");
    benchmark::DoNotOptimize(stations.Size());
  }
}

void MeasureTableBuild(benchmark::State& state, const WorkFolder& folder) {
  for (auto _ : state) {
    state.PauseTiming();
    NullPrompt prompt;
    DBUtility database(prompt);
    database.ConnectDatabase(folder.MakeEmptyDatabase());
    state.ResumeTiming();
    if (folder.BuildStations(database).Outcome != StationBuild::Result::Built) {
      state.SkipWithError("the station table cannot be built");
    }
  }
}

// --- Command line --------------------------------------------------------------------------------

struct Arguments {
  std::size_t Messages = DefaultMessages;
  std::vector<std::string> Files;
  std::string Error;
};

// What the benchmark library has left of the arguments.
Arguments ReadArguments(int argc, char** argv) {
  constexpr std::string_view MessagesOption = "--messages=";
  Arguments arguments;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument.starts_with(MessagesOption)) {
      const std::string_view number = argument.substr(MessagesOption.size());
      const char* const end = number.data() + number.size();
      const auto result = std::from_chars(number.data(), end, arguments.Messages);
      if (result.ec != std::errc() || result.ptr != end || arguments.Messages == 0 ||
          arguments.Messages > static_cast<std::size_t>(LargestMaxMessages)) {
        arguments.Error = "not a number of messages that a store can hold: ";
      }
    } else if (argument.starts_with("-")) {
      arguments.Error = "unknown option: ";
    } else {
      arguments.Files.emplace_back(argument);
    }
    if (!arguments.Error.empty()) {
      arguments.Error += argument;
      break;
    }
  }
  return arguments;
}

std::string NameOfPath(const std::string& path) { return path.substr(path.rfind('/') + 1); }

// All files to be measured. An unreadable one shows in the error of the arguments.
std::vector<BulletinFile> CollectFiles(Arguments& arguments, const StationDirectory& stations) {
  std::vector<BulletinFile> files;
  const ReportingStations reporting = ListReportingStations(stations);
  for (const GeneratedKind& kind : GeneratedKinds) {
    files.push_back({std::string(kind.Name),
                     GenerateBulletins(kind.Kind, reporting, arguments.Messages, Seed),
                     static_cast<int>(arguments.Messages)});
  }
  for (const std::string& path : arguments.Files) {
    FileBytes file = ReadFileBytes(path);
    if (!file.Ok()) arguments.Error = file.Error;
    files.push_back({NameOfPath(path), std::move(file.Bytes), 0});
  }
  return files;
}

std::string NameOfMeasure(const BulletinFile& file, std::string_view measure) {
  return std::string(file.Name).append("/").append(measure);
}

// The names of all benchmarks.
std::vector<std::string> RegisterBenchmarks(const std::vector<BulletinFile>& files,
                                            const WorkFolder& folder,
                                            const StationDirectory& stations) {
  std::vector<std::string> names;
  const auto add = [&names](const std::string& name, auto measure) {
    names.push_back(name);
    return benchmark::RegisterBenchmark(name.c_str(), measure)->Unit(benchmark::kMillisecond);
  };
  for (const BulletinFile& file : files) {
    const auto messages =
        static_cast<std::size_t>(DecodeRig(folder, stations).Decode(file.Bytes).DecodedCount);
    add(NameOfMeasure(file, YardstickMeasure),
        [&file, messages](benchmark::State& state) { MeasureYardstick(state, file, messages); });
    add(NameOfMeasure(file, DecodeMeasure), [&file, &folder, &stations](benchmark::State& state) {
      MeasureDecode(state, file, folder, stations);
    });
    add(NameOfMeasure(file, JsonMeasure), [&file, &folder, &stations](benchmark::State& state) {
      MeasureJson(state, file, folder, stations);
    });
  }
  add("load the station directory", [&folder](benchmark::State& state) {
    MeasureDirectoryLoad(state, folder);
  })->UseRealTime();
  add("build the station table", [&folder](benchmark::State& state) {
    MeasureTableBuild(state, folder);
  })->UseRealTime();
  return names;
}

int RunBenchmarks(int argc, char** argv) {
  // The library keeps pointers into its arguments.
  std::vector<std::string> texts(argv, argv + 1);
  texts.insert(texts.end(), DefaultArguments.begin(), DefaultArguments.end());
  texts.insert(texts.end(), argv + 1, argv + argc);
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  auto count = static_cast<int>(pointers.size());
  pointers.push_back(nullptr);
  benchmark::Initialize(&count, pointers.data());

  Arguments arguments = ReadArguments(count, pointers.data());
  const WorkFolder folder;
  if (arguments.Error.empty()) arguments.Error = folder.Error();
  const StationDirectory stations = folder.LoadStations();
  const std::vector<BulletinFile> files = CollectFiles(arguments, stations);
  if (!arguments.Error.empty()) {
    std::cerr << "zg_bench: " << arguments.Error << "\n";
    return 2;
  }
  ReportTable table(RegisterBenchmarks(files, folder, stations));
  benchmark::RunSpecifiedBenchmarks(&table);
  benchmark::Shutdown();
  return table.Failed() ? 1 : 0;
}

}  // namespace
}  // namespace zg::bench

int main(int argc, char** argv) { return zg::bench::RunBenchmarks(argc, argv); }
