// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <QObject>
#include <QTimer>

#include "program/program.h"
#include "store/data_changes.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {

/// What the further columns show: reads of the list what those that are shown need, and nothing while none is. It is
/// read in slices between the events; what is wrong with a site, for which its pages are compared, is looked up once
/// somebody sees it.
class SiteExtras final : public QObject, public ExtraCells {
  Q_OBJECT

 public:
  /// `program` is asked for nothing before one of the calls below; both outlive this object. Gives `sites` the columns.
  SiteExtras(Program& program, SiteGridModel& sites, QObject* parent);

  /// Which of `extraColumns()` are shown.
  void show(const std::set<std::size_t>& columns);

  /// The list is not what it was: all that is needed is read again.
  void look();
  /// The site has just been judged.
  void update(std::int16_t idSite);

  QString textOf(int row, std::size_t column) const override;
  QString toolTipOf(int row, std::size_t column) const override;
  SortKey keyOf(int row, std::size_t column) const override;

 Q_SIGNALS:
  /// Something of what is shown may be another text.
  void changed();
  /// The rows may be in another order by these columns now.
  void sorted();

 private:
  struct Wrong {
    std::string checked;          ///< when, as the row told it
    std::optional<QString> text;  ///< nothing beyond what the row tells
    bool isStale = false;
  };

  /// Whether somebody sees it, so that it is worth while to look closely.
  enum class Seen { no, yes };
  ExtraCell cellOf(int row, std::size_t column, Seen seen) const;
  /// What is wrong with the site in a few words, as far as that is known.
  std::optional<QString> wrongOf(int row, Seen seen) const;
  void lookUpLater(std::int16_t idSite) const;
  Wrong lookUp(std::int16_t idSite, const SiteRow& row);
  void readMore();
  void read(std::int64_t first, std::int64_t last);
  void readSlice();
  void readJudged();
  void lookUpWrong();
  void lookAtOthers();

  Program& program_;
  SiteGridModel& sites_;
  std::set<std::size_t> shown_;
  FactsWanted wanted_;
  std::unordered_map<std::int16_t, ListedFacts> facts_;
  // The sites that are still to be read, by their numbers.
  std::optional<std::int64_t> next_;
  std::int64_t last_ = 0;
  std::set<std::int16_t> judged_;
  std::unordered_map<std::int16_t, Wrong> wrong_;
  mutable std::deque<std::int16_t> unknown_;  // the one that was seen last comes last
  mutable QTimer soon_;
  QTimer often_;
  std::optional<DataChanges> changes_;
  std::optional<OptionsInForce> options_;
};

}  // namespace tarnwick
