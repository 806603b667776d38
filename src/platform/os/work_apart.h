// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tarnwick {

/// A piece of work in a process of its own, where the system can do that: it neither holds up this process nor ends it,
/// whatever a library makes of a damaged file. On other systems it is done at once, in this process.
///
///     WorkApart reading([&] { return packed(read(file)); });
///     while (!reading.take()) { ... }   // whenever `handle` can be read
///     const auto result = reading.result();
class WorkApart {
 public:
  /// The bytes of the result. Nothing of this process may be changed by it; it raises nothing.
  using Work = std::function<std::string()>;

  /// Whether this system has such processes: elsewhere who makes one stands still until the work is done.
  static bool isApart();
  /// For the work, within itself: from here on it takes at most `bytes` more of memory, and is refused what is beyond
  /// that (std::bad_alloc). Does nothing where the work is done in this process, or the system cannot tell.
  static void limitMemory(std::size_t bytes);
  /// For the work, within itself: it comes to a bad end after so much time of a processor, which is one second at
  /// least. Does nothing where the work is done in this process.
  static void limitTime(std::chrono::seconds time);

  /// Starts it. Raises std::system_error when the system has no room for a process.
  explicit WorkApart(const Work& work);
  /// Ends it where it is not done.
  ~WorkApart();
  WorkApart(const WorkApart&) = delete;
  WorkApart& operator=(const WorkApart&) = delete;

  /// What can be read when there is something to take; -1 where the work is done already.
  int handle() const;
  /// Takes what has come so far, without waiting. True once the work is done.
  bool take();
  /// Waits until it is done.
  void wait();
  /// What the work has returned; nothing when it came to a bad end. REQUIRES: it is done.
  std::optional<std::string> result();

 private:
  struct Process;
  std::unique_ptr<Process> process_;
};

}  // namespace tarnwick
