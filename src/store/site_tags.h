// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"

namespace tarnwick {

/// Words by which sites are found, in alphabetical order, none twice whatever its letter case.
using Tags = std::vector<std::string>;

/// A tag has so many bytes at most, and a site so many tags.
inline constexpr std::size_t kLongestTag = 50;
inline constexpr std::size_t kMostTags = 50;

/// Why the text is no tag, as a sentence with the remedy; empty for one that is.
std::string faultOfTag(std::string_view text);

/// `tags` with the further ones, and without some; what is one but for the letter case of ASCII is the one that was
/// there first.
Tags withTags(Tags tags, const Tags& more);
Tags withoutTags(Tags tags, const Tags& gone);

/// Table `siteTags`: the tags of the sites. A list without the table reads as if it were empty. Every failed statement
/// raises DataAccessError.
class SiteTags {
 public:
  explicit SiteTags(Database& database) : db_(database) {}

  Tags tagsOf(std::int16_t idSite);
  /// Of all sites that have any.
  std::map<std::int64_t, Tags> tagsOfSites();
  /// Stores `tags` in place of all that the site has. REQUIRES: none of them has a fault.
  void storeTags(std::int16_t idSite, const Tags& tags);
  /// Nothing when there are none, or no table.
  void removeTagsOf(std::int64_t idSite);

 private:
  bool hasTable();

  Database& db_;
};

}  // namespace tarnwick
