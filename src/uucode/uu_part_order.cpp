// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <numeric>
#include <optional>

#include "base/decode_error.h"
#include "uucode/uu_files.h"
#include "uucode/uu_parts.h"

namespace tarnwick {
namespace {

constexpr int kMostDigits = 4;
constexpr std::size_t kMostForeignDigits = 9;

std::size_t trailingDigits(const std::string& text) {
  const std::size_t last = text.find_last_not_of("0123456789");
  return text.size() - (last == std::string::npos ? 0 : last + 1);
}

using Numbers = std::vector<std::uint64_t>;

/// The parts' numbers if every name is what the encoder makes of its file's with this many digits.
std::optional<Numbers> numbersByRule(const std::vector<UuPart>& parts, int digits) {
  Numbers numbers;
  UuPlan plan;
  plan.digits = digits;
  for (const UuPart& part : parts) {
    const std::string stem = uuLowerCase(fileStem(part.path));
    if (trailingDigits(stem) < static_cast<std::size_t>(digits)) {
      return std::nullopt;
    }
    const std::uint64_t number = std::stoull(stem.substr(stem.size() - static_cast<std::size_t>(digits)));
    if (number == 0 || uuPartStem(uuBaseName(uuLowerCase(part.name)), plan, number) != stem) {
      return std::nullopt;
    }
    numbers.push_back(number);
  }
  return numbers;
}

/// The digits at the end of names that somebody else has given.
Numbers numbersByDigits(const std::vector<UuPart>& parts) {
  Numbers numbers;
  const auto stemWithoutNumber = [](const UuPart& part) {
    const std::string stem = fileStem(part.path);
    return stem.substr(0, stem.size() - trailingDigits(stem));
  };
  for (const UuPart& part : parts) {
    const std::string stem = fileStem(part.path);
    const std::size_t digits = trailingDigits(stem);
    if (digits == 0 || digits > kMostForeignDigits || std::stoull(stem.substr(stem.size() - digits)) == 0) {
      throw DecodeError(part.path, 0,
                        "The file's name has no part number at its end, as in \"photo-1.uue\". Rename the file.");
    }
    if (stemWithoutNumber(part) != stemWithoutNumber(parts.front())) {
      throw DecodeError(part.path, 0,
                        "The name differs from that of " + fileName(parts.front().path) +
                            " not in the number alone. Rename the file, or leave it out if it is no part.");
    }
    numbers.push_back(std::stoull(stem.substr(stem.size() - digits)));
  }
  return numbers;
}

/// Puts the parts in the order of their numbers, of which there are `least` at least.
UuOrder orderBy(const Numbers& numbers, std::uint64_t least) {
  UuOrder order;
  order.indexes.resize(numbers.size());
  std::iota(order.indexes.begin(), order.indexes.end(), std::size_t{0});
  std::stable_sort(order.indexes.begin(), order.indexes.end(),
                   [&](std::size_t one, std::size_t other) { return numbers[one] < numbers[other]; });
  std::uint64_t expected = 1;
  for (const std::size_t index : order.indexes) {
    if (numbers[index] > expected) {
      order.missing.emplace_back(expected, numbers[index] - 1);
    }
    expected = numbers[index] + 1;
  }
  if (expected <= least) {
    order.missing.emplace_back(expected, least);
  }
  return order;
}

void requireDifferentNumbers(const std::vector<UuPart>& parts, const Numbers& numbers) {
  std::map<std::uint64_t, std::size_t> seen;
  for (std::size_t index = 0; index < parts.size(); ++index) {
    const auto [found, isNew] = seen.emplace(numbers[index], index);
    if (!isNew) {
      throw DecodeError(
          parts[index].path, 0,
          "Part " + std::to_string(numbers[index]) + " is given twice, here and in " + parts[found->second].path + ".");
    }
  }
}

void requireOneFile(const std::vector<UuPart>& parts) {
  for (const UuPart& part : parts) {
    if (part.name != parts.front().name) {
      throw DecodeError(part.path, 0,
                        "This is a part of \"" + part.name + "\", but " + fileName(parts.front().path) +
                            " is one of \"" + parts.front().name + "\".");
    }
  }
}

std::uint64_t gapsOf(const UuOrder& order) {
  return std::accumulate(order.missing.begin(), order.missing.end(), std::uint64_t{0},
                         [](std::uint64_t sum, const auto& gap) { return sum + gap.second - gap.first + 1; });
}

bool isWhole(const UuPart& part) {
  const std::string stem = uuLowerCase(fileStem(part.path));
  return trailingDigits(stem) == 0 || stem == uuBaseName(uuLowerCase(part.name));
}

}  // namespace

UuOrder orderUuParts(const std::vector<UuPart>& parts) {
  if (parts.empty()) {
    return {{}, {{1, 1}}};
  }
  requireOneFile(parts);
  if (parts.size() == 1 && isWhole(parts.front())) {
    return {{0}, {}};
  }
  // A base name that ends with digits can make a name fit several numbers of digits. The fullest set is the one meant.
  std::optional<UuOrder> best;
  Numbers chosen;
  std::uint64_t least = 1;  // a number of two digits says that there are ten parts at least
  for (int digits = 1; digits <= kMostDigits; ++digits, least *= 10) {
    const auto numbers = numbersByRule(parts, digits);
    if (!numbers) {
      continue;
    }
    UuOrder order = orderBy(*numbers, least);
    if (!best || gapsOf(order) < gapsOf(*best)) {
      best = std::move(order);
      chosen = *numbers;
    }
  }
  if (!best) {
    chosen = numbersByDigits(parts);
    best = orderBy(chosen, 1);
  }
  requireDifferentNumbers(parts, chosen);
  return *best;
}

}  // namespace tarnwick
