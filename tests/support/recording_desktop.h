// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop.h"
#include "platform/prompts.h"

namespace tarnwick::testing {

/// Message boxes that nobody has to click: they are recorded, and answered from a queue.
class RecordingPrompts final : public Prompts {
 public:
  enum class Kind { inform, confirm, chooseFile };

  struct Box {
    Kind kind = Kind::inform;
    std::string text;   ///< of a file chooser: its filter
    std::string title;  ///< of a file chooser: its folder
    PromptIcon icon = PromptIcon::none;
    bool destroys = false;
  };

  void inform(const Message& message, std::function<void()> closed = {}) override;
  /// Fails the test, and answers No, when no answer is queued.
  void confirm(const Message& message, std::function<void(bool yes)> answered) override;
  /// Fails the test, and cancels, when no answer is queued.
  void chooseFile(const FileChoice& choice, std::function<void(const std::string& path)> chosen) override;

  /// Queues the answer of the next box of its kind that has none yet; a file of nothing cancels.
  void answerConfirm(bool yes) { confirmAnswers_.push_back(yes); }
  void answerFile(std::optional<std::string> path) { fileAnswers_.push_back(std::move(path)); }

  /// Every box so far, the oldest first.
  const std::vector<Box>& shown() const { return shown_; }
  /// The boxes' texts alone.
  std::vector<std::string> texts() const;
  /// How many queued answers no box has taken.
  std::size_t unusedAnswers() const { return confirmAnswers_.size() + fileAnswers_.size(); }
  void clear() { shown_.clear(); }

  /// Runs while each box is open: what happens behind it. Empty for nothing.
  std::function<void(const Box&)> whileOpen;
  /// While set, boxes stay open until `closeBoxes` answers them in their order.
  bool stayOpen = false;
  void closeBoxes();

 private:
  void show(Box box, std::function<void()> answer);

  std::vector<Box> shown_;
  std::deque<std::function<void()>> open_;
  std::deque<bool> confirmAnswers_;
  std::deque<std::optional<std::string>> fileAnswers_;
};

/// A sound device that plays nothing.
class RecordingSound final : public SoundPlayer {
 public:
  long play(const std::string& fileName) override;

  std::vector<std::string> played;
  /// What `play` returns.
  long result = 1;
};

/// Starts no program.
class RecordingPrograms final : public ProgramStarter {
 public:
  bool start(const std::vector<std::string>& arguments) override;

  std::vector<std::vector<std::string>> started;
  /// What `start` returns.
  bool result = true;
};

/// Opens nothing.
class RecordingOpener final : public DesktopOpener {
 public:
  bool openFile(const std::string& path) override { return open(path); }
  bool openAddress(const std::string& url) override { return open(url); }

  std::vector<std::string> opened;
  /// What is returned.
  bool result = true;

 private:
  bool open(const std::string& target);
};

}  // namespace tarnwick::testing
