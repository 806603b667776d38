// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>

#include "cli/terminal/console.h"
#include "platform/prompts.h"

namespace tarnwick {

/// The boxes of the program in a terminal: a line on standard error each. What would have to be answered is answered
/// No.
class ToolPrompts final : public Prompts {
 public:
  explicit ToolPrompts(Console& console) : console_(console) {}

  void inform(const std::string& text, const std::string&, PromptIcon) override { console_.complain(inOneLine(text)); }
  bool confirm(const std::string& text, const std::string&, PromptIcon) override {
    console_.complain(inOneLine(text) + " No");
    return false;
  }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }

 private:
  // A box breaks its text into lines as it likes.
  static std::string inOneLine(std::string text) {
    for (std::size_t at = 0; (at = text.find_first_of("\r\n", at)) != std::string::npos;) {
      const std::size_t end = std::min(text.find_first_not_of("\r\n", at), text.size());
      text.replace(at, end - at, end < text.size() ? " " : "");
    }
    return text;
  }

  Console& console_;
};

}  // namespace tarnwick
