// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/database.h"
#include "store/text_table.h"

namespace tarnwick {

/// The rows of table `sites`: made, changed, listed and removed. Every failed statement raises DataAccessError.
class SiteRecords {
 public:
  explicit SiteRecords(Database& database) : db_(database) {}

  /// Adds an active site "http://localhost", fetched with GET every 10 minutes, all its other columns Null, and
  /// returns its id: the highest id plus 1, or 1 when there is no site. Raises OverflowError, with nothing written,
  /// when that id would not fit 16 bits.
  std::int16_t addSite();
  /// The same under an id that the caller chooses; raises DataAccessError when the id is in use.
  void addSite(std::int16_t idSite);

  /// Rewrites every column of a site that its editor shows; `tInterval` in minutes. Nothing when there is no such site.
  void updateSites(std::int16_t idSite, const std::string& url, const std::string& method, bool active,
                   std::int16_t tInterval, bool alertEmail, const std::string& email, const std::string& sUserName,
                   const std::string& sPassWord);

  /// The sites as texts, columns as in `site_column`; only site `idSite` when that is greater than 0. Without a
  /// matching site the table has row 0 only.
  TextTable getArraySites(std::int16_t idSite);

  /// Vocabulary: no front end calls it.
  /// The method that table `methods` holds for a site; "NONE" when it holds none.
  std::string getMethod(std::int16_t idSite);

  /// Sets the success and failure counters of a site to 0; those of every site when `idSite` is negative.
  void clearCounters(std::int16_t idSite);

  /// Removes a site, its POST variables and its options. Nothing when there is no such site.
  void deleteSite(std::int16_t idSite);
  /// The same for an id that another tool has given and that may not fit 16 bits.
  void deleteSiteOfAnyId(std::int64_t idSite);
  bool anyIdExists(std::int64_t idSite);

  bool idExists(std::int16_t idSite);

  /// True when `s` is plausible as one mail address: at least 5 characters; exactly one "@"; a "."; at most 3
  /// characters after the last "."; no "_" after the "@"; otherwise only letters a to z, digits and "-".
  static bool isEmail(std::string_view s);

 private:
  Database& db_;
};

}  // namespace tarnwick
