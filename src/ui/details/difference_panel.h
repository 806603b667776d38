// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>
#include <QWidget>

#include "ui/details/difference_view.h"
#include "ui/details/page_heads.h"
#include "ui/details/seen_view.h"

namespace tarnwick {

/// A difference with what it is looked at by: which change is shown, the way to the next and the one before, how both
/// pages are laid out, and whether blanks and line ends are shown. F3 and Shift+F3 go on from anywhere in it.
class DifferencePanel final : public QWidget {
  Q_OBJECT

 public:
  /// `clock` outlives this.
  explicit DifferencePanel(const Clock& clock, QWidget* parent = nullptr);

  /// Compares these and shows what differs; `name` says whose it is, for a screen reader: "What changed in site 3".
  void compare(ComparedPages pages, const QString& name);
  /// Shows a sentence in the place of pages.
  void tell(const QString& sentence);

  DifferenceView& view() { return *view_; }
  /// What stands above the pages; there is nothing as long as nobody says which they are.
  PageHeads& heads() { return *heads_; }
  /// What stands above the pages, at its right end; a button may be added there.
  QWidget& corner() { return *corner_; }

 private:
  void layOut();
  void tellPlace();
  void chooseLayout();
  bool isSeen() const { return pages_->currentWidget() == seen_; }
  QToolButton* addTool(const char* name, const QString& sign, const QString& words, const QKeySequence& key);

  DifferenceView* view_ = nullptr;
  SeenView* seen_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  QWidget* corner_;
  PageHeads* heads_;
  QLabel* place_;
  QToolButton* previous_ = nullptr;
  QToolButton* next_ = nullptr;
  QComboBox* layouts_ = nullptr;
  QToolButton* invisible_ = nullptr;
  QString name_;
  bool isChosen_ = false;  // a layout, by the user
};

}  // namespace tarnwick
