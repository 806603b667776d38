// SPDX-License-Identifier: MIT
#pragma once

#include "base/text_in_parts.h"
#include "store/site_history.h"

namespace tarnwick {

/// How the sites stand, in the text form that Prometheus and its textfile collector read:
/// https://prometheus.io/docs/instrumenting/exposition_formats/. Raises DataAccessError.
TextInParts metricsText(SiteHistory& history);

}  // namespace tarnwick
