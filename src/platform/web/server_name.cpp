// SPDX-License-Identifier: MIT
#include "platform/web/server_name.h"

#include <algorithm>

#include "platform/address.h"

namespace tarnwick {

std::string quotable(std::string_view text) {
  constexpr std::size_t kLongest = 200;
  std::string result(text.substr(0, kLongest));
  std::ranges::replace_if(
      result, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
  return text.size() > kLongest ? result + "..." : result;
}

ServerName::ServerName(const std::string& url) {
  if (const auto address = parseAddress(url)) {
    scheme = address->scheme;
    host = quotable(address->host);
    place = address->port.empty() ? host : host + " port " + address->port;
  } else {
    host = place = "the server";
  }
}

}  // namespace tarnwick
