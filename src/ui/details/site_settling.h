// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>
#include <QObject>
#include <QWidget>

#include "program/program.h"

namespace tarnwick {

/// Settles what has changed at a site, as its user wants it. Failures end in a box.
class SiteSettling final : public QObject {
  Q_OBJECT

 public:
  /// `program` outlives the events of `window`, which the dialogs belong to.
  SiteSettling(Program& program, QWidget& window, QObject* parent);

  /// Shows the page of its latest check, to be taken as the baseline, or beside it. Says so where there is none.
  void accept(std::int16_t idSite, bool beside = false);
  /// Puts the baselines back that were replaced last.
  void undoAccept(const std::vector<std::int16_t>& ids);
  /// Nothing is said of the site while exactly this page stays.
  void acknowledge(std::int16_t idSite, const std::string& page);
  void alarmAgain(std::int16_t idSite);

  /// Shows the list as it is now, with a site that stands otherwise; 0 for several.
  void finish(std::int16_t idSite);

 Q_SIGNALS:
  /// The site stands otherwise; 0: several do.
  void settled(std::int16_t idSite);
  /// Pages became the baselines of these, which can be undone.
  void accepted(const std::vector<std::int16_t>& ids);

 private:
  Program& program_;
  QWidget& window_;
};

}  // namespace tarnwick
