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

  void inform(const Message& message, std::function<void()> closed) override {
    console_.complain(inOneLine(message.text));
    if (closed) {
      closed();
    }
  }
  void confirm(const Message& message, std::function<void(bool yes)> answered) override {
    console_.complain(inOneLine(message.text) + " No");
    answered(false);
  }
  void chooseFile(const FileChoice&, std::function<void(const std::string& path)>) override {}

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
