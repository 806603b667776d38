// SPDX-License-Identifier: MIT
#include "platform/address.h"

#include <curl/curl.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

#include "base/text.h"

namespace tarnwick {
namespace {

struct UrlCleanup {
  void operator()(CURLU* url) const { curl_url_cleanup(url); }
};

// The part as text; empty when the address has none.
std::string part(CURLU* url, CURLUPart which, unsigned flags = 0) {
  char* text = nullptr;
  if (curl_url_get(url, which, &text, flags) != CURLUE_OK) {
    return {};
  }
  const std::unique_ptr<char, decltype(&curl_free)> owner(text, &curl_free);
  return text;
}

// The part as it was before it was percent-encoded.
std::string decodedPart(CURLU* url, CURLUPart which) {
  const std::string encoded = part(url, which);
  int length = 0;
  const std::unique_ptr<char, decltype(&curl_free)> text(
      curl_easy_unescape(nullptr, encoded.c_str(), static_cast<int>(encoded.size()), &length), &curl_free);
  return text ? std::string(text.get(), static_cast<std::size_t>(length)) : std::string();
}

// Takes name and password out of it.
std::string barePart(CURLU* url) {
  curl_url_set(url, CURLUPART_USER, nullptr, 0);
  curl_url_set(url, CURLUPART_PASSWORD, nullptr, 0);
  return part(url, CURLUPART_URL);
}

bool hasScheme(std::string_view text) {
  const auto end = text.find("://");
  return end != std::string_view::npos && end > 0 && std::ranges::all_of(text.substr(0, end), [](char c) {
           return isLetter(c) || isDigit(c) || c == '+' || c == '-' || c == '.';
         });
}

/// The path of a file, or an address of a scheme that has no host, in one of the forms that would be taken for a host
/// and a path. A host and a port are none: no slash follows the colon.
bool isPathOrWord(std::string_view text) {
  if (text.starts_with('/')) {
    return !text.starts_with("//");
  }
  const auto slash = text.find('/');
  return slash != std::string_view::npos && slash > 1 && text[slash - 1] == ':' &&
         !text.substr(slash).starts_with("//") &&
         text.substr(0, slash - 1).find_first_of(".:[]@") == std::string_view::npos;
}

std::string completed(std::string_view text) {
  std::string result;
  if (text.starts_with("//")) {
    result = "http:";
  } else if (!hasScheme(text)) {
    result = "http://";
  }
  for (const char c : text) {
    if (c == ' ') {
      result += "%20";
    } else {
      result += c;
    }
  }
  return result;
}

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

// What a file transfer's command line would end with: it is sent as what it stands for.
bool hasEncodedControl(std::string_view url) {
  for (auto at = url.find('%'); at != std::string_view::npos; at = url.find('%', at + 1)) {
    const std::string_view digits = url.substr(at + 1, 2);
    if (digits.size() == 2 && (digits[0] == '0' || digits[0] == '1' || digits == "7F" || digits == "7f")) {
      return true;
    }
  }
  return false;
}

/// `text` has a scheme.
std::optional<Address> takenApart(const std::string& text) {
  const std::unique_ptr<CURLU, UrlCleanup> url(curl_url());
  if (!url ||
      curl_url_set(url.get(), CURLUPART_URL, text.c_str(), CURLU_NON_SUPPORT_SCHEME | CURLU_URLENCODE) != CURLUE_OK) {
    return std::nullopt;
  }
  Address address{.url = part(url.get(), CURLUPART_URL),
                  .scheme = part(url.get(), CURLUPART_SCHEME),
                  .host = part(url.get(), CURLUPART_HOST),
                  .port = part(url.get(), CURLUPART_PORT, CURLU_DEFAULT_PORT),
                  .userName = decodedPart(url.get(), CURLUPART_USER),
                  .password = decodedPart(url.get(), CURLUPART_PASSWORD),
                  .bareUrl = barePart(url.get())};
  // No host has such a name, and a program that is given the address could take it for an option.
  if (address.host.starts_with('-')) {
    return std::nullopt;
  }
  // A percent sign is at home in a path and before the zone of an IPv6 address; no host name holds one.
  if (address.host.find('%') != std::string::npos && !address.host.starts_with('[')) {
    return std::nullopt;
  }
  // What is percent-encoded in a host name has become what it stands for.
  if (std::ranges::any_of(address.url, isControl)) {
    return std::nullopt;
  }
  if (address.scheme.starts_with("ftp") && hasEncodedControl(address.url)) {
    return std::nullopt;
  }
  return address;
}

}  // namespace

std::optional<Address> parseAddress(const std::string& text) {
  const std::string_view meant = trimmed(text);
  // A line end or a NUL would end the request line early, and what follows would be taken for something else.
  if (meant.empty() || isPathOrWord(meant) || std::ranges::any_of(meant, isControl)) {
    return std::nullopt;
  }
  const std::optional<Address> address = takenApart(completed(meant));
  // The library takes it apart once more when it is fetched: a host that was percent-encoded may only now be seen to be
  // a number, or no host at all.
  return address ? takenApart(address->url) : std::nullopt;
}

bool isFetchedScheme(const std::string& scheme) {
  constexpr std::array<std::string_view, 4> kSchemes{"http", "https", "ftp", "ftps"};
  return std::ranges::find(kSchemes, scheme) != kSchemes.end();
}

}  // namespace tarnwick
