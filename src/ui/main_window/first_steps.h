// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include "program/program.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// The three steps from an empty list to one that is watched, in the place of the rows. They are there as long as the
/// list is empty, and from then on until they are gone through.
class FirstSteps final : public QWidget {
  Q_OBJECT

 public:
  /// `program` and `grid`, which is its parent, outlive it.
  FirstSteps(Program& program, SiteGridView& grid);

  /// Sets what opens the ways by which one is told.
  void setChooseHow(std::function<void()> chooseHow) { chooseHow_ = std::move(chooseHow); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void layOut();
  void add();
  void start();
  void chooseHow();
  /// The list has changed.
  void follow();
  void place();

  Program& program_;
  SiteGridView& grid_;
  std::function<void()> chooseHow_;
  QLineEdit* address_;
  QPushButton* btnAdd_;
  QLabel* fault_;
  QPushButton* btnStart_;
  QPushButton* btnHow_;
  bool isUnderWay_ = false;
};

}  // namespace tarnwick
