// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "holes/hole.h"

namespace tarnwick {

/// A rule by hand: what of a page is compared at all.
struct PageRule {
  enum class Use {
    compareOnly,  ///< what it finds, and nothing else
    leaveOut,     ///< all but what it finds
  };
  enum class Language {
    regex,  ///< a regular expression of RE2; its first group, where it has one, is what it finds
    css,    ///< a selector; finds whole elements
    xpath,  ///< an expression of XPath 1.0 that selects elements
    json,   ///< a pointer into JSON (RFC 6901)
    lines,  ///< numbers of lines, from 1 on: "3", "3-7", "12-"
  };

  Use use = Use::leaveOut;
  Language language = Language::regex;
  std::string rule;

  bool operator==(const PageRule&) const = default;
};

/// "compare only", "leave out"; "regex", "css", "xpath", "json", "lines".
std::string_view wordOf(PageRule::Use use);
std::string_view wordOf(PageRule::Language language);
std::optional<PageRule::Use> useOf(std::string_view word);
std::optional<PageRule::Language> languageOf(std::string_view word);

/// All that of a site's page does not count. Empty, its pages are compared byte for byte.
struct RuleSet {
  std::vector<PageRule> rules;
  Holes holes;

  bool empty() const { return rules.empty() && holes.empty(); }
  bool operator==(const RuleSet&) const = default;
};

/// A rule or a hole, of what kind and what it says: "leave out" and "css #clock", "hole" and `holeText`.
struct RuleLine {
  std::string kind;
  std::string rule;
};
std::vector<RuleLine> linesOf(const RuleSet& set);
/// Adds what the line says; false, with nothing added, for what is no such line.
bool addLine(RuleSet& set, std::string_view kind, std::string_view rule);
/// The same with both in one text, a blank between them.
bool addLine(RuleSet& set, std::string_view text);

/// A hole in one line of text, as it is stored: its class and what it has, blanks, control characters and bytes outside
/// ASCII in percent codes.
std::string holeText(const Hole& hole);
/// Nothing for what is no such text.
std::optional<Hole> holeOfText(std::string_view text);

}  // namespace tarnwick
