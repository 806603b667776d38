// SPDX-License-Identifier: MIT
#include <QObject>

#include "platform/desktop/file_filters.h"

namespace tarnwick {

// A file's ending does not tell what it is: a program seldom has one.
QStringList furtherNameFilters() { return {QObject::tr("All Files (*)")}; }

}  // namespace tarnwick
