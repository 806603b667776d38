// SPDX-License-Identifier: MIT
#include "ui/details/page_heads.h"

#include <QHBoxLayout>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

QLabel* makeHead(QWidget& parent, const char* name) {
  auto* head = named(new QLabel(&parent), name);
  head->setTextFormat(Qt::PlainText);
  // What does not fit is cut, and told by the tooltip.
  head->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return head;
}

}  // namespace

PageHeads::PageHeads(QWidget* parent)
    : QWidget(parent),
      before_(makeHead(*this, "differenceBefore")),
      after_(makeHead(*this, "differenceAfter")),
      choose_(named(new QToolButton(this), "differenceChoose", tr("Compare with another good page"))) {
  choose_->setArrowType(Qt::DownArrow);
  choose_->setAutoRaise(true);
  choose_->setFocusPolicy(Qt::StrongFocus);
  choose_->setToolTip(choose_->accessibleName());
  choose_->setFixedHeight(before_->fontMetrics().height() + 2);
  choose_->hide();
  auto* left = new QHBoxLayout;
  left->setSpacing(4);
  left->addWidget(before_, 1);
  left->addWidget(choose_);
  auto* halves = new QHBoxLayout(this);
  halves->setContentsMargins({});
  halves->setSpacing(8);
  halves->addLayout(left, 1);
  halves->addWidget(after_, 1);
  // Not as its menu, whose arrow would be a second one.
  connect(choose_, &QToolButton::clicked, this,
          [this] { choices_->popup(choose_->mapToGlobal(choose_->rect().bottomLeft())); });
  hide();
}

void PageHeads::tell(const QString& before, const QString& after) {
  before_->setText(before);
  after_->setText(after);
  explain(*before_, before);
  explain(*after_, after);
  setVisible(!before.isEmpty() || !after.isEmpty());
}

void PageHeads::setChoices(QMenu* choices) {
  choices_ = choices;
  choose_->setVisible(choices != nullptr);
}

}  // namespace tarnwick
