// SPDX-License-Identifier: MIT
// Feeds and calendars, which say when they were made.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

/// The form with another number for each # and another sentence for each {}.
std::string entries(std::string_view seed, const std::string& form, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) {
    result += replaced(replaced(form, "#", std::to_string(3010 + i * 11)), "{}",
                       prose(std::string(seed) + std::to_string(i), "en", 2));
  }
  return result;
}

}  // namespace

std::vector<Generator> feedPages() {
  std::vector<Generator> pages;
  pages.push_back(page(
      "feed: RSS with the date of its build",
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<rss version=\"2.0\">\n<channel>\n<title>Town news</title>\n<link>"
      "http://www.example.org/</link>\n<lastBuildDate>{{now}}</lastBuildDate>\n<ttl>60</ttl>\n" +
          entries(
              "rss",
              "<item>\n<title>{}</title>\n<link>http://www.example.org/n/#</link>\n<pubDate>Tue, 05 May 2020 10:00:00 "
              "+0000</pubDate>\n<guid>n#</guid>\n</item>\n",
              20) +
          "</channel>\n</rss>\n",
      {{"now", date("%a, %d %b %Y %H:%M:%S +0000")}}));
  pages.push_back(page(
      "feed: Atom with its update and an id",
      "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<feed "
      "xmlns=\"http://www.w3.org/2005/Atom\">\n<title>Harbour</title>\n"
      "<updated>{{now}}</updated>\n<id>urn:uuid:{{id}}</id>\n" +
          entries(
              "atom",
              "<entry>\n<title>{}</title>\n<id>tag:example.org,2019:#</id>\n<updated>2019-04-12T08:00:00Z</updated>\n"
              "<summary>{}</summary>\n</entry>\n",
              15) +
          "</feed>\n",
      {{"now", date("%Y-%m-%dT%H:%M:%S%Z")}, {"id", uuid()}}));
  pages.push_back(page(
      "feed: a calendar with stamps at each of its days",
      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Town//Calendar//EN\r\n" +
          replaced(entries("ical",
                           "BEGIN:VEVENT\nUID:e#@example.org\nDTSTAMP:{{now}}\nDTSTART:20190412T180000Z\nSUMMARY:{}\n"
                           "END:VEVENT\n",
                           18),
                   "\n", "\r\n") +
          "END:VCALENDAR\r\n",
      {{"now", date("%Y%m%dT%H%M%SZ")}}));
  return pages;
}

}  // namespace tarnwick::generated
