// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string_view>

namespace tarnwick {

/// One compression of an answer, taken off piece by piece as it arrives.
class Coding {
 public:
  /// Takes what comes out, in pieces of some KiB; false to stop.
  using Taker = std::function<bool(std::string_view)>;

  virtual ~Coding() = default;
  /// Decodes the next piece, which is not empty. False when it is damaged, when the data go on behind their end, or
  /// when `take` has stopped it; there is no going on from there. Raises std::bad_alloc.
  virtual bool decode(std::string_view piece, const Taker& take) = 0;
  /// The data have come to their end.
  virtual bool ended() const = 0;
};

/// RFC 1952, with one member or several; also what is in truth zlib's format.
std::unique_ptr<Coding> makeGzip();
/// RFC 1950, or RFC 1951 without a frame, as some servers understand the name.
std::unique_ptr<Coding> makeDeflate();
/// RFC 7932.
std::unique_ptr<Coding> makeBrotli();
/// RFC 8878, with one frame or several.
std::unique_ptr<Coding> makeZstandard();

}  // namespace tarnwick
