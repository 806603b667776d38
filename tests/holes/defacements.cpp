// SPDX-License-Identifier: MIT
#include "holes/defacements.h"

#include <algorithm>

namespace tarnwick::generated {
namespace {

constexpr std::string_view kScript = "<script src=\"http://evil.example/x.js\"></script>";

std::size_t unit(const Made& page) {
  return page.encoding == Encoding::utf16le || page.encoding == Encoding::utf16be ? 2 : 1;
}

/// A stretch of so many bytes among the fixed ones, on a character's first byte in UTF-16; shorter where there is no
/// room.
Volatile somewhere(const Made& page, std::size_t length, Rng& rng) {
  const auto stretches = fixedStretches(page);
  const auto largest = std::max_element(stretches.begin(), stretches.end(),
                                        [](const auto& a, const auto& b) { return a.length < b.length; });
  length = std::min(length, largest->length);
  while (true) {
    // Each byte has the same chance, so that a long stretch is met more often.
    auto place = rng.below(page.bytes.size());
    place -= place % unit(page);
    for (const auto& stretch : stretches) {
      if (place >= stretch.begin && place + length <= stretch.end()) {
        return {.begin = place, .length = length};
      }
    }
  }
}

/// The lines that lie wholly in what is fixed, with their ends.
std::vector<Volatile> fixedLines(const Made& page) {
  const auto end = encoded("\n", page.encoding);
  std::vector<Volatile> lines;
  for (const auto& stretch : fixedStretches(page)) {
    std::size_t begin = std::string::npos;  // where the first line begins is not known before the first end
    if (stretch.begin == 0) {
      begin = 0;
    }
    for (auto at = page.bytes.find(end, stretch.begin); at < stretch.end() && at + end.size() <= stretch.end();
         at = page.bytes.find(end, at + end.size())) {
      if (begin != std::string::npos && at > begin + 2 * end.size()) {
        lines.push_back({.begin = begin, .length = at + end.size() - begin});
      }
      begin = at + end.size();
    }
  }
  return lines;
}

std::string replacedAt(const Made& page, const Volatile& place, std::string_view by) {
  auto bytes = page.bytes;
  bytes.replace(place.begin, place.length, by);
  return bytes;
}

Defaced changedByte(const Made& page, Rng& rng) {
  auto place = somewhere(page, 1, rng);
  const char old = page.bytes[place.begin];
  return {"a changed byte", replacedAt(page, place, std::string(1, static_cast<char>(old ^ (1 << rng.below(5)))))};
}

Defaced changedWord(const Made& page, Rng& rng) {
  const auto word = encoded("hacked", page.encoding);
  const auto place = somewhere(page, word.size(), rng);
  return {"a changed word", replacedAt(page, place, word)};
}

Defaced removedLine(const Made& page, Rng& rng) {
  const auto lines = fixedLines(page);
  const auto place = lines.empty() ? somewhere(page, 30, rng) : rng.oneOf(lines);
  return {"a line removed", replacedAt(page, place, "")};
}

Defaced insertedScript(const Made& page, Rng& rng) {
  return {"a script inserted", replacedAt(page, somewhere(page, 0, rng), encoded(kScript, page.encoding))};
}

Defaced replacedHost(const Made& page, Rng& rng) {
  const auto host = encoded("example.org", page.encoding);
  std::vector<Volatile> places;
  for (const auto& stretch : fixedStretches(page)) {
    for (auto at = page.bytes.find(host, stretch.begin); at < stretch.end() && at + host.size() <= stretch.end();
         at = page.bytes.find(host, at + 1)) {
      places.push_back({.begin = at, .length = host.size()});
    }
  }
  if (places.empty()) {
    return {"a link inserted", replacedAt(page, somewhere(page, 0, rng),
                                          encoded("<a href=\"http://evil.example/\">here</a>", page.encoding))};
  }
  return {"a link's host replaced", replacedAt(page, rng.oneOf(places), encoded("example.com", page.encoding))};
}

Defaced exchangedLines(const Made& page, Rng& rng) {
  auto lines = fixedLines(page);
  rng.shuffle(lines);
  if (lines.empty()) {
    return changedWord(page, rng);
  }
  const auto textOf = [&page](const Volatile& line) { return page.bytes.substr(line.begin, line.length); };
  const auto other =
      std::find_if(lines.begin(), lines.end(), [&](const auto& line) { return textOf(line) != textOf(lines.front()); });
  if (other == lines.end()) {
    return changedWord(page, rng);
  }
  const auto& [first, second] =
      std::minmax(lines.front(), *other, [](const auto& a, const auto& b) { return a.begin < b.begin; });
  auto bytes = page.bytes;
  bytes.replace(second.begin, second.length, textOf(first));
  bytes.replace(first.begin, first.length, textOf(second));
  return {"two lines exchanged", std::move(bytes)};
}

bool endIsFixed(const Made& page) {
  const auto stretches = fixedStretches(page);
  return stretches.back().end() == page.bytes.size();
}

bool beginningIsFixed(const Made& page) { return fixedStretches(page).front().begin == 0; }

}  // namespace

std::vector<Volatile> fixedStretches(const Made& page) {
  std::vector<Volatile> stretches;
  std::size_t from = 0;    // the first byte that may be fixed
  std::size_t behind = 0;  // where the last part ends
  const auto add = [&](std::size_t end) {
    const auto width = unit(page);
    from += (width - from % width) % width;
    if (end > from) {
      stretches.push_back({.begin = from, .length = end - from});
    }
  };
  for (const auto& part : page.parts) {
    const bool first = &part == page.parts.data();
    if (first || part.begin >= behind + kOnePart) {
      add(part.begin - std::min(part.begin, kNear));
    }
    behind = part.end();
    from = behind + kNear;
  }
  add(page.bytes.size());
  return stretches;
}

Defaced defaced(const Made& page, std::size_t n, Rng& rng) {
  if (n == 9) {
    return {"an empty page", ""};
  }
  switch (n % 9) {
    case 0:
      return changedByte(page, rng);
    case 1:
      return changedWord(page, rng);
    case 2:
      return removedLine(page, rng);
    case 3:
      return insertedScript(page, rng);
    case 4:
      return replacedHost(page, rng);
    case 5:
      if (endIsFixed(page)) {
        return {"text appended", page.bytes + encoded(n < 9 ? "<p>Owned by nobody</p>\n" : " ", page.encoding)};
      }
      return insertedScript(page, rng);
    case 6:
      if (beginningIsFixed(page)) {
        return {"text before the beginning", encoded(n < 9 ? "Owned by nobody\n" : "\n", page.encoding) + page.bytes};
      }
      return insertedScript(page, rng);
    case 7:
      return exchangedLines(page, rng);
    default:
      return {"a page cut short", page.bytes.substr(0, somewhere(page, 1, rng).begin)};
  }
}

std::vector<Defaced> brokenClasses(const Made& page, std::size_t most) {
  std::vector<Defaced> result;
  for (const auto& part : page.parts) {
    if (most == 0) {
      break;
    }
    most -= part.breaks.empty() ? 0 : 1;
    for (const auto& by : part.breaks) {
      result.push_back({page.bytes.substr(part.begin, part.length) + " -> " + by, replacedAt(page, part, by)});
    }
  }
  return result;
}

}  // namespace tarnwick::generated
