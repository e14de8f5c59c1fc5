#include "shell/QtForm.h"

#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QShowEvent>

#include "shell/LabelFile.h"
#include "shell/QtPlatform.h"

namespace zg {
namespace {

// "SizeOf.frmMain"; a parameter of one form is not the beginning of another's.
std::string SizeKey(const QWidget& form) {
  return "SizeOf." + form.objectName().toStdString() + ".";
}

template <typename Control, typename Set>
void SetCaptionsOf(QWidget& form, const LabelFile& labels, Set set) {
  for (Control* control : form.findChildren<Control*>()) {
    const std::string* caption = labels.Find(control->objectName().toStdString());
    if (caption != nullptr) (control->*set)(ToQString(*caption));
  }
}

}  // namespace

void ReadLabel(Application& app, QWidget& form) {
  const LabelFile labels = ReadLabelFile(app.ApplicationPath +
                                         LabelFileName(form.objectName().toStdString(), app.Texts));
  if (!labels.Error.empty()) {
    app.Messages.Show(Prompt::Icon::Critical, labels.Error);
    return;
  }
  if (labels.FormCaption) form.setWindowTitle(ToQString(*labels.FormCaption));
  SetCaptionsOf<QLabel>(form, labels, &QLabel::setText);
  SetCaptionsOf<QGroupBox>(form, labels, &QGroupBox::setTitle);
  SetCaptionsOf<QCheckBox>(form, labels, &QCheckBox::setText);
  SetCaptionsOf<QAction>(form, labels, &QAction::setText);
  SetCaptionsOf<QMenu>(form, labels, &QMenu::setTitle);
}

void ReadLabelOfAllForms(Application& app) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* form = qobject_cast<Form*>(window)) {
      form->ReadLabels();
    } else if (window->objectName().startsWith(QLatin1String("frm"))) {
      ReadLabel(app, *window);
    }
  }
}

void RestoreSize(const Application& app, QWidget& form) {
  const QString text = ToQString(app.Parameters.GetParameter(SizeKey(form), "-"));
  const QStringList parts = text.split(QLatin1Char('x'));
  if (parts.size() != 2) return;
  const QSize size(parts[0].toInt(), parts[1].toInt());
  if (size.width() < 100 || size.height() < 50) return;
  form.resize(size.boundedTo(form.screen()->availableSize()));
}

void KeepSize(Application& app, const QWidget& form) {
  if (form.isMaximized() || form.isMinimized() || form.isFullScreen()) return;
  const std::string size = std::to_string(form.width()) + "x" + std::to_string(form.height());
  if (app.Parameters.GetParameter(SizeKey(form), "-") == size) return;
  // Not worth a message box where nothing can be written.
  if (access(app.ApplicationPath.c_str(), W_OK) != 0) return;
  app.Parameters.SetParameter(SizeKey(form), size);
}

Form::Form(Application& app, std::string_view name, QWidget* parent) : QDialog(parent), app_(app) {
  setObjectName(ToQString(name));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowFlag(Qt::WindowMinMaxButtonsHint, true);
}

void Form::ReadLabels() {
  ReadLabel(app_, *this);
  SetCaptions();
}

void Form::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) RestoreSize(app_, *this);
  QDialog::showEvent(event);
}

void Form::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) KeepSize(app_, *this);
  QDialog::hideEvent(event);
}

}  // namespace zg
