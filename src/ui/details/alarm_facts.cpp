// SPDX-License-Identifier: MIT
#include "ui/details/alarm_facts.h"

#include <algorithm>
#include <QCoreApplication>
#include <QStringList>

#include "ui/controls/alarm_words.h"
#include "ui/controls/delivery_words.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(tarnwick::AlarmPage)
};

QString channelName(const AlarmFacts& facts, std::int64_t idChannel) {
  const auto found = std::ranges::find(facts.known, idChannel, &Channel::id);
  return found == facts.known.end() ? Words::tr("a channel that is gone") : displayText(found->name);
}

QString withAnswer(const QString& words, const OutboxRow& row) {
  return row.answer.empty() ? words : words + QStringLiteral(": ") + displayMessage(row.answer);
}

QString alertLine(const AlarmFacts& facts, const OutboxRow& row) {
  const QString name = channelName(facts, row.idChannel);
  switch (row.state) {
    case OutboxRow::State::sent:
      return Words::tr("%1 at %2").arg(name, stampWords(row.lastTry.value_or(row.alert.made), facts.now));
    case OutboxRow::State::waiting:
      return withAnswer(Words::tr("%1 is waiting").arg(name), row);
    case OutboxRow::State::failed:
      return withAnswer(Words::tr("%1 was not delivered").arg(name), row);
  }
  return {};
}

QString stateWords(const AlarmFacts& facts) {
  const AlarmView& view = facts.view;
  const QString since = view.since ? stampWords(*view.since, facts.now) : QString();
  switch (view.state) {
    case AlarmView::State::none:
      return {};
    case AlarmView::State::unconfirmed:
      return Words::tr("Failing since %1: %2 of %3 failures in a row.").arg(since).arg(view.failures).arg(view.confirm);
    case AlarmView::State::down:
      return view.failures == 1
                 ? Words::tr("Down for real since %1.").arg(since)
                 : Words::tr("Down for real since %1, %2 failures in a row.").arg(since).arg(view.failures);
    case AlarmView::State::known:
      return Words::tr("Down with a page that is known.");
    case AlarmView::State::unsteady:
      return Words::tr("Unsteady: up and down all the time.");
    case AlarmView::State::certificate:
      return view.daysLeft == 1 ? Words::tr("Up, but its certificate ends in 1 day.")
                                : Words::tr("Up, but its certificate ends in %1 days.").arg(view.daysLeft.value_or(0));
    case AlarmView::State::slow:
      return Words::tr("Up, but slow.");
    case AlarmView::State::unknown:
      return Words::tr("Unknown since %1, as this machine is offline.").arg(since);
  }
  return {};
}

}  // namespace

AlarmFacts alarmFactsOf(m& data, std::int16_t idSite, LocalTime now) {
  const OptionsInForce options = data.optionsInForce();
  const AlarmPolicy policy = alarmPolicyOf(options, idSite);
  const SiteStanding standing = data.standingOf(idSite);
  const bool isKnown = data.acknowledgementOf(idSite).has_value();
  const auto certificate = data.certificateOf(idSite, options);
  AlarmFacts facts{.now = now,
                   .view = alarmViewOf(standing, policy, now, isKnown, certificate ? &*certificate : nullptr),
                   .next = nextAlertOf(standing, policy, now, isKnown),
                   .toldAt = standing.lastToldAt,
                   .alerts = data.latestAlertsOf(idSite),
                   .known = data.channels(),
                   .channels = data.delivery().channelsOf(options.valueOf(idSite, option_name::channels)),
                   .ways = data.waysOf(idSite)};
  if (data.delivery().replacesMail()) {
    facts.ways.mailTo.clear();
  }
  return facts;
}

QString alarmStateWords(const AlarmFacts& facts) {
  QStringList sentences;
  if (const QString state = stateWords(facts); !state.isEmpty()) {
    sentences << state;
  }
  if (facts.view.pause) {
    sentences << Words::tr("Paused %1: nothing is told.").arg(pauseWords(*facts.view.pause, facts.now));
  } else if (facts.view.quiet != Quiet::no) {
    sentences << Words::tr("It is a quiet time: nothing is told.");
  }
  return sentences.join(QLatin1Char(' '));
}

QString toldWords(const AlarmFacts& facts) {
  QStringList lines;
  for (const OutboxRow& row : facts.alerts) {
    // What happened without its cause, which the headline tells.
    Alert alert = row.alert;
    alert.cause.clear();
    lines << alertLine(facts, row) + QStringLiteral(" (") + alertWords(alert) + QLatin1Char(')');
  }
  if (lines.isEmpty() && facts.toldAt) {
    lines << Words::tr("at %1").arg(stampWords(*facts.toldAt, facts.now));
  }
  return lines.join(QLatin1Char('\n'));
}

QString nextWords(const AlarmFacts& facts) {
  if (facts.channels.empty() && facts.ways == AlertWays{}) {
    return {};
  }
  const NextAlert& next = facts.next;
  using When = NextAlert::When;
  switch (next.when) {
    case When::never:
      return Words::tr("Never: its alerts are off.");
    case When::failures:
      return next.failures == 1 ? Words::tr("When the next check fails.")
                                : Words::tr("When the next %1 checks in a row fail.").arg(next.failures);
    case When::eachFailure:
      return next.tellsBack ? Words::tr("With each check that fails, and when it is back.")
                            : Words::tr("With each check that fails.");
    case When::reminder: {
      const QString at = stampWords(next.at.value_or(facts.now), facts.now);
      return next.tellsBack ? Words::tr("From %1 on, if it is still down, or when it is back.").arg(at)
                            : Words::tr("From %1 on, if it is still down.").arg(at);
    }
    case When::back:
      return Words::tr("When it is back.");
    case When::nextOutage:
      return Words::tr("Nothing more until it has been up and fails again.");
    case When::otherPage:
      return Words::tr("When another wrong page comes, or none at all.");
    case When::steady:
      return Words::tr("When it has been steady for a while.");
    case When::quietTimeEnds:
      return Words::tr("When the quiet time or pause ends, if it is still so.");
  }
  return {};
}

QString waysWords(const AlarmFacts& facts) {
  QStringList ways;
  for (const Channel& channel : facts.channels) {
    ways << displayText(channel.name);
  }
  if (!facts.ways.mailTo.empty()) {
    ways << Words::tr("a mail to %1").arg(displayText(facts.ways.mailTo));
  }
  if (facts.ways.sound) {
    ways << Words::tr("a sound");
  }
  if (facts.ways.program) {
    ways << Words::tr("a program");
  }
  return ways.isEmpty() ? Words::tr("Nothing is set up: nobody is told.") : ways.join(QStringLiteral(", "));
}

}  // namespace tarnwick
