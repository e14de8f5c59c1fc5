#include "shell/frmMain.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QUrl>
#include <algorithm>

#include "decode/frmDecode.h"
#include "shell/LineDecoder.h"
#include "shell/MenuTree.h"
#include "shell/QtForm.h"
#include "stations/StationImport.h"
#include "tables/ReportUnits.h"
#include "tables/frmMetarMeteoData.h"
#include "tables/frmSynopMeteoData.h"
#include "views/frmCountryFilter.h"
#include "views/frmGlobalView.h"
#include "views/frmQuadrantFilter.h"
#include "views/frmStationFilter.h"

namespace zg {
namespace {

// The menus that are shut while stores or settings must not change, and those that are shut while
// the station table is built.
constexpr std::array<std::string_view, 4> WorkMenus = {"mnuConfig", "mnuHelp", "mnuInput",
                                                       "mnuShowData"};

QString TwoDigits(int hour) { return QStringLiteral("%1:00Z").arg(hour, 2, 10, QLatin1Char('0')); }

}  // namespace

frmMain::frmMain(Application& app, WindowLog& log, Dialogs& dialogs)
    : app_(app), log_(log), dialogs_(dialogs) {
  setObjectName(QStringLiteral("frmMain"));
  BuildMenus();
  BuildBody();
  countryFilter_ = std::make_unique<frmCountryFilter>(app_, this);
  quadrantFilter_ = std::make_unique<frmQuadrantFilter>(app_, this);
  stationFilter_ = std::make_unique<frmStationFilter>(app_, this);
  decode_ = std::make_unique<frmDecode>(app_, this);
  connect(decode_.get(), &frmDecode::RunStarted, this, [this] {
    EnableWork(false);
    StoresWillChange();
  });
  connect(decode_.get(), &frmDecode::RunEnded, this, [this] {
    StoresChanged();
    CheckForEnablingMenu();
    EnableWork(true);
  });
  BindCommands();
  setAcceptDrops(true);

  ReadLabel(app_, *this);
  SetCaption();
  ShowPictures();
  // Without the names of the lists no station is known: better told now than at the import.
  app_.Parameters.GetParameter("IndexKeyWMOStation");
  app_.Parameters.GetParameter("IcaoIdKeyWMOStation");
  app_.Database.Query("Delete from Fronts");
  RefreshUnitMenu();
  RefreshStatusBar();
  CheckForEnablingMenu();
  resize(900, 560);
  RestoreSize(app_, *this);
}

frmMain::~frmMain() = default;

// --- Building --------------------------------------------------------------------------------

void frmMain::BuildMenus() {
  for (const MenuEntry& entry : MenuTree()) {
    const std::string name(entry.Name);
    if (entry.Kind == MenuKind::Menu) {
      QMenu* menu = entry.Parent.empty() ? menuBar()->addMenu(ToQString(entry.Caption))
                                         : Menu(entry.Parent)->addMenu(ToQString(entry.Caption));
      menu->setObjectName(ToQString(name));
      menus_[name] = menu;
      continue;
    }
    QMenu* parent = Menu(entry.Parent);
    if (entry.Kind == MenuKind::Separator) {
      actions_[name] = parent->addSeparator();
      actions_[name]->setObjectName(ToQString(name));
      continue;
    }
    for (int member = 0; member < entry.Members; ++member) {
      const std::string own = entry.Members == 1 ? name : MemberName(name, member);
      QAction* action = parent->addAction(entry.Members == 1 ? ToQString(entry.Caption)
                                                             : TwoDigits(member * entry.Step));
      action->setObjectName(ToQString(own));
      action->setCheckable(entry.Kind == MenuKind::Check);
      if (!entry.Shortcut.empty()) action->setShortcut(QKeySequence(ToQString(entry.Shortcut)));
      actions_[own] = action;
    }
  }
  Action("mnuExit")->setMenuRole(QAction::QuitRole);
}

void frmMain::BuildBody() {
  lstDiag_ = new QListView(this);
  lstDiag_->setObjectName(QStringLiteral("lstDiag"));
  lstDiag_->setModel(&log_);
  lstDiag_->setUniformItemSizes(true);
  lstDiag_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  connect(&log_, &WindowLog::Refreshed, lstDiag_, &QListView::scrollToBottom);
  setCentralWidget(lstDiag_);

  statusBar()->setObjectName(QStringLiteral("StatusBar"));
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i] = new QLabel(this);
    panels_[i]->setObjectName(ToQString(MemberName("StatusBar", static_cast<int>(i) + 1)));
    statusBar()->addWidget(panels_[i], 1);
  }
  prgFile_ = new QProgressBar(this);
  prgFile_->setObjectName(QStringLiteral("prgFile"));
  prgFile_->hide();
  statusBar()->addPermanentWidget(prgFile_, 1);
}

void frmMain::Bind(std::string_view name, Command command) {
  connect(Action(std::string(name)), &QAction::triggered, this, std::move(command));
  bound_.emplace(name);
}

void frmMain::BindCommands() {
  Bind("mnuLanguage", [this] { Language(); });
  Bind("mnuQuadrantFilter", [this] { quadrantFilter_->exec(); });
  Bind("mnuStationType", [this] { stationFilter_->exec(); });
  Bind("mnuCountryFilter", [this] { countryFilter_->exec(); });
  Bind("mnuMapFont", [this] { ChooseFont(); });
  Bind("mnuLandStationColor", [this] { ChooseColor("LandColor"); });
  Bind("mnuShipStationColor", [this] { ChooseColor("ShipColor"); });
  Bind("mnuBuoyColor", [this] { ChooseColor("BuoyColor"); });
  Bind("mnuMinimize", [this] { setWindowState(windowState() | Qt::WindowMinimized); });
  Bind("mnuExit", [this] { Exit(); });
  Bind("mnuOpen", [this] { OpenFile(); });
  Bind("mnuLineInput", [this] { LineInputCommand(); });
  Bind("mnuInfo", [this] { Info(); });
  BindUnits();
  BindPictures();
  BindViews();
  ShowRecent();
  GreyUnbound();
}

// What nothing is bound to is grey, and so is a menu of nothing else.
void frmMain::GreyUnbound() {
  for (const auto& [name, action] : actions_) {
    if (action->isSeparator()) continue;
    action->setEnabled(bound_.contains(name));
  }
  // From the leaves up: a submenu stands behind its menu in the tree.
  const auto tree = MenuTree();
  std::for_each(tree.rbegin(), tree.rend(), [this](const MenuEntry& entry) {
    if (entry.Kind != MenuKind::Menu || entry.Name == "mnuRecent") return;
    QMenu* menu = Menu(entry.Name);
    const QList<QAction*> actions = menu->actions();
    menu->menuAction()->setEnabled(std::any_of(
        actions.begin(), actions.end(),
        [](const QAction* action) { return !action->isSeparator() && action->isEnabled(); }));
  });
}

// --- State -----------------------------------------------------------------------------------

QAction* frmMain::Action(const std::string& name) const { return actions_.at(name); }

QMenu* frmMain::Menu(std::string_view name) const { return menus_.find(name)->second; }

void frmMain::EnableMenu(std::string_view name, bool enabled) {
  Menu(name)->menuAction()->setEnabled(enabled);
}

void frmMain::EnableWork(bool enabled) {
  for (const std::string_view name : WorkMenus) EnableMenu(name, enabled);
  if (openViews_ > 0) EnableMenu("mnuInput", false);
}

void frmMain::SetPanel(int panel, const QString& text) {
  panels_.at(static_cast<std::size_t>(panel) - 1)->setText(text);
}

void frmMain::SetCaption() { setWindowTitle(ToQString(app_.Caption)); }

void frmMain::RefreshStatusBar() {
  if (app_.mSchedulingStarted) return;
  const auto show = [this](int panel, std::string_view italian, std::string_view english,
                           std::size_t count) {
    SetPanel(panel, ToQString(app_.Choose(italian, english)) +
                        QString::number(static_cast<qulonglong>(count)));
  };
  show(1, "Dati AAXX/BBXX: ", "AAXX/BBXX Data: ", app_.Stores.SynopStore.Count());
  show(2, "Dati Metar/TAF: ", "Metar/TAF Data: ", app_.Stores.MetarStore.Count());
}

void frmMain::CheckForEnablingMenu() {
  const auto enable = [this](std::string_view sheet, std::string_view maps, bool records) {
    Action(std::string(sheet))->setEnabled(records && bound_.contains(sheet));
    QMenu* menu = Menu(maps);
    bool works = false;
    for (const QAction* action : menu->actions()) works = works || action->isEnabled();
    menu->menuAction()->setEnabled(records && works);
  };
  const bool synop = app_.Stores.SynopStore.Count() > 0;
  enable("mnuSingleSheet", "mnuSynopGeoMaps", synop);
  enable("mnuMetarSingleSheet", "mnuMetarGeoMaps", app_.Stores.MetarStore.Count() > 0);
  if (!synop) app_.mSelectedSynopMap = 0;
}

void frmMain::RefreshUnitMenu() {
  const UnitChoice choice = ReadUnits(app_.Parameters, app_.Texts);
  for (const UnitGroup& group : UnitGroups()) {
    const std::optional<std::size_t> chosen = choice.Entries[static_cast<std::size_t>(group.Kind)];
    for (std::size_t i = 0; chosen && i < group.Entries.size(); ++i) {
      Action(std::string(group.Entries[i].Menu))->setChecked(i == *chosen);
    }
    EnableMenu(group.Menu, choice.Converts);
  }
  Action("mnuMessageUnit")->setChecked(!choice.Converts);
}

// --- Stations --------------------------------------------------------------------------------

void frmMain::LoadWMO(const QStringList& bulletins) {
  if (app_.Database.IsConnected()) {
    BuildStations();
    if (!app_.Stations.Load(app_.Database)) {
      app_.Messages.Show(Prompt::Icon::Critical, app_.Database.Error());
    }
  }
  for (const QString& file : bulletins) OpenBulletin(file);
}

void frmMain::BuildStations() {
  if (!IsStationTableEmpty(app_.Database)) return;
  EnableWork(false);
  Action("mnuExit")->setEnabled(false);
  prgFile_->show();
  SetPanel(2, ToQString(StationBuildStatus(app_.Texts)));
  WindowProgress progress(*prgFile_, app_.Time);
  const StationBuild build =
      BuildStationTable(app_.Parameters, app_.Database, app_.Texts, app_.Log, progress,
                        app_.Messages, [this] { countryFilter_->LoadCountryList(); });
  prgFile_->hide();
  Action("mnuExit")->setEnabled(true);
  if (build.Outcome == StationBuild::Result::Fatal) {
    // The message has told the line of the list; a directory with false positions is of no use.
    Exit();
    return;
  }
  // Without stations no report could be decoded, so the menus stay shut; the way out is open.
  if (build.Outcome == StationBuild::Result::Failed) return;
  SetPanel(2, {});
  EnableWork(true);
  RefreshStatusBar();
}

// --- Events ----------------------------------------------------------------------------------

void frmMain::closeEvent(QCloseEvent* event) {
  KeepSize(app_, *this);
  event->accept();
  Exit();
}

// Minimising and restoring takes all windows along.
void frmMain::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window != this && window->isVisible() && qobject_cast<Form*>(window) != nullptr) {
        window->setWindowState(windowState());
      }
    }
  }
  QMainWindow::changeEvent(event);
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
  const bool works = Menu("mnuInput")->menuAction()->isEnabled();
  if (works && event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  for (const QUrl& url : event->mimeData()->urls()) {
    if (url.isLocalFile()) OpenBulletin(url.toLocalFile());
  }
}

}  // namespace zg
