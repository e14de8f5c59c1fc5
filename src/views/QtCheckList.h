// Paints a selected entry of a list as a check box that is ticked, since a selection of entries
// that do not stand together reads better so. Highlighted is the one that the keys are at.
#pragma once

#include <QStyledItemDelegate>

namespace zg {

class CheckListDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace zg
