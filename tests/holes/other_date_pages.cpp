// SPDX-License-Identifier: MIT
// Pages with dates in Polish, Russian, Japanese and Chinese.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {

std::vector<Generator> otherDatePages() {
  std::vector<Generator> pages;
  const auto add = [&pages](std::string_view name, std::string_view language, std::string_view form,
                            const std::string& line) {
    pages.push_back(page("date: " + std::string(name),
                         text({.seed = name, .language = language, .middle = line + "\n"}),
                         {{"now", date(form, language)}}));
  };
  add("Polish, long", "pl", "%A, %e %B %Y, %H:%M:%S", "<p>Dzisiaj jest {{now}}</p>");
  add("Russian, long", "ru", "%A, %e %B %Y г., %H:%M:%S", "<p>Сегодня {{now}}</p>");
  add("Russian, short", "ru", "%a, %e %b %Y, %H:%M", "<div class=\"date\">{{now}} по местному времени</div>");
  add("Japanese, long", "ja", "%Y年%n月%e日(%a) %k時%M分%S秒", "<p>ただいま {{now}} です。</p>");
  add("Japanese, short", "ja", "%Y/%m/%d %H:%M:%S", "<p>更新日時：{{now}}</p>");
  add("Chinese, long", "zh", "%Y年%n月%e日 %A %H:%M:%S", "<p>今天是 {{now}}</p>");
  add("Chinese, short", "zh", "%Y年%m月%d日 %H时%M分", "<div>更新时间：{{now}}</div>");
  return pages;
}

}  // namespace tarnwick::generated
