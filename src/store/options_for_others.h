// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tarnwick::option_name {

/// What a run writes for others.
inline constexpr std::string_view monthReport = "monthReport";
inline constexpr std::string_view statusPage = "statusPage";
inline constexpr std::string_view metricsFile = "metricsFile";

}  // namespace tarnwick::option_name
