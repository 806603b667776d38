// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

class QWidget;

namespace tarnwick {

/// The product's name: the title of the window and of every box that has no title of its own.
inline constexpr const char* kProductName = "Tarnwick";

/// The sign shown in a message box.
enum class PromptIcon { none, information, question, exclamation, error };

/// What a box says. All texts are UTF-8.
struct Message {
  std::string text;
  std::string title = kProductName;
  PromptIcon icon = PromptIcon::none;
  /// Of a question: something is lost by Yes, so that Enter alone answers No.
  bool destroys = false;
  /// The window that takes no input until the box is closed, and that the box goes with; named here only for the front
  /// end that has windows. Null: the box stands before the main window, and nothing waits for it.
  QWidget* owner = nullptr;
};

/// A choice of a file, one that is there unless it says otherwise.
struct FileChoice {
  /// Where it begins.
  std::string folder;
  /// The kinds of files that are offered: "Name (*.a;*.b)|*.a;*.b".
  std::string filter;
  /// As that of a message.
  QWidget* owner = nullptr;
  /// It is to be written: any name is taken, also that of a file that is there; whether it is to be replaced is asked
  /// by who writes it.
  bool isNew = false;
  /// A folder instead; the filter says nothing then.
  bool isFolder = false;
};

/// Every box that waits for the user goes through here, so that a test can queue the answer and see the question.
///
/// Nothing waits for an answer: what is to follow is handed in and called when the user has given it, which may be
/// before the call returns (a terminal) or long after it (a window), with anything having happened in between. It is
/// not called any more when the program is being closed, or when the box has gone with its window.
class Prompts {
 public:
  virtual ~Prompts() = default;

  /// Shows `message` with an OK button; `closed`, if given, follows.
  virtual void inform(const Message& message, std::function<void()> closed = {}) = 0;

  /// Asks `message` with Yes and No buttons; true on Yes only.
  virtual void confirm(const Message& message, std::function<void(bool yes)> answered) = 0;

  /// Lets the user choose a file. `chosen` gets its full path, and is not called when the user cancels.
  virtual void chooseFile(const FileChoice& choice, std::function<void(const std::string& path)> chosen) = 0;
};

}  // namespace tarnwick
