// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <QMainWindow>

#include "engine/run_view.h"
#include "platform/services.h"
#include "program/program.h"
#include "ui/controls/site_editing.h"
#include "ui/main_window/alarm_marks.h"
#include "ui/main_window/details_area.h"
#include "ui/main_window/master_layout.h"
#include "ui/main_window/notices.h"
#include "ui/main_window/site_grid_model.h"
#include "ui/main_window/tray.h"

namespace tarnwick {

class ClickRule;
class ColumnChoice;
class FirstSteps;
class GridFilling;
class SiteExtras;
class SiteMenu;

/// The windows that edit what the main window shows. What is empty is not offered to the user.
struct Editors {
  SiteEditing site;
  /// Opens the settings.
  std::function<void()> settings;
  /// Lets the user choose a file whose sites come into the list.
  std::function<void()> importList{};
  /// Shows the alerts that are on their way.
  std::function<void()> outbox{};
  /// Opens the settings on the channels.
  std::function<void()> channels{};
  /// Adds the addresses of a text, one a line, when the user agrees.
  std::function<void(const QString& text)> addAddresses{};
  /// Lets the user choose a file that the list is written to.
  std::function<void()> exportList{};
};

/// The main window, the only one that stands as long as the program runs: the list of sites, the lamps of the run, its
/// clock, the status line and the buttons. Closing it ends the program. It owns the program and shows its run.
class Master final : public QMainWindow, public RunView {
  Q_OBJECT

 public:
  /// Opens nothing yet; what `services` refers to outlives the window, and so does `fields`, what can be set.
  Master(std::string programFolder, const Services& services, const Fields& fields = programFields());
  ~Master() override;

  /// Shows the window and starts the program; a failure is shown in one box. False when it failed: the window is hidden
  /// again then. It may be loaded later when the user puts a copy in the place of a damaged list.
  bool load();
  bool isLoaded() const { return loaded_; }

  Program& program() { return program_; }
  /// Sets what a click on a row, "New" and "Setup" open.
  void setEditors(Editors editors);

  /// Shows the worst state of the sites in the desktop's tray, if there is one. `closesTo` tells, while the tray is
  /// there, whether closing the window only takes it away; else closing it ends the program, always.
  void useTray(std::unique_ptr<TrayIcon> icon, std::function<bool()> closesTo);
  /// Has what is remembered of the window's looks be kept there. `habits` outlives the window.
  void rememberIn(UserHabits& habits);
  /// Ends the program as closing the window does where there is no tray.
  void quit();

  // What the run shows.
  void setCaption(const std::string& caption) override;
  void fillGrid() override;
  void showStatus(const std::string& text) override;
  void indicators(RunState state) override;
  void blinkLamps() override;
  void showClock(const std::string& text) override;
  std::int64_t fullProgressWidth() override;
  void setProgressWidth(std::int64_t width) override;
  void brighten(std::int16_t idSite, int amount) override { sites_.brighten(idSite, amount); }
  void unbrighten(std::int16_t idSite) override;
  void updateGridRow(std::int16_t idSite, bool passed) override;
  void showResult(const CheckResult& result) override;
  void showOffline(std::optional<LocalTime> since) override;
  void showHeartbeat(const std::string&) override { notices_->look(); }
  void showLostMail(const LostMail& mail) override { notices_->add(mail); }
  void setLastChecked(std::int16_t idSite, const std::string& dateTime) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Form_Load();
  void fullInit();
  /// The product's notice, which names the folder of the data where that is not the program's own.
  void tellNotice();
  void setupGridHeader();
  void connectControls();
  void connectAction(const ActionControls& action, const QKeySequence& shortcut, void (Master::*handler)());
  /// The path of a file in the program folder.
  QString fileOf(const QString& name) const;

  void btnStart_Click();
  void btnStop_Click();
  void btnNew_Click();
  void btnSetup_Click();
  void grid1_Click(int row);
  void Label1_Click();
  void imgLogoSmall_Click();

  /// Why a site is down; empty where that cannot be read, which is told elsewhere.
  QString reasonOf(std::int16_t idSite);
  std::int16_t addSite();

  SiteGridModel sites_;
  MasterControls controls_{};
  Notices* notices_ = nullptr;  // the window's own
  GridFilling* filling_ = nullptr;
  AlarmMarks* marks_ = nullptr;
  SiteExtras* extras_ = nullptr;
  ColumnChoice* columns_ = nullptr;
  ClickRule* click_ = nullptr;
  SiteSearch* search_ = nullptr;
  DetailsArea* details_ = nullptr;
  SiteMenu* menu_ = nullptr;
  FirstSteps* steps_ = nullptr;
  bool loaded_ = false;
  RunState state_ = RunState::stop;
  Editors editors_;
  // Whether the user is being asked, or has agreed, to lose what is not stored. Closing the window once more is a Yes.
  bool mayLose_ = false;
  // The icon in the tray, where one is used, and whether closing the window leaves the program there.
  Tray* tray_ = nullptr;
  std::function<bool()> closesToTray_;
  bool quits_ = false;
  // The run shows itself in the controls, so it goes before them.
  Program program_;
};

}  // namespace tarnwick
