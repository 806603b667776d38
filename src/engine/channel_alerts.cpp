// SPDX-License-Identifier: MIT
#include "engine/channel_alerts.h"

#include <utility>

#include "delivery/delivery.h"
#include "difference/short_difference.h"
#include "engine/cause.h"
#include "engine/result_recording.h"
#include "holes/page_text.h"
#include "store/site_rules.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMostLines = 30;

Alert told(Alert alert, AlertKind kind, const OutageFacts& outage) {
  AlertEvent event = eventOf(kind, outage);
  alert.event = std::move(event.event);
  alert.downSince = std::move(event.downSince);
  alert.downFor = std::move(event.downFor);
  alert.checks = std::move(event.checks);
  alert.firstError = std::move(event.firstError);
  return alert;
}

bool tellsOfFailure(AlertKind kind) { return kind == AlertKind::down || kind == AlertKind::stillDown; }

}  // namespace

std::optional<std::string> ChannelAlerts::channelsOf(std::int16_t idSite) const {
  return options_.valueOf(idSite, option_name::channels);
}

Alert ChannelAlerts::alertOf(const CheckResult& result) {
  Alert alert{.idSite = result.idSite,
              .made = needs_.clock.localNow(),
              .pass = needs_.delivery.passBegan(),
              .url = std::string(result.url)};
  if (result.passed) {
    return alert;
  }
  const std::string baseline = result.errCode == 0 ? needs_.results.getContentCompare(result.idSite) : std::string();
  alert.cause = causeOf(result, baseline, SiteRules(needs_.standings.database()).rulesOf(result.idSite));
  if (!baseline.empty()) {
    alert.difference = shortDifference(pageText(baseline), pageText(result.page), kMostLines);
  }
  if (needs_.delivery.wantsPage(channelsOf(result.idSite))) {
    alert.page = result.page;
  }
  return alert;
}

void ChannelAlerts::keep(const CheckResult& result, std::span<const AlertKind> kinds, const OutageFacts& outage) {
  const auto channels = channelsOf(result.idSite);
  if (kinds.empty() || !needs_.delivery.tellsOf(channels)) {
    return;
  }
  const Alert alert = alertOf(result);
  for (const AlertKind kind : kinds) {
    Alert one = told(alert, kind, outage);
    if (!tellsOfFailure(kind)) {
      one.cause = isOfCertificate(kind) ? outage.certificate : std::string();
      one.difference.clear();
    }
    needs_.delivery.add(std::move(one), channels);
  }
}

void ChannelAlerts::tellUnkept(const CheckResult& result) {
  const auto channels = channelsOf(result.idSite);
  if (needs_.delivery.tellsOf(channels)) {
    needs_.delivery.addUnkept(told(alertOf(result), AlertKind::down, {.now = needs_.clock.localNow()}), channels);
  }
}

void ChannelAlerts::keep(std::int16_t idSite, const std::string& url, std::span<const AlertKind> kinds,
                         const OutageFacts& outage) {
  const auto channels = channelsOf(idSite);
  if (kinds.empty() || !needs_.delivery.tellsOf(channels)) {
    return;
  }
  const LocalTime now = needs_.clock.localNow();
  for (const AlertKind kind : kinds) {
    Alert alert = told({.idSite = idSite, .made = now, .pass = needs_.delivery.passBegan(), .url = url}, kind, outage);
    alert.cause = tellsOfFailure(kind) ? outage.firstError : std::string();
    needs_.delivery.add(std::move(alert), channels);
  }
}

void ChannelAlerts::keepOnline(LocalTime since) {
  if (!needs_.delivery.tellsOf(std::nullopt)) {
    return;
  }
  const LocalTime now = needs_.clock.localNow();
  const AlertEvent event = eventOf(textsOfReturn().word, {.since = since, .now = now});
  needs_.delivery.add({.made = now,
                       .pass = now,
                       .event = event.event,
                       .cause = "Nothing was counted as down meanwhile. All sites are checked again now.",
                       .downSince = event.downSince,
                       .downFor = event.downFor},
                      std::nullopt);
}

}  // namespace tarnwick
