// SPDX-License-Identifier: MIT
#include "engine/proof_of_life.h"

#include <array>
#include <utility>

#include "delivery/delivery.h"
#include "engine/due_sites.h"
#include "store/alarm_values.h"

namespace tarnwick {
namespace {

constexpr std::chrono::seconds kBetweenBeats{60};
constexpr std::chrono::seconds kLongestBeat{30};
constexpr int kFirstRefusal = 300;  // RFC 9110, section 15

constexpr const char* kAllIsWell = "all is well";

std::string counted(std::int64_t count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace

ProofOfLife::ProofOfLife(const RunController::Needs& needs) : needs_(needs) {}
ProofOfLife::~ProofOfLife() = default;

bool ProofOfLife::isWanted(const OptionsInForce& options) {
  static constexpr std::array kWishes{option_name::allIsWell, option_name::testAlert, option_name::heartbeat};
  return options.setsAnyOf(kWishes);
}

bool ProofOfLife::lacksChannel(const OptionsInForce& options, Delivery& delivery) {
  static constexpr std::array kDaily{option_name::allIsWell, option_name::testAlert};
  return options.setsAnyOf(kDaily) && !delivery.tellsOf(std::nullopt);
}

void ProofOfLife::tick(const OptionsInForce& options) {
  tellDaily(options.valueOf(kAllSites, option_name::allIsWell), kAllIsWell);
  tellDaily(options.valueOf(kAllSites, option_name::testAlert), kDailyTest);
  beat(options.valueOf(kAllSites, option_name::heartbeat));
}

// A run that was off at that time tells it as soon as it is on again. What was told last stands in the outbox.
void ProofOfLife::tellDaily(const std::optional<std::string>& at, const std::string& event) {
  const auto time = at ? readTimeOfDay(*at) : std::nullopt;
  const LocalTime now = needs_.clock.localNow();
  if (!time || now - std::chrono::floor<std::chrono::days>(now) < *time || !needs_.delivery.tellsOf(std::nullopt)) {
    return;
  }
  if (needs_.delivery.lastMade(event) >= std::chrono::floor<std::chrono::days>(now) + *time) {
    return;
  }
  Alert alert{.made = now, .pass = now, .event = event};
  alert.cause = event == kAllIsWell ? figures() : "This alert tries the way that real ones take. Nothing is wrong.";
  Transaction whole(needs_.standings.database());
  needs_.delivery.add(std::move(alert), std::nullopt);
  whole.commit();
  needs_.delivery.deliver();
}

std::string ProofOfLife::figures() {
  const DueSites::Figures sites = needs_.dueSites.figures();
  const OutboxSummary alerts = needs_.delivery.summary();
  std::string text = counted(sites.active, "site is watched", "sites are watched") + ": " + std::to_string(sites.up) +
                     " up, " + std::to_string(sites.down) + " down";
  if (sites.unchecked > 0) {
    text += ", " + std::to_string(sites.unchecked) + " not checked yet";
  }
  if (sites.inactive > 0) {
    text += "; " + counted(sites.inactive, "site is switched off", "sites are switched off");
  }
  if (alerts.failed > 0) {
    text += "; " + counted(alerts.failed, "alert was not delivered", "alerts were not delivered");
  }
  return text + ".";
}

void ProofOfLife::rest() {
  heart_.reset();
  lastBeat_.reset();
  setFault({});
}

void ProofOfLife::setFault(std::string fault) {
  if (fault != heartbeatFault_) {
    heartbeatFault_ = std::move(fault);
    needs_.view.showHeartbeat(heartbeatFault_);
  }
}

void ProofOfLife::beat(const std::optional<std::string>& address) {
  if (!address) {
    rest();
    return;
  }
  if ((heart_ && heart_->stillExecuting()) || (lastBeat_ && needs_.clock.steadyNow() - *lastBeat_ < kBetweenBeats)) {
    return;
  }
  lastBeat_ = needs_.clock.steadyNow();
  if (!heart_) {
    heart_ = needs_.transfers.makeTransferControl();
    heart_->onIdle([this] {
      const TransferResult result = heart_->takeResult();
      setFault(result.fault != TransferFault::none ? result.cause
               : result.status >= kFirstRefusal    ? "answered with " + std::to_string(result.status)
                                                   : std::string());
    });
  }
  heart_->execute({.url = *address, .timeout = kLongestBeat});
}

}  // namespace tarnwick
