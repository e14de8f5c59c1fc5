#include "views/frmStationFilter.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zg {

frmStationFilter::frmStationFilter(Application& app, QWidget* parent)
    : MaskForm(app, StationFilter(), parent) {
  auto* stations = new QGroupBox(this);
  stations->setObjectName(QStringLiteral("fraStation"));
  auto* column = new QVBoxLayout(stations);
  for (QCheckBox* box : boxes_) column->addWidget(box);

  cmkOK_ = new QPushButton(this);
  cmkOK_->setObjectName(QStringLiteral("cmkOK"));
  cmkOK_->setDefault(true);
  connect(cmkOK_, &QPushButton::clicked, this, &QWidget::hide);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmkOK_);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(stations);
  layout->addWidget(lblNothingTicked_);
  layout->addStretch();
  layout->addLayout(buttons);
  ReadLabels();
}

void frmStationFilter::SetCaptions() {
  MaskForm::SetCaptions();
  cmkOK_->setText(QStringLiteral("&OK"));
}

}  // namespace zg
