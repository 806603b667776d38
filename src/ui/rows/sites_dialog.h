// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "program/program.h"
#include "program/site_changes.h"
#include "ui/controls/sliced_work.h"
#include "ui/rows/chosen_sites.h"

namespace tarnwick {

/// A dialog that changes something of several sites. It shows of how many what is chosen in it would change something,
/// and of how many not; those are changed when the user agrees. Not modal.
class SitesDialog : public QDialog {
  Q_OBJECT

 public:
  /// `program` outlives the dialog.
  SitesDialog(Program& program, const ChosenSites& sites, const char* name, QWidget* window);

 Q_SIGNALS:
  /// The user agrees.
  void agreed(const std::vector<std::int16_t>& ids, const tarnwick::SiteChanges& changes);

 protected:
  Program& program() { return program_; }
  const ChosenSites& sites() const { return sites_; }
  /// Where the controls go, above the preview.
  QVBoxLayout& place() { return *place_; }
  /// These would be made now.
  void propose(SiteChanges changes);
  /// The title, by the number of sites.
  void setTitle(const QString& ofOne, const QString& ofSeveral);

 private:
  void plan();
  void tellPlan();

  Program& program_;
  const ChosenSites sites_;
  SiteChanges changes_;
  std::vector<std::int16_t> changed_;
  std::size_t next_ = 0;
  QTimer soon_;
  QVBoxLayout* place_;
  QLabel* preview_;
  QPushButton* ok_;
  // Reads for the members above, so it goes before them.
  std::unique_ptr<SlicedWork> work_;
};

}  // namespace tarnwick
