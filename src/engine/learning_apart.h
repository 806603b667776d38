// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "engine/learnt.h"
#include "platform/os/work_apart.h"

namespace tarnwick {

/// Learns in a process of its own, so that it holds up nothing; and in a few seconds, whatever the pages hold: what
/// takes longer is learnt roughly. Where the system has no such process, large pages are.
class LearningApart {
 public:
  /// What a processor takes for it at most, in each of the two ways.
  static constexpr std::chrono::seconds kMostTime{4};
  /// Holds what it learns from.
  using Work = std::function<Learnt()>;

  /// Begins with `exact`; `rough` follows where that comes to a bad end, or takes its place where pages of `bytes`
  /// together would hold up this process. Raises std::system_error when the system has no room for a process.
  LearningApart(std::size_t bytes, const Work& exact, Work rough, std::chrono::seconds most = kMostTime);

  /// Looks how far it is, without waiting. True once it is done.
  bool take();
  /// What was learnt, without the first copy; nothing of pages that are too large for this machine. REQUIRES: it is
  /// done.
  std::optional<Learnt> result();

 private:
  void learnRoughly();

  Work rough_;
  std::unique_ptr<WorkApart> work_{};
  std::optional<std::string> packed_{};
};

}  // namespace tarnwick
