// SPDX-License-Identifier: MIT
#include <filesystem>
#include <ostream>

#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "report/metrics_text.h"
#include "report/publication.h"

namespace tarnwick {
namespace {

int metrics(Tool& tool, const std::optional<std::string>& path) {
  m& data = tool.data();
  const Snapshot snapshot(data.database());
  const std::string text = metricsText(data).whole();
  if (path) {
    tool.services().files.replace(*path, [&](const ByteSink& sink) { sink(text); });
  } else {
    tool.console().out() << text;
  }
  return exit_status::ok;
}

int page(Tool& tool, const std::string& folder) {
  m& data = tool.data();
  const Snapshot snapshot(data.database());
  const std::string place = std::filesystem::absolute(pathOf(folder)).generic_string();
  tool.console().say(tool.console().shown(writeStatusPage(data, tool.services().files, tool.services().clock, place)));
  return exit_status::ok;
}

}  // namespace

Verb statusPageVerb() {
  auto folder = std::make_shared<std::string>();
  return Verb{"status-page",
              "Write a page that tells others which sites are up",
              {{.name = "FOLDER",
                .target = folder.get(),
                .meaning = "Where to write it as index.html; the folder is made when it is missing",
                .required = true}},
              "A run keeps it up to date by itself where the option statusPage names a folder.\n" +
                  examples({{"status-page /var/www/status", "once, as things stand now"}}),
              [folder](Tool& tool) { return page(tool, *folder); }};
}

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
