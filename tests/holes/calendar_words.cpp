// SPDX-License-Identifier: MIT
#include "holes/calendar_words.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace tarnwick::generated {
namespace {

struct Words {
  std::array<std::string_view, 12> months;
  std::array<std::string_view, 12> shortMonths;
  std::array<std::string_view, 7> days;  // from Sunday on
  std::array<std::string_view, 7> shortDays;
};

const Words& wordsOf(std::string_view language) {
  static const std::map<std::string_view, Words> words{
      {"en",
       {{"January", "February", "March", "April", "May", "June", "July", "August", "September", "October", "November",
         "December"},
        {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
        {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
        {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}}},
      {"de",
       {{"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober", "November",
         "Dezember"},
        {"Jan.", "Feb.", "März", "Apr.", "Mai", "Juni", "Juli", "Aug.", "Sep.", "Okt.", "Nov.", "Dez."},
        {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
        {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"}}},
      {"fr",
       {{"janvier", "février", "mars", "avril", "mai", "juin", "juillet", "août", "septembre", "octobre", "novembre",
         "décembre"},
        {"janv.", "févr.", "mars", "avr.", "mai", "juin", "juil.", "août", "sept.", "oct.", "nov.", "déc."},
        {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"},
        {"dim.", "lun.", "mar.", "mer.", "jeu.", "ven.", "sam."}}},
      {"es",
       {{"enero", "febrero", "marzo", "abril", "mayo", "junio", "julio", "agosto", "septiembre", "octubre", "noviembre",
         "diciembre"},
        {"ene", "feb", "mar", "abr", "may", "jun", "jul", "ago", "sep", "oct", "nov", "dic"},
        {"domingo", "lunes", "martes", "miércoles", "jueves", "viernes", "sábado"},
        {"dom", "lun", "mar", "mié", "jue", "vie", "sáb"}}},
      {"it",
       {{"gennaio", "febbraio", "marzo", "aprile", "maggio", "giugno", "luglio", "agosto", "settembre", "ottobre",
         "novembre", "dicembre"},
        {"gen", "feb", "mar", "apr", "mag", "giu", "lug", "ago", "set", "ott", "nov", "dic"},
        {"domenica", "lunedì", "martedì", "mercoledì", "giovedì", "venerdì", "sabato"},
        {"dom", "lun", "mar", "mer", "gio", "ven", "sab"}}},
      {"pt",
       {{"janeiro", "fevereiro", "março", "abril", "maio", "junho", "julho", "agosto", "setembro", "outubro",
         "novembro", "dezembro"},
        {"jan", "fev", "mar", "abr", "mai", "jun", "jul", "ago", "set", "out", "nov", "dez"},
        {"domingo", "segunda-feira", "terça-feira", "quarta-feira", "quinta-feira", "sexta-feira", "sábado"},
        {"dom", "seg", "ter", "qua", "qui", "sex", "sáb"}}},
      {"nl",
       {{"januari", "februari", "maart", "april", "mei", "juni", "juli", "augustus", "september", "oktober", "november",
         "december"},
        {"jan", "feb", "mrt", "apr", "mei", "jun", "jul", "aug", "sep", "okt", "nov", "dec"},
        {"zondag", "maandag", "dinsdag", "woensdag", "donderdag", "vrijdag", "zaterdag"},
        {"zo", "ma", "di", "wo", "do", "vr", "za"}}},
      {"pl",
       {{"stycznia", "lutego", "marca", "kwietnia", "maja", "czerwca", "lipca", "sierpnia", "września", "października",
         "listopada", "grudnia"},
        {"sty", "lut", "mar", "kwi", "maj", "cze", "lip", "sie", "wrz", "paź", "lis", "gru"},
        {"niedziela", "poniedziałek", "wtorek", "środa", "czwartek", "piątek", "sobota"},
        {"nie", "pon", "wto", "śro", "czw", "pią", "sob"}}},
      {"ru",
       {{"января", "февраля", "марта", "апреля", "мая", "июня", "июля", "августа", "сентября", "октября", "ноября",
         "декабря"},
        {"янв", "фев", "мар", "апр", "мая", "июн", "июл", "авг", "сен", "окт", "ноя", "дек"},
        {"воскресенье", "понедельник", "вторник", "среда", "четверг", "пятница", "суббота"},
        {"Вс", "Пн", "Вт", "Ср", "Чт", "Пт", "Сб"}}},
      {"ja",
       {{"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"},
        {"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"},
        {"日曜日", "月曜日", "火曜日", "水曜日", "木曜日", "金曜日", "土曜日"},
        {"日", "月", "火", "水", "木", "金", "土"}}},
      {"zh",
       {{"一月", "二月", "三月", "四月", "五月", "六月", "七月", "八月", "九月", "十月", "十一月", "十二月"},
        {"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"},
        {"星期日", "星期一", "星期二", "星期三", "星期四", "星期五", "星期六"},
        {"周日", "周一", "周二", "周三", "周四", "周五", "周六"}}}};
  return words.at(language);
}

/// A moment taken apart, so that its parts can be made impossible.
struct Parts {
  int year = 0;
  int month = 0;
  int day = 0;
  int weekday = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
  int millisecond = 0;
  long long epoch = 0;
};

Parts partsOf(const Moment& moment) {
  const auto day = std::chrono::floor<std::chrono::days>(moment.time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(moment.time - day);
  return {.year = int(date.year()),
          .month = static_cast<int>(unsigned(date.month())),
          .day = static_cast<int>(unsigned(date.day())),
          .weekday = static_cast<int>(std::chrono::weekday(day).c_encoding()),
          .hour = static_cast<int>(clock.hours().count()),
          .minute = static_cast<int>(clock.minutes().count()),
          .second = static_cast<int>(clock.seconds().count()),
          .millisecond = moment.millisecond,
          .epoch = moment.time.time_since_epoch().count()};
}

std::string padded(int number, int width) {
  std::string digits = std::to_string(number);
  while (static_cast<int>(digits.size()) < width) {
    digits.insert(digits.begin(), '0');
  }
  return digits;
}

std::string_view ordinalEnd(int day) {
  const int last = day / 10 == 1 ? 0 : day % 10;
  return last == 1 ? "st" : last == 2 ? "nd" : last == 3 ? "rd" : "th";
}

std::string_view monthName(const std::array<std::string_view, 12>& names, int month) {
  return month <= 12 ? names.at(static_cast<std::size_t>(month - 1)) : "Foovember";
}

std::string part(const Parts& at, char letter, const Words& words) {
  const int twelve = at.hour % 12 == 0 ? 12 : at.hour % 12;
  const bool afternoon = at.hour >= 12;
  const bool summer = at.month > 3 && at.month < 11;
  const auto weekday = static_cast<std::size_t>(at.weekday);
  switch (letter) {
    case 'Y':
      return std::to_string(at.year);
    case 'y':
      return padded(at.year % 100, 2);
    case 'm':
      return padded(at.month, 2);
    case 'n':
      return std::to_string(at.month);
    case 'd':
      return padded(at.day, 2);
    case 'e':
      return std::to_string(at.day);
    case 'o':
      return std::to_string(at.day) + std::string(ordinalEnd(at.day));
    case 'O':
      return std::to_string(at.day) + (at.day == 1 ? "er" : "");
    case 'B':
      return std::string(monthName(words.months, at.month));
    case 'b':
      return std::string(monthName(words.shortMonths, at.month));
    case 'A':
      return std::string(words.days.at(weekday));
    case 'a':
      return std::string(words.shortDays.at(weekday));
    case 'H':
      return padded(at.hour, 2);
    case 'k':
      return std::to_string(at.hour);
    case 'I':
      return padded(twelve, 2);
    case 'l':
      return std::to_string(twelve);
    case 'M':
      return padded(at.minute, 2);
    case 'S':
      return padded(at.second, 2);
    case 'L':
      return padded(at.millisecond, 3);
    case 'p':
      return afternoon ? "PM" : "AM";
    case 'q':
      return afternoon ? "pm" : "am";
    case 'P':
      return afternoon ? "p.m." : "a.m.";
    case 'z':
      return summer ? "+0200" : "+0100";
    case 'Z':
      return summer ? "+02:00" : "+01:00";
    case 's':
      return std::to_string(at.epoch);
    case 'Q':
      return std::to_string(at.epoch) + padded(at.millisecond, 3);
    default:
      throw std::logic_error(std::string("no such part of a date: ") + letter);
  }
}

std::string formatted(const Parts& at, std::string_view form, const Words& words) {
  std::string result;
  for (std::size_t i = 0; i < form.size(); ++i) {
    if (form[i] == '%') {
      ++i;
      result += part(at, form.at(i), words);
    } else {
      result += form[i];
    }
  }
  return result;
}

bool names(std::string_view form, std::string_view letters) {
  for (std::size_t i = 0; i + 1 < form.size(); ++i) {
    if (form[i] == '%' && letters.find(form[i + 1]) != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

bool contains(std::string_view text, std::string_view piece) { return text.find(piece) != std::string_view::npos; }

}  // namespace

std::string dateText(const Moment& moment, std::string_view form, std::string_view language) {
  return formatted(partsOf(moment), form, wordsOf(language));
}

Slot date(std::string_view form, std::string_view language) {
  return [form = std::string(form), &words = wordsOf(language)](const Moment& moment, Rng&) {
    const auto now = partsOf(moment);
    const auto text = formatted(now, form, words);
    if (names(form, "sQ")) {
      return number(text);
    }
    Value value{.bytes = text, .kind = HoleClass::date, .breaks = {"<script>alert(1)</script>"}};
    auto wrong = now;
    // 5/13 and 13/5 are both a day of May, as long as nobody knows who writes them.
    const bool eitherOrder =
        now.day <= 12 && (form.starts_with("%n/") || contains(form, "%d-%m") || contains(form, "%d/%m"));
    if (names(form, "mnBb") && !eitherOrder) {
      wrong.month = 13;
      value.breaks.push_back(formatted(wrong, form, words));
      wrong.month = now.month;
    }
    if (names(form, "deoO")) {
      wrong.day = 32;
      value.breaks.push_back(formatted(wrong, form, words));
      wrong.day = now.day;
    }
    wrong.minute = 61;
    if (names(form, "M")) {
      value.breaks.push_back(formatted(wrong, form, words));
    }
    return value;
  };
}

}  // namespace tarnwick::generated
