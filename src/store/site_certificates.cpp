// SPDX-License-Identifier: MIT
#include "store/site_certificates.h"

#include <algorithm>
#include <array>
#include <limits>

#include "store/history_rows.h"
#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

constexpr std::array kOptions{option_name::certificate};

/// The fields `began, ends, issuer, told` from the number `first` on.
SiteCertificate certificateIn(const Recordset& rows, std::size_t first) {
  SiteCertificate certificate{history_rows::momentIn(rows.field(first)), history_rows::momentIn(rows.field(first + 1)),
                              rows.field(first + 2).toText(), std::nullopt};
  if (const SqlValue told = rows.field(first + 3); !told.isNull()) {
    certificate.told =
        static_cast<int>(std::clamp<std::int64_t>(told.toInt64(), 0, std::numeric_limits<std::int32_t>::max()));
  }
  return certificate;
}

bool hasTable(Database& database) { return hasTable(database, "certificates"); }

}  // namespace

bool looksAtCertificate(const OptionsInForce& options, std::int64_t idSite) {
  const auto value = options.valueOf(idSite, option_name::certificate);
  return value && *value != option_value::off;
}

std::map<std::int64_t, SiteCertificate> SiteCertificates::certificates(const OptionsInForce& options,
                                                                       std::int64_t first, std::int64_t last) {
  std::map<std::int64_t, SiteCertificate> sites;
  if (!options.setsAnyOf(kOptions) || !hasTable(db_)) {
    return sites;
  }
  const std::array<SqlValue, 2> ids{SqlValue(first), SqlValue(last)};
  const auto rows = db_.conn().execute(
      "select idSite, began, ends, issuer, told from certificates where idSite >= ?1 and idSite <= ?2", ids);
  for (; !rows->eof(); rows->moveNext()) {
    if (const std::int64_t id = rows->field(std::size_t{0}).toInt64(); looksAtCertificate(options, id)) {
      sites.emplace(id, certificateIn(*rows, 1));
    }
  }
  rows->close();
  return sites;
}

std::optional<SiteCertificate> SiteCertificates::certificateOf(std::int64_t idSite, const OptionsInForce& options) {
  if (!looksAtCertificate(options, idSite) || !hasTable(db_)) {
    return std::nullopt;
  }
  const SqlValue id(idSite);
  const auto rows =
      db_.conn().execute("select began, ends, issuer, told from certificates where idSite = ?1", {&id, 1});
  auto found = rows->eof() ? std::nullopt : std::optional(certificateIn(*rows, 0));
  rows->close();
  return found;
}

bool SiteCertificates::canBeKept() {
  if (!hasTable(db_)) {
    requireTodaysForm(db_.conn(), db_.dbPath());
  }
  return hasTable(db_);
}

void SiteCertificates::storeCertificate(std::int64_t idSite, const SiteCertificate& certificate) {
  const std::array<SqlValue, 5> row{SqlValue(idSite), history_rows::of(certificate.began),
                                    history_rows::of(certificate.ends), SqlValue(certificate.issuer),
                                    certificate.told ? SqlValue(std::int64_t{*certificate.told}) : SqlValue()};
  db_.conn()
      .execute("insert or replace into certificates (idSite, began, ends, issuer, told) values (?1, ?2, ?3, ?4, ?5)",
               row)
      ->close();
}

void SiteCertificates::forgetCertificate(std::int64_t idSite) {
  if (hasTable(db_)) {
    const SqlValue id(idSite);
    db_.conn().execute("delete from certificates where idSite = ?1", {&id, 1})->close();
  }
}

}  // namespace tarnwick
