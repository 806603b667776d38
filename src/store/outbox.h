// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "store/database.h"

namespace tarnwick {

/// What is told, as it stood when it happened.
struct Alert {
  std::int16_t idSite = 0;  ///< 0 for what is told of no site
  LocalTime made{};
  /// When its pass began: alerts of one pass may be bundled.
  LocalTime pass{};
  std::string event{};  ///< "down", "still down", "up", "unsteady", "slow", "certificate", "issuer", "online", "test",
                        ///< "month"
  std::string url{};
  std::string cause{};       ///< why a check failed, in one line
  std::string downSince{};   ///< a date; empty when it is not known
  std::string downFor{};     ///< a span, "1 h 12 min"; empty when it is not known
  std::string checks{};      ///< how many have failed, in decimal; empty when it is not known
  std::string firstError{};  ///< of the outage
  std::string difference{};  ///< lines of a unified diff; empty when there is none
  std::string page{};        ///< the whole page, for who wants it attached; else empty

  bool operator==(const Alert&) const = default;
};

/// The event of the alert that only tries the channels, each day.
inline constexpr const char* kDailyTest = "daily test";

/// The event of the report of a month.
inline constexpr const char* kMonthReport = "month";

/// An alert on its way through one channel.
struct OutboxRow {
  enum class State { waiting, sent, failed };

  std::int64_t id = 0;
  std::int64_t idChannel = 0;
  Alert alert{};
  State state = State::waiting;
  /// Since it was made, or its user had it tried again.
  int tries = 0;
  /// Of one that waits; what lies in the future may also be the end of a try that is under way.
  LocalTime nextTry{};
  /// Nothing also while the first try, or one more, is under way.
  std::optional<LocalTime> lastTry{};
  /// From when on a try that fails is the last one.
  LocalTime deadline{};
  /// What the last try came to, in the words of who was asked; empty when there was none.
  std::string answer{};
};

/// How things stand, for a line that tells it.
struct OutboxSummary {
  /// Those that have been tried in vain at least once, and what the latest such try came to.
  std::int64_t delayed = 0;
  std::string delayedBy;
  /// Those that were given up, and why the latest was.
  std::int64_t failed = 0;
  std::string failedBy;
  /// All that wait.
  std::int64_t waiting = 0;

  bool operator==(const OutboxSummary&) const = default;
};

/// When a channel was tried last, and what it came to.
struct LastTry {
  bool isSent = false;
  LocalTime at{};
};

/// Table `outbox`: the alerts that are on their way through channels, and the latest that have arrived or were given
/// up. A list without the table reads as if it were empty. Every failed statement raises DataAccessError.
class Outbox {
 public:
  explicit Outbox(Database& database) : db_(database) {}

  /// Has an alert leave through these channels, as soon as possible. REQUIRES: a transaction, that of what caused it.
  void addAlert(const Alert& alert, std::span<const std::int64_t> channels);

  /// Those of a state without their pages, the oldest first; of what is no longer waiting the latest so many.
  std::vector<OutboxRow> outboxRows(OutboxRow::State state, std::size_t most = 1000);
  /// What the channel has to deliver first, with its page: the oldest one that waits. Nothing when none does.
  std::optional<OutboxRow> firstWaiting(std::int64_t idChannel);
  /// Those that wait for the same channel, were made in the same pass and have been tried as often, with that one.
  std::vector<OutboxRow> waitingLike(const OutboxRow& first);
  OutboxSummary outboxSummary();
  /// The latest alerts of that event, one of each channel at most, that were given up, or still wait and were made
  /// until then; without those of a channel that has delivered a later one.
  std::vector<OutboxRow> undelivered(const std::string& event, LocalTime madeUntil);
  /// When an alert of that event was made last; nothing when none is kept.
  std::optional<LocalTime> lastMade(const std::string& event);
  /// The latest alert of a site through each channel, as far as it is kept, without its page.
  std::vector<OutboxRow> latestAlertsOf(std::int16_t idSite);
  /// The last try of each channel, as far as it is still known.
  std::map<std::int64_t, LastTry> lastTries();

  /// Begins a try of these, which is over at `until` at the latest: nobody else tries them before. False when somebody
  /// has begun to do so since they were read.
  bool claim(std::span<const OutboxRow> rows, LocalTime until);
  /// They have arrived.
  void setSent(std::span<const OutboxRow> rows, LocalTime now, std::string_view answer);
  /// They have not, and are tried again at `nextTry`; never again where that is nothing.
  void setNotSent(std::span<const OutboxRow> rows, LocalTime now, std::string_view answer,
                  std::optional<LocalTime> nextTry);

  /// Has all that wait, and all that were given up, tried again now, and from then on as often and for as long as new
  /// ones; those of the ids, or all. One that is being tried is left alone. Returns how many.
  std::int64_t retryAlerts(std::span<const std::int64_t> ids, LocalTime now);
  /// Takes those of the ids, or all, out that wait or were given up. Returns how many.
  std::int64_t dropAlerts(std::span<const std::int64_t> ids);
  /// Takes out what is on its way of a site that is deleted. REQUIRES: a transaction.
  void removeAlertsOf(std::int64_t idSite);

 private:
  bool hasOutbox();
  void settle(std::span<const OutboxRow> rows, LocalTime now, std::string_view answer, std::string_view state,
              LocalTime nextTry);

  Database& db_;
};

}  // namespace tarnwick
