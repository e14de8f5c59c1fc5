#include "views/QtCheckList.h"

#include <QPainter>
#include <QWidget>

namespace zg {

QSize CheckListDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  const QSize size = QStyledItemDelegate::sizeHint(option, index);
  return {size.width(), size.height() + option.fontMetrics.height() / 3};
}

void CheckListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  // On a dark background the style's own frame can hardly be seen.
  QStyleOptionViewItem shown(option);
  initStyleOption(&shown, index);
  const QRect box = option.widget->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator,
                                                           &shown, option.widget);
  QColor ink = option.palette.color(QPalette::Text);
  ink.setAlphaF(0.45F);
  painter->setPen(ink);
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(box.adjusted(0, 0, -1, -1));
}

void CheckListDelegate::initStyleOption(QStyleOptionViewItem* option,
                                        const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const bool selected = option->state.testFlag(QStyle::State_Selected);
  option->features |= QStyleOptionViewItem::HasCheckIndicator;
  option->checkState = selected ? Qt::Checked : Qt::Unchecked;
  option->state.setFlag(QStyle::State_Selected, option->state.testFlag(QStyle::State_HasFocus));
}

}  // namespace zg
