// The desktop program: zephyrgram [BULLETIN...]
#include <QApplication>
#include <QLockFile>
#include <QStringList>
#include <QTimer>
#include <csignal>

#include "batch/Console.h"
#include "shell/Application.h"
#include "shell/ApplicationDirectory.h"
#include "shell/QtPlatform.h"
#include "shell/QtStartUp.h"
#include "shell/frmMain.h"

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  QApplication program(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zephyrgram"));
  QApplication::setDesktopFileName(QStringLiteral("org.zephyrgram.Zephyrgram"));
  QApplication::setQuitOnLastWindowClosed(false);

  const zg::ApplicationDirectory directory = zg::FindApplicationDirectory();
  zg::MessageBoxes messages;
  if (!directory.Error.empty()) messages.Show(zg::Prompt::Icon::Critical, directory.Error);
  // A second start ends at once. Where no lock can be made (a folder that is not writable) there is
  // none.
  QLockFile lock(zg::ToQString(directory.Path + "zephyrgram.lock"));
  lock.setStaleLockTime(0);
  if (!lock.tryLock() && lock.error() == QLockFile::LockFailedError) return 0;

  zg::WindowLog log;
  zg::SteadyClock clock;
  zg::SystemDialogs dialogs;
  zg::Application app(directory.Path, log, messages, clock);
  app.Caption += zg::ApplicationVersion(ZG_VERSION);
  zg::Initialise(app);
  zg::frmMain window(app, log, dialogs);
  zg::ShowSplash(app, window);
  window.show();
  // From within the event loop, so that the program can be left while it works.
  QTimer::singleShot(0, &window, [&window] { window.LoadWMO(QApplication::arguments().mid(1)); });
  return QApplication::exec();
}
