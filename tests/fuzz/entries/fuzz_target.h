// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace tarnwick::testing {

/// What a fuzzer feeds with any bytes. Whatever they are the code under test gives its result or refuses them by the
/// error that its header names; what must hold besides is checked by `require`.
using FuzzEntry = void (*)(std::string_view input);

struct FuzzTarget {
  /// The folder of its inputs under tests/fuzz/corpus.
  std::string_view name;
  FuzzEntry entry;
};

/// Raises std::logic_error, which no code under test may raise, when `holds` is false.
inline void require(bool holds, const char* what) {
  if (!holds) {
    throw std::logic_error(what);
  }
}

/// The first byte of the input, taken off it; 0 when there is none.
inline std::size_t takeByte(std::string_view& input) {
  if (input.empty()) {
    return 0;
  }
  const auto byte = static_cast<unsigned char>(input.front());
  input.remove_prefix(1);
  return byte;
}

/// What stands between the pieces of an input that has several: ASCII's unit separator.
inline constexpr char kPieceEnd = '\x1f';

/// The first piece of the input, at most `longest` bytes of it, taken off the input with the separator behind it.
inline std::string_view takePiece(std::string_view& input, std::size_t longest = std::string_view::npos) {
  const std::string_view piece = input.substr(0, input.find(kPieceEnd));
  input.remove_prefix(piece.size() == input.size() ? piece.size() : piece.size() + 1);
  return piece.substr(0, longest);
}

}  // namespace tarnwick::testing
