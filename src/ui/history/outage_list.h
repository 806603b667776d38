// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QAbstractTableModel>

#include "store/site_history.h"

namespace tarnwick {

/// The outages of a site, the latest first.
class OutageList final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { since, length, cause, last };

  using QAbstractTableModel::QAbstractTableModel;

  /// One that is on lasts until `now`.
  void show(std::vector<Outage> outages, Moment now);
  const std::vector<Outage>& outages() const { return outages_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<Outage> outages_;
  Moment now_{};
};

}  // namespace tarnwick
