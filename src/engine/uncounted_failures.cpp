// SPDX-License-Identifier: MIT
#include "engine/uncounted_failures.h"

#include <exception>

#include "base/errors.h"
#include "engine/due_sites.h"
#include "engine/result_recording.h"
#include "engine/run_view.h"

namespace tarnwick {

UncountedFailures::Pending::Pending(UncountedFailures& all, std::int16_t idSite) : all_(all), idSite_(idSite) {
  all_.sites_.reserve(all_.sites_.size() + 1);
}

UncountedFailures::Pending::~Pending() {
  if (!counted_) {
    all_.sites_.push_back(idSite_);
  }
}

void UncountedFailures::tick() {
  if (sites_.empty() || !backOff_.tick()) {
    return;
  }
  try {
    while (!sites_.empty()) {
      const std::int16_t id = sites_.back();
      countLast();
      view_.updateGridRow(id, results_.getStatus(id));
    }
  } catch (const DataAccessError&) {
    backOff_.failed();  // told when it was met first
    return;
  }
  backOff_.succeeded();
}

void UncountedFailures::end() noexcept {
  try {
    while (!sites_.empty()) {
      countLast();
    }
  } catch (const std::exception&) {
    // The fault has been told, and outlasts the program.
  }
}

// A new site that got the id of a deleted one has no part in it: it was never checked.
void UncountedFailures::countLast() {
  const std::int16_t id = sites_.back();
  try {
    if (dueSites_.wasChecked(id)) {
      results_.updateStatusCounter(id, false);
    }
  } catch (const OverflowError&) {
    sites_.pop_back();
    throw;
  }
  sites_.pop_back();
}

}  // namespace tarnwick
