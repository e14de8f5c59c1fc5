// The main window: menus, the log, and a status bar. All work is done in other windows; this one
// holds the tree of commands, what is settled right here (units, colours, font, pictures), and what
// keeps menus and status bar in step with the stores.
#pragma once

#include <QMainWindow>
#include <QStringList>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "shell/Application.h"
#include "shell/QtPlatform.h"

class QLabel;
class QListView;
class QMenu;
class QProgressBar;

namespace zg {

class LineDecoder;
class frmCountryFilter;
class frmDecode;
class frmGlobalView;
class frmMetarMeteoData;
class frmQuadrantFilter;
class frmStationFilter;
class frmSynopMeteoData;
struct GlobalViewTable;

class frmMain : public QMainWindow {
  Q_OBJECT

 public:
  // Pictures that can be put on the menu.
  static constexpr int Pictures = 5;

  // Builds the window from the settings; nothing is shown. `log` is also the Log of `app`.
  frmMain(Application& app, WindowLog& log, Dialogs& dialogs);
  ~frmMain() override;

  // Ready for work: builds the station table if it is empty, with the menus shut, then reads the
  // stations, then opens the bulletin files that the program was started with.
  void LoadWMO(const QStringList& bulletins = {});

  // The counts of the stores in the two panels; not while a scheduled cycle owns them.
  void RefreshStatusBar();
  // Commands on records are grey while there are none.
  void CheckForEnablingMenu();
  // Menu state and units as the parameters have them.
  void RefreshUnitMenu();

  // Decodes a bulletin file as by mnuOpen; asks for the country filter if it is large.
  void OpenBulletin(const QString& path);

  frmCountryFilter& CountryFilter() { return *countryFilter_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  using Command = std::function<void()>;

  // frmMain.cpp: building and state.
  void BuildMenus();
  void BuildBody();
  void BindCommands();
  void Bind(std::string_view name, Command command);
  void GreyUnbound();
  void BuildStations();
  QAction* Action(const std::string& name) const;
  QMenu* Menu(std::string_view name) const;
  void EnableMenu(std::string_view name, bool enabled);
  void EnableWork(bool enabled);
  void SetPanel(int panel, const QString& text);
  void SetCaption();

  // frmMainCommands.cpp: what commands do.
  void BindUnits();
  void BindPictures();
  void OpenFile();
  void DecodeFile();
  void AddRecent(const QString& path);
  void ShowRecent();
  void LineInputCommand();
  void ChooseColor(std::string_view key);
  void ChooseFont();
  void ShowPictures();
  void PictureName(int picture);
  void PictureUrl(int picture);
  void ShowPicture(int picture);
  void ShowBrowser(std::string_view url, std::string_view caption);
  void Info();
  void Language();
  void Exit();

  // frmMainViews.cpp: the windows on the records.
  void BindViews();
  void ShowSynopReport(int index);
  void ShowMetarReport(int index);
  void ShowView(std::unique_ptr<frmGlobalView>& view, const GlobalViewTable& table);
  void StoresWillChange();
  void StoresChanged();

  Application& app_;
  WindowLog& log_;
  Dialogs& dialogs_;
  QListView* lstDiag_ = nullptr;
  std::array<QLabel*, 2> panels_{};
  QProgressBar* prgFile_ = nullptr;
  std::map<std::string, QAction*, std::less<>> actions_;
  std::map<std::string, QMenu*, std::less<>> menus_;
  std::set<std::string, std::less<>> bound_;  // entries that do something
  std::array<std::string, Pictures> pictureNames_;

  std::unique_ptr<frmCountryFilter> countryFilter_;
  std::unique_ptr<frmQuadrantFilter> quadrantFilter_;
  std::unique_ptr<frmStationFilter> stationFilter_;
  std::unique_ptr<frmDecode> decode_;
  std::unique_ptr<LineDecoder> lineDecoder_;
  // Made when they are first wanted.
  std::unique_ptr<frmSynopMeteoData> synopReport_;
  std::unique_ptr<frmMetarMeteoData> metarReport_;
  std::unique_ptr<frmGlobalView> synopView_;
  std::unique_ptr<frmGlobalView> metarView_;
  int openViews_ = 0;  // views that read a store, so that no run may begin
};

}  // namespace zg
