// What the windows of the quadrant filter and of the station filter have in common: a row of check
// boxes on a mask. A click sets or clears the bit of its box and stores the mask at once, so there
// is nothing to cancel.
#pragma once

#include <vector>

#include "shell/QtForm.h"
#include "views/FilterMasks.h"

class QCheckBox;
class QLabel;

namespace zg {

class MaskForm : public Form {
  Q_OBJECT

 public:
  // The filter must outlive the window.
  MaskForm(Application& app, const FilterMask& filter, QWidget* parent);

  void SetCaptions() override;

 protected:
  void showEvent(QShowEvent* event) override;

  // Called after each change of the mask.
  virtual void ShowMask();

  const FilterMask& filter_;       // NOLINT: of the windows made on top of this one
  std::vector<QCheckBox*> boxes_;  // NOLINT: without a place; the window lays them out
  QLabel* lblNothingTicked_;       // NOLINT: to be seen only while nothing is ticked

 private:
  void TickBoxes();
};

}  // namespace zg
