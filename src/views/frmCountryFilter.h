// The window of the country filter: the countries whose messages are decoded, chosen from all those
// of the station table. What is chosen comes in force with OK or a double click. Decoders read the
// filter from the filters of the application; a closed window is only hidden.
#pragma once

#include <string>
#include <vector>

#include "shell/QtForm.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace zg {

class frmCountryFilter : public Form {
  Q_OBJECT

 public:
  // The list is empty until it is filled.
  frmCountryFilter(Application& app, QWidget* parent);

  // FillCountryList with a line in the log.
  void LoadCountryList();
  // Adds the countries of the station table that the list does not hold, then puts the filter in
  // force that is stored. A database that fails adds none.
  void FillCountryList();

  void SetCountryList(std::vector<std::string> List);
  const std::vector<std::string>& GetCountryList() const noexcept {
    return app_.Filters.CountryList;
  }
  // Leaves a filter that lets no country pass.
  void EraseCountryList();
  // Puts the countries selected in force and stores them. With none selected no country passes
  // until the program starts anew: what is stored then is empty, which stands for all.
  void UpdateCountryList();

  void SetCaptions() override;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildControls();
  void BuildLayout();
  void SelectStored();
  void Reset();
  void Search(const QString& text);
  void EnterList();
  void ShowSelection();
  std::vector<std::string> Selected() const;

  std::vector<std::string> countries_;  // as read; the list shows them in alphabetical order
  QLabel* lblSearch_;
  QLabel* lblCountries_;
  QLabel* lblSelected_;
  QLabel* lblState_;
  QLineEdit* txtSearch_;
  QListWidget* lstCountryFilter_;
  QPlainTextEdit* txtSelectedCountry_;
  QPushButton* cmdReset_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
};

}  // namespace zg
