// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include "ui/controls/field_control.h"
#include "ui/controls/option_form.h"
#include "ui/settings/channels_page.h"
#include "ui/settings/mail_way_hint.h"
#include "ui/settings/pause_page.h"
#include "ui/settings/window_frame.h"

namespace tarnwick {

/// The settings dialog's controls; the dialog owns them. Each has its name as object name.
struct ControlDialogControls {
  /// Each setting, in the order in which they are stored.
  std::vector<FieldControl> settings;
  ByteLineEdit* tEmail;
  ByteLineEdit* tAudio;
  QPushButton* Command6;  ///< Browse for a sound
  QPushButton* Command7;  ///< Test the sound
  ByteLineEdit* tProgram;
  QPushButton* Command9;  ///< Browse for a program
  QPushButton* Command8;  ///< Test the program
  QListWidget* lbInterval;
  QLabel* lblTimeout;     ///< what is stored, or holds, while no time-out is selected
  QPushButton* Command1;  ///< OK
  QPushButton* Command2;  ///< Cancel

  MailWayHint* mailWay;

  QTabWidget* pages;  ///< General, Defaults, Channels, Pause
  OptionForm* defaults;
  ChannelsPage* channels;
  PausePage* pause;
  WindowFrame* window;  ///< null where nothing can be kept of the user's
  /// OK and Cancel of each page behind the first one.
  std::vector<QPushButton*> btnOks;
  std::vector<QPushButton*> btnCancels;

  QPushButton* Command3;  ///< Clear Logs
  QLabel* lblLogs;
  QPushButton* Command4;  ///< Compact Database
  QLabel* lblCompact;
  QPushButton* Command5;  ///< Create / View Report
  QLabel* lblReport;
};

/// Makes the controls of the settings dialog and lays them out: on the first page the settings with OK and Cancel at
/// the top, the administration functions below; on the second one the options for all sites, on the third one
/// the ways by which alerts leave, on the fourth one when it is quiet.
/// `habits`: null where nothing can be kept of the user's.
ControlDialogControls layOutControlDialog(QDialog& dialog, Program& program, UserHabits* habits);

/// Tells under the list of time-outs, while none is selected, what is stored; where that is nothing, what holds.
void tellStoredTimeout(const ControlDialogControls& controls, const QString& stored);

}  // namespace tarnwick
