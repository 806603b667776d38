// SPDX-License-Identifier: MIT
// Pages that are not written in UTF-8, and pages whose lines end otherwise or not at all.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {

std::vector<Generator> encodingPages() {
  std::vector<Generator> pages;
  const auto withClock = [](std::string_view seed, std::string_view language, const std::string& line) {
    return text({.seed = seed, .language = language, .articles = 4, .middle = line + "\n"});
  };
  pages.push_back(page("encoding: UTF-16, low byte first",
                       withClock("low", "de", "<p>Besucher {{n}}, Stand {{now}} Uhr</p>"),
                       {{"n", counter(998)}, {"now", date("%e. %B %Y, %H:%M:%S", "de")}}, Encoding::utf16le));
  pages.push_back(page("encoding: UTF-16, high byte first",
                       withClock("high", "ru", "<p>Сегодня {{now}}</p>\n<input type=\"hidden\" value=\"{{key}}\">"),
                       {{"now", date("%A, %e %B %Y %H:%M:%S", "ru")}, {"key", hex(32)}}, Encoding::utf16be));
  pages.push_back(page("encoding: Shift-JIS", withClock("jis", "ja", "<p>ただいま {{now}} です。</p>"),
                       {{"now", date("%Y年%n月%e日(%a) %k時%M分%S秒", "ja")}}, Encoding::shiftJis));
  pages.push_back(
      page("encoding: Windows-1252", withClock("1252", "fr", "<p>Nous sommes le {{now}} – {{n}} visiteurs</p>"),
           {{"now", date("%A %e %B %Y, %H:%M:%S", "fr")}, {"n", counter(9996, 1, "\xC2\xA0")}}, Encoding::windows1252));
  pages.push_back(page("encoding: Windows-1251", withClock("1251", "ru", "<p>Сегодня {{now}}</p>"),
                       {{"now", date("%A, %e %B %Y, %H:%M:%S", "ru")}}, Encoding::windows1251));
  pages.push_back(page("encoding: KOI8", withClock("koi8", "ru", "<p>Москва, {{now}}. Посетителей: <b>{{n}}</b></p>"),
                       {{"now", date("%a, %e %b %Y, %H:%M:%S", "ru")}, {"n", counter(99998)}}, Encoding::koi8r));
  pages.push_back(page("encoding: lines that end with CR LF",
                       replaced(text({.seed = "crlf",
                                      .articles = 7,
                                      .top = "<p>Page {{key}} of the archive</p>\n",
                                      .foot = "<p>{{now}}</p>\n"}),
                                "\n", "\r\n"),
                       {{"key", hex(12)}, {"now", date("%Y-%m-%d %H:%M:%S")}}));
  pages.push_back(page("encoding: all on one line",
                       replaced(text({.seed = "one line",
                                      .articles = 12,
                                      .top = "<b>{{n}}</b> readers ",
                                      .foot = "<i>{{now}}</i><!--{{key}}-->"}),
                                "\n", ""),
                       {{"n", counter(9994)}, {"key", base64(24)}, {"now", date("%d/%b/%Y:%H:%M:%S +0000")}}));
  return pages;
}

}  // namespace tarnwick::generated
