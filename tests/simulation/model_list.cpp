// SPDX-License-Identifier: MIT
#include "simulation/model_list.h"

#include <optional>

#include "base/visible_text.h"
#include "platform/clock.h"

namespace tarnwick::simulation {
namespace {

/// Reads the fields of a row, one after the other.
class Fields {
 public:
  explicit Fields(const Recordset& row) : row_(row) {}

  model::Text text() {
    SqlValue field = row_.field(next_++);
    return field.isNull() ? std::nullopt : std::optional(std::move(field).toText());
  }
  std::optional<int> number() {
    const SqlValue field = row_.field(next_++);
    return field.isNull() ? std::nullopt : std::optional(static_cast<int>(field.toInt64()));
  }
  std::optional<model::Time> time() {
    const model::Text field = text();
    return field ? parseStamp(*field) : std::nullopt;
  }

 private:
  const Recordset& row_;
  std::size_t next_ = 0;
};

/// A statement with a value is kept for the next time.
std::unique_ptr<Recordset> ask(SqlConnection& list, std::string_view sql, std::uint64_t value) {
  const SqlValue bound(static_cast<std::int64_t>(value));
  return list.execute(sql, {&bound, 1});
}

std::string shown(const model::Text& text) { return text ? "'" + visibleText(*text) + "'" : "Null"; }
std::string shown(const std::optional<int>& number) { return number ? std::to_string(*number) : "Null"; }
std::string shown(const std::optional<model::Time>& time) { return time ? dateTimeText(*time) : "Null"; }

}  // namespace

// A yes/no that is reckoned with is the number that stands there.
model::Sites sitesOf(SqlConnection& list) {
  model::Sites sites;
  for (const auto row = ask(list,
                            "select idSite, url, method, active + 0, tInterval, lastChecked, alertEmail + 0, email, "
                            "sUserName, sPassWord, status + 0, success, failure, content_compare, content_runtime "
                            "from sites where idSite > ?1",
                            0);
       !row->eof(); row->moveNext()) {
    Fields fields(*row);
    model::Site site;
    site.id = fields.number().value_or(0);
    site.url = fields.text();
    site.method = fields.text();
    site.active = fields.number();
    site.interval = fields.number();
    site.lastChecked = fields.time();
    site.alertEmail = fields.number();
    site.email = fields.text();
    site.userName = fields.text();
    site.passWord = fields.text();
    site.status = fields.number();
    site.success = fields.number();
    site.failure = fields.number();
    site.baseline = fields.text();
    site.latestPage = fields.text();
    sites[site.id] = std::move(site);
  }
  return sites;
}

model::Settings settingsOf(SqlConnection& list) {
  model::Settings settings;
  const auto row = ask(list,
                       "select email, smtp, audio, program, timeout, clogs + 0, creports + 0, cemail + 0, caudio + 0, "
                       "cprogram + 0 from control where id > ?1",
                       0);
  Fields fields(*row);
  settings.email = fields.text();
  settings.smtp = fields.text();
  settings.audio = fields.text();
  settings.program = fields.text();
  settings.timeout = fields.text();
  settings.logs = fields.number();
  settings.reports = fields.number();
  settings.sendMail = fields.number();
  settings.playSound = fields.number();
  settings.startProgram = fields.number();
  for (const auto option = ask(list, "select name, value from siteOptions where idSite = ?1", 0); !option->eof();
       option->moveNext()) {
    const std::string name = option->field("name").toText();
    const std::string value = option->field("value").toText();
    if (name == "newSites" && value == "at once") {
      settings.newSites = model::NewSites::kAtOnce;
    } else if (name == "adopt" && value == "pages only") {
      settings.adopt = model::Adopt::kPagesOnly;
    } else if (name == "mailLimit") {
      settings.mailLimit = std::stoi(value);
    }
  }
  return settings;
}

std::vector<model::LogRow> logOf(SqlConnection& list, std::uint64_t from) {
  std::vector<model::LogRow> rows;
  for (const auto row = ask(list,
                            "select idSite, url, status + 0, errCode, errDescription, content, dateStamp from log "
                            "where rowid > ?1 order by rowid",
                            from);
       !row->eof(); row->moveNext()) {
    Fields fields(*row);
    model::LogRow& read = rows.emplace_back();
    read.idSite = fields.number().value_or(0);
    read.url = fields.text().value_or("");
    read.status = fields.number().value_or(0) != 0;
    read.errCode = fields.number().value_or(0);
    read.errDescription = fields.text().value_or("");
    read.content = fields.text().value_or("");
    read.dateStamp = fields.time().value_or(model::Time{});
  }
  return rows;
}

std::uint64_t lastLogRow(SqlConnection& list) {
  const auto row = ask(list, "select coalesce(max(rowid), ?1) from log", 0);
  return static_cast<std::uint64_t>(row->field(0).toInt64());
}

std::string lineOf(const model::Site& site) {
  return std::to_string(site.id) + " " + shown(site.url) + " method " + shown(site.method) + " active " +
         shown(site.active) + " interval " + shown(site.interval) + " checked " + shown(site.lastChecked) + " mails " +
         shown(site.alertEmail) + " to " + shown(site.email) + " user " + shown(site.userName) + " status " +
         shown(site.status) + " success " + shown(site.success) + " failure " + shown(site.failure) + " baseline " +
         shown(site.baseline) + " page " + shown(site.latestPage);
}

std::string lineOf(const model::LogRow& row) {
  return std::to_string(row.idSite) + " " + row.url + " " + (row.status ? "up" : "down") + " " +
         std::to_string(row.errCode) + " " + row.errDescription + " at " + dateTimeText(row.dateStamp) + " '" +
         visibleText(row.content) + "'";
}

}  // namespace tarnwick::simulation
