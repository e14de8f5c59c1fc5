// Measures the decode window on files made in memory, on Qt's offscreen platform:
//
//   zg_window_bench [REPETITIONS]
//
// The first table compares a run in the window with the decoder alone on the same file, by
// processor time. The second tells, by the clock, how long after a click on Stop the window has
// closed; clicks come from a thread of their own, at any moment of a run. Exits with 1 if a target
// is missed.
#include <time.h>

#include <QApplication>
#include <QPushButton>
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

#include "BulletinGenerator.h"
#include "WorkFolder.h"
#include "batch/Console.h"
#include "decode/frmDecode.h"
#include "shell/Application.h"
#include "shell/ApplicationDecoder.h"
#include "shell/AtomicFile.h"
#include "shell/QtPlatform.h"

namespace zg::bench {
namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;
using SteadyTime = std::chrono::steady_clock::time_point;

constexpr std::size_t Messages = 30000;
constexpr std::uint64_t Seed = 20031115;
constexpr double MostRatio = 2;
constexpr double MostStopMilliseconds = 50;

struct FileKind {
  const char* Name;
  BulletinKind Kind;
};

constexpr FileKind Kinds[] = {{"METAR cycle", BulletinKind::MetarCycle},
                              {"METAR bulletins", BulletinKind::MetarCircuit},
                              {"SYNOP land", BulletinKind::SynopLand},
                              {"SYNOP ships and buoys", BulletinKind::SynopSea},
                              {"TAF bulletins", BulletinKind::Taf}};

SteadyTime Now() { return std::chrono::steady_clock::now(); }

// Processor time of this thread: what other programs take does not count.
double ThreadMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + std::ssize(values) / 2;
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

double Largest(const std::vector<double>& values) {
  return *std::max_element(values.begin(), values.end());
}

// A program without its main window, over an application directory of its own.
class Rig {
 public:
  Rig() : app_(folder_.Path(), log_, prompt_, clock_) {
    error_ = folder_.Error();
    if (!error_.empty()) return;
    if (!app_.Database.ConnectDatabase(folder_.MakeEmptyDatabase()) ||
        folder_.BuildStations(app_.Database).Outcome != StationBuild::Result::Built ||
        !app_.Stations.Load(app_.Database)) {
      error_ = "the station table cannot be built";
      return;
    }
    std::error_code failure;
    std::filesystem::copy_file(ZG_SOURCE_DIR "/data/frmDecode.eng",
                               folder_.Path() + "frmDecode.eng", failure);
    if (failure) error_ = failure.message();
    app_.Texts.SetLanguage(1);
    form_ = std::make_unique<frmDecode>(app_, nullptr);
  }

  const std::string& Error() const { return error_; }
  Application& App() { return app_; }

  std::string Write(std::string_view bytes) {
    const std::string path = folder_.Path() + "Benchmark.txt";
    AtomicFile file(path);
    if (!file.Write(bytes) || !file.Commit()) error_ = file.Error();
    return path;
  }

  double RunAlone(const std::string& path) {
    const double start = ThreadMilliseconds();
    alone_.DecodeFile(path);
    return ThreadMilliseconds() - start;
  }

  double RunInWindow(const std::string& path) {
    app_.mFileName = path;
    const double start = ThreadMilliseconds();
    form_->Run();
    return ThreadMilliseconds() - start;
  }

  // Clicks Stop so many milliseconds after the start of a run. The result is the time from the
  // click to the end of the run; 0 if the run was over before.
  double StopAfter(const std::string& path, double milliseconds) {
    auto* stop = form_->findChild<QPushButton*>(QStringLiteral("cmdCancel"));
    SteadyTime clicked;
    std::thread user([&] {
      std::this_thread::sleep_for(Milliseconds(milliseconds));
      clicked = Now();
      QMetaObject::invokeMethod(stop, "click", Qt::QueuedConnection);
    });
    RunInWindow(path);
    const SteadyTime ended = Now();
    user.join();
    QCoreApplication::sendPostedEvents();  // of a click that came too late
    return std::max(0.0, Milliseconds(ended - clicked).count());
  }

 private:
  WorkFolder folder_;
  WindowLog log_;
  NullPrompt prompt_;
  SteadyClock clock_;
  Application app_;
  DecodeObserver nobody_;
  NullProgress noProgress_;
  ApplicationDecoder alone_{app_, nobody_, noProgress_};
  std::unique_ptr<frmDecode> form_;
  std::string error_;
};

// True if the window keeps within its share for all files.
bool CompareRuns(Rig& rig, const ReportingStations& stations, int repetitions) {
  bool good = true;
  std::printf("| file | decoder, ms | window, ms | ratio |\n|---|---:|---:|---:|\n");
  for (const FileKind& kind : Kinds) {
    const std::string path = rig.Write(GenerateBulletins(kind.Kind, stations, Messages, Seed));
    rig.RunAlone(path);  // the stores, the page cache and the window grow to their size
    rig.RunInWindow(path);
    std::vector<double> alone;
    std::vector<double> window;
    for (int i = 0; i < repetitions; ++i) {
      alone.push_back(rig.RunAlone(path));
      window.push_back(rig.RunInWindow(path));
    }
    const double ratio = Median(window) / Median(alone);
    good = good && ratio <= MostRatio;
    std::printf("| %s | %.1f | %.1f | %.2f |\n", kind.Name, Median(alone), Median(window), ratio);
  }
  return good;
}

// True if all clicks were answered in time.
bool MeasureStop(Rig& rig, const ReportingStations& stations, int repetitions) {
  bool good = true;
  std::printf("\n| file | clicks in time | median, ms | longest, ms |\n|---|---:|---:|---:|\n");
  const auto measure = [&](const char* name, const std::string& bytes) {
    const std::string path = rig.Write(bytes);
    const SteadyTime start = Now();
    rig.RunInWindow(path);
    const double whole = Milliseconds(Now() - start).count();
    std::vector<double> answers;
    for (int i = 0; i < repetitions * 4; ++i) {
      const double part = static_cast<double>(i) / (repetitions * 4);
      const double answer = rig.StopAfter(path, part * whole);
      if (answer > 0) answers.push_back(answer);
    }
    if (answers.empty()) return;
    good = good && Largest(answers) <= MostStopMilliseconds;
    std::printf("| %s | %zu | %.1f | %.1f |\n", name, answers.size(), Median(answers),
                Largest(answers));
  };
  const std::string bytes = GenerateBulletins(BulletinKind::MetarCircuit, stations, Messages, Seed);
  measure("METAR bulletins, all stored", bytes);
  // A store holds no more; behind a filter that lets nothing pass a file may be of any length.
  rig.App().Filters.QuadrantMask = 0;
  std::string large;
  for (int i = 0; i < 20; ++i) large += bytes;
  measure("twenty times as much, none stored", large);
  return good;
}

int Measure(int repetitions) {
  Rig rig;
  if (!rig.Error().empty()) {
    std::fprintf(stderr, "zg_window_bench: %s\n", rig.Error().c_str());
    return 2;
  }
  const ReportingStations stations = ListReportingStations(rig.App().Stations);
  const bool fast = CompareRuns(rig, stations, repetitions);
  const bool answers = MeasureStop(rig, stations, repetitions);
  return fast && answers ? 0 : 1;
}

}  // namespace
}  // namespace zg::bench

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  int repetitions = 9;
  if (argc > 1) {
    const auto read = std::from_chars(argv[1], argv[1] + std::strlen(argv[1]), repetitions);
    if (read.ec != std::errc() || repetitions < 1) {
      std::fprintf(stderr, "zg_window_bench: not a number of repetitions: %s\n", argv[1]);
      return 2;
    }
  }
  return zg::bench::Measure(repetitions);
}
