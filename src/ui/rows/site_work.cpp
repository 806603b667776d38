// SPDX-License-Identifier: MIT
#include "ui/rows/site_work.h"

#include <utility>

namespace tarnwick {
namespace {

constexpr int kShownAfter = 500;  // milliseconds

}  // namespace

SiteWork::SiteWork(Program& program, QWidget& window, QObject* parent)
    : QObject(parent), program_(program), window_(window) {}

SiteWork::~SiteWork() = default;

void SiteWork::start(Aim aim, const QString& what, std::vector<std::int16_t> ids, Piece piece,
                     std::function<void()> done) {
  jobs_.push_back(std::make_unique<Job>(Job{aim, what, std::move(ids), std::move(piece), std::move(done)}));
  if (jobs_.size() == 1) {
    begin();
  }
}

void SiteWork::begin() {
  if (jobs_.front()->ids.size() == 1) {
    const std::unique_ptr<Job> job = std::move(jobs_.front());
    jobs_.pop_front();
    doAtOnce(*job);
    if (!jobs_.empty() && work_ == nullptr) {
      begin();
    }
    return;
  }
  Job& job = *jobs_.front();
  bar_ = new QProgressDialog(job.what, tr("Cancel"), 0, static_cast<int>(job.ids.size()), &window_);
  bar_->setObjectName(QStringLiteral("frmSiteWork"));
  bar_->setWindowModality(Qt::NonModal);
  bar_->setAutoReset(false);
  bar_->setMinimumDuration(kShownAfter);
  connect(bar_, &QProgressDialog::canceled, this, &SiteWork::cancel);
  const auto next = [&job](m& data) {
    if (job.next >= job.ids.size()) {
      return false;
    }
    job.piece(data, job.ids[job.next++]);
    return true;
  };
  work_ = std::make_unique<SlicedWork>(program_, job.aim, next, [this] { look(); });
}

void SiteWork::doAtOnce(const Job& job) {
  program_.faults().run([&] {
    job.piece(program_.data(), job.ids.front());
    job.done();
  });
}

void SiteWork::look() {
  if (!work_->ended()) {
    bar_->setValue(static_cast<int>(jobs_.front()->next));
    return;
  }
  const std::unique_ptr<SlicedWork> work = std::exchange(work_, nullptr);
  const std::unique_ptr<Job> job = std::move(jobs_.front());
  jobs_.pop_front();
  delete bar_;
  program_.faults().run([&] {
    work->raiseFailure();
    job->done();
  });
  if (!jobs_.empty() && work_ == nullptr) {
    begin();
  }
}

void SiteWork::cancel() {
  work_.reset();
  jobs_.clear();
  bar_->deleteLater();
}

}  // namespace tarnwick
