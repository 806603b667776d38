// SPDX-License-Identifier: MIT
// Pages with dates in English, German, French, Spanish, Italian, Portuguese and Dutch.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

struct Dated {
  std::string_view name;
  std::string_view language;
  std::string_view form;
  std::string_view before;  ///< on its line
  std::string_view after;
};

Generator datedPage(const Dated& dated, bool atTop) {
  const auto line = std::string(dated.before) + "{{now}}" + std::string(dated.after) + "\n";
  const auto document = Document{.seed = dated.name,
                                 .language = dated.language,
                                 .articles = 3 + static_cast<int>(dated.name.size() % 5),
                                 .top = atTop ? line : "",
                                 .foot = atTop ? "" : line};
  return page("date: " + std::string(dated.name), text(document), {{"now", date(dated.form, dated.language)}});
}

}  // namespace

std::vector<Generator> westernDatePages() {
  std::vector<Generator> pages;
  for (const auto& dated : std::vector<Dated>{
           {"English, long", "en", "%A, %B %e, %Y, %H:%M:%S", "<p class=\"today\">", "</p>"},
           {"English, short, of twelve hours", "en", "%a %b %e, %Y %l:%M:%S %p",
            "<p>Last updated: ", " local time</p>"},
           {"English, with st and th", "en", "%o %B %Y at %I:%M %p", "<small>Generated on the ", ".</small>"},
           {"American with strokes", "en", "%n/%e/%Y %l:%M:%S %p", "<td id=\"clock\">", "</td>"},
           {"German, long", "de", "%A, %e. %B %Y, %H:%M:%S Uhr", "<p>Heute ist ", "</p>"},
           {"German, in digits", "de", "%d.%m.%Y %H:%M", "<p class=\"stand\">Stand: ", " Uhr</p>"},
           {"French, long", "fr", "%A %O %B %Y à %H:%M:%S", "<p>Nous sommes le ", "</p>"},
           {"French, with h", "fr", "%a %d %b %Y, %Hh%M", "<p>Mis à jour le ", ".</p>"},
           {"Spanish, long", "es", "%A, %e de %B de %Y, %H:%M:%S", "<div class=\"fecha\">", "</div>"},
           {"Italian, long", "it", "%A %e %B %Y ore %H:%M:%S", "<p>Oggi: ", "</p>"},
           {"Portuguese, long", "pt", "%A, %e de %B de %Y %H:%M:%S", "<p>", "</p>"},
           {"Dutch, long", "nl", "%A %e %B %Y %H:%M:%S", "<p>Vandaag: ", " uur</p>"}}) {
    pages.push_back(datedPage(dated, pages.size() % 2 == 0));
  }
  return pages;
}

}  // namespace tarnwick::generated
