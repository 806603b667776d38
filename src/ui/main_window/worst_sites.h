// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>
#include <QIcon>
#include <QString>

#include "ui/main_window/site_grid_model.h"

namespace tarnwick {

/// How the sites of the list stand, in short.
struct WorstSites {
  /// The worst state of any site that takes part in runs; `inactive` where none does.
  SiteState state = SiteState::inactive;
  std::size_t active = 0;
  /// Those that are down.
  std::size_t down = 0;
  /// Those in the worst state, where there is something to be told of them; else 0.
  std::size_t count = 0;
  /// The rows of those for which there is, the worst first, at most five.
  std::vector<int> rows{};

  bool operator==(const WorstSites&) const = default;
};

WorstSites worstSites(const SiteGridModel& sites);

/// "1 of 6 sites down".
QString summaryOf(const WorstSites& sites);

/// The state as an icon of its own: its shape on its colour and, where some sites are down, their number.
QIcon iconOf(const WorstSites& sites);
/// The shape alone, for a menu.
QIcon iconOf(SiteState state);

}  // namespace tarnwick
