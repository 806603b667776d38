// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>
#include <QAbstractTableModel>
#include <QTableView>

#include "holes/page_rule.h"

namespace tarnwick {

/// The rules of a site, a row each: what it does, in which language, the rule, and what it finds on a page. The first
/// three can be changed in their place.
class RuleTableModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { useColumn, languageColumn, ruleColumn, matchesColumn, columns };

  /// `page` is what they are tried on, as `pageText` gives it.
  RuleTableModel(std::vector<PageRule> rules, std::string page, QObject* parent = nullptr);

  const std::string& page() const { return page_; }
  /// Those that say anything.
  std::vector<PageRule> rules() const;
  /// Why they cannot be understood or would watch nothing, in the user's words.
  QStringList remarks() const;
  bool areUnderstood() const;

  void append(const PageRule& rule);
  void remove(int row);

  /// The choices of a column of which one is chosen.
  static QStringList choicesOf(int column);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Row {
    PageRule rule;
    std::string fault{};
    std::size_t matches = 0;
    bool isTried = false;  ///< it says anything

    bool isIdle() const { return isTried && fault.empty() && matches == 0; }
  };
  Row tried(PageRule rule) const;
  QString textOf(const Row& row, int column) const;
  QString matchesOf(const Row& row) const;

  std::string page_;
  std::vector<Row> rows_;
};

/// The table of them.
class RuleTable final : public QTableView {
  Q_OBJECT

 public:
  explicit RuleTable(QWidget* parent = nullptr);

  void setRules(RuleTableModel& model);
};

}  // namespace tarnwick
