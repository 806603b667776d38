// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

#include "ui/rows/sites_dialog.h"

namespace tarnwick {

/// The dialog `frmChangeSites`: how often the chosen sites are checked, whether runs check them, and when somebody is
/// told. What is not touched stays as it is.
class ChangeDialog final : public SitesDialog {
  Q_OBJECT

 public:
  ChangeDialog(Program& program, const ChosenSites& sites, QWidget* window);

 private:
  void look();

  QCheckBox* changesInterval_;
  QSpinBox* interval_;
  QComboBox* active_;
  QComboBox* alarm_;
};

}  // namespace tarnwick
