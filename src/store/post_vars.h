// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "store/database.h"
#include "store/text_table.h"

namespace tarnwick {

/// The form variables of the sites that are fetched with POST: the rows of table `postVars`.
/// Every failed statement raises DataAccessError, except in `reIdpostVars`.
class PostVars {
 public:
  explicit PostVars(Database& database) : db_(database) {}

  /// A site's variables: column 1 the name, column 2 the value. Without any the table has row 0 only.
  TextTable getPostVars(std::int16_t idSite);

  void addPostVars(std::int16_t idSite, const std::string& pname, const std::string& pvalue);

  /// Gives a variable a new name and value. Nothing when there is no such variable.
  void updatePostVars(std::int16_t idPostVars, const std::string& pname, const std::string& pvalue);

  /// The id of a site's variable of exactly this name and value (letter case and blanks count), the first one of
  /// several; 0 when none matches. Raises OverflowError when the id found does not fit 16 bits.
  std::int16_t getIdPostVars(std::int16_t idSite, const std::string& pname, const std::string& pvalue);

  /// Removes one variable. Nothing when there is no such variable.
  void deletePostVars(std::int16_t idPostVars);

  /// Removes all variables of a site.
  void clearPostVars(std::int16_t idSite);

  /// Numbers the ids of all variables densely from 1 by rebuilding the table; leaves the copy `tempPostVars` behind.
  /// A statement that fails is skipped and nothing is reported. All of it is kept or none: when the database is locked
  /// or has no room, the variables stay as they were.
  void reIdpostVars();

 private:
  void rebuildPostVars();

  Database& db_;
};

}  // namespace tarnwick
