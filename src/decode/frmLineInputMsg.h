// The window in which one message is typed, to be decoded when it has closed. It begins with the
// message of the last time.
#pragma once

#include <string>

#include "shell/QtForm.h"

class QPlainTextEdit;
class QPushButton;

namespace zg {

class frmLineInputMsg : public Form {
  Q_OBJECT

 public:
  // To be shown by exec(). Afterwards app.mLineInputMsg holds the message to be decoded, as one
  // line; it is not touched if the window was left without decoding.
  frmLineInputMsg(Application& app, QWidget* parent);

  void SetCaptions() override;

 private:
  void Decode();
  void Clear();
  void Tell(const std::string& error);

  QPlainTextEdit* txtMsg_ = nullptr;
  QPushButton* cmdDecode_ = nullptr;
  QPushButton* cmdClear_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
};

}  // namespace zg
