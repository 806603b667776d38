// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "store/site_history.h"

namespace tarnwick {

/// How the sites stand, in the text form that Prometheus and its textfile collector read:
/// https://prometheus.io/docs/instrumenting/exposition_formats/. Raises DataAccessError.
std::string metricsText(SiteHistory& history);

}  // namespace tarnwick
