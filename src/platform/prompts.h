// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// The product's name: the title of the window and of every box that has no title of its own.
inline constexpr const char* kProductName = "Tarnwick";

/// The sign shown in a message box.
enum class PromptIcon { none, information, question, exclamation, error };

/// Every box that waits for the user goes through here, so that a test can queue the answer and see the question.
/// All texts are UTF-8.
class Prompts {
 public:
  virtual ~Prompts() = default;

  /// Shows `text` with an OK button and returns when the user has closed the box.
  virtual void inform(const std::string& text, const std::string& title = kProductName,
                      PromptIcon icon = PromptIcon::none) = 0;

  /// Asks `text` with Yes and No buttons; true on Yes only.
  virtual bool confirm(const std::string& text, const std::string& title = kProductName,
                       PromptIcon icon = PromptIcon::question) = 0;

  /// Lets the user choose an existing file, starting in `folder`. `filter` has the form "Name (*.a;*.b)|*.a;*.b".
  /// The full path, or nothing when the user cancelled.
  virtual std::optional<std::string> chooseFile(const std::string& folder, const std::string& filter) = 0;
};

}  // namespace tarnwick
