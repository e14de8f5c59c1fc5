// The window in which the columns of a global view are chosen, and with them those of its CSV file.
// A view that is open stays as it is: the choice holds from its next opening.
#pragma once

#include "shell/QtForm.h"
#include "views/GlobalViewTable.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace zg {

class frmDataFields : public Form {
  Q_OBJECT

 public:
  // The window of the fields of a table, which must outlive it: "frmSynopDataFields" stands for the
  // parameter "SynopDataFields". It shows what is stored whenever it opens.
  frmDataFields(Application& app, const GlobalViewTable& table, QWidget* parent);

  void SetCaptions() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void BuildControls();
  void BuildLayout();
  void FillFields();
  void SelectStored();
  void Store();
  void ShowSelection();

  const GlobalViewTable& table_;
  QLabel* lblDataFields_ = nullptr;
  QListWidget* lstDataFields_ = nullptr;
  QLabel* lblFixed_ = nullptr;
  QLabel* lblState_ = nullptr;
  QPushButton* cmdAll_ = nullptr;
  QPushButton* cmdNone_ = nullptr;
  QPushButton* cmdOK_ = nullptr;
  QPushButton* cmdClose_ = nullptr;
};

}  // namespace zg
