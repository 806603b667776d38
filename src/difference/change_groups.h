// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "difference/page_difference.h"

namespace tarnwick {

/// What has changed at one place, in the words of the pages: those that have changed, with the one before them. Bytes
/// as they stand there; empty where something has only come, or only gone.
struct ChangePhrase {
  std::string before;
  std::string after;
  auto operator<=>(const ChangePhrase&) const = default;
};
using ChangePhrases = std::vector<ChangePhrase>;

/// Those of two pages, in their order, none twice.
ChangePhrases phrasesOf(std::string_view before, std::string_view after, const PageDifference& difference);

/// Pages that have changed alike.
struct ChangeGroup {
  ChangePhrases phrases;
  /// Their places in the list that was grouped, rising.
  std::vector<std::size_t> pages;
};

/// Groups pages by what has changed in them, the largest group first, and of equal ones that of the first page. A page
/// without a change is in none.
std::vector<ChangeGroup> groupsOf(const std::vector<ChangePhrases>& pages);

}  // namespace tarnwick
