#include "views/QtGrid.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "shell/QtPlatform.h"

namespace zg {
namespace {

constexpr int TwipsPerPixel = 15;  // at 96 dots an inch
constexpr int FigureWidth = 6;  // pixels, of the font that the widths of the fields are meant for
constexpr int HeadingLines = 2;
constexpr int HeightTwips = 6540;

// Shows the whole text of a cell that is too narrow for it. The tool tip of the list itself, as
// long as it has one, goes first.
class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (event->type() != QEvent::ToolTip || !view->toolTip().isEmpty() || !index.isValid()) {
      return false;
    }
    const QString text = index.data().toString();
    const bool cut = sizeHint(option, index).width() > view->visualRect(index).width();
    QToolTip::showText(event->globalPos(), cut ? text.toHtmlEscaped() : QString(), view);
    return true;
  }
};

// The least width at which a heading fits into two lines.
int HeadingWidth(const QFontMetrics& metrics, const QString& heading) {
  int least = metrics.horizontalAdvance(heading);
  for (qsizetype blank = heading.indexOf(QLatin1Char(' ')); blank >= 0;
       blank = heading.indexOf(QLatin1Char(' '), blank + 1)) {
    least = std::min(least, std::max(metrics.horizontalAdvance(heading.left(blank)),
                                     metrics.horizontalAdvance(heading.mid(blank + 1))));
  }
  return least;
}

}  // namespace

// --- The model ---------------------------------------------------------------------------------

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || view_ == nullptr ? 0 : static_cast<int>(view_->RowCount());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || view_ == nullptr ? 0 : static_cast<int>(view_->ColumnCount());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::DisplayRole) {
    return ToQString(view_->CellText(static_cast<std::size_t>(index.row()), column, scratch_));
  }
  if (role == Qt::TextAlignmentRole) {
    const bool right = view_->ColumnField(column).Alignment == Alignment::Right;
    return QVariant::fromValue(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft));
  }
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const auto column = static_cast<std::size_t>(section);
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return ToQString(view_->Heading(column));
  if (role == Qt::TextAlignmentRole) {
    const bool right = view_->ColumnField(column).Alignment == Alignment::Right;
    return int{Qt::AlignVCenter} | int{Qt::TextWordWrap} |
           (right ? int{Qt::AlignRight} : int{Qt::AlignLeft});
  }
  return {};
}

void GridModel::SetView(const GlobalView* view) {
  beginResetModel();
  view_ = view;
  endResetModel();
}

void GridModel::ChangeRows(const std::function<void()>& change) {
  beginResetModel();
  change();
  endResetModel();
}

// --- The table ---------------------------------------------------------------------------------

GridTable::GridTable(QWidget* parent) : QTableView(parent), model_(this) {
  setModel(&model_);
  setItemDelegate(new CellDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setContextMenuPolicy(Qt::CustomContextMenu);

  const QFontMetrics metrics = fontMetrics();
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(metrics.height() + metrics.height() / 3);
  QHeaderView& headings = *horizontalHeader();
  headings.setMinimumSectionSize(metrics.averageCharWidth() * 2);
  headings.setHighlightSections(false);
  headings.setSectionsClickable(true);
  headings.setSortIndicatorShown(true);
  headings.setSortIndicator(-1, Qt::AscendingOrder);
  headings.setFixedHeight(metrics.lineSpacing() * HeadingLines + metrics.height() / 2);
}

QSize GridTable::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 130, HeightTwips / TwipsPerPixel};
}

// The width of a field is meant for a small font; its heading is never cut.
int GridTable::WidthOf(std::size_t column) const {
  const QFontMetrics metrics = fontMetrics();
  const int figure = std::max(metrics.horizontalAdvance(QLatin1Char('0')), FigureWidth);
  const int pixels = view_->ColumnField(column).ColumnWidth / TwipsPerPixel;
  const int heading = HeadingWidth(metrics, ToQString(view_->Heading(column)));
  const int margins = 2 * (style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this) + 2);
  return std::max(pixels * figure / FigureWidth, heading + margins);
}

void GridTable::SetView(const GlobalView* view) {
  view_ = view;
  model_.SetView(view);
  QHeaderView& headings = *horizontalHeader();
  headings.setSortIndicator(-1, Qt::AscendingOrder);
  if (view == nullptr) return;
  for (std::size_t column = 0; column < view->ColumnCount(); ++column) {
    const int section = static_cast<int>(column);
    const bool hidden = view->ColumnField(column).ColumnWidth == 0;
    headings.setSectionHidden(section, hidden);
    if (!hidden) headings.resizeSection(section, WidthOf(column));
  }
}

void GridTable::ChangeRows(const std::function<void()>& change) {
  const Marks marks = Keep();
  model_.ChangeRows(change);
  Restore(marks);
}

// --- The selection -----------------------------------------------------------------------------

std::vector<std::size_t> GridTable::SelectedRows() const {
  std::vector<std::size_t> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      rows.push_back(static_cast<std::size_t>(row));
    }
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

std::optional<std::size_t> GridTable::FirstSelectedRow() const {
  std::optional<std::size_t> first;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    const auto top = static_cast<std::size_t>(range.top());
    first = std::min(first.value_or(top), top);
  }
  return first;
}

std::optional<std::size_t> GridTable::RecordColumn() const {
  if (view_ == nullptr) return std::nullopt;
  const std::string_view key = view_->Table().Field(view_->Table().RecordIndex).Key;
  for (std::size_t column = 0; column < view_->ColumnCount(); ++column) {
    if (view_->ColumnField(column).Key == key) return column;
  }
  return std::nullopt;
}

GridTable::Marks GridTable::Keep() const {
  Marks marks;
  const auto record = RecordColumn();
  if (!record || model_.rowCount() == 0) return marks;
  for (const std::size_t row : SelectedRows()) {
    marks.Selected.insert(view_->CellText(row, *record));
  }
  if (const auto cell = CurrentCell()) {
    marks.Current = view_->CellText(cell->Row, *record);
    marks.Column = static_cast<int>(cell->Column);
  }
  return marks;
}

void GridTable::Restore(const Marks& marks) {
  const auto record = RecordColumn();
  if (!record || marks.Current.empty()) return;
  QItemSelection selection;
  QModelIndex current;
  const auto select = [&](int first, int last) {
    selection.append(
        QItemSelectionRange(model_.index(first, 0), model_.index(last, model_.columnCount() - 1)));
  };
  std::string scratch;
  std::string number;
  std::size_t missing = marks.Selected.size();
  int first = -1;  // of a run of selected rows
  for (int row = 0; row < model_.rowCount(); ++row) {
    if (missing == 0 && first < 0 && current.isValid()) break;
    number = view_->CellText(static_cast<std::size_t>(row), *record, scratch);
    if (number == marks.Current) current = model_.index(row, marks.Column);
    const bool selected = marks.Selected.contains(number);
    if (selected) --missing;
    if (selected && first < 0) first = row;
    if (!selected && first >= 0) select(std::exchange(first, -1), row - 1);
  }
  if (first >= 0) select(first, model_.rowCount() - 1);
  selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  if (current.isValid()) scrollTo(current);
}

std::optional<GridCell> GridTable::CurrentCell() const {
  const QModelIndex index = currentIndex();
  if (!index.isValid()) return std::nullopt;
  return GridCell{static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())};
}

void GridTable::GoTo(GridCell cell) {
  const QModelIndex index = model_.index(static_cast<int>(cell.Row), static_cast<int>(cell.Column));
  selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(index);
}

// --- Painting ----------------------------------------------------------------------------------

void GridTable::SetHint(const QString& hint) {
  hint_ = hint;
  viewport()->update();
}

void GridTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (model_.rowCount() > 0 || hint_.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  const int margin = fontMetrics().height();
  painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                   int{Qt::AlignCenter} | int{Qt::TextWordWrap}, hint_);
}

}  // namespace zg
