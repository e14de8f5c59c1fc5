#include "tables/frmSynopMeteoData.h"

namespace zg {

frmSynopMeteoData::frmSynopMeteoData(Application& app, QWidget* parent)
    : ReportForm(app, SynopReport, parent) {}

}  // namespace zg
