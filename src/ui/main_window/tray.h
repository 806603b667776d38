// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <QAction>
#include <QMenu>
#include <QObject>
#include <QTimer>

#include "program/program.h"
#include "store/alarm_values.h"
#include "ui/main_window/site_grid_view.h"
#include "ui/main_window/tray_icon.h"
#include "ui/main_window/worst_sites.h"

namespace tarnwick {

/// The program's icon beside the clock of the desktop: it tells the worst state of all sites, and its menu does what
/// one wants done without opening the window.
class Tray final : public QObject {
  Q_OBJECT

 public:
  /// What the menu has done elsewhere.
  struct Actions {
    std::function<void()> outbox;
    std::function<void()> quit;
  };

  /// `program` is asked for nothing before the first event; it and `grid` outlive this object's events.
  Tray(Program& program, SiteGridView& grid, const SiteGridModel& sites, std::unique_ptr<TrayIcon> icon,
       Actions actions, QObject* parent);
  ~Tray() override;

  bool isThere() const { return icon_->isThere(); }
  /// What it shows may not be so any more.
  void look();
  /// Tells for how long all alerts are paused; nothing: they are not.
  void tellPaused(const std::optional<Pause>& pause);
  /// Takes the window away until somebody asks for it by the icon, or the icon's place is gone.
  void hideWindow();

  QMenu& menu() { return menu_; }

 private:
  void makeMenu();
  void refresh();
  void refreshOutbox();
  void showSites(const WorstSites& sites);
  void openWindow();
  void startOrStop();
  void pauseOrResume();
  void watchPlace();

  Program& program_;
  SiteGridView& grid_;
  const SiteGridModel& sites_;
  std::unique_ptr<TrayIcon> icon_;
  Actions actions_;
  QMenu menu_;
  QAction* summary_ = nullptr;
  std::array<QAction*, 5> worst_{};
  QAction* start_ = nullptr;
  QAction* pause_ = nullptr;
  QAction* outbox_ = nullptr;
  QTimer soon_;
  QTimer place_;
  bool isPaused_ = false;
  std::optional<WorstSites> shown_;
};

}  // namespace tarnwick
