// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace tarnwick {

/// What a file dialog offers on this system when `asked` is asked for: the first one is chosen at first.
QStringList offeredFilters(const QStringList& asked);

}  // namespace tarnwick
