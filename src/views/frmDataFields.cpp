#include "views/frmDataFields.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "shell/QtPlatform.h"
#include "views/FieldSelection.h"
#include "views/QtCheckList.h"

namespace zg {
namespace {

template <typename Control>
Control* Make(Control* control, const char* name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

std::string FormName(const GlobalViewTable& table) {
  return std::string("frm").append(table.SelectionKey);
}

}  // namespace

frmDataFields::frmDataFields(Application& app, const GlobalViewTable& table, QWidget* parent)
    : Form(app, FormName(table), parent), table_(table) {
  BuildControls();
  BuildLayout();
  ReadLabels();
}

void frmDataFields::BuildControls() {
  lblDataFields_ = Make(new QLabel(this), "lblDataFields");
  lstDataFields_ = Make(new QListWidget(this), "lstDataFields");
  lstDataFields_->setSelectionMode(QAbstractItemView::MultiSelection);
  lstDataFields_->setItemDelegate(new CheckListDelegate(lstDataFields_));
  lstDataFields_->setUniformItemSizes(true);
  lblDataFields_->setBuddy(lstDataFields_);
  connect(lstDataFields_, &QListWidget::itemSelectionChanged, this, &frmDataFields::ShowSelection);
  lblFixed_ = Make(new QLabel(this), "lblFixed");
  lblFixed_->setWordWrap(true);
  lblState_ = Make(new QLabel(this), "lblState");

  cmdAll_ = Make(new QPushButton(this), "cmdAll");
  cmdNone_ = Make(new QPushButton(this), "cmdNone");
  cmdOK_ = Make(new QPushButton(this), "cmdOK");
  cmdClose_ = Make(new QPushButton(this), "cmdClose");
  cmdOK_->setDefault(true);
  connect(cmdAll_, &QPushButton::clicked, lstDataFields_, &QListWidget::selectAll);
  connect(cmdNone_, &QPushButton::clicked, lstDataFields_, &QListWidget::clearSelection);
  connect(cmdOK_, &QPushButton::clicked, this, &frmDataFields::Store);
  connect(cmdClose_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmDataFields::BuildLayout() {
  auto* selection = new QHBoxLayout;
  selection->addWidget(lblState_, 1);
  selection->addWidget(cmdAll_);
  selection->addWidget(cmdNone_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdOK_);
  buttons->addWidget(cmdClose_);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lblDataFields_);
  layout->addWidget(lstDataFields_, 1);
  layout->addLayout(selection);
  layout->addWidget(lblFixed_);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addLayout(buttons);
  resize(fontMetrics().averageCharWidth() * 56, fontMetrics().lineSpacing() * 36);
}

void frmDataFields::SetCaptions() {
  setWindowTitle(ToQString(table_.FieldsCaption.In(app_.Texts)));
  cmdAll_->setText(ToQString(app_.Choose("&Tutti", "&All")));
  cmdNone_->setText(ToQString(app_.Choose("&Nessuno", "&None")));
  cmdOK_->setText(QStringLiteral("&OK"));
  cmdClose_->setText(ToQString(app_.Choose("&Chiudi", "&Close")));
  FillFields();
}

// Titles in the language in force; what is selected stays.
void frmDataFields::FillFields() {
  const std::vector<DataField> fields = GetFieldsList(table_, {}, app_.Texts);
  while (lstDataFields_->count() < static_cast<int>(fields.size()))
    lstDataFields_->addItem(QString());
  for (std::size_t i = 0; i < fields.size(); ++i) {
    lstDataFields_->item(static_cast<int>(i))->setText(ToQString(fields[i].Title));
  }
  ShowSelection();
}

void frmDataFields::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    SelectStored();
    cmdOK_->setFocus();  // a list with the focus would choose a position
  }
  Form::showEvent(event);
}

void frmDataFields::SelectStored() {
  const FieldSelection stored =
      DecodeFieldSelection(app_.Parameters.GetParameter(table_.SelectionKey));
  for (int i = 0; i < lstDataFields_->count(); ++i) {
    lstDataFields_->item(i)->setSelected(stored[static_cast<std::size_t>(i)]);
  }
  lstDataFields_->setCurrentRow(-1, QItemSelectionModel::NoUpdate);
  lstDataFields_->scrollToTop();
}

void frmDataFields::Store() {
  FieldSelection selected;
  for (int i = 0; i < lstDataFields_->count(); ++i) {
    selected[static_cast<std::size_t>(i)] = lstDataFields_->item(i)->isSelected();
  }
  app_.Parameters.SetParameter(table_.SelectionKey, EncodeFieldSelection(table_, selected));
  accept();
}

void frmDataFields::ShowSelection() {
  lblState_->setText(ToQString(app_.Choose("Selezionati %1 su %2.", "%1 of %2 selected."))
                         .arg(lstDataFields_->selectedItems().size())
                         .arg(lstDataFields_->count()));
}

}  // namespace zg
