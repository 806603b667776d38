// SPDX-License-Identifier: MIT
#include "report/month_tables.h"

#include <algorithm>
#include <span>

#include "history/history_text.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using Cell = ReportTable::Cell;
using Column = ReportTable::Column;

constexpr double kMedian = 0.5;
constexpr double kNearlyAll = 0.95;

Cell number(std::int64_t value) { return {value, std::to_string(value)}; }
Cell text(const std::string& value) { return {value, value}; }
Cell length(seconds time) { return {std::int64_t{time.count()}, time.count() > 0 ? lengthText(time) : "-"}; }
Cell moment(Moment at) { return text(dateTimeText(localTimeAt(at))); }
Cell uptime(const TimeSum& sum) {
  const auto part = sum.uptime();
  return {part ? ReportTable::Value(*part) : ReportTable::Value(), uptimeText(part)};
}
Cell took(std::optional<milliseconds> time) {
  return {time ? ReportTable::Value(std::int64_t{time->count()}) : ReportTable::Value(), tookText(time)};
}

std::optional<milliseconds> slowestOf(const TimeSum& sum) {
  return sum.latency.count() > 0 ? std::optional(sum.slowest) : std::nullopt;
}

std::vector<Column> figureColumns() {
  return {{"uptime", "Up", true},           {"upSeconds"},
          {"downSeconds", "Down", true},    {"unknownSeconds", "Unknown", true, true},
          {"outages", "Outages", true},     {"outageSeconds", "In outages", true, true},
          {"checks", "Checks", true, true}, {"medianMs", "Median", true, true},
          {"p95Ms", "95 %", true, true},    {"slowestMs", "Slowest", true, true}};
}

void addFigures(std::vector<Cell>& row, const MonthOfSite& month) {
  const TimeSum& sum = month.sum;
  for (Cell& cell :
       std::vector<Cell>{uptime(sum), length(sum.up), length(sum.down), length(month.unknown), number(month.outages),
                         length(month.inOutages), number(sum.checks), took(sum.latency.quantile(kMedian)),
                         took(sum.latency.quantile(kNearlyAll)), took(slowestOf(sum))}) {
    row.push_back(std::move(cell));
  }
}

ReportTable wholeTable(const MonthReport& report) {
  ReportTable table{"month", "All sites", {{"month"}, {"from"}, {"until"}, {"known"}, {"sites", "Sites", true}}, {}};
  std::ranges::move(figureColumns(), std::back_inserter(table.columns));
  std::vector<Cell> row{text(monthText(report.time.from)), moment(report.time.from), moment(report.time.until),
                        moment(report.made), number(static_cast<std::int64_t>(report.sites.size()))};
  addFigures(row, report.all);
  table.rows.push_back(std::move(row));
  return table;
}

/// Those that the table is given; it learns how many are left out.
template <typename Row>
std::span<const Row> firstOf(ReportTable& table, const std::vector<Row>& rows, std::size_t most) {
  const std::span<const Row> first = std::span(rows).first(std::min(most, rows.size()));
  table.more = rows.size() - first.size();
  return first;
}

ReportTable sitesTable(const MonthReport& report, std::size_t most) {
  ReportTable table{"sites", "Sites, the worst first", {{"idSite", "ID", true, true}}, {}};
  std::ranges::move(figureColumns(), std::back_inserter(table.columns));
  table.columns.push_back({"url", "Address"});
  for (const MonthOfSite& month : firstOf(table, report.sites, most)) {
    std::vector<Cell> row{number(month.site.idSite)};
    addFigures(row, month);
    row.push_back(text(month.site.address));
    table.rows.push_back(std::move(row));
  }
  return table;
}

ReportTable outagesTable(const MonthReport& report, std::size_t most) {
  ReportTable table{"outages",
                    "Outages, the latest first",
                    {{"idSite", "ID", true, true},
                     {"began", "Down since"},
                     {"ended", "Until", false, true},
                     {"seconds", "In the month", true},
                     {"checks", "Checks", true, true},
                     {"url", "Address"},
                     {"cause", "Cause"}},
                    {}};
  for (const MonthOutage& one : firstOf(table, report.outages, most)) {
    const Outage& outage = one.outage;
    table.rows.push_back({number(outage.idSite),
                          moment(outage.began),
                          outage.ended ? moment(*outage.ended) : Cell{{}, "-"},
                          {std::int64_t{one.inMonth.count()}, lengthText(one.inMonth)},
                          number(outage.checks),
                          text(one.address),
                          text(outage.cause)});
  }
  return table;
}

ReportTable slowestTable(const MonthReport& report, std::size_t most) {
  ReportTable table{"slowest",
                    "The slowest sites",
                    {{"idSite", "ID", true, true},
                     {"medianMs", "Median", true},
                     {"p95Ms", "95 %", true},
                     {"slowestMs", "Slowest", true, true},
                     {"url", "Address"}},
                    {}};
  for (const MonthOfSite& month : firstOf(table, report.slowest, most)) {
    table.rows.push_back({number(month.site.idSite), took(month.sum.latency.quantile(kMedian)),
                          took(month.sum.latency.quantile(kNearlyAll)), took(slowestOf(month.sum)),
                          text(month.site.address)});
  }
  return table;
}

ReportTable certificatesTable(const MonthReport& report, std::size_t most) {
  ReportTable table{"certificates",
                    "The certificates that end soonest",
                    {{"idSite", "ID", true, true}, {"ends", "Ends"}, {"daysLeft", "Days", true}, {"url", "Address"}},
                    {}};
  for (const EndingCertificate& one : firstOf(table, report.certificates, most)) {
    table.rows.push_back({number(one.idSite), moment(one.ends), number(one.daysLeft), text(one.address)});
  }
  return table;
}

std::string padded(const std::string& text, std::size_t width, bool isRight) {
  const std::string blanks(width - std::min(width, text.size()), ' ');
  return isRight ? blanks + text : text + blanks;
}

std::string tableLines(const ReportTable& table) {
  std::vector<std::size_t> widths;
  for (std::size_t column = 0; column < table.columns.size(); ++column) {
    std::size_t width = table.columns[column].title.size();
    for (const auto& row : table.rows) {
      width = std::max(width, row[column].shown.size());
    }
    widths.push_back(width);
  }
  const auto line = [&](const auto& textOf) {
    std::string whole;
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      const Column& kind = table.columns[column];
      if (!kind.title.empty() && !kind.isMinor) {
        whole += (whole.empty() ? "" : "  ") + padded(textOf(column), widths[column], kind.isNumber);
      }
    }
    return whole.substr(0, whole.find_last_not_of(' ') + 1) + "\n";
  };
  std::string lines = table.title + "\n" + line([&](std::size_t column) { return table.columns[column].title; });
  for (const auto& row : table.rows) {
    lines += line([&](std::size_t column) { return row[column].shown; });
  }
  return table.more > 0 ? lines + "and " + std::to_string(table.more) + " more\n" : lines;
}

}  // namespace

const std::vector<std::string>& monthTableKeys() {
  static const std::vector<std::string> keys{"month", "sites", "outages", "slowest", "certificates"};
  return keys;
}

std::vector<ReportTable> monthTables(const MonthReport& report, std::size_t most) {
  return {wholeTable(report), sitesTable(report, most), outagesTable(report, most), slowestTable(report, most),
          certificatesTable(report, most)};
}

std::string monthSentence(const MonthReport& report) {
  const MonthOfSite& all = report.all;
  std::string sentence = monthName(report.time.from) + (report.isOver ? ": " : " so far: ");
  const std::size_t sites = report.sites.size();
  sentence += std::to_string(sites) + (sites == 1 ? " site" : " sites");
  if (all.sum.known().count() == 0) {
    return sentence + ", of which nothing is known.";
  }
  sentence += ", up " + uptimeText(all.sum.uptime()) + " of the known time";
  if (all.outages > 0) {
    sentence += "; " + std::to_string(all.outages) + (all.outages == 1 ? " outage" : " outages") + " of " +
                lengthText(all.inOutages) + (all.outages == 1 ? "" : " together");
  } else {
    sentence += "; no outage";
  }
  return sentence + (all.unknown.count() > 0 ? "; " + lengthText(all.unknown) + " unknown or planned." : ".");
}

std::string monthLines(const MonthReport& report, std::size_t most) {
  std::string lines;
  for (const ReportTable& table : monthTables(report, most)) {
    if (!table.rows.empty()) {
      lines += (lines.empty() ? "" : "\n") + tableLines(table);
    }
  }
  return lines;
}

}  // namespace tarnwick
