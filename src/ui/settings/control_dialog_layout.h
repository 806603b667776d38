#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "ui/controls/byte_line_edit.h"

namespace tarnwick {

/// The settings dialog's controls; the dialog owns them. Each has its name as object name.
struct ControlDialogControls {
  ByteLineEdit* tEmail;
  ByteLineEdit* tSmtp;
  ByteLineEdit* tAudio;
  QPushButton* Command6;  ///< Browse for a sound
  QPushButton* Command7;  ///< Test the sound
  ByteLineEdit* tProgram;
  QPushButton* Command9;  ///< Browse for a program
  QPushButton* Command8;  ///< Test the program
  QListWidget* lbInterval;
  QCheckBox* cLogs;
  QCheckBox* cReports;
  QCheckBox* cEmail;
  QCheckBox* cAudio;
  QCheckBox* cProgram;
  QPushButton* Command1;  ///< OK
  QPushButton* Command2;  ///< Cancel

  QPushButton* Command3;  ///< Clear Logs
  QLabel* lblLogs;
  QPushButton* Command4;  ///< Compact Database
  QLabel* lblCompact;
  QPushButton* Command5;  ///< Create / View Report
  QLabel* lblReport;
};

/// Makes the controls of the settings dialog and lays them out: the settings with OK and Cancel at the top, the
/// administration functions below.
ControlDialogControls layOutControlDialog(QDialog& dialog);

}  // namespace tarnwick
