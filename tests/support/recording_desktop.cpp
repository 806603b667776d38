// SPDX-License-Identifier: MIT
#include "support/recording_desktop.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarnwick::testing {

void RecordingPrompts::show(Box box, std::function<void()> answer) {
  shown_.push_back(box);
  if (whileOpen) {
    whileOpen(box);
  }
  open_.push_back(std::move(answer));
  if (!stayOpen) {
    closeBoxes();
  }
}

void RecordingPrompts::closeBoxes() {
  while (!open_.empty()) {
    const std::function<void()> answer = std::move(open_.front());
    open_.pop_front();
    answer();
  }
}

void RecordingPrompts::inform(const Message& message, std::function<void()> closed) {
  show({Kind::inform, message.text, message.title, message.icon}, [closed = std::move(closed)] {
    if (closed) {
      closed();
    }
  });
}

void RecordingPrompts::confirm(const Message& message, std::function<void(bool yes)> answered) {
  show({Kind::confirm, message.text, message.title, message.icon, message.destroys},
       [this, text = message.text, answered = std::move(answered)] {
         if (confirmAnswers_.empty()) {
           ADD_FAILURE() << "No answer is queued for the question: " << text;
           answered(false);
           return;
         }
         const bool yes = confirmAnswers_.front();
         confirmAnswers_.pop_front();
         answered(yes);
       });
}

void RecordingPrompts::chooseFile(const FileChoice& choice, std::function<void(const std::string& path)> chosen) {
  show({Kind::chooseFile, choice.filter, choice.folder, PromptIcon::none},
       [this, filter = choice.filter, chosen = std::move(chosen)] {
         if (fileAnswers_.empty()) {
           ADD_FAILURE() << "No answer is queued for the file chooser of: " << filter;
           return;
         }
         const std::optional<std::string> path = std::move(fileAnswers_.front());
         fileAnswers_.pop_front();
         if (path) {
           chosen(*path);
         }
       });
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

bool RecordingOpener::open(const std::string& target) {
  opened.push_back(target);
  return result;
}

}  // namespace tarnwick::testing
