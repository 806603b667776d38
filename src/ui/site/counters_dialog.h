// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <QDialog>

#include "program/program.h"

namespace tarnwick {

/// The form `frmCounters`: sets the counters of one site, or of all sites, to 0. Its title bar has no close action;
/// Escape cancels.
class CountersDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `program` outlives the form. `siteEditor` is the window below it.
  CountersDialog(Program& program, QWidget* siteEditor);

  /// The site whose counters "Clear This Site's Counter" clears; 0 until it is set.
  std::int16_t idSite = 0;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void layOut();
  void Form_Load();
  void btnClearSite_Click();
  void btnClearAll_Click();
  void btnCancel_Click();

  Program& program_;
};

}  // namespace tarnwick
