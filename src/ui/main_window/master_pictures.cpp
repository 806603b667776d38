// SPDX-License-Identifier: MIT
#include "ui/main_window/master_pictures.h"

#include <QApplication>
#include <QIcon>

#include "platform/prompts.h"
#include "ui/controls/program_file.h"

namespace tarnwick {

void loadPictures(const MasterControls& controls, const std::string& programFolder) {
  const auto fileOf = [&](const QString& name) { return programFile(programFolder, name); };
  const auto load = [&](PictureButton& image, const QString& path, const char* word) {
    image.text() == QLatin1String(word)
        ? image.loadPictures(fileOf(path + QStringLiteral(".bmp")), fileOf(path + QStringLiteral("h.bmp")))
        : image.loadPictures(fileOf(path + QStringLiteral("-released.png")),
                             fileOf(path + QStringLiteral("-pressed.png")), true);
  };
  load(*controls.start.image, QStringLiteral("/images/start"), "Start");
  load(*controls.stop.image, QStringLiteral("/images/stop"), "Stop");
  load(*controls.makeNew.image, QStringLiteral("/images/new"), "New");
  load(*controls.setup.image, QStringLiteral("/images/setup"), "Setup");
  load(*controls.imgLogoSmall, QStringLiteral("/images/logosmall"), kProductName);
  // Boxes that come up before this window bear it too.
  QApplication::setWindowIcon(QIcon(fileOf(QStringLiteral("/images/tarnwick.png"))));
}

}  // namespace tarnwick
