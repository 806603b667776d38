// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <chrono>
#include <optional>

#include "platform/check_timings.h"

namespace tarnwick {

/// Takes apart how long a request took, redirects included. libcurl adds up how far each of its requests had come when
/// a part was done; what lies between two parts can only be told of each by itself.
class RequestParts {
 public:
  /// What has been added since the last call belongs to one request. To be called once each has its connection, and at
  /// the end.
  void note(CURL* easy);
  /// All but the whole.
  CheckTimings timings(CURL* easy) const;

 private:
  using Span = std::chrono::microseconds;

  struct Sums {
    Span lookUp{};
    Span connect{};
    Span tls{};
  };

  Sums noted_;
  std::optional<Span> lookUp_;
  std::optional<Span> connect_;
  std::optional<Span> tls_;
};

}  // namespace tarnwick
