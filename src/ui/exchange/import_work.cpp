// SPDX-License-Identifier: MIT
#include "ui/exchange/import_work.h"

#include <utility>

namespace tarnwick {

ImportWork::ImportWork(Program& program, AnyList& list, Aim aim, std::function<void()> told)
    : list_(list),
      aim_(aim),
      work_(
          program, aim, [this](m& data) { return next(data); }, std::move(told)) {}

double ImportWork::done() const {
  const double planned = plan_ ? 1 : planner_ ? planner_->done() : 0;
  return aim_ == Aim::read ? planned : (planned + (writer_ ? writer_->done() : 0)) / 2;
}

const ImportPlan& ImportWork::plan() const {
  work_.raiseFailure();
  return *plan_;
}

bool ImportWork::next(m& data) try {
  const bool isMore = advance(data);
  if (!isMore) {
    forgetData();
  }
  return isMore;
} catch (...) {
  forgetData();
  throw;
}

void ImportWork::forgetData() {
  writer_.reset();
  planner_.reset();
}

bool ImportWork::advance(m& data) {
  if (!planner_ && !plan_) {
    planner_.emplace(data, list_, aim_ == Aim::read ? ImportPlanner::Sites::kept : ImportPlanner::Sites::taken,
                     ImportOptions{}, faults_);
  }
  if (!plan_) {
    if (!planner_->next()) {
      plan_ = std::move(*planner_).finish();
    }
    return true;
  }
  if (aim_ == Aim::read || !faults_.none()) {
    return false;
  }
  if (!writer_) {
    writer_.emplace(data, *plan_, list_);
  }
  return writer_->next();
}

}  // namespace tarnwick
