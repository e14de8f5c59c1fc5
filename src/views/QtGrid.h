// The list of a global view on the screen: a table model that reads the cells of a GlobalView when
// they are painted, and a table that keeps its selection over the changes of the rows.
#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QTableView>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "views/GlobalView.h"
#include "views/GridText.h"

namespace zg {

class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(QObject* parent) : QAbstractTableModel(parent) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Shows another view, or with null nothing. It must stay until the next one is set.
  void SetView(const GlobalView* view);
  // Does something that changes the rows.
  void ChangeRows(const std::function<void()>& change);

 private:
  const GlobalView* view_ = nullptr;
  mutable std::string scratch_;
};

class GridTable : public QTableView {
 public:
  explicit GridTable(QWidget* parent);

  // Shows another view, its columns as wide as their fields want it, or with null nothing. The view
  // must stay until the next one is set.
  void SetView(const GlobalView* view);
  // Does something that changes the rows. Those that were selected are selected again, and the
  // current one comes into sight, as far as they are still there: records are found by their
  // number.
  void ChangeRows(const std::function<void()>& change);

  // Rows of the selection, in their order.
  std::vector<std::size_t> SelectedRows() const;
  std::optional<std::size_t> FirstSelectedRow() const;

  std::optional<GridCell> CurrentCell() const;
  // Makes a cell the current one, selects its row alone, and brings it into sight.
  void GoTo(GridCell cell);

  // Shown in place of rows while there are none.
  void SetHint(const QString& hint);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Rows by the number of their record.
  struct Marks {
    std::unordered_set<std::string> Selected;
    std::string Current;
    int Column = 0;
  };

  std::optional<std::size_t> RecordColumn() const;
  Marks Keep() const;
  void Restore(const Marks& marks);
  int WidthOf(std::size_t column) const;

  const GlobalView* view_ = nullptr;
  GridModel model_;
  QString hint_;
};

}  // namespace zg
