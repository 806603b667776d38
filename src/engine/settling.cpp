// SPDX-License-Identifier: MIT
#include "engine/settling.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "base/visible_text.h"
#include "engine/known_page.h"
#include "engine/result_recording.h"
#include "holes/page_text.h"
#include "page_rules/page_judge.h"
#include "store/first_field.h"
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

/// Where an error page says what it is: at its beginning.
constexpr std::size_t kLooked = 4096;
/// A page without markup is as short as this if it is one.
constexpr std::size_t kShortText = 300;
constexpr std::size_t kMostShown = 60;

/// The text between the first tag of that name and its end, in small letters; empty where there is none.
std::string_view within(std::string_view lower, std::string_view name) {
  const std::size_t tag = lower.find("<" + std::string(name));
  const std::size_t begin = tag == std::string_view::npos ? tag : lower.find('>', tag);
  if (begin == std::string_view::npos) {
    return {};
  }
  const std::string_view rest = lower.substr(begin + 1);
  return rest.substr(0, rest.find("</"));
}

/// A status of an error, 400 to 599, that stands there as a number of its own.
bool hasErrorStatus(std::string_view text) {
  for (std::size_t at = 0; at + 3 <= text.size(); ++at) {
    const bool isNumber = (text[at] == '4' || text[at] == '5') && isDigit(text[at + 1]) && isDigit(text[at + 2]);
    const bool begins = at == 0 || (!isDigit(text[at - 1]) && !isLetter(text[at - 1]) && text[at - 1] != '.');
    const bool ends =
        at + 3 == text.size() || (!isDigit(text[at + 3]) && !isLetter(text[at + 3]) && text[at + 3] != '.');
    if (isNumber && begins && ends) {
      return true;
    }
  }
  return false;
}

bool speaksOfError(std::string_view text) {
  static constexpr std::array<std::string_view, 16> kPhrases{
      "not found",         "forbidden",    "access denied",           "unauthorized",
      "bad request",       "bad gateway",  "internal server error",   "service unavailable",
      "gateway time",      "server error", "temporarily unavailable", "under maintenance",
      "too many requests", "site is down", "nicht gefunden",          "wartungsarbeiten"};
  static constexpr std::array<std::string_view, 3> kWithStatus{"error", "fehler", "http"};
  const auto says = [&](std::string_view phrase) { return text.find(phrase) != std::string_view::npos; };
  return std::ranges::any_of(kPhrases, says) ||
         (hasErrorStatus(text) && (text.size() < 12 || std::ranges::any_of(kWithStatus, says)));
}

ByteSpans spansOf(const Holes& holes) {
  ByteSpans spans;
  for (const Hole& hole : holes) {
    append(spans, {hole.begin, hole.end()});
  }
  return spans;
}

}  // namespace

std::string errorWordsOf(std::string_view page) {
  const std::string text = pageText(page.substr(0, kLooked));
  const std::string lower = lowerCase(text);
  const auto shown = [&](std::string_view part) {
    const auto at = static_cast<std::size_t>(part.data() - lower.data());
    return visibleText(trimmed(std::string_view(text).substr(at, part.size())), kMostShown);
  };
  for (const std::string_view name : {"title", "h1"}) {
    if (const std::string_view part = within(lower, name); speaksOfError(part)) {
      return shown(part);
    }
  }
  const bool isBare = page.size() < kShortText && lower.find('<') == std::string::npos;
  return isBare && speaksOfError(lower) ? shown(lower) : "";
}

bool isFurtherGood(Baselines& baselines, std::int16_t idSite, std::string_view page, const RuleSet& rules) {
  if (baselines.isFurtherPage(idSite, page)) {
    return true;
  }
  return !rules.empty() && std::ranges::any_of(baselines.furtherPages(idSite), [&](const std::string& good) {
    return judgePage(good, page, rules).same;
  });
}

std::string Settling::baselineOf(std::int16_t idSite) {
  return firstText(db_, "select content_compare from sites where idsite = " + sqlQuote(idSite));
}

void Settling::setBaseline(std::int16_t idSite, const std::string& page) {
  db_.execute("update sites set content_compare = '", page, "' where idsite = " + sqlQuote(idSite));
}

ToSettle Settling::toSettle(std::int16_t idSite) {
  ToSettle found;
  const auto rows =
      db_.query("select content_compare,content_runtime,status from sites where idSite = " + sqlQuote(idSite));
  if (rows->eof()) {
    return found;
  }
  found.baseline = rows->field("content_compare").toText();
  found.page = rows->field("content_runtime").toText();
  const SqlValue status = rows->field("status");
  rows->close();
  found.isAcknowledged = Acknowledgements(db_).acknowledgementOf(idSite).has_value();
  const RuleSet rules = SiteRules(db_).rulesOf(idSite);
  const bool isSame = !found.baseline.empty() && judgePage(found.baseline, found.page, rules).same;
  if (found.page.empty()) {
    const bool isUp = !status.isNull() && status.toBool();
    found.state = status.isNull() || (isUp && !found.baseline.empty()) ? ToSettle::State::never
                  : isUp                                               ? ToSettle::State::same
                                                                       : ToSettle::State::emptyPage;
  } else if (isSame || isFurtherGood(baselines_, idSite, found.page, rules)) {
    found.state = ToSettle::State::same;
  } else if (found.page == kPageNotKept) {
    found.state = ToSettle::State::notKept;
  } else if (!isPage(found.page)) {
    found.state = ToSettle::State::failedFetch;
  } else {
    found.state = ToSettle::State::differs;
    found.errorWords = errorWordsOf(found.page);
    found.isShort = found.page.size() * 2 < found.baseline.size();
    const std::string text = pageText(found.page);
    const PlacedHoles holes = holesOf(text, rules.holes);
    found.placesFound = holes.placed.size();
    found.placesLost = holes.lost.size();
    if (text == found.page && pageText(found.baseline) == found.baseline) {
      found.varyingInBaseline = spansOf(rules.holes);
      found.varyingInPage = spansOf(holes.placed);
    }
  }
  return found;
}

ChangePhrases Settling::changeOf(std::int16_t idSite) {
  const ToSettle found = toSettle(idSite);
  if (found.state != ToSettle::State::differs) {
    return {};
  }
  const RuleSet rules = SiteRules(db_).rulesOf(idSite);
  const ShownPages shown = rules.empty() ? ShownPages{pageText(found.baseline), pageText(found.page)}
                                         : shownDifference(pageText(found.baseline), pageText(found.page), rules);
  return phrasesOf(shown.before, shown.now, differenceOf(shown.before, shown.now));
}

void Settling::accept(std::int16_t idSite, const std::string& page, AcceptAs as) {
  Transaction whole(db_);
  const std::string now = dateTimeText(clock_.localNow());
  if (as == AcceptAs::also) {
    baselines_.keepBaseline(idSite, now, BaselineOrigin::also, page);
  } else {
    baselines_.keepBaseline(idSite, now, BaselineOrigin::replaced, baselineOf(idSite));
    setBaseline(idSite, page);
  }
  Acknowledgements(db_).removeAcknowledgement(idSite);
  whole.commit();
}

bool Settling::undoAccept(std::int16_t idSite) {
  Transaction whole(db_);
  const auto earlier = baselines_.takeLastReplaced(idSite);
  if (!earlier) {
    return false;
  }
  setBaseline(idSite, *earlier);
  whole.commit();
  return true;
}

void Settling::acknowledgePage(std::int16_t idSite, const std::string& page) {
  Transaction whole(db_);
  Acknowledgements(db_).acknowledge(idSite, fingerprintOf(baselineOf(idSite), page, SiteRules(db_).rulesOf(idSite)),
                                    clock_.localNow());
  whole.commit();
}

}  // namespace tarnwick
