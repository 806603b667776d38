// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "holes/generated_page.h"

namespace tarnwick::generated {

/// A page as somebody has changed it who should not have.
struct Defaced {
  std::string how;
  std::string bytes;
};

/// What is so near to a part that varies that it may be taken for the part.
inline constexpr std::size_t kNear = 12;
/// Parts that are no farther from each other are taken for one.
inline constexpr std::size_t kOnePart = 40;

/// The stretches of a page in which each changed byte is a defacement.
std::vector<Volatile> fixedStretches(const Made& page);

/// The n-th defacement of a page that has such stretches; each n is another one.
Defaced defaced(const Made& page, std::size_t n, Rng& rng);

/// The page with each of its parts as it breaks its class, at most so many of them.
std::vector<Defaced> brokenClasses(const Made& page, std::size_t most);

}  // namespace tarnwick::generated
