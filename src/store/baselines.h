// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"

namespace tarnwick {

/// Where a baseline beside that of the site's row comes from.
enum class BaselineOrigin {
  replaced,  ///< another one was accepted in its place
  also,      ///< a page that equals it is good, too
};
/// "replaced", "also"
std::string_view wordOf(BaselineOrigin origin);
/// Nothing for what is no such word.
std::optional<BaselineOrigin> baselineOriginOf(std::string_view word);

/// How many there are of each origin and site at most.
inline constexpr std::size_t kMostKeptBaselines = 10;

/// What is known of one without its page.
struct KeptBaseline {
  std::int64_t number = 0;  ///< stays the same as long as it is kept
  std::string taken;        ///< when it was kept, "YYYY-MM-DD HH:MM:SS"
  BaselineOrigin origin = BaselineOrigin::replaced;
  std::size_t size = 0;  ///< in bytes
};

/// One as it is listed and exported.
struct ListedBaseline {
  std::string taken;
  BaselineOrigin origin = BaselineOrigin::replaced;
  std::string page;
  bool operator==(const ListedBaseline&) const = default;
};

/// Table `baselines`: earlier and further baselines of the sites. A list without the table reads as if it were empty.
/// Every failed statement raises DataAccessError.
class Baselines {
 public:
  explicit Baselines(Database& database) : db_(database) {}

  /// The newest first.
  std::vector<KeptBaseline> baselinesOf(std::int16_t idSite);
  /// The page of one; nothing where the site has none of that number.
  std::optional<std::string> keptPage(std::int16_t idSite, std::int64_t number);
  /// Keeps a page, which may be an empty one, as the newest. Of those that were replaced the oldest go then; a further
  /// good page too many raises std::length_error, with nothing written.
  void keepBaseline(std::int16_t idSite, const std::string& taken, BaselineOrigin origin, const std::string& page);
  /// Removes one; false where the site has none of that number.
  bool dropBaseline(std::int16_t idSite, std::int64_t number);
  /// Removes the latest one that was replaced and returns its page; nothing where there is none.
  std::optional<std::string> takeLastReplaced(std::int16_t idSite);

  /// The sites of which further pages are good.
  std::set<std::int64_t> sitesWithFurtherPages();
  /// Whether the page is, byte for byte, one of the further good ones.
  bool isFurtherPage(std::int16_t idSite, std::string_view page);
  std::vector<std::string> furtherPages(std::int16_t idSite);

  /// All of them, the oldest first, and back.
  std::vector<ListedBaseline> listedBaselines(std::int16_t idSite);
  void storeBaselines(std::int16_t idSite, const std::vector<ListedBaseline>& baselines);
  /// The sites that have any.
  std::set<std::int64_t> sitesWithKeptBaselines();
  /// Nothing when there are none, or no table.
  void removeBaselinesOf(std::int64_t idSite);

 private:
  bool hasTable();
  void insert(std::int16_t idSite, const ListedBaseline& baseline);

  Database& db_;
};

}  // namespace tarnwick
