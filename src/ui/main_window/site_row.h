// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>
#include <QColor>
#include <QString>

#include "engine/alarm_view.h"
#include "store/text_table.h"
#include "ui/main_window/site_columns.h"
#include "ui/main_window/site_state.h"

namespace tarnwick {

/// What the list knows of one site.
struct SiteRow {
  enum class Shade { unjudged, up, down, inactive };

  /// What is seen of the site's alarm.
  struct Alarm {
    AlarmView::State state = AlarmView::State::none;
    bool paused = false;
    int failures = 0;
    int confirm = 1;
    std::optional<LocalTime> since{};
    bool rests = false;             ///< it is not checked in these hours
    std::optional<int> daysLeft{};  ///< of a certificate that ends soon
    bool slow = false;
    bool acknowledged = false;

    bool operator==(const Alarm&) const = default;
  };

  std::vector<std::string> cells{};  ///< one a column
  Shade shade = Shade::unjudged;
  std::optional<bool> status{};  ///< the stored result, also of one that is not active
  bool fetched = true;           ///< the last check brought a page
  Alarm alarm{};
  std::int64_t interval = 0;  ///< in minutes
};

/// The site of a row of a site table; a column is one of `columns`.
SiteRow readSiteRow(const TextTable& sites, std::size_t row, SiteColumns columns);

/// The number of its site; nothing where that is no number of 16 bits.
std::optional<std::int16_t> siteIdOf(const SiteRow& row);

QColor colourOf(const SiteRow& row);
SiteState stateOf(const SiteRow& row);
/// The state in a word or two.
QString wordOf(const SiteRow& row, bool testing);
/// The stored result in a word.
QString resultOf(const SiteRow& row);

}  // namespace tarnwick
