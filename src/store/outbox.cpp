// SPDX-License-Identifier: MIT
#include "store/outbox.h"

#include <algorithm>
#include <array>

#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

using Parameters = std::span<const SqlValue>;

/// How many of those that have arrived or were given up are kept.
constexpr std::int64_t kKept = 2000;

/// How long it is tried to have an alert leave.
constexpr std::chrono::hours kPatience{24};

constexpr std::array<std::string_view, 3> kStates{"waiting", "sent", "failed"};
constexpr const char* kColumns =
    "idAlert, idChannel, idSite, pass, made, event, url, cause, downSince, downFor, checks, firstError, difference, "
    "state, tries, nextTry, lastTry, deadline, answer, ";
/// Pages may be large: they are read for the one alert that takes its own along.
constexpr const char* kWithPage = "page from outbox ";
constexpr const char* kWithoutPage = "'' as page from outbox ";

SqlValue stored(OutboxRow::State state) { return SqlValue(std::string(kStates[static_cast<std::size_t>(state)])); }
SqlValue stored(LocalTime time) { return SqlValue(dateTimeText(time)); }

OutboxRow rowOf(const Recordset& rows) {
  const auto text = [&](std::string_view name) { return rows.field(name).toText(); };
  const auto time = [&](std::string_view name) { return parseDateTime(text(name)).value_or(LocalTime{}); };
  OutboxRow row;
  row.id = rows.field("idAlert").toInt64();
  row.idChannel = rows.field("idChannel").toInt64();
  const std::int64_t idSite = rows.field("idSite").toInt64();
  row.alert = {.idSite = static_cast<std::int16_t>(std::in_range<std::int16_t>(idSite) ? idSite : 0),
               .made = time("made"),
               .pass = time("pass"),
               .event = text("event"),
               .url = text("url"),
               .cause = text("cause"),
               .downSince = text("downSince"),
               .downFor = text("downFor"),
               .checks = text("checks"),
               .firstError = text("firstError"),
               .difference = text("difference"),
               .page = text("page")};
  const auto state = std::ranges::find(kStates, text("state"));
  row.state =
      state == kStates.end() ? OutboxRow::State::failed : static_cast<OutboxRow::State>(state - kStates.begin());
  row.tries = static_cast<int>(std::clamp<std::int64_t>(rows.field("tries").toInt64(), 0, 1'000'000));
  row.nextTry = time("nextTry");
  row.lastTry = parseDateTime(text("lastTry"));
  row.deadline = time("deadline");
  row.answer = text("answer");
  return row;
}

std::vector<OutboxRow> rowsOf(Database& database, std::string_view behind, Parameters parameters,
                              std::string_view page = kWithoutPage) {
  std::vector<OutboxRow> all;
  const auto rows =
      database.conn().execute(std::string("select ").append(kColumns).append(page).append(behind), parameters);
  for (; !rows->eof(); rows->moveNext()) {
    all.push_back(rowOf(*rows));
  }
  rows->close();
  return all;
}

std::int64_t changed(Database& database, std::string_view sql, Parameters parameters) {
  database.conn().execute(sql, parameters)->close();
  const auto count = database.conn().execute("select changes()", Parameters());
  return count->field(std::size_t{0}).toInt64();
}

/// Runs a statement for each of the ids, behind its other parameters, or with Null for all of them at once.
std::int64_t changedOf(Database& database, std::span<const std::int64_t> ids, std::string_view sql,
                       std::vector<SqlValue> parameters) {
  parameters.emplace_back();
  if (ids.empty()) {
    return changed(database, sql, parameters);
  }
  std::int64_t count = 0;
  for (const std::int64_t id : ids) {
    parameters.back() = SqlValue(id);
    count += changed(database, sql, parameters);
  }
  return count;
}

}  // namespace

bool Outbox::hasOutbox() { return hasTable(db_, "outbox"); }

void Outbox::addAlert(const Alert& alert, std::span<const std::int64_t> channels) {
  requireTodaysForm(db_.conn(), db_.dbPath());
  for (const std::int64_t idChannel : channels) {
    const std::array<SqlValue, 17> row{SqlValue(idChannel),
                                       SqlValue(std::int64_t{alert.idSite}),
                                       stored(alert.pass),
                                       stored(alert.made),
                                       SqlValue(alert.event),
                                       SqlValue(alert.url),
                                       SqlValue(alert.cause),
                                       SqlValue(alert.downSince),
                                       SqlValue(alert.downFor),
                                       SqlValue(alert.checks),
                                       SqlValue(alert.firstError),
                                       SqlValue(alert.difference),
                                       SqlValue(alert.page),
                                       stored(OutboxRow::State::waiting),
                                       stored(alert.made),
                                       SqlValue(std::string()),
                                       stored(alert.made + kPatience)};
    db_.conn()
        .execute(
            "insert into outbox (idChannel, idSite, pass, made, event, url, cause, downSince, downFor, checks, "
            "firstError, difference, page, state, tries, nextTry, lastTry, answer, deadline) values (?1, ?2, ?3, ?4, "
            "?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, 0, ?15, ?16, ?16, ?17)",
            row)
        ->close();
  }
}

std::vector<OutboxRow> Outbox::outboxRows(OutboxRow::State state, std::size_t most) {
  if (!hasOutbox()) {
    return {};
  }
  const std::array<SqlValue, 2> parameters{stored(state), SqlValue(static_cast<std::int64_t>(most))};
  if (state == OutboxRow::State::waiting) {
    return rowsOf(db_, "where state = ?1 order by idAlert limit ?2", parameters);
  }
  auto rows = rowsOf(db_, "where state = ?1 order by idAlert desc limit ?2", parameters);
  std::ranges::reverse(rows);
  return rows;
}

std::optional<OutboxRow> Outbox::firstWaiting(std::int64_t idChannel) {
  if (!hasOutbox()) {
    return std::nullopt;
  }
  const std::array<SqlValue, 2> of{stored(OutboxRow::State::waiting), SqlValue(idChannel)};
  std::vector<OutboxRow> first =
      rowsOf(db_, "where state = ?1 and idChannel = ?2 order by idAlert limit 1", of, kWithPage);
  return first.empty() ? std::nullopt : std::optional(std::move(first.front()));
}

std::vector<OutboxRow> Outbox::waitingLike(const OutboxRow& first) {
  const std::array<SqlValue, 4> like{stored(OutboxRow::State::waiting), SqlValue(first.idChannel),
                                     stored(first.alert.pass), SqlValue(std::int64_t{first.tries})};
  return rowsOf(db_, "where state = ?1 and idChannel = ?2 and pass = ?3 and tries = ?4 order by idAlert", like);
}

OutboxSummary Outbox::outboxSummary() {
  OutboxSummary summary;
  if (!hasOutbox()) {
    return summary;
  }
  const auto rows = db_.conn().execute(
      "select state, answer <> '', count(*), max(idAlert) from outbox where state <> 'sent' group by 1, 2",
      Parameters());
  for (; !rows->eof(); rows->moveNext()) {
    const bool isFailed = rows->field(std::size_t{0}).toText() == "failed";
    const bool isTried = rows->field(std::size_t{1}).toInt64() != 0;
    const std::int64_t count = rows->field(std::size_t{2}).toInt64();
    (isFailed ? summary.failed : summary.waiting) += count;
    summary.delayed += !isFailed && isTried ? count : 0;
  }
  rows->close();
  const auto answerOf = [&](const char* sql) {
    const auto answer = db_.conn().execute(sql, Parameters());
    return answer->eof() ? std::string() : answer->field(std::size_t{0}).toText();
  };
  // One whose first try is under way has no answer yet.
  summary.delayedBy = answerOf(
      "select answer from outbox where state = 'waiting' and answer <> '' order by lastTry desc, idAlert limit 1");
  summary.delayed = summary.delayedBy.empty() ? 0 : summary.delayed;
  summary.failedBy = answerOf("select answer from outbox where state = 'failed' order by idAlert desc limit 1");
  return summary;
}

std::vector<OutboxRow> Outbox::undelivered(const std::string& event, LocalTime madeUntil) {
  if (!hasOutbox()) {
    return {};
  }
  const std::array<SqlValue, 4> of{SqlValue(event), stored(OutboxRow::State::failed), stored(OutboxRow::State::waiting),
                                   stored(madeUntil)};
  return rowsOf(db_,
                "where event = ?1 and (state = ?2 or (state = ?3 and made <= ?4)) and not exists (select 1 from outbox "
                "as later where later.event = ?1 and later.idChannel = outbox.idChannel and later.idAlert > "
                "outbox.idAlert and later.state not in (?3)) order by idAlert",
                of);
}

std::optional<LocalTime> Outbox::lastMade(const std::string& event) {
  if (!hasOutbox()) {
    return std::nullopt;
  }
  const SqlValue value(event);
  const auto rows = db_.conn().execute("select max(made) as made from outbox where event = ?1", {&value, 1});
  return rows->eof() ? std::nullopt : parseDateTime(rows->field("made").toText());
}

std::vector<OutboxRow> Outbox::latestAlertsOf(std::int16_t idSite) {
  if (!hasOutbox()) {
    return {};
  }
  const std::array<SqlValue, 1> parameters{SqlValue(std::int64_t{idSite})};
  return rowsOf(db_,
                "where idAlert in (select max(idAlert) from outbox where idSite = ?1 group by idChannel) order by "
                "idAlert",
                parameters);
}

std::map<std::int64_t, LastTry> Outbox::lastTries() {
  std::map<std::int64_t, LastTry> tries;
  if (!hasOutbox()) {
    return tries;
  }
  // Of equal moments the later alert counts: those before it were tried before.
  const auto rows = db_.conn().execute(
      "select idChannel, state, lastTry from outbox where lastTry <> '' order by lastTry, idAlert", Parameters());
  for (; !rows->eof(); rows->moveNext()) {
    const LocalTime at = parseDateTime(rows->field(std::size_t{2}).toText()).value_or(LocalTime{});
    tries.insert_or_assign(rows->field(std::size_t{0}).toInt64(),
                           LastTry{rows->field(std::size_t{1}).toText() == "sent", at});
  }
  rows->close();
  return tries;
}

bool Outbox::claim(std::span<const OutboxRow> rows, LocalTime until) {
  Transaction whole(db_);
  for (const OutboxRow& row : rows) {
    const std::array<SqlValue, 4> parameters{SqlValue(row.id), stored(row.nextTry), SqlValue(std::int64_t{row.tries}),
                                             stored(until)};
    if (changed(
            db_,
            "update outbox set tries = tries + 1, nextTry = ?4, lastTry = '' where idAlert = ?1 and nextTry = ?2 and "
            "tries = ?3 and state = 'waiting'",
            parameters) == 0) {
      return false;
    }
  }
  whole.commit();
  return true;
}

void Outbox::settle(std::span<const OutboxRow> rows, LocalTime now, std::string_view answer, std::string_view state,
                    LocalTime nextTry) {
  Transaction whole(db_);
  for (const OutboxRow& row : rows) {
    const std::array<SqlValue, 5> parameters{SqlValue(row.id), SqlValue(std::string(state)),
                                             SqlValue(std::string(answer)), stored(nextTry), stored(now)};
    changed(db_,
            "update outbox set state = ?2, answer = ?3, nextTry = ?4, lastTry = ?5, page = case when ?2 = 'sent' then "
            "'' else page end where idAlert = ?1 and state = 'waiting'",
            parameters);
  }
  const SqlValue kept(kKept);
  changed(db_, "delete from outbox where state <> 'waiting' and idAlert <= (select max(idAlert) from outbox) - ?1",
          {&kept, 1});
  whole.commit();
}

void Outbox::setSent(std::span<const OutboxRow> rows, LocalTime now, std::string_view answer) {
  settle(rows, now, answer, "sent", now);
}

void Outbox::setNotSent(std::span<const OutboxRow> rows, LocalTime now, std::string_view answer,
                        std::optional<LocalTime> nextTry) {
  settle(rows, now, answer, nextTry ? "waiting" : "failed", nextTry.value_or(now));
}

std::int64_t Outbox::retryAlerts(std::span<const std::int64_t> ids, LocalTime now) {
  if (!hasOutbox()) {
    return 0;
  }
  Transaction whole(db_);
  const std::int64_t count =
      changedOf(db_, ids,
                "update outbox set state = 'waiting', tries = 0, nextTry = ?1, deadline = ?2 where state <> "
                "'sent' and not (tries > 0 and lastTry = '' and nextTry > ?1) and (?3 is null or "
                "idAlert = ?3)",
                {stored(now), stored(now + kPatience)});
  whole.commit();
  return count;
}

std::int64_t Outbox::dropAlerts(std::span<const std::int64_t> ids) {
  if (!hasOutbox()) {
    return 0;
  }
  Transaction whole(db_);
  const std::int64_t count =
      changedOf(db_, ids, "delete from outbox where state <> 'sent' and (?1 is null or idAlert = ?1)", {});
  whole.commit();
  return count;
}

void Outbox::removeAlertsOf(std::int64_t idSite) {
  if (hasOutbox()) {
    const SqlValue id(idSite);
    changed(db_, "delete from outbox where idSite = ?1", {&id, 1});
  }
}

}  // namespace tarnwick
