// SPDX-License-Identifier: MIT
#include "ui/details/alarm_page.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/controls/dialog_parts.h"
#include "ui/details/alarm_facts.h"

namespace tarnwick {

AlarmPage::AlarmPage(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
  auto* area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  auto* content = new QWidget(area);
  area->setWidget(content);
  auto* form = new QFormLayout(content);
  const std::array<QString, lines> captions{tr("Now:"), tr("Told last:"), tr("Told next:"), tr("Through:")};
  constexpr std::array<const char*, lines> kNames{"alarmNow", "alarmTold", "alarmNext", "alarmThrough"};
  for (std::size_t line = 0; line < lines_.size(); ++line) {
    lines_.at(line) = named(new QLabel(content), kNames.at(line));
    lines_.at(line)->setTextFormat(Qt::PlainText);
    lines_.at(line)->setWordWrap(true);
    lines_.at(line)->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    form->addRow(captions.at(line), lines_.at(line));
  }
  change_ = addButton(*this, "alarmChange", tr("C&hange…"), tr("Choose when and how is told of this site"));
  connect(change_, &QPushButton::clicked, this, &AlarmPage::changeWanted);
  auto* side = new QVBoxLayout;
  side->addWidget(change_);
  side->addStretch(1);
  auto* whole = new QHBoxLayout(this);
  whole->setContentsMargins({});
  whole->addWidget(area, 1);
  whole->addLayout(side);
  clear();
}

void AlarmPage::showSite(std::int16_t idSite) {
  const AlarmFacts facts = alarmFactsOf(program_.data(), idSite, program_.services().clock.localNow());
  tell(now, alarmStateWords(facts));
  tell(told, toldWords(facts));
  tell(next, nextWords(facts));
  tell(through, waysWords(facts));
  change_->setEnabled(true);
}

void AlarmPage::clear() {
  for (const Line line : {now, told, next, through}) {
    tell(line, {});
  }
  change_->setEnabled(false);
}

// A line of which nothing is known is left out.
void AlarmPage::tell(Line line, const QString& words) {
  QLabel& label = *lines_.at(line);
  label.setText(words);
  static_cast<QFormLayout*>(label.parentWidget()->layout())->setRowVisible(&label, !words.isEmpty());
}

}  // namespace tarnwick
