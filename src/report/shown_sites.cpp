// SPDX-License-Identifier: MIT
#include "report/shown_sites.h"

#include <algorithm>

#include "base/host_of_address.h"
#include "base/visible_text.h"

namespace tarnwick {

std::vector<ShownSite> shownSites(Database& database) {
  constexpr std::int64_t kLongestInterval = 32767;
  std::vector<ShownSite> sites;
  const auto rows = database.conn().execute(
      "select idSite, url, tInterval, active, status, success, failure from sites order by idSite", {});
  for (; !rows->eof(); rows->moveNext()) {
    const SqlValue status = rows->field(std::size_t{4});
    sites.push_back({.idSite = rows->field(std::size_t{0}).toInt64(),
                     .address = visibleText(withoutCredentials(rows->field(std::size_t{1}).toText())),
                     .interval = std::chrono::minutes(
                         std::clamp<std::int64_t>(rows->field(std::size_t{2}).toInt64(), 1, kLongestInterval)),
                     .active = rows->field(std::size_t{3}).toBool(),
                     .up = status.isNull() ? std::nullopt : std::optional(status.toBool()),
                     .success = rows->field(std::size_t{5}).toInt64(),
                     .failure = rows->field(std::size_t{6}).toInt64()});
  }
  rows->close();
  return sites;
}

std::string publicAddress(const std::string& address) { return address.substr(0, address.find_first_of("?#")); }

}  // namespace tarnwick
