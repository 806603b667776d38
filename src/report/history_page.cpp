// SPDX-License-Identifier: MIT
#include "report/history_page.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <span>
#include <tuple>

#include "history/history_text.h"
#include "report/page_parts.h"
#include "report/shown_sites.h"
#include "store/history_view.h"

namespace tarnwick {

using page_parts::escaped;
using page_parts::minuteText;

namespace {

// Among the periods.
constexpr std::size_t kMonth = 2;

constexpr std::size_t kMostStripes = 100;
// So many are read together: some milliseconds.
constexpr std::size_t kPiece = 10;
constexpr std::size_t kMostOutages = 20;

std::string nameOf(const Period& period) { return period.length == 1 ? "24 h" : std::to_string(period.length) + " d"; }

/// A site with what its place among the others depends on.
struct Ranked {
  const ShownSite* site;
  PeriodSums sums;
  /// Of one whose stripes are drawn.
  std::vector<PeriodView> views{};

  bool isDown() const { return site->active && site->up == false; }
  // Those of which nothing is known come last.
  auto rank() const {
    constexpr double kUnknown = 101;
    return std::tuple(!isDown(), sums[kMonth].uptime().value_or(kUnknown), sums.back().uptime().value_or(kUnknown),
                      site->idSite);
  }
};

/// Reads of some sites all that is known.
void readViews(SiteHistory& history, std::span<Ranked> some, Moment now) {
  std::vector<std::int64_t> ids;
  for (const Ranked& ranked : some) {
    ids.push_back(ranked.site->idSite);
  }
  PeriodsOfSites views(history, ids, now);
  for (Ranked& ranked : some) {
    ranked.views = views.of(ranked.site->idSite, ranked.site->interval);
    ranked.sums.clear();
    std::ranges::transform(ranked.views, std::back_inserter(ranked.sums), &PeriodView::whole);
  }
}

std::string stateHtml(const ShownSite& site) {
  if (!site.active) {
    return "<span class=\"state\">switched off</span>";
  }
  return !site.up   ? "<span class=\"state\">not checked yet</span>"
         : *site.up ? "<span class=\"state up\">up</span>"
                    : "<span class=\"state down\">down</span>";
}

std::string outagesHtml(const std::vector<Outage>& outages, Moment now) {
  constexpr std::size_t kFew = 3;
  if (outages.empty()) {
    return {};
  }
  std::string html = outages.size() <= kFew ? "<details open>" : "<details>";
  html +=
      "<summary>" + std::to_string(outages.size()) + (outages.size() == 1 ? " outage" : " outages") + "</summary>\n";
  html +=
      "<div class=\"scroll\"><table class=\"outages\"><tr><th class=\"when\">Down since</th><th "
      "class=\"number\">For</th><th>Cause</th></tr>\n";
  for (std::size_t i = 0; i < std::min(kMostOutages, outages.size()); ++i) {
    const Outage& outage = outages[i];
    html += "<tr><td class=\"when\">" + minuteText(outage.began) + "</td><td class=\"number\">" +
            lengthText(outage.ended.value_or(now) - outage.began) + (outage.ended ? "" : " ...") + "</td><td>" +
            escaped(outage.cause) + "</td></tr>\n";
  }
  html += "</table></div>";
  if (outages.size() > kMostOutages) {
    html += "<p class=\"dim\">The latest " + std::to_string(kMostOutages) + " of them.</p>";
  }
  return html + "</details>\n";
}

std::string siteHtml(SiteHistory& history, const Ranked& ranked, Moment now) {
  const std::vector<Outage> outages = history.outages(ranked.site->idSite, {ranked.views.back().edges.front(), now});
  std::string html = "<section>\n<div class=\"head\"><h2>" + escaped(ranked.site->address) + "</h2>" +
                     stateHtml(*ranked.site) + "</div>\n";
  for (std::size_t period = 0; period < ranked.views.size(); ++period) {
    const PeriodView& view = ranked.views[period];
    const TimeSum& whole = ranked.sums[period];
    html += "<div class=\"period\"><span class=\"dim\">" + nameOf(view.period) + "</span>" +
            page_parts::stripe(view, outages, page_parts::Causes::told) + "<span class=\"number\">" +
            uptimeText(whole.uptime()) + "</span><span class=\"took number dim\">";
    if (whole.latency.count() > 0) {
      html += "median " + tookText(whole.latency.quantile(0.5)) + ", 95 % " + tookText(whole.latency.quantile(0.95));
    }
    html += "</span></div>\n";
  }
  return html + outagesHtml(outages, now) + "</section>\n";
}

std::string lineHtml(const Ranked& ranked) {
  std::string html = "<tr><td class=\"address\">" + escaped(ranked.site->address) + "</td>";
  for (std::size_t period = 0; period < ranked.sums.size(); ++period) {
    html += (period == 0 || period == 3 ? "<td class=\"number wide\">" : "<td class=\"number\">") +
            uptimeText(ranked.sums[period].uptime()) + "</td>";
  }
  return html + "</tr>\n";
}

std::string counted(std::size_t count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace

TextInParts historyPage(SiteHistory& history, Moment now) {
  std::vector<ShownSite> sites;
  while (readMoreSites(history.database(), sites)) {
    co_await letOthersGoOn;
  }
  std::vector<Ranked> ranked;
  std::ranges::transform(sites, std::back_inserter(ranked), [](const ShownSite& site) {
    return Ranked{&site, PeriodSums(periods().size())};
  });
  // Of a short list all have stripes, and are read but once.
  const bool isLong = sites.size() > kMostStripes;
  if (isLong) {
    std::map<std::int64_t, PeriodSums> sums;
    for (const auto& piece : intervalsInPieces(sites)) {
      co_await letOthersGoOn;
      sums.merge(sumsOfPeriods(history, piece, now));
    }
    for (Ranked& own : ranked) {
      if (const auto known = sums.find(own.site->idSite); known != sums.end()) {
        own.sums = known->second;
      }
    }
    std::ranges::sort(ranked, {}, &Ranked::rank);
  }
  const std::span<Ranked> withStripes = std::span(ranked).first(std::min(kMostStripes, ranked.size()));
  for (std::size_t i = 0; i < withStripes.size(); i += kPiece) {
    co_await letOthersGoOn;
    readViews(history, withStripes.subspan(i, std::min(kPiece, withStripes.size() - i)), now);
  }
  if (!isLong) {
    std::ranges::sort(ranked, {}, &Ranked::rank);
  }
  const auto down = static_cast<std::size_t>(std::ranges::count_if(ranked, &Ranked::isDown));
  std::string body = "<h1>History</h1>\n<p class=\"dim\">" + minuteText(now) + ": " +
                     counted(sites.size(), "site", "sites") + ", " + std::to_string(down) +
                     " down, the worst first. Per cent are those of the time of which something is known.</p>\n";
  body += page_parts::legend();
  for (std::size_t i = 0; i < withStripes.size(); ++i) {
    if (i % kPiece == 0) {
      co_await letOthersGoOn;
    }
    body += siteHtml(history, ranked[i], now);
  }
  if (isLong) {
    body +=
        "<section><h2>The others</h2>\n<div class=\"scroll\"><table><tr><th>Address</th><th class=\"number wide\">24 "
        "h</th><th class=\"number\">7 d</th><th class=\"number\">30 d</th><th class=\"number wide\">90 d</th><th "
        "class=\"number\">365 d</th></tr>\n";
    for (std::size_t i = kMostStripes; i < ranked.size(); ++i) {
      body += lineHtml(ranked[i]);
    }
    body += "</table></div></section>\n";
  }
  co_return page_parts::page("History", body);
}

}  // namespace tarnwick
