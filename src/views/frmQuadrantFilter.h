// The window of the quadrant filter: from which quadrants of the globe messages are decoded, on a
// picture of the world. Decoders read the mask from the filters of the application; a closed window
// is only hidden.
#pragma once

#include "views/QtMaskForm.h"

class QLabel;
class QPushButton;

namespace zg {

class WorldPicture;

class frmQuadrantFilter : public MaskForm {
  Q_OBJECT

 public:
  frmQuadrantFilter(Application& app, QWidget* parent);

  // 1 north-east, 2 south-east, 4 south-west, 8 north-west.
  std::uint8_t GetQudrantFilter() const noexcept { return app_.Filters.QuadrantMask; }

  void SetCaptions() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void ShowMask() override;

 private:
  WorldPicture* picWorld_;
  QPushButton* cmdOk_;
};

}  // namespace zg
