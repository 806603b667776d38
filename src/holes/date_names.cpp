// SPDX-License-Identifier: MIT
#include "holes/date_names.h"

#include <array>
#include <unordered_map>

#include "base/text.h"
#include "holes/code_pages.h"

namespace tarnwick {
namespace {

// From January and from Monday on, in lower case, as the Unicode Common Locale Data Repository has them: English,
// German, French, Spanish, Italian, Portuguese, Dutch, Polish, Russian, Ukrainian, Japanese, Chinese, Korean, Swedish,
// Danish, Norwegian, Finnish, Czech, Hungarian, Romanian, Turkish, Greek. A beginning of at least three characters
// stands for the whole name.
constexpr std::array<std::string_view, 12> kMonths = {
    "january|janvier|enero|gennaio|janeiro|januari|stycznia|styczeń|января|январь|січня|"
    "січень|一月|tammikuuta|ledna|leden|január|ianuarie|ocak|ιανουαρίου|"
    "ιανουάριος",
    "february|février|febrero|febbraio|fevereiro|lutego|luty|февраля|февраль|лютого|"
    "лютий|二月|helmikuuta|února|február|februarie|şubat|φεβρουαρίου|"
    "φεβρουάριος",
    "march|märz|mars|marzo|março|maart|mrt|marca|marzec|марта|березня|березень|三月|"
    "marts|maaliskuuta|března|březen|március|martie|μαρτίου|μάρτιος",
    "avril|abril|aprile|kwietnia|kwiecień|апреля|апрель|квітня|квітень|四月|"
    "huhtikuuta|dubna|duben|április|aprilie|nisan|απριλίου|απρίλιος",
    "mayo|maggio|maio|mei|maja|мая|май|травня|травень|五月|toukokuuta|května|květen|"
    "május|mayıs|μαΐου|μάιος",
    "june|juin|junio|giugno|junho|czerwca|czerwiec|июня|июнь|червня|червень|六月|"
    "kesäkuuta|června|červen|čvn|június|iunie|haziran|ιουνίου|ιούνιος",
    "july|juillet|julio|luglio|julho|lipca|lipiec|июля|июль|липня|липень|七月|"
    "heinäkuuta|července|červenec|čvc|július|iulie|temmuz|ιουλίου|ιούλιος",
    "août|agosto|augustus|sierpnia|sierpień|августа|серпня|серпень|八月|augusti|"
    "elokuuta|srpna|srpen|augusztus|ağustos|αυγούστου|αύγουστος",
    "september|septembre|septiembre|settembre|setembro|września|wrzesień|сентября|сентябрь|"
    "вересня|вересень|九月|syyskuuta|září|szeptember|septembrie|eylül|"
    "σεπτεμβρίου|σεπτέμβριος",
    "october|oktober|octobre|octubre|ottobre|outubro|października|октября|октябрь|"
    "жовтня|жовтень|十月|lokakuuta|října|říjen|október|octombrie|ekim|οκτωβρίου|"
    "οκτώβριος",
    "november|novembre|noviembre|novembro|listopada|ноября|ноябрь|листопада|十一月|"
    "marraskuuta|listopadu|noiembrie|kasım|νοεμβρίου|νοέμβριος",
    "december|dezember|décembre|diciembre|dicembre|dezembro|grudnia|grudzień|декабря|декабрь|"
    "грудня|грудень|十二月|desember|joulukuuta|prosince|prosinec|decembrie|aralık|"
    "δεκεμβρίου|δεκέμβριος",
};
constexpr std::array<std::string_view, 7> kWeekdays = {
    "monday|montag|mo|lundi|lunes|lunedì|segunda-feira|maandag|ma|poniedziałek|понедельник|пн|"
    "понеділок|月曜日|月|星期一|周一|월요일|월|måndag|mandag|maanantaina|pondělí|po|"
    "hétfő|luni|pazartesi|pzt|δευτέρα",
    "tuesday|dienstag|di|mardi|martes|martedì|terça-feira|dinsdag|wtorek|wt|вторник|вт|"
    "вівторок|火曜日|火|星期二|周二|화요일|화|tisdag|tirsdag|tiistaina|ti|úterý|út|"
    "kedd|marți|salı|τρίτη",
    "wednesday|mittwoch|mi|mercredi|miércoles|mercoledì|quarta-feira|woensdag|wo|środa|śr|среда|"
    "ср|середа|水曜日|水|星期三|周三|수요일|수|onsdag|keskiviikkona|ke|středa|st|"
    "szerda|miercuri|çarşamba|τετάρτη",
    "thursday|donnerstag|do|jeudi|jueves|giovedì|quinta-feira|donderdag|czwartek|четверг|чт|"
    "木曜日|木|星期四|周四|목요일|목|torsdag|torstaina|to|čtvrtek|čt|csütörtök|cs|joi|"
    "perşembe|πέμπτη",
    "friday|freitag|fr|vendredi|viernes|venerdì|sexta-feira|vrijdag|vr|piątek|pt|пятница|пт|"
    "пʼятниця|金曜日|金|星期五|周五|금요일|금|fredag|perjantaina|pe|pátek|pá|péntek|"
    "vineri|cuma|παρασκευή",
    "saturday|samstag|sa|samedi|sábado|sabato|zaterdag|za|sobota|суббота|сб|субота|土曜日|"
    "土|星期六|周六|토요일|토|lördag|lørdag|lauantaina|la|so|szombat|sâmbătă|cumartesi|cmt|"
    "σάββατο",
    "sunday|sonntag|so|dimanche|domingo|domenica|zondag|zo|niedziela|воскресенье|вс|"
    "неділя|нд|日曜日|日|星期日|周日|일요일|일|söndag|søndag|sunnuntaina|su|neděle|"
    "ne|vasárnap|duminică|pazar|κυριακή",
};

constexpr std::size_t kShortestBeginning = 3;  // characters

struct Names {
  std::unordered_map<std::string, DateName> whole;
  std::unordered_map<std::string, DateName> beginnings;
};

void addTo(std::unordered_map<std::string, DateName>& names, std::string_view name, DateName meaning) {
  DateName& known = names[std::string(name)];
  known.month = known.month > 0 ? known.month : meaning.month;
  known.weekday = known.weekday > 0 ? known.weekday : meaning.weekday;
}

void add(Names& names, std::string_view list, DateName meaning) {
  while (!list.empty()) {
    const std::string_view name = list.substr(0, list.find('|'));
    list.remove_prefix(std::min(list.size(), name.size() + 1));
    addTo(names.whole, name, meaning);
    std::size_t characters = 0;
    for (std::size_t end = 1; end < name.size(); ++end) {
      characters += continuesCharacter(name[end]) ? 0U : 1U;
      if (characters >= kShortestBeginning && !continuesCharacter(name[end])) {
        addTo(names.beginnings, name.substr(0, end), meaning);
      }
    }
  }
}

const Names& allNames() {
  static const Names names = [] {
    Names all;
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
      add(all, kMonths[i], {.month = static_cast<int>(i) + 1});
    }
    for (std::size_t i = 0; i < kWeekdays.size(); ++i) {
      add(all, kWeekdays[i], {.weekday = static_cast<int>(i) + 1});
    }
    return all;
  }();
  return names;
}

// Of the letters that such names begin with.
char32_t smallLetter(char32_t c) {
  if (c < 0x80) {
    return static_cast<unsigned char>(lowerCase(static_cast<char>(c)));
  }
  if ((c >= 0xC0 && c <= 0xDE) || (c >= 0x391 && c <= 0x3A9) || (c >= 0x410 && c <= 0x42F)) {
    return c + 0x20;
  }
  if (c >= 0x400 && c <= 0x40F) {
    return c + 0x50;
  }
  const bool isOddCapital = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
  return c >= 0x100 && c <= 0x17E && c % 2 == (isOddCapital ? 1U : 0U) ? c + 1 : c;
}

std::string inSmallLetters(std::string_view word) {
  std::string small;
  while (!word.empty()) {
    const auto next = decodeUtf8(word);
    if (!next) {
      return {};
    }
    appendUtf8(small, smallLetter(next->character));
    word.remove_prefix(next->length);
  }
  return small;
}

DateName nameInUtf8(std::string_view word) {
  const std::string small = inSmallLetters(word);
  const Names& names = allNames();
  if (const auto found = names.whole.find(small); found != names.whole.end()) {
    return found->second;
  }
  const auto found = names.beginnings.find(small);
  return found != names.beginnings.end() ? found->second : DateName{};
}

}  // namespace

DateName dateNameOf(std::string_view word) {
  if (isUtf8(word)) {
    return nameInUtf8(word);
  }
  for (const std::string& reading : readingsOf(word)) {
    if (const DateName name = nameInUtf8(reading)) {
      return name;
    }
  }
  return {};
}

}  // namespace tarnwick
