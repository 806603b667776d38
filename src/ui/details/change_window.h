// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <QDialog>

#include "program/program.h"
#include "ui/details/difference_panel.h"
#include "ui/details/site_settling.h"

namespace tarnwick {

/// What has changed at a site, in a window of its own, with the way to accept it. Esc closes it.
class ChangeWindow final : public QDialog {
  Q_OBJECT

 public:
  /// Both outlive the window.
  ChangeWindow(Program& program, SiteSettling& settling, QWidget* parent);

  void showSite(std::int16_t idSite);

  void done(int result) override;

 private:
  Program& program_;
  std::int16_t idSite_ = 0;
  QLabel* headline_;
  DifferencePanel* panel_;
  QPushButton* accept_;
};

/// Opens that window on a site, or brings the one that is open to it.
void openChangeWindow(Program& program, SiteSettling& settling, QWidget& parent, std::int16_t idSite);

}  // namespace tarnwick
