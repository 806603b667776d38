// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// What is said in an exchange of SMTP (RFC 5321), as far as it tells how that went: the step that it is at, and the
/// server's last words. What a log-in consists of is never kept.
class SmtpTalk {
 public:
  /// We have sent the line.
  void said(std::string_view line);
  /// The server has sent the line. Returns true when a reply ends with it.
  bool heard(std::string_view line);

  /// The command that was sent last, "RCPT TO"; "Greeting" before the first, "Message" behind the last.
  const std::string& step() const { return step_; }
  /// The code of the last reply; 0 when the server has said nothing at this step, or something else.
  int code() const { return code_; }
  /// The server's reply at this step, of several lines one, with its code; what cannot be shown is visible.
  std::string reply() const;

  /// What the server has said that it can since the last greeting.
  bool offersUtf8() const { return offersUtf8_; }
  bool offersLogin() const { return offersLogin_; }
  bool offersSize() const { return offersSize_; }
  /// The connection is secured by STARTTLS.
  bool startsTls() const { return startsTls_; }

 private:
  void begin(std::string step);
  void noteOffer(std::string_view words);

  std::string step_ = "Greeting";
  std::string reply_;
  int code_ = 0;
  bool between_ = false;
  bool offersUtf8_ = false;
  bool offersLogin_ = false;
  bool offersSize_ = false;
  bool startsTls_ = false;
};

}  // namespace tarnwick
