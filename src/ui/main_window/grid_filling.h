// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <QObject>
#include <QTimer>

#include "program/program.h"
#include "ui/main_window/site_grid_view.h"
#include "ui/main_window/site_rows.h"

namespace tarnwick {

/// Fills the list with the sites that are stored. A list of some thousand sites is there at once; a longer one is read
/// in slices between the events, while what was shown stays and can be used, and takes its place when it is whole.
class GridFilling final : public QObject {
  Q_OBJECT

 public:
  /// `program` is asked for nothing before one of the calls below; it and `grid` outlive this object.
  GridFilling(Program& program, SiteGridView& grid, QObject* parent);

  /// Begins anew. Raises DataAccessError.
  void begin();
  /// Whether a list is being read.
  bool goesOn() const { return soon_.isActive(); }
  /// The site has changed meanwhile: it is read again before the list is shown.
  void renew(std::int16_t idSite);

 Q_SIGNALS:
  /// A list that was read in slices is shown.
  void ended();

 private:
  void goOn();
  void readMore();
  void renewSome();
  /// Adds some sites; false when they are the last ones.
  bool take(const TextTable& sites, std::size_t most);
  void show();

  Program& program_;
  SiteGridView& grid_;
  QTimer soon_;
  SiteRows read_;
  std::optional<std::int64_t> last_;  // of those that were read; nothing when these are all
  std::set<std::int16_t> changed_;
};

}  // namespace tarnwick
