// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <cstddef>
#include <exception>
#include <tuple>

namespace tarnwick {

/// `function` as libcurl may call it: no exception crosses the library's C frames, which would leave it in the middle
/// of what it was doing, and each transfer after it, too. Where one is raised the `Owner` behind the argument number
/// `kSelf` is told by its `ranOutOfMemory`, and libcurl is given `kRefusal`. Every callback is set through this; a
/// house rule looks after it.
template <class Owner, auto kFunction, std::size_t kSelf, auto kRefusal>
struct CurlCallback;

template <class Owner, typename Result, typename... Arguments, Result (*kFunction)(Arguments...), std::size_t kSelf,
          auto kRefusal>
struct CurlCallback<Owner, kFunction, kSelf, kRefusal> {
  static Result call(Arguments... arguments) noexcept {
    try {
      return kFunction(arguments...);
    } catch (const std::exception&) {
      static_cast<Owner*>(std::get<kSelf>(std::tie(arguments...)))->ranOutOfMemory();
      return static_cast<Result>(kRefusal);
    }
  }
};

template <class Owner, auto kFunction, std::size_t kSelf, auto kRefusal>
inline constexpr auto kGuarded = &CurlCallback<Owner, kFunction, kSelf, kRefusal>::call;

}  // namespace tarnwick
