// SPDX-License-Identifier: MIT
// Pages with times and dates in the forms that machines write.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {

std::vector<Generator> clockPages() {
  std::vector<Generator> pages;
  const auto add = [&pages](std::string_view name, std::string_view form, const std::string& line) {
    pages.push_back(page("clock: " + std::string(name),
                         text({.seed = name,
                               .articles = 5,
                               .head = line.starts_with("<meta") ? line + "\n" : "",
                               .foot = line.starts_with("<meta") ? "" : line + "\n"}),
                         {{"now", date(form)}}));
  };
  add("ISO 8601 with the zone and milliseconds", "%Y-%m-%dT%H:%M:%S.%L%Z", "<time datetime=\"{{now}}\">now</time>");
  add("RFC 822 with the zone", "%a, %d %b %Y %H:%M:%S %z", "<!-- cached {{now}} by the front -->");
  add("of the C library", "%a %b %d %H:%M:%S %Y", "<address>Report made at {{now}}</address>");
  add("time alone", "%H:%M:%S", "<p>Server time <span id=\"time\">{{now}}</span></p>");
  add("time alone, of twelve hours", "%l:%M %q", "<p>It is {{now}} in the harbour.</p>");
  add("time alone, with points", "%l:%M:%S %P", "<td class=\"now\">{{now}}</td>");
  add("seconds since 1970", "%s", "<script>var serverTime = {{now}}; startClock(serverTime);</script>");
  add("milliseconds since 1970", "%Q", "<div data-rendered=\"{{now}}\" data-theme=\"light\"></div>");
  return pages;
}

}  // namespace tarnwick::generated
