// The program's interfaces to its user, in windows: the log list, message boxes, and the dialogs
// that the system brings (files, colours, fonts, a line of text).
#pragma once

#include <QAbstractListModel>
#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <optional>
#include <string_view>

#include "shell/LogLines.h"
#include "shell/Platform.h"

class QProgressBar;

namespace zg {

inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The log as a list that a view can show. Lines that come in numbers, as in a run, reach the view
// together, when the event loop next turns.
class WindowLog : public QAbstractListModel, public LogList {
  Q_OBJECT

 public:
  explicit WindowLog(QObject* parent = nullptr) : QAbstractListModel(parent) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  // Shows what has come since the last time.
  void Refresh() override;

 signals:
  void Refreshed();

 protected:
  void Write(std::string_view text) override;

 private:
  LogLines lines_;
  QStringList shown_;
  std::size_t shownGone_ = 0;  // entries that had gone when `shown_` was made
  bool waiting_ = false;
};

// Message boxes, over the window that is in use. A text longer than a screen scrolls.
class MessageBoxes : public Prompt {
 public:
  void Show(Icon icon, std::string_view text) override;
};

// Shows how far a piece of work has come in a progress bar, and lets windows live meanwhile: some
// thirty times a second, however often the work offers it.
class WindowProgress : public Progress {
 public:
  WindowProgress(QProgressBar& bar, Clock& clock) noexcept : bar_(bar), clock_(clock) {}

  void Begin(std::int64_t maximum) override;
  void Advance(std::int64_t position) override { position_ = position; }
  void Yield() override;

 protected:
  // Brings the window up to date.
  virtual void Show();

  std::int64_t Position() const noexcept { return position_; }
  std::int64_t Maximum() const noexcept { return maximum_; }

 private:
  QProgressBar& bar_;
  Clock& clock_;
  std::int64_t maximum_ = 0;
  std::int64_t position_ = 0;
  std::int64_t shownAt_ = 0;
};

// What the program asks by a dialog of the system. Tests answer in its place.
class Dialogs {
 public:
  Dialogs() = default;
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;
  virtual ~Dialogs() = default;

  // Yes or no.
  virtual bool Ask(QWidget* parent, const QString& text) = 0;
  // Name of an existing file; empty if none was chosen. Filters as "Text Files (*.txt);;...".
  virtual QString OpenFile(QWidget* parent, const QString& title, const QString& folder,
                           const QString& filters) = 0;
  // Name for a file to be written; empty if none was chosen.
  virtual QString SaveFile(QWidget* parent, const QString& title, const QString& name,
                           const QString& filters) = 0;
  virtual std::optional<QColor> ChooseColor(QWidget* parent, const QColor& color) = 0;
  virtual std::optional<QFont> ChooseFont(QWidget* parent, const QFont& font) = 0;
  // A line of text; empty also if the dialog was left.
  virtual QString InputBox(QWidget* parent, const QString& title, const QString& prompt,
                           const QString& text) = 0;
};

class SystemDialogs : public Dialogs {
 public:
  bool Ask(QWidget* parent, const QString& text) override;
  QString OpenFile(QWidget* parent, const QString& title, const QString& folder,
                   const QString& filters) override;
  QString SaveFile(QWidget* parent, const QString& title, const QString& name,
                   const QString& filters) override;
  std::optional<QColor> ChooseColor(QWidget* parent, const QColor& color) override;
  std::optional<QFont> ChooseFont(QWidget* parent, const QFont& font) override;
  QString InputBox(QWidget* parent, const QString& title, const QString& prompt,
                   const QString& text) override;
};

}  // namespace zg
