#include "engine/page_fetch.h"

#include "base/text.h"
#include "base/windows_1252.h"
#include "engine/single_control.h"
#include "store/database.h"
#include "store/settings_and_log.h"
#include "store/sql_quote.h"

namespace tarnwick {
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
  std::string body;
  const auto rs = database_.query("select pname,pvalue from postvars where idsite = " + sqlQuote(idSite));
  for (; !rs->eof(); rs->moveNext()) {
    body += urlEncode(rs->field("pname").toText()) + "=" + urlEncode(rs->field("pvalue").toText()) + "&";
  }
  if (!body.empty()) {
    body.pop_back();
  }
  return body;
}

PageRequest PageFetch::requestFor(std::int16_t idSite, std::string_view method) {
  PageRequest request{upperCase(std::string(method)), {}, {}};
  if (request.method == "POST") {
    request.headers = kPostHeader;
    request.body = getPostVarsAsString(idSite);
  }
  return request;
}

std::string PageFetch::getHtmlFromSite(std::int16_t idSite) {
  TransferControl& sInet = single_.sInet();
  if (sInet.stillExecuting()) {
    return {};
  }
  auto rs = database_.query("select url,method,sUserName,sPassWord from sites where idsite = " + sqlQuote(idSite));
  std::string method;
  sInet.setRequestTimeout(settings_.requestTimeout());
  const bool found = !rs->eof();
  sInet.setUrl(found ? rs->field("url").toText() : "");
  sInet.setUserName(found ? rs->field("sUserName").toText() : "");
  sInet.setPassword(found ? rs->field("sPassWord").toText() : "");
  method = found ? rs->field("method").toText() : "";
  rs->close();

  const PageRequest request = requestFor(idSite, method);
  single_.sInetContent.clear();
  sInet.execute(request.method, request.body, request.headers);
  while (sInet.stillExecuting() && single_.sInetContent.empty() && !pump_.closing()) {
    pump_.waitForEvent();
  }
  return single_.sInetContent;
}

}  // namespace tarnwick
