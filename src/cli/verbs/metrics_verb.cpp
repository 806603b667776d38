// SPDX-License-Identifier: MIT
#include <array>
#include <charconv>
#include <functional>
#include <ostream>

#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "exchange/list/site_facts.h"

namespace tarnwick {
namespace {

/// The value of a label: https://prometheus.io/docs/instrumenting/exposition_formats/
std::string labelText(std::string_view text) {
  std::string safe;
  for (const char c : text) {
    if (c == '\\' || c == '"') {
      safe += '\\';
    }
    safe += c == '\n' ? "\\n" : std::string(1, c);
  }
  return safe;
}

/// One family of figures: of each site those that there are.
struct Family {
  const char* name;
  const char* type;
  const char* help;
  std::function<void(const SiteFacts&, const std::function<void(const std::string& label, double value)>&)> figures;
};

std::vector<Family> families(m& data) {
  return {
      {"tarnwick_site_active", "gauge", "Whether the site is checked.",
       [](const SiteFacts& site, const auto& tell) { tell("", site.site.active ? 1 : 0); }},
      {"tarnwick_site_up", "gauge", "Whether the latest check has passed.",
       [](const SiteFacts& site, const auto& tell) {
         if (site.status) {
           tell("", *site.status ? 1 : 0);
         }
       }},
      {"tarnwick_site_checks_total", "counter", "Checks since the counters were cleared.",
       [](const SiteFacts& site, const auto& tell) {
         tell("result=\"passed\"", static_cast<double>(site.success));
         tell("result=\"failed\"", static_cast<double>(site.failure));
       }},
      {"tarnwick_site_last_check_timestamp_seconds", "gauge", "When the latest check of the history was made.",
       [&data](const SiteFacts& site, const auto& tell) {
         if (const auto latest = data.latestCheck(site.idSite)) {
           tell("", static_cast<double>(latest->at.time_since_epoch().count()));
         }
       }},
      {"tarnwick_site_response_seconds", "gauge", "How long the parts of the latest request took.",
       [&data](const SiteFacts& site, const auto& tell) {
         const CheckTimings timings = data.timings(site.idSite).value_or(CheckTimings{});
         const auto part = [&](const char* label, std::optional<std::chrono::milliseconds> time) {
           if (time) {
             tell(std::string("part=\"") + label + "\"", static_cast<double>(time->count()) / 1000);
           }
         };
         part("lookup", timings.lookUp);
         part("connect", timings.connect);
         part("tls", timings.tls);
         part("first_byte", timings.firstByte);
         part("whole", timings.whole);
       }},
  };
}

std::string numberText(double value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  return {text.data(), end.ptr};
}

int metrics(Tool& tool, const std::optional<std::string>& path) {
  m& data = tool.data();
  std::string text;
  const Snapshot snapshot(data.database());
  const std::vector<SiteFacts> sites = readSiteFacts(data);
  for (const Family& family : families(data)) {
    text +=
        std::string("# HELP ") + family.name + " " + family.help + "\n# TYPE " + family.name + " " + family.type + "\n";
    for (const SiteFacts& site : sites) {
      family.figures(site, [&](const std::string& label, double value) {
        text += std::string(family.name) + "{id=\"" + std::to_string(site.idSite) + "\",url=\"" +
                labelText(visibleText(site.site.url)) + "\"" + (label.empty() ? "" : "," + label) + "} " +
                numberText(value) + "\n";
      });
    }
  }
  if (path) {
    tool.services().files.replace(*path, [&](const ByteSink& sink) { sink(text); });
  } else {
    tool.console().out() << text;
  }
  return exit_status::ok;
}

}  // namespace

Verb metricsVerb() {
  auto file = std::make_shared<std::optional<std::string>>();
  return Verb{
      "metrics",
      "Print how the sites stand as figures for Prometheus",
      {{.name = "--file",
        .target = file.get(),
        .meaning = "Replace this file as a whole instead, as the textfile collector of its node exporter wants it",
        .type = "FILE"}},
      examples({{"metrics", "every figure of every site"},
                {"metrics --file /var/lib/node_exporter/tarnwick.prom", "for the textfile collector, from cron"}}),
      [file](Tool& tool) { return metrics(tool, *file); }};
}

}  // namespace tarnwick
