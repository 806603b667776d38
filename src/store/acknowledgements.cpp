// SPDX-License-Identifier: MIT
#include "store/acknowledgements.h"

#include <array>
#include <span>

#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {

bool Acknowledgements::hasTable() { return tarnwick::hasTable(db_, "acknowledged"); }

std::map<std::int64_t, Acknowledgement> Acknowledgements::acknowledgements() {
  std::map<std::int64_t, Acknowledgement> sites;
  if (!hasTable()) {
    return sites;
  }
  const auto rows = db_.conn().execute("select idSite, page, since from acknowledged", std::span<const SqlValue>());
  for (; !rows->eof(); rows->moveNext()) {
    sites.emplace(rows->field(std::size_t{0}).toInt64(),
                  Acknowledgement{rows->field("page").toText(), rows->field("since").toText()});
  }
  rows->close();
  return sites;
}

std::optional<Acknowledgement> Acknowledgements::acknowledgementOf(std::int16_t idSite) {
  if (!hasTable()) {
    return std::nullopt;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute("select page, since from acknowledged where idSite = ?1", {&id, 1});
  return rows->eof() ? std::nullopt
                     : std::optional(Acknowledgement{rows->field("page").toText(), rows->field("since").toText()});
}

void Acknowledgements::acknowledge(std::int16_t idSite, const std::string& page, LocalTime since) {
  requireTodaysForm(db_.conn(), db_.dbPath());
  const std::array<SqlValue, 3> row{SqlValue(std::int64_t{idSite}), SqlValue(page), SqlValue(dateTimeText(since))};
  db_.conn().execute("insert or replace into acknowledged (idSite, page, since) values (?1, ?2, ?3)", row)->close();
}

void Acknowledgements::removeAcknowledgement(std::int64_t idSite) {
  if (hasTable()) {
    const SqlValue id(idSite);
    db_.conn().execute("delete from acknowledged where idSite = ?1", {&id, 1})->close();
  }
}

}  // namespace tarnwick
