// SPDX-License-Identifier: MIT
// Answers of services: JSON in its habits.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

/// Objects of a list, each on a line of its own or all on one.
std::string objects(std::string_view seed, int count, bool pretty) {
  Rng rng(seed);
  std::string result;
  for (int i = 0; i < count; ++i) {
    const auto id = std::to_string(rng.between(10000, 99999));
    const auto name = prose("object " + id, "en", 1);
    result += i == 0 ? "" : pretty ? ",\n" : ",";
    result +=
        pretty ? "    {\n      \"id\": " + id + ",\n      \"name\": \"" + name +
                     "\",\n      \"price\": " + std::to_string(rng.between(1, 400)) +
                     ".95,\n      \"tags\": [\"a\", \"b\"]\n    }"
               : R"({"id":)" + id + R"(,"name":")" + name + R"(","stock":)" + std::to_string(rng.between(0, 50)) + "}";
  }
  return result;
}

}  // namespace

std::vector<Generator> jsonPages() {
  std::vector<Generator> pages;
  pages.push_back(
      page("JSON: pretty, with a request and a time",
           "{\n  \"request\": \"{{id}}\",\n  \"time\": \"{{now}}\",\n  \"status\": \"ok\",\n  \"items\": [\n" +
               objects("pretty", 40, true) + "\n  ]\n}\n",
           {{"id", uuid()}, {"now", date("%Y-%m-%dT%H:%M:%SZ")}}));
  pages.push_back(page("JSON: compact, with what it took",
                       R"({"meta":{"took":{{took}},"shard":2,"id":"{{id}}"},"hits":[)" + objects("compact", 60, false) +
                           R"(],"total":60,"more":false})",
                       {{"took", between(2, 340)}, {"id", hex(16)}}));
  pages.push_back(
      page("JSON: figures of a machine, nested",
           "{\n  \"host\": {\n    \"name\": \"north\",\n    \"uptime\": {{up}},\n    \"load\": [{{a}}, {{b}}, {{c}}],\n"
           "    \"disks\": [\n" +
               objects("disks", 12, true) + "\n    ]\n  },\n  \"rules\": [\n" + objects("rules", 12, true) +
               "\n  ],\n  \"sent\": {{sent}}\n}\n",
           {{"up", date("%s")},
            {"a", decimal(1, 840, 2)},
            {"b", decimal(1, 640, 2)},
            {"c", decimal(1, 440, 2)},
            {"sent", counter(99995000, 1300)}}));
  pages.push_back(
      page("JSON: given to a function",
           "/**/ jQuery{{name}}_{{time}}({\"list\":[" + objects("function", 25, false) + "],\"version\":\"2.4.1\"});\n",
           {{"name", [](const Moment&, Rng& rng) { return number("1" + rng.text(16, "0123456789")); }},
            {"time", date("%Q")}}));
  return pages;
}

}  // namespace tarnwick::generated
