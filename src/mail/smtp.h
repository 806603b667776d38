// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "mail/mail_socket.h"
#include "platform/event_pump.h"

namespace tarnwick {

/// Hands one plain text mail to a mail server (RFC 5321) in the barest of exchanges: no greeting command, no
/// authentication, no encryption. Made where it is used; the socket is the program's only one.
class smtp {
 public:
  smtp(MailSocket& mail, EventPump& pump) : mail_(mail), pump_(pump) {}

  /// Delivers a mail of `mSubject` and `mMsg` from `mFrom` to `mTo` through `server` (a name or an address) and returns
  /// when the exchange is over; events are handled meanwhile. There is no time-out: a server that stays silent is
  /// waited for until the program is being closed, or, in a bounded exchange (see `MailSocket`), until it is over.
  ///
  /// `port` 0 becomes 25, in the caller's variable too; a port above 32767 is the negative number of the same 16 bits.
  ///
  /// True when no connection error occurred and every command was answered with a code below 500; a refused command
  /// does not keep the following ones from being sent. False also when the program is being closed, when a reply code
  /// does not fit 16 bits, and at once while another exchange is in progress.
  bool sendEmail(const std::string& server, const std::string& mTo, const std::string& mFrom,
                 const std::string& mSubject, const std::string& mMsg, std::int16_t& port);

 private:
  bool connectTo(const std::string& server, std::int16_t port);
  bool awaitReply();

  MailSocket& mail_;
  EventPump& pump_;
};

}  // namespace tarnwick
