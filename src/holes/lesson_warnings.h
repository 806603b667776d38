// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

#include "holes/hole.h"
#include "platform/clock.h"

namespace tarnwick {

/// What the holes leave open that were learnt from these copies at that time: in words for people.
std::vector<std::string> warningsOf(std::span<const std::string> copies, const Holes& holes, LocalTime now);

/// The number of the line in which a byte of the text stands, from 1 on.
std::size_t lineOf(std::string_view text, std::size_t at);

}  // namespace tarnwick
