// SPDX-License-Identifier: MIT
#pragma once

#include <coroutine>
#include <exception>
#include <string>
#include <utility>

namespace tarnwick {

/// A text that takes a while to make, so that it is made part by part: a coroutine that awaits `letOthersGoOn` every
/// few milliseconds, and in between holds no recordset, since the list may be changed there. What it is given by
/// reference outlives it.
class TextInParts {
 public:
  // The names are those of the language.
  struct promise_type {
    std::string text{};
    std::exception_ptr failure{};

    TextInParts get_return_object() { return TextInParts(Handle::from_promise(*this)); }
    static std::suspend_always initial_suspend() noexcept { return {}; }
    static std::suspend_always final_suspend() noexcept { return {}; }
    void return_value(std::string whole) { text = std::move(whole); }
    void unhandled_exception() { failure = std::current_exception(); }
  };

  TextInParts(TextInParts&& other) noexcept : work_(std::exchange(other.work_, {})) {}
  TextInParts& operator=(TextInParts&& other) noexcept {
    std::swap(work_, other.work_);
    return *this;
  }
  ~TextInParts() {
    if (work_) {
      work_.destroy();
    }
  }

  /// Makes the next part; false when there is none left. Raises what went wrong; nothing comes after that.
  bool goOn() {
    if (!work_.done()) {
      work_.resume();
    }
    if (work_.promise().failure) {
      std::rethrow_exception(work_.promise().failure);
    }
    return !work_.done();
  }

  /// The whole of it, at once.
  std::string whole() && {
    while (goOn()) {
    }
    return std::move(work_.promise().text);
  }

 private:
  using Handle = std::coroutine_handle<promise_type>;

  explicit TextInParts(Handle work) : work_(work) {}

  Handle work_;
};

inline constexpr std::suspend_always letOthersGoOn{};

}  // namespace tarnwick
