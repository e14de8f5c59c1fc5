#include "views/QtMaskForm.h"

#include <QCheckBox>
#include <QLabel>
#include <QShowEvent>

#include "shell/MenuTree.h"
#include "shell/QtPlatform.h"
#include "text/TextRules.h"

namespace zg {

MaskForm::MaskForm(Application& app, const FilterMask& filter, QWidget* parent)
    : Form(app, filter.Form, parent), filter_(filter) {
  for (std::size_t i = 0; i < filter_.Boxes.size(); ++i) {
    auto* box = new QCheckBox(this);
    box->setObjectName(ToQString(MemberName(filter_.Control, static_cast<int>(i))));
    connect(box, &QCheckBox::clicked, this, [this, i](bool ticked) {
      TickBox(filter_, app_.Filters, i, ticked);
      app_.Parameters.SetParameter(filter_.Parameter, PlainDecimal(app_.Filters.*filter_.Member));
      ShowMask();
    });
    boxes_.push_back(box);
  }
  lblNothingTicked_ = new QLabel(this);
  lblNothingTicked_->setObjectName(QStringLiteral("lblNothingTicked"));
  lblNothingTicked_->setWordWrap(true);
  // The window does not change its layout as the line comes and goes.
  QSizePolicy policy = lblNothingTicked_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  lblNothingTicked_->setSizePolicy(policy);
  TickBoxes();
}

void MaskForm::SetCaptions() {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const FilterBox& box = filter_.Boxes[i];
    boxes_[i]->setText(ToQString(app_.Choose(box.Italian, box.English)));
  }
}

void MaskForm::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    TickBoxes();
    ShowMask();
  }
  Form::showEvent(event);
}

void MaskForm::TickBoxes() {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    boxes_[i]->setChecked(IsBoxTicked(filter_, app_.Filters, i));
  }
}

void MaskForm::ShowMask() { lblNothingTicked_->setVisible(IsMaskEmpty(filter_, app_.Filters)); }

}  // namespace zg
