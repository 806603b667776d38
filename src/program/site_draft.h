#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

class m;

/// A form variable of a site.
struct PostVar {
  std::string name;
  std::string value;
  bool operator==(const PostVar&) const = default;
};

/// A site as a front end lets it be edited. Texts are bytes as they are stored; a Null is empty.
struct SiteDraft {
  std::string url;
  std::string method;  ///< as it is stored; the editor writes "get" or "post"
  bool active = false;
  std::string tInterval;  ///< minutes, as they are stored
  bool alertEmail = false;
  std::string email;
  std::string sUserName;
  std::string sPassWord;
  bool operator==(const SiteDraft&) const = default;
};

/// Reads a site. A text of the letters "NULL" is told from a Null, which is empty. Raises DataAccessError, and
/// std::runtime_error when there is no such site.
SiteDraft readSite(m& data, std::int16_t idSite);

/// Reads a site's POST variables. A text of the letters "NULL" is told from a Null, which is empty.
std::vector<PostVar> readPostVars(m& data, std::int16_t idSite);

/// Stores a site and its POST variables in place of what is stored: all of it, or nothing. An interval that is empty
/// becomes 10 minutes, that of a new site. Raises DataAccessError, OverflowError when the interval does not fit 16
/// bits, and std::runtime_error when the site is gone.
void storeSite(m& data, std::int16_t idSite, const SiteDraft& site, const std::vector<PostVar>& vars);

/// Raises std::runtime_error when a site is not in the list (any more).
void requireSite(m& data, std::int16_t idSite);

}  // namespace tarnwick
