// SPDX-License-Identifier: MIT
// Large pages, and pages on which much varies at once.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

constexpr std::size_t kFiveMegabytes = 5'000'000;

Generator fiveMegabytes() {
  std::string body;
  for (int part = 0; body.size() < kFiveMegabytes; ++part) {
    if (part == 300) {
      body += "<p>Line of the archive read {{n}} times by now.</p>\n";
    }
    body += articles("archive " + std::to_string(part), "en", 2);
  }
  auto large = page("mixed: five megabytes with three places",
                    text({.seed = "archive",
                          .top = "<p>Archive as of {{now}}</p>\n",
                          .bottom = body,
                          .foot = "<!-- trace {{id}} of the archive -->\n"}),
                    {{"now", date("%A, %B %e, %Y %H:%M:%S")}, {"n", counter(99990, 4)}, {"id", hex(32)}});
  large.furtherFetches = 20;
  return large;
}

}  // namespace

std::vector<Generator> mixedPages() {
  std::vector<Generator> pages;
  pages.push_back(fiveMegabytes());
  pages.push_back(page(
      "mixed: a portal",
      text({.seed = "portal",
            .language = "de",
            .articles = 60,
            .head = "<meta name=\"csrf-token\" content=\"{{csrf}}\">\n<script nonce=\"{{nonce}}\" "
                    "src=\"/a.js?v={{v}}\"></script>\n",
            .top = "<p class=\"heute\">{{now}}</p>\n<p class=\"leser\">{{readers}} Leser sind gerade auf diesen "
                   "Seiten</p>\n",
            .middle = "<div class=\"banner\">{{banner}}</div>\n",
            .bottom = "<script nonce=\"{{nonce}}\">track('{{visit}}', 'portal', 'de', false);</script>\n",
            .foot = "<p>Seite erzeugt in {{took}} s auf {{host}} im Rechenzentrum</p>\n"}),
      {{"csrf", base64(43)},
       {"nonce", hex(32)},
       {"v", date("%s")},
       {"now", date("%A, %d. %B %Y, %H:%M:%S", "de")},
       {"readers", [](const Moment&, Rng& rng) { return number(grouped(700 + rng.below(2600), ".")); }},
       {"banner",
        inTurn({"Neue Fähre ab Mai", "Jetzt Karten für das Konzert am Fluss sichern!", "Wir suchen Leute (m/w/d)"})},
       {"visit", uuid()},
       {"took", decimal(40, 990, 3, ",")},
       {"host", inTurn({"knoten2", "knoten1", "knoten3"})}}));
  pages.push_back(
      page("mixed: a forum",
           text({.seed = "forum",
                 .articles = 25,
                 .top = "<p>It is {{now}} - your last visit was before that.</p>\n",
                 .middle = "<p>Most users ever online was 612. Guests now: {{guests}}.</p>\n<p><a "
                           "href=\"/login?sid={{sid}}\">Log in</a></p>\n",
                 .bottom = "<p><a href=\"/index?sid={{sid}}\">Back to the board</a></p>\n",
                 .foot = "<p>Time: {{took}}s | Queries: {{queries}} (cached) | Memory of it: {{memory}} KiB</p>\n"}),
           {{"now", date("%a %b %d, %Y %l:%M:%S %q")},
            {"guests", between(8, 410)},
            {"sid", hex(32)},
            {"took", decimal(31, 830, 3)},
            {"queries", between(9, 48)},
            {"memory", decimal(72311, 99820, 2)}}));
  return pages;
}

}  // namespace tarnwick::generated
