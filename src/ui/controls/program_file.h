// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <QString>

namespace tarnwick {

/// The path of a file of the program's own, a picture or the help, as "/images/start.bmp": the one beside the
/// executable, as new as the program is, and where there is none the one in the program folder.
QString programFile(const std::string& programFolder, const QString& name);

}  // namespace tarnwick
