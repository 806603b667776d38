// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// From within the handshake of a transfer: `said` becomes true when the server ends its side in the way of TLS, rather
/// than that the connection just ends, as anybody on the way may make it. libcurl takes both for the same. `context` is
/// what CURLOPT_SSL_CTX_FUNCTION is given; `said` outlives the connection. False where nobody will tell: where the TLS
/// library is not OpenSSL, and its own rules hold.
bool watchGoodbye(void* context, bool& said);

}  // namespace tarnwick
