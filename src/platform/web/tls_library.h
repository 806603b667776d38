// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <string_view>

namespace tarnwick {

/// Whether the connections of libcurl are those of OpenSSL itself: others have the same names for something else.
inline bool usesOpenSsl() {
  static const char* const library = curl_version_info(CURLVERSION_NOW)->ssl_version;
  return library != nullptr && std::string_view(library).starts_with("OpenSSL/");
}

}  // namespace tarnwick
