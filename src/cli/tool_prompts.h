#pragma once

#include "cli/console.h"
#include "platform/prompts.h"

namespace tarnwick {

/// The boxes of the program in a terminal: a line on standard error each. What would have to be answered is answered
/// No.
class ToolPrompts final : public Prompts {
 public:
  explicit ToolPrompts(Console& console) : console_(console) {}

  void inform(const std::string& text, const std::string&, PromptIcon) override { console_.complain(text); }
  bool confirm(const std::string& text, const std::string&, PromptIcon) override {
    console_.complain(text + " No");
    return false;
  }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }

 private:
  Console& console_;
};

}  // namespace tarnwick
