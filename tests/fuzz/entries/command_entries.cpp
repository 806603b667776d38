// SPDX-License-Identifier: MIT
#include "fuzz/entries/command_entries.h"

#include <algorithm>
#include <string>
#include <vector>

#include "alerts/alert_facts.h"
#include "base/command_line.h"
#include "base/text.h"
#include "base/windows_command_line.h"
#include "support/hand_clock.h"

namespace tarnwick::testing {
namespace {

using Arguments = std::vector<std::string>;

std::string without(std::string_view text, std::string_view characters) {
  std::string rest(text);
  std::erase_if(rest, [&](char c) { return characters.find(c) != std::string_view::npos; });
  return rest;
}

std::string replaced(std::string_view text, char from, char to) {
  std::string result(text);
  std::replace(result.begin(), result.end(), from, to);
  return result;
}

/// The line that `splitCommandLine` takes apart into these arguments.
std::string quotedLine(const Arguments& arguments) {
  std::string line;
  for (const std::string& argument : arguments) {
    line += line.empty() ? "\"" : "  \"";
    for (const char c : argument) {
      line.append(c == '"' ? 2 : 1, c);
    }
    line += '"';
  }
  return line;
}

/// What a program makes of its command line on Windows (Microsoft, "Parsing C command-line arguments"); its own name is
/// taken for an argument like any other.
Arguments splitAsOnWindows(std::string_view line) {
  Arguments arguments;
  std::string argument;
  std::size_t backslashes = 0;
  bool begun = false;
  bool quoted = false;
  for (const char c : line) {
    if (c == '\\') {
      ++backslashes;
      begun = true;
      continue;
    }
    const std::size_t kept = c == '"' ? backslashes / 2 : backslashes;
    const bool escaped = c == '"' && backslashes % 2 != 0;
    argument.append(kept, '\\');
    backslashes = 0;
    if (c == '"' && !escaped) {
      quoted = !quoted;
      begun = true;
    } else if (!quoted && (c == ' ' || c == '\t')) {
      if (begun) {
        arguments.push_back(argument);
      }
      argument.clear();
      begun = false;
    } else {
      argument += c;
      begun = true;
    }
  }
  argument.append(backslashes, '\\');
  if (begun) {
    arguments.push_back(argument);
  }
  return arguments;
}

/// Values bring in placeholders of further values. With more of them a text grows beyond all bounds.
constexpr std::ptrdiff_t kMostTildes = 3;

struct Filling {
  std::string text;
  AlertFacts facts;
};

Filling fillingOf(std::string_view input) {
  Filling filling;
  filling.text = takePiece(input, 500);
  for (std::string* value : {&filling.facts.url, &filling.facts.idSite, &filling.facts.email,
                             &filling.facts.localHostName, &filling.facts.localIP}) {
    *value = takePiece(input, 100);
    if (std::ranges::count(*value, '~') > kMostTildes) {
      *value = without(*value, "~");
    }
  }
  return filling;
}

void fillIn(std::string& text, std::string_view placeholder, const std::string& value) {
  std::size_t at = 0;
  while ((at = text.find(placeholder, at)) != std::string::npos) {
    text.replace(at, placeholder.size(), value);
    at += value.size();
  }
}

const HandClock& standingClock() {
  static const HandClock clock(HandClock::at("2024-05-17 12:00:30"));
  return clock;
}

constexpr std::string_view kNow = "2024-05-17 12:00:30";

using Names = std::array<std::string_view, 6>;
constexpr Names kNames{"~date~", "~url~", "~idsite~", "~email~", "~localhostname~", "~localip~"};
constexpr Names kNumbers{"~1~", "~2~", "~3~", "~4~", "~5~", "~6~"};

void fillAll(std::string& text, const Names& names, const AlertFacts& facts) {
  fillIn(text, names[0], std::string(kNow));
  fillIn(text, names[1], facts.url);
  fillIn(text, names[2], facts.idSite);
  fillIn(text, names[3], facts.email);
  fillIn(text, names[4], facts.localHostName);
  fillIn(text, names[5], facts.localIP);
}

AlertFacts mapped(const AlertFacts& facts, const auto& change) {
  return {change(facts.url), change(facts.idSite), change(facts.email), change(facts.localHostName),
          change(facts.localIP)};
}

}  // namespace

void fuzzCommandLine(std::string_view input) {
  const Arguments arguments = splitCommandLine(input);
  std::string all;
  for (const std::string& argument : arguments) {
    require(argument.find('\0') == std::string::npos, "an argument holds a NUL byte");
    all += argument;
  }
  constexpr std::string_view kMeaningful(" \t\r\n\"\0", 6);
  require(without(all, kMeaningful) == without(input, kMeaningful), "a character was lost, added or moved");
  require(arguments.size() <= input.size(), "more arguments than characters");
  require(splitCommandLine(quotedLine(arguments)) == arguments, "the arguments do not come back");

  const std::string value = without(input, std::string_view("\0", 1));
  const std::string literal = literalArgumentText(input);
  require(splitCommandLine("a \"b " + literal + " c\" d") == Arguments{"a", "b " + value + " c", "d"},
          "a value changed the arguments around it");
  std::string bare;
  for (const std::string& argument : splitCommandLine("x" + literal + "x")) {
    bare += argument;
  }
  require(bare == "x" + without(value, " \t\r\n") + "x", "a value outside of quotes lost or gained a character");
}

void fuzzWindowsCommandLine(std::string_view input) {
  Arguments arguments{"program"};
  while (!input.empty()) {
    arguments.emplace_back(without(takePiece(input), std::string_view("\0", 1)));
  }
  require(splitAsOnWindows(windowsCommandLine(arguments)) == arguments, "a program is given other arguments");
  const std::optional<std::string> batch = batchCommandLine(arguments);
  const bool lineEnds = std::ranges::any_of(
      arguments, [](const std::string& argument) { return argument.find_first_of("\r\n") != std::string::npos; });
  require(batch.has_value() != lineEnds, "a line end is given to cmd.exe, or a sound line refused");
  if (batch) {
    require(std::ranges::count(*batch, '"') % 2 == 0, "a quote of the line for cmd.exe stays open");
  }
  const std::string script = scriptCommandLine(arguments);
  const auto quotes = static_cast<std::size_t>(std::ranges::count(script, '"'));
  require(quotes % 2 == 0 && quotes >= 2 * arguments.size(), "a quote of the line for a script stays open");
}

void fuzzFillTemplate(std::string_view input) {
  const Filling filling = fillingOf(input);
  std::string expected = filling.text;
  AlertFacts lines = filling.facts;
  for (std::string* value : {&lines.url, &lines.idSite, &lines.email, &lines.localHostName, &lines.localIP}) {
    *value = without(*value, std::string_view("\r\n\0", 3));
  }
  fillAll(expected, kNames, lines);
  require(fillTemplate(filling.text, filling.facts, standingClock()) == expected, "the template is filled otherwise");
}

void fuzzFillCommand(std::string_view input) {
  // Stand for a quote that has no meaning and for the address, so they must be in none of the texts.
  constexpr char kInnocent = '\x01';
  constexpr char kAddress = '\x02';
  Filling filling = fillingOf(input);
  filling.text = without(filling.text, std::string_view("\0\x01\x02", 3));
  filling.facts =
      mapped(filling.facts, [](const std::string& value) { return without(value, std::string_view("\0\x01\x02", 3)); });
  const AlertFacts innocent =
      mapped(filling.facts, [](const std::string& value) { return replaced(value, '"', kInnocent); });

  const std::string command = fillCommand(filling.text, filling.facts, standingClock());
  Arguments expected = splitCommandLine(fillCommand(filling.text, innocent, standingClock()));
  for (std::string& argument : expected) {
    argument = replaced(argument, kInnocent, '"');
  }
  require(splitCommandLine(command) == expected, "a quote of a value counts as one of the command");

  const std::string& url = filling.facts.url;
  if (trimmed(url) == url && !url.empty()) {
    Filling joined = filling;
    joined.facts.url = "x" + without(url, " \t\r\n");
    require(splitCommandLine(fillCommand(joined.text, joined.facts, standingClock())).size() == expected.size() ||
                url.find('~') != std::string::npos,
            "a blank of an address splits an argument");
  }
  if (url.find_first_of(" \t\r\n\v\f~") != std::string::npos || url.starts_with('-')) {
    return;  // the address is changed, or brings something in
  }
  AlertFacts standing = innocent;
  standing.url = kAddress;
  std::string plain = filling.text;
  fillAll(plain, kNames, standing);
  fillAll(plain, kNumbers, standing);
  fillIn(plain, std::string_view(&kAddress, 1), innocent.url);
  require(fillCommand(filling.text, innocent, standingClock()) == plain, "the command is filled otherwise");
}

}  // namespace tarnwick::testing
