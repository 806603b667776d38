// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <ostream>

#include "cli/terminal/csv_text.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/chosen_sites.h"
#include "cli/verbs/verbs.h"
#include "history/history_text.h"
#include "store/history_view.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

struct HistoryOptions {
  std::vector<std::string> sites;
  std::optional<std::string> svg;
  bool json = false;
  bool csv = false;
};

constexpr std::size_t kMostOutages = 20;

std::string nameOf(const Period& period) { return period.length == 1 ? "24 h" : std::to_string(period.length) + " d"; }

std::string localText(Moment moment) { return dateTimeText(localTimeAt(moment)); }

JsonValue jsonOf(std::optional<milliseconds> time) { return time ? JsonValue(time->count()) : JsonValue(); }

std::optional<milliseconds> slowestOf(const TimeSum& sum) {
  return sum.latency.count() > 0 ? std::optional(sum.slowest) : std::nullopt;
}

/// One site with all that is known of it.
struct SiteView {
  SiteFacts facts;
  std::vector<PeriodView> periods;
  std::vector<Outage> outages;
  CheckTimings latest;
};

seconds intervalOf(const SiteFacts& facts) {
  return std::chrono::minutes(std::max(1, std::atoi(facts.site.tInterval.c_str())));
}

SiteView viewOf(m& data, std::int16_t id, Moment now) {
  SiteView view{readSiteFacts(data, id).at(0), {}, {}, data.timings(id).value_or(CheckTimings{})};
  view.periods = periodsOf(data, id, intervalOf(view.facts), now);
  view.outages = data.outages(id, {view.periods.back().edges.front(), now});
  return view;
}

JsonValue sumJson(const TimeSum& sum, seconds length) {
  const auto uptime = sum.uptime();
  return {{"uptime", uptime ? JsonValue(*uptime) : JsonValue()},
          {"upSeconds", sum.up.count()},
          {"downSeconds", sum.down.count()},
          {"unknownSeconds", (length - sum.known()).count()},
          {"checks", sum.checks},
          {"medianMs", jsonOf(sum.latency.quantile(0.5))},
          {"p95Ms", jsonOf(sum.latency.quantile(0.95))},
          {"slowestMs", jsonOf(slowestOf(sum))}};
}

JsonValue viewJson(const SiteView& view, Moment now) {
  JsonValue periods = JsonValue::array();
  for (const PeriodView& period : view.periods) {
    JsonValue json = sumJson(period.whole(), period.length());
    json["days"] = period.period.length;
    json["from"] = localText(period.edges.front());
    JsonValue cells = JsonValue::array();
    for (std::size_t i = 0; i < period.cells.size(); ++i) {
      JsonValue cell = sumJson(period.cells[i], period.lengthOf(i));
      cell["from"] = localText(period.edges[i]);
      cells.add(std::move(cell));
    }
    json["cells"] = std::move(cells);
    periods.add(std::move(json));
  }
  JsonValue outages = JsonValue::array();
  for (const Outage& outage : view.outages) {
    outages.add({{"began", localText(outage.began)},
                 {"ended", outage.ended ? JsonValue(localText(*outage.ended)) : JsonValue()},
                 {"seconds", (outage.ended.value_or(now) - outage.began).count()},
                 {"checks", outage.checks},
                 {"cause", jsonText(outage.cause)}});
  }
  JsonValue json{{"idSite", view.facts.idSite}, {"url", jsonText(view.facts.site.url)}};
  json["latestMs"] = JsonValue{{"lookUp", jsonOf(view.latest.lookUp)},
                               {"connect", jsonOf(view.latest.connect)},
                               {"tls", jsonOf(view.latest.tls)},
                               {"firstByte", jsonOf(view.latest.firstByte)},
                               {"whole", jsonOf(view.latest.whole)}};
  json["periods"] = std::move(periods);
  json["outages"] = std::move(outages);
  return json;
}

void printCsv(std::ostream& out, const SiteView& view) {
  const auto number = [](std::optional<milliseconds> time) { return time ? std::to_string(time->count()) : ""; };
  for (const PeriodView& period : view.periods) {
    for (std::size_t i = 0; i < period.cells.size(); ++i) {
      const TimeSum& cell = period.cells[i];
      out << view.facts.idSite << ',' << csvText(view.facts.site.url) << ',' << period.period.length << ','
          << localText(period.edges[i]) << ',' << localText(period.edges[i + 1]) << ',' << cell.up.count() << ','
          << cell.down.count() << ',' << (period.lengthOf(i) - cell.known()).count() << ',' << cell.checks << ','
          << number(cell.latency.quantile(0.5)) << ',' << number(cell.latency.quantile(0.95)) << ','
          << number(slowestOf(cell)) << "\r\n";
    }
  }
}

std::string stripeOf(const Console& console, const PeriodView& view) {
  std::string stripe;
  for (const TimeSum& cell : view.cells) {
    const CellState state = stateOf(cell);
    const bool isBad = state == CellState::down || state == CellState::partly || state == CellState::mostly;
    stripe += console.coloured(isBad                    ? Console::Colour::red
                               : state == CellState::up ? Console::Colour::green
                                                        : Console::Colour::plain,
                               blockOf(cell));
  }
  return stripe;
}

/// "look-up 3 ms, connect 12 ms, TLS 25 ms, first byte 80 ms, whole 130 ms"; empty where nothing is known.
std::string partsText(const CheckTimings& timings) {
  std::string text;
  const auto add = [&](const char* part, std::optional<milliseconds> took) {
    if (took) {
      text.append(text.empty() ? "" : ", ").append(part).append(tookText(took));
    }
  };
  add("look-up ", timings.lookUp);
  add("connect ", timings.connect);
  add("TLS ", timings.tls);
  add("first byte ", timings.firstByte);
  add("whole ", timings.whole);
  return text;
}

void print(Console& console, const SiteView& view, Moment now) {
  console.say(std::to_string(view.facts.idSite) + "  " + visibleText(view.facts.site.url));
  for (const PeriodView& period : view.periods) {
    const std::string name = nameOf(period.period);
    console.say(std::string(6 - name.size(), ' ') + name + "  " + stripeOf(console, period) + "  " +
                uptimeText(period.whole().uptime()));
  }
  using Align = TextGrid::Align;
  TextGrid grid({{"Time", Align::right},
                 {"Up", Align::right},
                 {"Known", Align::right},
                 {"Checks", Align::right},
                 {"Median", Align::right},
                 {"95 %", Align::right},
                 {"Slowest", Align::right}});
  for (const PeriodView& period : view.periods) {
    const TimeSum whole = period.whole();
    grid.addRow({{nameOf(period.period)},
                 {uptimeText(whole.uptime())},
                 {lengthText(whole.known())},
                 {std::to_string(whole.checks)},
                 {tookText(whole.latency.quantile(0.5))},
                 {tookText(whole.latency.quantile(0.95))},
                 {tookText(slowestOf(whole))}});
  }
  console.out() << '\n';
  grid.print(console);
  if (const std::string parts = partsText(view.latest); !parts.empty()) {
    console.out() << '\n';
    console.say("Latest check: " + parts);
  }
  if (view.outages.empty()) {
    return;
  }
  console.out() << '\n';
  TextGrid outages({{"Down since"}, {"For", Align::right}, {"Checks", Align::right}, {"Cause"}});
  for (std::size_t i = 0; i < std::min(kMostOutages, view.outages.size()); ++i) {
    const Outage& outage = view.outages[i];
    outages.addRow({{localText(outage.began)},
                    {lengthText(outage.ended.value_or(now) - outage.began) + (outage.ended ? "" : " ...")},
                    {std::to_string(outage.checks)},
                    {console.worded(outage.cause)}});
  }
  outages.print(console);
}

void printMany(Tool& tool, const std::vector<std::int16_t>& ids, Moment now) {
  using Align = TextGrid::Align;
  m& data = tool.data();
  std::map<std::int64_t, SiteFacts> facts;
  std::map<std::int64_t, seconds> intervals;
  for (SiteFacts& site : readSiteFacts(data)) {
    if (std::in_range<std::int16_t>(site.idSite) &&
        std::ranges::binary_search(ids, static_cast<std::int16_t>(site.idSite))) {
      intervals.emplace(site.idSite, intervalOf(site));
      facts.emplace(site.idSite, std::move(site));
    }
  }
  const auto sums = sumsOfPeriods(data, intervals, now);
  std::vector<TextGrid::Column> columns{{"ID", Align::right}};
  for (const Period& period : periods()) {
    columns.push_back({nameOf(period), Align::right});
  }
  columns.push_back({"Median", Align::right});
  columns.push_back({"95 %", Align::right});
  columns.push_back({"Address"});
  TextGrid grid(columns);
  for (const auto& [id, site] : facts) {
    const auto known = sums.find(id);
    const PeriodSums own = known == sums.end() ? PeriodSums(periods().size()) : known->second;
    std::vector<TextGrid::Cell> row{{std::to_string(id)}};
    for (const TimeSum& sum : own) {
      row.push_back({uptimeText(sum.uptime()), sum.down.count() > 0 ? Console::Colour::red : Console::Colour::plain});
    }
    row.push_back({tookText(own[1].latency.quantile(0.5))});
    row.push_back({tookText(own[1].latency.quantile(0.95))});
    row.push_back({site.site.url});
    grid.addRow(std::move(row));
  }
  grid.print(tool.console());
}

void writePicture(Tool& tool, const std::string& path, const SiteView& view) {
  std::vector<StripeOfPicture> stripes;
  for (const PeriodView& period : view.periods) {
    stripes.push_back({nameOf(period.period), uptimeText(period.whole().uptime()), period.cells});
  }
  const std::string svg = stripesAsSvg(visibleText(view.facts.site.url), stripes);
  if (path == "-") {
    tool.console().out() << svg;
  } else {
    tool.services().files.replace(path, [&](const ByteSink& sink) { sink(svg); });
  }
}

int history(Tool& tool, const HistoryOptions& options) {
  if (options.json + options.csv + options.svg.has_value() > 1) {
    throw std::runtime_error("Ask for one of --json, --csv and --svg.");
  }
  m& data = tool.data();
  Console& console = tool.console();
  const std::vector<std::int16_t> ids = chosenSites(tool, options.sites);
  const Moment now = tool.services().clock.now();
  const Snapshot snapshot(data.database());
  if (options.svg) {
    if (ids.size() != 1) {
      throw std::runtime_error("A picture is of one site: name one for --svg.");
    }
    writePicture(tool, *options.svg, viewOf(data, ids.front(), now));
    return exit_status::ok;
  }
  if (options.json) {
    JsonArray array(console);
    for (const std::int16_t id : ids) {
      array.add(viewJson(viewOf(data, id, now), now));
    }
    array.end();
  } else if (options.csv) {
    console.out()
        << "idSite,url,days,from,until,upSeconds,downSeconds,unknownSeconds,checks,medianMs,p95Ms,slowestMs\r\n";
    for (const std::int16_t id : ids) {
      printCsv(console.out(), viewOf(data, id, now));
    }
  } else if (ids.size() == 1) {
    print(console, viewOf(data, ids.front(), now), now);
  } else {
    printMany(tool, ids, now);
  }
  const bool isKept = data.optionsInForce().valueOf(kAllSites, option_name::history) == option_value::on;
  if (!isKept) {
    console.complain("No history is kept. To keep it: tarnwickctl option all history=on");
  }
  return exit_status::ok;
}

}  // namespace

Verb historyVerb() {
  auto options = std::make_shared<HistoryOptions>();
  return Verb{"history",
              "Show when sites were up or down, and how long their answers took",
              {chosenSitesOption(options->sites),
               {.name = "--svg",
                .target = &options->svg,
                .meaning = "Write a picture of one site's stripes into this file; - is standard output",
                .type = "FILE"},
               jsonOption(options->json),
               {"--csv", &options->csv, "Print each cell of each stripe as a row of CSV"}},
              "Of 24 hours, 7, 30, 90 and 365 days. Per cent are those of the time of which something is known.\n"
              "The option history says whether it is kept.\n" +
                  examples({{"history 3", "stripes, figures and outages of a site"},
                            {"history all", "one line for each site"},
                            {"history tag:shop --csv > shop.csv", "for a spreadsheet"},
                            {"history 3 --svg site.svg", "a picture for a web page or a mail"}}),
              [options](Tool& tool) { return history(tool, *options); }};
}

}  // namespace tarnwick
