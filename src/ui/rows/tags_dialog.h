// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "ui/rows/sites_dialog.h"

namespace tarnwick {

/// The dialog `frmTags`: which tags the chosen sites have. What some of them have, and some not, stays so unless it is
/// touched.
class TagsDialog final : public SitesDialog {
  Q_OBJECT

 public:
  /// Raises DataAccessError.
  TagsDialog(Program& program, const ChosenSites& sites, QWidget* window);

 private:
  void fill();
  void addItem(const QString& tag, Qt::CheckState state);
  void addTyped();
  void look();

  QListWidget* tags_;
  QLineEdit* typed_;
  QPushButton* add_;
  QLabel* fault_;
};

}  // namespace tarnwick
