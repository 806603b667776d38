// SPDX-License-Identifier: MIT
#include "report/status_page.h"

#include <algorithm>
#include <tuple>

#include "history/history_text.h"
#include "report/page_parts.h"
#include "report/shown_sites.h"
#include "store/history_view.h"

namespace tarnwick {

using page_parts::escaped;
using page_parts::minuteText;

namespace {

constexpr std::size_t kMost = 1000;
constexpr std::size_t kMostStripes = 100;
// So many are read together: some milliseconds.
constexpr std::size_t kPiece = 20;
// Among the periods.
constexpr std::size_t kMonth = 2;

struct Line {
  const ShownSite* site;
  std::optional<bool> up;
  std::optional<double> uptime;
};

/// Whether the site is up now: nothing where its latest check says nothing of it any more.
std::optional<bool> upNow(const ShownSite& site, const std::map<std::int64_t, LatestCheck>& latest, Moment now) {
  const auto check = latest.find(site.idSite);
  if (check == latest.end()) {
    return site.up;
  }
  const auto known = knownAfter(check->second, site.interval, now);
  const bool isNew = check->second.at == now;
  return isNew || (known && known->until == now) ? std::optional(check->second.up) : std::nullopt;
}

int gravityOf(const std::optional<bool>& up) { return !up ? 1 : *up ? 2 : 0; }

std::string bannerHtml(const std::vector<Line>& lines) {
  const auto down = std::ranges::count_if(lines, [](const Line& line) { return line.up == false; });
  const auto unknown = std::ranges::count_if(lines, [](const Line& line) { return !line.up; });
  const std::string all = std::to_string(lines.size());
  if (down > 0) {
    return "<div class=\"banner down\"><h1>" + std::to_string(down) + " of " + all +
           (down == 1 ? " is down</h1>" : " are down</h1>");
  }
  if (unknown > 0 || lines.empty()) {
    return "<div class=\"banner unknown\"><h1>" + std::to_string(unknown) + " of " + all +
           (unknown == 1 ? " is unknown</h1>" : " are unknown</h1>");
  }
  return "<div class=\"banner\"><h1>" + (lines.size() == 1 ? std::string("It is up") : "All " + all + " are up") +
         "</h1>";
}

std::string lineHtml(const Line& line, const std::string& stripe, const std::vector<Outage>& outages) {
  const auto open = std::ranges::find_if(outages, [](const Outage& outage) { return !outage.ended; });
  std::string state = "<span class=\"state\">unknown</span>";
  if (line.up == true) {
    state = "<span class=\"state up\">up</span>";
  } else if (line.up == false) {
    state = "<span class=\"state down\">down" + (open != outages.end() ? " since " + minuteText(open->began) : "") +
            "</span>";
  }
  return "<div class=\"row\"><h2>" + escaped(publicAddress(line.site->address)) + "</h2>" + state + stripe +
         "<span class=\"number\">" + uptimeText(line.uptime) + "</span></div>\n";
}

}  // namespace

TextInParts statusPage(SiteHistory& history, Moment now) {
  std::vector<ShownSite> sites;
  while (readMoreSites(history.database(), sites)) {
    co_await letOthersGoOn;
  }
  const std::map<std::int64_t, LatestCheck> latest = history.latestChecks();
  std::map<std::int64_t, PeriodSums> sums;
  for (const auto& piece : intervalsInPieces(sites)) {
    co_await letOthersGoOn;
    sums.merge(sumsOfPeriods(history, piece, now));
  }
  std::vector<Line> lines;
  for (const ShownSite& site : sites) {
    const auto known = sums.find(site.idSite);
    if (site.active) {
      lines.push_back(
          {&site, upNow(site, latest, now), known == sums.end() ? std::nullopt : known->second[kMonth].uptime()});
    }
  }
  std::ranges::stable_sort(lines, {}, [](const Line& line) {
    constexpr double kUnknown = 101;
    return std::tuple(gravityOf(line.up), line.uptime.value_or(kUnknown));
  });
  std::map<std::int64_t, std::vector<Outage>> outages;
  for (Outage& outage : history.outages(std::nullopt, {edgesOf(periods()[kMonth], now).front(), now})) {
    outages[outage.idSite].push_back(std::move(outage));
  }
  std::string body = bannerHtml(lines) + "<p class=\"dim\">" + minuteText(now) + "</p></div>\n";
  for (std::size_t i = 0; i < std::min(kMost, lines.size()); ++i) {
    if (i % kPiece == 0) {
      co_await letOthersGoOn;
    }
    const ShownSite& site = *lines[i].site;
    const std::vector<Outage>& own = outages[site.idSite];
    const bool hasStripe = i < kMostStripes && latest.contains(site.idSite);
    body += lineHtml(lines[i],
                     hasStripe
                         ? page_parts::stripe(periodOfDays(history, site.idSite, site.interval, periods()[kMonth], now),
                                              own, page_parts::Causes::untold)
                         : "<span></span>",
                     own);
  }
  if (!latest.empty()) {
    body +=
        "<p class=\"dim\">The stripes are the last 30 days, and per cent are those of the time that is known.</p>\n" +
        page_parts::legend();
  }
  co_return page_parts::page("Status", body);
}

}  // namespace tarnwick
