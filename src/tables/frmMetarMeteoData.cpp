#include "tables/frmMetarMeteoData.h"

namespace zg {

frmMetarMeteoData::frmMetarMeteoData(Application& app, QWidget* parent)
    : ReportForm(app, MetarReport, parent) {}

}  // namespace zg
