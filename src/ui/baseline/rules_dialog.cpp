// SPDX-License-Identifier: MIT
#include "ui/baseline/rules_dialog.h"

#include <utility>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

#include "holes/page_text.h"
#include "page_rules/cut_page.h"
#include "ui/baseline/page_offsets.h"
#include "ui/baseline/share_words.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr QSize kDefaultSize{760, 480};
constexpr int kRowsOfTable = 7;

/// What is not kept.
std::vector<ByteRange> leftOut(const CutPage& page, std::size_t size) {
  std::vector<ByteRange> left;
  std::size_t end = 0;
  for (const ByteRange& range : page.kept) {
    if (range.begin > end) {
      left.push_back({end, range.begin});
    }
    end = range.end;
  }
  if (end < size) {
    left.push_back({end, size});
  }
  return left;
}

}  // namespace

RulesDialog::RulesDialog(std::vector<PageRule> rules, const Sample& sample, QWidget* parent)
    : QDialog(parent), page_(sample.page), model_(std::move(rules), pageText(sample.page)) {
  setObjectName(QStringLiteral("frmRules"));
  setWindowTitle(tr("Rules of the Page"));
  layOut(sample.caption);
  preview_->setPage(page_);
  preview_->setReadOnly(true);
  connect(&model_, &QAbstractItemModel::dataChanged, this, &RulesDialog::showAll);
  connect(&model_, &QAbstractItemModel::rowsInserted, this, &RulesDialog::showAll);
  connect(&model_, &QAbstractItemModel::rowsRemoved, this, &RulesDialog::showAll);
  showAll();
  resize(kDefaultSize);
  placeOver(*this, *parent);
}

void RulesDialog::layOut(const QString& caption) {
  table_ = named(new RuleTable(this), "rules", tr("Rules"));
  table_->setRules(model_);
  table_->setMinimumHeight(fontMetrics().height() * kRowsOfTable);
  auto* add = addButton(*this, "btnAddRule", tr("&Add"), tr("Add a rule"));
  btnRemove_ = addButton(*this, "btnRemoveRule", tr("Re&move"), tr("Remove the chosen rule (Del)"));
  remarks_ = new AmberLine(this);
  remarks_->setObjectName(QStringLiteral("ruleRemarks"));
  auto* frame = addFrame(*this, "frameRulePreview", caption);
  preview_ = named(new BaselineEdit(frame), "rulePreview", caption);
  (new QVBoxLayout(frame))->addWidget(preview_);
  watched_ = named(new QLabel(this), "rulesWatched");
  btnOk_ = addButton(*this, "rulesOk", tr("O&K"), tr("Compare by these rules; OK of the content stores them"));
  auto* cancel = addButton(*this, "rulesCancel", tr("Cancel"), tr("Close without a change (Esc)"));
  btnOk_->setDefault(true);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(watched_);
  buttons->addStretch();
  for (QPushButton* button : {add, btnRemove_}) {
    buttons->addWidget(button);
  }
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  foot->addWidget(btnOk_);
  foot->addWidget(cancel);
  auto* lines = new QVBoxLayout(this);
  lines->addWidget(table_, 1);
  lines->addLayout(buttons);
  lines->addWidget(remarks_);
  lines->addWidget(frame, 2);
  lines->addLayout(foot);

  connect(add, &QPushButton::clicked, this, &RulesDialog::add);
  connect(btnRemove_, &QPushButton::clicked, this, &RulesDialog::remove);
  connect(btnOk_, &QPushButton::clicked, this, &RulesDialog::take);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(new QShortcut(QKeySequence::Delete, table_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
          this, &RulesDialog::remove);
}

void RulesDialog::add() {
  model_.append({});
  const QModelIndex rule = model_.index(model_.rowCount() - 1, RuleTableModel::ruleColumn);
  table_->setFocus();
  table_->setCurrentIndex(rule);
  table_->edit(rule);
}

void RulesDialog::remove() {
  const int row = table_->currentIndex().isValid() ? table_->currentIndex().row() : model_.rowCount() - 1;
  if (row >= 0) {
    model_.remove(row);
  }
}

void RulesDialog::showAll() {
  const QStringList remarks = model_.remarks();
  remarks_->setText(remarks.join(QLatin1Char('\n')));
  remarks_->setVisible(!remarks.isEmpty());
  btnOk_->setEnabled(model_.areUnderstood());
  btnRemove_->setEnabled(model_.rowCount() > 0);
  if (!model_.areUnderstood()) {
    return;
  }
  const std::string& text = model_.page();
  const PageOffsets offsets(page_, text);
  std::size_t out = 0;
  std::vector<BaselineEdit::Part> parts;
  for (const ByteRange& range : leftOut(cut(text, model_.rules()), text.size())) {
    parts.push_back({offsets.inPage(range.begin), offsets.inPage(range.end)});
    out += range.end - range.begin;
  }
  preview_->markParts(parts);
  const double watched = text.empty() ? 1 : 1 - static_cast<double>(out) / static_cast<double>(text.size());
  watched_->setText(tr("%1 of the page stays watched").arg(shareWords(watched)));
}

void RulesDialog::take() {
  // A rule that is being typed counts.
  table_->setFocus();
  if (model_.areUnderstood()) {
    accept();
    Q_EMIT taken(model_.rules());
  }
}

}  // namespace tarnwick
