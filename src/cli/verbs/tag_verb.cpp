// SPDX-License-Identifier: MIT
#include <ostream>

#include "cli/terminal/json_output.h"
#include "cli/verbs/chosen_sites.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

struct TagOptions {
  std::string site;
  std::vector<std::string> names;
  bool remove = false;
  bool json = false;
};

std::string joined(const Tags& tags) {
  std::string text;
  for (const std::string& tag : tags) {
    text += (text.empty() ? "" : " ") + tag;
  }
  return text;
}

void requireTags(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    if (const std::string fault = faultOfTag(name); !fault.empty()) {
      throw std::runtime_error(fault);
    }
  }
}

void change(m& data, std::int16_t id, const TagOptions& options) {
  const Tags before = data.tagsOf(id);
  const Tags after = options.remove ? withoutTags(before, options.names) : withTags(before, options.names);
  if (after.size() > kMostTags) {
    throw std::runtime_error("Site " + std::to_string(id) + " would have more than " + std::to_string(kMostTags) +
                             " tags. Remove some first, with --remove.");
  }
  if (after != before) {
    data.storeTags(id, after);
  }
}

int tag(Tool& tool, const TagOptions& options) {
  m& data = tool.data();
  const std::vector<std::int16_t> ids = chosenSites(tool, {options.site});
  if (options.remove && options.names.empty()) {
    throw std::runtime_error("Say which tags are to be removed. See: tarnwickctl tag --help");
  }
  if (!options.remove) {
    requireTags(options.names);
  }
  if (!options.names.empty()) {
    Transaction whole(data.database());
    for (const std::int16_t id : ids) {
      change(data, id, options);
    }
    whole.commit();
  }
  JsonValue json = JsonValue::array();
  for (const std::int16_t id : ids) {
    const Tags tags = data.tagsOf(id);
    if (options.json) {
      json.add({{"idSite", id}, {"tags", tagsJson(tags)}});
    } else {
      tool.console().say(std::to_string(id) + ": " + (tags.empty() ? "-" : visibleText(joined(tags))));
    }
  }
  if (options.json) {
    sayJson(tool.console(), std::move(json));
  }
  return exit_status::ok;
}

}  // namespace

Verb tagVerb() {
  auto options = std::make_shared<TagOptions>();
  return Verb{"tag",
              "Show or change the tags of sites, by which they are found",
              {{.name = "SITE",
                .target = &options->site,
                .meaning = "The id of a site, or a query as the verb sites takes it, or all",
                .type = "ID|QUERY|all",
                .required = true},
               {.name = "NAME", .target = &options->names, .meaning = "The tags; without one they are shown"},
               {"--remove", &options->remove, "Remove these tags instead of adding them"},
               jsonOption(options->json)},
              examples({{"tag 3 shop news", "site 3 has these two tags as well"},
                        {"tag 3 --remove news", "and one of them no more"},
                        {"tag host:example.org example", "every site of that host"}}),
              [options](Tool& tool) { return tag(tool, *options); }};
}

}  // namespace tarnwick
