// SPDX-License-Identifier: MIT
#pragma once

#include "platform/event_pump.h"
#include "platform/prompts.h"

namespace tarnwick {

/// Boxes on the desktop. Texts are plain and can be copied. A box with an owner is modal to that window alone; the main
/// window, which can always be closed, is never an owner. While the program is being closed no box is shown.
class MessageBoxPrompts final : public Prompts {
 public:
  /// `pump` outlives every box.
  explicit MessageBoxPrompts(const EventPump& pump) : pump_(pump) {}

  void inform(const Message& message, std::function<void()> closed) override;
  void confirm(const Message& message, std::function<void(bool yes)> answered) override;
  void chooseFile(const FileChoice& choice, std::function<void(const std::string& path)> chosen) override;

 private:
  const EventPump& pump_;
};

}  // namespace tarnwick
