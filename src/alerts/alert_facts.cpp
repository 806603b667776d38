// SPDX-License-Identifier: MIT
#include "alerts/alert_facts.h"

#include <array>
#include <string_view>

#include "base/command_line.h"
#include "base/one_line.h"
#include "base/text.h"

namespace tarnwick {
namespace {

/// The placeholders of one style in the order of their values.
using Placeholders = std::array<std::string_view, 6>;

constexpr Placeholders kNamed = {"~date~", "~url~", "~idsite~", "~email~", "~localhostname~", "~localip~"};
constexpr Placeholders kNumbered = {"~1~", "~2~", "~3~", "~4~", "~5~", "~6~"};

constexpr std::string_view kEncodedBlanks = " \t\r\n";
constexpr std::array<std::string_view, kEncodedBlanks.size()> kEncodings = {"%20", "%09", "%0D", "%0A"};

std::string replaceAll(const std::string& text, std::string_view token, std::string_view value) {
  std::string result;
  std::size_t copied = 0;
  for (std::size_t at = text.find(token); at != std::string::npos; at = text.find(token, copied)) {
    result.append(text, copied, at - copied).append(value);
    copied = at + token.size();
  }
  return result.append(text, copied);
}

std::string fill(std::string text, const Placeholders& placeholders, const AlertFacts& facts, const Clock& clock) {
  const std::array<std::string, std::tuple_size_v<Placeholders>> values = {
      dateTimeText(clock.localNow()), facts.url, facts.idSite, facts.email, facts.localHostName, facts.localIP};
  for (std::size_t i = 0; i < placeholders.size(); ++i) {
    text = replaceAll(text, placeholders[i], values[i]);
  }
  return text;
}

/// Behind all others: what these bring in is filled in no more, but for what stands behind it here.
std::string fillEvent(std::string text, const std::optional<AlertEvent>& event) {
  if (event) {
    text = replaceAll(text, kEventPlaceholder, event->event);
    text = replaceAll(text, "~downSince~", event->downSince);
    text = replaceAll(text, "~downFor~", event->downFor);
    text = replaceAll(text, "~checks~", event->checks);
    text = replaceAll(text, "~firstError~", event->firstError);
    text = replaceAll(text, "~certificate~", event->certificate);
  }
  return text;
}

template <typename Change>
std::optional<AlertEvent> changed(const std::optional<AlertEvent>& event, Change change) {
  return event ? std::optional(AlertEvent{change(event->event), change(event->downSince), change(event->downFor),
                                          change(event->checks), change(event->firstError), change(event->certificate)})
               : std::nullopt;
}

// While a command is filled in, a NUL byte and what follows it is a mark: one each before and behind an address,
// together with all that its own placeholders bring in, and one for the NUL byte that a literal quote is.
constexpr char kMark = '\0';
constexpr char kBegin = '<';
constexpr char kEnd = '>';
constexpr char kItself = '0';

std::string marked(const std::string& literal) {
  return replaceAll(literal, std::string_view(&kMark, 1), std::string{kMark, kItself});
}

std::string markedAddress(const std::string& literal) {
  return std::string{kMark, kBegin} + marked(literal) + std::string{kMark, kEnd};
}

// The address as it would be fetched: one argument, which is no option of the program.
std::string addressAsArgument(const std::string& url) {
  std::string text;
  for (const char c : trimmed(url)) {
    const auto place = kEncodedBlanks.find(c);
    text += place == std::string_view::npos ? std::string(1, c) : std::string(kEncodings[place]);
  }
  return text.starts_with('-') ? "http://" + text : text;
}

std::string withoutMarks(const std::string& text) {
  std::string result;
  std::string address;
  std::size_t depth = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    std::string& target = depth > 0 ? address : result;
    if (text[at] != kMark) {
      target += text[at];
    } else if (text[++at] == kItself) {
      target += kMark;
    } else if (text[at] == kBegin) {
      ++depth;
    } else if (--depth == 0) {
      result += addressAsArgument(address);
      address.clear();
    }
  }
  return result;
}

}  // namespace

std::string fillTemplate(std::string text, const AlertFacts& facts, const Clock& clock) {
  // A line of its own in the mail could end it, and what follows would be commands.
  const AlertFacts lines = {oneLine(facts.url), oneLine(facts.idSite), oneLine(facts.email),
                            oneLine(facts.localHostName), oneLine(facts.localIP)};
  return fillEvent(fill(std::move(text), kNamed, lines, clock), changed(facts.event, &oneLine));
}

std::string fillCommand(std::string text, const AlertFacts& facts, const Clock& clock) {
  const auto literal = [](const std::string& value) { return marked(literalArgumentText(value)); };
  const AlertFacts values = {markedAddress(literalArgumentText(facts.url)), literal(facts.idSite), literal(facts.email),
                             literal(facts.localHostName), literal(facts.localIP)};
  text = fill(marked(text), kNamed, values, clock);
  text = fill(std::move(text), kNumbered, values, clock);
  return withoutMarks(fillEvent(std::move(text), changed(facts.event, literal)));
}

}  // namespace tarnwick
