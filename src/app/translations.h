// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QStringList>

namespace tarnwick {

/// Has the window's texts translated into the user's language where one of the program's folders holds a translation,
/// `translations/tarnwick_<language>.qm`; otherwise they stay English. Called once, before the first window is made.
void loadTranslations(QApplication& application, const QStringList& folders);

}  // namespace tarnwick
