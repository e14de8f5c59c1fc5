// What tests of windows share: an application directory of their own with the shipped files and a
// database full of stations, an Application over it, and dialogs that answer by themselves.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "batch/Console.h"
#include "shell/Application.h"
#include "shell/QtPlatform.h"
#include "shell/TestSupport.h"

namespace zg::test {

// Answers as it was told, and keeps what it was asked. Without an answer a dialog is left.
struct ScriptedDialogs : Dialogs {
  std::vector<QString> Questions;
  std::deque<bool> Answers;   // of Ask, first to last; false when there is none left
  std::deque<QString> Texts;  // of OpenFile, SaveFile and InputBox
  std::optional<QColor> Color;
  std::optional<QFont> Font;

  bool Ask(QWidget*, const QString& text) override;
  QString OpenFile(QWidget*, const QString& title, const QString& folder,
                   const QString& filters) override;
  QString SaveFile(QWidget*, const QString& title, const QString& name,
                   const QString& filters) override;
  std::optional<QColor> ChooseColor(QWidget*, const QColor& color) override;
  std::optional<QFont> ChooseFont(QWidget*, const QFont& font) override;
  QString InputBox(QWidget*, const QString& title, const QString& prompt,
                   const QString& text) override;

 private:
  QString NextText(const QString& question);
};

// The shipped files in a folder of the test's own. `stations` false leaves the table empty, as at
// the first start.
class ApplicationFolder {
 public:
  explicit ApplicationFolder(bool stations = true);
  const std::string& Path() const { return folder_.Path(); }

 private:
  TemporaryFolder folder_;
};

// A whole program but for its windows: English, as shipped, initialised, with the stations loaded.
class UiTest : public ::testing::Test {
 protected:
  explicit UiTest(bool stations = true);

  // Lines of the log without their date and time.
  std::vector<std::string> LogTexts();
  bool LogHolds(std::string_view text);
  std::string Parameter(std::string_view key) { return App.Parameters.GetParameter(key); }

  ApplicationFolder Folder;
  RecordingPrompt Messages;
  WindowLog Log;
  SteadyClock Time;
  ScriptedDialogs Dialogs;
  Application App;
};

// The control of a window by its object name; fails the test where there is none.
template <typename Control>
Control& Find(const QWidget& window, const char* name) {
  auto* control = window.findChild<Control*>(QLatin1String(name));
  if (control == nullptr) throw std::logic_error(std::string("no control ") + name);
  return *control;
}

// A click of the mouse on a control, on the mark of a check box or an option button.
template <typename Control = QAbstractButton>
void Click(const QWidget& window, const char* name) {
  auto& control = Find<Control>(window, name);
  QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier, {8, control.height() / 2});
}

// Does something as soon as a modal window called `name` is on the screen, and expects it to come.
void OnModal(const char* name, std::function<void(QWidget&)> act);

}  // namespace zg::test
