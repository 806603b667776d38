// SPDX-License-Identifier: MIT
#include <QObject>

#include "platform/desktop/file_filters.h"

namespace tarnwick {

// A file's ending does not tell what it is: a program seldom has one, and those that are asked for are another
// system's.
QStringList offeredFilters(const QStringList& asked) {
  const bool programs = asked.join(QLatin1Char(' ')).contains(QStringLiteral("*.exe"));
  const QStringList all{programs ? QObject::tr("Programs (*)") : QObject::tr("All Files (*)")};
  return programs ? all + asked : asked + all;
}

}  // namespace tarnwick
