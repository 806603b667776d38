// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "exchange/foreign/any_list.h"
#include "platform/os/work_apart.h"

namespace tarnwick {

/// A file of any kind, read.
struct ReadList {
  /// The word for its kind; empty when that does not show.
  std::string word;
  AnyList list;
  /// What is wrong with it; then nothing of it is to be used.
  ListFaults faults;
};

/// Reads a file in a process of its own, so that neither its size nor its damages are this one's.
class ListReading {
 public:
  /// The bytes of the file; what it raises is raised by `finish`.
  using Source = std::function<std::string()>;

  /// No list needs more memory to be read, beside what its size says, whatever its kind: a file that does is none, or
  /// is made to harm.
  static constexpr std::size_t kMemory = std::size_t{1} << 30U;

  /// Begins to read the file of that name, whose kind is told by `word`, or shows when that is empty, with at most
  /// `memory` and a little for each of its bytes. `fields` outlives this object.
  ListReading(const std::string& name, const std::string& word, const Source& source, const Fields& fields,
              std::size_t memory = kMemory);

  /// As those of `WorkApart`.
  int handle() const { return work_.handle(); }
  bool take() { return work_.take(); }

  /// Waits for the end, and what was read. Raises std::runtime_error for a file that cannot be opened.
  ReadList finish();

 private:
  WorkApart work_;
};

}  // namespace tarnwick
