// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>
#include <QAbstractTableModel>
#include <QColor>

#include "engine/alarm_view.h"
#include "store/text_table.h"
#include "ui/main_window/extra_columns.h"
#include "ui/main_window/site_columns.h"
#include "ui/main_window/site_row.h"
#include "ui/main_window/site_rows.h"
#include "ui/main_window/site_state.h"

namespace tarnwick {

/// The site list as the grid shows it: one row a site, in the order of the database. Rows are found by their site's id
/// without a search, so that a result costs the same in a list of ten sites and of thirty thousand.
class SiteGridModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Row = SiteRow;
  using Shade = SiteRow::Shade;

  /// Where the columns stand that every list has.
  enum Column { idColumn, urlColumn, upColumn, downColumn, timeColumn };

  /// `columns` outlives the model and begins with those of `Column`.
  explicit SiteGridModel(SiteColumns columns = siteColumns()) : columns_(columns) {}

  SiteColumns columns() const { return columns_; }

  /// Gives the list those of `extraColumns()`, too, right of its own. `cells` outlives the model.
  void setExtraCells(const ExtraCells& cells);
  /// Which of `extraColumns()` a column is; nothing for one of the list's own.
  std::optional<std::size_t> extraColumnAt(int column) const;
  /// Its key in a row.
  SortKey extraKey(int row, std::size_t extra) const { return extraCells_->keyOf(row, extra); }
  /// The smallest and the largest number of a site; 0 and -1 where there is none.
  std::pair<std::int16_t, std::int16_t> idsOfSites() const;

  /// The roles of the "ID" cell beside the usual ones: a `SiteState`, and the word for it. And what is copied of any
  /// cell.
  enum Role { stateRole = Qt::UserRole, wordRole, copyRole };

  /// Shows the sites of a whole site list in place of what was shown. Marks of sites that are still there stay, and so
  /// does what was seen of their alarms. What `setFetched` told of a failed check that is still the last one stays.
  void setSites(SiteRows sites);
  void setSites(const TextTable& sites);
  /// Writes the record of one site, the first of `sites`, into the rows of its id. Nothing when `sites` is empty.
  void updateSite(const TextTable& sites);
  /// Tells whether the last check of a site brought a page.
  void setFetched(std::int16_t idSite, bool fetched);
  /// Paints the site's rows for a result; a site that is not active stays grey. Ends its mark.
  void setResult(std::int16_t idSite, bool passed);
  void setLastChecked(std::int16_t idSite, const std::string& dateTime);

  /// Says in a row what there is to be seen of its site's alarm. Nothing for a row that there is not.
  void setAlarm(int row, const AlarmView& view);

  /// Marks the site: adds `amount` to each part of the colour that its "URL" cell has now, and paints its "ID" and
  /// "URL" cells so.
  void brighten(std::int16_t idSite, int amount);
  /// Paints the site's rows in the colour of its status again.
  void unbrighten(std::int16_t idSite);

  /// The sites that are marked.
  std::vector<std::int16_t> marked() const;

  /// The site of a row; nothing beyond the rows, or when the "ID" cell holds no number of 16 bits.
  std::optional<std::int16_t> siteOfRow(int row) const;
  /// The first row of a site, -1 when it has none.
  int rowOfSite(std::int16_t idSite) const;
  /// Whether the site of a row is being tested.
  bool isTested(int row) const { return isMarked(this->row(row)); }
  /// What is known of the site of a row.
  const Row& row(int row) const { return sites_.rows.at(static_cast<std::size_t>(row)); }
  /// How many sites are down.
  int downCount() const;
  /// How the site of a row stands.
  SiteState stateOfRow(int row) const;
  /// Whether the last check of the site of a row brought a page that differs from the baseline.
  bool differsInRow(int row) const {
    const Row& it = sites_.rows.at(static_cast<std::size_t>(row));
    return it.shade == Shade::down && it.fetched;
  }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString wordOfRow(const Row& row) const;
  QVariant extraData(int row, std::size_t extra, int role) const;
  bool isMarked(const Row& row) const;
  QColor background(const QModelIndex& index) const;
  void repaintRow(int row);
  /// Calls `change` with each row of the site and has it painted again.
  template <typename Change>
  void changeRows(std::int16_t idSite, Change change);

  const SiteColumns columns_;
  const ExtraCells* extraCells_ = nullptr;
  SiteRows sites_;
  std::unordered_map<std::int16_t, QColor> marks_;
};

}  // namespace tarnwick
