// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// How long answers took, as a histogram whose buckets grow by the eighth root of 2: eight to each doubling, so that a
/// quantile is told within `kLargestError` of what was taken, however long it was. Adding the counts of several gives
/// that of all, in any order.
class Latency {
 public:
  /// What a quantile is wrong by at most, as a share of it, beside half a millisecond.
  static constexpr double kLargestError = 0.0443;

  /// Counts one answer.
  void add(std::chrono::milliseconds took);
  void add(const Latency& other);

  std::uint64_t count() const { return count_; }
  /// The least that a share of `part`, above 0 and up to 1, of the answers did not exceed: 0.5 for the median. Nothing
  /// where there are none.
  std::optional<std::chrono::milliseconds> quantile(double part) const;

  /// The form in which it is kept: for each bucket with answers its distance from the one before, a byte, and how
  /// many, seven bits a byte, the lowest first. Empty for none.
  std::string packed() const;
  /// What another tool has written counts as far as it is understood.
  static Latency unpacked(std::string_view bytes);

  bool operator==(const Latency&) const = default;

 private:
  static constexpr std::uint32_t kBuckets = 256;

  /// How many answers fell into a bucket.
  struct Bucket {
    std::uint32_t number = 0;
    std::uint32_t count = 0;

    bool operator==(const Bucket&) const = default;
  };

  /// Those that hold any, in order: the answers of an hour are in few of them.
  std::vector<Bucket> buckets_;
  std::uint64_t count_ = 0;
};

}  // namespace tarnwick
