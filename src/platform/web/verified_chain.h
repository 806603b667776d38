// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <optional>

#include "platform/transfer_control.h"

namespace tarnwick {

/// What the certificates say by which the server of the connection that `easy` uses now has proved who it is: those of
/// the chain that was verified, whatever else it has sent along. Nothing for a connection that is not secured, and
/// where the TLS library is not OpenSSL, whose judgement nobody tells.
std::optional<ServerCertificate> verifiedCertificate(CURL* easy);

}  // namespace tarnwick
