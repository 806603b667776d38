// SPDX-License-Identifier: MIT
// Pages of machines that take turns, with texts that take turns, and with what is measured.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

/// How long ago something was; whoever learns it sees each unit.
Slot ago(unsigned shift) {
  return [=](const Moment& moment, Rng& rng) {
    const auto unit = moment.fetch < 5 ? (moment.fetch + shift) % 3 : rng.below(3);
    const int most = unit == 2 ? 23 : 59;
    return words(std::to_string(rng.between(2, most)) +
                 (unit == 0   ? " seconds"
                  : unit == 1 ? " minutes"
                              : " hours") +
                 " ago");
  };
}

Slot secondsAgo() {
  return [](const Moment& moment, Rng& rng) {
    return number(std::to_string(moment.fetch < 5 ? 5 + moment.fetch * 3 : 2 + rng.below(58)));
  };
}

}  // namespace

std::vector<Generator> rotatingPages() {
  std::vector<Generator> pages;
  pages.push_back(
      page("rotating: machines web1 to web4",
           text({.seed = "machines", .articles = 6, .foot = "<!-- served by {{host}}.example.org in the hall -->\n"}),
           {{"host", inTurn({"web3", "web1", "web4", "web2"})}}));
  pages.push_back(page(
      "rotating: three texts", text({.seed = "texts", .articles = 6, .top = "<blockquote>{{text}}</blockquote>\n"}),
      {{"text", inTurn({"Fair winds make good harbours.", "A bridge is half a journey; the rest is walking",
                        "Nobody reads the timetable twice, but all of us should"})}}));
  pages.push_back(
      page("rotating: classes of a trial",
           text({.seed = "trial",
                 .articles = 5,
                 .head = "<meta name=\"experiment\" content=\"hero-{{v}}\">\n",
                 .top = "<section class=\"hero hero--{{v}} wide\">\n<p>Welcome to the town</p>\n</section>\n"}),
           {{"v", inTurn({"control", "variant"})}}));
  pages.push_back(
      page("rotating: weather as it is measured",
           text({.seed = "weather",
                 .articles = 5,
                 .middle = "<dl class=\"weather\">\n<dt>Temperature</dt><dd>{{t}} &deg;C</dd>\n<dt>Wind "
                           "speed of the mast</dt><dd>{{w}} km/h</dd>\n<dt>Pressure at the sea</dt><dd>{{p}} "
                           "hPa</dd>\n<dt>Measured every second</dt><dd>{{now}}</dd>\n</dl>\n"}),
           {{"t", decimal(-94, 312, 1)},
            {"w", decimal(0, 980, 1)},
            {"p", decimal(9800, 10450, 1)},
            {"now", date("%H:%M:%S")}}));
  pages.push_back(
      page("rotating: seconds ago",
           text({.seed = "ago", .articles = 5, .top = "<p class=\"fresh\">Updated {{n}} seconds ago</p>\n"}),
           {{"n", secondsAgo()}}));
  pages.push_back(
      page("rotating: how long ago, in words",
           text({.seed = "words",
                 .articles = 7,
                 .bottom = "<ol class=\"live\">\n<li>The ferry has left the north pier <i>{{a}}</i></li>\n<li>The "
                           "bridge of the old town is open again <i>{{b}}</i></li>\n<li>The water stands at its "
                           "usual height <i>{{c}}</i></li>\n</ol>\n"}),
           {{"a", ago(0)}, {"b", ago(1)}, {"c", ago(2)}}));
  return pages;
}

}  // namespace tarnwick::generated
