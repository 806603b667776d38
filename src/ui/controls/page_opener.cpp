// SPDX-License-Identifier: MIT
#include "ui/controls/page_opener.h"

#include <QObject>

namespace tarnwick {

void openPage(const Services& services, const std::string& target) {
  if (!services.opener.open(target)) {
    const QString text = QObject::tr("This desktop could not open the page. You find it at:");
    services.prompts.inform({.text = text.toStdString() + "\n\n" + target, .icon = PromptIcon::information});
  }
}

}  // namespace tarnwick
