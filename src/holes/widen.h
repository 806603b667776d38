// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "holes/copies.h"

namespace tarnwick {

/// Widens the places that vary to what they are part of: dates and times to all of them, numbers to all of their
/// digits, fields of pictures and archives to the whole field; and takes from words what of them never varies.
void widenToWhole(Copies& copies);

/// Makes the place at that index the whole numbers that vary there, one place each; false when it is no numbers.
bool widenToNumbers(Copies& copies, std::size_t index);

/// Makes the place at that index the whole field of a picture or an archive that it is in, such as the time of its
/// making; false when it is in none.
bool widenToField(Copies& copies, std::size_t index);

/// Joins places that are one for people: several in a row of words, the parts of a key, what stands in another order,
/// what lies among other things that may be anything.
void joinNeighbours(Copies& copies);

/// Joins what of a list stood still with what moved around it, also at the ends of the list.
void joinLists(Copies& copies);

/// A date of today beside a time that varies changes as surely as that, though nobody has seen it.
void takeDatesBesideTimes(Copies& copies, std::chrono::year_month_day today);

}  // namespace tarnwick
