// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "holes/generated_page.h"

/// What varies on many pages.
namespace tarnwick::generated {

Slot hex(std::size_t length, std::string_view digits = kHex);
/// With as many = behind it as make the length a multiple of four.
Slot base64(std::size_t length);
Slot base64Url(std::size_t length);
Slot uuid();
/// Of a length between the two.
Slot base36(std::size_t least, std::size_t most);
/// A number that grows by so much with each visit.
Slot counter(std::uint64_t start, std::uint64_t step = 1, std::string_view separator = "");
Slot between(int least, int most);
/// A number of so many decimals, from thousandths (or whatever the last decimal is) least to most.
Slot decimal(int least, int most, int decimals, std::string_view point = ".", std::string_view minus = "-");
/// One after the other, as of machines that take turns.
Slot inTurn(std::vector<std::string> choices);

/// The digits in groups of three.
std::string grouped(std::uint64_t number, std::string_view separator);
std::string uuidText(Rng& rng);

}  // namespace tarnwick::generated
