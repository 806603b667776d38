// SPDX-License-Identifier: MIT
#include "platform/web/smtp_talk.h"

#include <algorithm>
#include <utility>

#include "base/base64.h"
#include "base/decode_error.h"
#include "base/text.h"
#include "base/visible_text.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestReply = 1000;
constexpr std::size_t kLongestShown = 400;
constexpr std::size_t kCodeLength = 3;
constexpr int kReady = 220;
constexpr int kGoOn = 334;
constexpr int kSendIt = 354;

/// "5.1.1" at the start of a line's words, with the blank behind it; empty for none (RFC 3463).
std::string_view enhancedCode(std::string_view words) {
  const auto end = std::ranges::find_if_not(words, [](char c) { return isDigit(c) || c == '.'; }) - words.begin();
  const std::string_view code = words.substr(0, static_cast<std::size_t>(end));
  return std::ranges::count(code, '.') == 2 ? words.substr(0, code.size() + 1) : std::string_view();
}

/// What a server says of a token that it does not take stands behind its challenge, in a coding (RFC 4954).
std::string plainChallenge(const std::string& reply) {
  const std::string coded(trimmed(std::string_view(reply).substr(std::min(reply.size(), kCodeLength + 1))));
  try {
    std::string plain = decodeBase64(coded);
    return plain.starts_with('{') ? std::to_string(kGoOn) + " " + plain : reply;
  } catch (const DecodeError&) {
    return reply;
  }
}

}  // namespace

void SmtpTalk::begin(std::string step) {
  step_ = std::move(step);
  reply_.clear();
  code_ = 0;
  between_ = false;
}

void SmtpTalk::said(std::string_view line) {
  line = trimmed(line);
  if (step_ == "AUTH" && code_ == kGoOn) {
    // Part of the log-in, whatever it looks like.
    begin("AUTH");
    return;
  }
  for (const std::string_view command : {"EHLO", "HELO", "STARTTLS", "AUTH", "MAIL FROM", "RCPT TO", "DATA"}) {
    if (line.starts_with(command)) {
      if (command == "EHLO" || command == "HELO") {
        offersUtf8_ = offersLogin_ = offersSize_ = false;
      }
      begin(std::string(command));
      return;
    }
  }
}

bool SmtpTalk::heard(std::string_view line) {
  line = trimmed(line, "\r\n");
  const bool isReply = line.size() >= kCodeLength && std::ranges::all_of(line.substr(0, kCodeLength), isDigit) &&
                       (line.size() == kCodeLength || line[kCodeLength] == ' ' || line[kCodeLength] == '-');
  if (!isReply) {
    if (reply_.size() < kLongestReply) {
      reply_ += (reply_.empty() ? "" : " ") + std::string(line.substr(0, kLongestReply));
    }
    return false;
  }
  const bool isLast = line.size() == kCodeLength || line[kCodeLength] == ' ';
  std::string_view words = line.substr(std::min(line.size(), kCodeLength + 1));
  // Of codes that differ the last one counts.
  reply_.replace(0, between_ ? kCodeLength : std::string::npos, line.substr(0, kCodeLength));
  if (const auto code = enhancedCode(words); between_ && !code.empty() && reply_.find(code) == kCodeLength + 1) {
    words.remove_prefix(code.size());
  }
  noteOffer(words);
  if (!words.empty() && reply_.size() < kLongestReply) {
    reply_ += ' ' + std::string(words.substr(0, kLongestReply));
  }
  between_ = !isLast;
  code_ = (line[0] - '0') * 100 + (line[1] - '0') * 10 + (line[2] - '0');
  if (!isLast) {
    return false;
  }
  startsTls_ = startsTls_ || (step_ == "STARTTLS" && code_ == kReady);
  if (step_ == "DATA" && code_ == kSendIt) {
    begin("Message");
  }
  return true;
}

void SmtpTalk::noteOffer(std::string_view words) {
  if (step_ == "EHLO") {
    const std::string offer = upperCase(std::string(words.substr(0, words.find_first_of(" ="))));
    offersUtf8_ = offersUtf8_ || offer == "SMTPUTF8";
    offersLogin_ = offersLogin_ || words.starts_with("AUTH ");
    offersSize_ = offersSize_ || offer == "SIZE";
  }
}

std::string SmtpTalk::reply() const {
  return visibleText(code_ == kGoOn ? plainChallenge(reply_) : reply_, kLongestShown);
}

}  // namespace tarnwick
