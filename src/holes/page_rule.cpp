// SPDX-License-Identifier: MIT
#include "holes/page_rule.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/text.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 2> kUses = {"compare only", "leave out"};
constexpr std::array<std::string_view, 5> kLanguages = {"regex", "css", "xpath", "json", "lines"};

constexpr std::string_view kHole = "hole";

template <typename Value, typename Words>
std::optional<Value> valueOf(const Words& words, std::string_view word) {
  const auto found = std::ranges::find(words, word);
  return found == words.end() ? std::nullopt : std::optional(static_cast<Value>(found - words.begin()));
}

std::string encoded(std::string_view value) {
  std::string text;
  for (const char c : value) {
    if (c > ' ' && c < 0x7F && c != '%') {
      text += c;
    } else {
      appendPercentEncoded(text, c);
    }
  }
  return text;
}

std::optional<std::string> decoded(std::string_view text) {
  std::string value;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      value += text[i];
      continue;
    }
    unsigned byte = 0;
    const std::string_view digits = text.substr(i + 1, 2);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
    if (digits.size() != 2 || error != std::errc() || end != digits.data() + 2) {
      return std::nullopt;
    }
    value += static_cast<char>(byte);
    i += 2;
  }
  return value;
}

bool readNumber(std::string_view text, std::size_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

bool readField(Hole& hole, std::string_view name, std::string_view text) {
  const auto value = decoded(text);
  if (!value) {
    return false;
  }
  if (name == "at") {
    return readNumber(*value, hole.begin);
  }
  if (name == "length") {
    return readNumber(*value, hole.length);
  }
  if (name == "least") {
    return readNumber(*value, hole.least);
  }
  if (name == "most") {
    return readNumber(*value, hole.most);
  }
  if (name == "choice") {
    hole.choices.push_back(*value);
    return true;
  }
  std::string* const place = name == "form"     ? &hole.form
                             : name == "before" ? &hole.before
                             : name == "after"  ? &hole.after
                                                : nullptr;
  if (place != nullptr) {
    *place = *value;
  }
  return place != nullptr;
}

}  // namespace

std::string_view wordOf(PageRule::Use use) { return kUses[static_cast<std::size_t>(use)]; }
std::string_view wordOf(PageRule::Language language) { return kLanguages[static_cast<std::size_t>(language)]; }
std::optional<PageRule::Use> useOf(std::string_view word) { return valueOf<PageRule::Use>(kUses, word); }
std::optional<PageRule::Language> languageOf(std::string_view word) {
  return valueOf<PageRule::Language>(kLanguages, word);
}

std::string holeText(const Hole& hole) {
  std::string text(holeWord(hole.kind));
  const auto add = [&](std::string_view name, std::string_view value) {
    text += ' ';
    text += name;
    text += '=';
    text += encoded(value);
  };
  add("at", std::to_string(hole.begin));
  add("length", std::to_string(hole.length));
  add("least", std::to_string(hole.least));
  add("most", std::to_string(hole.most));
  for (const std::string& choice : hole.choices) {
    add("choice", choice);
  }
  for (const auto& [name, value] : {std::pair<std::string_view, const std::string&>("form", hole.form),
                                    {"before", hole.before},
                                    {"after", hole.after}}) {
    if (!value.empty()) {
      add(name, value);
    }
  }
  return text;
}

std::optional<Hole> holeOfText(std::string_view text) {
  const auto kind = holeClassOf(text.substr(0, text.find(' ')));
  if (!kind) {
    return std::nullopt;
  }
  Hole hole{.kind = *kind};
  for (std::size_t at = text.find(' '); at != std::string_view::npos; at = text.find(' ', at + 1)) {
    const std::string_view field = text.substr(at + 1, text.find(' ', at + 1) - at - 1);
    const std::size_t sign = field.find('=');
    if (sign == std::string_view::npos || !readField(hole, field.substr(0, sign), field.substr(sign + 1))) {
      return std::nullopt;
    }
  }
  return hole;
}

std::vector<RuleLine> linesOf(const RuleSet& set) {
  std::vector<RuleLine> lines;
  for (const PageRule& rule : set.rules) {
    lines.push_back({std::string(wordOf(rule.use)), std::string(wordOf(rule.language)) + " " + rule.rule});
  }
  for (const Hole& hole : set.holes) {
    lines.push_back({std::string(kHole), holeText(hole)});
  }
  return lines;
}

bool addLine(RuleSet& set, std::string_view kind, std::string_view rule) {
  if (kind == kHole) {
    auto hole = holeOfText(rule);
    if (hole) {
      set.holes.push_back(std::move(*hole));
    }
    return hole.has_value();
  }
  const auto use = useOf(kind);
  const std::size_t blank = rule.find(' ');
  const auto language = languageOf(rule.substr(0, blank));
  if (!use || !language || blank == std::string_view::npos) {
    return false;
  }
  set.rules.push_back({*use, *language, std::string(rule.substr(blank + 1))});
  return true;
}

bool addLine(RuleSet& set, std::string_view text) {
  for (const std::string_view kind : {kUses[0], kUses[1], kHole}) {
    if (text.size() > kind.size() && text.starts_with(kind) && text[kind.size()] == ' ') {
      return addLine(set, kind, text.substr(kind.size() + 1));
    }
  }
  return false;
}

}  // namespace tarnwick
