// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick::testing {

/// What has happened, in order, as lines of plain ASCII that can be compared and read as a difference. An entry is a
/// kind and its bytes: what is not a printable character stands as an escape, and each line feed ends a line.
class Transcript {
 public:
  /// A scene begins.
  void scene(std::string_view title);
  void add(std::string_view kind, std::string_view bytes);
  /// An entry that comes every second. Of many in a row only the first and the last ones are written, and a checksum
  /// over all of them.
  void addTick(std::string_view kind, std::string_view bytes);

  /// Writes `name` wherever `text` stands from now on: for what is another on every day. A text that goes on with a
  /// digit is a different number, and stays.
  void rename(std::string text, std::string name);

  std::string text() const { return text_ + foldedTicks(); }

 private:
  std::string entry(std::string_view kind, std::string_view bytes) const;
  std::string renamed(std::string_view bytes) const;
  std::string foldedTicks() const;

  std::string text_;
  std::vector<std::string> ticks_;
  std::vector<std::pair<std::string, std::string>> names_;
};

}  // namespace tarnwick::testing
