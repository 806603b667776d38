// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <QDialog>
#include <QLabel>
#include <QRadioButton>

#include "engine/settling.h"
#include "program/program.h"
#include "ui/details/difference_panel.h"

namespace tarnwick {

/// Shows the page of a site's latest check beside its baseline, and takes exactly what it shows: in place of the
/// baseline, or beside it. Where the page looks like none that is wanted it says so, and Enter takes nothing.
class AcceptDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `accepted` follows what was taken. `program` outlives the dialog. REQUIRES: `canBeAccepted(found)`.
  AcceptDialog(Program& program, std::int16_t idSite, ToSettle found, bool beside,
               std::function<void(AcceptAs)> accepted, QWidget* parent);

  void done(int result) override;

 private:
  void layOut(bool beside);
  void tellSize();
  void take();

  Program& program_;
  std::int16_t idSite_;
  ToSettle found_;
  std::function<void(AcceptAs)> accepted_;
  QLabel* sentence_;
  DifferencePanel* difference_;
  QRadioButton* beside_ = nullptr;
};

}  // namespace tarnwick
