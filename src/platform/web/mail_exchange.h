// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>
#include <QSocketNotifier>

#include "platform/mail_transfer.h"
#include "platform/web/curl_event_loop.h"
#include "platform/web/smtp_talk.h"

namespace tarnwick {

class Authorities;

/// One mail on its way to its server. libcurl connects, secures the connection, greets and logs in; the mail itself is
/// handed over here, since libcurl would wait inside itself for the server to take it, and all else with it.
class MailExchange {
 public:
  /// REQUIRES: `refusalOf(server, message)` is empty. `authorities` and `loop` outlive the exchange.
  MailExchange(const MailServer& server, const MailMessage& message, Authorities& authorities, CurlEventLoop& loop);
  ~MailExchange();
  MailExchange(const MailExchange&) = delete;
  MailExchange& operator=(const MailExchange&) = delete;

  /// Starts it; `done` is called from the event loop with what it came to, once, which must not
  /// destroy this object. False when there is no memory for it.
  bool start(std::function<void(MailReply)> done);

  static MailReply noMemory();

 private:
  using EasyHandle = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
  enum class Stopped { no, withoutUtf8, memory };

  template <class, auto, std::size_t, auto>
  friend struct CurlCallback;
  /// What libcurl calls, but through `kGuarded`: they may raise.
  static int onSocket(void* self, curl_socket_t socket, curlsocktype purpose);
  static CURLcode onHandshake(CURL* easy, void* sslContext, void* self);
  static int onSaid(CURL* easy, curl_infotype kind, char* data, std::size_t size, void* self);
  static std::size_t onHeard(char* data, std::size_t size, std::size_t count, void* self);

  void setCallbacks();
  void setServer();
  void setLogin();
  void handOver();
  void exchange() noexcept;
  bool sendOn();
  bool receive();
  void take(std::string_view bytes);
  void goOn();
  void sayNext();
  void takeLeave();
  void end(CURLcode result) noexcept;
  MailReply replyOf(CURLcode result) const;
  void ranOutOfMemory() { stopped_ = Stopped::memory; }
  bool goesOn(std::string_view line);
  std::string whyNot(CURLcode result) const;
  std::string whyNoConnection(CURLcode result) const;
  std::string withoutSecret(std::string text) const;

  MailServer server_;
  Authorities& authorities_;
  CurlEventLoop& loop_;
  SmtpTalk talk_;
  bool needsUtf8_ = false;
  bool handshaking_ = false;
  Stopped stopped_ = Stopped::no;
  std::array<char, CURL_ERROR_SIZE> detail_{};
  EasyHandle easy_;
  std::function<void(MailReply)> done_;
  // What is said once the server has let us in: commands, and behind them the mail.
  std::vector<std::string> commands_;
  std::size_t said_ = 0;
  // Of the one that is being said.
  std::string_view unsent_;
  // How many bytes have come since it was begun.
  std::size_t heard_ = 0;
  bool hungUp_ = false;
  bool ended_ = false;
  // What has come of a line.
  std::string line_;
  std::unique_ptr<QSocketNotifier> readable_;
  std::unique_ptr<QSocketNotifier> writable_;
};

}  // namespace tarnwick
