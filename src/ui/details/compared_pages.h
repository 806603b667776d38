// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarnwick {

/// Two pages that are compared: the one that is good, and the one that came last.
struct ComparedPages {
  std::string before;
  std::string after;
  bool operator==(const ComparedPages&) const = default;
};

}  // namespace tarnwick
