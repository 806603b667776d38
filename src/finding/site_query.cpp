// SPDX-License-Identifier: MIT
#include "finding/site_query.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <stdexcept>
#include <utility>

#include "base/host_of_address.h"
#include "base/text.h"
#include "base/visible_text.h"

namespace tarnwick {
namespace {

struct FlagWord {
  std::string_view word;
  std::string_view meaning;
  bool FoundSite::*flag;
  bool value = true;
};

constexpr FlagWord kFlags[] = {
    {"down", "the last check failed", &FoundSite::down},
    {"up", "the last check was good", &FoundSite::up},
    {"changed", "down, with another page than the baseline", &FoundSite::changed},
    {"noanswer", "down, without a page", &FoundSite::noAnswer},
    {"unconfirmed", "failed, but not often enough to be told", &FoundSite::unconfirmed},
    {"known", "down, and the wrong page is acknowledged", &FoundSite::known},
    {"slow", "answers too slowly", &FoundSite::slow},
    {"never", "never checked", &FoundSite::never},
    {"inactive", "left out of runs", &FoundSite::active, false},
    {"paused", "nothing is told of it now", &FoundSite::paused},
    {"offline", "found while this machine was offline", &FoundSite::offline},
    {"certificate", "its certificate ends soon", &FoundSite::certificate},
    {"unwatched", "active, but nobody checks it", &FoundSite::unwatched},
};

constexpr std::string_view kTag = "tag:";
constexpr std::string_view kHost = "host:";
constexpr std::string_view kId = "id:";

constexpr std::size_t kMostNamed = 60;

[[noreturn]] void refuse(const std::string& sentence) { throw std::invalid_argument(sentence); }

std::string quoted(std::string_view word) { return "\"" + visibleText(word, kMostNamed) + "\""; }

/// The words of a line: what stands between blanks, with what stands between quotes as one.
std::vector<std::string_view> wordsOf(std::string_view line) {
  std::vector<std::string_view> words;
  for (std::size_t at = line.find_first_not_of(kWhiteSpace); at != std::string_view::npos;
       at = line.find_first_not_of(kWhiteSpace, at)) {
    const std::size_t begin = at;
    for (bool isQuoted = false; at < line.size() && (isQuoted || kWhiteSpace.find(line[at]) == std::string_view::npos);
         ++at) {
      isQuoted = isQuoted != (line[at] == '"');
    }
    words.push_back(line.substr(begin, at - begin));
  }
  return words;
}

/// The text between the quotes of a word that begins with one.
std::optional<std::string_view> unquoted(std::string_view word) {
  if (!word.starts_with('"')) {
    return std::nullopt;
  }
  word.remove_prefix(1);
  return word.ends_with('"') ? word.substr(0, word.size() - 1) : word;
}

/// Whether the word looks like one of a name and a value, and not like a part of an address ("http://", "host:8080").
bool looksLikeName(std::string_view word) {
  const std::size_t colon = word.find(':');
  if (colon == 0 || colon == std::string_view::npos || word.substr(colon).starts_with("://")) {
    return false;
  }
  const std::string_view value = word.substr(colon + 1);
  const bool isPort = !value.empty() && isDigit(value.front());
  return !isPort && std::ranges::all_of(word.substr(0, colon), &isLetter);
}

std::vector<std::int64_t> idsOf(std::string_view list) {
  std::vector<std::int64_t> ids;
  for (std::string_view rest = list;;) {
    const std::string_view number = rest.substr(0, rest.find(','));
    std::int64_t id = 0;
    const auto [end, fault] = std::from_chars(number.data(), number.data() + number.size(), id);
    if (fault != std::errc() || end != number.data() + number.size()) {
      refuse(quoted("id:" + std::string(list)) +
             " names no site: give numbers with commas between them, as in id:3,7.");
    }
    ids.push_back(id);
    if (number.size() == rest.size()) {
      return ids;
    }
    rest.remove_prefix(number.size() + 1);
  }
}

/// `lower` is in small letters.
bool containsIgnoringCase(std::string_view text, std::string_view lower) {
  const auto isSame = [](char one, char other) { return lowerCase(one) == other; };
  return lower.empty() || std::search(text.begin(), text.end(), lower.begin(), lower.end(), isSame) != text.end();
}

bool isOfHost(const std::string& host, const std::string& wanted) {
  return host == wanted ||
         (host.size() > wanted.size() && host.ends_with(wanted) && host[host.size() - wanted.size() - 1] == '.');
}

}  // namespace

const std::vector<FilterWord>& filterWords() {
  static const std::vector<FilterWord> words = [] {
    std::vector<FilterWord> all;
    for (const FlagWord& flag : kFlags) {
      all.push_back({flag.word, flag.meaning});
    }
    all.push_back({kTag, "has this tag"});
    all.push_back({kHost, "lies on this host, or below it"});
    all.push_back({kId, "has this number, or one of several with commas between them"});
    return all;
  }();
  return words;
}

SiteQuery::SiteQuery(std::string_view line) {
  for (const std::string_view word : wordsOf(line)) {
    const bool excludes = word.starts_with('-');
    const std::string_view bare = excludes ? word.substr(1) : word;
    if (bare.empty()) {
      refuse("A \"-\" excludes what the word behind it finds: write it without a blank, as in -down.");
    }
    terms_.push_back(termOf(bare));
    terms_.back().excludes = excludes;
  }
}

SiteQuery::Term SiteQuery::termOf(std::string_view word) {
  if (const auto text = unquoted(word)) {
    return {.kind = Term::Kind::text, .text = lowerCase(std::string(*text))};
  }
  const std::string lower = lowerCase(std::string(word));
  for (const FlagWord& flag : kFlags) {
    if (flag.word == lower) {
      return {.kind = flag.value ? Term::Kind::flag : Term::Kind::absent, .flag = flag.flag};
    }
  }
  for (const auto& [name, kind] : {std::pair(kTag, Term::Kind::tag), std::pair(kHost, Term::Kind::host)}) {
    if (lower.starts_with(name)) {
      const std::string value = lower.substr(name.size());
      if (value.empty()) {
        refuse(std::string(name) + " needs a name behind it: write it without a blank, as in " + std::string(name) +
               (kind == Term::Kind::tag ? "shop." : "example.org."));
      }
      return {.kind = kind, .text = value};
    }
  }
  if (lower.starts_with(kId)) {
    return {.kind = Term::Kind::id, .ids = idsOf(std::string_view(lower).substr(kId.size()))};
  }
  if (looksLikeName(lower)) {
    refuse(visibleText(word.substr(0, word.find(':') + 1), kMostNamed) +
           " is no filter word. Write tag:, host: or id:, or put a text of an address in quotes.");
  }
  return {.kind = Term::Kind::text, .text = lower};
}

bool SiteQuery::finds(const FoundSite& site) const {
  return std::ranges::all_of(terms_, [&](const Term& term) { return holds(term, site) != term.excludes; });
}

bool SiteQuery::asksFor(bool FoundSite::*flag) const {
  return std::ranges::any_of(terms_, [&](const Term& term) { return term.flag == flag; });
}

bool SiteQuery::asksForTags() const {
  return std::ranges::any_of(terms_, [](const Term& term) { return term.kind == Term::Kind::tag; });
}

bool SiteQuery::holds(const Term& term, const FoundSite& site) {
  switch (term.kind) {
    case Term::Kind::flag:
      return site.*term.flag;
    case Term::Kind::absent:
      return !(site.*term.flag);
    case Term::Kind::text:
      return containsIgnoringCase(site.url, term.text);
    case Term::Kind::tag:
      return std::ranges::any_of(site.tags, [&](const std::string& tag) { return equalsIgnoringCase(tag, term.text); });
    case Term::Kind::host:
      return isOfHost(hostOfAddress(site.url), term.text);
    case Term::Kind::id:
      return std::ranges::find(term.ids, site.id) != term.ids.end();
  }
  return false;
}

std::string faultOfQuery(std::string_view line) {
  try {
    const SiteQuery query(line);
    return "";
  } catch (const std::invalid_argument& fault) {
    return fault.what();
  }
}

}  // namespace tarnwick
