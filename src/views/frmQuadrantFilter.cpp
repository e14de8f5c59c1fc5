#include "views/frmQuadrantFilter.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "shell/QtPlatform.h"
#include "views/QtWorldPicture.h"

namespace zg {

frmQuadrantFilter::frmQuadrantFilter(Application& app, QWidget* parent)
    : MaskForm(app, QuadrantFilter(), parent) {
  auto* intro = new QLabel(this);
  intro->setObjectName(QStringLiteral("lblQuadrants"));
  // A line that wraps would take its height from the picture.
  lblNothingTicked_->setWordWrap(false);

  picWorld_ = new WorldPicture({boxes_[0], boxes_[1], boxes_[2], boxes_[3]}, this);
  picWorld_->setObjectName(QStringLiteral("picWorld"));

  cmdOk_ = new QPushButton(this);
  cmdOk_->setObjectName(QStringLiteral("cmdOk"));
  cmdOk_->setDefault(true);
  connect(cmdOk_, &QPushButton::clicked, this, &QWidget::hide);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(lblNothingTicked_, 1);
  bottom->addWidget(cmdOk_);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(intro);
  layout->addWidget(picWorld_, 1);
  layout->addLayout(bottom);
  setTabOrder(boxes_.back(), cmdOk_);
  ReadLabels();
  // A window that is left to itself becomes too narrow for its height.
  resize(sizeHint().boundedTo(screen()->availableSize()));
}

void frmQuadrantFilter::SetCaptions() {
  MaskForm::SetCaptions();
  cmdOk_->setText(ToQString(app_.Choose("O&K", "&OK")));
  picWorld_->setAccessibleName(ToQString(
      app_.Choose("Planisfero con i quattro quadranti", "Map of the world in four quadrants")));
}

void frmQuadrantFilter::showEvent(QShowEvent* event) {
  // The files are of no use before the window is seen.
  if (!picWorld_->HasOutline()) picWorld_->LoadOutline(app_.ApplicationPath);
  MaskForm::showEvent(event);
}

void frmQuadrantFilter::ShowMask() {
  MaskForm::ShowMask();
  picWorld_->update();
}

}  // namespace zg
