// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>
#include <QDialog>

#include "program/program.h"
#include "store/settings_and_log.h"
#include "ui/controls/boxes.h"
#include "ui/settings/control_dialog_layout.h"

namespace tarnwick {

/// The form `frmControl`: the settings, and the functions that look after the data: clear the log, compact the
/// database, create and view the report. Not modal; a run goes on behind it. It takes itself down when it is closed.
class ControlDialog final : public QDialog, public UnsavedEdits {
  Q_OBJECT

 public:
  /// Fills the controls from the stored settings; raises DataAccessError. `program` outlives the dialog. `parent` is
  /// the main window. `habits` outlives the dialog; null where nothing can be kept of the user's.
  ControlDialog(Program& program, QWidget* parent, UserHabits* habits = nullptr);

  /// Fills the controls from the stored settings. Raises DataAccessError.
  void populateMe();

  /// Shows the dialog, or brings it to the front with all that was typed.
  void showInFront();
  /// The same on that channel.
  void showChannel(std::int64_t idChannel);

  QString unsavedEdits() const override;

  /// Cancel.
  void reject() override;

 private:
  void Form_Load();
  void connectButtons();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();
  void Command6_Click();
  void Command7_Click();
  void Command8_Click();
  void Command9_Click();

  /// Runs an administration function and shows in its label that it goes on, or has failed.
  void administrate(QLabel& status, const std::function<void()>& action);
  /// The same once the user agrees; a box tells what `action` says of its outcome.
  void administrateIf(QLabel& status, Message question, const std::function<std::string()>& action);
  std::vector<Setting> shownSettings() const;
  void chooseFileInto(ByteLineEdit& text, const std::string& filter);
  void storeSettings();
  void unload(DialogCode result);

  Program& program_;
  ControlDialogControls controls_;
  std::vector<Setting> loaded_;  // what the controls made of the stored settings
};

/// Opens the one settings dialog of `program`, above `parent`; made when it is first needed.
std::function<void()> settingsDialogOf(Program& program, QWidget& parent, UserHabits* habits = nullptr);
/// Opens the same on a channel.
std::function<void(std::int64_t idChannel)> channelSettingsOf(Program& program, QWidget& parent,
                                                              UserHabits* habits = nullptr);

}  // namespace tarnwick
