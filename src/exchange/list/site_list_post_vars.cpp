// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_post_vars.h"

#include <optional>
#include <stdexcept>
#include <string>

#include "base/text.h"
#include "exchange/list/site_list.h"

namespace tarnwick {
namespace {

bool isUnreserved(char c) {
  return isLetter(c) || isDigit(c) || std::string_view("-._~").find(c) != std::string_view::npos;
}

void appendEncoded(std::string& text, std::string_view bytes) {
  for (const char c : bytes) {
    if (isUnreserved(c)) {
      text += c;
    } else {
      appendPercentEncoded(text, c);
    }
  }
}

std::optional<unsigned> hexDigit(char c) {
  const std::size_t value = std::string_view("0123456789abcdef").find(lowerCase(c));
  return value == std::string_view::npos ? std::nullopt : std::optional(static_cast<unsigned>(value));
}

std::string decoded(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    std::size_t size = 1;
    char byte = text.front();
    if (byte == '%') {
      const auto high = text.size() > 2 ? hexDigit(text[1]) : std::nullopt;
      const auto low = text.size() > 2 ? hexDigit(text[2]) : std::nullopt;
      if (!high || !low) {
        throw std::invalid_argument(quotedForMessage(text.substr(0, 3)) +
                                    " is no encoded byte: write a percent sign as %25");
      }
      byte = static_cast<char>(*high << 4U | *low);
      size = 3;
    }
    bytes += byte;
    text.remove_prefix(size);
  }
  return bytes;
}

PostVar decodedPair(std::string_view pair) {
  const std::size_t equals = pair.find('=');
  if (equals == std::string_view::npos) {
    throw std::invalid_argument(quotedForMessage(pair) +
                                " has no \"=\": write name=value, and between two of them one \"&\"");
  }
  return {decoded(pair.substr(0, equals)), decoded(pair.substr(equals + 1))};
}

}  // namespace

std::string encodePostVars(const std::vector<PostVar>& vars) {
  std::string text;
  for (const PostVar& var : vars) {
    text += text.empty() ? "" : "&";
    appendEncoded(text, var.name);
    text += '=';
    appendEncoded(text, var.value);
  }
  return text;
}

std::vector<PostVar> decodePostVars(std::string_view text) {
  std::vector<PostVar> vars;
  if (text.empty()) {
    return vars;
  }
  for (;;) {
    if (vars.size() == list_bound::elements) {
      throw std::invalid_argument("there are more than " + std::to_string(list_bound::elements) +
                                  " variables, and no site has so many: leave them out");
    }
    const std::size_t end = text.find('&');
    vars.push_back(decodedPair(text.substr(0, end)));
    if (end == std::string_view::npos) {
      return vars;
    }
    text.remove_prefix(end + 1);
  }
}

}  // namespace tarnwick
