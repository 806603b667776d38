// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QWidget>

namespace tarnwick {

/// What stands above two pages that are compared: which is which.
class PageHeads final : public QWidget {
  Q_OBJECT

 public:
  explicit PageHeads(QWidget* parent = nullptr);

  /// Hidden when both are empty.
  void tell(const QString& before, const QString& after);
  /// Has the page on the left be chosen by `choices`, which outlives this; null: there is no choice.
  void setChoices(QMenu* choices);

 private:
  QLabel* before_;
  QLabel* after_;
  QToolButton* choose_;
  QMenu* choices_ = nullptr;
};

}  // namespace tarnwick
