// SPDX-License-Identifier: MIT
#include "ui/rows/tags_dialog.h"

#include <map>
#include <string>
#include <QHBoxLayout>
#include <QRegularExpression>

#include "store/site_tags.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kCharacters = 24;
constexpr int kStateAtFirst = Qt::UserRole;

}  // namespace

TagsDialog::TagsDialog(Program& program, const ChosenSites& sites, QWidget* window)
    : SitesDialog(program, sites, "frmTags", window),
      tags_(named(new QListWidget(this), "tagsList", tr("Tags"))),
      typed_(addText<QLineEdit>(*this, "tagsNew", tr("New tags"), kCharacters)),
      add_(addButton(*this, "tagsAdd", tr("&Add"))),
      fault_(named(new QLabel(this), "tagsFault")) {
  setTitle(tr("Tags of Site %1"), tr("Tags of %1 Sites"));
  fault_->setTextFormat(Qt::PlainText);
  fault_->setWordWrap(true);
  fault_->hide();
  auto* line = new QHBoxLayout;
  line->addWidget(addLabel(tr("&New tags:"), *typed_));
  line->addWidget(typed_, 1);
  line->addWidget(add_);
  place().addWidget(tags_, 1);
  place().addLayout(line);
  place().addWidget(fault_);
  fill();
  connect(add_, &QPushButton::clicked, this, &TagsDialog::addTyped);
  // Enter adds what is typed; where nothing is, it agrees.
  connect(typed_, &QLineEdit::textChanged, this, [this](const QString& text) {
    fault_->hide();
    add_->setDefault(!text.isEmpty());
    if (text.isEmpty()) {
      findChild<QPushButton*>(QStringLiteral("sitesOk"))->setDefault(true);
    }
  });
  connect(tags_, &QListWidget::itemChanged, this, &TagsDialog::look);
  typed_->setFocus();
  look();
}

void TagsDialog::fill() {
  const auto tagsOfSites = program().data().tagsOfSites();
  std::map<std::string, std::size_t> counts;
  for (const auto& [id, tags] : tagsOfSites) {
    for (const std::string& tag : tags) {
      counts.emplace(tag, 0);
    }
  }
  for (const ChosenSite& site : sites()) {
    if (const auto found = tagsOfSites.find(site.idSite); found != tagsOfSites.end()) {
      for (const std::string& tag : found->second) {
        ++counts[tag];
      }
    }
  }
  for (const auto& [tag, count] : counts) {
    addItem(displayText(tag), count == 0                ? Qt::Unchecked
                              : count == sites().size() ? Qt::Checked
                                                        : Qt::PartiallyChecked);
  }
}

void TagsDialog::addItem(const QString& tag, Qt::CheckState state) {
  auto* item = new QListWidgetItem(tag);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  item->setFlags(item->flags().setFlag(Qt::ItemIsUserTristate, state == Qt::PartiallyChecked));
  item->setCheckState(state);
  item->setData(kStateAtFirst, state);
  tags_->addItem(item);
}

void TagsDialog::addTyped() {
  const QStringList words = typed_->text().split(QRegularExpression(QStringLiteral("[\\s,;]+")), Qt::SkipEmptyParts);
  for (const QString& word : words) {
    if (const std::string fault = faultOfTag(word.toStdString()); !fault.empty()) {
      fault_->setText(displayMessage(fault));
      fault_->show();
      return;
    }
  }
  for (const QString& word : words) {
    const QList<QListWidgetItem*> same = tags_->findItems(word, Qt::MatchFixedString);
    if (same.isEmpty()) {
      addItem(word, Qt::Unchecked);
    }
    QListWidgetItem* item = same.isEmpty() ? tags_->item(tags_->count() - 1) : same.front();
    item->setCheckState(Qt::Checked);
    tags_->scrollToItem(item);
  }
  typed_->clear();
}

void TagsDialog::look() {
  SiteChanges changes;
  for (int row = 0; row < tags_->count(); ++row) {
    const QListWidgetItem& item = *tags_->item(row);
    if (item.checkState() != item.data(kStateAtFirst).value<Qt::CheckState>() &&
        item.checkState() != Qt::PartiallyChecked) {
      (item.checkState() == Qt::Checked ? changes.addedTags : changes.removedTags).push_back(item.text().toStdString());
    }
  }
  propose(std::move(changes));
}

}  // namespace tarnwick
