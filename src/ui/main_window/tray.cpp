// SPDX-License-Identifier: MIT
#include "ui/main_window/tray.h"

#include <chrono>
#include <exception>
#include <utility>
#include <QApplication>

#include "base/product.h"
#include "store/site_pauses.h"
#include "ui/controls/boxes.h"

namespace tarnwick {
namespace {

constexpr std::chrono::milliseconds kSoon{300};
constexpr std::chrono::seconds kBetweenLooks{2};
constexpr qsizetype kLongestAddress = 60;

QString addressOf(const SiteGridModel& sites, int row) {
  QString address = sites.index(row, SiteGridModel::urlColumn).data().toString().simplified();
  address.remove(0, address.indexOf(QLatin1String("://")) < 0 ? 0 : address.indexOf(QLatin1String("://")) + 3);
  if (address.size() > kLongestAddress) {
    address = address.left(kLongestAddress) + QChar(0x2026);
  }
  return address.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

Tray::Tray(Program& program, SiteGridView& grid, const SiteGridModel& sites, std::unique_ptr<TrayIcon> icon,
           Actions actions, QObject* parent)
    : QObject(parent),
      program_(program),
      grid_(grid),
      sites_(sites),
      icon_(std::move(icon)),
      actions_(std::move(actions)) {
  makeMenu();
  icon_->setMenu(menu_);
  icon_->onClicked([this] { openWindow(); });
  soon_.setSingleShot(true);
  soon_.setInterval(kSoon);
  connect(&soon_, &QTimer::timeout, this, &Tray::refresh);
  connect(&sites, &QAbstractItemModel::modelReset, this, &Tray::look);
  connect(&sites, &QAbstractItemModel::dataChanged, this, &Tray::look);
  connect(&sites, &QAbstractItemModel::rowsInserted, this, &Tray::look);
  place_.setInterval(kBetweenLooks);
  connect(&place_, &QTimer::timeout, this, &Tray::watchPlace);
  look();
}

// The icon knows the menu.
Tray::~Tray() { icon_.reset(); }

void Tray::makeMenu() {
  menu_.setObjectName(QStringLiteral("trayMenu"));
  const auto add = [this](const char* name, const QString& caption, std::function<void()> action) {
    QAction* made =
        menu_.addAction(caption, this, [this, action = std::move(action)] { program_.faults().run(action); });
    made->setObjectName(QString::fromLatin1(name));
    return made;
  };
  summary_ = add("traySummary", QString(), [] {});
  summary_->setEnabled(false);
  for (std::size_t place = 0; place < worst_.size(); ++place) {
    worst_.at(place) = add(("traySite" + std::to_string(place)).c_str(), QString(), [this, place] {
      const std::int16_t idSite = static_cast<std::int16_t>(worst_.at(place)->data().toInt());
      openWindow();
      grid_.selectSite(idSite);
      grid_.setFocus();
      Q_EMIT grid_.detailsWanted(grid_.sites().rowOfSite(idSite));
    });
    worst_.at(place)->setVisible(false);
  }
  menu_.addSeparator();
  add("trayOpen", tr("Open %1").arg(QString::fromLatin1(kProductName)), [this] { openWindow(); });
  start_ = add("trayStart", tr("Start"), [this] { startOrStop(); });
  pause_ = add("trayPause", tr("Pause Alerts for 1 Hour"), [this] { pauseOrResume(); });
  outbox_ = add("trayOutbox", tr("Outbox…"), [this] {
    openWindow();
    actions_.outbox();
  });
  menu_.addSeparator();
  add("trayQuit", tr("Quit"), [this] { actions_.quit(); });
  connect(&menu_, &QMenu::aboutToShow, this, [this] {
    refresh();
    refreshOutbox();
  });
}

void Tray::look() {
  if (!soon_.isActive()) {
    soon_.start();
  }
}

void Tray::tellPaused(const std::optional<Pause>& pause) {
  isPaused_ = pause.has_value();
  look();
}

void Tray::refresh() {
  if (!program_.isOpen()) {
    return;
  }
  start_->setText(program_.run().running() ? tr("Stop") : tr("Start"));
  pause_->setText(isPaused_ ? tr("Resume Alerts") : tr("Pause Alerts for 1 Hour"));
  WorstSites sites = worstSites(sites_);
  showSites(sites);
  const bool isNew = !shown_ || shown_->state != sites.state || shown_->down != sites.down;
  if (isNew || shown_->active != sites.active) {
    icon_->show(iconOf(sites), QStringLiteral("%1: %2").arg(QString::fromLatin1(kProductName), summaryOf(sites)));
  }
  shown_ = std::move(sites);
}

void Tray::refreshOutbox() {
  try {
    const std::int64_t waiting = program_.data().outboxSummary().waiting;
    outbox_->setText(waiting > 0 ? tr("Outbox: %1 waiting…").arg(waiting) : tr("Outbox…"));
  } catch (const std::exception&) {
    // That the list cannot be read is told elsewhere.
  }
}

void Tray::showSites(const WorstSites& sites) {
  summary_->setText(summaryOf(sites));
  for (std::size_t place = 0; place < worst_.size(); ++place) {
    QAction& action = *worst_.at(place);
    const bool isUsed = place < sites.rows.size();
    action.setVisible(isUsed);
    if (!isUsed) {
      continue;
    }
    const int row = sites.rows[place];
    const QString address = addressOf(sites_, row);
    const int idSite = sites_.siteOfRow(row).value_or(0);
    const SiteState state = sites_.stateOfRow(row);
    // Desktops take the menu over their bus: nothing is sent that has not changed.
    if (action.text() != address || action.data().toInt() != idSite ||
        action.property("state").toInt() != static_cast<int>(state)) {
      action.setText(address);
      action.setData(idSite);
      action.setProperty("state", static_cast<int>(state));
      action.setIcon(iconOf(state));
    }
  }
}

void Tray::openWindow() {
  place_.stop();
  QApplication::setQuitOnLastWindowClosed(true);
  grid_.window()->show();
  bringToFront(*grid_.window());
}

void Tray::hideWindow() {
  // A box that is closed meanwhile is the last window then.
  QApplication::setQuitOnLastWindowClosed(false);
  grid_.window()->hide();
  place_.start();
}

void Tray::watchPlace() {
  if (!icon_->isThere()) {
    openWindow();
  }
}

void Tray::startOrStop() {
  program_.run().running() ? program_.stopRun() : static_cast<void>(program_.startRun());
  refresh();
}

void Tray::pauseOrResume() {
  SitePauses pauses(program_.data().database(), program_.data());
  const LocalTime now = program_.services().clock.localNow();
  isPaused_ ? pauses.resumeAll() : pauses.pauseAll({true, now + std::chrono::hours(1)}, now);
  program_.run().init();
}

}  // namespace tarnwick
