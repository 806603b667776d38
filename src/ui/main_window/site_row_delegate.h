// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace tarnwick {

/// Paints the rows of the list. A selected row keeps the colour of its state: a frame around it tells that it is the
/// current one, dashed while the list has not the focus. The "ID" cell bears icon, number and word of the state.
class SiteRowDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tarnwick
