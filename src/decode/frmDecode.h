// The decode window: decodes the bulletin file of the application while it shows the filters in
// force, how far the file is read, which countries and stations have reported, and the last
// message. It is on the screen as long as the run takes.
#pragma once

#include <array>
#include <memory>

#include "shell/QtForm.h"

class QLabel;
class QLineEdit;
class QListView;
class QProgressBar;
class QPushButton;

namespace zg {

class ApplicationDecoder;
struct DecodeLists;
class LineListModel;

class frmDecode : public Form {
  Q_OBJECT

 public:
  frmDecode(Application& app, QWidget* parent);
  ~frmDecode() override;

  // Shows the window (minimised while a scheduled cycle runs), decodes app.mFileName, hides the
  // window and forgets the name. Events are handled meanwhile. Nothing happens while a run is in
  // progress.
  void Run();

  // Ends the run behind the line that it is at; nothing if there is none.
  void Stop();

  bool IsRunning() const noexcept { return running_; }

  void SetCaptions() override;

 public slots:
  // Esc and the close box stop a run; the window then closes by itself.
  void reject() override;

 signals:
  void RunStarted();
  // The window is hidden; app.mFileName still holds the file.
  void RunEnded();

 private:
  class RunProgress;

  QWidget* BuildFile();
  QWidget* BuildProgress();
  QWidget* BuildCountries();
  QWidget* BuildStations();
  QWidget* BuildLastMessage();
  QListView* BuildList(const char* name, LineListModel& model);
  QLabel* AddValue(const char* name);
  QLabel* AddCaption(const char* name, QWidget* buddy = nullptr);
  QLineEdit* AddField(const char* name);

  void ShowFilters();
  void BeginReading();
  void ShowRun(std::int64_t position, std::int64_t maximum);

  std::unique_ptr<DecodeLists> lists_;
  std::unique_ptr<LineListModel> countries_;
  std::unique_ptr<LineListModel> stations_;
  std::unique_ptr<RunProgress> progress_;
  std::unique_ptr<ApplicationDecoder> decoder_;
  bool running_ = false;
  bool reading_ = false;     // the decoder is at the lines of the file
  bool stopWanted_ = false;  // of the run in progress

  QLineEdit* txtFile_ = nullptr;
  QLineEdit* txtCountryFilter_ = nullptr;
  QLineEdit* txtQuadrantFilter_ = nullptr;
  QLineEdit* txtStationFilter_ = nullptr;
  QProgressBar* prgFile_ = nullptr;
  QLabel* lblBytes_ = nullptr;
  QLabel* lblPercent_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
  QListView* lstCountry_ = nullptr;
  QListView* lstWMO_ = nullptr;
  QLabel* lblCountryNum_ = nullptr;
  QLabel* lblStationNum_ = nullptr;
  QLabel* lblMsgNum_ = nullptr;
  std::array<QLabel*, 8> lastMessage_{};
};

}  // namespace zg
