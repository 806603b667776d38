// SPDX-License-Identifier: MIT
#include "ui/details/change_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/placement.h"
#include "ui/details/settling_words.h"

namespace tarnwick {
namespace {

constexpr QSize kUsualSize{900, 560};

}  // namespace

ChangeWindow::ChangeWindow(Program& program, SiteSettling& settling, QWidget* parent)
    : QDialog(parent),
      program_(program),
      headline_(named(new QLabel(this), "changeHeadline")),
      panel_(new DifferencePanel(program.services().clock, this)),
      accept_(
          addButton(*this, "changeAccept", tr("&Accept…"), tr("Take the page of the latest check as the baseline"))) {
  setObjectName(QStringLiteral("frmChange"));
  setWindowFlag(Qt::WindowMinMaxButtonsHint);
  headline_->setTextFormat(Qt::PlainText);
  headline_->setWordWrap(true);
  QPushButton* close = addButton(*this, "changeClose", tr("Close"));
  close->setDefault(true);
  onClick(*close, program_.faults(), [this] { reject(); });
  onClick(*accept_, program_.faults(), [this, &settling] { settling.accept(idSite_); });
  connect(&settling, &SiteSettling::settled, this, [this](std::int16_t idSite) {
    if (idSite == idSite_) {
      program_.faults().run([this] { showSite(idSite_); });
    }
  });
  auto* foot = new QHBoxLayout;
  foot->addWidget(accept_);
  foot->addStretch(1);
  foot->addWidget(close);
  auto* lines = new QVBoxLayout(this);
  lines->addWidget(headline_);
  lines->addWidget(panel_, 1);
  lines->addLayout(foot);
  resize(kUsualSize);
}

void ChangeWindow::showSite(std::int16_t idSite) {
  idSite_ = idSite;
  setWindowTitle(tr("What Changed in Site %1").arg(idSite));
  ToSettle found = program_.data().toSettle(idSite);
  const QString reason = canBeSettled(found) ? displayMessage(program_.data().reasonOf(idSite)) : QString();
  headline_->setText(standingWords(idSite, found, reason));
  accept_->setEnabled(canBeAccepted(found));
  const QString sentence = nothingToShow(idSite, found);
  if (sentence.isEmpty()) {
    panel_->heads().tell(
        baselineHead(found.baseline.size()),
        latestHead(found.page.size(), program_.data().getLastChecked(idSite), program_.services().clock.localNow()));
    panel_->compare(comparedPages(found), tr("What changed in site %1").arg(idSite));
  } else {
    panel_->tell(sentence);
  }
}

void ChangeWindow::done(int result) {
  QDialog::done(result);
  deleteLater();
}

void openChangeWindow(Program& program, SiteSettling& settling, QWidget& parent, std::int16_t idSite) {
  program.faults().run([&] {
    ChangeWindow* window = nullptr;
    for (auto* open : parent.findChildren<ChangeWindow*>(QString(), Qt::FindDirectChildrenOnly)) {
      // One that has been closed may not have been taken down yet.
      window = open->isVisible() ? open : window;
    }
    if (window == nullptr) {
      window = new ChangeWindow(program, settling, &parent);
      placeOver(*window, parent);
      endModalityAt(*window);
    }
    window->showSite(idSite);
    window->show();
    bringToFront(*window);
  });
}

}  // namespace tarnwick
