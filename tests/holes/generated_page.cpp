// SPDX-License-Identifier: MIT
#include "holes/generated_page.h"

#include <memory>
#include <stdexcept>

namespace tarnwick::generated {
namespace {

constexpr std::string_view kScript = "<script>alert(1)</script>";

std::string withLetter(std::string text, char letter) {
  text[text.size() / 2] = letter;
  return text;
}

/// The text cut at its slots.
struct Piece {
  std::string fixed;           // as bytes of the page
  const Slot* slot = nullptr;  // what follows it, if anything does
  std::string_view named{};    // by this
};

struct Template {
  Slots slots;
  Encoding encoding = Encoding::utf8;
  std::vector<Piece> pieces{};
};

void cut(Template& made, std::string_view text) {
  if (made.encoding == Encoding::utf16le || made.encoding == Encoding::utf16be) {
    made.pieces.push_back({.fixed = encoded("\xEF\xBB\xBF", made.encoding)});
  }
  while (true) {
    const auto open = text.find("{{");
    if (open == std::string_view::npos) {
      made.pieces.push_back({.fixed = encoded(text, made.encoding)});
      return;
    }
    const auto close = text.find("}}", open);
    const auto slot = made.slots.find(text.substr(open + 2, close - open - 2));
    if (close == std::string_view::npos || slot == made.slots.end()) {
      throw std::logic_error("no slot for " + std::string(text.substr(open, 40)));
    }
    made.pieces.push_back(
        {.fixed = encoded(text.substr(0, open), made.encoding), .slot = &slot->second, .named = slot->first});
    text.remove_prefix(close + 2);
  }
}

Value inEncoding(Value value, Encoding encoding) {
  value.bytes = encoded(value.bytes, encoding);
  for (auto& text : value.breaks) {
    text = encoded(text, encoding);
  }
  return value;
}

}  // namespace

Rng::Rng(std::string_view seed) : state_(14695981039346656037U) {
  for (const char letter : seed) {
    state_ = (state_ ^ static_cast<unsigned char>(letter)) * 1099511628211U;
  }
}

std::uint64_t Rng::next() {  // SplitMix64
  state_ += 0x9E3779B97F4A7C15U;
  auto mixed = state_;
  mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
  return mixed ^ (mixed >> 31U);
}

std::size_t Rng::below(std::size_t limit) { return static_cast<std::size_t>(next() % limit); }

int Rng::between(int least, int most) {
  return least + static_cast<int>(below(static_cast<std::size_t>(most - least + 1)));
}

std::string Rng::text(std::size_t length, std::string_view characters) {
  std::string result;
  result.reserve(length);
  while (result.size() < length) {
    result += characters[below(characters.size())];
  }
  return result;
}

Value number(std::string digits) {
  std::vector<std::string> breaks{std::string(kScript), withLetter(digits, 'x')};
  return {.bytes = std::move(digits), .kind = HoleClass::digits, .breaks = std::move(breaks)};
}

Value hexNumber(std::string digits) {
  std::vector<std::string> breaks{std::string(kScript), withLetter(digits, 'z')};
  return {.bytes = std::move(digits), .kind = HoleClass::hex, .breaks = std::move(breaks)};
}

Value token(std::string characters) {
  std::vector<std::string> breaks{std::string(kScript), withLetter(characters, ' ')};
  return {.bytes = std::move(characters), .kind = HoleClass::base64, .breaks = std::move(breaks)};
}

Value choice(std::string word) {
  return {.bytes = std::move(word), .kind = HoleClass::list, .breaks = {std::string(kScript)}};
}

Value words(std::string line) {
  return {.bytes = std::move(line), .kind = HoleClass::text, .breaks = {std::string(kScript)}};
}

Value bytes(std::string anything) { return {.bytes = std::move(anything)}; }

void Made::varying(const Value& value) {
  parts.push_back({.begin = bytes.size(), .length = value.bytes.size(), .kind = value.kind, .breaks = value.breaks});
  bytes += value.bytes;
}

Generator page(std::string name, std::string_view text, Slots slots, Encoding encoding) {
  const auto made = std::make_shared<Template>(Template{.slots = std::move(slots), .encoding = encoding});
  cut(*made, text);
  return {.name = std::move(name), .page = [made](const Moment& moment, Rng& rng) {
            Made result{.encoding = made->encoding};
            std::map<std::string_view, Value> values;
            for (const auto& piece : made->pieces) {
              result.fixed(piece.fixed);
              if (!piece.slot) {
                continue;
              }
              auto value = values.find(piece.named);
              if (value == values.end()) {
                value = values.emplace(piece.named, inEncoding((*piece.slot)(moment, rng), made->encoding)).first;
              }
              result.varying(value->second);
            }
            return result;
          }};
}

const std::vector<Generator>& allGenerators() {
  static const auto all = [] {
    std::vector<Generator> result;
    for (const auto family :
         {tokenPages, counterPages, westernDatePages, otherDatePages, clockPages, shuffledPages, advertisementPages,
          linkPages, jsonPages, feedPages, encodingPages, binaryPages, rotatingPages, mixedPages, unknowablePages}) {
      for (auto& generator : family()) {
        result.push_back(std::move(generator));
      }
    }
    return result;
  }();
  return all;
}

}  // namespace tarnwick::generated
