// SPDX-License-Identifier: MIT
// The offer that a difference is no change.
#include <algorithm>

#include "difference/first_difference.h"
#include "engine/result_recording.h"
#include "holes/hole_words.h"
#include "holes/page_text.h"
#include "ui/baseline/holes_panel.h"
#include "ui/baseline/share_words.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

/// More than that are to be seen in the list.
constexpr std::size_t kMostTold = 3;

}  // namespace

// "Line 8: a time. 99.2 % stays watched."
QString HolesPanel::wordsOf(const Learnt& learnt, const std::string& baseline) {
  QStringList places;
  for (const Hole& hole : learnt.holes) {
    if (static_cast<std::size_t>(places.size()) == kMostTold) {
      places.append(tr("%1 more").arg(learnt.holes.size() - kMostTold));
      break;
    }
    places.append(
        tr("Line %1: %2").arg(QString::number(lineAt(baseline, hole.begin).number), displayMessage(describe(hole))));
  }
  return tr("%1. %2 stays watched.").arg(places.join(QStringLiteral("; ")), shareWords(learnt.watched));
}

void HolesPanel::propose() {
  follow();
  const std::string page = program_.data().getContentRuntime(idSite_);
  if (draft_.baseline().empty() || !isPage(page)) {
    tellProposals(displayMessage("There is no baseline yet, or the latest check brought no page."));
    return;
  }
  draft_.see(pageText(page));
  comparing_.compare(
      text_.page(), draft_.set(), page,
      {.learnt = [this](Learnt learnt) { program_.faults().run([&] { showProposals(learnt); }); },
       .failed =
           [this](const std::string& why) { program_.faults().run([&] { tellProposals(displayMessage(why)); }); }});
  tellProposals(tr("Looking at the difference from the latest page …"));
}

void HolesPanel::showProposals(const Learnt& learnt) {
  const std::string compared = draft_.baseline();
  follow();
  const QString rest = QString::number(learnt.line);
  if (learnt.holes.empty()) {
    tellProposals(learnt.explains ? tr("The latest page does not differ.")
                                  : tr("Line %1 differs, and nothing of it looks like what always changes.").arg(rest));
    return;
  }
  draft_.propose(compared == draft_.baseline() ? learnt.holes : placeIn(draft_.baseline(), learnt.holes).placed);
  editHoles();
  const QString words = wordsOf(learnt, compared);
  tellProposals(learnt.explains ? words : tr("%1 Line %2 differs as well: it stays watched.").arg(words, rest));
  const auto first = std::ranges::find(draft_.entries(), true, &HoleDraft::Entry::isProposed);
  if (first != draft_.entries().end()) {
    table_->setCurrentIndex(
        model_.index(static_cast<int>(first - draft_.entries().begin()), HoleTableModel::whatColumn));
  }
  table_->setFocus();
}

void HolesPanel::tellProposals(const QString& sentence) {
  proposed_->setText(sentence);
  proposed_->setVisible(!sentence.isEmpty());
}

}  // namespace tarnwick
