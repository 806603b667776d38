// SPDX-License-Identifier: MIT
#include "ui/baseline/rule_table.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include "page_rules/found_ranges.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"
#include "ui/controls/row_table.h"
#include "ui/controls/tones.h"

namespace tarnwick {
namespace {

/// Chooses among the choices of a column.
class ChoiceDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
    auto* choice = new QComboBox(parent);
    choice->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    choice->addItems(RuleTableModel::choicesOf(index.column()));
    connect(choice, &QComboBox::activated, this,
            [this, choice] { Q_EMIT const_cast<ChoiceDelegate*>(this)->commitData(choice); });
    return choice;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    static_cast<QComboBox&>(*editor).setCurrentIndex(index.data(Qt::EditRole).toInt());
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    model->setData(index, static_cast<QComboBox&>(*editor).currentIndex(), Qt::EditRole);
  }
};

}  // namespace

RuleTableModel::RuleTableModel(std::vector<PageRule> rules, std::string page, QObject* parent)
    : QAbstractTableModel(parent), page_(std::move(page)) {
  for (PageRule& rule : rules) {
    rows_.push_back(tried(std::move(rule)));
  }
}

RuleTableModel::Row RuleTableModel::tried(PageRule rule) const {
  Row row{std::move(rule)};
  row.isTried = !row.rule.rule.empty();
  if (row.isTried) {
    try {
      checkRule(row.rule);
      row.matches = foundBy(row.rule, page_).size();
    } catch (const std::runtime_error& fault) {
      row.fault = fault.what();
    }
  }
  return row;
}

std::vector<PageRule> RuleTableModel::rules() const {
  std::vector<PageRule> rules;
  for (const Row& row : rows_) {
    if (row.isTried) {
      rules.push_back(row.rule);
    }
  }
  return rules;
}

QStringList RuleTableModel::remarks() const {
  QStringList remarks;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (!rows_[i].fault.empty()) {
      remarks.append(displayMessage(rows_[i].fault));
    } else if (rows_[i].isIdle()) {
      remarks.append(tr("Rule %1 matches nothing: it would not be watched.").arg(i + 1));
    }
  }
  return remarks;
}

bool RuleTableModel::areUnderstood() const {
  return std::ranges::all_of(rows_, [](const Row& row) { return row.fault.empty(); });
}

void RuleTableModel::append(const PageRule& rule) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  rows_.push_back(tried(rule));
  endInsertRows();
}

void RuleTableModel::remove(int row) {
  beginRemoveRows({}, row, row);
  rows_.erase(rows_.begin() + row);
  endRemoveRows();
}

QStringList RuleTableModel::choicesOf(int column) {
  return column == useColumn
             ? QStringList{tr("compare only"), tr("leave out")}
             : QStringList{tr("regular expression"), tr("CSS"), tr("XPath"), tr("JSON pointer"), tr("lines")};
}

int RuleTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RuleTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns; }

QString RuleTableModel::matchesOf(const Row& row) const {
  if (!row.isTried) {
    return {};
  }
  if (!row.fault.empty()) {
    return tr("not understood");
  }
  if (row.isIdle()) {
    return tr("matches nothing: would not be watched");
  }
  return row.matches == 1 ? tr("1 place") : tr("%1 places").arg(row.matches);
}

QString RuleTableModel::textOf(const Row& row, int column) const {
  switch (column) {
    case useColumn:
      return choicesOf(column).at(static_cast<int>(row.rule.use));
    case languageColumn:
      return choicesOf(column).at(static_cast<int>(row.rule.language));
    case ruleColumn:
      return displayText(row.rule.rule);
    default:
      return matchesOf(row);
  }
}

QVariant RuleTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  const bool isRemark = index.column() == matchesColumn && (!row.fault.empty() || row.isIdle());
  const auto amber = [] { return noticeColours(NoticeTone::amber, isDark(QApplication::palette())); };
  switch (role) {
    case Qt::EditRole:
      if (index.column() == useColumn) {
        return static_cast<int>(row.rule.use);
      }
      return index.column() == languageColumn ? QVariant(static_cast<int>(row.rule.language))
                                              : QVariant(textOf(row, index.column()));
    case Qt::DisplayRole:
      return textOf(row, index.column());
    case Qt::AccessibleTextRole:
      return QStringLiteral("%1: %2").arg(headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString(),
                                          textOf(row, index.column()));
    case Qt::ToolTipRole:
      return plainToolTip(row.fault.empty() ? textOf(row, index.column()) : displayMessage(row.fault));
    case Qt::BackgroundRole:
      return isRemark ? QVariant(amber().fill) : QVariant();
    case Qt::ForegroundRole:
      return isRemark ? QVariant(amber().ink) : QVariant();
    default:
      return {};
  }
}

bool RuleTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid) || index.column() == matchesColumn) {
    return false;
  }
  Row& row = rows_[static_cast<std::size_t>(index.row())];
  PageRule rule = row.rule;
  if (index.column() == useColumn) {
    rule.use = static_cast<PageRule::Use>(value.toInt());
  } else if (index.column() == languageColumn) {
    rule.language = static_cast<PageRule::Language>(value.toInt());
  } else if (value.toString() != displayText(rule.rule)) {
    rule.rule = value.toString().toStdString();
  }
  row = tried(std::move(rule));
  Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), columns - 1));
  return true;
}

Qt::ItemFlags RuleTableModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.column() == matchesColumn ? flags : flags | Qt::ItemIsEditable;
}

QVariant RuleTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  switch (section) {
    case useColumn:
      return tr("Kind");
    case languageColumn:
      return tr("Language");
    case ruleColumn:
      return tr("Rule");
    default:
      return tr("Matches now");
  }
}

RuleTable::RuleTable(QWidget* parent) : QTableView(parent) { setUpRows(*this); }

void RuleTable::setRules(RuleTableModel& model) {
  setModel(&model);
  for (const int column : {RuleTableModel::useColumn, RuleTableModel::languageColumn}) {
    setItemDelegateForColumn(column, new ChoiceDelegate(this));
    constexpr int kPaddingAndArrow = 44;
    int width = 0;
    for (const QString& choice : RuleTableModel::choicesOf(column)) {
      width = std::max(width, fontMetrics().horizontalAdvance(choice) + kPaddingAndArrow);
    }
    horizontalHeader()->resizeSection(column, width);
  }
  horizontalHeader()->setSectionResizeMode(RuleTableModel::ruleColumn, QHeaderView::Stretch);
  constexpr int kPadding = 16;
  horizontalHeader()->resizeSection(
      RuleTableModel::matchesColumn,
      fontMetrics().horizontalAdvance(RuleTableModel::tr("matches nothing: would not be watched")) + kPadding);
}

}  // namespace tarnwick
