// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/history_view.h"

// What the pages for others are made of: HTML and CSS in one file, in light and dark, without a script.
namespace tarnwick::page_parts {

/// Text as it may stand in an element or an attribute.
std::string escaped(std::string_view text);

/// "2026-11-23 09:50", as the clock on the wall shows it.
std::string minuteText(Moment moment);

/// A whole page: title, and what stands in its body.
std::string page(std::string_view title, std::string_view body);

/// The cells of a period side by side. Each that is not up all the time says when it was, and what was down then; the
/// causes only where they are wanted.
enum class Causes { told, untold };
std::string stripe(const PeriodView& view, const std::vector<Outage>& outages, Causes causes);

/// What the colours mean.
std::string legend();

}  // namespace tarnwick::page_parts
