// SPDX-License-Identifier: MIT
#include "history/latency.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace tarnwick {
namespace {

constexpr double kBucketsOfADoubling = 8;
constexpr unsigned kBitsOfAByte = 7;
constexpr unsigned kMoreFollows = 1U << kBitsOfAByte;

/// Where each bucket but the first, which is that of no time at all, begins.
template <std::uint32_t count>
const std::array<double, count>& beginnings() {
  static const auto all = [] {
    std::array<double, count> begins{};
    for (std::size_t i = 1; i < count; ++i) {
      begins[i] = std::exp2(static_cast<double>(i - 1) / kBucketsOfADoubling);
    }
    return begins;
  }();
  return all;
}

std::uint32_t sum(std::uint32_t one, std::uint64_t other) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
  return static_cast<std::uint32_t>(std::min(kMost, std::min(kMost, other) + one));
}

}  // namespace

void Latency::add(std::chrono::milliseconds took) {
  const auto& begins = beginnings<kBuckets>();
  const auto behind =
      std::upper_bound(begins.begin(), begins.end(), static_cast<double>(std::max<std::int64_t>(0, took.count())));
  const auto number = static_cast<std::uint32_t>(behind - begins.begin()) - 1;
  const auto at = std::ranges::lower_bound(buckets_, number, {}, &Bucket::number);
  if (at == buckets_.end() || at->number != number) {
    buckets_.insert(at, {number, 1});
  } else {
    at->count = sum(at->count, 1);
  }
  ++count_;
}

void Latency::add(const Latency& other) {
  auto at = buckets_.begin();
  for (const Bucket& bucket : other.buckets_) {
    at = std::ranges::lower_bound(at, buckets_.end(), bucket.number, {}, &Bucket::number);
    if (at == buckets_.end() || at->number != bucket.number) {
      at = buckets_.insert(at, bucket);
    } else {
      at->count = sum(at->count, bucket.count);
    }
  }
  count_ += other.count_;
}

std::optional<std::chrono::milliseconds> Latency::quantile(double part) const {
  if (count_ == 0) {
    return std::nullopt;
  }
  const auto wanted =
      std::clamp<std::uint64_t>(static_cast<std::uint64_t>(std::ceil(part * static_cast<double>(count_))), 1, count_);
  std::uint64_t seen = 0;
  auto bucket = buckets_.begin();
  while (bucket + 1 != buckets_.end() && (seen += bucket->count) < wanted) {
    ++bucket;
  }
  if (bucket->number == 0) {
    return std::chrono::milliseconds(0);
  }
  const double middle = std::exp2((static_cast<double>(bucket->number) - 0.5) / kBucketsOfADoubling);
  return std::chrono::milliseconds(std::llround(middle));
}

std::string Latency::packed() const {
  std::string bytes;
  std::uint32_t next = 0;
  for (const Bucket& bucket : buckets_) {
    bytes += static_cast<char>(static_cast<unsigned char>(bucket.number - next));
    next = bucket.number + 1;
    std::uint32_t left = bucket.count;
    for (; left >= kMoreFollows; left >>= kBitsOfAByte) {
      bytes += static_cast<char>(static_cast<unsigned char>(left % kMoreFollows + kMoreFollows));
    }
    bytes += static_cast<char>(static_cast<unsigned char>(left));
  }
  return bytes;
}

Latency Latency::unpacked(std::string_view bytes) {
  Latency latency;
  std::uint32_t number = 0;
  for (std::size_t at = 0; at < bytes.size();) {
    number += static_cast<unsigned char>(bytes[at++]);
    std::uint64_t count = 0;
    bool more = true;
    for (unsigned shift = 0; more && at < bytes.size() && shift < 32; shift += kBitsOfAByte) {
      const auto byte = static_cast<unsigned char>(bytes[at++]);
      count |= std::uint64_t{byte % kMoreFollows} << shift;
      more = byte >= kMoreFollows;
    }
    if (number >= kBuckets || more) {
      break;
    }
    if (count > 0) {
      latency.buckets_.push_back({number, sum(0, count)});
      latency.count_ += latency.buckets_.back().count;
    }
    ++number;
  }
  return latency;
}

}  // namespace tarnwick
