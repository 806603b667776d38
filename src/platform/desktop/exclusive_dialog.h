// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace tarnwick {

/// Shows `dialog` and returns its result when the user has closed it. Meanwhile the program's other windows take no
/// input, with one exception that a modal dialog would not allow: the main window can still be closed, and so the
/// program ended. The dialog is then rejected. It may be gone on return, with the window before which it stood: a pass
/// that begins meanwhile can outlast it.
int runExclusively(QDialog& dialog);

}  // namespace tarnwick
