// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>
#include <QAbstractTableModel>
#include <QStyledItemDelegate>

#include "store/history_overview.h"
#include "ui/history/stripe.h"

namespace tarnwick {

/// The sites with a stripe each, the worst first; those of which nothing is known come last.
class OverviewList final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { site, address, stripe, uptime, last };

  struct Row {
    std::int16_t idSite = 0;
    QString url{};
    std::vector<KnownTime> cells{};
    std::optional<double> uptime{};
  };

  using QAbstractTableModel::QAbstractTableModel;

  /// Rows of that period, in any order.
  void show(std::vector<Row> rows, const Period& period, Moment now);
  const std::vector<Row>& rows() const { return rows_; }
  /// The stripe of a row, without answer times and outages.
  Stripe stripeOf(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<Row> rows_;
  Period period_{};
  std::vector<Moment> edges_;
  Moment now_{};
};

/// Paints the stripes of an `OverviewList`, and tells of the cell under the mouse.
class StripeDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// `list` outlives this.
  StripeDelegate(const OverviewList& list, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  const OverviewList& list_;
};

}  // namespace tarnwick
