#include "ui/UiTest.h"

#include <QTimer>

#include "shell/QtStartUp.h"

namespace zg::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* Database = "ICAOData.mdb";

}  // namespace

bool ScriptedDialogs::Ask(QWidget*, const QString& text) {
  Questions.push_back(text);
  if (Answers.empty()) return false;
  const bool answer = Answers.front();
  Answers.pop_front();
  return answer;
}

QString ScriptedDialogs::NextText(const QString& question) {
  Questions.push_back(question);
  if (Texts.empty()) return {};
  QString text = Texts.front();
  Texts.pop_front();
  return text;
}

QString ScriptedDialogs::OpenFile(QWidget*, const QString& title, const QString&, const QString&) {
  return NextText(title);
}

QString ScriptedDialogs::SaveFile(QWidget*, const QString& title, const QString&, const QString&) {
  return NextText(title);
}

std::optional<QColor> ScriptedDialogs::ChooseColor(QWidget*, const QColor& color) {
  Questions.push_back(color.name());
  return Color;
}

std::optional<QFont> ScriptedDialogs::ChooseFont(QWidget*, const QFont& font) {
  Questions.push_back(font.family());
  return Font;
}

QString ScriptedDialogs::InputBox(QWidget*, const QString&, const QString& prompt, const QString&) {
  return NextText(prompt);
}

ApplicationFolder::ApplicationFolder(bool stations) {
  const fs::path built = ZG_BINARY_DIR;
  for (const auto& entry : fs::directory_iterator(built)) {
    const fs::path name = entry.path().filename();
    if (name == "MeteoFiles" || name == "help") {
      fs::copy(entry.path(), folder_.Path() / name, fs::copy_options::recursive);
    } else if (entry.is_regular_file() && name.has_extension() && name.extension() != ".mdb" &&
               name.extension() != ".bak") {
      fs::copy_file(entry.path(), folder_.Path() / name);
    }
  }
  // The settings beside the executables may have been edited.
  for (const char* name : {"zephyrgram.ini", "zephyrgram.def"}) {
    fs::copy_file(fs::path(ZG_SOURCE_DIR) / "data" / name, folder_ / name,
                  fs::copy_options::overwrite_existing);
  }
  fs::copy_file(fs::path(ZG_STATIONS_DIR) / (stations ? Database : "empty.mdb"),
                folder_ / Database);
  fs::create_directories(folder_ / "WrongFiles");
}

UiTest::UiTest(bool stations) : Folder(stations), App(Folder.Path(), Log, Messages, Time) {
  App.Caption += ApplicationVersion("1.2.3");
  Initialise(App);
  if (stations) App.Stations.Load(App.Database);
}

std::vector<std::string> UiTest::LogTexts() {
  Log.Refresh();
  std::vector<std::string> texts;
  for (int row = 0; row < Log.rowCount(); ++row) {
    const std::string line = Log.data(Log.index(row), Qt::DisplayRole).toString().toStdString();
    texts.push_back(line.substr(line.find(" - ") + 3));
  }
  return texts;
}

bool UiTest::LogHolds(std::string_view text) {
  const std::vector<std::string> texts = LogTexts();
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

void OnModal(const char* name, std::function<void(QWidget&)> act) {
  auto* timer = new QTimer(QApplication::instance());
  auto tries = std::make_shared<int>(0);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, tries, name, act = std::move(act)] {
    QWidget* modal = QApplication::activeModalWidget();
    const bool shown = modal != nullptr && modal->objectName() == QLatin1String(name);
    ++*tries;
    // Keys reach a window once it is active; a click would reach it before.
    if (shown && !modal->isActiveWindow() && *tries < 500) return;
    if (!shown) {
      if (*tries == 500) {
        timer->deleteLater();
        ADD_FAILURE() << "no window " << name;
      }
      return;
    }
    timer->stop();
    timer->deleteLater();
    act(*modal);
  });
  timer->start(10);
}

}  // namespace zg::test
