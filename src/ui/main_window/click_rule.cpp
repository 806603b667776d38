// SPDX-License-Identifier: MIT
#include "ui/main_window/click_rule.h"

#include <QActionGroup>

namespace tarnwick {

ClickRule::ClickRule(SiteGridView& grid, QMenu& menu, QObject* parent)
    : QObject(parent), grid_(grid), kept_("listClick", [this] { return shows_->isChecked() ? 1 : 0; }) {
  auto* one = new QActionGroup(this);
  opens_ = one->addAction(add(menu, "clickOpens", tr("&Opens the Site"), SiteGridView::Click::opensSite));
  shows_ = one->addAction(add(menu, "clickShows", tr("&Shows What Changed"), SiteGridView::Click::showsDetails));
  shows_->setToolTip(tr("Then a double click and Enter open the site"));
  menu.setToolTipsVisible(true);
  opens_->setChecked(true);
}

QAction* ClickRule::add(QMenu& menu, const char* name, const QString& caption, SiteGridView::Click click) {
  QAction* entry = menu.addAction(caption);
  entry->setObjectName(QString::fromLatin1(name));
  entry->setCheckable(true);
  connect(entry, &QAction::toggled, this, [this, click](bool isChecked) {
    if (isChecked) {
      grid_.setClick(click);
      kept_.change();
    }
  });
  return entry;
}

void ClickRule::rememberIn(UserHabits& habits) {
  if (kept_.keepIn(habits) == 1) {
    shows_->setChecked(true);
  }
}

}  // namespace tarnwick
