// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <QObject>
#include <QWidget>

#include "program/program.h"
#include "program/site_changes.h"
#include "store/alarm_values.h"
#include "ui/rows/chosen_sites.h"
#include "ui/rows/site_work.h"

namespace tarnwick {

/// What can be done with the sites that somebody has chosen in the list. With several of them a question tells before
/// what will be done to how many, and how many stay as they are. Each is done as a whole, or not at all.
class RowActions final : public QObject {
  Q_OBJECT

 public:
  /// `program` outlives this object; `window` is the one of the list.
  RowActions(Program& program, QWidget& window, QObject* parent);

  /// Checks those that are active.
  void checkNow(const ChosenSites& sites);
  /// Acknowledges the wrong pages of those that are down; where all of these are acknowledged, ends that.
  void acknowledge(const ChosenSites& sites);
  /// Pauses the alerts.
  void pause(const ChosenSites& sites, const Pause& pause);
  void resume(const ChosenSites& sites);
  void resetCounters(const ChosenSites& sites);
  void remove(const ChosenSites& sites);

  /// Those of `sites` that an acknowledgement would be for, and whether it would end one.
  static ChosenSites toAcknowledge(const ChosenSites& sites);
  static bool endsAcknowledgement(const ChosenSites& sites);

 Q_SIGNALS:
  /// Sites were deleted: as they were.
  void deleted(const std::shared_ptr<std::vector<tarnwick::DeletedSite>>& sites);

 private:
  /// Asks where there are several, and then does it.
  void askWhereSeveral(const ChosenSites& all, const QStringList& question, const std::function<void()>& action);
  void ask(const QStringList& question, bool destroys, const std::function<void()>& action);
  void write(const QString& what, const ChosenSites& sites, SiteWork::Piece piece, std::function<void()> done = {});

  Program& program_;
  QWidget& window_;
  SiteWork* work_;
};

}  // namespace tarnwick
