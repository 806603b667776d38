// SPDX-License-Identifier: MIT
#include "ui/main_window/column_choice.h"

#include <QCoreApplication>
#include <QHeaderView>

namespace tarnwick {
namespace {

/// A bit for each column, from the first on.
constexpr const char* kColumns = "listColumns";

}  // namespace

ColumnChoice::ColumnChoice(SiteExtras& extras, SiteGridView& grid, QMenu& menu, QObject* parent)
    : QObject(parent), extras_(extras), grid_(grid), menu_(menu), kept_(kColumns, [this] { return bits(); }) {
  std::size_t extra = 0;
  for (const ExtraColumn& column : extraColumns()) {
    QAction* entry = menu_.addAction(QCoreApplication::translate("tarnwick::ExtraColumns", column.header));
    entry->setObjectName(QString::fromLatin1(column.name));
    entry->setToolTip(QCoreApplication::translate("tarnwick::ExtraColumns", column.hint));
    entry->setCheckable(true);
    connect(entry, &QAction::toggled, this, [this, extra](bool isChecked) { show(extra, isChecked); });
    entries_.push_back(entry);
    ++extra;
  }
  menu_.setToolTipsVisible(true);
  menu_.addSeparator();
  menu_.addAction(tr("&Original Columns"), this, &ColumnChoice::showNone)
      ->setObjectName(QStringLiteral("originalColumns"));
  QHeaderView& header = *grid_.horizontalHeader();
  header.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&header, &QWidget::customContextMenuRequested, this,
          [this, &header](const QPoint& place) { menu_.popup(header.viewport()->mapToGlobal(place)); });
  connect(&extras_, &SiteExtras::changed, &grid_, &SiteGridView::repaintExtraColumns);
}

void ColumnChoice::show(std::size_t extra, bool isShown) {
  grid_.showExtraColumn(extra, isShown);
  extras_.show(shown());
  kept_.change();
}

void ColumnChoice::showNone() {
  for (QAction* entry : entries_) {
    entry->setChecked(false);
  }
}

std::set<std::size_t> ColumnChoice::shown() const {
  std::set<std::size_t> shown;
  for (std::size_t extra = 0; extra < entries_.size(); ++extra) {
    if (entries_[extra]->isChecked()) {
      shown.insert(extra);
    }
  }
  return shown;
}

void ColumnChoice::rememberIn(UserHabits& habits) {
  const auto bits = static_cast<unsigned>(kept_.keepIn(habits).value_or(0));
  for (std::size_t extra = 0; extra < entries_.size(); ++extra) {
    entries_[extra]->setChecked((bits >> extra & 1U) != 0);
  }
}

int ColumnChoice::bits() const {
  unsigned bits = 0;
  for (const std::size_t extra : shown()) {
    bits |= 1U << extra;
  }
  return static_cast<int>(bits);
}

}  // namespace tarnwick
