// SPDX-License-Identifier: MIT
#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>

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

class Inflation final : public Coding {
 public:
  explicit Inflation(int format) : format_(format) {
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
  bool becomesBare(std::string_view firstPiece);

  z_stream stream_{};
  int format_;
  bool begun_ = false;
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
  const bool first = !begun_;
  begun_ = true;
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
    if (status == Z_DATA_ERROR && first && becomesBare(piece)) {
      continue;
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

bool Inflation::becomesBare(std::string_view firstPiece) {
  if (format_ != kZlib || stream_.total_out > 0) {
    return false;
  }
  format_ = kBare;
  tail_ = kBareTail;
  give(firstPiece);
  return inflateReset2(&stream_, kBare) == Z_OK;
}

}  // namespace

std::unique_ptr<Coding> makeGzip() { return std::make_unique<Inflation>(kGzipOrZlib); }

std::unique_ptr<Coding> makeDeflate() { return std::make_unique<Inflation>(kZlib); }

}  // namespace tarnwick
