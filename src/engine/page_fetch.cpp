// SPDX-License-Identifier: MIT
#include "engine/page_fetch.h"

#include <utility>

#include "base/text.h"
#include "base/windows_1252.h"
#include "engine/single_control.h"
#include "store/database.h"
#include "store/settings_and_log.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

std::string formOf(Recordset& vars) {
  std::string body;
  for (; !vars.eof(); vars.moveNext()) {
    body += PageFetch::urlEncode(vars.field("pname").toText()) + "=" +
            PageFetch::urlEncode(vars.field("pvalue").toText()) + "&";
  }
  if (!body.empty()) {
    body.pop_back();
  }
  return body;
}

}  // namespace

PageFetch::PageFetch(Database& database, SettingsAndLog& settings, SingleControl& single, EventPump& pump)
    : database_(database), settings_(settings), single_(single), pump_(pump) {}

std::string PageFetch::urlEncode(std::string_view text) {
  std::string encoded;
  for (const char c : toWindows1252(text)) {
    if (isLetter(c) || isDigit(c)) {
      encoded.push_back(c);
    } else {
      appendPercentEncoded(encoded, c);
    }
  }
  return encoded;
}

std::string PageFetch::getPostVarsAsString(std::int16_t idSite) {
  return formOf(*database_.query("select pname,pvalue from postvars where idsite = " + sqlQuote(idSite)));
}

std::string PageFetch::postVarsAsStored(std::int16_t idSite) {
  const SqlValue id(std::int64_t{idSite});
  return formOf(*database_.conn().execute("select pname,pvalue from postvars where idsite = ?1", {&id, 1}));
}

Request PageFetch::requestFor(std::int16_t idSite, std::string_view method) {
  Request request{.method = upperCase(std::string(method))};
  if (request.method == "POST") {
    request.headers = kPostHeader;
    request.body = getPostVarsAsString(idSite);
  }
  return request;
}

std::string PageFetch::credential(std::int16_t idSite, const char* field, const std::string& cell) {
  if (cell != kNullText) {
    return cell;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = database_.conn().execute(joinSql("select ", field, " from sites where idSite = ?1"), {&id, 1});
  return rows->eof() ? std::string() : rows->field(std::size_t{0}).toText();
}

Request PageFetch::requestOf(std::int16_t idSite) {
  auto rs = database_.query("select url,method,sUserName,sPassWord from sites where idsite = " + sqlQuote(idSite));
  const std::chrono::seconds timeout = settings_.requestTimeout();
  const auto text = [&rs](const char* name) { return rs->eof() ? "" : rs->field(name).toText(); };
  const std::string url = text("url");
  const std::string userName = text("sUserName");
  const std::string password = text("sPassWord");
  const std::string method = text("method");
  rs->close();

  Request request = requestFor(idSite, method);
  request.url = url;
  request.userName = userName;
  request.password = password;
  request.timeout = timeout;
  return request;
}

bool PageFetch::beginFetch(std::int16_t idSite, std::function<void()> ended) {
  if (single_.sInet().stillExecuting()) {
    return false;
  }
  single_.execute(requestOf(idSite), std::move(ended));
  return true;
}

void PageFetch::fetchPage(std::int16_t idSite, std::function<void(const std::string& page)> fetched) {
  beginFetch(idSite, [this, fetched = std::move(fetched)] { fetched(single_.sInetContent); });
}

std::string PageFetch::getHtmlFromSite(std::int16_t idSite) {
  if (!beginFetch(idSite, {})) {
    return {};
  }
  const TransferControl& sInet = single_.sInet();
  while (sInet.stillExecuting() && single_.sInetContent.empty() && !pump_.closing()) {
    pump_.waitForEvent();
  }
  return single_.sInetContent;
}

}  // namespace tarnwick
