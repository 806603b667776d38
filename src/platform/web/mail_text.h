// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/mail_transfer.h"

namespace tarnwick {

/// An address of mail, taken apart.
struct MailAddress {
  /// May be empty.
  std::string name{};
  /// "someone@example.org", the domain in the letters of ASCII that it has for programs.
  std::string address{};

  /// Whether it needs a server that knows more letters than those of ASCII (RFC 6531).
  bool needsUtf8() const;
  /// As it stands in a header.
  std::string inHeader() const;
};

/// Of "someone@example.org" or "A Name <someone@example.org>". Nothing when that is no address, or one that could be
/// taken for more than one or for a further word of a command.
std::optional<MailAddress> parseMailAddress(const std::string& text);

/// Any text as the value of a header, in one line of its meaning, though folded: what is not plain ASCII is written as
/// encoded words (RFC 2047).
std::string headerText(const std::string& text);

/// A text in lines of ASCII that any server passes on as they are (RFC 2045, section 6.7), with CR LF at the end of
/// each.
std::string quotedPrintable(std::string_view text);

/// Why that cannot be sent by any server; empty when it can.
std::string refusalOf(const MailServer& server, const MailMessage& message);

/// The whole mail, header and parts, as it is sent between DATA and the line with a dot: each line ends with CR LF, and
/// has a dot more where it begins with one (RFC 5321, section 4.5.2). REQUIRES: the message is not refused.
std::string wholeMail(const MailMessage& message);

}  // namespace tarnwick
