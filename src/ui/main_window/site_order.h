// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>
#include <QSortFilterProxyModel>

#include "finding/site_query.h"
#include "platform/clock.h"
#include "store/site_tags.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {

/// Which sites of the list are shown, and in which order: all of them in that of the database, until somebody looks for
/// some or sorts them. What changes meanwhile stays where it is until `renew`, so that no row moves away under a hand.
class SiteOrder final : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  /// What is known of the sites beside their rows: whether somebody watches them, and their tags.
  struct Moment {
    LocalTime now{};
    bool runIsOn = false;
    bool newSitesAtOnce = false;
    std::map<std::int64_t, Tags> tags{};
  };

  /// `sites` outlives the order.
  explicit SiteOrder(SiteGridModel& sites);

  /// Shows the sites that the query finds at that moment.
  void find(const SiteQuery& query, const Moment& moment);
  /// Sorts by a column of the list; the original order comes back for a column below 0.
  void sortBy(int column, Qt::SortOrder order);

  bool isFiltered() const { return !query_.all(); }
  bool isSorted() const { return sortColumn() >= 0; }
  /// Finds and sorts again, by what the sites are now.
  void renew(const Moment& moment);

  /// The row of the list for one that is shown, and the other way round; -1 for one that is not shown.
  int listRow(int shownRow) const { return mapToSource(index(shownRow, 0)).row(); }
  int shownRow(int listRow) const { return mapFromSource(sites_.index(listRow, 0)).row(); }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  void take(const Moment& moment);
  void forget(int first, int last);
  void rank(int column) const;

  SiteGridModel& sites_;
  SiteQuery query_;
  Moment moment_;
  /// As they were looked at last: a list of thirty thousand is searched with each letter that is typed.
  mutable std::vector<std::optional<FoundSite>> found_;
  /// The place of each row by the column that is sorted by: what is compared once is not compared again as a text.
  mutable std::vector<int> ranks_;
  mutable int rankedBy_ = -1;
};

}  // namespace tarnwick
