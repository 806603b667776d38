// SPDX-License-Identifier: MIT
#include "base/host_of_address.h"

#include <algorithm>
#include <cstddef>

#include "base/text.h"

namespace tarnwick {
namespace {

/// Where the name and the password of an address may begin, and where its host does.
struct Authority {
  std::size_t begin;
  std::size_t host;
  std::size_t end;
};

Authority authorityOf(std::string_view url) {
  constexpr std::string_view kBehindScheme = "://";
  const std::size_t scheme = url.find(kBehindScheme);
  const std::size_t begin = scheme == std::string_view::npos ? 0 : scheme + kBehindScheme.size();
  const std::size_t end = std::min(url.find_first_of("/?#\\", begin), url.size());
  const std::size_t credentials = url.substr(begin, end - begin).rfind('@');
  return {begin, credentials == std::string_view::npos ? begin : begin + credentials + 1, end};
}

}  // namespace

std::string hostOfAddress(std::string_view url) {
  url = trimmed(url);
  const Authority authority = authorityOf(url);
  const std::string_view host = url.substr(authority.host, authority.end - authority.host);
  // The colons of an address in brackets belong to it.
  const std::size_t port = host.find(':', host.starts_with('[') ? std::min(host.find(']'), host.size()) : 0);
  return lowerCase(std::string(host.substr(0, port)));
}

std::string withoutCredentials(std::string_view url) {
  const Authority authority = authorityOf(url);
  return std::string(url.substr(0, authority.begin)).append(url.substr(authority.host));
}

}  // namespace tarnwick
