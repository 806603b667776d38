#pragma once

#include <cstddef>
#include <string>

#include "platform/transfer_control.h"

namespace tarnwick {

/// Reads a completed control's page in pieces of `pieceSize` bytes until an empty piece comes, and joins them.
inline std::string readResponseBody(TransferControl& control, std::size_t pieceSize) {
  std::string body;
  for (std::string piece = control.getChunk(pieceSize); !piece.empty(); piece = control.getChunk(pieceSize)) {
    body += piece;
  }
  return body;
}

}  // namespace tarnwick
