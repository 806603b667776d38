// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include "program/program.h"
#include "ui/main_window/notice_bar.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// The three steps from an empty list to one that is watched, in the place of the rows as long as the list is empty.
/// After the first one the others go on as a notice, until they are gone through or put away.
class FirstSteps final : public QWidget {
  Q_OBJECT

 public:
  /// `program` and `grid`, which is its parent, outlive it.
  FirstSteps(Program& program, SiteGridView& grid, NoticeBar& bar);

  /// A run may have been started.
  void look();

  /// Sets what opens the ways by which one is told.
  void setChooseHow(std::function<void()> chooseHow) { chooseHow_ = std::move(chooseHow); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QPushButton* laterStep(const char* name, const QString& caption);
  void layOut();
  void add();
  void goOn();
  void tellStep(int step);
  /// The list has changed.
  void follow();
  void place();

  Program& program_;
  SiteGridView& grid_;
  std::function<void()> chooseHow_;
  QLineEdit* address_;
  QPushButton* btnAdd_;
  QLabel* fault_;
  NoticeBar& bar_;
  // The step that the notice tells of; 0 for none.
  int step_ = 0;
};

}  // namespace tarnwick
