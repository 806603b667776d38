#include "base/utf8.h"

namespace tarnwick {
namespace {

bool within(unsigned char byte, unsigned char from, unsigned char to) { return byte >= from && byte <= to; }

}  // namespace

std::optional<std::size_t> utf8Length(std::string_view text) {
  if (text.empty()) {
    return std::nullopt;
  }
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const auto follows = [&](std::size_t i) { return within(at(i), 0x80, 0xbf); };
  const unsigned char first = at(0);
  if (first < 0x80) {
    return 1;
  }
  if (within(first, 0xc2, 0xdf)) {
    return text.size() >= 2 && follows(1) ? std::optional<std::size_t>(2) : std::nullopt;
  }
  if (within(first, 0xe0, 0xef)) {
    const unsigned char from = first == 0xe0 ? 0xa0 : 0x80;
    const unsigned char to = first == 0xed ? 0x9f : 0xbf;  // no halves of surrogate pairs
    return text.size() >= 3 && within(at(1), from, to) && follows(2) ? std::optional<std::size_t>(3) : std::nullopt;
  }
  if (within(first, 0xf0, 0xf4)) {
    const unsigned char from = first == 0xf0 ? 0x90 : 0x80;
    const unsigned char to = first == 0xf4 ? 0x8f : 0xbf;
    return text.size() >= 4 && within(at(1), from, to) && follows(2) && follows(3) ? std::optional<std::size_t>(4)
                                                                                   : std::nullopt;
  }
  return std::nullopt;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const auto length = utf8Length(text);
    if (!length) {
      return false;
    }
    text.remove_prefix(*length);
  }
  return true;
}

}  // namespace tarnwick
