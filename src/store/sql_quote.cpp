// SPDX-License-Identifier: MIT
#include "store/sql_quote.h"

namespace tarnwick {
namespace {

/// How many single quotes there are, counted in bytes that cannot overflow: compilers make that many bytes at a time.
std::size_t countQuotes(std::string_view text) {
  constexpr std::size_t kPiece = 255;
  std::size_t quotes = 0;
  for (std::size_t from = 0; from < text.size(); from += kPiece) {
    unsigned char found = 0;
    for (const char c : text.substr(from, kPiece)) {
      found = static_cast<unsigned char>(found + (c == '\'' ? 1 : 0));
    }
    quotes += found;
  }
  return quotes;
}

}  // namespace

std::string sqlQuote(std::string_view text) {
  const std::size_t quotes = countQuotes(text);
  if (quotes == 0) {
    return std::string(text);
  }
  std::string quoted;
  quoted.reserve(text.size() + quotes);
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t quote = text.find('\'', from);
    if (quote == std::string_view::npos) {
      quoted.append(text.substr(from));
      break;
    }
    quoted.append(text.substr(from, quote - from + 1));
    quoted.push_back('\'');
    from = quote + 1;
  }
  return quoted;
}

}  // namespace tarnwick
