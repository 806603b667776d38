// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

namespace tarnwick {

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
  /// The fields that have no member of their own here, by name (see `SiteField::member`).
  std::map<std::string, std::string, std::less<>> further{};
  bool operator==(const SiteDraft&) const = default;
};

}  // namespace tarnwick
