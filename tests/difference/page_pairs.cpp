// SPDX-License-Identifier: MIT
#include "difference/page_pairs.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <tuple>
#include <utility>

namespace tarnwick::testing {
namespace {

using Random = std::mt19937;

std::size_t below(Random& random, std::size_t end) { return random() % end; }

std::string word(Random& random, const std::vector<std::string>& letters) {
  std::string text;
  for (std::size_t i = 1 + below(random, 9); i > 0; --i) {
    text += letters[below(random, letters.size())];
  }
  return text;
}

std::string lines(Random& random, std::size_t size, const std::string& end, const std::vector<std::string>& letters) {
  std::string text;
  while (text.size() < size) {
    text += "<p>";
    for (std::size_t i = 1 + below(random, 12); i > 0; --i) {
      text += word(random, letters) + (i > 1 ? " " : "");
    }
    text += "</p>" + end;
  }
  return text;
}

std::string utf16(const std::string& ascii, bool isBig) {
  std::string text = isBig ? "\xFE\xFF" : "\xFF\xFE";
  for (const char byte : ascii) {
    text += isBig ? std::string({'\0', byte}) : std::string({byte, '\0'});
  }
  return text;
}

/// Changes the page at some places far apart, in units of so many bytes.
void change(Random& random, PagePair& pair, std::size_t unit, std::size_t most, const std::string& put) {
  const std::size_t places = 1 + below(random, most);
  const std::size_t units = pair.before.size() / unit;
  std::vector<std::size_t> at;
  for (std::size_t i = 0; i < places; ++i) {
    at.push_back(1 + below(random, units - 1));
  }
  std::ranges::sort(at);
  std::size_t next = 0;
  for (const std::size_t place : at) {
    if (place * unit < next) {
      continue;
    }
    pair.after.append(pair.before, next, place * unit - next);
    next = place * unit;
    const std::size_t kind = below(random, 3);
    const std::size_t taken = kind == 0 ? 0 : std::min(1 + below(random, 6), units - place) * unit;
    std::string brought;
    for (std::size_t i = kind == 1 ? 0 : 1 + below(random, 5); i > 0; --i) {
      brought += put;
    }
    pair.after += brought;
    pair.removed += taken;
    pair.added += brought.size();
    next += taken;
  }
  pair.after.append(pair.before, next);
}

struct Kind {
  const char* name;
  std::function<std::string(Random& random, std::size_t size)> page;
  std::size_t unit = 1;
  /// What is put in, which no page has without it: so it is known which bytes are new.
  std::string put = "~";
};

std::string binary(Random& random, std::size_t size) {
  std::string bytes;
  std::generate_n(std::back_inserter(bytes), size, [&] {
    const auto byte = static_cast<char>(random());
    return byte == '~' ? 'x' : byte;
  });
  return bytes;
}

const std::vector<std::string>& ascii() {
  static const std::vector<std::string> letters{"a", "b", "c", "d", "e", "r", "s", "t", "1", "2"};
  return letters;
}

const std::vector<Kind>& kinds() {
  const auto linesOf = [](std::string end, std::vector<std::string> letters) {
    return [end = std::move(end), letters = std::move(letters)](Random& random, std::size_t size) {
      return lines(random, size, end, letters);
    };
  };
  static const std::vector<Kind> all{
      {"LF", linesOf("\n", ascii())},
      {"CR LF", linesOf("\r\n", ascii())},
      {"NUL", linesOf(std::string("\0x\n", 3), ascii())},
      {"Windows-1252", linesOf("\r\n", {"\xe4", "\xf6", "\xfc", "\x80", "a", "b"})},
      {"UTF-8", linesOf("\n", {"\xc3\xa4", "\xe2\x82\xac", "\xf0\x9f\x98\x80", "a"})},
      {"UTF-16 little",
       [](Random& random, std::size_t size) { return utf16(lines(random, size, "\n", ascii()), false); }, 2,
       std::string("~\0", 2)},
      {"UTF-16 big", [](Random& random, std::size_t size) { return utf16(lines(random, size, "\r\n", ascii()), true); },
       2, std::string("\0~", 2)},
      {"binary", &binary},
      {"one line", linesOf(" ", ascii())},
  };
  return all;
}

}  // namespace

std::vector<PagePair> pagePairs(std::size_t count, unsigned seed) {
  constexpr std::size_t kMegabyte = std::size_t{1} << 20U;
  constexpr std::size_t kMostPlaces = 12;
  Random random(seed);  // NOLINT: the same pages every time
  std::vector<PagePair> pairs;
  for (std::size_t i = 0; i + 3 < count; ++i) {
    const Kind& kind = kinds()[i % kinds().size()];
    PagePair& pair = pairs.emplace_back();
    pair.kind = kind.name;
    pair.before = kind.page(random, 200 + below(random, 20'000));
    change(random, pair, kind.unit, kMostPlaces, kind.put);
  }
  for (const auto& [name, size, end] :
       {std::tuple("10 MB", 10 * kMegabyte, "\n"), std::tuple("10 MB, CR LF", 10 * kMegabyte, "\r\n"),
        std::tuple("one line of 5 MB", 5 * kMegabyte, " ")}) {
    PagePair& pair = pairs.emplace_back();
    pair.kind = name;
    pair.before = lines(random, size, end, ascii());
    change(random, pair, 1, 300, "~");
  }
  return pairs;
}

}  // namespace tarnwick::testing
