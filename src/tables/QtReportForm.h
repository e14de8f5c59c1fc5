// The window that shows one stored record in full, field by field, over a table of its family: a
// header, five tabs of grouped boxes, and the buttons that go to other records and print. It stays
// on the screen beside the others.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "shell/QtForm.h"
#include "tables/ReportFields.h"

class QGridLayout;
class QLabel;
class QPrinter;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace zg {

class RecordBox;

class ReportForm : public Form {
  Q_OBJECT

 public:
  ReportForm(Application& app, const ReportTable& table, QWidget* parent);

  // Has to be called when the store may have other records than before. Stays at its record if that
  // is still in its place, else goes to the first; closes if there is none.
  void StoreChanged();

  // The record on show, from 0.
  int CurrentIndex() const noexcept { return static_cast<int>(place_.Index); }

  void SetCaptions() override;

 protected:
  // Brings the window up with the record. Nothing happens where there is no such record.
  void ShowRecord(int index);

  // Sets up the printer as the user wants it; false if he does not want to print. Without any
  // printer the name of a PDF file is asked for.
  virtual bool ChoosePrinter(QPrinter& printer);

  void showEvent(QShowEvent* event) override;

 private:
  // A field with its controls. The label may be missing.
  struct Field {
    std::size_t Tab;
    const ReportField* Row;
    QLabel* Label;
    QWidget* Control;
    std::function<void(const QString&)> Show;
  };
  using Buttons = std::vector<QRadioButton*>;

  QWidget* BuildTab(std::size_t tab);
  QWidget* BuildGroup(std::size_t tab, const ReportGroup& group, QWidget* parent);
  QWidget* BuildChoice(std::size_t choice, int perLine, QWidget* parent);
  QWidget* BuildCommands();
  void BuildFields(std::size_t tab, const ReportGroup& group, QWidget* box, QGridLayout& grid);
  Field BuildField(std::size_t tab, const ReportField& row, QWidget* parent);

  std::size_t Count() const { return table_.Count(app_.Stores); }
  std::string Message() const;
  void Load();
  void Select(std::size_t index);
  void ShowStep();
  void Fill();
  void ShowTabs();
  void ShowChoices();
  void ShowCodeLabels();
  void Choose(std::size_t choice, int member);
  void AlignLabels();
  void Report();
  bool Print(QPrinter& printer);

  const ReportTable& table_;
  ReportPlace place_;
  std::string shown_;  // the message on show
  int wantedTab_ = 0;  // where the user went last
  bool filling_ = false;

  RecordBox* cmbWmoId_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  QWidget* frameCommand_ = nullptr;
  QPushButton* cmdPrevious_ = nullptr;
  QPushButton* cmdNext_ = nullptr;
  QPushButton* cmdReport_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
  std::vector<Field> fields_;
  std::vector<Buttons> choices_;
  // Labels that stand below each other, by the tab and the first part that their groups take.
  std::map<std::pair<std::size_t, int>, std::vector<QLabel*>> columns_;
};

}  // namespace zg
