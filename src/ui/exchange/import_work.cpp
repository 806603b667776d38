// SPDX-License-Identifier: MIT
#include "ui/exchange/import_work.h"

#include <utility>
#include <QElapsedTimer>

#include "base/errors.h"

namespace tarnwick {
namespace {

// In milliseconds. A slice is short enough for a picture that moves.
constexpr int kSlice = 8;
constexpr int kNextTry = 50;

}  // namespace

ImportWork::ImportWork(Program& program, AnyList& list, Aim aim, std::function<void()> told)
    : program_(program), list_(list), aim_(aim), told_(std::move(told)), timer_(std::make_unique<QTimer>()) {
  QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), [this] { goOn(); });
  timer_->start(0);
}

ImportWork::~ImportWork() {
  timer_->stop();
  timer_.release()->deleteLater();  // it may be at work right now
  end();
}

double ImportWork::done() const {
  const double planned = plan_ ? 1 : planner_ ? planner_->done() : 0;
  return aim_ == Aim::plan ? planned : (planned + (writer_ ? writer_->done() : 0)) / 2;
}

const ImportPlan& ImportWork::plan() const {
  if (failure_) {
    std::rethrow_exception(failure_);
  }
  return *plan_;
}

void ImportWork::goOn() {
  if (!ended_) {
    QElapsedTimer time;
    time.start();
    work([&] { return time.elapsed() >= kSlice; });
  }
  if (ended_) {
    timer_->stop();
  }
  const auto told = told_;
  told();
}

// Where the list can be opened once only, and where others could not read it meanwhile, all is done at once.
void ImportWork::open() {
  try {
    own_ = std::make_unique<m>(program_.programFolder(), program_.services(), program_.data().fields());
    if (!own_->database().readersGoOn()) {
      own_.reset();
    }
  } catch (const DataAccessError& error) {
    if (!error.inUse()) {
      throw;
    }
  }
}

bool ImportWork::begin() {
  Database& database = data().database();
  if (aim_ == Aim::plan) {
    oneState_.emplace(database);
    return true;
  }
  if (auto begun = Transaction::tryBegin(database)) {
    whole_.emplace(std::move(*begun));
    if (own_) {
      program_.data().database().setWriterAside([this] { finishAtOnce(); });
    }
  }
  timer_->setInterval(whole_ ? 0 : kNextTry);
  return whole_.has_value();
}

void ImportWork::work(const std::function<bool()>& isTime) {
  try {
    if (!planner_) {
      open();
      if (!begin()) {
        own_.reset();
        return;
      }
      planner_.emplace(data(), list_, aim_ == Aim::plan ? ImportPlanner::Sites::kept : ImportPlanner::Sites::taken,
                       ImportOptions{}, faults_);
    }
    while (next()) {
      if (own_ && isTime()) {
        return;
      }
    }
    if (whole_ && faults_.none()) {
      whole_->commit();
    }
  } catch (...) {
    failure_ = std::current_exception();
  }
  end();
}

bool ImportWork::next() {
  if (!plan_) {
    if (!planner_->next()) {
      plan_ = std::move(*planner_).finish();
    }
    return true;
  }
  if (aim_ == Aim::plan || !faults_.none()) {
    return false;
  }
  if (!writer_) {
    writer_.emplace(data(), *plan_, list_);
  }
  return writer_->next();
}

void ImportWork::finishAtOnce() {
  work([] { return false; });
}

// The end is told by the next event: the one that brought it about may be one that writes.
void ImportWork::end() {
  ended_ = true;
  writer_.reset();
  planner_.reset();
  if (whole_ && own_) {
    program_.data().database().setWriterAside({});
  }
  whole_.reset();
  oneState_.reset();
  own_.reset();
}

}  // namespace tarnwick
