// SPDX-License-Identifier: MIT
#include "simulation/model_list.h"

#include <optional>

#include "base/visible_text.h"

namespace tarnwick::simulation {
namespace {

/// Reads the fields of a row, one after the other. They stand in the row as hexadecimal digits, Null as nothing, each
/// behind a letter.
class Fields {
 public:
  explicit Fields(const std::string& row) : row_(row) {}

  model::Text text() {
    const std::size_t end = std::min(row_.find('|', at_), row_.size());
    const std::string field = row_.substr(at_, end - at_);
    at_ = end + 1;
    if (field == "NULL") {
      return std::nullopt;
    }
    std::string bytes;
    for (std::size_t i = 0; i + 1 < field.size(); i += 2) {
      bytes += static_cast<char>(std::stoi(field.substr(i, 2), nullptr, 16));
    }
    return bytes;
  }
  std::optional<int> number() {
    const model::Text field = text();
    return field ? std::optional(std::stoi(*field)) : std::nullopt;
  }
  std::optional<model::Time> time() {
    const model::Text field = text();
    return field ? parseStamp(*field) : std::nullopt;
  }

 private:
  const std::string& row_;
  std::size_t at_ = 0;
};

/// `hex(null)` is an empty text.
std::string columns(std::initializer_list<const char*> names) {
  std::string list;
  for (const char* name : names) {
    list.append(list.empty() ? "" : ", ").append("case when ").append(name).append(" is null then null else hex(");
    list.append(name).append(") end");
  }
  return list;
}

std::string shown(const model::Text& text) { return text ? "'" + visibleText(*text) + "'" : "Null"; }
std::string shown(const std::optional<int>& number) { return number ? std::to_string(*number) : "Null"; }
std::string shown(const std::optional<model::Time>& time) { return time ? dateTimeText(*time) : "Null"; }

}  // namespace

model::Sites sitesOf(World& world) {
  model::Sites sites;
  for (const std::string& row :
       askDatabase(world, "select " +
                              columns({"idSite", "url", "method", "active", "tInterval", "lastChecked", "alertEmail",
                                       "email", "sUserName", "sPassWord", "status", "success", "failure",
                                       "content_compare", "content_runtime"}) +
                              " from sites order by idSite")) {
    Fields fields(row);
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
    sites[site.id] = site;
  }
  return sites;
}

model::Settings settingsOf(World& world) {
  model::Settings settings;
  const std::string row = askDatabase(world, "select " +
                                                 columns({"email", "smtp", "audio", "program", "timeout", "clogs",
                                                          "creports", "cemail", "caudio", "cprogram"}) +
                                                 " from control")
                              .front();
  Fields fields(row);
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
  for (const std::string& option : askDatabase(world, "select name, value from siteOptions where idSite = 0")) {
    const std::string name = option.substr(0, option.find('|'));
    const std::string value = option.substr(option.find('|') + 1);
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

std::vector<model::LogRow> logOf(World& world, std::uint64_t from) {
  std::vector<model::LogRow> rows;
  for (const std::string& row : askDatabase(
           world, "select " +
                      columns({"idSite", "url", "status", "errCode", "errDescription", "content", "dateStamp"}) +
                      " from log where rowid > " + std::to_string(from) + " order by rowid")) {
    Fields fields(row);
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
