// The report window of one SYNOP message, from land or sea.
#pragma once

#include "tables/QtReportForm.h"

namespace zg {

class frmSynopMeteoData : public ReportForm {
  Q_OBJECT

 public:
  frmSynopMeteoData(Application& app, QWidget* parent);

  // Brings the window up with a record of the store, from 0. Nothing happens where there is none.
  void ShowSynopDataRecord(int index) { ShowRecord(index); }
};

}  // namespace zg
