#pragma once

#include <optional>
#include <string>

#include "platform/web/asked_server.h"
#include "platform/web/transfer_failure.h"

namespace tarnwick {

/// Why no answer could even begin: the address, the look-up of the name, the connection, the handshake. Nothing when
/// that is not where the transfer ended.
std::optional<TransferFailure> failureToConnect(const TransferEnd& end, const AskedServer& server);

/// What this machine lacks, by an error number of the system's, which is no fault of any server.
std::optional<TransferFailure> lackOfThisMachine(int error);

TransferFailure withoutAnswer(const AskedServer& server);
/// The handshake of a secure connection failed; `detail` has libcurl's words for it.
TransferFailure unsecured(const AskedServer& server, const std::string& detail);

}  // namespace tarnwick
