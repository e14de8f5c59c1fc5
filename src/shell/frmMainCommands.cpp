// The commands that the main window settles itself.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <array>

#include "decode/frmDecode.h"
#include "decode/frmLineInputMsg.h"
#include "shell/LineDecoder.h"
#include "shell/MenuTree.h"
#include "shell/QtForm.h"
#include "shell/frmBrowser.h"
#include "shell/frmLanguage.h"
#include "shell/frmMain.h"
#include "tables/ReportUnits.h"
#include "text/TextRules.h"
#include "views/frmCountryFilter.h"

namespace zg {
namespace {

// Beyond so many bytes a file is worth the question for the country filter. Its text says
// megabytes; both are known so.
constexpr qint64 LargeFile = 250000;

constexpr int MostRecent = 8;

constexpr const char* FileFilters =
    "Text Files (*.txt *.TXT);;Meteo Files (*.wmo *.WMO);;Log Files (*.log *.LOG);;All Files (*)";

// "Picture3Name" or "Picture3File".
std::string PictureKey(int picture, std::string_view what) {
  return "Picture" + PlainDecimal(picture) + std::string(what);
}

std::string PictureMenu(int picture, std::string_view what = {}) {
  return "mnu" + PictureKey(picture, what);
}

}  // namespace

// --- Bulletins -------------------------------------------------------------------------------

void frmMain::OpenFile() {
  const QString path = dialogs_.OpenFile(this, QStringLiteral("Open Meteo File"),
                                         ToQString(app_.MeteoFilesPath), FileFilters);
  if (!path.isEmpty()) OpenBulletin(path);
}

void frmMain::OpenBulletin(const QString& path) {
  // A run in progress owns the stores.
  if (!Menu("mnuInput")->menuAction()->isEnabled()) return;
  app_.mFileName = path.toStdString();
  if (QFileInfo(path).size() > LargeFile &&
      Trim(app_.Parameters.GetParameter("CountryFilter", " ")).empty()) {
    const QString question =
        ToQString(app_.Choose("Il File ", "")) + (app_.Texts.IsItalian() ? path : path + " ") +
        ToQString(app_.Choose(" e' maggiore di 250Mbytes!\nUtilizzare il Filtro delle Nazioni?",
                              "File is greater than 250Mbytes!\nWould you the Country Filter?"));
    if (dialogs_.Ask(this, question)) countryFilter_->exec();
  }
  AddRecent(path);
  decode_->Run();
  CheckForEnablingMenu();
  RefreshStatusBar();
}

void frmMain::AddRecent(const QString& path) {
  const QString whole = QFileInfo(path).absoluteFilePath();
  QStringList files = ToQString(app_.Parameters.GetParameter("RecentFiles", "|"))
                          .split(QLatin1Char('|'), Qt::SkipEmptyParts);
  if (!files.isEmpty() && files.first() == whole) return;
  files.removeAll(whole);
  files.prepend(whole);
  while (files.size() > MostRecent) files.removeLast();
  app_.Parameters.SetParameter("RecentFiles", files.join(QLatin1Char('|')).toStdString());
  ShowRecent();
}

void frmMain::ShowRecent() {
  QMenu* menu = Menu("mnuRecent");
  menu->clear();
  const QStringList files = ToQString(app_.Parameters.GetParameter("RecentFiles", "|"))
                                .split(QLatin1Char('|'), Qt::SkipEmptyParts);
  for (const QString& file : files) {
    QString shown = file;
    QAction* action = menu->addAction(shown.replace(QLatin1Char('&'), QStringLiteral("&&")));
    connect(action, &QAction::triggered, this, [this, file] { OpenBulletin(file); });
  }
  menu->menuAction()->setEnabled(!files.isEmpty());
}

void frmMain::LineInputCommand() {
  frmLineInputMsg(app_, this).exec();
  if (!app_.mLineInputMsg.empty()) {
    StoresWillChange();
    if (lineDecoder_ == nullptr) lineDecoder_ = std::make_unique<LineDecoder>(app_);
    const LineDecoder::Family family = lineDecoder_->Decode(app_.mLineInputMsg);
    StoresChanged();
    if (family == LineDecoder::Family::Synop) {
      ShowSynopReport(static_cast<int>(app_.Stores.SynopStore.Count()) - 1);
    } else if (family == LineDecoder::Family::Metar) {
      ShowMetarReport(static_cast<int>(app_.Stores.MetarStore.Count()) - 1);
    }
  }
  RefreshStatusBar();
  CheckForEnablingMenu();
  app_.mLineInputMsg.clear();
}

// --- Settings --------------------------------------------------------------------------------

void frmMain::BindUnits() {
  for (const UnitGroup& group : UnitGroups()) {
    for (const UnitEntry& entry : group.Entries) {
      Bind(entry.Menu, [this, &group, &entry] {
        app_.Parameters.SetParameter(group.Key, entry.Suffix);
        RefreshUnitMenu();
      });
    }
  }
  Bind("mnuMessageUnit", [this] {
    // Qt has turned the mark already: unmarked now, it was marked.
    const bool convert = !Action("mnuMessageUnit")->isChecked();
    app_.Parameters.SetParameter("UnitConversion", convert ? "Yes" : "No");
    RefreshUnitMenu();
  });
}

// Colours are kept as red + 256 * green + 65536 * blue.
void frmMain::ChooseColor(std::string_view key) {
  const auto value = ToInteger<std::int32_t>(Value(app_.Parameters.GetParameter(key))).value_or(0);
  const QColor now(value & 255, value >> 8 & 255, value >> 16 & 255);
  const std::optional<QColor> chosen = dialogs_.ChooseColor(this, now);
  if (!chosen) return;
  app_.Parameters.SetParameter(
      key, PlainDecimal(chosen->red() + 256 * chosen->green() + 65536 * chosen->blue()));
}

void frmMain::ChooseFont() {
  QFont font(ToQString(app_.Parameters.GetParameter("FieldFontName")));
  const double size = Value(app_.Parameters.GetParameter("FieldFontSize"));
  if (size > 0) font.setPointSizeF(size);
  const std::optional<QFont> chosen = dialogs_.ChooseFont(this, font);
  if (!chosen) return;
  app_.Parameters.SetParameter("FieldFontName", chosen->family().toStdString());
  app_.Parameters.SetParameter("FieldFontSize", PlainDecimal(chosen->pointSizeF()));
}

void frmMain::Language() {
  if (frmLanguage(app_, this).Choose()) {
    SetCaption();
    ShowPictures();
    RefreshStatusBar();
  }
}

// --- Pictures --------------------------------------------------------------------------------

void frmMain::BindPictures() {
  for (int picture = 1; picture <= Pictures; ++picture) {
    Bind(PictureMenu(picture, "Name"), [this, picture] { PictureName(picture); });
    Bind(PictureMenu(picture, "Url"), [this, picture] { PictureUrl(picture); });
    Bind(PictureMenu(picture), [this, picture] { ShowPicture(picture); });
    pictureNames_[static_cast<std::size_t>(picture) - 1] =
        app_.Parameters.GetParameter(PictureKey(picture, "Name"));
  }
}

// An entry for each picture with a name, and the line above them if there is any.
void frmMain::ShowPictures() {
  bool any = false;
  for (int picture = 1; picture <= Pictures; ++picture) {
    const std::string& name = pictureNames_[static_cast<std::size_t>(picture) - 1];
    QAction* entry = Action(PictureMenu(picture));
    entry->setText(QStringLiteral("[%1] ").arg(picture) +
                   ToQString(name).replace(QLatin1Char('&'), QStringLiteral("&&")));
    entry->setVisible(!name.empty());
    any = any || !name.empty();
  }
  Action("mnuSeparator")->setVisible(any);
}

void frmMain::PictureName(int picture) {
  std::string& name = pictureNames_[static_cast<std::size_t>(picture) - 1];
  const QString prompt =
      ToQString(app_.Choose("Inserire il nuovo Nome della Picture (", "Insert new Picture (")) +
      QString::number(picture) + ToQString(app_.Choose(").", ") Name."));
  name = dialogs_.InputBox(this, QStringLiteral("Picture Name"), prompt, ToQString(name))
             .toStdString();
  ShowPictures();
  app_.Parameters.SetParameter(PictureKey(picture, "Name"), name);
  if (!name.empty()) PictureUrl(picture);
}

void frmMain::PictureUrl(int picture) {
  const QString prompt = ToQString(app_.Choose("Inserire il nuovo Indirizzo Url della Picture (",
                                               "Insert new Picture (")) +
                         QString::number(picture) + ToQString(app_.Choose(").", ") Url Address."));
  const std::string key = PictureKey(picture, "File");
  const QString answer = dialogs_.InputBox(this, QStringLiteral("Picture Url Address"), prompt,
                                           ToQString(app_.Parameters.GetParameter(key, " ")));
  app_.Parameters.SetParameter(key, answer.toStdString());
}

void frmMain::ShowPicture(int picture) {
  const std::string url = app_.Parameters.GetParameter(PictureKey(picture, "File"));
  if (url.empty()) {
    app_.Messages.Show(Prompt::Icon::Information, app_.Choose("Url non definita", "Undefined Url"));
    return;
  }
  ShowBrowser(url, pictureNames_[static_cast<std::size_t>(picture) - 1]);
  app_.Log.Log("Browser: " + url);
}

// --- Help and the way out --------------------------------------------------------------------

// The window reads both from the parameters.
void frmMain::ShowBrowser(std::string_view url, std::string_view caption) {
  app_.Parameters.SetParameter("BrowserUrl", url);
  app_.Parameters.SetParameter("BrowserCaption", caption);
  frmBrowser(app_, this).exec();
}

void frmMain::Info() {
  ShowBrowser(app_.ApplicationPath + std::string(app_.Choose("ZGItaHelp.htm", "ZGEngHelp.htm")),
              app_.Choose("Informazioni su Zephyrgram", "Zephyrgram Informations"));
}

// Every setting was written when it was made, so nothing is saved here. A run in progress ends
// behind its line.
void frmMain::Exit() {
  decode_->Stop();
  QApplication::exit(0);
}

}  // namespace zg
