// SPDX-License-Identifier: MIT
#include "holes/slots.h"

namespace tarnwick::generated {

Slot hex(std::size_t length, std::string_view digits) {
  return [=](const Moment&, Rng& rng) { return hexNumber(rng.text(length, digits)); };
}

Slot base64(std::size_t length) {
  return [=](const Moment&, Rng& rng) {
    return token(rng.text(length, kBase64) + std::string((4 - length % 4) % 4, '='));
  };
}

Slot base64Url(std::size_t length) {
  return [=](const Moment&, Rng& rng) { return token(rng.text(length, kBase64Url)); };
}

std::string uuidText(Rng& rng) {
  return rng.text(8, kHex) + '-' + rng.text(4, kHex) + "-4" + rng.text(3, kHex) + '-' + rng.text(1, "89ab") +
         rng.text(3, kHex) + '-' + rng.text(12, kHex);
}

Slot uuid() {
  return [](const Moment&, Rng& rng) {
    auto value = hexNumber(uuidText(rng));
    value.breaks.pop_back();
    value.breaks.push_back(value.bytes);
    value.breaks.back()[0] = 'z';
    return value;
  };
}

Slot base36(std::size_t least, std::size_t most) {
  return [=](const Moment&, Rng& rng) { return token(rng.text(least + rng.below(most - least + 1), kBase36)); };
}

std::string grouped(std::uint64_t number, std::string_view separator) {
  auto digits = std::to_string(number);
  for (auto place = digits.size(); place > 3;) {
    place -= 3;
    digits.insert(place, separator);
  }
  return digits;
}

Slot counter(std::uint64_t start, std::uint64_t step, std::string_view separator) {
  return [start, step, separator = std::string(separator)](const Moment& moment, Rng&) {
    auto value = number(grouped(start + moment.visits * step, separator));
    value.breaks.back() = value.bytes;
    value.breaks.back().back() = 'x';
    return value;
  };
}

Slot between(int least, int most) {
  return [=](const Moment&, Rng& rng) { return number(std::to_string(rng.between(least, most))); };
}

Slot decimal(int least, int most, int decimals, std::string_view point, std::string_view minus) {
  return [=, point = std::string(point), minus = std::string(minus)](const Moment& moment, Rng& rng) {
    int drawn = rng.between(least, most);
    if (least < 0 && most > 0 && moment.fetch < 2) {  // whoever learns it sees both signs
      drawn = moment.fetch == 0 ? most - 4 : least + 4;
    }
    auto digits = std::to_string(drawn < 0 ? -drawn : drawn);
    const auto places = static_cast<std::size_t>(decimals);
    if (digits.size() <= places) {
      digits.insert(0, places + 1 - digits.size(), '0');
    }
    digits.insert(digits.size() - places, point);
    auto value = number((drawn < 0 ? minus : "") + digits);
    value.breaks.back() = value.bytes;
    value.breaks.back().back() = 'x';
    return value;
  };
}

Slot inTurn(std::vector<std::string> choices) {
  return [choices = std::move(choices)](const Moment& moment, Rng&) {
    return choice(choices[moment.fetch % choices.size()]);
  };
}

}  // namespace tarnwick::generated
