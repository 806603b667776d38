// SPDX-License-Identifier: MIT
#include "cli/verbs/alarm_words.h"

#include "cli/terminal/json_output.h"
#include "cli/verbs/unwatched.h"
#include "engine/certificate_rule.h"
#include "exchange/list/site_facts.h"

namespace tarnwick {
namespace {

const char* reasonOf(Unwatched why) {
  switch (why) {
    case Unwatched::no:
      break;
    case Unwatched::noRun:
      return "no run is on";
    case Unwatched::neverChecked:
      return "never checked, and not taken on by the run that is on";
    case Unwatched::overdue:
      return "not checked for two intervals";
    case Unwatched::quiet:
      return "not checked at this time";
  }
  return "";
}

/// As a script reads it.
const char* wordOf(Unwatched why) {
  switch (why) {
    case Unwatched::no:
      break;
    case Unwatched::noRun:
      return "noRun";
    case Unwatched::neverChecked:
      return "neverChecked";
    case Unwatched::overdue:
      return "overdue";
    case Unwatched::quiet:
      return "quiet";
  }
  return "";
}

const char* wordOf(AlarmView::State state) {
  switch (state) {
    case AlarmView::State::none:
      break;
    case AlarmView::State::unconfirmed:
      return "unconfirmed";
    case AlarmView::State::down:
      return "down";
    case AlarmView::State::unsteady:
      return "unsteady";
    case AlarmView::State::certificate:
      return "certificate";
    case AlarmView::State::slow:
      return "slow";
    case AlarmView::State::unknown:
      return "unknown";
    case AlarmView::State::known:
      return "known";
  }
  return "";
}

}  // namespace

SiteWatches::SiteWatches(Tool& tool)
    : now_(tool.services().clock.localNow()),
      runIsOn_(seemsToRun(tool)),
      options_(tool.data().optionsInForce()),
      standings_(tool.data().standings()),
      known_(tool.data().acknowledgements()),
      certificates_(tool.data().certificates(options_)) {}

SiteWatch SiteWatches::of(const SiteFacts& facts) const {
  const auto known = standings_.find(facts.idSite);
  SiteWatch watch;
  watch.alarm =
      alarmViewOf(known == standings_.end() ? SiteStanding{} : known->second, alarmPolicyOf(options_, facts.idSite),
                  now_, known_.contains(facts.idSite), certificates_, facts.idSite);
  if (const auto certificate = certificates_.find(facts.idSite); certificate != certificates_.end()) {
    watch.certificate = certificate->second;
  }
  watch.unwatched = unwatchedOf({.active = facts.site.active,
                                 .lastChecked = parseStamp(facts.lastChecked),
                                 .interval = SqlValue(facts.site.tInterval).toInt64(),
                                 .runIsOn = runIsOn_,
                                 .newSitesAtOnce = options_.newSitesAtOnce()},
                                watch.alarm.quiet, now_);
  return watch;
}

void addTo(JsonValue& json, const SiteWatch& watch) {
  const AlarmView& view = watch.alarm;
  JsonValue alarm = JsonValue::object();
  if (view.state != AlarmView::State::none) {
    alarm["state"] = JsonValue(std::string(wordOf(view.state)));
  }
  if (view.failures > 0) {
    alarm["failures"] = JsonValue(view.failures);
    alarm["confirm"] = JsonValue(view.confirm);
    alarm["firstError"] = jsonText(view.firstError);
  }
  if (view.since) {
    alarm["since"] = JsonValue(dateTimeText(*view.since));
  }
  if (view.pause) {
    alarm["pause"] = JsonValue(pauseText(*view.pause));
  }
  if (view.quiet != Quiet::no) {
    alarm["quiet"] = JsonValue(std::string(view.quiet == Quiet::noChecks ? "noChecks" : "keepsAlerts"));
  }
  if (!std::get<JsonValue::Object>(alarm.content()).empty()) {
    json["alarm"] = std::move(alarm);
  }
  if (const auto& certificate = watch.certificate) {
    json["certificate"] = JsonValue{{"began", dateTimeText(localTimeAt(certificate->began))},
                                    {"ends", dateTimeText(localTimeAt(certificate->ends))},
                                    {"issuer", jsonText(certificate->issuer)},
                                    {"endsSoon", view.daysLeft.has_value()}};
  }
  if (watch.unwatched != Unwatched::no) {
    json["unwatched"] = JsonValue(std::string(wordOf(watch.unwatched)));
  }
}

std::vector<std::pair<std::string, std::string>> linesOf(const Console& console, const SiteWatch& watch) {
  const AlarmView& view = watch.alarm;
  std::vector<std::pair<std::string, std::string>> lines;
  if (view.state != AlarmView::State::none && view.state != AlarmView::State::certificate) {
    const std::string since = view.since ? ", " + console.worded("since " + dateTimeText(*view.since)) : "";
    lines.emplace_back("Alarm", console.worded(wordsOf(view)) + since);
  }
  if (!view.firstError.empty()) {
    lines.emplace_back("First error", visibleText(view.firstError));
  }
  if (view.pause) {
    lines.emplace_back("Paused", console.worded(pauseText(*view.pause)));
  } else if (view.quiet != Quiet::no) {
    lines.emplace_back("Quiet now",
                       console.worded(view.quiet == Quiet::noChecks ? "it is not checked" : "its alerts are kept"));
  }
  if (const auto& certificate = watch.certificate) {
    const std::string left = view.daysLeft ? console.worded(daysText(*view.daysLeft)) + ", " : std::string();
    lines.emplace_back("Certificate", left + console.worded("until " + dateTimeText(localTimeAt(certificate->ends))) +
                                          (certificate->issuer.empty() ? std::string() : ", ") +
                                          visibleText(certificate->issuer));
  }
  // That no run is on is nothing new for a script.
  if (watch.unwatched != Unwatched::no && (watch.unwatched != Unwatched::noRun || console.isTerminal())) {
    lines.emplace_back("Unwatched", console.worded(reasonOf(watch.unwatched)));
  }
  return lines;
}

void UnwatchedCount::add(std::int64_t idSite, Unwatched why) {
  Some& some = sites_[why];
  some.first = some.count++ == 0 ? idSite : some.first;
}

void UnwatchedCount::complain(Tool& tool) const {
  Console& console = tool.console();
  if (!console.isTerminal() && !seemsToRun(tool)) {
    return;
  }
  for (const auto& [why, some] : sites_) {
    const std::string count = std::to_string(some.count);
    const bool isOne = some.count == 1;
    switch (why) {
      case Unwatched::no:
        break;
      case Unwatched::noRun:
        console.complain(isOne ? "1 active site is not watched, since no run is on. Start one with: tarnwickctl run"
                               : count +
                                     " active sites are not watched, since no run is on. Start one with: "
                                     "tarnwickctl run");
        break;
      case Unwatched::neverChecked:
        console.complain(isOne ? "1 active site was never checked, and the run that is on does not take it on. Check "
                                 "it with: tarnwickctl check " +
                                     std::to_string(some.first)
                               : count +
                                     " active sites were never checked, and the run that is on does not take them "
                                     "on. Check the first with: tarnwickctl check " +
                                     std::to_string(some.first));
        break;
      case Unwatched::overdue:
        console.complain(isOne ? "1 active site has not been checked for two of its intervals, though a run is on. "
                                 "See whether it is held up, or stop it and start it anew."
                               : count +
                                     " active sites have not been checked for two of their intervals, though a "
                                     "run is on. See whether it is held up, or stop it and start it anew.");
        break;
      case Unwatched::quiet:
        console.complain(isOne ? "1 active site is not checked at this time, as its quiet hours or its maintenance say."
                               : count +
                                     " active sites are not checked at this time, as their quiet hours or their "
                                     "maintenance say.");
        break;
    }
  }
}

}  // namespace tarnwick
