// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

/// The letters A to Z, and those of Windows-1252 beyond them, in lower case; `text` is UTF-8.
std::string uuLowerCase(std::string text);

/// A file's name up to its first dot.
std::string uuBaseName(const std::string& name);

/// How a file is cut into numbered parts, each of which is a complete encoded file.
struct UuPlan {
  std::uint64_t bytesEach = 0;  ///< of input; the last part holds the remainder
  std::uint64_t count = 1;
  int digits = 0;  ///< of a part's number in its name, 1 to 4; 0 for a file that is not cut
};

/// Parts of at most `most` bytes each, cut where an encoded line ends, that is at multiples of 45: only there does a
/// part need no padding. So a part has 45 bytes at least. Not cut when `most` is below 1 or not below `size`.
/// Raises std::length_error for ten thousand parts and more, which no name could tell apart.
UuPlan planUuParts(std::uint64_t size, std::int64_t most);

/// A part's file name by the rule of eight characters and three: the base name cut to leave room for the number,
/// the number (from 1) with leading zeros, ".UUE". The base name is not cut when the plan has one undivided file.
std::string uuPartName(const std::string& base, const UuPlan& plan, std::uint64_t number);
/// The same without ".UUE".
std::string uuPartStem(const std::string& base, const UuPlan& plan, std::uint64_t number);

/// A file that holds a part, as far as its place among the others is concerned.
struct UuPart {
  std::string path;
  std::string name;  ///< of the encoded file, as the part's header gives it
};

struct UuOrder {
  /// The indexes of the parts in their order.
  std::vector<std::size_t> indexes;
  /// The numbers that no part has, as first and last of each gap; empty when the file can be joined.
  std::vector<std::pair<std::uint64_t, std::uint64_t>> missing;
};

/// The order of the parts by the numbers in their file names. Names that were made by the rule above are read by it;
/// then the number of digits tells the least number of parts too. Of other names the digits before the last dot count.
/// A single file that bears the base name of what it holds, or no digits, is the whole.
/// Raises DecodeError for a name without a number, a number that occurs twice, and parts of different files.
UuOrder orderUuParts(const std::vector<UuPart>& parts);

}  // namespace tarnwick
