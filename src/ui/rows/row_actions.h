// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>
#include <QObject>
#include <QWidget>

#include "program/program.h"
#include "program/site_changes.h"
#include "store/alarm_values.h"
#include "ui/controls/undo_list.h"
#include "ui/rows/chosen_sites.h"
#include "ui/rows/site_work.h"
#include "ui/rows/sites_dialog.h"

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
  /// Opens the dialogs on them.
  void editTags(const ChosenSites& sites);
  void change(const ChosenSites& sites);

  /// Those of `sites` that an acknowledgement would be for, and whether it would end one.
  static ChosenSites toAcknowledge(const ChosenSites& sites);
  static bool endsAcknowledgement(const ChosenSites& sites);

  /// What can be taken back of it.
  UndoList& undoList() { return *undoList_; }

 Q_SIGNALS:
  /// These were put back into the list.
  void putBack(const std::vector<std::int16_t>& ids);

 private:
  using Deleted = std::map<std::int64_t, DeletedSite>;

  void keepDeleted(const std::shared_ptr<const Deleted>& sites);
  void openDialog(SitesDialog& dialog);
  void undoDelete(const std::shared_ptr<const Deleted>& sites, const std::function<void()>& done);
  /// Asks where there are several, and then does it.
  void askWhereSeveral(const ChosenSites& all, const QStringList& question, const std::function<void()>& action);
  void ask(const QStringList& question, bool destroys, const std::function<void()>& action);
  void write(const QString& what, const ChosenSites& sites, SiteWork::Piece piece, std::function<void()> done = {});

  Program& program_;
  SiteWork* work_;
  QWidget& window_;
  UndoList* undoList_;
  bool isAsking_ = false;
};

}  // namespace tarnwick
