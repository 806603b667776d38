// SPDX-License-Identifier: MIT
#include "store/option_table.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <stdexcept>

#include "base/text.h"
#include "store/alarm_values.h"
#include "store/options_for_others.h"

namespace tarnwick {
namespace {

std::string inWords(const std::vector<std::string>& choices) {
  std::string words;
  for (const std::string& choice : choices) {
    words += (words.empty() ? "\"" : " or \"") + choice + "\"";
  }
  return words;
}

const std::vector<std::string>& words(const OptionField& option) {
  static const std::vector<std::string> flag{"on", "off"};
  return option.kind == OptionKind::flag ? flag : option.choices;
}

/// The form of a text that `read` understands and `write` tells again.
template <auto read, auto write>
std::optional<std::string> formBy(std::string_view text) {
  const auto value = read(text);
  return value ? std::optional(write(*value)) : std::nullopt;
}

std::optional<std::string> unsteadyForm(std::string_view text) {
  return equalsIgnoringCase(text, option_value::off) ? std::optional(std::string(option_value::off))
                                                     : formBy<readUnsteadyLimit, unsteadyLimitText>(text);
}

std::optional<std::string> certificateForm(std::string_view text) {
  return equalsIgnoringCase(text, option_value::off) ? std::optional(std::string(option_value::off))
                                                     : formBy<readCertificateLimits, certificateLimitsText>(text);
}

std::vector<OptionField> alarmOptions() {
  return {
      {.name = std::string(option_name::alerts),
       .kind = OptionKind::flag,
       .ofSite = true,
       .original = "a failed check raises the alerts of the settings",
       .label = "Alerts",
       .meaning = "Whether anything is told at all; with \"off\" a site is checked and recorded, and nobody is told"},
      {.name = std::string(option_name::confirm),
       .kind = OptionKind::number,
       .ofSite = true,
       .least = 1,
       .most = 20,
       .unit = "failures",
       .original = "the first failed check is told",
       .label = "Down for real after",
       .meaning =
           "How many checks in a row must fail before it is told; the check is repeated in the same pass, at another "
           "address of the host if it has several"},
      {.name = std::string(option_name::confirmAfter),
       .kind = OptionKind::text,
       .ofSite = true,
       .original = "5 s, 20 s",
       .label = "Look again after",
       .meaning = "The pauses before a failed check is repeated; the last one holds for all further ones",
       .form = &formBy<readPauses, pausesText>,
       .takes = "up to ten pauses of 1 to 300 seconds, as in \"5 s, 20 s\""},
      {.name = std::string(option_name::recovery),
       .kind = OptionKind::flag,
       .ofSite = true,
       .original = "nobody is told that a site is up again",
       .label = "Tell when it is up again",
       .meaning = "Whether one alert tells that a site is up again, how long it was down and why"},
      {.name = std::string(option_name::remind),
       .kind = OptionKind::number,
       .ofSite = true,
       .least = 1,
       .most = 10080,
       .choices = {std::string(option_value::never), std::string(option_value::growing),
                   std::string(option_value::everyCheck)},
       .unit = "minutes",
       .original = "every failed check is told",
       .label = "While it stays down remind every",
       .meaning = "What follows the first alert of an outage: one every so many minutes, one after 1, 2, 4 ... hours "
                  "(\"growing\"), none (\"never\") or one with every failed check"},
      {.name = std::string(option_name::flapping),
       .kind = OptionKind::text,
       .ofSite = true,
       .original = "each change is told for itself",
       .label = "Unsteady: more changes than",
       .meaning =
           "More changes between up and down within that time are told as one alert, and then nothing until the site "
           "has held still for as long",
       .form = &unsteadyForm,
       .takes = "a number of changes and of minutes, as in \"5 in 30 min\", or \"off\""},
      {.name = std::string(option_name::slow),
       .kind = OptionKind::number,
       .ofSite = true,
       .least = 1,
       .most = 600000,
       .choices = {std::string(option_value::off)},
       .unit = "milliseconds",
       .original = "it does not matter how long an answer takes",
       .label = "Slow: an answer after",
       .meaning = "A page that took longer is a warning, with a colour and an alert of its own; the site is up"},
      {.name = std::string(option_name::certificate),
       .kind = OptionKind::text,
       .ofSite = true,
       .original = "of a certificate it matters only whether it holds",
       .label = "Certificate: warn before it ends",
       .meaning =
           "So many days before the certificate of a site ends, or when a third of its lifetime is left, there is "
           "a warning, with a colour and an alert of its own; so there is an alert when another authority has "
           "issued it; the site is up",
       .form = &certificateForm,
       .takes = "numbers of days parted by commas, as in \"21, 7, 1\", \"third\" for a third of its lifetime, or "
                "\"off\""},
      {.name = std::string(option_name::quiet),
       .kind = OptionKind::text,
       .ofSite = true,
       .original = "there are no quiet hours",
       .label = "Quiet hours",
       .meaning = "The hours of the week in which nothing is told; what is still so is told when they end",
       .form = &formBy<readWeekHours, weekHoursText>,
       .takes = "days and hours, as in \"Mon-Fri 22:00-6:00, Sat, Sun 0:00-24:00\" or \"daily 22-6\", or \"none\""},
      {.name = std::string(option_name::quietHow),
       .kind = OptionKind::choice,
       .ofSite = true,
       .choices = {std::string(option_value::keepAlerts), std::string(option_value::doNotCheck)},
       .original = "sites are checked in quiet hours, too",
       .label = "In quiet hours",
       .meaning = "Whether a site is checked in its quiet hours"},
      {.name = std::string(option_name::maintenance),
       .kind = OptionKind::text,
       .ofSite = true,
       .original = "there is no maintenance",
       .label = "Maintenance",
       .meaning = "Dated times that are quiet as well",
       .form = &formBy<readDatedWindows, datedWindowsText>,
       .takes = "times parted by semicolons, each perhaps with \"do not check\" or \"keep alerts\" and a note, as in "
                "\"2026-12-01 08:00 to 2026-12-01 12:00, do not check: new server\", or \"none\""},
      {.name = std::string(option_name::pause),
       .kind = OptionKind::text,
       .ofSite = true,
       .original = "the alerts are not paused",
       .label = "Pause",
       .meaning = "How long nothing is told; checks go on, and what is still so afterwards is told then",
       .form = &formBy<readPause, pauseText>,
       .takes = "\"until 2026-12-01 08:00\", \"for good\" or \"no\""},
      {.name = std::string(option_name::ownNetwork),
       .kind = OptionKind::flag,
       .original = "a site whose server cannot be reached is down, also when this machine is offline",
       .label = "This machine's own network",
       .meaning = "When nothing answers, ask whether this machine is online; as long as it is not, nothing is counted "
                  "as down"},
      {.name = std::string(option_name::witnesses),
       .kind = OptionKind::text,
       .original = "no host is asked, the machine is online when it knows a way to the Internet",
       .label = "Witness hosts",
       .meaning = "Hosts of which at least one answers as long as this machine is online",
       .form = &formBy<readHosts, hostsText>,
       .takes = "hosts parted by commas, as in \"example.org, 192.0.2.1:53\", or \"none\""},
      {.name = std::string(option_name::channels),
       .kind = OptionKind::text,
       .ofSite = true,
       .original = "the channels that are there for all sites, if any is set up",
       .label = "Through",
       .meaning = "The channels by which its alerts leave",
       .form = &formBy<readNames, namesText>,
       .takes = "names of channels parted by commas, as in \"phone, office mail\", or \"none\""},
      {.name = std::string(option_name::allIsWell),
       .kind = OptionKind::text,
       .original = "nothing is told while all is well",
       .label = "\"All is well\" daily at",
       .meaning = "When a message with the figures of the day leaves through the channels, each day that a run is on",
       .form = &formBy<readTimeOfDay, timeOfDayText>,
       .takes = "a time of the day, as in \"8:00\""},
      {.name = std::string(option_name::testAlert),
       .kind = OptionKind::text,
       .original = "no alert is sent that only tries the channels",
       .label = "Test alert daily at",
       .meaning = "When an alert leaves that only tries the channels; one that does not arrive is told by the outbox",
       .form = &formBy<readTimeOfDay, timeOfDayText>,
       .takes = "a time of the day, as in \"8:00\""},
      {.name = std::string(option_name::heartbeat),
       .kind = OptionKind::text,
       .original = "nobody is told that a run is on",
       .label = "Heartbeat to",
       .meaning = "An address that is asked once a minute while a run is on, so that somebody notices when it is not",
       .form = &formBy<readWebAddress, webAddressText>,
       .takes = "an address that begins with http:// or https://"},
  };
}

std::vector<OptionField> runOptions() {
  return {
      {.name = std::string(option_name::newSites),
       .kind = OptionKind::choice,
       .choices = {std::string(option_value::atOnce), "at the next start"},
       .recommended = std::string(option_value::atOnce),
       .original = "a site that was never checked is not taken on before the next Start",
       .label = "New sites",
       .meaning = "When a run takes on a site that was never checked"},
      {.name = std::string(option_name::adopt),
       .kind = OptionKind::choice,
       .ofSite = true,
       .choices = {std::string(option_value::pagesOnly), "anything"},
       .recommended = std::string(option_value::pagesOnly),
       .original = "the first answer becomes the baseline, also the text of a fetch that failed",
       .label = "First baseline",
       .meaning = "What becomes the baseline of a site that has none; with \"pages only\" a fetch that failed, an "
                  "error page of the "
                  "server or a page that is suddenly less than half as long does not"},
      {.name = std::string(option_name::mailLimit),
       .kind = OptionKind::number,
       .least = 1,
       .most = 3600,
       .unit = "seconds",
       .recommended = "60",
       .original = "a mail server that stays silent is waited for without end",
       .label = "Mail exchange at most",
       .meaning = "The longest time that handing over one mail may take, connecting included"},
      {.name = std::string(option_name::logLimit),
       .kind = OptionKind::number,
       .least = 1,
       .most = 1048576,
       .unit = "MiB",
       .recommended = "1024",
       .original = "the log keeps the page of every failed check, and the disk may fill",
       .label = "Pages in the log at most",
       .meaning =
           "How much the log holds of pages; the oldest are emptied first, and no page is stored while less than "
           "1 GiB or 5 % of the disk is free"},
      {.name = std::string(option_name::history),
       .kind = OptionKind::flag,
       .recommended = std::string(option_value::on),
       .original = "only the log tells of checks that are over",
       .label = "History",
       .meaning = "Whether it is kept for years when each site was up or down, and how long its answers took"},
      {.name = std::string(option_name::historyHours),
       .kind = OptionKind::number,
       .least = 8,
       .most = 36500,
       .unit = "days",
       .original = "the history keeps each hour for good",
       .label = "Hours of the history for",
       .meaning = "After how many days the history keeps only the sums of days and months, which stay as they are"},
      {.name = std::string(option_name::monthReport),
       .kind = OptionKind::flag,
       .original = "a report of a month is made by \"tarnwickctl month-report\" only",
       .label = "Month's report",
       .meaning = "Whether a run makes a report of each month that has ended: as a file in the folder reports, and as "
                  "a message by the channels that are on for all sites"},
      {.name = std::string(option_name::statusPage),
       .kind = OptionKind::text,
       .original = "no page tells others how the sites stand",
       .label = "Status page in",
       .meaning = "A folder in which a run keeps a page for others, index.html: which sites are up now, and 30 days of "
                  "each"},
      {.name = std::string(option_name::metricsFile),
       .kind = OptionKind::text,
       .original = "figures leave by \"tarnwickctl metrics\" only",
       .label = "Metrics in",
       .meaning =
           "A file in which a run keeps figures of all sites for Prometheus, as its textfile collector reads them"},
      {.name = std::string(option_name::parallel),
       .kind = OptionKind::number,
       .least = 5,
       .most = 256,
       .choices = {std::string(option_value::automatic)},
       .original = "five sites are fetched at a time",
       .label = "Requests at a time",
       .meaning = "How many sites are fetched at the same time; with \"auto\" as many as their answers bear"},
      {.name = std::string(option_name::perHost),
       .kind = OptionKind::number,
       .least = 1,
       .most = 256,
       .original = "2 where parallel is more than 5, else there is no such limit",
       .label = "Requests at a time to one host",
       .meaning = "How many pages of one host are fetched at the same time"},
      {.name = std::string(option_name::spacing),
       .kind = OptionKind::number,
       .least = 0,
       .most = 60000,
       .unit = "milliseconds",
       .original = "250 where parallel is more than 5, else there is no such pause",
       .label = "Pause between requests to one host",
       .meaning = "The least time between the starts of two requests to one host"},
  };
}

}  // namespace

std::string OptionField::values() const {
  switch (kind) {
    case OptionKind::number:
      return "a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
             (unit.empty() ? std::string() : " (" + unit + ")") + (choices.empty() ? "" : " or " + inWords(choices));
    case OptionKind::text:
      return form != nullptr ? takes : "a text";
    case OptionKind::flag:
    case OptionKind::choice:
      break;
  }
  return inWords(words(*this));
}

std::string OptionField::checked(std::string_view value) const {
  if (kind == OptionKind::text && !value.empty()) {
    if (auto stored = form != nullptr ? form(value) : std::string(value)) {
      return *std::move(stored);
    }
  }
  if (kind == OptionKind::number) {
    std::int64_t number = 0;
    const char* const end = value.data() + value.size();
    const auto [rest, fault] = std::from_chars(value.data(), end, number);
    if (fault == std::errc() && rest == end && number >= least && number <= most) {
      return std::to_string(number);
    }
  }
  if (kind != OptionKind::text) {
    const auto word =
        std::ranges::find_if(words(*this), [&](const std::string& known) { return equalsIgnoringCase(known, value); });
    if (word != words(*this).end()) {
      return *word;
    }
  }
  throw std::runtime_error("The option " + name + " does not take \"" + std::string(value) + "\". It takes " +
                           values() + ".");
}

const std::vector<OptionField>& programOptions() {
  static const std::vector<OptionField> options = [] {
    std::vector<OptionField> all = runOptions();
    std::ranges::move(alarmOptions(), std::back_inserter(all));
    return all;
  }();
  return options;
}

}  // namespace tarnwick
