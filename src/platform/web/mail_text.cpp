// SPDX-License-Identifier: MIT
#include "platform/web/mail_text.h"

#include <algorithm>
#include <array>
#include <utility>
#include <QUrl>

#include "base/base64.h"
#include "base/text.h"
#include "platform/web/server_name.h"

namespace tarnwick {
namespace {

/// How many bytes of a text go into one encoded word, which with the name of the header makes a line of 76 characters.
constexpr std::size_t kEncodedAtOnce = 39;
/// A line of mail may have 998 characters (RFC 5322, section 2.1.1).
constexpr std::size_t kLongestValue = 900;
constexpr std::size_t kLongestName = 200;
/// What is written by us, and what belongs to the form of the mail.
constexpr std::array<std::string_view, 8> kOwnHeaders{"from",    "to",   "cc",         "bcc",
                                                      "subject", "date", "message-id", "mime-version"};

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }
bool isAscii(std::string_view text) {
  return std::ranges::none_of(text, [](char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; });
}

/// A text as it may stand in a line: what would end or change one is a blank.
std::string asOneLine(std::string text) {
  std::ranges::replace_if(text, isControl, ' ');
  return std::string(trimmed(text));
}

/// That, as the whole of a value, or of a file's name.
std::string asShortLine(std::string text, std::size_t longest) {
  text = asOneLine(std::move(text));
  if (text.size() > longest) {
    while (longest > 0 && continuesCharacter(text[longest])) {
      --longest;
    }
    text.resize(longest);
  }
  return text;
}

std::string encodedWords(std::string_view text) {
  std::string words;
  while (!text.empty()) {
    std::size_t length = std::min(kEncodedAtOnce, text.size());
    // Each word holds whole characters (RFC 2047, section 5).
    for (int i = 0; i < 3 && length > 1 && length < text.size() && continuesCharacter(text[length]); ++i) {
      --length;
    }
    words += (words.empty() ? "" : "\r\n ") + ("=?utf-8?B?" + encodeBase64(text.substr(0, length)) + "?=");
    text.remove_prefix(length);
  }
  return words;
}

bool isTokenOf(std::string_view text, std::string_view marks) {
  return !text.empty() && std::ranges::all_of(text, [&](char c) {
    return isDigit(c) || isLetter(c) || marks.find(c) != std::string_view::npos;
  });
}

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      result += '\\';
    }
    result += c;
  }
  return result + '"';
}

bool isHeaderName(const std::string& name) {
  const std::string small = lowerCase(name);
  return isTokenOf(name, "-_") && !small.starts_with("content-") &&
         std::ranges::find(kOwnHeaders, small) == kOwnHeaders.end();
}

bool isHost(std::string_view host) {
  return !host.empty() && std::ranges::all_of(host, [](char c) {
    return isDigit(c) || isLetter(c) || (static_cast<unsigned char>(c) & 0x80U) != 0 ||
           std::string_view(".-_:[]%").find(c) != std::string_view::npos;
  });
}

std::string headerOf(const MailMessage& message) {
  std::string lines;
  const auto add = [&lines](const std::string& name, const std::string& value) {
    if (!value.empty()) {
      lines += name + ": " + value + "\r\n";
    }
  };
  add("Date", asShortLine(message.date, kLongestValue));
  add("From", parseMailAddress(message.from).value_or(MailAddress()).inHeader());
  std::string to;
  for (const std::string& each : message.to) {
    to += (to.empty() ? "" : ",\r\n ") + parseMailAddress(each).value_or(MailAddress()).inHeader();
  }
  add("To", to);
  add("Subject", headerText(message.subject));
  add("Message-ID", asShortLine(message.messageId, kLongestValue));
  for (const auto& [name, value] : message.headers) {
    add(name, headerText(value));
  }
  return lines;
}

/// A file's name as of RFC 2231.
std::string codedName(const std::string& name) {
  std::string coded;
  for (const char c : asShortLine(name, kLongestName)) {
    if (isLetter(c) || isDigit(c) || c == '.' || c == '-' || c == '_') {
      coded += c;
    } else {
      appendPercentEncoded(coded, c);
    }
  }
  return coded;
}

std::string typeOf(const MailPart& file) {
  constexpr std::string_view kMarks = "!#$&^_.+-";
  const std::string type = lowerCase(file.type);
  const auto slash = type.find('/');
  const bool isType = slash != std::string::npos && type.size() < 100 && isTokenOf(type.substr(0, slash), kMarks) &&
                      isTokenOf(type.substr(slash + 1), kMarks) && !type.starts_with("multipart/") &&
                      !type.starts_with("message/");
  return isType ? type : "application/octet-stream";
}

std::string textPart(const std::string& text, const std::string& type) {
  return "Content-Type: " + type + "; charset=utf-8\r\nContent-Transfer-Encoding: quoted-printable\r\n\r\n" +
         quotedPrintable(text);
}

std::string filePart(const MailPart& file) {
  constexpr std::size_t kLineLength = 76;
  std::string part = "Content-Type: " + typeOf(file) + "\r\nContent-Disposition: attachment; filename*=utf-8''" +
                     codedName(file.name) + "\r\nContent-Transfer-Encoding: base64\r\n\r\n";
  const std::string coded = encodeBase64(file.bytes);
  for (std::size_t at = 0; at < coded.size(); at += kLineLength) {
    part += coded.substr(at, kLineLength) + "\r\n";
  }
  return part;
}

/// Parts between lines that none of them can have: no line of text in that coding begins with "=_", nor has any other.
std::string severalParts(const std::string& kind, const std::string& one, const std::string& other) {
  const std::string border = "=_" + kind;
  return "Content-Type: multipart/" + kind + "; boundary=\"" + border + "\"\r\n\r\n--" + border + "\r\n" + one +
         "\r\n--" + border + "\r\n" + other + "\r\n--" + border + "--\r\n";
}

/// The header of the content, and the content itself.
std::string contentOf(const MailMessage& message) {
  std::string content = textPart(message.text, "text/plain");
  if (!message.html.empty()) {
    content = severalParts("alternative", content, textPart(message.html, "text/html"));
  }
  return message.attachment ? severalParts("mixed", content, filePart(*message.attachment)) : content;
}

std::string badMailAddress(const std::string& text) {
  return "The mail address \"" + quotable(text) + "\" is not valid.";
}

}  // namespace

bool MailAddress::needsUtf8() const { return !isAscii(address); }

std::string MailAddress::inHeader() const {
  if (name.empty()) {
    return address;
  }
  const bool plain = isAscii(name) && name.find("=?") == std::string::npos && name.size() <= kLongestName;
  return (plain ? quoted(name) : encodedWords(name)) + " <" + address + ">";
}

std::optional<MailAddress> parseMailAddress(const std::string& text) {
  MailAddress result;
  std::string_view rest = trimmed(text);
  if (const auto open = rest.rfind('<'); open != std::string_view::npos && rest.ends_with('>')) {
    result.name = asOneLine(std::string(trimmed(rest.substr(0, open), " \t\r\n\"")));
    rest = rest.substr(open + 1, rest.size() - open - 2);
  }
  const auto isBad = [](char c) {
    return isControl(c) || std::string_view(" <>,;\"\\()").find(c) != std::string_view::npos;
  };
  if (rest.empty() || rest.front() == '@' || rest.back() == '@' || std::ranges::any_of(rest, isBad) || !isUtf8(rest)) {
    return std::nullopt;
  }
  result.address = rest;
  if (const auto at = result.address.rfind('@'); at != std::string::npos) {
    const std::string domain = result.address.substr(at + 1);
    if (!isAscii(domain)) {
      const std::string ascii = QUrl::toAce(QString::fromStdString(domain)).toStdString();
      if (ascii.empty()) {
        return std::nullopt;
      }
      result.address.replace(at + 1, std::string::npos, ascii);
    }
  }
  return result;
}

std::string headerText(const std::string& text) {
  std::string line = asOneLine(text);
  return isAscii(line) && line.find("=?") == std::string::npos && line.size() <= kLongestValue ? line
                                                                                               : encodedWords(line);
}

std::string quotedPrintable(std::string_view text) {
  constexpr std::size_t kLongestLine = 76;
  std::string result;
  std::size_t length = 0;
  const auto add = [&](const std::string& piece) {
    if (length + piece.size() >= kLongestLine) {
      result += "=\r\n";
      length = 0;
    }
    result += piece;
    length += piece.size();
  };
  while (!text.empty()) {
    const char c = text.front();
    text.remove_prefix(1);
    if (c == '\r' && text.starts_with('\n')) {
      continue;
    }
    const bool endsLine = text.empty() || text.starts_with('\n') || text.starts_with('\r');
    if (c == '\n' || c == '\r') {
      result += "\r\n";
      length = 0;
    } else if (c == '=' || isControl(c) || !isAscii({&c, 1}) || (c == ' ' && endsLine)) {
      std::string coded;
      appendPercentEncoded(coded, c);
      coded[0] = '=';
      add(coded);
    } else {
      add(std::string(1, c));
    }
  }
  return length == 0 ? result : result + "\r\n";
}

std::string refusalOf(const MailServer& server, const MailMessage& message) {
  if (!isHost(server.host)) {
    return "The name of the mail server \"" + quotable(server.host) + "\" is not valid.";
  }
  if (std::ranges::any_of(server.user, isControl) || std::ranges::any_of(server.secret, isControl)) {
    return "The user name or the password for the mail server holds a character that cannot be sent.";
  }
  if (message.to.empty()) {
    return "The mail has no recipient.";
  }
  if (!parseMailAddress(message.from)) {
    return badMailAddress(message.from);
  }
  const auto bad = std::ranges::find_if(message.to, [](const std::string& to) { return !parseMailAddress(to); });
  if (bad != message.to.end()) {
    return badMailAddress(*bad);
  }
  for (const auto& [name, value] : message.headers) {
    if (!isHeaderName(name)) {
      return "The header \"" + quotable(name) + "\" cannot be sent with a mail.";
    }
  }
  return {};
}

std::string wholeMail(const MailMessage& message) {
  const std::string content = contentOf(message);
  std::string mail = headerOf(message) + "MIME-Version: 1.0\r\n" + content;
  // A line of a single dot would end it.
  for (auto at = mail.find("\r\n."); at != std::string::npos; at = mail.find("\r\n.", at + 3)) {
    mail.insert(at + 2, 1, '.');
  }
  return mail;
}

}  // namespace tarnwick
