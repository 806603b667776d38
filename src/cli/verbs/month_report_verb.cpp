// SPDX-License-Identifier: MIT
#include <algorithm>
#include <ostream>

#include "cli/terminal/csv_text.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "report/month_page.h"
#include "report/month_tables.h"

namespace tarnwick {
namespace {

struct MonthOptions {
  std::string month;
  std::optional<std::string> html;
  std::string csv;
  bool json = false;
};

/// Of that text; without one of the last month that has ended.
Moment chosenMonth(const std::string& text, Moment now) {
  if (text.empty()) {
    return monthOf(monthOf(now) - std::chrono::seconds(1));
  }
  const auto month = readMonth(text);
  if (!month) {
    throw std::runtime_error("\"" + text + "\" is no month. Write it as in \"" + monthText(now) + "\".");
  }
  if (*month > now) {
    throw std::runtime_error("The month " + text + " has not begun. The present one is " + monthText(now) + ".");
  }
  return *month;
}

JsonValue jsonOf(const ReportTable::Value& value) {
  if (const auto* const number = std::get_if<std::int64_t>(&value)) {
    return *number;
  }
  if (const auto* const number = std::get_if<double>(&value)) {
    return *number;
  }
  const auto* const text = std::get_if<std::string>(&value);
  return text != nullptr ? jsonText(*text) : JsonValue();
}

JsonValue jsonOf(const ReportTable& table) {
  JsonValue rows = JsonValue::array();
  for (const auto& row : table.rows) {
    JsonValue json = JsonValue::object();
    for (std::size_t i = 0; i < row.size(); ++i) {
      json[table.columns[i].key] = jsonOf(row[i].value);
    }
    rows.add(std::move(json));
  }
  return rows;
}

std::string csvOf(const ReportTable::Value& value) {
  const auto* const text = std::get_if<std::string>(&value);
  const JsonValue json = jsonOf(value);
  return text != nullptr ? csvText(*text) : json.isNull() ? std::string() : jsonLine(json);
}

void printCsv(std::ostream& out, const ReportTable& table) {
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    out << (i > 0 ? "," : "") << table.columns[i].key;
  }
  out << "\r\n";
  for (const auto& row : table.rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      out << (i > 0 ? "," : "") << csvOf(row[i].value);
    }
    out << "\r\n";
  }
}

void print(Console& console, const ReportTable& table) {
  std::vector<TextGrid::Column> columns;
  for (const ReportTable::Column& column : table.columns) {
    if (!column.title.empty()) {
      columns.push_back({column.title, column.isNumber ? TextGrid::Align::right : TextGrid::Align::left});
    }
  }
  TextGrid grid(columns);
  for (const auto& row : table.rows) {
    std::vector<TextGrid::Cell> cells;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (!table.columns[i].title.empty()) {
        cells.push_back({table.columns[i].key == "cause" ? console.worded(row[i].shown) : row[i].shown});
      }
    }
    grid.addRow(std::move(cells));
  }
  console.out() << '\n';
  console.tell(table.title);
  grid.print(console);
}

void write(Tool& tool, const std::string& path, const std::string& page) {
  if (path == "-") {
    tool.console().out() << page;
  } else {
    tool.services().files.replace(path, [&](const ByteSink& sink) { sink(page); });
  }
}

int monthReport(Tool& tool, const MonthOptions& options) {
  if (options.json + !options.csv.empty() + options.html.has_value() > 1) {
    throw std::runtime_error("Ask for one of --json, --csv and --html.");
  }
  m& data = tool.data();
  Console& console = tool.console();
  const Moment now = tool.services().clock.now();
  const Moment month = chosenMonth(options.month, now);
  const Snapshot snapshot(data.database());
  const MonthReport report = tarnwick::monthReport(data, month, now);
  const std::vector<ReportTable> tables = monthTables(report);
  if (options.html) {
    write(tool, *options.html, monthPage(data, report).whole());
  } else if (!options.csv.empty()) {
    printCsv(console.out(), *std::ranges::find(tables, options.csv, &ReportTable::key));
  } else if (options.json) {
    JsonValue json = JsonValue::object();
    for (const ReportTable& table : tables) {
      json[table.key] = jsonOf(table);
    }
    sayJson(console, std::move(json));
  } else {
    console.tell("Month " + monthText(month) + ", as it was known " + dateTimeText(localTimeAt(now)));
    for (const ReportTable& table : tables) {
      if (!table.rows.empty()) {
        print(console, table);
      }
    }
  }
  if (!report.isHistoryKept) {
    console.complain("No history is kept. To keep it: tarnwickctl option all history=on");
  }
  return exit_status::ok;
}

}  // namespace

Verb monthReportVerb() {
  auto options = std::make_shared<MonthOptions>();
  return Verb{
      "month-report",
      "Show how the sites were in a month",
      {{.name = "MONTH", .target = &options->month, .meaning = "As in 2026-11; without one the last that has ended"},
       {.name = "--html",
        .target = &options->html,
        .meaning = "Write it as a page into this file; - is standard output",
        .type = "FILE"},
       {.name = "--csv",
        .target = &options->csv,
        .meaning = "Print one of its tables as CSV",
        .type = "TABLE",
        .oneOf = monthTableKeys()},
       jsonOption(options->json)},
      "Per cent are those of the time of which something is known. An outage counts as far as it lies in the\n"
      "month. Certificates are shown as they are now. With the option monthReport a run makes it by itself.\n" +
          examples({{"month-report", "of the last month"},
                    {"month-report 2026-10 --html october.html", "as a page"},
                    {"month-report 2026-10 --csv outages", "its outages, for a spreadsheet"},
                    {"month-report --json", "all its tables"}}),
      [options](Tool& tool) { return monthReport(tool, *options); }};
}

}  // namespace tarnwick
