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

  void inform(const std::string& text, const std::string& title, PromptIcon icon) override {
    transcript_.add("box", title + ", sign " + std::to_string(static_cast<int>(icon)) + ": " + text);
  }
  bool confirm(const std::string& text, const std::string& title, PromptIcon icon) override {
    inform(text, title, icon);
    return false;
  }
  std::optional<std::string> chooseFile(const std::string& folder, const std::string& filter) override {
    inform(filter, folder, PromptIcon::none);
    return std::nullopt;
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
  bool open(const std::string& pathOrAddress) override {
    transcript_.add("opened", pathOrAddress);
    return true;
  }

 private:
  Transcript& transcript_;
};

}  // namespace tarnwick::testing
