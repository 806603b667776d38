// SPDX-License-Identifier: MIT
#include "ui/controls/page_opener.h"

#include <QObject>

#include "base/text.h"
#include "base/visible_text.h"
#include "platform/address.h"

namespace tarnwick {
namespace {

void tellWhere(const Services& services, const std::string& target, QWidget* owner) {
  const QString text = QObject::tr("This desktop could not open the page. You find it at:");
  services.prompts.inform(
      {.text = text.toStdString() + "\n\n" + target, .icon = PromptIcon::information, .owner = owner});
}

}  // namespace

void openPage(const Services& services, const std::string& path) {
  if (!services.opener.openFile(path)) {
    tellWhere(services, path, nullptr);
  }
}

void visitPage(const Services& services, const std::string& address, QWidget* owner) {
  const auto page = parseAddress(address);
  if (!page || !isFetchedScheme(page->scheme)) {
    const QString text = QObject::tr("This is not the address of a web page. One looks like https://example.org/page.");
    const std::string given = visibleText(trimmed(address));
    services.prompts.inform({.text = text.toStdString() + (given.empty() ? "" : "\n\n" + given), .owner = owner});
  } else if (!services.opener.openAddress(page->url)) {
    tellWhere(services, page->url, owner);
  }
}

}  // namespace tarnwick
