// SPDX-License-Identifier: MIT
#include "ui/controls/sliced_work.h"

#include <utility>
#include <QElapsedTimer>

#include "base/errors.h"

namespace tarnwick {
namespace {

// In milliseconds. A slice is short enough for a picture that moves.
constexpr int kSlice = 8;
constexpr int kNextTry = 50;

}  // namespace

SlicedWork::SlicedWork(Program& program, Aim aim, Next next, std::function<void()> told)
    : program_(program), aim_(aim), next_(std::move(next)), told_(std::move(told)), timer_(std::make_unique<QTimer>()) {
  QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), [this] { goOn(); });
  timer_->start(0);
}

SlicedWork::~SlicedWork() {
  timer_->stop();
  timer_.release()->deleteLater();  // it may be at work right now
  end();
}

void SlicedWork::raiseFailure() const {
  if (failure_) {
    std::rethrow_exception(failure_);
  }
}

void SlicedWork::goOn() {
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
void SlicedWork::open() {
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

bool SlicedWork::begin() {
  Database& database = data().database();
  if (aim_ == Aim::read) {
    oneState_.emplace(database);
    return true;
  }
  if (auto begun = Transaction::tryBegin(database)) {
    whole_.emplace(std::move(*begun));
    if (own_) {
      program_.data().database().setWriterAside([this] { work([] { return false; }); });
    }
  }
  timer_->setInterval(whole_ ? 0 : kNextTry);
  return whole_.has_value();
}

void SlicedWork::work(const std::function<bool()>& isTime) {
  try {
    if (!begun_) {
      open();
      if (!begin()) {
        own_.reset();
        return;
      }
      begun_ = true;
    }
    while (next_(data())) {
      if (own_ && isTime()) {
        return;
      }
    }
    if (whole_) {
      whole_->commit();
    }
  } catch (...) {
    failure_ = std::current_exception();
  }
  end();
}

// The end is told by the next event: the one that brought it about may be one that writes.
void SlicedWork::end() {
  ended_ = true;
  if (whole_ && own_) {
    program_.data().database().setWriterAside({});
  }
  whole_.reset();
  oneState_.reset();
  own_.reset();
}

}  // namespace tarnwick
