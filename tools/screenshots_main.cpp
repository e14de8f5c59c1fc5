// zg_screenshots FOLDER OUTPUT: shows every window of the program, in both languages, and writes
// what it looks like to OUTPUT as PNG. FOLDER is an application directory, best a copy: bulletins
// are decoded, settings are written. tools/screenshots prepares both.
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPalette>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QTimer>
#include <cstdio>
#include <functional>
#include <memory>

#include "batch/Console.h"
#include "decode/frmDecode.h"
#include "decode/frmLineInputMsg.h"
#include "shell/Application.h"
#include "shell/QtForm.h"
#include "shell/QtPlatform.h"
#include "shell/QtStartUp.h"
#include "shell/frmBrowser.h"
#include "shell/frmInit.h"
#include "shell/frmLanguage.h"
#include "shell/frmMain.h"
#include "tables/frmMetarMeteoData.h"
#include "tables/frmSynopMeteoData.h"
#include "views/frmCountryFilter.h"
#include "views/frmDataFields.h"
#include "views/frmGlobalView.h"
#include "views/frmQuadrantFilter.h"
#include "views/frmStationFilter.h"

namespace {

// Message boxes go to the terminal: nobody is there to close them.
struct TerminalPrompt : zg::Prompt {
  void Show(Icon, std::string_view text) override {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
  }
};

// The offscreen platform tells at each window what it cannot do; that is of no interest here.
void TellUnlessOfPlatform(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (text.startsWith(QLatin1String("This plugin does not support"))) return;
  std::fprintf(stderr, "%s\n", qPrintable(text));
}

// Everything that windows are made of, in one language.
struct Stage {
  Stage(const std::string& folder, const char* language)
      : App(folder, Log, Messages, Clock), Parameters(App.Parameters) {
    App.Caption += zg::ApplicationVersion(ZG_VERSION);
    Parameters.SetParameter("Language", language);
    Parameters.SetParameter("CountryFilter", "");
    zg::Initialise(App);
    Main = std::make_unique<zg::frmMain>(App, Log, Dialogs);
    Main->LoadWMO();
  }

  void Decode(const char* bulletin) {
    Main->OpenBulletin(zg::ToQString(App.MeteoFilesPath + bulletin));
  }

  zg::WindowLog Log;
  TerminalPrompt Messages;
  zg::SteadyClock Clock;
  zg::SystemDialogs Dialogs;
  zg::Application App;
  zg::GenericUtility& Parameters;
  std::unique_ptr<zg::frmMain> Main;
};

using Window = std::unique_ptr<QWidget>;

template <typename Form>
Window Make(Stage& stage) {
  return std::make_unique<Form>(stage.App, nullptr);
}

Window MakeBrowser(Stage& stage, const char* page) {
  stage.Parameters.SetParameter("BrowserUrl", page);
  stage.Parameters.SetParameter(
      "BrowserCaption", stage.App.Choose("Informazioni su Zephyrgram", "Zephyrgram Informations"));
  return Make<zg::frmBrowser>(stage);
}

Window MakeCountryFilter(Stage& stage) {
  stage.Parameters.SetParameter("CountryFilter", "Austria, Italy, Switzerland, ");
  auto window = std::make_unique<zg::frmCountryFilter>(stage.App, nullptr);
  window->FillCountryList();
  return window;
}

Window MakeLineInput(Stage& stage) {
  auto window = std::make_unique<zg::frmLineInputMsg>(stage.App, nullptr);
  window->findChild<QPlainTextEdit*>(QStringLiteral("txtMsg"))
      ->setPlainText(QStringLiteral("METAR LIRF 151250Z 27010KT 9999 FEW030 18/12 Q1015 NOSIG="));
  return window;
}

template <const zg::GlobalViewTable& Table>
Window MakeView(Stage& stage) {
  auto window = std::make_unique<zg::frmGlobalView>(stage.App, stage.Dialogs, Table, nullptr);
  window->Load();
  return window;
}

// A picture is named by its row and the language: "frmInit_eng.png". A window that is not made here
// is the main window, with a menu open if there is one in the row.
struct Shot {
  const char* Name;
  Window (*Make)(Stage&);
  const char* Menu = nullptr;
  QSize Size = {};  // of the window; none: as it opens
};

const Shot Shots[] = {
    // For the help pages, in the size in which they show them.
    {"help_main", nullptr, nullptr, {600, 260}},
    {"help_country", MakeCountryFilter, nullptr, {400, 440}},
    {"frmMain", nullptr, nullptr, {900, 560}},
    {"frmMain_settings", nullptr, "mnuConfig"},
    {"frmInit",
     [](Stage& stage) -> Window {
       return std::make_unique<zg::frmInit>(stage.App, stage.Main->CountryFilter());
     }},
    {"frmLanguage", Make<zg::frmLanguage>},
    {"frmLineInputMsg", MakeLineInput},
    {"frmCountryFilter", MakeCountryFilter},
    {"frmQuadrantFilter", Make<zg::frmQuadrantFilter>},
    {"frmStationFilter", Make<zg::frmStationFilter>},
    {"frmSynopGlobalView", MakeView<zg::SynopGlobalView>, nullptr, {1000, 560}},
    {"frmMetarGlobalView", MakeView<zg::MetarGlobalView>, nullptr, {1000, 560}},
    {"frmSynopDataFields",
     [](Stage& stage) -> Window {
       return std::make_unique<zg::frmDataFields>(stage.App, zg::SynopGlobalView, nullptr);
     }},
    {"frmSynopMeteoData",
     [](Stage& stage) -> Window {
       auto window = std::make_unique<zg::frmSynopMeteoData>(stage.App, nullptr);
       window->ShowSynopDataRecord(2);
       return window;
     }},
    {"frmMetarMeteoData",
     [](Stage& stage) -> Window {
       auto window = std::make_unique<zg::frmMetarMeteoData>(stage.App, nullptr);
       window->ShowMetarDataRecord(2);
       return window;
     }},
    {"frmBrowser",
     [](Stage& stage) {
       return MakeBrowser(stage, stage.App.Texts.IsItalian() ? "ZGItaHelp.htm" : "ZGEngHelp.htm");
     }},
    {"frmBrowser_web",
     [](Stage& stage) { return MakeBrowser(stage, "https://example.org/charts/europe.png"); }},
};

// Bulletins shipped with the program, in the order in which they are opened.
constexpr const char* Bulletins[] = {"METAR_World.txt", "SYNOP_Land.txt"};

class Camera {
 public:
  Camera(QString output, QString language)
      : output_(std::move(output)), language_(std::move(language)) {}

  bool Ok() const { return ok_; }

  void Save(const QPixmap& picture, const QString& name) {
    const QString path =
        output_ + QLatin1Char('/') + name + QLatin1Char('_') + language_ + QStringLiteral(".png");
    const bool saved =
        picture.toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", 0);
    if (!saved) std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
    ok_ = ok_ && saved;
  }

  void Take(QWidget& window, const QString& name, QSize size) {
    window.show();
    if (!size.isEmpty()) window.resize(size);
    QApplication::processEvents();
    Save(window.grab(), name);
  }

  // The window with a menu over it, opened from the menu bar down.
  void TakeMenu(QWidget& window, const QString& name, const char* menuName) {
    window.show();
    QApplication::processEvents();
    QPixmap picture = window.grab();
    auto* menu = window.findChild<QMenu*>(QLatin1String(menuName));
    menu->popup(window.mapToGlobal(QPoint(24, 48)));
    QApplication::processEvents();
    QPainter(&picture).drawPixmap(24, 48, menu->grab());
    menu->close();
    Save(picture, name);
  }

 private:
  QString output_;
  QString language_;
  bool ok_ = true;
};

// The decode window is on the screen as long as a file is decoded: the last picture counts.
void TakeDecoding(Stage& stage, Camera& camera) {
  QPixmap picture;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&picture] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->objectName() == QLatin1String("frmDecode")) {
        picture = window->grab();
      }
    }
  });
  timer.start(0);
  for (const char* bulletin : Bulletins) stage.Decode(bulletin);
  camera.Save(picture, QStringLiteral("frmDecode"));
}

bool TakeAll(const std::string& folder, const QString& output, const char* language,
             const char* ending) {
  Stage stage(folder, language);
  Camera camera(output, QLatin1String(ending));
  stage.Main->show();
  TakeDecoding(stage, camera);
  for (const Shot& shot : Shots) {
    const QString name = QLatin1String(shot.Name);
    if (shot.Menu != nullptr) {
      camera.TakeMenu(*stage.Main, name, shot.Menu);
    } else if (shot.Make == nullptr) {
      camera.Take(*stage.Main, name, shot.Size);
    } else {
      const Window window = shot.Make(stage);
      camera.Take(*window, name, shot.Size);
    }
  }
  return camera.Ok();
}

QPalette DarkPalette() {
  QPalette palette(QColor(53, 53, 53));
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
  palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(110, 180, 240));
  palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
  return palette;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(TellUnlessOfPlatform);
  QApplication program(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zephyrgram"));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QStringList arguments = QApplication::arguments();
  if (arguments.removeAll(QStringLiteral("--dark")) > 0) QApplication::setPalette(DarkPalette());
  if (arguments.size() != 3) {
    std::fprintf(stderr, "usage: zg_screenshots [--dark] FOLDER OUTPUT\n");
    return 2;
  }
  const std::string folder = arguments[1].toStdString() + "/";
  if (!QDir().mkpath(arguments[2])) return 1;
  const bool italian = TakeAll(folder, arguments[2], "0", "ita");
  const bool english = TakeAll(folder, arguments[2], "1", "eng");
  return italian && english ? 0 : 1;
}
