// What the windows of the program have in common: their captions come from label files and change
// with the language while they are open, and their sizes are remembered.
//
// Controls bear their names as object names; label files and tests find them by these. A member of
// a control array is called "chkStation(1)".
#pragma once

#include <QDialog>
#include <QString>
#include <string_view>

#include "shell/Application.h"

namespace zg {

// Reads the label file of a window, the one of its object name and the language in force: sets its
// caption and those of its labels, group boxes, check boxes and menus. Buttons and option buttons
// keep theirs: code sets those. A file that cannot be read is told in a message box; then captions
// stay as they are.
void ReadLabel(Application& app, QWidget& form);

// ReadLabel for every window of the program, and SetCaptions for the forms among them.
void ReadLabelOfAllForms(Application& app);

// The size that a window was left with, and keeping it. A window never seen has no size.
void RestoreSize(const Application& app, QWidget& form);
void KeepSize(Application& app, const QWidget& form);

// A window beside the main window.
class Form : public QDialog {
  Q_OBJECT

 public:
  // `name` becomes the object name, and that of the label files.
  Form(Application& app, std::string_view name, QWidget* parent);

  // Reads the label file in the language in force, then sets the captions that come from code. To
  // be called at the end of the constructor of a form, and after a change of language.
  void ReadLabels();

  // Sets the captions that come from code. Called after each reading of the label file.
  virtual void SetCaptions() {}

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

  Application& app_;  // NOLINT: every form works with it
};

}  // namespace zg
