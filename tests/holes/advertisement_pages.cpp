// SPDX-License-Identifier: MIT
// Pages with advertisements, of varying length and missing at times.
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

std::string advertisement(int number, int sentences) {
  const auto name = std::to_string(4200 + number * 13);
  return "<div class=\"ad\" id=\"ad" + name + "\">\n<a href=\"http://ads.example.net/c/" + name +
         "\"><img src=\"http://ads.example.net/i/" + name + ".png\" width=\"468\" height=\"60\" alt=\"\"></a>\n<p>" +
         prose("advertisement " + name, "en", sentences) + "</p>\n</div>\n";
}

/// One of eight, or none where that may be; those who learn it see the shortest and the longest, and that it may be
/// missing.
Slot advertisements(bool missingAtTimes, int longest) {
  std::vector<std::string> pool;
  for (int i = 0; i < 8; ++i) {
    pool.push_back(advertisement(i, 1 + i * (longest - 1) / 7));
  }
  return [=](const Moment& moment, Rng& rng) {
    const bool learnt = moment.fetch < 5;
    if (missingAtTimes && (learnt ? moment.fetch == 2 : rng.below(6) == 0)) {
      return bytes("");
    }
    return bytes(learnt ? pool[(moment.fetch * 7) % pool.size()] : pool[rng.below(pool.size())]);
  };
}

}  // namespace

std::vector<Generator> advertisementPages() {
  std::vector<Generator> pages;
  pages.push_back(page("advertisement: of varying length",
                       text({.seed = "always", .articles = 8, .middle = "<div id=\"place1\">\n{{ad}}</div>\n"}),
                       {{"ad", advertisements(false, 4)}}));
  pages.push_back(page("advertisement: missing at times",
                       text({.seed = "missing", .articles = 8, .top = "<hr>\n{{ad}}<hr class=\"end\">\n"}),
                       {{"ad", advertisements(true, 3)}}));
  pages.push_back(page("advertisement: two places",
                       text({.seed = "two places",
                             .articles = 14,
                             .top = "<div id=\"head\">\n{{one}}</div>\n",
                             .bottom = "<div id=\"side\">\n{{two}}</div>\n"}),
                       {{"one", advertisements(false, 2)}, {"two", advertisements(true, 4)}}));
  pages.push_back(page("advertisement: between comments",
                       text({.seed = "comments",
                             .articles = 9,
                             .middle = "<!-- BEGIN ADVERTISEMENT -->\n{{ad}}<!-- END ADVERTISEMENT -->\n"}),
                       {{"ad", advertisements(true, 5)}}));
  pages.push_back(
      page("advertisement: a script with parameters",
           text({.seed = "script",
                 .articles = 6,
                 .foot = "<script>ads.push({slot: 'bottom', size: [728, 90], page: '/home', target: '{{ad}}', "
                         "lazy: true});</script>\n"}),
           {{"ad", base36(18, 26)}}));
  return pages;
}

}  // namespace tarnwick::generated
