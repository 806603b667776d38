// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "holes/page_rule.h"
#include "ui/baseline/baseline_edit.h"
#include "ui/baseline/rule_table.h"

namespace tarnwick {

/// The form `frmRules`: what of a site's pages is compared at all, and a page as the rules leave it. Nothing is stored.
class RulesDialog final : public QDialog {
  Q_OBJECT

 public:
  /// What the rules are tried on: a page as it was fetched, and what it is.
  struct Sample {
    std::string page;
    QString caption;
  };

  RulesDialog(std::vector<PageRule> rules, const Sample& sample, QWidget* parent);

 Q_SIGNALS:
  /// The user wants these rules.
  void taken(const std::vector<PageRule>& rules);

 private:
  void layOut(const QString& caption);
  void add();
  void remove();
  void showAll();
  void take();

  std::string page_;
  RuleTableModel model_;
  RuleTable* table_ = nullptr;
  BaselineEdit* preview_ = nullptr;
  QLabel* watched_ = nullptr;
  QLabel* remarks_ = nullptr;
  QPushButton* btnRemove_ = nullptr;
  QPushButton* btnOk_ = nullptr;
};

}  // namespace tarnwick
