// SPDX-License-Identifier: MIT
#include "history/latency.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnwick {
namespace {

constexpr double kBucketsOfADoubling = 8;
constexpr unsigned kBitsOfAByte = 7;
constexpr unsigned kMoreFollows = 1U << kBitsOfAByte;

/// Where each bucket but the first, which is that of no time at all, begins.
template <std::size_t count>
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
  auto& bucket = counts_[static_cast<std::size_t>(behind - begins.begin()) - 1];
  bucket = sum(bucket, 1);
  ++count_;
}

void Latency::add(const Latency& other) {
  if (other.count_ == 0) {
    return;
  }
  for (std::size_t i = 0; i < kBuckets; ++i) {
    counts_[i] = sum(counts_[i], other.counts_[i]);
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
  std::size_t bucket = 0;
  while (bucket + 1 < kBuckets && (seen += counts_[bucket]) < wanted) {
    ++bucket;
  }
  if (bucket == 0) {
    return std::chrono::milliseconds(0);
  }
  const double middle = std::exp2((static_cast<double>(bucket) - 0.5) / kBucketsOfADoubling);
  return std::chrono::milliseconds(std::llround(middle));
}

std::string Latency::packed() const {
  std::string bytes;
  std::size_t next = 0;
  for (std::size_t i = 0; i < kBuckets; ++i) {
    std::uint32_t left = counts_[i];
    if (left == 0) {
      continue;
    }
    bytes += static_cast<char>(static_cast<unsigned char>(i - next));
    next = i + 1;
    for (; left >= kMoreFollows; left >>= kBitsOfAByte) {
      bytes += static_cast<char>(static_cast<unsigned char>(left % kMoreFollows + kMoreFollows));
    }
    bytes += static_cast<char>(static_cast<unsigned char>(left));
  }
  return bytes;
}

Latency Latency::unpacked(std::string_view bytes) {
  Latency latency;
  std::size_t bucket = 0;
  for (std::size_t at = 0; at < bytes.size();) {
    bucket += static_cast<unsigned char>(bytes[at++]);
    std::uint64_t count = 0;
    bool more = true;
    for (unsigned shift = 0; more && at < bytes.size() && shift < 32; shift += kBitsOfAByte) {
      const auto byte = static_cast<unsigned char>(bytes[at++]);
      count |= std::uint64_t{byte % kMoreFollows} << shift;
      more = byte >= kMoreFollows;
    }
    if (bucket >= kBuckets || more) {
      break;
    }
    latency.counts_[bucket] = sum(0, count);
    latency.count_ += latency.counts_[bucket];
    ++bucket;
  }
  return latency;
}

}  // namespace tarnwick
