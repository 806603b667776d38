// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include "base/wording.h"

namespace tarnwick {

/// Has the texts of the program translated into the user's language where the folder of the executable holds a
/// translation, `translations/tarnwick_<language>.qm`; otherwise they stay English. Called before anything is shown.
/// LC_ALL that is C or POSIX asks for English, whatever else is set. The window asks the application for them, that of
/// kMessages by any message as it was worded; a terminal takes what is returned.
Wording loadTranslations(QCoreApplication& application, const QString& executableFolder);

}  // namespace tarnwick
