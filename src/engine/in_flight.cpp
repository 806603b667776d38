// SPDX-License-Identifier: MIT
#include "engine/in_flight.h"

#include <algorithm>

#include "base/text.h"
#include "engine/inet_pool.h"

namespace tarnwick {
namespace {

constexpr std::int16_t kMostSlots = 256;
constexpr std::size_t kFewest = InetPool::kLargestPool;
/// What a host is spared as soon as more than five requests are in flight.
constexpr std::int64_t kUsualPerHost = 2;
constexpr std::int64_t kUsualSpacing = 250;
/// The share of the slots that the slow ones may hold, as its divisor.
constexpr std::size_t kSlowShare = 5;

std::optional<std::int64_t> numberOf(const std::optional<std::string>& value) {
  return value ? std::optional<std::int64_t>(std::stoll(*value)) : std::nullopt;
}

}  // namespace

InFlightPolicy inFlightPolicy(const OptionsInForce& options) {
  const auto parallel = options.valueOf(kAllSites, option_name::parallel);
  InFlightPolicy policy;
  policy.automatic = parallel == option_value::automatic;
  policy.slots =
      policy.automatic ? kMostSlots : static_cast<std::int16_t>(numberOf(parallel).value_or(InetPool::kLargestPool));
  policy.slowLane = policy.slots > InetPool::kLargestPool;
  const auto either = [&](std::string_view name, std::int64_t usual) {
    return numberOf(options.valueOf(kAllSites, name)).value_or(policy.slowLane ? usual : 0);
  };
  policy.perHost = either(option_name::perHost, kUsualPerHost);
  policy.spacing = std::chrono::milliseconds(either(option_name::spacing, kUsualSpacing));
  return policy;
}

InFlight::InFlight(const InFlightPolicy& policy, const std::vector<Row>& rows) : policy_(policy) {
  if (policy_.automatic) {
    throttle_.emplace(kFewest, static_cast<std::size_t>(policy_.slots));
  }
  std::unordered_map<std::string_view, std::size_t> numbers{{{}, 0}};
  for (const Row& row : rows) {
    hostOf_.push_back(numbers.try_emplace(row.host, numbers.size()).first->second);
    slowRows_.push_back(policy_.slowLane && row.slow);
    (slowRows_.back() ? slow_ : rest_).push_back(hostOf_.size());
  }
  hosts_.resize(numbers.size());
}

// The slow ones go first: the pass ends when the last of them has taken its time.
std::size_t InFlight::upcoming(Time now) {
  if (now < nothingBefore_) {
    return 0;
  }
  nothingBefore_ = Time::max();
  std::size_t row = 0;
  if (slowInFlight_ < std::max<std::size_t>(static_cast<std::size_t>(policy_.slots) / kSlowShare, 1)) {
    row = firstReady(slow_, now);
  }
  const bool room = !throttle_ || sentAt_.size() - slowInFlight_ < throttle_->limit();
  if (row == 0 && room) {
    row = firstReady(rest_, now);
  }
  if (row > 0) {
    nothingBefore_ = Time::min();
  }
  return row;
}

std::size_t InFlight::firstReady(const std::deque<std::size_t>& rows, Time now) {
  const auto ready = std::ranges::find_if(rows, [&](std::size_t row) { return isReady(row, now); });
  return ready == rows.end() ? 0 : *ready;
}

bool InFlight::isReady(std::size_t row, Time now) {
  if (const auto repeated = repeatedFrom_.find(row); repeated != repeatedFrom_.end() && now < repeated->second) {
    nothingBefore_ = std::min(nothingBefore_, repeated->second);
    return false;
  }
  return hostIsReady(row, now);
}

bool InFlight::hostIsReady(std::size_t row, Time now) {
  if (isSentToNobody(row) || (policy_.perHost == 0 && policy_.spacing == Time(0))) {
    return true;
  }
  const Host& host = hostOf(row);
  if (policy_.perHost > 0 && host.inFlight >= policy_.perHost) {
    return false;
  }
  if (now < host.nextStart) {
    nothingBefore_ = std::min(nothingBefore_, host.nextStart);
    return false;
  }
  return true;
}

void InFlight::take(std::size_t row, Time now) {
  std::deque<std::size_t>& lane = isSlow(row) ? slow_ : rest_;
  lane.erase(std::ranges::find(lane, row));
  if (isSentToNobody(row)) {
    return;
  }
  Host& host = hostOf(row);
  ++host.inFlight;
  host.nextStart = now + policy_.spacing;
  sentAt_[row] = now;
  slowInFlight_ += isSlow(row) ? 1 : 0;
}

void InFlight::ended(std::size_t row, Time now, Time processorTime, End end) {
  nothingBefore_ = Time::min();
  const auto sent = sentAt_.find(row);
  if (sent == sentAt_.end()) {
    return;
  }
  const Time latency = now - sent->second;
  sentAt_.erase(sent);
  --hostOf(row).inFlight;
  if (isSlow(row)) {
    --slowInFlight_;
  } else if (throttle_ && end == End::answered) {
    throttle_->answered(latency, now, processorTime);
  } else if (throttle_) {
    throttle_->overloaded();
  }
}

bool InFlight::putBack(std::size_t row) {
  if (!policy_.slowLane || sentAt_.empty()) {
    return false;
  }
  (isSlow(row) ? slow_ : rest_).push_front(row);
  return true;
}

void InFlight::repeat(std::size_t row, Time from) {
  repeatedFrom_[row] = from;
  nothingBefore_ = Time::min();
  (isSlow(row) ? slow_ : rest_).push_back(row);
}

}  // namespace tarnwick
