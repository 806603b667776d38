// SPDX-License-Identifier: MIT
#include "ui/main_window/site_row.h"

#include <charconv>

#include "store/site_table.h"
#include "ui/controls/colour_text.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {
namespace {

std::string cellOf(const TextTable& sites, std::size_t column, std::size_t row) {
  return textOrEmpty(sites.at(column, row));
}

}  // namespace

SiteRow readSiteRow(const TextTable& sites, std::size_t row, SiteColumns columns) {
  const std::string status = cellOf(sites, site_column::status, row);
  SiteRow::Shade shade = SiteRow::Shade::unjudged;
  if (sites.at(site_column::active, row) != "True") {
    shade = SiteRow::Shade::inactive;
  } else if (!status.empty()) {
    shade = status == "True" ? SiteRow::Shade::up : SiteRow::Shade::down;
  }
  SiteRow read{.shade = shade};
  if (!status.empty()) {
    read.status = status == "True";
  }
  const std::string interval = cellOf(sites, site_column::tInterval, row);
  std::from_chars(interval.data(), interval.data() + interval.size(), read.interval);
  read.cells.reserve(columns.size());
  for (const SiteColumn& column : columns) {
    read.cells.push_back(cellOf(sites, column.field, row));
  }
  return read;
}

std::optional<std::int16_t> siteIdOf(const SiteRow& row) {
  const std::string& text = row.cells[SiteGridModel::idColumn];
  std::int16_t id = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, id);
  return error == std::errc() && rest == end ? std::optional(id) : std::nullopt;
}

// The stored result, but for what only an option brings.
QColor colourOf(const SiteRow& row) {
  if (row.alarm.state == AlarmView::State::unknown && row.shade != SiteRow::Shade::inactive) {
    return colourFromText(colours::kOffline);
  }
  switch (row.shade) {
    case SiteRow::Shade::up:
      return colourFromText(row.alarm.state == AlarmView::State::slow ||
                                    row.alarm.state == AlarmView::State::certificate
                                ? colours::kWarning
                                : colours::kUp);
    case SiteRow::Shade::down:
      return colourFromText(colours::kDown);
    case SiteRow::Shade::inactive:
      return colourFromText(colours::kInactive);
    default:
      return colourFromText(colours::kUnpainted);
  }
}

QString resultOf(const SiteRow& row) {
  switch (row.shade) {
    case SiteRow::Shade::up:
      return SiteGridModel::tr("up");
    case SiteRow::Shade::down:
      return SiteGridModel::tr("down");
    case SiteRow::Shade::inactive:
      return SiteGridModel::tr("not active");
    default:
      return SiteGridModel::tr("not tested yet");
  }
}

SiteState stateOf(const SiteRow& row) {
  using State = AlarmView::State;
  if (row.shade != SiteRow::Shade::inactive && row.alarm.paused) {
    return SiteState::paused;
  }
  if (row.shade != SiteRow::Shade::inactive && row.alarm.state == State::unknown) {
    return SiteState::offline;
  }
  if ((row.shade == SiteRow::Shade::up || row.shade == SiteRow::Shade::down) && row.alarm.state == State::unsteady) {
    return SiteState::unsteady;
  }
  switch (row.shade) {
    case SiteRow::Shade::up:
      if (!row.fetched) {
        return SiteState::notAPage;
      }
      return row.alarm.state == State::certificate ? SiteState::certificate
             : row.alarm.state == State::slow      ? SiteState::slow
                                                   : SiteState::up;
    case SiteRow::Shade::down:
      if (row.alarm.state == State::unconfirmed) {
        return SiteState::unconfirmed;
      }
      if (row.alarm.state == State::known) {
        return SiteState::known;
      }
      return row.fetched ? SiteState::changed : SiteState::noAnswer;
    case SiteRow::Shade::inactive:
      return SiteState::inactive;
    default:
      return SiteState::never;
  }
}

QString wordOf(const SiteRow& row, bool testing) {
  const SiteState state = stateOf(row);
  return wordOf(state, testing, state == SiteState::certificate ? row.alarm.daysLeft.value_or(0) : row.alarm.failures,
                row.alarm.confirm);
}

}  // namespace tarnwick
