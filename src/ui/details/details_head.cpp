// SPDX-License-Identifier: MIT
// What stands above the tabs of the details: how the site stands, and what settles it.
#include <utility>
#include <QHBoxLayout>
#include <QToolButton>

#include "engine/widening.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/details/details_pane.h"
#include "ui/details/settling_words.h"

namespace tarnwick {

QWidget* DetailsPane::makeHead() {
  auto* head = new QWidget(this);
  headline_ = named(new StatusLine(head), "detailsHeadline", tr("Site"));
  vary_ = named(new LinkButton(tr("Let It Vary…"), head), "detailsVary", tr("Let It Vary…"));
  vary_->hide();
  connect(vary_, &LinkButton::clicked, this, &DetailsPane::varyWanted);
  same_ = named(new LinkButton(tr("Same Change…"), head), "detailsSame", tr("Same Change…"));
  same_->setToolTip(tr("Show which of these sites have changed in the same way"));
  same_->hide();
  connect(same_, &LinkButton::clicked, this, &DetailsPane::sameChangesWanted);
  btnAccept_ = addButton(*head, "btnAccept", tr("&Accept…"));
  btnAcknowledge_ = addButton(*head, "btnAcknowledge", tr("Ac&knowledge"));
  btnPause_ = addButton(*head, "btnPause", tr("&Pause"));
  auto* close = named(new QToolButton(head), "detailsClose", tr("Close the details (F4)"));
  close->setText(QStringLiteral("✕"));
  close->setAutoRaise(true);
  close->setToolTip(close->accessibleName());
  onClick(*btnAccept_, program_.faults(), [this] { accept(); });
  onClick(*btnAcknowledge_, program_.faults(), [this] { acknowledge(); });
  onClick(*btnPause_, program_.faults(), [this] {
    if (auto* resume = pauses_->findChild<QAction*>(QStringLiteral("resume")); isPaused_ && resume != nullptr) {
      resume->trigger();
    }
  });
  connect(close, &QToolButton::clicked, this, &DetailsPane::closed);
  auto* line = new QHBoxLayout(head);
  line->setContentsMargins({});
  line->addWidget(headline_, 1);
  line->addWidget(vary_);
  line->addWidget(same_);
  for (QWidget* button : {static_cast<QWidget*>(btnAccept_), static_cast<QWidget*>(btnAcknowledge_),
                          static_cast<QWidget*>(btnPause_), static_cast<QWidget*>(close)}) {
    line->addWidget(button);
  }
  return head;
}

void DetailsPane::tellChosen(int sites, int down) {
  if (sites == chosen_ && down == chosenDown_) {
    return;
  }
  const bool wereSeveral = std::exchange(chosen_, sites) > 1;
  chosenDown_ = down;
  same_->setVisible(sites > 1 && down > 1);
  if (isVisible() && (sites > 1 || wereSeveral)) {
    tellHeadline();
    tellButtons();
  }
}

void DetailsPane::tellHeadline() {
  if (chosen_ > 1) {
    headline_->showText(tr("%1 sites selected: %2 down").arg(chosen_).arg(chosenDown_));
    return;
  }
  if (idSite_ && found_) {
    headline_->showText(isSettled_ ? tr("Site %1 is settled: its next check finds it up.").arg(*idSite_)
                                   : standingWords(*idSite_, *found_, whatIsWrong()));
  }
}

// What the pages below show is said in a few words as soon as they are compared. Of a site with rules that is not all
// that counts, so the words of the check are.
QString DetailsPane::whatIsWrong() {
  if (!canBeSettled(*found_)) {
    return {};
  }
  const DifferenceView& view = panel_->view();
  const bool isShown = found_->state == ToSettle::State::differs && tabs_->currentWidget() == panel_ && !kept_ &&
                       view.hasPages() && program_.data().rulesOf(*idSite_).empty();
  if (isShown && view.isComparing()) {
    return {};
  }
  const QString changes =
      isShown && view.difference() != nullptr ? changesWords(view.pages(), *view.difference()) : QString();
  return changes.isEmpty() ? displayMessage(program_.data().reasonOf(*idSite_)) : changes;
}

void DetailsPane::tellButtons() {
  const bool isOne = chosen_ <= 1;
  const bool settles = isOne && found_ && canBeSettled(*found_);
  const bool isKnown = settles && found_->isAcknowledged;
  btnAccept_->setText(offersCheck() ? tr("&Check Now") : tr("&Accept…"));
  btnAccept_->setEnabled(settles || (isOne && offersCheck()));
  btnAccept_->setToolTip(!isOne          ? tr("Choose one site")
                         : offersCheck() ? tr("Fetch the page again, at once")
                         : settles       ? tr("Take the page of the latest check as the baseline")
                                         : tr("There is no changed page to accept"));
  btnAcknowledge_->setText(isKnown ? tr("Alarm A&gain") : tr("Ac&knowledge"));
  btnAcknowledge_->setEnabled(settles);
  btnAcknowledge_->setToolTip(!isOne     ? tr("Choose one site")
                              : !settles ? tr("There is nothing wrong to acknowledge")
                              : isKnown  ? tr("Tell of this page again, at each failed check")
                                         : tr("Known: say nothing while exactly this page stays"));
  tellPause();
  tellVary();
}

void DetailsPane::tellVary() {
  constexpr std::size_t kMostLookedAt = 2'000'000;
  std::string look;
  if (found_ && found_->state == ToSettle::State::differs &&
      found_->baseline.size() + found_->page.size() <= kMostLookedAt) {
    look = firstLook(found_->baseline, program_.data().rulesOf(*idSite_), found_->page);
  }
  vary_->setVisible(!look.empty() && chosen_ <= 1);
  vary_->setToolTip(tr("The change looks like %1, which always changes: it need not count").arg(displayMessage(look)));
}

void DetailsPane::tellPause() {
  btnPause_->setText(isPaused_ ? tr("&Resume") : tr("&Pause"));
  btnPause_->setToolTip(isPaused_ ? tr("Tell of the site again") : tr("Tell nothing of the site for a time"));
  btnPause_->setMenu(isPaused_ ? nullptr : pauses_);
  btnPause_->setEnabled(idSite_.has_value() && pauses_ != nullptr);
}

void DetailsPane::setPauses(QMenu& pauses) {
  pauses_ = &pauses;
  tellPause();
}

}  // namespace tarnwick
