// The choice of the language. A click on a language stores it at once, for the next start; cmdOK
// brings it into force for every window that is open.
#pragma once

#include <array>
#include <optional>

#include "shell/QtForm.h"

class QPushButton;
class QRadioButton;

namespace zg {

class frmLanguage : public Form {
  Q_OBJECT

 public:
  frmLanguage(Application& app, QWidget* parent);

  // Shows the window. True if it was left by cmdOK with a choice other than the one at its
  // beginning: then the texts are in the new language and all captions were read anew.
  bool Choose();

  void SetCaptions() override;

 private:
  void BuildBody();
  void Confirm();  // cmdOK

  std::array<QRadioButton*, 2> options_{};  // 0 Italian, 1 English
  QPushButton* cmdOK_ = nullptr;
  // As in "Language"; nothing where the parameter is no number of 8 bits.
  std::optional<std::uint8_t> oldChoice_;
  std::optional<std::uint8_t> newChoice_;
  bool changed_ = false;
};

}  // namespace zg
