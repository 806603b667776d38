// SPDX-License-Identifier: MIT
#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <utility>

#include "base/text.h"
#include "exchange/foreign/foreign_sites.h"
#include "exchange/foreign/jet_tables.h"
#include "exchange/list/site_import.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kHighest = std::numeric_limits<std::int16_t>::max();
constexpr const char* kSites = "sites";
constexpr const char* kPostVars = "postVars";
constexpr const char* kControl = "control";
constexpr const char* kLog = "log";

std::string counted(std::size_t count, const char* one, const char* more) {
  return std::to_string(count) + (count == 1 ? one : more);
}

class JetReader {
 public:
  JetReader(std::string_view bytes, ForeignSites& sites) : tables_(bytes), sites_(sites) {}

  void read() {
    readVars();
    const bool found = tables_.read(kSites, [this](const JetRow& row) { rows_.emplace_back(row); });
    if (!found) {
      throw ForeignError(0, "the database has no table sites, so it is none of this program");
    }
    std::ranges::stable_sort(rows_, {}, [](const JetRow& row) { return row.number("idSite").value_or(0); });
    for (JetRow& row : std::exchange(rows_, {})) {
      readSite(row);
    }
    std::size_t orphans = 0;
    for (const auto& [id, vars] : vars_) {
      orphans += vars.size();
    }
    if (orphans > 0) {
      sites_.lacks(counted(orphans, " POST variable of a site that is not there",
                           " POST variables of sites that are not there"));
    }
    readSettings();
    readLog();
    for (const std::string& name : tables_.names()) {
      if (std::ranges::none_of(std::initializer_list<const char*>{kSites, kPostVars, kControl, kLog},
                               [&](const char* known) { return equalsIgnoringCase(known, name); })) {
        sites_.lacks("the table " + quotedForMessage(name));
      }
    }
  }

 private:
  void readVars() {
    std::map<std::int64_t, std::map<std::pair<std::int64_t, std::size_t>, PostVar>> sorted;
    std::size_t count = 0;
    tables_.read(kPostVars, [&](const JetRow& row) {
      sorted[row.number("idSite").value_or(0)][{row.number("idPostVars").value_or(0), count++}] = {row.text("pname"),
                                                                                                   row.text("pvalue")};
    });
    for (auto& [id, vars] : sorted) {
      for (auto& [order, var] : vars) {
        vars_[id].push_back(std::move(var));
      }
    }
  }

  void readSite(const JetRow& row) {
    const std::int64_t id = row.number("idSite").value_or(0);
    std::vector<PostVar> vars = std::move(vars_[id]);
    vars_.erase(id);
    ForeignSite site(0, row.text("url"));
    if (id < 1 || id > kHighest || !ids_.insert(id).second) {
      return sites_.leaveOut(0, row.text("url"),
                             "its id is " + std::to_string(id) + ", and ids are 1 to 32767, each of them once");
    }
    ListedSite& listed = site.listed();
    listed.idSite = static_cast<std::int16_t>(id);
    for (const ListField& field : form_.all()) {
      if (field.role != ListField::Role::options) {
        listed.given.set(field.name);
      }
    }
    listed.site.url = row.text("url");
    listed.site.sUserName = row.text("sUserName");
    listed.site.sPassWord = row.text("sPassWord");
    listed.site.active = row.flag("active");
    readRequest(site, row);
    readMail(site, row);
    listed.postVars = std::move(vars);
    listed.baseline = row.text("content_compare");
    readState(listed, row);
    sites_.add(std::move(site));
  }

  static void readRequest(ForeignSite& site, const JetRow& row) {
    const std::string method = row.text("method");
    if (equalsIgnoringCase(method, "get") || equalsIgnoringCase(method, "post")) {
      site.listed().site.method = method;
    } else if (!method.empty()) {
      site.setMethod(method);
    }
    if (const auto minutes = row.number("tInterval")) {
      site.listed().site.tInterval = std::to_string(std::clamp<std::int64_t>(*minutes, 1, kHighest));
      if (*minutes < 1 || *minutes > kHighest) {
        site.lacks("interval of " + std::to_string(*minutes) + " min (taken as " + site.listed().site.tInterval +
                   " min)");
      }
    }
  }

  static void readMail(ForeignSite& site, const JetRow& row) {
    SiteDraft mail;
    mail.alertEmail = row.flag("alertEmail");
    mail.email = row.text("email");
    ListFaults faults;
    ListValues values(0, faults);
    checkTexts(mail, values);
    if (!faults.none()) {
      site.lacks("mails to " + quotedForMessage(mail.email) + ", which is no mail address");
      return;
    }
    site.listed().site.alertEmail = mail.alertEmail;
    site.listed().site.email = mail.email;
  }

  static void readState(ListedSite& site, const JetRow& row) {
    CheckedState state;
    state.lastChecked = row.value("lastChecked");
    state.success = row.number("success");
    state.failure = row.number("failure");
    state.contentRuntime = row.value("content_runtime");
    // A yes/no of Jet cannot be Null: one that was never checked shows by the rest.
    if (state.lastChecked || state.success.value_or(0) != 0 || state.failure.value_or(0) != 0) {
      state.status = row.flag("status");
    }
    site.state = std::move(state);
  }

  void readSettings() {
    tables_.read(kControl, [this](const JetRow& row) {
      for (const SettingField& field : programFields().settings) {
        if (row.find(field.name) == nullptr) {
          continue;
        }
        if (field.kind == FieldKind::flag) {
          sites_.list().settings.push_back({field.name, row.flag(field.name)});
        } else {
          sites_.list().settings.push_back({field.name, row.text(field.name)});
        }
      }
    });
  }

  void readLog() {
    tables_.read(kLog, [this](const JetRow& row) {
      sites_.list().log.push_back({.idSite = row.number("idSite"),
                                   .url = row.value("url"),
                                   .status = row.flag("status"),
                                   .errCode = row.number("errCode"),
                                   .errDescription = row.value("errDescription"),
                                   .dateStamp = row.value("dateStamp"),
                                   .content = row.value("content")});
    });
  }

  JetTables tables_;
  ForeignSites& sites_;
  const ListForm form_{programFields()};
  std::vector<JetRow> rows_;
  std::map<std::int64_t, std::vector<PostVar>> vars_;
  std::set<std::int64_t> ids_;
};

}  // namespace

void readJet(std::string_view bytes, ForeignSites& sites) { JetReader(bytes, sites).read(); }

}  // namespace tarnwick
