// SPDX-License-Identifier: MIT
#include "fuzz/entries/text_entries.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/text.h"
#include "base/windows_1252.h"
#include "cli/terminal/console.h"
#include "cli/terminal/moment.h"
#include "difference/first_difference.h"
#include "difference/unified_diff.h"
#include "support/hand_clock.h"

namespace tarnwick::testing {
namespace {

bool obeyedByTerminals(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x200E || c == 0x200F || (c >= 0x2028 && c <= 0x202E) ||
         (c >= 0x2066 && c <= 0x2069);
}

/// One side of a hunk: the lines that it says are there.
struct Range {
  std::size_t first = 0;
  std::size_t count = 0;
};

struct Hunk {
  Range before;
  Range after;
  std::string linesBefore;
  std::string linesAfter;
  std::size_t countBefore = 0;
  std::size_t countAfter = 0;
};

std::size_t numberIn(std::string_view& text) {
  require(!text.empty() && text.front() >= '0' && text.front() <= '9', "a number is missing in the head of a hunk");
  std::size_t number = 0;
  while (!text.empty() && text.front() >= '0' && text.front() <= '9') {
    number = number * 10 + static_cast<std::size_t>(text.front() - '0');
    text.remove_prefix(1);
  }
  return number;
}

Range rangeIn(std::string_view& text, std::string_view mark) {
  require(text.starts_with(mark), "the head of a hunk is no head");
  text.remove_prefix(mark.size());
  Range range{numberIn(text), 1};
  if (text.starts_with(",")) {
    text.remove_prefix(1);
    range.count = numberIn(text);
  }
  // An empty range names the line that it stands behind.
  range.first -= range.count > 0 ? 1 : 0;
  return range;
}

std::vector<Hunk> hunksOf(std::string_view before, std::string_view after) {
  std::vector<Hunk> hunks;
  char mark = 0;
  unifiedDiff(before, after, [&](const DiffLine& line) {
    if (line.mark == '@') {
      std::string_view head = line.text;
      Hunk& hunk = hunks.emplace_back();
      hunk.before = rangeIn(head, "@@ -");
      hunk.after = rangeIn(head, " +");
      require(head == " @@", "the head of a hunk does not end");
    } else {
      require(!hunks.empty() && line.text.find('\n') == std::string_view::npos, "a line stands outside of its place");
      Hunk& hunk = hunks.back();
      if (line.mark == '\\') {
        require(mark == '-' || mark == ' ' || mark == '+', "a line end is missing from no line");
        if (mark != '+') {
          hunk.linesBefore.pop_back();
        }
        if (mark != '-') {
          hunk.linesAfter.pop_back();
        }
      }
      if (line.mark == '-' || line.mark == ' ') {
        hunk.linesBefore.append(line.text).append("\n");
        ++hunk.countBefore;
      }
      if (line.mark == '+' || line.mark == ' ') {
        hunk.linesAfter.append(line.text).append("\n");
        ++hunk.countAfter;
      }
    }
    mark = line.mark;
  });
  return hunks;
}

/// Where the line `number`, from 0, begins.
std::size_t placeOfLine(std::string_view text, std::size_t number) {
  std::size_t place = 0;
  for (; number > 0; --number) {
    const std::size_t feed = text.find('\n', place);
    require(feed != std::string_view::npos || (number == 1 && place < text.size()), "a hunk stands behind the text");
    place = feed == std::string_view::npos ? text.size() : feed + 1;
  }
  return place;
}

/// `text` with the hunks put in; they are in their order, and none reaches into the next.
std::string patched(std::string_view text, const std::vector<Hunk>& hunks, bool forwards) {
  std::string result;
  std::size_t copied = 0;
  for (const Hunk& hunk : hunks) {
    const std::string& old = forwards ? hunk.linesBefore : hunk.linesAfter;
    const std::size_t place = placeOfLine(text, (forwards ? hunk.before : hunk.after).first);
    require(place >= copied, "two hunks overlap");
    require(text.substr(place, old.size()) == old, "a hunk does not fit where it stands");
    result.append(text.substr(copied, place - copied)).append(forwards ? hunk.linesAfter : hunk.linesBefore);
    copied = place + old.size();
  }
  return result.append(text.substr(copied));
}

}  // namespace

void fuzzVisibleText(std::string_view input) {
  const std::string whole = visibleText(input);
  std::size_t characters = 0;
  for (std::string_view rest = whole; !rest.empty(); ++characters) {
    const std::optional<DecodedCharacter> decoded = decodeUtf8(rest);
    require(decoded.has_value(), "what is shown is no UTF-8");
    require(!obeyedByTerminals(decoded->character), "a terminal would obey what is shown");
    rest.remove_prefix(decoded->length);
  }
  require(characterCount(whole) == characters, "the characters are counted wrongly");
  require(visibleText(whole) == whole, "what may be shown is shown otherwise");
  const std::size_t most = takeByte(input);
  const std::string cut = visibleText(input, most);
  const std::string uncut = visibleText(input);
  require(characterCount(cut) <= most && isUtf8(cut), "more is shown than asked for");
  if (characterCount(uncut) <= most) {
    require(cut == uncut, "a text that has its place is cut");
  } else {
    const std::string dots(std::min<std::size_t>(most, 3), '.');
    require(cut.ends_with(dots) && uncut.starts_with(cut.substr(0, cut.size() - dots.size())),
            "a cut text is not the start of the whole");
  }
}

void fuzzUtf8(std::string_view input) {
  bool whole = true;
  std::size_t characters = 0;
  for (std::string_view rest = input; !rest.empty(); ++characters) {
    const std::optional<DecodedCharacter> decoded = decodeUtf8(rest);
    const std::string_view bytes = rest.substr(0, decoded ? decoded->length : 1);
    std::string again;
    appendUtf8(again, decoded ? decoded->character : 0);
    require(!decoded || again == bytes, "a character does not come back");
    whole = whole && decoded.has_value();
    rest.remove_prefix(bytes.size());
  }
  require(isUtf8(input) == whole, "a text is UTF-8 though a character of it is not");
  require(characterCount(input) == characters, "the characters are counted wrongly");
}

void fuzzUnifiedDiff(std::string_view input) {
  const std::string_view before = takePiece(input);
  const std::string_view after = input;
  const std::vector<Hunk> hunks = hunksOf(before, after);
  require(hunks.empty() == (before == after), "equal texts differ, or different ones do not");
  for (const Hunk& hunk : hunks) {
    require(hunk.before.count == hunk.countBefore && hunk.after.count == hunk.countAfter,
            "the head of a hunk counts its lines wrongly");
  }
  require(patched(before, hunks, true) == after, "the diff does not give the second text");
  require(patched(after, hunks, false) == before, "the diff does not give back the first text");

  const FirstDifference first = firstDifference(before, after);
  require((first.line == 0) == (before == after), "the first difference is one too many");
  require(before == after || first.before != first.after || before.size() != after.size(),
          "the first difference is none");
}

void fuzzMoment(std::string_view input) {
  const LocalTime now = HandClock::at("2024-05-17 12:00:30");
  LocalTime moment;
  try {
    moment = momentOf(std::string(input), now);
  } catch (const std::logic_error&) {
    throw;
  } catch (const std::runtime_error& refusal) {
    require(std::string_view(refusal.what()).find('\n') == std::string_view::npos && isUtf8(refusal.what()),
            "the refusal cannot be shown");
    require(!parseDateTime(input), "a date is refused");
    return;
  }
  const std::optional<LocalTime> date = parseDateTime(input);
  require(date ? moment == *date : moment <= now, "the moment is another one");
  require(momentOf(dateTimeText(moment), now) == moment, "the moment does not name itself");
}

}  // namespace tarnwick::testing
