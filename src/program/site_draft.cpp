// SPDX-License-Identifier: MIT
#include "program/site_draft.h"

#include <stdexcept>
#include <utility>

#include "base/sql_value.h"
#include "program/m.h"
#include "store/first_field.h"
#include "store/site_table.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

constexpr std::int16_t kIntervalOfNewSite = 10;

std::runtime_error siteIsGone(std::int16_t idSite) {
  return std::runtime_error("The site " + std::to_string(idSite) +
                            " is not in the list any more. Close its editor; to watch it again, add it with New.");
}

std::size_t rowOf(const TextTable& sites, std::int16_t idSite) {
  const std::string id = std::to_string(idSite);
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    if (sites.at(site_column::idSite, row) == id) {
      return row;
    }
  }
  throw siteIsGone(idSite);
}

// A variable is looked up by its stored texts, and a Null equals none.
bool isStoredAs(m& data, std::int16_t idSite, const PostVar& var) {
  return data.getIdPostVars(idSite, var.name, var.value) != 0;
}

}  // namespace

SiteDraft readSite(m& data, std::int16_t idSite) {
  const TextTable sites = data.getArraySites(idSite);
  const std::size_t row = rowOf(sites, idSite);
  const auto flag = [&](std::size_t column) { return SqlValue(sites.at(column, row)).toBool(); };
  const auto text = [&](std::size_t column, const char* name) {
    const std::string& cell = sites.at(column, row);
    // Those four letters may be what was typed.
    return cell != kNullText
               ? cell
               : firstText(data.database(), joinSql("select ", name, " from sites where idSite = ", sqlQuote(idSite)));
  };
  SiteDraft site{text(site_column::url, "url"),
                 text(site_column::method, "method"),
                 flag(site_column::active),
                 text(site_column::tInterval, "tInterval"),
                 flag(site_column::alertEmail),
                 text(site_column::email, "email"),
                 text(site_column::sUserName, "sUserName"),
                 text(site_column::sPassWord, "sPassWord")};
  for (const SiteField& field : data.fields().site) {
    if (std::holds_alternative<std::monostate>(field.member)) {
      site.further[field.name] =
          firstText(data.database(), joinSql("select ", field.name, " from sites where idSite = ", sqlQuote(idSite)));
    }
  }
  return site;
}

std::vector<PostVar> readPostVars(m& data, std::int16_t idSite) {
  const TextTable table = data.getPostVars(idSite);
  std::vector<PostVar> vars;
  for (std::size_t row = 1; row <= table.lastRow(); ++row) {
    PostVar var{table.at(1, row), table.at(2, row)};
    if ((var.name == kNullText || var.value == kNullText) && !isStoredAs(data, idSite, var)) {
      var = {textOrEmpty(var.name), textOrEmpty(var.value)};
    }
    vars.push_back(std::move(var));
  }
  return vars;
}

void requireSite(m& data, std::int16_t idSite) {
  if (!data.idExists(idSite)) {
    throw siteIsGone(idSite);
  }
}

void storeSite(m& data, std::int16_t idSite, const SiteDraft& site, const std::vector<PostVar>& vars) {
  Transaction whole(data.database());
  // Variables of a site that is gone would be sent by the next one of its id.
  requireSite(data, idSite);
  const std::int16_t interval =
      site.tInterval.empty() ? kIntervalOfNewSite
                             : SqlValue(site.tInterval).toInt16("The interval of site " + std::to_string(idSite));
  if (looksAtCertificate(data.optionsInForce(), idSite) && data.getUrl(idSite) != site.url) {
    // That of another server is no successor of it.
    data.forgetCertificate(idSite);
  }
  data.updateSites(idSite, site.url, site.method, site.active, interval, site.alertEmail, site.email, site.sUserName,
                   site.sPassWord);
  for (const SiteField& field : data.fields().site) {
    if (const auto value = site.further.find(field.name); value != site.further.end()) {
      // A flag that was never set is none.
      const std::string stored = field.kind == FieldKind::flag ? sqlQuote(std::get<bool>(valueOf(field, site)))
                                                               : "'" + sqlQuote(value->second) + "'";
      data.database().execute(
          joinSql("update sites set ", field.name, " = ", stored, " where idSite = ", sqlQuote(idSite)));
    }
  }
  data.clearPostVars(idSite);
  for (const PostVar& var : vars) {
    data.addPostVars(idSite, var.name, var.value);
  }
  whole.commit();
}

}  // namespace tarnwick
