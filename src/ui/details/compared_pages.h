// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "difference/byte_span.h"
#include "engine/settling.h"

namespace tarnwick {

/// Two pages that are compared: the one that is good, and the one that came last.
struct ComparedPages {
  std::string before;
  std::string after;
  /// What of them may vary, and so does not count.
  ByteSpans varyingBefore{};
  ByteSpans varyingAfter{};
  bool operator==(const ComparedPages&) const = default;
};

/// The baseline of a site and the page of its latest check.
inline ComparedPages comparedPages(const ToSettle& found) {
  return {found.baseline, found.page, found.varyingInBaseline, found.varyingInPage};
}

}  // namespace tarnwick
