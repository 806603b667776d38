// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

/// How a connection to a mail server is secured. `startTls`: it begins in clear and is secured before anything but the
/// greeting is said; where the server offers that not, or a stranger answers for it, no mail is sent. `tls`: it is
/// secured from its first byte.
enum class MailSafety { none, startTls, tls };

/// How the log-in is sent. `automatic`: in a way that the server offers, one that hides the password where the
/// connection itself is not secured. `xoauth2`: by a token in place of a password.
enum class MailLogin { automatic, plain, login, xoauth2 };

/// Where mail is handed in.
struct MailServer {
  /// A name or an IP address.
  std::string host{};
  std::uint16_t port = 587;
  MailSafety safety = MailSafety::startTls;
  MailLogin login = MailLogin::automatic;
  /// Without a name nobody logs in.
  std::string user{};
  /// The password, or the token of `xoauth2`.
  std::string secret{};
  /// PEM file of the authorities that may have signed the server's certificate; empty means those of the system.
  std::string caFile{};
  /// The most time that the whole exchange may take; zero or less means the default.
  std::chrono::seconds limit{50};
};

/// A file that goes along with a mail.
struct MailPart {
  /// Its name, without a folder.
  std::string name{};
  /// Its type as of RFC 2045, "text/html"; one that is none is sent as bytes of any kind.
  std::string type{};
  std::string bytes{};
};

/// A mail as it is written; all texts are UTF-8. What of it goes into a header becomes one line, in the words that mail
/// knows for what is not ASCII (RFC 2047).
struct MailMessage {
  /// "someone@example.org" or "A Name <someone@example.org>".
  std::string from{};
  /// The same; at least one. A mail that the server refuses for one of them is sent to none.
  std::vector<std::string> to{};
  std::string subject{};
  std::string text{};
  /// The same in HTML; empty for none.
  std::string html{};
  /// The moment it was written, as of RFC 5322: "Sun, 22 Nov 2026 22:15:24 +0000". Empty: the server's affair.
  std::string date{};
  /// "<something.unique@example.org>". Empty: the server's affair.
  std::string messageId{};
  /// Further headers, name and value. One that has no name, or that of a header above, refuses the mail.
  std::vector<std::pair<std::string, std::string>> headers{};
  std::optional<MailPart> attachment{};
};

/// What became of a mail.
struct MailReply {
  /// The server has taken it over, for all who are to have it.
  bool delivered = false;
  /// One line: the server's own words behind the step in which they came, "RCPT TO: 550 5.1.1 User unknown"; or why it
  /// never came to that. Never the password or the token, even where the server repeats them.
  std::string words{};
};

/// Sends mails over SMTP (RFC 5321), one at a time, without blocking.
///
/// The answers come through the event loop, never from inside `send` or `cancel`.
class MailTransfer {
 public:
  /// Ends what is under way, as `cancel`.
  virtual ~MailTransfer() = default;

  /// REQUIRES: not `isUnderWay()`. `done` may send the next mail, and may destroy this object.
  virtual void send(const MailServer& server, const MailMessage& message, std::function<void(MailReply)> done) = 0;

  /// Ends the exchange at once; its `done` is not called. The server may have taken the mail all the same.
  virtual void cancel() = 0;

  /// True from `send` until its `done` is called.
  virtual bool isUnderWay() const = 0;
};

class MailTransferMaker {
 public:
  virtual ~MailTransferMaker() = default;
  virtual std::unique_ptr<MailTransfer> makeMailTransfer() = 0;
};

}  // namespace tarnwick
