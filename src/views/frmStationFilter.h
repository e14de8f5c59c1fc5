// The window of the station filter: which kinds of station are decoded. Decoders read the mask from
// the filters of the application; a closed window is only hidden.
#pragma once

#include "views/QtMaskForm.h"

class QPushButton;

namespace zg {

class frmStationFilter : public MaskForm {
  Q_OBJECT

 public:
  frmStationFilter(Application& app, QWidget* parent);

  // 1 buoy, 2 ship, 4 land.
  std::uint8_t GetStationType() const noexcept { return app_.Filters.StationMask; }

  void SetCaptions() override;

 private:
  QPushButton* cmkOK_;
};

}  // namespace zg
