// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A site of the list, as far as it can be found by. It costs next to nothing to make: what is longer is only looked
/// at.
struct FoundSite {
  std::int64_t id = 0;
  bool up = false;           ///< what the last check found
  bool down = false;         ///< neither where there was no check
  bool changed = false;      ///< down, and there was a page
  bool noAnswer = false;     ///< down, and there was none
  bool unconfirmed = false;  ///< its failures are too few yet to be told
  bool known = false;        ///< somebody knows of the wrong page that it has
  bool slow = false;
  bool never = false;  ///< no check was made yet
  bool active = true;
  bool paused = false;
  bool offline = false;      ///< this machine was, when it was checked
  bool certificate = false;  ///< its certificate ends soon
  bool unwatched = false;
  std::string_view url;
  std::span<const std::string> tags;
};

/// A word of the filter, with what it finds, for help and completion: "down", "tag:".
struct FilterWord {
  std::string_view word;
  std::string_view meaning;
};
const std::vector<FilterWord>& filterWords();

/// Which sites of a list are meant by a line of filter words: those for which all of them hold. A `-` before a word
/// excludes what it finds. What is no such word, or stands between quotes, is a part of the address. An empty line
/// means every site. Letter case does not matter.
class SiteQuery {
 public:
  /// Every site.
  SiteQuery() = default;
  /// Raises std::invalid_argument, with a sentence that names the word and the remedy.
  explicit SiteQuery(std::string_view line);

  /// Whether the line means this site.
  bool finds(const FoundSite& site) const;
  /// Whether every site is meant.
  bool all() const { return terms_.empty(); }
  /// Whether the answer depends on that member; whether it does on the tags.
  bool asksFor(bool FoundSite::*flag) const;
  bool asksForTags() const;

 private:
  struct Term {
    enum class Kind { flag, absent, text, tag, host, id };
    Kind kind = Kind::text;
    bool excludes = false;
    bool FoundSite::*flag = nullptr;
    std::string text{};
    std::vector<std::int64_t> ids{};
  };

  static Term termOf(std::string_view word);
  static bool holds(const Term& term, const FoundSite& site);

  std::vector<Term> terms_;
};

/// Why the line is none that a query can be made of, in a sentence; empty for a good one.
std::string faultOfQuery(std::string_view line);

}  // namespace tarnwick
