// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// Makes new inputs of given ones by small changes: the same ones for the same seed, on every system.
class Mutator {
 public:
  /// `inputs` are not empty and outlive the object.
  Mutator(const std::vector<std::string>& inputs, std::uint32_t seed) : inputs_(inputs), random_(seed) {}

  std::string next() {
    std::string input = anyInput();
    for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
      change(input);
    }
    return input.substr(0, kLongest);
  }

 private:
  static constexpr std::size_t kLongest = 4096;

  /// The distributions of the standard library differ from one library to the next.
  std::size_t below(std::size_t bound) { return bound == 0 ? 0 : random_() % bound; }
  const std::string& anyInput() { return inputs_[below(inputs_.size())]; }

  /// A byte that is likely to mean something, or any byte.
  char anyByte() {
    static constexpr char kTelling[] = "\0\n\r\t \"'`()[]<>=;:,.%~+-/\\09aZ\x1f\x7f\x80\xc3\xff";
    return below(2) == 0 ? kTelling[below(sizeof kTelling - 1)]
                         : static_cast<char>(static_cast<unsigned char>(below(256)));
  }

  std::string anyPart(const std::string& text) {
    const std::size_t begin = below(text.size() + 1);
    return text.substr(begin, 1 + below(32));
  }

  void change(std::string& input) {
    const std::size_t place = below(input.size() + 1);
    switch (below(6)) {
      case 0:
        input.insert(place, 1, anyByte());
        break;
      case 1:
        input.erase(place, 1 + below(8));
        break;
      case 2:
        input.insert(place, anyPart(input));
        break;
      case 3:
        input.insert(place, anyPart(anyInput()));
        break;
      case 4:
        input.replace(place, std::string::npos, anyPart(anyInput()));
        break;
      default:
        if (place < input.size()) {
          input[place] = anyByte();
        }
        break;
    }
  }

  const std::vector<std::string>& inputs_;
  std::mt19937 random_;
};

}  // namespace tarnwick::testing
