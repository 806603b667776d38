// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QDateTimeEdit>
#include <QScrollArea>

#include "program/program.h"
#include "ui/controls/option_edit.h"
#include "ui/controls/quiet_hours_form.h"

namespace tarnwick {

/// The page of the settings that tells when nothing is told of any site: a pause right now, the quiet hours of each
/// week, and dated windows. Nothing is read before the page is seen, and nothing is written that was not changed.
class PausePage final : public QScrollArea {
  Q_OBJECT

 public:
  /// `program` outlives the page.
  explicit PausePage(Program& program, QWidget* parent = nullptr);

  bool isChanged() const { return !options_.changes().empty(); }
  /// Stores what is chosen, if anything was changed. Raises what `SiteOptions::setOption` does, and turns to the page
  /// then.
  void store();

  QSize sizeHint() const override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  enum Choice { notPaused, oneHour, tomorrow, until, forGood };

  void makePage();
  void connectPage();
  void load();
  void showPause();
  void choosePause();
  void chooseKind(int choice);

  Program& program_;
  OptionEdit options_;
  bool loaded_ = false;
  // Made when the page is first seen.
  QComboBox* pause_ = nullptr;
  QDateTimeEdit* until_ = nullptr;
  QuietHoursForm* quiet_ = nullptr;
  QComboBox* quietHow_ = nullptr;
};

}  // namespace tarnwick
