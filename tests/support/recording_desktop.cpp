// SPDX-License-Identifier: MIT
#include "support/recording_desktop.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarnwick::testing {

void RecordingPrompts::show(Box box) {
  shown_.push_back(box);
  if (whileOpen) {
    whileOpen(box);
  }
}

void RecordingPrompts::inform(const std::string& text, const std::string& title, PromptIcon icon) {
  show({Kind::inform, text, title, icon});
}

bool RecordingPrompts::confirm(const std::string& text, const std::string& title, PromptIcon icon) {
  show({Kind::confirm, text, title, icon});
  if (confirmAnswers_.empty()) {
    ADD_FAILURE() << "No answer is queued for the question: " << text;
    return false;
  }
  const bool yes = confirmAnswers_.front();
  confirmAnswers_.pop_front();
  return yes;
}

std::optional<std::string> RecordingPrompts::chooseFile(const std::string& folder, const std::string& filter) {
  show({Kind::chooseFile, filter, folder, PromptIcon::none});
  if (fileAnswers_.empty()) {
    ADD_FAILURE() << "No answer is queued for the file chooser of: " << filter;
    return std::nullopt;
  }
  std::optional<std::string> path = std::move(fileAnswers_.front());
  fileAnswers_.pop_front();
  return path;
}

std::vector<std::string> RecordingPrompts::texts() const {
  std::vector<std::string> all;
  all.reserve(shown_.size());
  for (const Box& box : shown_) {
    all.push_back(box.text);
  }
  return all;
}

long RecordingSound::play(const std::string& fileName) {
  played.push_back(fileName);
  return result;
}

bool RecordingPrograms::start(const std::vector<std::string>& arguments) {
  started.push_back(arguments);
  return result;
}

bool RecordingOpener::open(const std::string& pathOrAddress) {
  opened.push_back(pathOrAddress);
  return result;
}

}  // namespace tarnwick::testing
