// SPDX-License-Identifier: MIT
#include "report/shown_sites.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/host_of_address.h"
#include "base/visible_text.h"

namespace tarnwick {

std::vector<ShownSite> shownSites(Database& database) {
  std::vector<ShownSite> sites;
  while (readMoreSites(database, sites)) {
  }
  return sites;
}

bool readMoreSites(Database& database, std::vector<ShownSite>& sites) {
  constexpr std::int64_t kLongestInterval = 32767;
  constexpr int kPiece = 2000;
  const std::array<SqlValue, 2> piece{
      SqlValue(sites.empty() ? std::numeric_limits<std::int64_t>::min() : sites.back().idSite),
      SqlValue(std::int64_t{kPiece})};
  const std::size_t before = sites.size();
  const auto rows = database.conn().execute(
      "select idSite, url, tInterval, active, status, success, failure from sites where idSite > ?1 order by idSite "
      "limit ?2",
      piece);
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
  return sites.size() == before + kPiece;
}

std::vector<std::map<std::int64_t, std::chrono::seconds>> intervalsInPieces(const std::vector<ShownSite>& sites) {
  constexpr std::size_t kPiece = 50;
  std::vector<std::map<std::int64_t, std::chrono::seconds>> pieces;
  for (const ShownSite& site : sites) {
    if (pieces.empty() || pieces.back().size() == kPiece) {
      pieces.emplace_back();
    }
    pieces.back().emplace(site.idSite, site.interval);
  }
  return pieces;
}

std::string publicAddress(const std::string& address) { return address.substr(0, address.find_first_of("?#")); }

}  // namespace tarnwick
