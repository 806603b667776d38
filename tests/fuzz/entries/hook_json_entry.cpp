// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>
#include <string>

#include "delivery/hook_request.h"
#include "fuzz/entries/delivery_entries.h"
#include "fuzz/entries/told_row.h"
#include "store/channel_table.h"

namespace tarnwick::testing {

void fuzzHookJson(std::string_view input) {
  const std::vector<OutboxRow> rows = toldRows(input);
  const AlertText text = alertTextOf(rows);
  Channel channel{.name = "hook", .kind = std::string(channel_kind::hook)};
  channel.settings = {{"address", "http://a.example.org/"},
                      {"form", "json"},
                      {"body", R"({"title": "{title}", "text": "{text}", "cut": "{text:17:markdown:html}",
                                   "cause": "{cause:9}", "site": {"url": "{url}"}})"}};
  const Request request = hookRequest(channel, "", rows, text);
  const auto json = nlohmann::json::parse(request.body, nullptr, false);
  require(!json.is_discarded(), "the body is no JSON");
  require(json.size() == 5, "a text has become a member");
  require(json["title"] == text.title && json["text"] == text.text, "a text has become another one");
}

}  // namespace tarnwick::testing
