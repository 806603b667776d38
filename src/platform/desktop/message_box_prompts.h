// SPDX-License-Identifier: MIT
#pragma once

#include "platform/event_pump.h"
#include "platform/prompts.h"

namespace tarnwick {

/// Boxes on the desktop, in front of the active window. Texts are plain and can be copied. While the program is being
/// closed no box is shown: it is answered as if the user had cancelled it.
class MessageBoxPrompts final : public Prompts {
 public:
  explicit MessageBoxPrompts(const EventPump& pump) : pump_(pump) {}

  void inform(const std::string& text, const std::string& title, PromptIcon icon) override;
  bool confirm(const std::string& text, const std::string& title, PromptIcon icon) override;
  std::optional<std::string> chooseFile(const std::string& folder, const std::string& filter) override;

 private:
  const EventPump& pump_;
};

}  // namespace tarnwick
