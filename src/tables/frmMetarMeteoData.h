// The report window of one METAR, SPECI or TAF.
#pragma once

#include "tables/QtReportForm.h"

namespace zg {

class frmMetarMeteoData : public ReportForm {
  Q_OBJECT

 public:
  frmMetarMeteoData(Application& app, QWidget* parent);

  // Brings the window up with a record of the store, from 0. Nothing happens where there is none.
  void ShowMetarDataRecord(int index) { ShowRecord(index); }
};

}  // namespace zg
