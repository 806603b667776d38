// SPDX-License-Identifier: MIT
// Pages whose links and pictures carry what is made anew each time.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

/// So many lines with a link, which has that between its path and its end.
std::string links(int count, std::string_view inserted) {
  std::string result = "<ul class=\"all\">\n";
  for (int i = 0; i < count; ++i) {
    const auto words = prose("link " + std::to_string(i), "en", 1);
    result += "<li><a href=\"/catalogue/" + std::to_string(100 + i * 7) + ".html" + std::string(inserted) + "\">" +
              words.substr(0, words.find(' ', 20)) + "</a></li>\n";
  }
  return result + "</ul>\n";
}

}  // namespace

std::vector<Generator> linkPages() {
  std::vector<Generator> pages;
  pages.push_back(page("links: a session in forty",
                       text({.seed = "forty", .articles = 6, .middle = links(40, "?sid={{sid}}")}),
                       {{"sid", hex(32)}}));
  pages.push_back(page("links: a session with its machine",
                       text({.seed = "java", .articles = 8, .middle = links(25, ";jsessionid={{sid}}.node2?lang=en")}),
                       {{"sid", hex(32, kUpperHex)}}));
  pages.push_back(page(
      "links: style sheets that are not to be cached",
      text({.seed = "busters",
            .head =
                "<link rel=\"stylesheet\" href=\"/css/a.css?v={{t}}\">\n<link rel=\"stylesheet\" "
                "href=\"/css/print.css?v={{t}}\" media=\"print\">\n<script src=\"/js/app.js?_={{t}}\"></script>\n"}),
      {{"t", date("%s")}}));
  pages.push_back(
      page("links: signed, until a time",
           text({.seed = "signed",
                 .articles = 7,
                 .middle = "<p><img src=\"https://cdn.example.org/p/8812.jpg?Expires={{t}}&Signature={{s}}&Key=K7\" "
                           "alt=\"harbour\"></p>\n<p><img src=\"https://cdn.example.org/p/8813.jpg?Expires={{t}}&"
                           "Signature={{r}}&Key=K7\" alt=\"bridge\"></p>\n"}),
           {{"t", date("%s")}, {"s", base64Url(86)}, {"r", base64Url(86)}}));
  pages.push_back(
      page("links: each with a number of its own",
           text({.seed = "own",
                 .articles = 5,
                 .top = "<a href=\"/out?to=one&k={{a}}\">First choice of the week</a>\n<a href=\"/out?to=two&k={{b}}\">"
                        "Second choice of the week</a>\n<a href=\"/out?to=three&k={{c}}\">Third choice of the "
                        "week</a>\n"}),
           {{"a", hex(16)}, {"b", hex(16)}, {"c", hex(16)}}));
  return pages;
}

}  // namespace tarnwick::generated
