// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "page_rules/found_ranges.h"

// One function a language: what a rule finds in a page, in any order. Each raises RuleFault for a rule that it does not
// understand, also when the page is empty.
namespace tarnwick {

/// What is wrong with a rule, in the words of its language.
struct RuleFault {
  std::string what;
};

std::vector<ByteRange> foundByRegex(const std::string& rule, std::string_view page);
std::vector<ByteRange> foundByXPath(const std::string& rule, std::string_view page);
std::vector<ByteRange> foundByPointer(const std::string& rule, std::string_view page);
std::vector<ByteRange> foundByLines(const std::string& rule, std::string_view page);

/// A CSS selector as an XPath expression.
std::string xpathOfCss(std::string_view selector);

}  // namespace tarnwick
