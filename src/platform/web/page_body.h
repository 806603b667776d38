// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace tarnwick {

/// A page as it comes. What is longer than `kKeptInMemory` waits in a nameless file of the system's temporary folder,
/// so that many long pages at a time take no more memory than one; where that has no room, it waits in memory all the
/// same.
class PageBody {
 public:
  static constexpr std::size_t kKeptInMemory = std::size_t{4} << 20U;

  /// Raises std::bad_alloc.
  void append(std::string_view piece);
  std::size_t size() const { return filed_ + page_.size(); }
  bool empty() const { return size() == 0; }

  /// Hands over the page, and is empty. Raises std::bad_alloc, also where it cannot be read back.
  std::string take();

 private:
  struct Closer {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
  };

  bool file();

  // The end of the page; what stands before it is in the file.
  std::string page_;
  std::unique_ptr<std::FILE, Closer> file_;
  std::size_t filed_ = 0;
  bool mayFile_ = true;
};

}  // namespace tarnwick
