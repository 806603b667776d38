// SPDX-License-Identifier: MIT
#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>
#include <string>

#include "platform/web/coding.h"

namespace tarnwick {
namespace {

// What zlib is told beside the size of its window (inflateInit2 in its manual).
constexpr int kZlib = MAX_WBITS;
constexpr int kBare = -MAX_WBITS;
constexpr int kGzip = MAX_WBITS + 16;
constexpr int kGzipOrZlib = MAX_WBITS + 32;
/// The first byte of each member.
constexpr Bytef kGzipMark = 0x1f;
/// Some put a checksum behind data without a frame.
constexpr uInt kBareTail = 4;

/// RFC 1950, section 2.2. Data without a frame do not begin like that.
bool beginsFrame(unsigned method, unsigned flags) {
  constexpr unsigned kDeflate = 8;
  constexpr unsigned kLargestWindow = 7;
  return (method & 0x0fU) == kDeflate && method >> 4U <= kLargestWindow && (method * 256 + flags) % 31 == 0;
}

class Inflation final : public Coding {
 public:
  explicit Inflation(int format) : format_(format), knowsFrame_(format != kZlib) {
    if (inflateInit2(&stream_, format) != Z_OK) {
      throw std::bad_alloc();
    }
  }
  ~Inflation() override { inflateEnd(&stream_); }
  Inflation(const Inflation&) = delete;
  Inflation& operator=(const Inflation&) = delete;

  bool decode(std::string_view piece, const Taker& take) override;
  bool ended() const override { return ended_; }

 private:
  void give(std::string_view piece);
  bool goesOn();
  bool findFrame(std::string_view& piece);

  z_stream stream_{};
  int format_;
  /// What has come before it could be told whether there is a frame.
  std::string beginning_;
  bool knowsFrame_;
  bool ended_ = false;
  uInt tail_ = 0;
  std::array<char, std::size_t{16} * 1024> out_{};
};

void Inflation::give(std::string_view piece) {
  // zlib reads it only.
  stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(piece.data()));
  stream_.avail_in = static_cast<uInt>(piece.size());
}

bool Inflation::decode(std::string_view piece, const Taker& take) {
  if (!knowsFrame_ && !findFrame(piece)) {
    return true;
  }
  give(piece);
  for (;;) {
    if (ended_ && (stream_.avail_in == 0 || !goesOn())) {
      return stream_.avail_in == 0;
    }
    stream_.next_out = reinterpret_cast<Bytef*>(out_.data());
    stream_.avail_out = static_cast<uInt>(out_.size());
    const int status = inflate(&stream_, Z_NO_FLUSH);
    if (status == Z_MEM_ERROR) {
      throw std::bad_alloc();
    }
    if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR) {
      return false;
    }
    const std::size_t made = out_.size() - stream_.avail_out;
    if (made > 0 && !take({out_.data(), made})) {
      return false;
    }
    ended_ = status == Z_STREAM_END;
    if (!ended_ && stream_.avail_in == 0 && stream_.avail_out > 0) {
      return true;
    }
  }
}

/// True when what lies behind the end is the next member. A tail that is borne is passed over.
bool Inflation::goesOn() {
  const uInt passed = std::min(stream_.avail_in, tail_);
  tail_ -= passed;
  stream_.avail_in -= passed;
  stream_.next_in += passed;
  if (format_ != kGzipOrZlib || *stream_.next_in != kGzipMark) {
    return false;
  }
  ended_ = false;
  return inflateReset2(&stream_, kGzip) == Z_OK;
}

/// False while it cannot be told whether the data have a frame; then makes all that has come the piece.
bool Inflation::findFrame(std::string_view& piece) {
  constexpr std::size_t kFrameBegins = 2;
  beginning_ += piece;
  if (beginning_.size() < kFrameBegins) {
    return false;
  }
  knowsFrame_ = true;
  piece = beginning_;
  if (!beginsFrame(static_cast<unsigned char>(piece[0]), static_cast<unsigned char>(piece[1]))) {
    format_ = kBare;
    tail_ = kBareTail;
    inflateReset2(&stream_, kBare);
  }
  return true;
}

}  // namespace

std::unique_ptr<Coding> makeGzip() { return std::make_unique<Inflation>(kGzipOrZlib); }

std::unique_ptr<Coding> makeDeflate() { return std::make_unique<Inflation>(kZlib); }

}  // namespace tarnwick
