// SPDX-License-Identifier: MIT
#include "platform/desktop/file_filters.h"

namespace tarnwick {

QStringList furtherNameFilters() { return {}; }

}  // namespace tarnwick
