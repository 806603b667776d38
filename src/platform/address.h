// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// The address of a page, taken apart.
struct Address {
  /// The whole address as it is fetched, percent-encoded where it must be.
  std::string url;
  /// In lower case.
  std::string scheme;
  std::string host;
  /// In decimal; the scheme's own port when the address gives none, empty when the scheme has none.
  std::string port;
  /// What the address itself holds before its host, decoded; empty when it holds none.
  std::string userName;
  std::string password;
  /// `url` without them.
  std::string bareUrl;
};

/// The address that a user means by `text`: blanks around it do not count, blanks inside it are percent-encoded, and
/// one without a scheme is http. Nothing when it is not a valid address (RFC 3986), its host begins with a dash, is the
/// path of a file or a word with ":/" behind it, or holds a control character, one of ftp also when it is
/// percent-encoded. The front ends and the fetch agree on it: what is nothing here is neither stored by the terminal
/// tool nor opened by the window.
std::optional<Address> parseAddress(const std::string& text);

/// The schemes that are fetched, separated by commas.
inline constexpr const char* kFetchedSchemes = "http,https,ftp,ftps";

/// True for a scheme (in lower case) that is fetched.
bool isFetchedScheme(const std::string& scheme);

}  // namespace tarnwick
