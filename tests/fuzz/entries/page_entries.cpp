// SPDX-License-Identifier: MIT
#include "fuzz/entries/page_entries.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "base/text.h"
#include "base/windows_1252.h"
#include "engine/page_fetch.h"
#include "platform/address.h"
#include "platform/web/content_decoder.h"
#include "platform/web/response_header.h"

namespace tarnwick::testing {
namespace {

std::string formDecoded(std::string_view encoded) {
  std::string bytes;
  for (std::size_t i = 0; i < encoded.size(); ++i) {
    if (encoded[i] != '%') {
      require(isLetter(encoded[i]) || isDigit(encoded[i]), "a character of a form stands for itself that must not");
      bytes += encoded[i];
      continue;
    }
    require(i + 2 < encoded.size(), "a code of a form is cut off");
    const std::string digits(encoded.substr(i + 1, 2));
    require(digits.find_first_not_of("0123456789ABCDEF") == std::string::npos, "a code of a form is no number");
    bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
    require(!isLetter(bytes.back()) && !isDigit(bytes.back()), "a letter or digit of a form is encoded");
    i += 2;
  }
  return bytes;
}

/// What the header fields of one answer say, judged by their texts and not by numbers.
struct Fields {
  bool chunked = false;
  bool unclear = false;
  bool endless = false;
  std::set<std::string> lengths;

  void add(const std::string& line) {
    const std::size_t colon = line.find(':');
    const std::string name = lowerCase(std::string(trimmed(line.substr(0, colon))));
    chunked = chunked || name == "transfer-encoding";
    if (name != "content-length") {
      return;
    }
    std::string values = colon == std::string::npos ? "" : line.substr(colon + 1);
    while (true) {
      const std::size_t comma = values.find(',');
      addLength(std::string(trimmed(std::string_view(values).substr(0, comma))));
      if (comma == std::string::npos) {
        return;
      }
      values.erase(0, comma + 1);
    }
  }

  void addLength(std::string length) {
    static const std::string largest = std::to_string(std::numeric_limits<std::int64_t>::max());
    if (length.empty() || !std::ranges::all_of(length, isDigit)) {
      unclear = true;
      return;
    }
    length.erase(0, std::min(length.find_first_not_of('0'), length.size() - 1));
    if (length.size() > largest.size() || (length.size() == largest.size() && length > largest)) {
      endless = true;
    } else {
      lengths.insert(length);
    }
  }

  HeaderFault fault() const {
    if (chunked) {
      return HeaderFault::none;
    }
    if (unclear || lengths.size() > 1) {
      return HeaderFault::unclearLength;
    }
    return endless ? HeaderFault::endlessPage : HeaderFault::none;
  }
};

constexpr std::size_t kLargestPage = 65536;

struct Decoded {
  bool good = true;
  bool complete = false;
  std::string page;
};

Decoded decoded(const std::vector<std::string>& codings, std::string_view answer, std::size_t pieceSize) {
  ContentDecoder decoder(codings, kLargestPage);
  Decoded result;
  while (result.good && !answer.empty()) {
    const std::string piece(answer.substr(0, pieceSize));  // of its own, so that a read behind it is seen
    answer.remove_prefix(piece.size());
    bool stopped = false;
    result.good = decoder.decode(piece, [&](std::string_view made) {
      require(!stopped, "more comes after it was stopped");
      result.page += made;
      stopped = result.page.size() > kLargestPage;
      return !stopped;
    });
    require(!stopped || !result.good, "what was stopped seems to be good");
  }
  result.complete = result.good && decoder.complete();
  return result;
}

}  // namespace

void fuzzUrlEncode(std::string_view input) {
  const std::string encoded = PageFetch::urlEncode(input);
  require(encoded.size() <= 3 * input.size(), "a form grows more than threefold");
  const std::string codes = formDecoded(encoded);
  if (!isUtf8(input)) {
    require(codes == input, "bytes that are no UTF-8 are changed");
    return;
  }
  std::string back;
  std::string expected;
  for (const char code : codes) {
    appendUtf8(back, characterOfWindows1252(static_cast<unsigned char>(code)));
  }
  for (std::string_view rest = input; !rest.empty();) {
    const std::optional<DecodedCharacter> decoded = decodeUtf8(rest);
    require(decoded.has_value(), "a part of UTF-8 is none");
    expected += windows1252CodeOf(decoded->character) ? rest.substr(0, decoded->length) : "?";
    rest.remove_prefix(decoded->length);
  }
  require(back == expected, "the text does not come back");
}

void fuzzAddress(std::string_view input) {
  const std::optional<Address> address = parseAddress(std::string(input));
  if (!address) {
    return;
  }
  const auto isUnfit = [](char c) { return static_cast<unsigned char>(c) <= 0x20 || c == 0x7F; };
  require(std::ranges::none_of(address->url, isUnfit), "a blank or control character stands in the address");
  require(std::ranges::none_of(address->host, isUnfit), "a blank or control character stands in the host");
  require(!address->scheme.empty() && lowerCase(address->scheme) == address->scheme, "the scheme is not in lower case");
  require(std::ranges::all_of(address->port, isDigit) && address->port.size() <= 5, "the port is no number");
  require(address->url.starts_with(address->scheme + "://") || address->scheme == "file", "another scheme is fetched");
  require(!isFetchedScheme(address->scheme) || !address->host.empty(), "nobody is asked for the page");
  const std::optional<Address> again = parseAddress(address->url);
  require(again && again->url == address->url && again->scheme == address->scheme && again->host == address->host &&
              again->port == address->port,
          "the address does not mean itself");
}

void fuzzResponseHeader(std::string_view input) {
  ResponseHeader head;
  Fields fields;
  bool open = false;
  while (!input.empty()) {
    const std::size_t end = std::min(input.find('\n'), input.size() - 1);
    const std::string line(input.substr(0, end + 1));
    input.remove_prefix(end + 1);
    HeaderFault expected = HeaderFault::none;
    if (!open && line.starts_with("HTTP/")) {
      open = true;
      fields = {};
      expected = statusOf(line) == 101 ? HeaderFault::otherProtocol : HeaderFault::none;
    } else if (open && trimmed(line).empty()) {
      open = false;
      expected = fields.fault();
    } else if (open) {
      fields.add(line);
    }
    require(head.add(line) == expected, "the header is judged wrongly");
    require(head.open() == open, "the header ends elsewhere");
    require(statusOf(line) == 0 || line.find(std::to_string(statusOf(line))) != std::string::npos,
            "the status is not in the line");
  }
}

void fuzzContent(std::string_view input) {
  static const std::vector<std::string> kNames = {"identity", "gzip", "deflate", "br", "zstd", "compress"};
  std::vector<std::string> codings;
  for (std::size_t rest = takeByte(input); rest > 0; rest /= kNames.size()) {
    codings.push_back(kNames[rest % kNames.size()]);
  }
  const std::size_t pieceSize = takeByte(input) + 1;
  const Decoded whole = decoded(codings, input, std::string_view::npos);
  const Decoded pieces = decoded(codings, input, pieceSize);
  require(whole.good == pieces.good, "it depends on the pieces whether an answer is good");
  require(whole.complete == pieces.complete, "it depends on the pieces whether an answer is complete");
  require(!whole.good || whole.page == pieces.page, "the page depends on the pieces");
  const auto outermost = std::find_if(codings.rbegin(), codings.rend(), [](auto& name) { return name != "identity"; });
  // Behind "deflate" without a frame a checksum may be missing.
  const std::size_t cut = outermost != codings.rend() && *outermost == "deflate" ? 5 : 1;
  if (outermost != codings.rend() && whole.complete && input.size() > cut) {
    require(!decoded(codings, input.substr(0, input.size() - cut), std::string_view::npos).complete,
            "an answer that was cut is complete");
  }
}

}  // namespace tarnwick::testing
