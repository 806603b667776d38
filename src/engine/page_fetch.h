// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/event_pump.h"
#include "platform/transfer_control.h"

namespace tarnwick {

class Database;
class SettingsAndLog;
class SingleControl;

/// The header of every POST request.
inline constexpr const char* kPostHeader = "Content-Type: application/x-www-form-urlencoded";

/// What every fetch of a monitored page shares, and the single fetch that waits for its page.
class PageFetch {
 public:
  PageFetch(Database& database, SettingsAndLog& settings, SingleControl& single, EventPump& pump);

  /// The form-encoded body of the site's POST variables: encoded name "=" encoded value, joined by "&"; empty when the
  /// site has none.
  std::string getPostVarsAsString(std::int16_t idSite);

  /// The same, to tell whether the site would still be sent what it was sent.
  std::string postVarsAsStored(std::int16_t idSite);

  /// The name or password of a site, as stored in `field`, of which `cell` stands in a site table: empty for a Null,
  /// but those four letters where they were typed.
  std::string credential(std::int16_t idSite, const char* field, const std::string& cell);
  /// How a site whose `method` column is `method`, in any letter case, is asked for its page: the method in upper case
  /// and, for "POST", the header and the body of its POST variables.
  Request requestFor(std::int16_t idSite, std::string_view method);

  /// The whole request that fetches the site's page.
  Request requestOf(std::int16_t idSite);

  /// Fetches the site's page now and returns it, pumping events meanwhile. For a failed request the failure's number,
  /// " : " and its cause; the empty text when the control is busy with another fetch, when the request ended without
  /// data, or when the program is being closed.
  std::string getHtmlFromSite(std::int16_t idSite);

  /// The same without waiting: `fetched` gets the text through the event loop, and is not called when the control is
  /// busy or the fetch is cancelled.
  void fetchPage(std::int16_t idSite, std::function<void(const std::string& page)> fetched);

  /// Percent-encodes `text` (UTF-8) for a form: letters a-z, A-Z and digits stand for themselves, every other
  /// character becomes "%" and its two-digit upper-case hexadecimal code in Windows-1252; one outside that set is
  /// sent as "?". Bytes that are not valid UTF-8 are taken as Windows-1252 already.
  static std::string urlEncode(std::string_view text);

 private:
  /// False when the control is busy.
  bool beginFetch(std::int16_t idSite, std::function<void()> ended);

  Database& database_;
  SettingsAndLog& settings_;
  SingleControl& single_;
  EventPump& pump_;
};

}  // namespace tarnwick
