// SPDX-License-Identifier: MIT
#include "base/base64.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/decode_error.h"

namespace tarnwick {
namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t kNone = 0xFF;
constexpr char kPad = '=';

constexpr std::array<std::uint8_t, 256> makeValues() {
  std::array<std::uint8_t, 256> values{};
  for (auto& value : values) {
    value = kNone;
  }
  for (std::size_t value = 0; value < kAlphabet.size(); ++value) {
    values[static_cast<unsigned char>(kAlphabet[value])] = static_cast<std::uint8_t>(value);
  }
  return values;
}

constexpr auto kValues = makeValues();

std::uint8_t valueOf(char character) { return kValues[static_cast<unsigned char>(character)]; }

bool isBlank(char character) { return character == '\r' || character == '\n' || character == ' ' || character == '\t'; }

class Decoder {
 public:
  explicit Decoder(std::string_view text) : text_(text) { bytes_.reserve(text.size() / 4 * 3 + 3); }

  std::string decode() {
    takeWholeGroups();
    while (at_ < text_.size()) {
      take(text_[at_]);
      ++at_;
      takeWholeGroups();
    }
    if (characters_ != 0) {
      fail("The text stops in the middle of a group of four characters.");
    }
    return std::move(bytes_);
  }

 private:
  /// The fast way through what is most of a text: groups that nothing interrupts.
  void takeWholeGroups() {
    if (characters_ != 0 || over_) {
      return;
    }
    for (; at_ + 4 <= text_.size(); at_ += 4) {
      const std::uint8_t a = valueOf(text_[at_]);
      const std::uint8_t b = valueOf(text_[at_ + 1]);
      const std::uint8_t c = valueOf(text_[at_ + 2]);
      const std::uint8_t d = valueOf(text_[at_ + 3]);
      if (((a | b | c | d) & 0xC0) != 0) {
        return;
      }
      emit(static_cast<std::uint32_t>(a << 18 | b << 12 | c << 6 | d), 3);
    }
  }

  void take(char character) {
    if (isBlank(character)) {
      return;
    }
    if (over_) {
      fail("Something follows the end of the text.");
    }
    const std::uint8_t value = valueOf(character);
    if (character != kPad && value == kNone) {
      fail("A character does not belong to base64 text.");
    }
    if (character == kPad && characters_ < 2) {
      fail("The padding stands at a place where none can be.");
    }
    if (character != kPad && pads_ > 0) {
      fail("The padding is not complete.");
    }
    pads_ += character == kPad ? 1 : 0;
    group_ = group_ << 6 | (character == kPad ? 0U : value);
    if (++characters_ == 4) {
      emit(group_, 3 - pads_);
      over_ = pads_ > 0;
      characters_ = 0;
      group_ = 0;
    }
  }

  void emit(std::uint32_t group, std::size_t size) {
    const std::array<char, 3> bytes{static_cast<char>(group >> 16 & 0xFF), static_cast<char>(group >> 8 & 0xFF),
                                    static_cast<char>(group & 0xFF)};
    bytes_.append(bytes.data(), size);
  }

  [[noreturn]] void fail(const std::string& cause) const {
    const auto end = text_.begin() + static_cast<std::ptrdiff_t>(at_);
    throw DecodeError({}, static_cast<std::size_t>(std::count(text_.begin(), end, '\n')) + 1,
                      cause + " The text is damaged; get it again.");
  }

  std::string_view text_;
  std::string bytes_;
  std::size_t at_ = 0;
  std::uint32_t group_ = 0;
  std::size_t characters_ = 0;  ///< of the group that is being read
  std::size_t pads_ = 0;
  bool over_ = false;
};

}  // namespace

std::string decodeBase64(std::string_view text) { return Decoder(text).decode(); }

std::string encodeBase64(std::string_view bytes) {
  constexpr std::size_t kGroup = 3;
  std::string text;
  text.reserve((bytes.size() + kGroup - 1) / kGroup * 4);
  for (std::size_t at = 0; at < bytes.size(); at += kGroup) {
    const std::string_view group = bytes.substr(at, kGroup);
    unsigned bits = 0;
    for (std::size_t i = 0; i < kGroup; ++i) {
      bits = bits << 8U | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
    }
    for (std::size_t i = 0; i <= kGroup; ++i) {
      text.push_back(i <= group.size() ? kAlphabet[bits >> (18U - 6U * static_cast<unsigned>(i)) & 63U] : '=');
    }
  }
  return text;
}

}  // namespace tarnwick
