// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>
#include <QAbstractProxyModel>

#include "finding/site_query.h"
#include "platform/clock.h"
#include "store/site_tags.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {

/// Which sites of the list are shown, and in which order: all of them in that of the database, until somebody looks for
/// some or sorts them. What changes meanwhile stays where it is until `renew`, so that no row moves away under a hand.
class SiteOrder final : public QAbstractProxyModel {
  Q_OBJECT

 public:
  using TagsOfSites = std::map<std::int64_t, Tags>;

  /// What is known of the sites beside their rows: whether somebody watches them, and their tags.
  struct Moment {
    LocalTime now{};
    bool runIsOn = false;
    bool newSitesAtOnce = false;
    std::shared_ptr<const TagsOfSites> tags{};  ///< where the query asks for them
  };

  /// `sites` outlives the order.
  explicit SiteOrder(SiteGridModel& sites);

  /// Shows the sites that the query finds at that moment.
  void find(const SiteQuery& query, const Moment& moment);
  /// Sorts by a column of the list; the original order comes back for a column below 0.
  void sortBy(int column, Qt::SortOrder order);

  const SiteQuery& query() const { return query_; }
  bool isFiltered() const { return !query_.all(); }
  bool isSorted() const { return sortColumn_ >= 0; }
  int sortColumn() const { return sortColumn_; }
  Qt::SortOrder sortOrder() const { return sortOrder_; }
  /// Finds and sorts again, by what the sites are now.
  void renew(const Moment& moment);

  /// The row of the list for one that is shown, and the other way round; -1 for one that is not shown.
  int listRow(int shownRow) const;
  int shownRow(int listRow) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& /*child*/) const override { return {}; }
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  QModelIndex mapToSource(const QModelIndex& shown) const override;
  QModelIndex mapFromSource(const QModelIndex& listed) const override;

 private:
  bool isPlain() const { return !isFiltered() && !isSorted(); }
  /// The rows of the list that are to be shown now.
  std::vector<int> arranged() const;
  bool isFound(int row) const;
  void arrange();
  void take(std::vector<int> shown);
  void tellChange(const QModelIndex& first, const QModelIndex& last);
  /// The place of each row by the column that is sorted by; what is the same has the same place.
  std::vector<int> ranks() const;

  SiteGridModel& sites_;
  SiteQuery query_;
  Moment moment_;
  int sortColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
  // By their rows. Nothing where all sites are shown in their own order.
  std::vector<int> shown_;
  std::vector<int> placeOfListed_;
  bool isPlainShown_ = true;
};

}  // namespace tarnwick
