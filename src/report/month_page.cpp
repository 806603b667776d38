// SPDX-License-Identifier: MIT
#include "report/month_page.h"

#include <algorithm>

#include "history/history_text.h"
#include "report/month_tables.h"
#include "report/page_parts.h"

namespace tarnwick {

using page_parts::escaped;
using page_parts::minuteText;

namespace {

constexpr std::size_t kMostStripes = 100;
constexpr std::size_t kMostLines = 1000;
constexpr std::size_t kMostOutages = 500;

std::string classOf(const ReportTable::Column& column) {
  std::string words = column.isNumber ? "number" : column.key == "url" ? "address" : "";
  words += column.isMinor ? (words.empty() ? "wide" : " wide") : "";
  return words.empty() ? "" : " class=\"" + words + "\"";
}

/// The rows from `first` on, at most so many.
std::string tableHtml(const ReportTable& table, const std::string& title, std::size_t first, std::size_t most) {
  if (table.rows.size() <= first) {
    return {};
  }
  std::string html = "<section><h2>" + title + "</h2>\n<div class=\"scroll\"><table>";
  const auto addRow = [&](const char* element, const auto& textOf) {
    html += "<tr>";
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      if (!table.columns[i].title.empty()) {
        html.append("<").append(element).append(classOf(table.columns[i])).append(">");
        html.append(escaped(textOf(i))).append("</").append(element).append(">");
      }
    }
    html += "</tr>\n";
  };
  addRow("th", [&](std::size_t i) { return table.columns[i].title; });
  const std::size_t behind = std::min(table.rows.size(), first + most);
  for (std::size_t row = first; row < behind; ++row) {
    addRow("td", [&](std::size_t i) { return table.rows[row][i].shown; });
  }
  html += "</table></div>";
  if (const std::size_t more = table.rows.size() - behind + table.more; more > 0) {
    html += "<p class=\"dim\">and " + std::to_string(more) + " more</p>";
  }
  return html + "</section>\n";
}

std::string siteHtml(SiteHistory& history, const MonthReport& report, const MonthOfSite& month) {
  const PeriodView view = daysOfMonth(history, month.site, report);
  std::vector<Outage> outages;
  for (const MonthOutage& one : report.outages) {
    if (one.outage.idSite == month.site.idSite) {
      outages.push_back(one.outage);
    }
  }
  const Latency& latency = month.sum.latency;
  std::string html = "<section>\n<div class=\"head\"><h2>" + escaped(month.site.address) + "</h2></div>\n";
  html += "<div class=\"period\"><span class=\"dim\">" + std::to_string(view.cells.size()) + " d</span>" +
          page_parts::stripe(view, outages, page_parts::Causes::told) + "<span class=\"number\">" +
          uptimeText(month.sum.uptime()) + "</span><span class=\"took number dim\">";
  if (latency.count() > 0) {
    html += "median " + tookText(latency.quantile(0.5)) + ", 95 % " + tookText(latency.quantile(0.95));
  }
  html += "</span></div>\n";
  if (month.outages > 0 || month.unknown.count() > 0) {
    html += "<p class=\"dim\">";
    if (month.outages > 0) {
      html += std::to_string(month.outages) + (month.outages == 1 ? " outage of " : " outages of ") +
              lengthText(month.inOutages) + (month.unknown.count() > 0 ? "; " : "");
    }
    html += (month.unknown.count() > 0 ? lengthText(month.unknown) + " unknown or planned" : "") + "</p>\n";
  }
  return html + "</section>\n";
}

}  // namespace

TextInParts monthPage(SiteHistory& history, const MonthReport& report) {
  const std::vector<ReportTable> tables = monthTables(report, kMostStripes + kMostLines);
  co_await letOthersGoOn;
  const auto table = [&](std::string_view key) -> const ReportTable& {
    return *std::ranges::find(tables, key, &ReportTable::key);
  };
  std::string body = "<h1>" + monthName(report.time.from) + "</h1>\n<p>" + escaped(monthSentence(report)) + "</p>\n";
  body += "<p class=\"dim\">" + minuteText(report.time.from) + " to " + minuteText(report.time.until) +
          ", as it was known " + minuteText(report.made) +
          ". Per cent are those of the time of which something is known.</p>\n";
  body += tableHtml(table("month"), "All sites", 0, 1) + page_parts::legend();
  for (std::size_t i = 0; i < std::min(kMostStripes, report.sites.size()); ++i) {
    body += siteHtml(history, report, report.sites[i]);
    co_await letOthersGoOn;
  }
  body += tableHtml(table("sites"), "The other sites", kMostStripes, kMostLines);
  for (const char* const key : {"slowest", "certificates"}) {
    body += tableHtml(table(key), table(key).title, 0, kMostLines);
  }
  body += tableHtml(table("outages"), table("outages").title, 0, kMostOutages);
  co_return page_parts::page("Report of " + monthName(report.time.from), body);
}

}  // namespace tarnwick
