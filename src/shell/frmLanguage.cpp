#include "shell/frmLanguage.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <limits>

#include "shell/MenuTree.h"
#include "shell/QtPlatform.h"
#include "text/TextRules.h"

namespace zg {

frmLanguage::frmLanguage(Application& app, QWidget* parent) : Form(app, "frmLanguage", parent) {
  BuildBody();
  oldChoice_ = StrictInteger<std::uint8_t>(app_.Parameters.GetParameter("Language"));
  newChoice_ = oldChoice_;
  if (oldChoice_ && *oldChoice_ < options_.size()) options_[*oldChoice_]->setChecked(true);
  ReadLabels();
}

void frmLanguage::BuildBody() {
  auto* fraLanguage = new QGroupBox(this);
  fraLanguage->setObjectName(QStringLiteral("fraLanguage"));
  auto* column = new QVBoxLayout(fraLanguage);
  for (std::size_t i = 0; i < options_.size(); ++i) {
    const auto language = static_cast<std::uint8_t>(i);
    auto* option = new QRadioButton(fraLanguage);
    option->setObjectName(ToQString(MemberName("Option", language)));
    connect(option, &QRadioButton::clicked, this, [this, language] {
      newChoice_ = language;
      app_.Parameters.SetParameter("Language", PlainDecimal(language));
    });
    column->addWidget(option);
    options_[i] = option;
  }

  auto* buttons = new QDialogButtonBox(this);
  cmdOK_ = buttons->addButton(QDialogButtonBox::Ok);
  cmdOK_->setObjectName(QStringLiteral("cmdOK"));
  cmdOK_->setDefault(true);
  connect(cmdOK_, &QPushButton::clicked, this, &frmLanguage::Confirm);

  auto* body = new QVBoxLayout(this);
  body->addWidget(fraLanguage, 1);
  body->addWidget(buttons);
  resize(sizeHint().expandedTo(QSize(fontMetrics().averageCharWidth() * 44, 0)));
}

// The names of languages are told in themselves, so that each is found by who speaks it.
void frmLanguage::SetCaptions() {
  options_[0]->setText(QStringLiteral("Italiano"));
  options_[1]->setText(QStringLiteral("English"));
  cmdOK_->setText(QStringLiteral("OK"));
}

bool frmLanguage::Choose() {
  changed_ = false;
  exec();
  return changed_;
}

void frmLanguage::Confirm() {
  if (newChoice_ && newChoice_ != oldChoice_) {
    app_.Texts.SetLanguage(*newChoice_);
    ReadLabelOfAllForms(app_);
    oldChoice_ = newChoice_;
    changed_ = true;
  }
  accept();
}

}  // namespace zg
