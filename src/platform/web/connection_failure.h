// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/web/server_name.h"
#include "platform/web/transfer_failure.h"

namespace tarnwick {

/// Why no answer could even begin: the address, the look-up of the name, the connection, the handshake. Nothing when
/// that is not where the transfer ended.
std::optional<TransferResult> failureToConnect(const TransferEnd& end, const ServerName& server);

/// What this machine lacks, by an error number of the system's, which is no fault of any server.
std::optional<TransferResult> resourceShortage(int error);

TransferResult withoutAnswer(const ServerName& server);

/// What the TLS library says of a connection that failed, in its own words; empty when it names no reason.
std::string tlsReason(const std::string& detail);
/// True for the words for a server that hangs up without a goodbye.
bool isHangUp(const std::string& tlsReason);
/// The handshake of a secure connection failed.
TransferResult unsecured(const TransferEnd& end, const ServerName& server);

}  // namespace tarnwick
