// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace tarnwick {

/// What the user is told when memory was refused and nothing more is known.
inline constexpr const char* kNotEnoughMemory = "There is not enough memory for this.";

/// A failed database operation: opening the file, running a statement, reading a field.
/// `what()` is fit to be shown to the user: it names the cause and, where there is one, the remedy.
class DataAccessError : public std::runtime_error {
 public:
  /// Faults that a caller can do something about.
  enum class Kind {
    other,
    noRoom,    ///< the disk is full, or what the user may take of it
    noMemory,  ///< memory was refused
    damaged,   ///< a good copy in the file's place helps
    inUse,     ///< another program has locked the database for now
  };

  /// `cause` is the readable reason; `statement` the SQL text that failed (may be empty; long ones are shortened).
  DataAccessError(const std::string& cause, const std::string& statement, Kind kind = Kind::other);

  Kind kind() const noexcept { return kind_; }
  bool forWantOfRoom() const noexcept { return kind_ == Kind::noRoom; }
  bool forWantOfMemory() const noexcept { return kind_ == Kind::noMemory; }
  bool inUse() const noexcept { return kind_ == Kind::inUse; }

  /// The reason alone, without the statement: the same text for the same fault whatever ran into it.
  const std::string& cause() const noexcept { return cause_; }

  /// The failed statement, shortened to a length that fits a message box; empty when none was running.
  const std::string& statement() const noexcept { return statement_; }

 private:
  std::string cause_;
  std::string statement_;
  Kind kind_;
};

/// A failed file operation; `what()` names the path and the cause.
class FileError : public std::runtime_error {
 public:
  FileError(const std::string& path, const std::string& cause);

  /// The path of the file that could not be read or written.
  const std::string& path() const noexcept { return path_; }
  /// The reason alone.
  const std::string& cause() const noexcept { return cause_; }

 private:
  std::string path_;
  std::string cause_;
};

/// A number that does not fit the 16 or 32 bits that its place allows. Nothing has been written.
class OverflowError : public std::overflow_error {
 public:
  using std::overflow_error::overflow_error;
};

}  // namespace tarnwick
