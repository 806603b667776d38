// SPDX-License-Identifier: MIT
#include "platform/web/response_header.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

#include "base/text.h"

namespace tarnwick {
namespace {

constexpr int kSwitchingProtocols = 101;
constexpr int kFirstWithPage = 200;
constexpr int kNoContent = 204;
constexpr int kNotModified = 304;
// What libcurl counts to. It passes over a longer length as if there were none.
constexpr std::size_t kLongestLength = std::numeric_limits<std::int64_t>::max();

}  // namespace

int statusOf(std::string_view firstLine) {
  firstLine.remove_prefix(std::min(firstLine.find(' '), firstLine.size()));
  firstLine = trimmed(firstLine);
  int status = 0;
  std::from_chars(firstLine.data(), firstLine.data() + firstLine.size(), status);
  return std::max(status, 0);
}

HeaderFault ResponseHeader::add(std::string_view line) {
  if (!open_) {
    return line.starts_with("HTTP/") ? begin(line) : HeaderFault::none;
  }
  if (trimmed(line).empty()) {
    return end();
  }
  const auto colon = std::min(line.find(':'), line.size());
  const std::string_view bareName = line.substr(0, colon);
  const std::string_view name = trimmed(bareName);
  const std::string_view values = line.substr(std::min(colon + 1, line.size()));
  if (equalsIgnoringCase(name, "content-length")) {
    addLengths(values);
  } else if (equalsIgnoringCase(name, "transfer-encoding")) {
    chunked_ = true;
  }
  // A name with a blank behind it is another one (RFC 9112, section 5.1).
  const bool ofTheWay = equalsIgnoringCase(bareName, "transfer-encoding");
  if (ofTheWay || equalsIgnoringCase(bareName, "content-encoding")) {
    addCodings(values, ofTheWay);
  }
  return HeaderFault::none;
}

HeaderFault ResponseHeader::begin(std::string_view line) {
  *this = {};
  open_ = true;
  const int status = statusOf(line);
  mayHavePage_ = status >= kFirstWithPage && status != kNoContent && status != kNotModified;
  return status == kSwitchingProtocols ? HeaderFault::otherProtocol : HeaderFault::none;
}

HeaderFault ResponseHeader::end() {
  open_ = false;
  if (chunked_) {
    return HeaderFault::none;
  }
  if (unclear_) {
    return HeaderFault::unclearLength;
  }
  return endless_ ? HeaderFault::endlessPage : HeaderFault::none;
}

void ResponseHeader::addCodings(std::string_view names, bool ofTheWay) {
  while (!names.empty()) {
    const auto comma = std::min(names.find(','), names.size());
    const std::string_view name = trimmed(names.substr(0, comma));
    names.remove_prefix(std::min(comma + 1, names.size()));
    if (name.empty() || (ofTheWay && equalsIgnoringCase(name, "chunked"))) {
      continue;  // chunks are put together before
    }
    codings_.emplace(ofTheWay ? codings_.end() : codings_.begin() + codingsOfContent_, name);
    codingsOfContent_ += ofTheWay ? 0 : 1;
  }
}

// Several of the same value are as good as one (RFC 9110, section 8.6).
void ResponseHeader::addLengths(std::string_view values) {
  for (;;) {
    const auto comma = std::min(values.find(','), values.size());
    addLength(trimmed(values.substr(0, comma)));
    if (comma == values.size()) {
      return;
    }
    values.remove_prefix(comma + 1);
  }
}

void ResponseHeader::addLength(std::string_view value) {
  std::size_t length = 0;
  const auto [rest, error] = std::from_chars(value.data(), value.data() + value.size(), length);
  if (rest != value.data() + value.size() || error == std::errc::invalid_argument) {
    unclear_ = true;
  } else if (error == std::errc::result_out_of_range || length > kLongestLength) {
    endless_ = true;
  } else {
    unclear_ = unclear_ || (length_ && *length_ != length);
    length_ = length;
  }
}

}  // namespace tarnwick
