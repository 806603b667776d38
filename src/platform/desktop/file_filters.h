// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace tarnwick {

/// What a file dialog offers beside the kinds of files that it asks for.
QStringList furtherNameFilters();

}  // namespace tarnwick
