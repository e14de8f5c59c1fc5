// The windows on the records: grids, reports, and the choice of columns.
#include "shell/frmMain.h"
#include "tables/frmMetarMeteoData.h"
#include "tables/frmSynopMeteoData.h"
#include "views/frmDataFields.h"
#include "views/frmGlobalView.h"

namespace zg {

void frmMain::BindViews() {
  Bind("mnuSynopDataGrid", [this] { ShowView(synopView_, SynopGlobalView); });
  Bind("mnuMetarSynopDataGrid", [this] { ShowView(metarView_, MetarGlobalView); });
  Bind("mnuSynopDataFields", [this] { frmDataFields(app_, SynopGlobalView, this).exec(); });
  Bind("mnuMetarDataFields", [this] { frmDataFields(app_, MetarGlobalView, this).exec(); });
  // The record that was on show last.
  Bind("mnuSingleSheet",
       [this] { ShowSynopReport(synopReport_ == nullptr ? 0 : synopReport_->CurrentIndex()); });
  Bind("mnuMetarSingleSheet",
       [this] { ShowMetarReport(metarReport_ == nullptr ? 0 : metarReport_->CurrentIndex()); });
}

void frmMain::ShowSynopReport(int index) {
  if (synopReport_ == nullptr) synopReport_ = std::make_unique<frmSynopMeteoData>(app_, this);
  synopReport_->ShowSynopDataRecord(index);
}

void frmMain::ShowMetarReport(int index) {
  if (metarReport_ == nullptr) metarReport_ = std::make_unique<frmMetarMeteoData>(app_, this);
  metarReport_->ShowMetarDataRecord(index);
}

void frmMain::ShowView(std::unique_ptr<frmGlobalView>& view, const GlobalViewTable& table) {
  // A view that was closed is made anew: its columns have the titles of the language in force.
  if (view == nullptr || !view->isVisible()) {
    view = std::make_unique<frmGlobalView>(app_, dialogs_, table, this);
    connect(view.get(), &frmGlobalView::Opened, this, [this] {
      ++openViews_;
      EnableMenu("mnuInput", false);
    });
    connect(view.get(), &frmGlobalView::Closed, this, [this] {
      --openViews_;
      if (openViews_ == 0) EnableMenu("mnuInput", true);
      CheckForEnablingMenu();
    });
    connect(view.get(), &frmGlobalView::RecordChosen, this, [this, &table](int index) {
      if (&table == &SynopGlobalView) {
        ShowSynopReport(index);
      } else {
        ShowMetarReport(index);
      }
    });
  }
  view->Load();
}

// Grids keep what they show; reports rest, since their record may go at any time.
void frmMain::StoresWillChange() {
  for (frmGlobalView* view : {synopView_.get(), metarView_.get()}) {
    if (view != nullptr) view->StoreWillChange();
  }
  if (synopReport_ != nullptr) synopReport_->setEnabled(false);
  if (metarReport_ != nullptr) metarReport_->setEnabled(false);
}

void frmMain::StoresChanged() {
  const auto refresh = [](auto& report) {
    if (report == nullptr) return;
    report->setEnabled(true);
    report->StoreChanged();
  };
  refresh(synopReport_);
  refresh(metarReport_);
}

}  // namespace zg
