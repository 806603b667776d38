// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "support/http_server.h"

namespace tarnwick::testing {

/// Takes the first whole request off the front of `buffer`; nothing while it is incomplete.
std::optional<HttpRequest> takeRequest(std::string& buffer);

/// An answer ready to be sent: the header block and the body as it goes over the wire.
struct WireAnswer {
  std::string head;
  std::string body;
  bool closeAfter = false;
};

WireAnswer wireAnswer(const HttpRequest& request, const HttpResponse& response);

/// `body` in the gzip or zlib format.
std::string compressed(const std::string& body, HttpCoding coding);

bool basicAnswered(const HttpRequest& request, const std::string& userName, const std::string& password);
bool digestAnswered(const HttpRequest& request, const std::string& userName, const std::string& password);
HttpResponse basicChallenge();
HttpResponse digestChallenge();

}  // namespace tarnwick::testing
