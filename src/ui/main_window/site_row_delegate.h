// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace tarnwick {

/// Paints the rows of the list. A chosen row keeps the colour of its state: a frame around it tells that it is chosen,
/// dashed while the list has not the focus. A current row that is not chosen has a thin one. The "ID" cell bears icon,
/// number and word of the state.
class SiteRowDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// So wide is what belongs to the icon, from the left edge of its cell.
  static constexpr int kIconRoom = 24;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tarnwick
