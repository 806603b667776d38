// SPDX-License-Identifier: MIT
// Shapes beyond the hundred, which a careful person could learn as well.
#include "holes/calendar_words.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

std::string sized(Rng& rng) {
  const int unit = rng.between(0, 1);
  return std::to_string(rng.between(1, 999)) + "." + std::to_string(rng.between(0, 9)) + (unit == 0 ? " KB" : " MB");
}

std::string metrics() {
  std::string text;
  for (int i = 0; i < 40; ++i) {
    const auto name = replaced(prose("metric " + std::to_string(i), "en", 1).substr(0, 22), " ", "_");
    text += "# HELP " + name + "_total Number of what " + prose("help " + std::to_string(i), "en", 1) + "\n# TYPE " +
            name + "_total counter\n" + name + "_total{place=\"north\"} " +
            (i % 4 == 0 ? "{{m" + std::to_string(i) + "}}" : std::to_string(i * 77)) + "\n";
  }
  return text;
}

Slots metricSlots() {
  Slots slots;
  for (int i = 0; i < 40; i += 4) {
    slots.emplace("m" + std::to_string(i),
                  i % 8 == 0 ? counter(static_cast<std::uint64_t>(7000 + i * 991), 13) : decimal(12, 98000, 4));
  }
  return slots;
}

/// The last lines of a log: each fetch sees the ones before farther up.
Slot logTail() {
  return [](const Moment& moment, Rng&) {
    std::string lines;
    for (std::uint64_t i = moment.visits; i < moment.visits + 12; ++i) {
      const auto text = prose("log " + std::to_string(i), "en", 1);
      lines += std::to_string(100000 + i) + " north " + text.substr(0, text.find(' ', 25)) + "\n";
    }
    return bytes(lines);
  };
}

Slot headlines() {
  return [](const Moment& moment, Rng&) {
    std::string lines;
    for (std::uint64_t i = moment.visits + 6; i > moment.visits; --i) {
      const auto text = prose("headline " + std::to_string(i), "en", 1);
      lines +=
          "<li><a href=\"/n/" + std::to_string(5000 + i) + "\">" + text.substr(0, text.find(' ', 30)) + "</a></li>\n";
    }
    return bytes(lines);
  };
}

Slot points() {
  return [](const Moment&, Rng& rng) {
    std::string list;
    for (int x = 0; x < 40; ++x) {
      list += (x == 0 ? "" : " ") + std::to_string(x * 8) + "," + std::to_string(rng.between(2, 118));
    }
    return words(list);
  };
}

Slot signedWebToken() {
  return [](const Moment&, Rng& rng) {
    return token(rng.text(60 + rng.below(4), kBase64Url) + "." + rng.text(43, kBase64Url));
  };
}

Slot percentCoded() {
  return [](const Moment&, Rng& rng) {
    return words(replaced(replaced(rng.text(43, kBase64), "+", "%2B"), "/", "%2F") + "%3D");
  };
}

Slot elementNumber(std::uint64_t place) {
  return [=](const Moment& moment, Rng&) { return number(std::to_string(990 + moment.visits * 17 + place)); };
}

std::string numberedElements() {
  std::string result;
  for (int i = 0; i < 9; ++i) {
    result += "<div id=\"view{{e" + std::to_string(i) + "}}\" class=\"view\"><label>" +
              prose("view" + std::to_string(i), "en", 1) + "</label></div>\n";
  }
  return result;
}

Slots numberedSlots() {
  Slots slots;
  for (std::uint64_t i = 0; i < 9; ++i) {
    slots.emplace("e" + std::to_string(i), elementNumber(i));
  }
  return slots;
}

Slot upTime() {
  return [](const Moment& moment, Rng&) {
    const auto seconds = moment.time.time_since_epoch().count() - 1767000000;
    const auto two = [](long long n) { return (n < 10 ? "0" : "") + std::to_string(n); };
    return words(std::to_string(seconds / 86400) + " days, " + two(seconds / 3600 % 24) + ":" + two(seconds / 60 % 60) +
                 ":" + two(seconds % 60));
  };
}

Slot upper(std::string_view form, std::string_view language = "en") {
  return [slot = date(form, language)](const Moment& moment, Rng& rng) {
    auto value = slot(moment, rng);
    for (auto& letter : value.bytes) {
      letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    }
    return value;
  };
}

/// In a document of its own, with the line between its articles.
void put(std::vector<Generator>& further, std::string_view name, const std::string& line, Slots slots,
         std::string_view language = "en", Encoding encoding = Encoding::utf8) {
  further.push_back(page("further: " + std::string(name),
                         text({.seed = name, .language = language, .articles = 5, .middle = line + "\n"}),
                         std::move(slots), encoding));
}

void addIdentifiers(std::vector<Generator>& further) {
  put(further, "GUID in braces", "<param name=\"id\" value=\"{ {{g}} }\">",
      {{"g", [](const Moment&, Rng& rng) {
          auto id = uuidText(rng);
          for (auto& letter : id) {
            letter = letter >= 'a' ? static_cast<char>(letter - 32) : letter;
          }
          return hexNumber(id);
        }}});
  put(further, "signed web token", "<meta name=\"jwt\" content=\"eyJhbGciOiJIUzI1NiJ9.{{t}}\">",
      {{"t", signedWebToken()}});
  put(further, "percent-coded token", "<a href=\"/go?t={{t}}&x=1\">Go on to the next page</a>",
      {{"t", percentCoded()}});
  put(further, "hidden mail addresses",
      "<a href=\"/mail#{{a}}\">write</a> to us whenever it suits you best, or <span data-mail=\"{{b}}\">ring</span>",
      {{"a", hex(44)}, {"b", hex(38)}});
  put(further, "picture in the page", "<img alt=\"captcha\" src=\"data:image/png;base64,{{p}}\">",
      {{"p", [](const Moment&, Rng& rng) { return token(rng.text(900 + 4 * rng.below(12), kBase64) + "="); }}});
  put(further, "class names by chance",
      "<p class=\"box_{{c}} wide\">one</p>\n<p class=\"box_{{c}} tall\">two lines of a text that stays</p>",
      {{"c", [](const Moment&, Rng& rng) { return token(rng.text(5, kBase36)); }}});
  put(further, "numbered elements", numberedElements(), numberedSlots());
  put(further, "three values in one", "<input name=\"stamp\" value=\"{{k}};{{s}};{{n}}\">",
      {{"k", hex(16)}, {"s", date("%s")}, {"n", between(1, 60)}});
  put(further, "edge machine", "<!-- {{h}} -->",
      {{"h", [](const Moment&, Rng& rng) {
          static constexpr std::array<std::string_view, 5> kPlaces{"ams", "fra", "lhr", "cdg", "waw"};
          const auto place = std::string(rng.oneOf(kPlaces));
          return words("cache-" + place + std::to_string(rng.between(10000, 29999)));
        }}});
  put(further, "entity tag", "<link rel=\"preload\" href=\"/d.json\" data-tag='W/\"{{a}}-{{b}}\"'>",
      {{"a", hex(5)}, {"b", hex(11)}});
}

void addNumbers(std::vector<Generator>& further) {
  put(further, "Indian thousands", "<p>Visits: {{n}} so far</p>",
      {{"n", [](const Moment& moment, Rng&) {
          auto digits = std::to_string(9998996 + moment.visits * 2);
          for (auto at = digits.size() - 3; at > 0 && at < digits.size(); at -= std::min<std::size_t>(at, 2)) {
            digits.insert(at, ",");
          }
          return number(digits);
        }}});
  put(further, "sizes with units", "<td>Free space</td><td>{{s}}</td>",
      {{"s", [](const Moment&, Rng& rng) { return words(sized(rng)); }}});
  put(further, "prices", "<tr class=\"{{c}}\"><td>Town bond of the year</td><td>{{p}}</td><td>{{d}}%</td></tr>",
      {{"c", inTurn({"up", "down"})}, {"p", decimal(98000, 132000, 2)}, {"d", [](const Moment& moment, Rng& rng) {
                                                                           return number(
                                                                               (moment.fetch % 2 == 0 ? "+" : "-") +
                                                                               std::to_string(rng.between(0, 4)) + "." +
                                                                               std::to_string(rng.between(10, 99)));
                                                                         }}});
  put(further, "euros below zero", "<p>Saldo der Kasse heute: {{p}} €</p>",
      {{"p",
        [](const Moment& moment, Rng& rng) {
          return number((moment.fetch % 3 == 0 ? "-" : "") + grouped(100 + rng.below(9000), ".") + "," +
                        std::to_string(rng.between(10, 99)));
        }}},
      "de");
  put(further, "a share of a hundred", "<p>Available: {{n}} % of the month</p>", {{"n", between(88, 100)}});
  put(further, "address of the visitor", "<p>Your address is {{ip}}, isn't it?</p>",
      {{"ip", [](const Moment&, Rng& rng) {
          return number("10." + std::to_string(rng.between(0, 255)) + "." + std::to_string(rng.between(0, 255)) + "." +
                        std::to_string(rng.between(1, 254)));
        }}});
  put(further, "place of the ferry", "<p id=\"pos\">{{a}}, {{b}}</p>",
      {{"a", decimal(5354000, 5361999, 5)}, {"b", decimal(987000, 1012000, 5)}});
  put(further, "load of a machine", "<pre>load average: {{a}}, {{b}}, {{c}}</pre>",
      {{"a", decimal(0, 1500, 2)}, {"b", decimal(0, 900, 2)}, {"c", decimal(0, 400, 2)}});
  put(further, "up since", "<pre>up {{u}}</pre>", {{"u", upTime()}});
  put(further, "a chart", "<svg><polyline fill=\"none\" points=\"{{p}}\"/></svg>", {{"p", points()}});
  further.push_back(page("further: figures for a collector", metrics(), metricSlots()));
}

void addDates(std::vector<Generator>& further) {
  put(further, "capital letters", "<p>{{now}}</p>", {{"now", upper("%A, %e %B %Y %H:%M:%S")}});
  put(further, "hyphens and a name", "<p>As of {{now}}</p>", {{"now", upper("%d-%b-%Y %H:%M:%S")}});
  put(further, "German with um", "<p>Letzte Änderung am {{now}} Uhr</p>", {{"now", date("%e. %B %Y um %H:%M", "de")}},
      "de");
  put(further, "German without a year", "<p>{{now}}</p>", {{"now", date("%a %d.%m. %H:%M:%S", "de")}}, "de");
  put(further, "French in words", "<p>Le {{now}}</p>", {{"now", date("%A %e %B %Y à %H h %M min %S s", "fr")}}, "fr");
  put(further, "Spanish a las", "<p>{{now}} horas</p>", {{"now", date("%A %e de %B del %Y a las %H:%M:%S", "es")}},
      "es");
  put(further, "Italian short", "<p>{{now}}</p>", {{"now", date("%a %e %b %Y - %H.%M", "it")}}, "it");
  put(further, "Portuguese short", "<p>Atualizado em {{now}}</p>", {{"now", date("%d/%m/%Y às %Hh%M", "pt")}}, "pt");
  put(further, "Dutch with hyphens", "<p>{{now}} uur</p>", {{"now", date("%a %d-%m-%Y om %H:%M:%S", "nl")}}, "nl");
  put(further, "Chinese in words", "<p>{{now}}</p>", {{"now", date("%Y年%B%e日 %a %H:%M:%S", "zh")}}, "zh");
  put(further, "Japanese in brackets", "<p>{{now}}現在</p>", {{"now", date("%Y年%m月%d日（%a）%H:%M", "ja")}}, "ja");
  put(further, "Russian digits", "<p>Обновлено {{now}}</p>", {{"now", date("%d.%m.%Y в %H:%M:%S", "ru")}}, "ru");
  put(further, "two clocks in two forms", "<time datetime=\"{{a}}\">{{b}}</time>",
      {{"a", date("%Y-%m-%dT%H:%M:%S%Z")}, {"b", date("%e %b %Y, %l.%M%q")}});
  put(further, "compact stamp", "<script src=\"/a.js?v={{now}}\"></script>", {{"now", date("%Y%m%d-%H%M%S")}});
  put(further, "day of the week and time", "<p>{{now}}</p>", {{"now", date("%A %l:%M:%S %p")}});
  put(further, "a log's form", "<pre>[{{now}}]</pre>", {{"now", date("%d/%b/%Y:%H:%M:%S %z")}});
  put(further, "microseconds", "<!-- {{now}}{{us}} -->",
      {{"now", date("%Y-%m-%d %H:%M:%S.%L")},
       {"us", [](const Moment&, Rng& rng) { return number(rng.text(3, "0123456789")); }}});
  put(further, "Latin-1 German", "<p>{{now}} Uhr</p>", {{"now", date("%A, %e. %B %Y, %H:%M:%S", "de")}}, "de",
      Encoding::windows1252);
  put(further, "Latin-1 Spanish", "<p>{{now}}</p>", {{"now", date("%A, %e de %B de %Y %H:%M:%S", "es")}}, "es",
      Encoding::windows1252);
}

void addStructures(std::vector<Generator>& further) {
  put(further, "a log's last lines", "<pre>\n{{log}}</pre>", {{"log", logTail()}});
  put(further, "headlines that move on", "<ul id=\"news\">\n{{l}}</ul>", {{"l", headlines()}});
  put(further, "blank lines by chance", "<hr>\n{{b}}<hr>",
      {{"b", [](const Moment& moment, Rng& rng) {
          return bytes(std::string(moment.fetch < 5 ? moment.fetch : rng.below(5), '\n'));
        }}});
  put(further, "UTF-16 with a list", "<p>Server {{s}} is awake, and so is its keeper</p>\n<i>{{k}}</i>",
      {{"s", inTurn({"one", "two", "three"})}, {"k", base64(22)}}, "en", Encoding::utf16le);
  further.push_back(
      page("further: old line ends",
           replaced(text({.seed = "cr", .top = "<p>{{n}} hits</p>\n", .foot = "<p>{{now}}</p>\n"}), "\n", "\r"),
           {{"n", counter(996)}, {"now", date("%a %b %e %H:%M:%S %Y")}}));
  further.push_back(page("further: a number is the last of it", text({.seed = "last"}) + "<!-- {{t}} -->",
                         {{"t", decimal(91, 8200, 4)}}));
  further.push_back(page("further: a date begins it", "{{now}}\n" + prose("begins", "en", 20) + "\n",
                         {{"now", date("%a, %d %b %Y %H:%M:%S +0000")}}));
  further.push_back(page("further: ends in a token without an end of line", prose("ends", "en", 20) + "\nid={{t}}",
                         {{"t", hex(32)}}));
}

}  // namespace

std::vector<Generator> furtherPages() {
  std::vector<Generator> further;
  addIdentifiers(further);
  addNumbers(further);
  addDates(further);
  addStructures(further);
  return further;
}

}  // namespace tarnwick::generated
