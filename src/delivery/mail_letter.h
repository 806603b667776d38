// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "delivery/alert_text.h"
#include "platform/mail_transfer.h"
#include "store/channels.h"

namespace tarnwick {

/// The server of a channel of the kind mail. `secret` is the password, or the token.
MailServer mailServer(const Channel& channel, const std::string& secret);

/// The mail that tells these through it. Tried again it is the same one, with the same Message-ID, so that a server or
/// a mail program knows a copy for one.
MailMessage mailLetter(const Channel& channel, std::span<const OutboxRow> rows, const AlertText& message);

/// The moment as a mail's header has it (RFC 5322, section 3.3): "Sun, 22 Nov 2026 22:15:24 +0100".
std::string mailDate(LocalTime time);

}  // namespace tarnwick
