// SPDX-License-Identifier: MIT
#include <utility>
#include <QObject>
#include <QTimer>

#include "platform/process/detached_programs.h"
#include "platform/process/waited_programs.h"

namespace tarnwick {

/// With it the answers go.
class WaitedPrograms::Runs : public QObject {};

WaitedPrograms::WaitedPrograms() : runs_(std::make_unique<Runs>()) {}
WaitedPrograms::~WaitedPrograms() = default;

void WaitedPrograms::run(const std::vector<std::string>& arguments, std::chrono::seconds,
                         std::function<void(ProgramEnd)> done) {
  const bool started = DetachedPrograms().start(arguments);
  QTimer::singleShot(0, runs_.get(), [started, done = std::move(done)] { done({.started = started}); });
}

}  // namespace tarnwick
