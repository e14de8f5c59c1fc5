#include "tables/QtReportBoxes.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QCompleter>
#include <QEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QListView>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>

#include "shell/QtPlatform.h"

namespace zg {
namespace {

constexpr QLatin1String SymbolFont("weather");
constexpr double SymbolSize = 3.0;  // of the font of texts
constexpr int LongText = 40;        // characters; longer ones can scroll in their box
constexpr int FoundLines = 14;

int TextWidth(const QWidget& widget, int characters) {
  return widget.fontMetrics().averageCharWidth() * characters;
}

void UniformRows(QAbstractItemView* view) {
  if (auto* list = qobject_cast<QListView*>(view)) list->setUniformItemSizes(true);
}

}  // namespace

// --- ReportBox ---------------------------------------------------------------------------------

ReportBox::ReportBox(int width, QWidget* parent) : QLineEdit(parent), width_(width) {
  setReadOnly(true);
  setEnabled(false);
}

void ReportBox::ShowText(const QString& text) {
  setText(text);
  setCursorPosition(0);
  setEnabled(!text.isEmpty());
}

QSize ReportBox::minimumSizeHint() const { return SizeOf(std::min(width_, LongText)); }

QSize ReportBox::SizeOf(int width) const {
  const QSize text(TextWidth(*this, width + 1), 0);
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QSize whole = style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, this);
  return {whole.width(), QLineEdit::sizeHint().height()};
}

bool ReportBox::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    setToolTip(fontMetrics().horizontalAdvance(text()) + TextWidth(*this, 1) > room.width()
                   ? text()
                   : QString());
  }
  return QLineEdit::event(event);
}

// --- ReportSymbol ------------------------------------------------------------------------------

ReportSymbol::ReportSymbol(QWidget* parent) : ReportBox(1, parent) {
  setAlignment(Qt::AlignCenter);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  SetSymbolFont();
}

QSize ReportSymbol::minimumSizeHint() const {
  const int side = SizeOf(1).height();
  return {side * 5 / 4, side};
}

void ReportSymbol::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ApplicationFontChange) SetSymbolFont();
  ReportBox::changeEvent(event);
}

void ReportSymbol::SetSymbolFont() {
  QFont symbols(SymbolFont);
  symbols.setPointSizeF(parentWidget()->fontInfo().pointSizeF() * SymbolSize);
  setFont(symbols);
}

// --- ReportLines -------------------------------------------------------------------------------

ReportLines::ReportLines(int width, int lines, QWidget* parent)
    : QPlainTextEdit(parent), width_(width), lines_(lines) {
  setReadOnly(true);
  setEnabled(false);
  setTabChangesFocus(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
}

void ReportLines::ShowText(const QString& text) {
  setPlainText(text);
  setEnabled(!text.isEmpty());
}

QSize ReportLines::minimumSizeHint() const {
  const int margins = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
  return {TextWidth(*this, width_) + margins, fontMetrics().lineSpacing() * lines_ + margins};
}

// --- ReportPage --------------------------------------------------------------------------------

ReportPage::ReportPage(QWidget* page, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setWidget(page);
  // The colour of the tab, not that of a window of its own.
  page->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
}

// With room for scroll bars, so that one of them does not bring the other.
QSize ReportPage::sizeHint() const {
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  return widget()->sizeHint() + QSize(bar, bar);
}

// --- RecordList --------------------------------------------------------------------------------

RecordList::RecordList(const Application& app, const ReportTable& table, QObject* parent)
    : QAbstractListModel(parent), app_(app), table_(table) {}

void RecordList::Reload() {
  beginResetModel();
  count_ = static_cast<int>(table_.Count(app_.Stores));
  endResetModel();
}

int RecordList::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

QVariant RecordList::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  // The store may have been emptied by a run in progress.
  if (!index.isValid() || row >= table_.Count(app_.Stores)) return {};
  const ReportPlace place{.Stores = app_.Stores, .Texts = app_.Texts, .Index = row};
  std::string scratch;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return ToQString(table_.RecordName(place, scratch));
    case SearchRole:
      return ToQString(table_.SearchText(place));
    default:
      return {};
  }
}

// --- RecordBox ---------------------------------------------------------------------------------

RecordBox::RecordBox(const Application& app, const ReportTable& table, int width, QWidget* parent)
    : QComboBox(parent), records_(new RecordList(app, table, this)) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  // A station may stand there several times; Enter must not go to the first of them.
  setDuplicatesEnabled(true);
  // Thousands of names would have to be measured.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(width);
  setModel(records_);
  UniformRows(view());

  auto* completer = new QCompleter(records_, this);
  completer->setCompletionRole(RecordList::SearchRole);
  completer->setFilterMode(Qt::MatchContains);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setMaxVisibleItems(FoundLines);
  setCompleter(completer);
  UniformRows(completer->popup());
  connect(lineEdit(), &QLineEdit::returnPressed, this, [this] { ChooseFound(); });
}

bool RecordBox::HasFocus() const { return hasFocus() || lineEdit()->hasFocus(); }

// Esc takes back what was typed; where nothing was, it is for the window.
void RecordBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && currentText() == itemText(currentIndex())) {
    event->ignore();
  } else if (event->key() == Qt::Key_Escape) {
    ShowSelected();
  } else {
    QComboBox::keyPressEvent(event);
    // Not for the default button too.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) event->accept();
  }
}

void RecordBox::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason) ShowSelected();
}

// Enter chooses the first record that was found, unless one is marked in the list of those.
void RecordBox::ChooseFound() {
  if (currentText() == itemText(currentIndex())) return;
  if (completer()->popup()->isVisible() && completer()->popup()->currentIndex().isValid()) return;
  completer()->setCompletionPrefix(currentText());
  if (currentText().isEmpty() || !completer()->setCurrentRow(0)) {
    ShowSelected();
    return;
  }
  auto* found = qobject_cast<QAbstractProxyModel*>(completer()->completionModel());
  const int row = found->mapToSource(completer()->currentIndex()).row();
  completer()->popup()->hide();
  if (row == currentIndex()) ShowSelected();
  setCurrentIndex(row);
}

void RecordBox::ShowSelected() { setEditText(itemText(currentIndex())); }

}  // namespace zg
