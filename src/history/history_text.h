// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "history/history_rule.h"

namespace tarnwick {

/// How a cell of a stripe is to be seen.
enum class CellState {
  unknown,  ///< nothing is known of it
  up,       ///< all the known time
  mostly,   ///< 95 per cent of it and more
  partly,
  down,  ///< all of it
};
CellState stateOf(const TimeSum& cell);

/// "#2e9c62": its colour in pages and pictures, on a light or dark ground. Up and down are those of the window's
/// stripes; a long stripe of which nothing is known yet stays in the background.
std::string_view colourOf(CellState state, bool dark = false);

/// "99.31 %", cut, not rounded: what was down for a second is no 100 %. "-" where nothing is known.
std::string uptimeText(std::optional<double> uptime);
/// "120 ms", "12.3 s"; "-" for nothing.
std::string tookText(std::optional<std::chrono::milliseconds> took);
/// "5 s", "20 min", "3 h 5 min", "2 d 4 h".
std::string lengthText(std::chrono::seconds length);

/// A block of a stripe in a terminal, one character wide: the lower, the worse; a dot where nothing is known.
std::string_view blockOf(const TimeSum& cell);

/// A stripe of a picture.
struct StripeOfPicture {
  std::string label;
  std::string uptime;
  std::vector<TimeSum> cells;
};
/// Them, one below the other, as SVG 1.1 with `title` above: each cell as wide as any, green, yellow, orange, red or
/// grey.
std::string stripesAsSvg(std::string_view title, const std::vector<StripeOfPicture>& stripes);

}  // namespace tarnwick
