// The window of a global view: the records of a store in one grid, with check boxes and a country
// to choose rows by, and the way out into a CSV file. The windows of the two stores differ in their
// table.
//
// A closed window is only hidden: the titles of its columns stay in the language in which it was
// made, and the country chosen stays too. Whoever is about to change a store tells the window
// first.
#pragma once

#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "shell/QtForm.h"
#include "views/GlobalView.h"
#include "views/GridText.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QProgressBar;
class QPushButton;

namespace zg {

class Dialogs;
class GridTable;

class frmGlobalView : public Form {
  Q_OBJECT

 public:
  // The table must outlive the window. Nothing is shown or read yet.
  frmGlobalView(Application& app, Dialogs& dialogs, const GlobalViewTable& table, QWidget* parent);
  ~frmGlobalView() override;

  // Shows the window and fills it, with all boxes ticked. A window that is open comes to the front
  // as it is. In a scheduled cycle the window is always filled anew, minimised, and its rows are
  // written to the CSV file beside app.mFileName.
  void Load();

  // To be called before records of the store go or come: an open window keeps what it shows until
  // its next refresh.
  void StoreWillChange();

  void SetCaptions() override;

 public slots:
  // Makes the rows anew by what is chosen. Rows selected stay so.
  void RefreshGlobalList();

 signals:
  // The window reads the store from here on, until it has closed.
  void Opened();
  void Closed();
  // The user wants to see the record of a row: its place in the store, from 0.
  void RecordChosen(int index);

 protected:
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // How the clicks on headings have sorted the rows.
  struct Sorting {
    std::optional<std::size_t> Key;  // field of the last click
    bool Descending = false;
    int Column = -1;  // that the rows are sorted by
  };

  void BuildFilters();
  void BuildChoices();
  void BuildGrid();
  void BuildProgress();
  void BuildMenu();
  void AddCommand(const char* name, const QList<QKeySequence>& shortcuts, QWidget& scope,
                  void (frmGlobalView::*run)());
  void BuildButtons();
  void BuildLayout();

  void Unload();
  void StartView();
  void ResetCountries();
  void AddCountries();
  void ShowHint();
  void ClickColumn(int column);
  void ClickRow();
  void OpenRecord();
  void Export();
  void CopyRows();
  void SelectAllRows();
  void SortByCurrentColumn();
  void EnterFind();
  void FindNext() { Find(FindDirection::Forward, true); }
  void FindPrevious() { Find(FindDirection::Backward, true); }
  void Find(FindDirection direction, bool behindCurrent);

  Dialogs& dialogs_;
  const GlobalViewTable& table_;
  const TextUtility titleTexts_;    // language of the column titles
  TextUtility rowTexts_;            // language of what a refresh makes
  std::optional<GlobalView> view_;  // while the window is open
  std::string selectedCountry_ = "*";
  std::size_t countriesSeen_ = 0;  // countries of the view that the box has got
  bool loading_ = false;           // what is ticked and chosen by code makes no rows
  Sorting sort_;

  std::vector<QCheckBox*> chkFilter_;
  QLabel* lblCountry_ = nullptr;
  QComboBox* cmbCountry_ = nullptr;
  QCheckBox* chkUnits_ = nullptr;
  QLabel* lblFind_ = nullptr;
  QLineEdit* txtFind_ = nullptr;
  QLabel* lblNotFound_ = nullptr;
  GridTable* lstGlobal_ = nullptr;
  QWidget* progress_ = nullptr;
  QLabel* lblProgr_ = nullptr;
  QProgressBar* prgGlobalView_ = nullptr;
  QMenu* mnuGrid_ = nullptr;
  QPushButton* cmdExport_ = nullptr;
  QPushButton* cmdClose_ = nullptr;
  QTimer timerToolTips_{this};
  QTimer timerSelection_{this};
};

}  // namespace zg
