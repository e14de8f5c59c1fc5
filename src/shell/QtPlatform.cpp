#include "shell/QtPlatform.h"

#include <QApplication>
#include <QColorDialog>
#include <QDateTime>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QProgressBar>
#include <QTimer>
#include <algorithm>
#include <limits>

namespace zg {
namespace {

constexpr std::int64_t RepaintMilliseconds = 33;

int ForBar(std::int64_t bytes) {
  return static_cast<int>(std::min<std::int64_t>(bytes, std::numeric_limits<int>::max()));
}

}  // namespace

int WindowLog::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant WindowLog::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
  return shown_.at(index.row());
}

void WindowLog::Write(std::string_view text) {
  const QByteArray now =
      QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toUtf8();
  if (!lines_.Add({now.data(), static_cast<std::size_t>(now.size())}, text) || waiting_) return;
  waiting_ = true;
  QTimer::singleShot(0, this, [this] { Refresh(); });
}

void WindowLog::Refresh() {
  waiting_ = false;
  const auto gone = static_cast<int>(
      std::min(lines_.Gone() - shownGone_, static_cast<std::size_t>(shown_.size())));
  shownGone_ = lines_.Gone();
  if (gone > 0) {
    beginRemoveRows({}, 0, gone - 1);
    shown_.remove(0, gone);
    endRemoveRows();
  }
  const auto have = static_cast<int>(shown_.size());
  const auto all = static_cast<int>(lines_.Lines().size());
  if (all > have) {
    beginInsertRows({}, have, all - 1);
    for (int i = have; i < all; ++i) {
      shown_.append(ToQString(lines_.Lines()[static_cast<std::size_t>(i)]));
    }
    endInsertRows();
  }
  emit Refreshed();
}

void MessageBoxes::Show(Icon icon, std::string_view text) {
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(QStringLiteral("Zephyrgram"));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQString(text));
  switch (icon) {
    case Icon::None:
      box.setIcon(QMessageBox::NoIcon);
      break;
    case Icon::Information:
      box.setIcon(QMessageBox::Information);
      break;
    case Icon::Critical:
      box.setIcon(QMessageBox::Critical);
      break;
  }
  box.exec();
}

void WindowProgress::Begin(std::int64_t maximum) {
  maximum_ = maximum;
  position_ = 0;
  bar_.setMaximum(ForBar(maximum));
  Show();
}

void WindowProgress::Yield() {
  const std::int64_t now = clock_.TickCount();
  if (now - shownAt_ < RepaintMilliseconds) return;
  Show();
  QApplication::processEvents();
  shownAt_ = clock_.TickCount();
}

void WindowProgress::Show() { bar_.setValue(ForBar(position_)); }

bool SystemDialogs::Ask(QWidget* parent, const QString& text) {
  return QMessageBox::question(parent, QStringLiteral("Zephyrgram"), text) == QMessageBox::Yes;
}

QString SystemDialogs::OpenFile(QWidget* parent, const QString& title, const QString& folder,
                                const QString& filters) {
  return QFileDialog::getOpenFileName(parent, title, folder, filters);
}

QString SystemDialogs::SaveFile(QWidget* parent, const QString& title, const QString& name,
                                const QString& filters) {
  return QFileDialog::getSaveFileName(parent, title, name, filters);
}

std::optional<QColor> SystemDialogs::ChooseColor(QWidget* parent, const QColor& color) {
  const QColor chosen = QColorDialog::getColor(color, parent);
  return chosen.isValid() ? std::optional(chosen) : std::nullopt;
}

std::optional<QFont> SystemDialogs::ChooseFont(QWidget* parent, const QFont& font) {
  bool accepted = false;
  const QFont chosen = QFontDialog::getFont(&accepted, font, parent);
  return accepted ? std::optional(chosen) : std::nullopt;
}

QString SystemDialogs::InputBox(QWidget* parent, const QString& title, const QString& prompt,
                                const QString& text) {
  return QInputDialog::getText(parent, title, prompt, QLineEdit::Normal, text);
}

}  // namespace zg
