#include "views/frmCountryFilter.h"

#include <QCoreApplication>
#include <QItemSelection>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "decode/ListUtility.h"
#include "decode/MessageFilters.h"
#include "shell/QtPlatform.h"
#include "views/QtCheckList.h"

namespace zg {
namespace {

constexpr std::string_view Parameter = "CountryFilter";
constexpr std::int64_t YieldMilliseconds = 33;

// "Select all" is about the entries that the search has left.
class CountryListWidget : public QListWidget {
 public:
  using QListWidget::QListWidget;

  void selectAll() override {
    QItemSelection shown;
    for (int row = 0; row < count(); ++row) {
      const QModelIndex index = model()->index(row, 0);
      if (!item(row)->isHidden()) shown.select(index, index);
    }
    selectionModel()->select(shown, QItemSelectionModel::Select);
  }
};

template <typename Control>
Control* Make(Control* control, const char* name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

}  // namespace

frmCountryFilter::frmCountryFilter(Application& app, QWidget* parent)
    : Form(app, "frmCountryFilter", parent) {
  BuildControls();
  BuildLayout();
  ReadLabels();
}

void frmCountryFilter::BuildControls() {
  lblSearch_ = Make(new QLabel(this), "lblSearch");
  txtSearch_ = Make(new QLineEdit(this), "txtSearch");
  txtSearch_->setClearButtonEnabled(true);
  txtSearch_->installEventFilter(this);
  lblSearch_->setBuddy(txtSearch_);
  connect(txtSearch_, &QLineEdit::textChanged, this, &frmCountryFilter::Search);

  lblCountries_ = Make(new QLabel(this), "lblCountries");
  lstCountryFilter_ = Make(new CountryListWidget(this), "lstCountryFilter");
  lstCountryFilter_->setSelectionMode(QAbstractItemView::MultiSelection);
  lstCountryFilter_->setItemDelegate(new CheckListDelegate(lstCountryFilter_));
  lstCountryFilter_->setUniformItemSizes(true);
  lblCountries_->setBuddy(lstCountryFilter_);
  connect(lstCountryFilter_, &QListWidget::itemSelectionChanged, this,
          &frmCountryFilter::ShowSelection);
  connect(lstCountryFilter_, &QListWidget::itemDoubleClicked, this,
          &frmCountryFilter::UpdateCountryList);

  lblSelected_ = Make(new QLabel(this), "lblSelected");
  txtSelectedCountry_ = Make(new QPlainTextEdit(this), "txtSelectedCountry");
  txtSelectedCountry_->setReadOnly(true);
  txtSelectedCountry_->setTabChangesFocus(true);
  lblSelected_->setBuddy(txtSelectedCountry_);
  lblState_ = Make(new QLabel(this), "lblState");
  lblState_->setWordWrap(true);

  cmdReset_ = Make(new QPushButton(this), "cmdReset");
  cmdOk_ = Make(new QPushButton(this), "cmdOk");
  cmdCancel_ = Make(new QPushButton(this), "cmdCancel");
  connect(cmdReset_, &QPushButton::clicked, this, &frmCountryFilter::Reset);
  connect(cmdOk_, &QPushButton::clicked, this, [this] {
    UpdateCountryList();
    hide();
  });
  connect(cmdCancel_, &QPushButton::clicked, this, &QWidget::hide);
}

void frmCountryFilter::BuildLayout() {
  auto* search = new QHBoxLayout;
  search->addWidget(lblSearch_);
  search->addWidget(txtSearch_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdReset_);
  buttons->addStretch();
  buttons->addWidget(cmdOk_);
  buttons->addWidget(cmdCancel_);

  const QFontMetrics metrics = fontMetrics();
  txtSelectedCountry_->setFixedHeight(metrics.lineSpacing() * 3 + metrics.height());
  lblState_->setMinimumHeight(metrics.lineSpacing() * 2);
  lblState_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(search);
  layout->addWidget(lblCountries_);
  layout->addWidget(lstCountryFilter_, 1);
  layout->addWidget(lblSelected_);
  layout->addWidget(txtSelectedCountry_);
  layout->addWidget(lblState_);
  layout->addLayout(buttons);
  resize(metrics.averageCharWidth() * 62, metrics.lineSpacing() * 34);
}

void frmCountryFilter::SetCaptions() {
  cmdReset_->setText(ToQString(app_.Choose("&Azzera", "&Reset")));
  cmdOk_->setText(ToQString(app_.Choose("&OK", "&OK")));
  cmdCancel_->setText(ToQString(app_.Choose("A&nnulla", "&Cancel")));
  ShowSelection();
}

// --- The filter ------------------------------------------------------------------------------

void frmCountryFilter::LoadCountryList() {
  app_.Log.Log(app_.Choose("Attendere Caricamento Dati ...", "Wait for Loading Data ..."));
  FillCountryList();
}

void frmCountryFilter::FillCountryList() {
  std::int64_t yielded = app_.Time.TickCount();
  for (const std::string& country : GetAllCountryList(app_.Database)) {
    bool present = false;
    AddLineOnList(countries_, country, present);
    if (!present && countries_.size() > static_cast<std::size_t>(lstCountryFilter_->count())) {
      lstCountryFilter_->addItem(ToQString(countries_.back()));
    }
    // Others may draw, but nothing is to be clicked on: a list half filled is of no use.
    if (app_.Time.TickCount() - yielded < YieldMilliseconds) continue;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    yielded = app_.Time.TickCount();
  }
  lstCountryFilter_->sortItems();
  SetCountryList(SplitCountryFilter(app_.Parameters.GetParameter(Parameter)));
  ShowSelection();
}

void frmCountryFilter::SetCountryList(std::vector<std::string> List) {
  app_.Filters.CountryList = std::move(List);
}

void frmCountryFilter::EraseCountryList() { SetCountryList({}); }

void frmCountryFilter::UpdateCountryList() {
  SetCountryList(Selected());
  const std::string text = JoinCountryFilter(GetCountryList());
  app_.Parameters.SetParameter(Parameter, text);
  app_.Log.Log(std::string(app_.Choose("Filtro Nazioni: ", "Country Filter: ")).append(text));
  ShowSelection();
}

void frmCountryFilter::Reset() {
  app_.Parameters.SetParameter(Parameter, "");
  SetCountryList({std::string()});
  lstCountryFilter_->clearSelection();
  app_.Log.Log(
      app_.Choose("Filtro Nazioni: Tutte Selezionate", "Country Filter: All Country Selected"));
  ShowSelection();
}

// --- The list --------------------------------------------------------------------------------

void frmCountryFilter::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    txtSearch_->clear();
    SelectStored();
    txtSearch_->setFocus();
  }
  Form::showEvent(event);
}

// Selects what is stored, whatever has been clicked on and then left. A name that the list does not
// hold selects nothing.
void frmCountryFilter::SelectStored() {
  {
    const QSignalBlocker blocker(lstCountryFilter_);
    lstCountryFilter_->clearSelection();
    for (const std::string& name : SplitCountryFilter(app_.Parameters.GetParameter(Parameter))) {
      for (QListWidgetItem* item : lstCountryFilter_->findItems(
               ToQString(name), Qt::MatchExactly | Qt::MatchCaseSensitive)) {
        item->setSelected(true);
      }
    }
  }
  ShowSelection();
}

std::vector<std::string> frmCountryFilter::Selected() const {
  std::vector<std::string> countries;
  for (int row = 0; row < lstCountryFilter_->count(); ++row) {
    const QListWidgetItem* item = lstCountryFilter_->item(row);
    if (item->isSelected()) countries.push_back(item->text().toStdString());
  }
  return countries;
}

void frmCountryFilter::ShowSelection() {
  QStringList names;
  for (const std::string& country : Selected()) names << ToQString(country);
  txtSelectedCountry_->setPlainText(names.join(QStringLiteral(", ")));

  QString state;
  if (!names.isEmpty()) {
    state = ToQString(app_.Choose("Selezionate %1 su %2.", "%1 of %2 selected."))
                .arg(names.size())
                .arg(lstCountryFilter_->count());
  } else if (GetCountryList() == std::vector<std::string>{std::string()}) {
    state = ToQString(app_.Choose(
        "Il filtro è disattivato: passano tutte le nazioni. Con OK, senza selezione, nessuna "
        "passerebbe.",
        "The filter is off: every country passes. With OK and nothing selected none would."));
  } else {
    state = ToQString(
        app_.Choose("Nessuna nazione selezionata: con OK nessun messaggio passa, con Azzera tutti.",
                    "No country is selected: with OK no message passes, with Reset all do."));
  }
  lblState_->setText(state);
  // Enter with nothing selected is no answer.
  (names.isEmpty() ? cmdCancel_ : cmdOk_)->setDefault(true);
}

// --- The search ------------------------------------------------------------------------------

void frmCountryFilter::Search(const QString& text) {
  const QString part = text.trimmed();
  for (int row = 0; row < lstCountryFilter_->count(); ++row) {
    QListWidgetItem* item = lstCountryFilter_->item(row);
    item->setHidden(!item->text().contains(part, Qt::CaseInsensitive));
  }
}

void frmCountryFilter::EnterList() {
  lstCountryFilter_->setFocus(Qt::TabFocusReason);
  for (int row = 0; row < lstCountryFilter_->count(); ++row) {
    if (lstCountryFilter_->item(row)->isHidden()) continue;
    lstCountryFilter_->setCurrentRow(row, QItemSelectionModel::NoUpdate);
    return;
  }
}

// Out of the search field Enter and the arrow go on into the list, and Esc takes the search back
// before it closes the window.
bool frmCountryFilter::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtSearch_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
      EnterList();
      return true;
    }
    if (key == Qt::Key_Escape && !txtSearch_->text().isEmpty()) {
      txtSearch_->clear();
      return true;
    }
  }
  return Form::eventFilter(watched, event);
}

}  // namespace zg
