// SPDX-License-Identifier: MIT
#include <zstd.h>
#include <zstd_errors.h>

#include <array>
#include <cstddef>
#include <new>

#include "platform/web/coding.h"

namespace tarnwick {
namespace {

/// What a frame may have kept in memory is what a page may have, 64 MiB; as a power of two.
constexpr int kLargestWindowLog = 26;

class Zstandard final : public Coding {
 public:
  Zstandard() {
    if (!stream_) {
      throw std::bad_alloc();
    }
    ZSTD_DCtx_setParameter(stream_.get(), ZSTD_d_windowLogMax, kLargestWindowLog);
  }

  bool decode(std::string_view piece, const Taker& take) override;
  bool ended() const override { return ended_; }

 private:
  std::unique_ptr<ZSTD_DStream, decltype(&ZSTD_freeDStream)> stream_{ZSTD_createDStream(), &ZSTD_freeDStream};
  bool ended_ = false;
  std::array<char, std::size_t{16} * 1024> out_{};
};

bool Zstandard::decode(std::string_view piece, const Taker& take) {
  ZSTD_inBuffer in{piece.data(), piece.size(), 0};
  for (;;) {
    ZSTD_outBuffer out{out_.data(), out_.size(), 0};
    const std::size_t wanted = ZSTD_decompressStream(stream_.get(), &out, &in);
    if (ZSTD_isError(wanted) != 0) {
      if (ZSTD_getErrorCode(wanted) == ZSTD_error_memory_allocation) {
        throw std::bad_alloc();
      }
      return false;
    }
    if (out.pos > 0 && !take({out_.data(), out.pos})) {
      return false;
    }
    // At a frame's end nothing is left inside; what follows is the next frame.
    ended_ = wanted == 0;
    if (in.pos == in.size && (ended_ || out.pos < out.size)) {
      return true;
    }
  }
}

}  // namespace

std::unique_ptr<Coding> makeZstandard() { return std::make_unique<Zstandard>(); }

}  // namespace tarnwick
