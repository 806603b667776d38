// SPDX-License-Identifier: MIT
#include "holes/page_content.h"

#include <array>
#include <map>
#include <vector>

#include "holes/generated_page.h"

namespace tarnwick::generated {
namespace {

std::vector<std::string_view> split(std::string_view list) {
  std::vector<std::string_view> words;
  while (!list.empty()) {
    const auto end = std::min(list.find(' '), list.size());
    words.push_back(list.substr(0, end));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return words;
}

const std::vector<std::string_view>& vocabulary(std::string_view language) {
  static const std::map<std::string_view, std::vector<std::string_view>> words{
      {"en",
       split("the council of town harbour water station report opens new line along river market people visit "
             "library garden school bridge winter music repair north street with for and before after during long "
             "public meeting plan review small large centre ferry travel ticket weather morning a their")},
      {"de", split("der Rat die Stadt Hafen und Wasser öffnet neue Straße über den Fluss Markt für Leute Bücherei "
                   "Garten Schule Brücke im Winter Musik nördlich mit vor nach während lange öffentliche Sitzung Plan "
                   "kleine große Mitte Fähre Reise Karte Wetter am Morgen ein")},
      {"fr", split("le conseil de la ville port et eau ouvre une nouvelle ligne près du fleuve marché pour les gens "
                   "bibliothèque jardin école pont en hiver musique réparation nord avec avant après durée publique "
                   "réunion projet petit grand centre trajet billet météo matin")},
      {"es", split("el consejo de la ciudad puerto y agua abre una nueva línea junto al río mercado para la gente "
                   "biblioteca jardín escuela puente en invierno música obra norte con antes después duración pública "
                   "reunión proyecto pequeño gran centro viaje billete tiempo mañana")},
      {"it", split("il consiglio della città porto e acqua apre una nuova linea lungo il fiume mercato per la gente "
                   "biblioteca giardino scuola ponte in inverno musica lavori nord con prima dopo durante pubblica "
                   "riunione progetto piccolo grande centro viaggio biglietto tempo più")},
      {"pt", split("o conselho da cidade porto e água abre uma nova linha junto ao rio mercado para as pessoas "
                   "biblioteca jardim escola ponte no inverno música obra norte com antes depois duração pública "
                   "reunião projeto pequeno grande centro viagem bilhete tempo manhã")},
      {"nl", split("de raad van het stad haven en water opent een nieuwe lijn langs de rivier markt voor mensen "
                   "bibliotheek tuin school brug in de winter muziek herstel noord met voor na tijdens lange openbare "
                   "vergadering plan kleine grote midden veer reis kaartje weer ochtend")},
      {"pl",
       split("rada miasta port i woda otwiera nową linię wzdłuż rzeki rynek dla ludzi biblioteka ogród szkoła most "
             "zimą muzyka remont północ z przed po podczas długie publiczne spotkanie plan mały duży środek prom "
             "podróż bilet pogoda rano")},
      {"ru",
       split("совет города порт и вода открывает новую линию вдоль реки рынок для людей библиотека сад школа мост "
             "зимой музыка ремонт север с перед после во время долгое открытое собрание план малый большой центр "
             "паром поездка билет погода утром")},
      {"ja",
       split("まちの みなとから かわにそって あたらしい みちが できました。 としょかんは あさから ひらいています。 "
             "がっこうの にわで おんがくを きく ことが できます。 ニュースを おしらせします。 バスと フェリーの "
             "チケットは まどぐちで うっています。 ふゆの あいだは はしを なおします。")},
      {"zh",
       split("市议会 今天 开放 新的 线路 沿着 河流。 图书馆 早上 开门， 学校 花园 可以 听 音乐。 冬天 我们 修理 桥梁。 "
             "车票 在 窗口 出售。 港口 的 天气 很好， 欢迎 大家 参加 公开 会议。")}};
  const auto found = words.find(language);
  return found == words.end() ? words.at("en") : found->second;
}

std::string title(Rng& rng, std::string_view language) {
  const auto& words = vocabulary(language);
  std::string result;
  for (int count = rng.between(2, 5); count > 0; --count) {
    result += rng.oneOf(words);
    result += count > 1 ? " " : "";
  }
  return result;
}

std::string sentences(Rng& rng, std::string_view language, int count) {
  const auto& words = vocabulary(language);
  const bool spaced = language != "zh" && language != "ja";
  std::string result;
  for (; count > 0; --count) {
    const int length = rng.between(6, 16);
    for (int i = 0; i < length; ++i) {
      result += rng.oneOf(words);
      result += spaced && i + 1 < length ? " " : "";
    }
    result += spaced ? ". " : "";
  }
  return result;
}

std::string table(Rng& rng, std::string_view language) {
  std::string result = "<table class=\"data\">\n";
  for (int row = rng.between(3, 8); row > 0; --row) {
    result += "  <tr><th>" + title(rng, language) + "</th><td>" + std::to_string(rng.between(2, 900)) + "</td><td>" +
              std::to_string(rng.between(1, 99)) + "." + std::to_string(rng.between(0, 9)) + "</td></tr>\n";
  }
  return result + "</table>\n";
}

std::string list(Rng& rng, std::string_view language) {
  std::string result = "<ul>\n";
  for (int row = rng.between(3, 7); row > 0; --row) {
    result +=
        "  <li><a href=\"/topics/" + rng.text(8, kBase36.substr(10)) + "\">" + title(rng, language) + "</a></li>\n";
  }
  return result + "</ul>\n";
}

}  // namespace

std::string prose(std::string_view seed, std::string_view language, int count) {
  Rng rng(seed);
  return sentences(rng, language, count);
}

std::string navigation(std::string_view seed, std::string_view language) {
  Rng rng(seed);
  std::string result = "<nav class=\"main\">\n<ul>\n";
  for (int i = 0; i < 7; ++i) {
    result += "  <li class=\"item item-" + std::to_string(i) + "\"><a href=\"/" + rng.text(6, kBase36.substr(10)) +
              "/\">" + title(rng, language) + "</a></li>\n";
  }
  return result + "</ul>\n</nav>\n";
}

std::string articles(std::string_view seed, std::string_view language, int count) {
  Rng rng(seed);
  std::string result;
  for (int i = 0; i < count; ++i) {
    result +=
        "<article id=\"a" + std::to_string(rng.between(1000, 9999)) + "\">\n<h2>" + title(rng, language) + "</h2>\n";
    for (int paragraphs = rng.between(1, 4); paragraphs > 0; --paragraphs) {
      result += "<p>" + sentences(rng, language, rng.between(2, 6)) + "</p>\n";
    }
    result += rng.below(3) == 0 ? table(rng, language) : rng.below(2) == 0 ? list(rng, language) : "";
    result += "</article>\n";
  }
  return result;
}

std::string text(const Document& document) {
  Rng rng(document.seed);
  const auto& language = document.language;
  const auto seed = std::string(document.seed);
  const int first = document.articles / 2;
  return "<!DOCTYPE html>\n<html lang=\"" + std::string(language) + "\">\n<head>\n<title>" + title(rng, language) +
         "</title>\n<link rel=\"stylesheet\" href=\"/css/site.css\" integrity=\"sha384-" + rng.text(64, kBase64) +
         "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n" + document.head +
         "<style>\nbody { margin: 0 auto; max-width: 60em; font: 16px/1.5 sans-serif; }\n.main li { display: "
         "inline-block; "
         "padding: 0 8px; }\n</style>\n</head>\n<body>\n<h1>" +
         title(rng, language) + "</h1>\n" + navigation(seed + " menu", language) + document.top +
         articles(seed + " first", language, first) + document.middle +
         articles(seed + " second", language, document.articles - first) + document.bottom +
         "<footer>\n<p>(c) 1998-2026 " + title(rng, language) + "</p>\n<p><a href=\"http://www.example.org/imprint\">" +
         title(rng, language) + "</a> | <a href=\"http://mail.example.org/contact\">" + title(rng, language) +
         "</a></p>\n" + document.foot + "</footer>\n<script src=\"/js/site.js\" defer></script>\n</body>\n</html>\n";
}

std::string replaced(std::string text, std::string_view what, std::string_view by) {
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
  return text;
}

}  // namespace tarnwick::generated
