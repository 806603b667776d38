// SPDX-License-Identifier: MIT
// Pages with numbers: of visitors, of seconds, of degrees.
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

Slot leadingZeros(std::uint64_t start, std::size_t width) {
  return [=](const Moment& moment, Rng&) {
    auto digits = std::to_string(start + moment.visits);
    digits.insert(0, width - std::min(width, digits.size()), '0');
    return number(digits);
  };
}

/// One picture for each digit.
Slot digitOf(std::uint64_t start, std::uint64_t place) {
  return [=](const Moment& moment, Rng&) { return number(std::to_string((start + moment.visits) / place % 10)); };
}

std::string pictures() {
  std::string result = "<p class=\"counter\">\n";
  for (int place = 6; place > 0; --place) {
    result += "<img src=\"/counter/digits/blue/{{" + std::to_string(place) +
              "}}.gif\" width=\"15\" height=\"20\" alt=\"\">\n";
  }
  return result + "</p>\n";
}

}  // namespace

std::vector<Generator> counterPages() {
  std::vector<Generator> pages;
  pages.push_back(page("counter: visitors from 998 on",
                       text({.seed = "from 998", .foot = "<p>You are visitor <b>{{n}}</b> of this page.</p>\n"}),
                       {{"n", counter(998)}}));
  pages.push_back(
      page("counter: thousands with commas",
           text({.seed = "commas", .language = "en", .top = "<p class=\"hits\">Visitors: {{n}} since 1998</p>\n"}),
           {{"n", counter(998997, 3, ",")}}));
  pages.push_back(page("counter: thousands with apostrophes",
                       text({.seed = "swiss", .language = "de", .foot = "<p>Zugriffe: {{n}}</p>\n"}),
                       {{"n", counter(412998, 7, "'")}}));
  pages.push_back(page("counter: thousands with blanks",
                       text({.seed = "blanks", .language = "fr", .foot = "<p>Déjà {{n}} visiteurs sur ce site.</p>\n"}),
                       {{"n", counter(98995, 2, " ")}}));
  pages.push_back(page("counter: thousands with narrow blanks",
                       text({.seed = "narrow", .language = "fr", .middle = "<p class=\"vues\">{{n}} vues</p>\n"}),
                       {{"n", counter(21994, 3, "\xE2\x80\xAF")}}));
  pages.push_back(page("counter: with leading zeros", text({.seed = "zeros", .foot = "<pre>HITS [{{n}}]</pre>\n"}),
                       {{"n", leadingZeros(996, 8)}}));
  pages.push_back(page("counter: a picture for each digit", text({.seed = "pictures", .bottom = pictures()}),
                       {{"1", digitOf(99997, 1)},
                        {"2", digitOf(99997, 10)},
                        {"3", digitOf(99997, 100)},
                        {"4", digitOf(99997, 1000)},
                        {"5", digitOf(99997, 10000)},
                        {"6", digitOf(99997, 100000)}}));
  pages.push_back(page("counter: seconds of the making",
                       text({.seed = "seconds", .articles = 7, .foot = "<!-- made in {{t}} s with 34 queries -->\n"}),
                       {{"t", decimal(93, 9450, 4)}}));
  pages.push_back(page(
      "counter: queries, seconds and memory",
      text({.seed = "memory",
            .foot = "<p class=\"debug\">{{q}} queries in {{t}} seconds, {{m}} MB of memory used, cache on.</p>\n"}),
      {{"q", between(7, 131)}, {"t", decimal(12, 2900, 3)}, {"m", decimal(290, 1820, 2)}}));
  pages.push_back(page("counter: degrees around zero",
                       text({.seed = "degrees",
                             .language = "de",
                             .top = "<div class=\"wetter\">Hafen, Messstelle Nord: {{t}} °C, Pegel {{p}} cm</div>\n"}),
                       {{"t", decimal(-39, 39, 1, ",")}, {"p", between(87, 412)}}));
  pages.push_back(page("counter: views in two places",
                       text({.seed = "views",
                             .top = "<span class=\"views\">{{n}} views</span>\n",
                             .foot = "<p>This page was read {{n}} times; {{online}} guests are online now.</p>\n"}),
                       {{"n", counter(9995, 2)}, {"online", between(3, 240)}}));
  return pages;
}

}  // namespace tarnwick::generated
