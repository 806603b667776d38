// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace tarnwick {

/// An encoded text that is damaged or is no encoded text at all. `what()` names the file, the line and the cause.
class DecodeError : public std::runtime_error {
 public:
  /// `file` is empty for a text in memory; `line` counts from 1 and is 0 when no single line is at fault.
  DecodeError(const std::string& file, std::size_t line, const std::string& cause)
      : std::runtime_error(place(file, line) + cause), file_(file), line_(line) {}

  const std::string& file() const noexcept { return file_; }
  std::size_t line() const noexcept { return line_; }

 private:
  static std::string place(const std::string& file, std::size_t line) {
    if (line == 0) {
      return file.empty() ? "" : file + ": ";
    }
    return (file.empty() ? "Line " : file + ", line ") + std::to_string(line) + ": ";
  }

  std::string file_;
  std::size_t line_;
};

}  // namespace tarnwick
