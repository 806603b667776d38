// SPDX-License-Identifier: MIT
// Pages of which nobody could tell from a few fetches at once what will vary.
#include "holes/calendar_words.h"
#include "holes/file_forms.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

using namespace std::string_literals;

long long hours(const Moment& moment) {
  return std::chrono::floor<std::chrono::hours>(moment.time).time_since_epoch().count();
}

Generator noise() {
  return {.name = "unknowable: nothing but noise",
          .page =
              [](const Moment&, Rng& rng) {
                Made made;
                made.varying(bytes(rng.text(3000 + rng.below(3000), kBase64)));
                return made;
              },
          .hope = Hope::unknowable};
}

/// Two pages without a common line, as of a machine that is being replaced.
Generator twoPages() {
  const auto old = replaced(text({.seed = "the old page", .language = "de", .articles = 9}), "\n", "\r\n");
  const auto fresh = "{\"error\": 503, \"text\": \"" + prose("the other page", "en", 40) + "\"}";
  return {.name = "unknowable: two pages in turns",
          .page =
              [=](const Moment& moment, Rng&) {
                Made made;
                made.varying(bytes(moment.fetch % 2 == 0 ? old : fresh));
                return made;
              },
          .hope = Hope::unknowable};
}

/// A clock drawn into the picture before it is compressed.
Generator redrawnPicture() {
  const auto profile = prose("profile of the colours", "en", 20);
  const auto head =
      "\x89PNG\r\n\x1A\n"s + bigEndian(13) + "IHDR"s + bigEndian(64) + bigEndian(64) + "\x08\x00\x00\x00\x00"s +
      bigEndian(crc32("IHDR"s + bigEndian(64) + bigEndian(64) + "\x08\x00\x00\x00\x00"s)) +
      bigEndian(static_cast<std::uint32_t>(profile.size())) + "tEXt" + profile + bigEndian(crc32("tEXt" + profile));
  return {.name = "unknowable: a picture with a clock in it",
          .page =
              [=](const Moment& moment, Rng&) {
                const auto clock = dateText(moment, "%Y%m%d%H%M%S");
                std::string lines;
                for (std::size_t y = 0; y < 64; ++y) {
                  lines += '\0';
                  for (std::size_t x = 0; x < 64; ++x) {
                    const auto digit = static_cast<unsigned char>(clock[x / 5 + 1]);
                    const auto shade = static_cast<unsigned>(digit * (x % 5 + 1) * (y % 9 + 1) + (digit << (y % 4)));
                    lines += static_cast<char>(y < 8 ? x * 3 : shade & 0xFFU);
                  }
                }
                Made made;
                made.fixed(head);
                const auto data = "IDAT" + zlibStream(lines);
                made.varying(bytes(bigEndian(static_cast<std::uint32_t>(data.size() - 4)) + data +
                                   bigEndian(crc32(data)) + bigEndian(0) + "IEND" + bigEndian(crc32("IEND"))));
                return made;
              },
          .hope = Hope::unknowable};
}

std::string banner(std::uint64_t fetch) {
  return fetch % 200 == 150 ? "<div class=\"alarm\"><b>Notice:</b> the ferry does not run today. " +
                                  prose("banner", "en", 3) + "</div>\n"
                            : "";
}

}  // namespace

std::vector<Generator> unknowablePages() {
  std::vector<Generator> pages;
  const auto add = [&pages](Generator generator) {
    generator.hope = Hope::unknowable;
    pages.push_back(std::move(generator));
  };
  add(noise());
  add(twoPages());
  add(redrawnPicture());
  add(page("unknowable: a date without a time",
           text({.seed = "today", .articles = 5, .top = "<p class=\"date\">{{today}}</p>\n"}),
           {{"today", date("%A, %B %e, %Y")}}));
  add(page("unknowable: a banner once in two hundred fetches",
           text({.seed = "banner page", .articles = 6, .top = "<main>\n{{banner}}<p>Welcome aboard</p>\n</main>\n"}),
           {{"banner", [](const Moment& moment, Rng&) { return bytes(banner(moment.fetch)); }}}));
  add(page("unknowable: a quotation each hour",
           text({.seed = "quotation page", .articles = 6, .bottom = "<blockquote>{{text}}</blockquote>\n"}),
           {{"text", [](const Moment& moment, Rng&) {
               return words(prose("hour " + std::to_string(hours(moment)), "en", 2));
             }}}));
  add(page("unknowable: a sealed answer",
           "{\n  \"version\": 1,\n  \"service\": \"" + prose("sealed", "en", 10) +
               "\",\n  \"sealed\": \"{{data}}\",\n  \"key\": \"north-7\"\n}\n",
           {{"data", base64(5200)}}));
  add(page("unknowable: another text each day",
           text({.seed = "paper", .articles = 3, .middle = "<section id=\"today\">\n{{text}}</section>\n"}),
           {{"text", [](const Moment& moment, Rng&) {
               return bytes(articles("day " + std::to_string(hours(moment) / 24), "en", 4));
             }}}));
  return pages;
}

}  // namespace tarnwick::generated
