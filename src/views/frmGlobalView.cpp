#include "views/frmGlobalView.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/MenuTree.h"
#include "shell/QtPlatform.h"
#include "text/TextRules.h"
#include "views/CsvExport.h"
#include "views/QtGrid.h"

namespace zg {
namespace {

constexpr int ToolTipMilliseconds = 3000;
constexpr int SelectionMilliseconds = 500;
constexpr int ProgressTwips = 6540 - 6285;  // what the list gives up for the bar
constexpr int TwipsPerPixel = 15;
constexpr std::string_view Shape = "         ";  // of a cell before it is filled

template <typename Control>
Control* Make(Control* control, const char* name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

// The hour glass, as long as it lives.
struct WaitCursor {
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

// The first and the last group of boxes are the same in all views.
const char* GroupName(std::size_t group, std::size_t groups) {
  if (group == 0) return "fraQuadrant";
  return group + 1 == groups ? "fraMessage" : "fraStation";
}

}  // namespace

frmGlobalView::frmGlobalView(Application& app, Dialogs& dialogs, const GlobalViewTable& table,
                             QWidget* parent)
    : Form(app, table.Form, parent), dialogs_(dialogs), table_(table), titleTexts_(app.Texts) {
  BuildFilters();
  BuildChoices();
  BuildGrid();
  BuildProgress();
  BuildMenu();
  BuildButtons();
  BuildLayout();
  ReadLabels();
  resize(sizeHint().boundedTo(screen()->availableSize()));
}

// The grid is gone later than the view.
frmGlobalView::~frmGlobalView() { lstGlobal_->SetView(nullptr); }

// --- Building ----------------------------------------------------------------------------------

void frmGlobalView::BuildFilters() {
  for (unsigned i = 0; i < table_.FilterBoxes.size(); ++i) {
    auto* box = new QCheckBox(ToQString(table_.FilterBoxes[i]), this);
    box->setObjectName(ToQString(MemberName("chkFilter", static_cast<int>(i))));
    connect(box, &QCheckBox::toggled, this, [this, i](bool ticked) {
      if (loading_ || !view_) return;
      view_->SetFilter(i, ticked);
      RefreshGlobalList();
    });
    chkFilter_.push_back(box);
  }
}

void frmGlobalView::BuildChoices() {
  lblCountry_ = Make(new QLabel(this), "lblCountry");
  cmbCountry_ = Make(new QComboBox(this), "cmbCountry");
  cmbCountry_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cmbCountry_->setMinimumContentsLength(18);
  lblCountry_->setBuddy(cmbCountry_);
  connect(cmbCountry_, &QComboBox::currentTextChanged, this, [this](const QString& country) {
    if (loading_ || !view_) return;
    selectedCountry_ = country.toStdString();
    view_->SetSelectedCountry(selectedCountry_);
    RefreshGlobalList();
  });

  chkUnits_ = Make(new QCheckBox(this), "chkUnits");
  connect(chkUnits_, &QCheckBox::toggled, this, [this](bool shown) {
    if (loading_ || !view_) return;
    view_->SetUnitsShown(shown);
    app_.Parameters.SetParameter(UnitsParameter, shown ? "1" : "0");
    RefreshGlobalList();
  });

  lblFind_ = Make(new QLabel(this), "lblFind");
  txtFind_ = Make(new QLineEdit(this), "txtFind");
  txtFind_->setClearButtonEnabled(true);
  txtFind_->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
  txtFind_->installEventFilter(this);
  lblFind_->setBuddy(txtFind_);
  lblNotFound_ = Make(new QLabel(this), "lblNotFound");
  QSizePolicy policy = lblNotFound_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  lblNotFound_->setSizePolicy(policy);
  lblNotFound_->hide();
  connect(txtFind_, &QLineEdit::textEdited, this, [this] { Find(FindDirection::Forward, false); });
}

void frmGlobalView::BuildGrid() {
  lstGlobal_ = Make(new GridTable(this), "lstGlobal");
  connect(lstGlobal_->horizontalHeader(), &QHeaderView::sectionClicked, this,
          &frmGlobalView::ClickColumn);
  connect(lstGlobal_, &QTableView::clicked, this, &frmGlobalView::ClickRow);
  connect(lstGlobal_, &QTableView::doubleClicked, this, &frmGlobalView::OpenRecord);
  connect(lstGlobal_, &QTableView::customContextMenuRequested, this, [this](const QPoint& point) {
    mnuGrid_->popup(lstGlobal_->viewport()->mapToGlobal(point));
  });

  timerToolTips_.setObjectName(QStringLiteral("TimerToolTips"));
  timerToolTips_.setInterval(ToolTipMilliseconds);
  timerToolTips_.setSingleShot(true);
  connect(&timerToolTips_, &QTimer::timeout, this, [this] { lstGlobal_->setToolTip({}); });
  // Looks where the selection is; nothing depends on it yet.
  timerSelection_.setObjectName(QStringLiteral("TimerSelection"));
  timerSelection_.setInterval(SelectionMilliseconds);
  connect(&timerSelection_, &QTimer::timeout, this, [this] { lstGlobal_->FirstSelectedRow(); });
}

void frmGlobalView::BuildProgress() {
  progress_ = new QWidget(this);
  lblProgr_ = Make(new QLabel(this), "lblProgr");
  prgGlobalView_ = Make(new QProgressBar(this), "prgGlobalView");
  prgGlobalView_->setTextVisible(false);
  auto* row = new QHBoxLayout(progress_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(lblProgr_);
  row->addWidget(prgGlobalView_, 1);
  progress_->setFixedHeight(std::max(ProgressTwips / TwipsPerPixel, fontMetrics().height()));
  progress_->hide();
}

void frmGlobalView::AddCommand(const char* name, const QList<QKeySequence>& shortcuts,
                               QWidget& scope, void (frmGlobalView::*run)()) {
  auto* action = Make(new QAction(mnuGrid_), name);
  action->setShortcuts(shortcuts);
  action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(action, &QAction::triggered, this, run);
  mnuGrid_->addAction(action);
  scope.addAction(action);
}

void frmGlobalView::BuildMenu() {
  mnuGrid_ = Make(new QMenu(this), "mnuGrid");
  AddCommand("mnuOpenRecord", {Qt::Key_Return, Qt::Key_Enter}, *lstGlobal_,
             &frmGlobalView::OpenRecord);
  mnuGrid_->addSeparator();
  AddCommand("mnuCopy", {QKeySequence::Copy}, *lstGlobal_, &frmGlobalView::CopyRows);
  AddCommand("mnuSelectAll", {QKeySequence::SelectAll}, *lstGlobal_, &frmGlobalView::SelectAllRows);
  AddCommand("mnuSort", {QStringLiteral("Ctrl+T")}, *lstGlobal_,
             &frmGlobalView::SortByCurrentColumn);
  mnuGrid_->addSeparator();
  AddCommand("mnuFind", {QKeySequence::Find}, *this, &frmGlobalView::EnterFind);
  AddCommand("mnuFindNext", {QStringLiteral("F3")}, *this, &frmGlobalView::FindNext);
  AddCommand("mnuFindPrevious", {QStringLiteral("Shift+F3")}, *this, &frmGlobalView::FindPrevious);
}

// No button answers to Enter, which opens the record.
void frmGlobalView::BuildButtons() {
  cmdExport_ = Make(new QPushButton(this), "cmdExport");
  cmdClose_ = Make(new QPushButton(this), "cmdClose");
  cmdExport_->setAutoDefault(false);
  cmdClose_->setAutoDefault(false);
  connect(cmdExport_, &QPushButton::clicked, this, &frmGlobalView::Export);
  connect(cmdClose_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmGlobalView::BuildLayout() {
  // The last of the groups in the table has the first boxes.
  auto* filters = new QHBoxLayout;
  const std::size_t groups = table_.FilterGroups.size();
  for (std::size_t group = 0; group < groups; ++group) {
    auto* frame = Make(new QGroupBox(this), GroupName(group, groups));
    auto* row = new QHBoxLayout(frame);
    const std::int32_t boxes = table_.FilterGroups[groups - 1 - group];
    for (std::size_t i = 0; i < chkFilter_.size(); ++i) {
      if ((boxes >> i & 1) != 0) row->addWidget(chkFilter_[i]);
    }
    filters->addWidget(frame);
  }
  filters->addStretch();

  auto* choices = new QHBoxLayout;
  choices->addWidget(lblCountry_);
  choices->addWidget(cmbCountry_);
  choices->addSpacing(fontMetrics().height());
  choices->addWidget(chkUnits_);
  choices->addStretch();
  choices->addWidget(lblNotFound_);
  choices->addSpacing(fontMetrics().height() / 2);
  choices->addWidget(lblFind_);
  choices->addWidget(txtFind_);

  auto* list = new QVBoxLayout;
  list->setSpacing(0);
  list->addWidget(lstGlobal_, 1);
  list->addWidget(progress_);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdExport_);
  buttons->addWidget(cmdClose_);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(filters);
  layout->addLayout(choices);
  layout->addLayout(list, 1);
  layout->addLayout(buttons);

  QWidget* before = nullptr;
  const auto follow = [&before](QWidget* next) {
    if (before != nullptr) QWidget::setTabOrder(before, next);
    before = next;
  };
  for (QCheckBox* box : chkFilter_) follow(box);
  for (QWidget* next : std::initializer_list<QWidget*>{cmbCountry_, chkUnits_, txtFind_, lstGlobal_,
                                                       cmdExport_, cmdClose_}) {
    follow(next);
  }
}

void frmGlobalView::SetCaptions() {
  lblCountry_->setText(ToQString(CountryCaption(app_.Texts)));
  cmbCountry_->setToolTip(ToQString(app_.Choose("* sta per tutte", "* stands for all")));
  cmdExport_->setText(ToQString(app_.Choose("&Esporta", "&Export")));
  cmdClose_->setText(ToQString(app_.Choose("&Chiudi", "&Close")));
  lstGlobal_->setAccessibleName(ToQString(app_.Choose("Messaggi", "Messages")));
  prgGlobalView_->setAccessibleName(ToQString(app_.Choose("Avanzamento", "Progress")));
  ShowHint();
}

// --- Opening and closing -----------------------------------------------------------------------

void frmGlobalView::Load() {
  const bool scheduled = app_.mSchedulingStarted;
  if (view_ && !scheduled) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    return;
  }
  const bool opening = !view_;
  loading_ = true;
  StartView();
  setWindowState(scheduled ? windowState() | Qt::WindowMinimized
                           : windowState() & ~Qt::WindowMinimized);
  setWindowTitle(ToQString(LoadingCaption(app_.Texts)));
  lblCountry_->setText(ToQString(CountryCaption(app_.Texts)));
  if (opening) emit Opened();
  ResetCountries();
  view_->SetColumns(app_.Parameters.GetParameter(table_.SelectionKey));
  view_->FillAllItem(Shape);
  lstGlobal_->SetView(&*view_);
  show();
  for (QCheckBox* box : chkFilter_) box->setChecked(true);
  repaint();
  RefreshGlobalList();
  loading_ = false;
  lstGlobal_->setFocus();
  timerSelection_.start();
  if (scheduled) Export();
}

void frmGlobalView::StartView() {
  lstGlobal_->SetView(nullptr);
  rowTexts_ = titleTexts_;
  view_.emplace(table_, app_.Stores, rowTexts_);
  sort_ = {};
  view_->SetUnitsShown(Value(app_.Parameters.GetParameter(UnitsParameter)) != 0);
  view_->SetSelectedCountry(selectedCountry_);
  chkUnits_->setChecked(view_->UnitsShown());
  txtFind_->clear();
  lblNotFound_->hide();
}

// The box begins anew, but for the country that is still chosen.
void frmGlobalView::ResetCountries() {
  cmbCountry_->clear();
  countriesSeen_ = 0;
  AddCountries();
  const QString chosen = ToQString(selectedCountry_);
  if (cmbCountry_->findText(chosen) < 0) cmbCountry_->addItem(chosen);
  cmbCountry_->setCurrentIndex(cmbCountry_->findText(chosen));
}

void frmGlobalView::AddCountries() {
  const auto& countries = view_->Countries();
  for (; countriesSeen_ < countries.size(); ++countriesSeen_) {
    const QString name = ToQString(countries[countriesSeen_]);
    if (cmbCountry_->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0) {
      cmbCountry_->addItem(name);
    }
  }
}

void frmGlobalView::StoreWillChange() {
  if (view_) view_->Freeze();
}

void frmGlobalView::hideEvent(QHideEvent* event) {
  Form::hideEvent(event);
  if (!event->spontaneous() && view_) Unload();
}

void frmGlobalView::Unload() {
  timerSelection_.stop();
  timerToolTips_.stop();
  lstGlobal_->setToolTip({});
  lstGlobal_->SetView(nullptr);
  view_.reset();
  emit Closed();
}

// --- Rows --------------------------------------------------------------------------------------

void frmGlobalView::RefreshGlobalList() {
  if (!view_) return;
  prgGlobalView_->setRange(0, static_cast<int>(table_.Count(app_.Stores)));
  prgGlobalView_->setValue(0);
  lblProgr_->setText(QStringLiteral("Loading ..."));
  progress_->show();
  rowTexts_ = app_.Texts;
  lstGlobal_->ChangeRows([this] { view_->RefreshGlobalList(); });
  lstGlobal_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  prgGlobalView_->setValue(static_cast<int>(view_->RowCount()));
  AddCountries();
  setWindowTitle(ToQString(view_->RowsCaption()));
  progress_->hide();
  lblProgr_->clear();
  ShowHint();
}

void frmGlobalView::ShowHint() {
  lstGlobal_->SetHint(ToQString(
      table_.Count(app_.Stores) == 0
          ? app_.Choose("Non ci sono messaggi.", "There are no messages.")
          : app_.Choose("Nessun messaggio corrisponde: serve una casella selezionata in ogni "
                        "gruppo, e una nazione o * per tutte.",
                        "No message matches: each group needs a ticked box, and the country a "
                        "name or * for all.")));
}

// The mark in the headings stands where the rows are sorted, which is another column than the one
// clicked where fields are hidden, or none.
void frmGlobalView::ClickColumn(int column) {
  if (!view_ || column < 0) return;
  const auto clicked = static_cast<std::size_t>(column);
  const auto key = static_cast<std::size_t>(&view_->ColumnField(clicked) - table_.Fields.data());
  lstGlobal_->ChangeRows([this, clicked] { view_->ClickColumn(clicked); });
  sort_.Descending = !sort_.Descending && sort_.Key == key;
  sort_.Key = key;
  if (key < view_->ColumnCount()) sort_.Column = static_cast<int>(key);
  lstGlobal_->horizontalHeader()->setSortIndicator(
      sort_.Column, sort_.Descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void frmGlobalView::SortByCurrentColumn() {
  if (const auto cell = lstGlobal_->CurrentCell()) ClickColumn(static_cast<int>(cell->Column));
}

void frmGlobalView::ClickRow() {
  const auto row = lstGlobal_->FirstSelectedRow();
  if (!row) return;
  lstGlobal_->setToolTip(ToQString(view_->RowText(*row)).toHtmlEscaped());
  timerToolTips_.start();
}

void frmGlobalView::OpenRecord() {
  const auto row = lstGlobal_->FirstSelectedRow();
  if (!row) return;
  if (const auto record = view_->RecordOfRow(*row)) emit RecordChosen(static_cast<int>(*record));
}

// --- Handing on --------------------------------------------------------------------------------

// A user who leaves the dialog is told of a success all the same.
void frmGlobalView::Export() {
  const CsvExport how = app_.mSchedulingStarted ? CsvExport::Scheduled : CsvExport::ByUser;
  const std::string path =
      how == CsvExport::Scheduled
          ? CsvFileName(app_.mFileName)
          : dialogs_
                .SaveFile(this, ToQString(CsvDialogTitle), ToQString(app_.MeteoFilesPath),
                          ToQString(CsvDialogFilter))
                .toStdString();
  if (!view_) return;  // closed meanwhile
  std::string error;
  if (!path.empty()) {
    const WaitCursor cursor;
    error = WriteCsvFile(*view_, path);
  }
  const std::string outcome = CsvOutcome(how, error, app_.Texts);
  if (how == CsvExport::Scheduled) {
    app_.Log.Log(outcome);
  } else {
    app_.Messages.Show(Prompt::Icon::Information, outcome);
  }
}

void frmGlobalView::CopyRows() {
  const std::vector<std::size_t> rows = lstGlobal_->SelectedRows();
  if (rows.empty()) return;
  QApplication::clipboard()->setText(ToQString(RowsAsText(*view_, rows)));
}

void frmGlobalView::SelectAllRows() { lstGlobal_->selectAll(); }

// --- Finding -----------------------------------------------------------------------------------

void frmGlobalView::EnterFind() {
  txtFind_->setFocus(Qt::ShortcutFocusReason);
  txtFind_->selectAll();
}

// While the text is typed the cell found stays as long as it fits.
void frmGlobalView::Find(FindDirection direction, bool behindCurrent) {
  if (!view_) return;
  const std::string part = txtFind_->text().toStdString();
  const auto current = lstGlobal_->CurrentCell();
  GridCell start = current.value_or(GridCell{});
  if (current && behindCurrent) start = NextCell(*view_, start, direction);
  const auto found = FindCell(*view_, part, start, direction);
  if (found) lstGlobal_->GoTo(*found);
  lblNotFound_->setVisible(!part.empty() && !found);
}

// --- Keys --------------------------------------------------------------------------------------

// Enter presses the button that has the focus and no other.
void frmGlobalView::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    Form::keyPressEvent(event);
    return;
  }
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

// In the search field Enter goes on to the next cell, the arrow into the list, and Esc takes the
// search back before it closes the window.
bool frmGlobalView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != txtFind_ || event->type() != QEvent::KeyPress) {
    return Form::eventFilter(watched, event);
  }
  const auto* pressed = static_cast<QKeyEvent*>(event);
  switch (pressed->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Find(pressed->modifiers().testFlag(Qt::ShiftModifier) ? FindDirection::Backward
                                                            : FindDirection::Forward,
           true);
      return true;
    case Qt::Key_Down:
      lstGlobal_->setFocus(Qt::TabFocusReason);
      return true;
    case Qt::Key_Escape:
      if (txtFind_->text().isEmpty()) return false;
      txtFind_->clear();
      lblNotFound_->hide();
      return true;
    default:
      return false;
  }
}

}  // namespace zg
