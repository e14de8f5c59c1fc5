#include "shell/QtStartUp.h"

#include <QApplication>
#include <QFontDatabase>
#include <QIcon>

#include "shell/QtPlatform.h"
#include "shell/frmInit.h"
#include "shell/frmMain.h"
#include "tables/ReportUnits.h"

namespace zg {

void Initialise(Application& app) {
  if (QFontDatabase::addApplicationFont(ToQString(app.ApplicationPath + "weather.ttf")) < 0) {
    app.Messages.Show(Prompt::Icon::Critical, "Weather Font Installation Error!");
  }
  QApplication::setWindowIcon(QIcon(ToQString(app.ApplicationPath + "zephyrgram.png")));
  ReadLanguageAndUnits(app.Parameters, app.Texts);
  app.Filters = ReadMessageFilters(app.Parameters);
  app.Database.ConnectDatabase(app.ApplicationPath + "ICAOData.mdb");
}

void ShowSplash(Application& app, frmMain& window) { frmInit(app, window.CountryFilter()).exec(); }

}  // namespace zg
