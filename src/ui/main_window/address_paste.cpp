// SPDX-License-Identifier: MIT
#include "ui/main_window/address_paste.h"

#include <utility>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QShortcut>

namespace tarnwick {

void followAddresses(SiteGridView& grid, QAction& entry, std::function<void(const QString& text)> take) {
  QObject::connect(&entry, &QAction::triggered, &grid, [&grid] {
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    Q_EMIT grid.addressesGiven(data == nullptr ? QString() : SiteGridView::addressesIn(*data));
  });
  // In a text the keys are the text's own.
  QObject::connect(new QShortcut(QKeySequence::Paste, &grid, nullptr, nullptr, Qt::WidgetShortcut),
                   &QShortcut::activated, &entry, &QAction::trigger);
  QObject::connect(&grid, &SiteGridView::addressesGiven, &entry, [&entry, take = std::move(take)](const QString& text) {
    if (entry.isEnabled()) {
      take(text);
    }
  });
}

}  // namespace tarnwick
