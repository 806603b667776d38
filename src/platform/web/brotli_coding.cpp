// SPDX-License-Identifier: MIT
#include <brotli/decode.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>

#include "platform/web/coding.h"

namespace tarnwick {
namespace {

bool isLackOfMemory(BrotliDecoderErrorCode code) {
  return code <= BROTLI_DECODER_ERROR_ALLOC_CONTEXT_MODES && code >= BROTLI_DECODER_ERROR_ALLOC_BLOCK_TYPE_TREES;
}

class Brotli final : public Coding {
 public:
  Brotli() {
    if (!state_) {
      throw std::bad_alloc();
    }
  }

  bool decode(std::string_view piece, const Taker& take) override;
  bool ended() const override { return ended_; }

 private:
  std::unique_ptr<BrotliDecoderState, decltype(&BrotliDecoderDestroyInstance)> state_{
      BrotliDecoderCreateInstance(nullptr, nullptr, nullptr), &BrotliDecoderDestroyInstance};
  bool ended_ = false;
  std::array<std::uint8_t, std::size_t{16} * 1024> out_{};
};

bool Brotli::decode(std::string_view piece, const Taker& take) {
  if (ended_) {
    return false;
  }
  std::size_t left = piece.size();
  const auto* in = reinterpret_cast<const std::uint8_t*>(piece.data());
  for (;;) {
    std::size_t room = out_.size();
    std::uint8_t* out = out_.data();
    const BrotliDecoderResult result = BrotliDecoderDecompressStream(state_.get(), &left, &in, &room, &out, nullptr);
    if (result == BROTLI_DECODER_RESULT_ERROR) {
      if (isLackOfMemory(BrotliDecoderGetErrorCode(state_.get()))) {
        throw std::bad_alloc();
      }
      return false;
    }
    const std::size_t made = out_.size() - room;
    if (made > 0 && !take({reinterpret_cast<const char*>(out_.data()), made})) {
      return false;
    }
    ended_ = result == BROTLI_DECODER_RESULT_SUCCESS;
    if (ended_ || result == BROTLI_DECODER_RESULT_NEEDS_MORE_INPUT) {
      return left == 0;
    }
  }
}

}  // namespace

std::unique_ptr<Coding> makeBrotli() { return std::make_unique<Brotli>(); }

}  // namespace tarnwick
