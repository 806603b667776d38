// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <ostream>
#include <string>
#include <string_view>

#include "simulation/agenda.h"

namespace tarnwick::simulation {

/// What happens, line by line: a digest of all of it, and the last lines for whoever has to understand a failure. What
/// tells of one line is its time, its kind and its text.
class Journal {
 public:
  explicit Journal(const Agenda& agenda, std::ostream* copy = nullptr) : agenda_(agenda), copy_(copy) {}

  void add(std::string_view kind, std::string_view text);
  /// The same for what happens every second: it counts for the digest alone.
  void addTick(std::string_view kind, std::string_view text) {
    if (muted_) {
      return;
    }
    mix(static_cast<std::uint64_t>(agenda_.now().count()));
    mix(kind);
    mix(text);
  }
  /// Writes `name` wherever `text` stands: for what is another in every run.
  void rename(std::string text, std::string name) {
    text_ = std::move(text);
    name_ = std::move(name);
  }

  /// What a dead process still says is not heard.
  void mute() { muted_ = true; }
  void unmute() { muted_ = false; }

  std::uint64_t digest() const { return digest_; }
  std::uint64_t lines() const { return lines_; }
  std::string lastLines() const;

 private:
  void mix(std::uint64_t word) { digest_ = (digest_ ^ word) * 0x9e3779b97f4a7c15U, digest_ ^= digest_ >> 29U; }
  void mix(std::string_view bytes);

  static constexpr std::size_t kKept = 40;
  const Agenda& agenda_;
  std::ostream* copy_;
  std::uint64_t digest_ = 0;
  std::uint64_t lines_ = 0;
  std::deque<std::string> last_;
  bool muted_ = false;
  std::string text_;
  std::string name_;
};

}  // namespace tarnwick::simulation
