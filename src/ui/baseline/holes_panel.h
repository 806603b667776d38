// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <QAction>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "engine/page_learning.h"
#include "program/program.h"
#include "ui/baseline/baseline_edit.h"
#include "ui/baseline/hole_table.h"

namespace tarnwick {

/// What may vary in the page of a text box beside it: the list of its holes, which are shaded there, and what makes,
/// changes and removes them. Nothing is stored here.
class HolesPanel final : public QGroupBox {
  Q_OBJECT

 public:
  /// Both outlive it.
  HolesPanel(Program& program, BaselineEdit& text, QWidget* parent);

  /// Shows what is stored of a site, whose baseline the text box shows. Raises DataAccessError.
  void start(std::int16_t idSite);
  /// Takes over what has been edited in the text, at once.
  void follow();
  /// What is to be stored of the text as it stands; nothing when that is what is stored.
  std::optional<RuleSet> toStore();
  /// Whether the user has changed anything here.
  bool isEdited() const { return edited_; }
  /// Whether the site has anything of this kind.
  bool hasAny() const { return !draft_.entries().empty() || !draft_.rules().empty(); }

  /// Makes a hole of the text that is selected.
  void mayVaryHere();
  /// Looks what of the difference between the baseline and the latest page looks like something that always changes,
  /// and adds it to the list, as proposals, with a sentence what was seen.
  void propose();

 Q_SIGNALS:
  /// The text box shows a page that was fetched.
  void pageTaken();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void layOut();
  void connectParts();
  void openBefore(QDialog& dialog);
  void learn();
  void take(const Learnt& learnt);
  void showProposals(const Learnt& learnt);
  static QString wordsOf(const Learnt& learnt, const std::string& baseline);
  void tellProposals(const QString& sentence);
  void chooseRules();
  void removeChosen();
  void editHoles();
  void showAll();
  void showWatched();
  void markHoles();
  void enableParts();
  void choose(int row);
  int chosen() const;

  Program& program_;
  BaselineEdit& text_;
  std::int16_t idSite_ = 0;
  RuleSet stored_;
  HoleDraft draft_;
  HoleTableModel model_;
  bool edited_ = false;
  PageLearning comparing_;
  QTimer settled_;
  QAction* mayVary_ = nullptr;
  QLabel* watched_ = nullptr;
  QLabel* proposed_ = nullptr;
  HoleTable* table_ = nullptr;
  QPushButton* btnMayVary_ = nullptr;
  QPushButton* btnLearn_ = nullptr;
  QPushButton* btnRules_ = nullptr;
  QPushButton* btnRemove_ = nullptr;
};

}  // namespace tarnwick
