// SPDX-License-Identifier: MIT
#include "ui/rows/sites_dialog.h"

#include <utility>
#include <QHBoxLayout>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/rows/row_questions.h"

namespace tarnwick {
namespace {

constexpr int kPause = 150;  // milliseconds

}  // namespace

SitesDialog::SitesDialog(Program& program, const ChosenSites& sites, const char* name, QWidget* window)
    : QDialog(window),
      program_(program),
      sites_(sites),
      place_(new QVBoxLayout),
      preview_(named(new QLabel(this), "sitesPreview")),
      ok_(addButton(*this, "sitesOk", tr("Change"))) {
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName(QString::fromLatin1(name));
  preview_->setTextFormat(Qt::PlainText);
  preview_->setWordWrap(true);
  preview_->setMinimumHeight(2 * preview_->fontMetrics().lineSpacing());
  preview_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  QPushButton* cancel = addButton(*this, "sitesCancel", tr("Cancel"));
  ok_->setEnabled(false);
  ok_->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok_);
  buttons->addWidget(cancel);
  auto* lines = new QVBoxLayout(this);
  lines->addLayout(place_, 1);
  lines->addWidget(preview_);
  lines->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  connect(this, &QDialog::accepted, this, [this] { Q_EMIT agreed(changed_, changes_); });
  soon_.setSingleShot(true);
  soon_.setInterval(kPause);
  connect(&soon_, &QTimer::timeout, this, &SitesDialog::plan);
}

void SitesDialog::setTitle(const QString& ofOne, const QString& ofSeveral) {
  setWindowTitle(sites_.size() == 1 ? ofOne.arg(sites_.front().idSite) : ofSeveral.arg(sites_.size()));
}

void SitesDialog::propose(SiteChanges changes) {
  changes_ = std::move(changes);
  work_.reset();
  ok_->setEnabled(false);
  ok_->setText(tr("Change"));
  if (changes_.none()) {
    soon_.stop();
    preview_->setText(tr("Nothing is changed yet."));
  } else {
    soon_.start();
  }
}

void SitesDialog::plan() {
  changed_.clear();
  next_ = 0;
  const auto next = [this](m& list) {
    if (next_ < sites_.size()) {
      const std::int16_t id = sites_[next_++].idSite;
      if (planChange(list, id, changes_)) {
        changed_.push_back(id);
      }
      return true;
    }
    return false;
  };
  work_ = std::make_unique<SlicedWork>(program_, SlicedWork::Aim::read, next, [this] { tellPlan(); });
}

void SitesDialog::tellPlan() {
  if (!work_->ended()) {
    preview_->setText(tr("Comparing: %1 of %2 ...").arg(next_).arg(sites_.size()));
    return;
  }
  const std::unique_ptr<SlicedWork> work = std::exchange(work_, nullptr);
  program_.faults().run([&] {
    work->raiseFailure();
    const std::size_t all = sites_.size();
    const QString remainder =
        remainderText(all, changed_.size(), tr("%1 of %2 stays as it is."), tr("%1 of %2 stay as they are."));
    const QString change = counted(changed_.size(), tr("1 site changes."), tr("%1 sites change."));
    preview_->setText(changed_.empty() ? tr("All of them are so already.") : change + QLatin1Char(' ') + remainder);
    ok_->setEnabled(!changed_.empty());
    ok_->setText(all == 1 || changed_.empty() ? tr("Change") : tr("Change %1").arg(changed_.size()));
  });
}

}  // namespace tarnwick
