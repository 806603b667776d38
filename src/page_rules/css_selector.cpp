// SPDX-License-Identifier: MIT
// Selectors as far as rules need them (CSS Selectors Level 3): names, *, #id, .class, attributes with all their
// comparisons, :first-child, :last-child, :nth-child(n), :not(...), the four ways to combine them, and lists.
#include <charconv>
#include <cstdint>
#include <string>

#include "base/text.h"
#include "page_rules/languages.h"

namespace tarnwick {
namespace {

class Selector {
 public:
  explicit Selector(std::string_view text) : text_(text) {}

  std::string list() {
    std::string all = complexSelector();
    while (skipBlanks(), take(',')) {
      all += " | " + complexSelector();
    }
    if (at_ < text_.size()) {
      fail();
    }
    return all;
  }

 private:
  [[noreturn]] void fail() const {
    throw RuleFault{"It is no selector from \"" + std::string(text_.substr(std::min(at_, text_.size()))) +
                    "\" on. Write one such as div.news > p or a[href^='/ad']."};
  }

  bool skipBlanks() {
    const std::size_t begin = at_;
    while (at_ < text_.size() && kWhiteSpace.find(text_[at_]) != std::string_view::npos) {
      ++at_;
    }
    return at_ > begin;
  }
  char peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  bool take(char c) {
    if (peek() != c || at_ >= text_.size()) {
      return false;
    }
    ++at_;
    return true;
  }

  static bool isNamePart(char c) {
    return isLetter(c) || isDigit(c) || c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
  }
  std::string name() {
    std::string found;
    while (isNamePart(peek()) || (peek() == '\\' && at_ + 1 < text_.size())) {
      at_ += peek() == '\\' ? 1U : 0U;
      found += text_[at_++];
    }
    if (found.empty()) {
      fail();
    }
    return found;
  }

  // An XPath text has no way to write its own quotation mark.
  static std::string quoted(const std::string& text) {
    if (text.find('\'') == std::string::npos) {
      return "'" + text + "'";
    }
    if (text.find('"') == std::string::npos) {
      return "\"" + text + "\"";
    }
    std::string parts;
    for (const char c : text) {
      parts += (parts.empty() ? "" : ",") + (c == '\'' ? std::string("\"'\"") : "'" + std::string(1, c) + "'");
    }
    return "concat(" + parts + ",'')";
  }

  std::string complexSelector() {
    skipBlanks();
    std::string path = "//" + compound();
    for (;;) {
      const bool hadBlanks = skipBlanks();
      const char c = peek();
      if (c == ',' || at_ >= text_.size()) {
        return path;
      }
      if (c == '>' || c == '+' || c == '~') {
        ++at_;
        skipBlanks();
        const std::string next = compound();
        path += c == '>'   ? "/" + next
                : c == '~' ? "/following-sibling::" + next
                           : "/following-sibling::*[1]/self::" + next;
      } else if (hadBlanks) {
        path += "//" + compound();
      } else {
        fail();
      }
    }
  }

  std::string compound() {
    std::string path = "*";
    const std::size_t begin = at_;
    if (isNamePart(peek())) {
      path = lowerCase(name());
    } else {
      take('*');
    }
    path += conditions();
    if (at_ == begin) {
      fail();
    }
    return path;
  }

  std::string conditions() {
    std::string all;
    for (;;) {
      if (take('#')) {
        all += "[@id=" + quoted(name()) + "]";
      } else if (take('.')) {
        all += "[" + hasWord("@class", name()) + "]";
      } else if (take('[')) {
        all += "[" + attribute() + "]";
      } else if (take(':')) {
        all += "[" + pseudoClass() + "]";
      } else {
        return all;
      }
    }
  }

  static std::string hasWord(const std::string& what, const std::string& word) {
    return "contains(concat(' ',normalize-space(" + what + "),' ')," + quoted(" " + word + " ") + ")";
  }

  std::string attribute() {
    skipBlanks();
    std::string what = "@" + lowerCase(name());
    skipBlanks();
    if (take(']')) {
      return what;
    }
    const char kind = peek();
    if (kind != '=') {
      ++at_;
    }
    if (!take('=')) {
      fail();
    }
    skipBlanks();
    const std::string value = attributeValue();
    skipBlanks();
    if (!take(']')) {
      fail();
    }
    return compared(what, kind, value);
  }

  std::string attributeValue() {
    const char mark = peek();
    if (mark != '"' && mark != '\'') {
      return name();
    }
    const std::size_t end = text_.find(mark, at_ + 1);
    if (end == std::string_view::npos) {
      fail();
    }
    std::string value(text_.substr(at_ + 1, end - at_ - 1));
    at_ = end + 1;
    return value;
  }

  std::string compared(const std::string& what, char kind, const std::string& value) const {
    const std::string text = quoted(value);
    switch (kind) {
      case '=':
        return what + "=" + text;
      case '^':
        return "starts-with(" + what + "," + text + ")";
      case '*':
        return "contains(" + what + "," + text + ")";
      case '~':
        return hasWord(what, value);
      case '|':
        return what + "=" + text + " or starts-with(" + what + "," + quoted(value + "-") + ")";
      case '$':
        return "substring(" + what + ",string-length(" + what + ")-" +
               std::to_string(static_cast<std::int64_t>(value.size()) - 1) + ")=" + text;
      default:
        fail();
    }
  }

  std::string pseudoClass() {
    const std::string which = lowerCase(name());
    if (which == "first-child") {
      return "not(preceding-sibling::*)";
    }
    if (which == "last-child") {
      return "not(following-sibling::*)";
    }
    if (!take('(')) {
      fail();
    }
    skipBlanks();
    std::string condition;
    if (which == "nth-child") {
      const std::string digits = name();
      const char* const last = digits.data() + digits.size();
      std::uint32_t number = 0;
      const auto [end, error] = std::from_chars(digits.data(), last, number);
      if (error != std::errc() || end != last || number == 0) {
        fail();
      }
      condition = "count(preceding-sibling::*)=" + std::to_string(number - 1);
    } else if (which == "not" && nested_ < kMostNested) {
      ++nested_;
      condition = "not(self::" + compound() + ")";
      --nested_;
    } else {
      fail();
    }
    skipBlanks();
    if (!take(')')) {
      fail();
    }
    return condition;
  }

  /// Reading goes as deep as the selector does.
  static constexpr int kMostNested = 20;

  std::string_view text_;
  std::size_t at_ = 0;
  int nested_ = 0;
};

}  // namespace

std::string xpathOfCss(std::string_view selector) { return Selector(trimmed(selector)).list(); }

}  // namespace tarnwick
