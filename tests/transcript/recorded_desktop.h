// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/prompts.h"
#include "transcript/transcript.h"

namespace tarnwick::testing {

/// A desktop that writes down the boxes, sounds, programs and files it is asked for. Every box is closed at once, and
/// what is asked is refused.
class RecordedDesktop final : public Prompts, public SoundPlayer, public ProgramStarter, public DesktopOpener {
 public:
  explicit RecordedDesktop(Transcript& transcript) : transcript_(transcript) {}

  void inform(const Message& message, std::function<void()> closed = {}) override {
    write(message);
    if (closed) {
      closed();
    }
  }
  void confirm(const Message& message, std::function<void(bool yes)> answered) override {
    write(message);
    answered(false);
  }
  void chooseFile(const FileChoice& choice, std::function<void(const std::string& path)>) override {
    write({.text = choice.filter, .title = choice.folder});
  }

  long play(const std::string& fileName) override {
    transcript_.add("sound", fileName);
    return 1;
  }
  bool start(const std::vector<std::string>& arguments) override {
    std::string line;
    for (const std::string& argument : arguments) {
      line += "[" + argument + "]";
    }
    transcript_.add("program", line);
    return true;
  }
  bool openFile(const std::string& path) override {
    transcript_.add("opened", path);
    return true;
  }
  bool openAddress(const std::string& url) override { return openFile(url); }

 private:
  void write(const Message& box) {
    transcript_.add("box", box.title + ", sign " + std::to_string(static_cast<int>(box.icon)) + ": " + box.text);
  }

  Transcript& transcript_;
};

}  // namespace tarnwick::testing
