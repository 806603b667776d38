// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>

#include "ui/controls/field_control.h"
#include "ui/controls/option_form.h"
#include "ui/site/post_var_model.h"

namespace tarnwick {

/// The site editor's controls; the dialog owns them. Each has its name as object name.
struct SiteEditorControls {
  QGroupBox* Frame1;  ///< the site
  /// Each field of the site.
  std::vector<FieldControl> fields;
  ByteLineEdit* tUrl;
  ByteLineEdit* tUsername;
  ByteLineEdit* tPassword;
  QRadioButton* tGet;
  QRadioButton* tPost;
  QCheckBox* tActive;
  QListWidget* lbInterval;
  QPushButton* Command9;  ///< Visit

  QTableView* grid1;  ///< the POST variables
  QLineEdit* pvName;
  QLineEdit* pvValue;
  QPushButton* Command4;  ///< Add POST Variable
  QPushButton* Command5;  ///< Clear POST Variables

  QCheckBox* cEmail;
  ByteLineEdit* tEmail;
  QCheckBox* cPager;
  QLineEdit* tPager;

  QTabWidget* pages;  ///< Site, Alarm
  OptionForm* options;

  QPushButton* Command1;  ///< OK
  QPushButton* Command3;  ///< Apply
  QPushButton* Command2;  ///< Content
  QPushButton* Command6;  ///< Delete
  QPushButton* counters;  ///< its object name is Command7
  QPushButton* Command8;  ///< Cancel
};

/// Makes the controls of the site editor and lays them out: on the first page the site with its alerts on the left, the
/// POST variables on the right; on the second one when somebody is told; the buttons below both.
SiteEditorControls layOutSiteEditor(QDialog& dialog, PostVarModel& postVars, Program& program);

/// Tells below the editor's controls why its site is down, in a label `lReason`; an empty text takes that away.
void showReason(QDialog& dialog, const std::string& reason);

}  // namespace tarnwick
