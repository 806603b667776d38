// SPDX-License-Identifier: MIT
#include "platform/web/mail_exchange.h"

#include <algorithm>
#include <climits>
#include <exception>
#include <optional>
#include <utility>
#include <QSysInfo>

#include "base/base64.h"
#include "platform/os/socket_inheritance.h"
#include "platform/web/authorities.h"
#include "platform/web/curl_callback.h"
#include "platform/web/mail_text.h"
#include "platform/web/server_name.h"
#include "platform/web/socket_errors.h"
#include "platform/web/transfer_failure.h"

namespace tarnwick {
namespace {

/// The longest that libcurl takes.
constexpr std::chrono::seconds kLongestWait{INT_MAX / 1000};
/// Replies that say no (RFC 5321, section 4.2.1) are these and above.
constexpr int kRefused = 400;
/// A shorter one is found in words that have nothing to do with it.
constexpr std::size_t kShortestHidden = 4;
/// A line of a reply has at most 512 (RFC 5321, section 4.5.3.1.5); of a longer one the start will do.
constexpr std::size_t kLongestLine = 2048;
/// More than that is no answer to a command: a server that talks faster than we read would be listened to for ever.
constexpr std::size_t kLongestAnswer = 1'000'000;
/// The server is about to close the connection; the old greeting would only be met by silence (RFC 5321, section 3.8).
constexpr int kClosing = 421;

template <class Value>
void set(CURL* easy, CURLoption option, Value value) {
  curl_easy_setopt(easy, option, value);
}

std::chrono::seconds limitOf(const MailServer& server) {
  const std::chrono::seconds limit = server.limit.count() > 0 ? server.limit : MailServer{}.limit;
  return std::min(limit, kLongestWait);
}

std::string urlOf(const MailServer& server, const std::string& path = {}) {
  const bool bare = server.host.find(':') != std::string::npos && !server.host.starts_with('[');
  return (server.safety == MailSafety::tls ? "smtps://" : "smtp://") + (bare ? "[" + server.host + "]" : server.host) +
         ":" + std::to_string(server.port) + path;
}

/// The name that we greet with: many servers want a whole one, or an address (RFC 5321, section 4.1.3).
std::string greetingName() {
  const std::string name = QSysInfo::machineHostName().toStdString();
  const bool whole =
      name.find('.') != std::string::npos && std::ranges::all_of(name, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-';
      });
  return whole ? name : "%5B127.0.0.1%5D";
}

const char* loginOptions(const MailServer& server) {
  switch (server.login) {
    case MailLogin::plain:
      return "AUTH=PLAIN";
    case MailLogin::login:
      return "AUTH=LOGIN";
    case MailLogin::xoauth2:
      return "AUTH=XOAUTH2";
    case MailLogin::automatic:
      break;
  }
  // The one that hides the password fails where the server keeps none that it could be compared with.
  return server.safety == MailSafety::none ? "AUTH=CRAM-MD5;AUTH=PLAIN;AUTH=LOGIN" : "AUTH=PLAIN;AUTH=LOGIN";
}

std::string secondsText(std::chrono::seconds time) {
  return time.count() == 1 ? "1 second" : std::to_string(time.count()) + " seconds";
}

}  // namespace

MailExchange::MailExchange(const MailServer& server, const MailMessage& message, Authorities& authorities,
                           CurlEventLoop& loop)
    : server_(server), authorities_(authorities), loop_(loop), easy_(curl_easy_init(), &curl_easy_cleanup) {
  const MailAddress from = parseMailAddress(message.from).value_or(MailAddress());
  needsUtf8_ = from.needsUtf8();
  commands_.push_back("MAIL FROM:<" + from.address + ">");
  for (const std::string& each : message.to) {
    const MailAddress to = parseMailAddress(each).value_or(MailAddress());
    needsUtf8_ = needsUtf8_ || to.needsUtf8();
    commands_.push_back("RCPT TO:<" + to.address + ">\r\n");
  }
  commands_.emplace_back("DATA\r\n");
  commands_.push_back(wholeMail(message) + ".\r\n");
  if (easy_) {
    setCallbacks();
    setServer();
    setLogin();
  }
}

MailExchange::~MailExchange() {
  // Before the socket that they watch.
  readable_.reset();
  writable_.reset();
  if (easy_) {
    loop_.stop(easy_.get());
  }
}

bool MailExchange::start(std::function<void(MailReply)> done) {
  done_ = std::move(done);
  return easy_ && loop_.start(
                      easy_.get(), limitOf(server_), [this](CURLcode result) { end(result); }, [this] { handOver(); });
}

void MailExchange::setCallbacks() {
  CURL* const easy = easy_.get();
  set(easy, CURLOPT_ERRORBUFFER, detail_.data());
  set(easy, CURLOPT_SOCKOPTFUNCTION, kGuarded<MailExchange, &MailExchange::onSocket, 0, CURL_SOCKOPT_ERROR>);
  set(easy, CURLOPT_SOCKOPTDATA, this);
  set(easy, CURLOPT_SSL_CTX_FUNCTION, kGuarded<MailExchange, &MailExchange::onHandshake, 2, CURLE_OUT_OF_MEMORY>);
  set(easy, CURLOPT_SSL_CTX_DATA, this);
  set(easy, CURLOPT_DEBUGFUNCTION, kGuarded<MailExchange, &MailExchange::onSaid, 4, 0>);
  set(easy, CURLOPT_DEBUGDATA, this);
  set(easy, CURLOPT_VERBOSE, 1L);
  set(easy, CURLOPT_HEADERFUNCTION, kGuarded<MailExchange, &MailExchange::onHeard, 3, CURL_WRITEFUNC_ERROR>);
  set(easy, CURLOPT_HEADERDATA, this);
}

void MailExchange::setServer() {
  CURL* const easy = easy_.get();
  set(easy, CURLOPT_URL, urlOf(server_, "/" + greetingName()).c_str());
  set(easy, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  set(easy, CURLOPT_USE_SSL,
      static_cast<long>(server_.safety == MailSafety::startTls ? CURLUSESSL_ALL : CURLUSESSL_NONE));
  set(easy, CURLOPT_SSL_VERIFYPEER, 1L);
  set(easy, CURLOPT_SSL_VERIFYHOST, 2L);
  authorities_.prepare(easy);
  set(easy, CURLOPT_NOSIGNAL, 1L);
  // Cancelling must not wait for a name look-up that is under way in the system's resolver.
  set(easy, CURLOPT_QUICK_EXIT, 1L);
  // Each mail has a connection of its own, with its own log-in.
  set(easy, CURLOPT_FRESH_CONNECT, 1L);
  set(easy, CURLOPT_CONNECT_ONLY, 1L);
  set(easy, CURLOPT_SSL_SESSIONID_CACHE, 0L);
  set(easy, CURLOPT_DNS_CACHE_TIMEOUT, 0L);
  // The event loop bounds the whole.
  set(easy, CURLOPT_SERVER_RESPONSE_TIMEOUT, static_cast<long>(kLongestWait.count()));
}

void MailExchange::setLogin() {
  if (server_.user.empty()) {
    return;
  }
  CURL* const easy = easy_.get();
  set(easy, CURLOPT_USERNAME, server_.user.c_str());
  set(easy, CURLOPT_LOGIN_OPTIONS, loginOptions(server_));
  set(easy, server_.login == MailLogin::xoauth2 ? CURLOPT_XOAUTH2_BEARER : CURLOPT_PASSWORD, server_.secret.c_str());
}

int MailExchange::onSocket(void*, curl_socket_t socket, curlsocktype) {
  setCloseOnExec(static_cast<std::uintptr_t>(socket));
  return CURL_SOCKOPT_OK;
}

CURLcode MailExchange::onHandshake(CURL*, void* context, void* self) {
  auto* const exchange = static_cast<MailExchange*>(self);
  exchange->handshaking_ = true;
  return exchange->authorities_.trust(context);
}

int MailExchange::onSaid(CURL*, curl_infotype kind, char* data, std::size_t size, void* self) {
  if (kind == CURLINFO_HEADER_OUT) {
    static_cast<MailExchange*>(self)->talk_.said({data, size});
  }
  return 0;
}

std::size_t MailExchange::onHeard(char* data, std::size_t size, std::size_t count, void* self) {
  const std::size_t length = size * count;
  return static_cast<MailExchange*>(self)->goesOn({data, length}) ? length : 0;
}

bool MailExchange::goesOn(std::string_view line) {
  const bool replied = talk_.heard(line);
  const bool greeted = replied && (talk_.step() == "EHLO" || talk_.step() == "HELO") && talk_.code() < kRefused;
  if (replied && talk_.code() == kClosing) {
    return false;
  }
  const bool asFarAsItGets = server_.safety != MailSafety::startTls || talk_.startsTls();
  if (greeted && asFarAsItGets && needsUtf8_ && !talk_.offersUtf8()) {
    stopped_ = Stopped::withoutUtf8;
    return false;
  }
  return true;
}

void MailExchange::handOver() {
  curl_socket_t socket = CURL_SOCKET_BAD;
  curl_easy_getinfo(easy_.get(), CURLINFO_ACTIVESOCKET, &socket);
  const auto act = [this] { exchange(); };
  readable_ = std::make_unique<QSocketNotifier>(static_cast<qintptr>(socket), QSocketNotifier::Read);
  QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(), act);
  writable_ = std::make_unique<QSocketNotifier>(static_cast<qintptr>(socket), QSocketNotifier::Write);
  QObject::connect(writable_.get(), &QSocketNotifier::activated, writable_.get(), act);
  if (talk_.offersSize()) {
    commands_.front() += " SIZE=" + std::to_string(commands_.back().size());
  }
  commands_.front() += needsUtf8_ ? " SMTPUTF8\r\n" : "\r\n";
  sayNext();
}

// The event loop below is a C library's: what is raised ends here.
void MailExchange::exchange() noexcept {
  try {
    while (sendOn() && receive()) {
    }
  } catch (const std::exception&) {
    end(CURLE_OUT_OF_MEMORY);
  }
}

bool MailExchange::sendOn() {
  while (!unsent_.empty()) {
    std::size_t sent = 0;
    const CURLcode result = curl_easy_send(easy_.get(), unsent_.data(), unsent_.size(), &sent);
    if (result == CURLE_AGAIN) {
      writable_->setEnabled(true);
      return false;
    }
    unsent_.remove_prefix(sent);
    if (result != CURLE_OK) {
      // What the server has said of it may have come before it hung up.
      unsent_ = {};
      hungUp_ = true;
      break;
    }
  }
  writable_->setEnabled(false);
  return true;
}

// True when there is more to say.
bool MailExchange::receive() {
  while (!ended_) {
    std::array<char, 4096> bytes;
    std::size_t length = 0;
    const CURLcode result = curl_easy_recv(easy_.get(), bytes.data(), bytes.size(), &length);
    if (result == CURLE_AGAIN && !hungUp_) {
      return false;
    }
    if (result != CURLE_OK || length == 0) {
      end(CURLE_RECV_ERROR);
      return false;
    }
    heard_ += length;
    take({bytes.data(), length});
    if (!ended_ && heard_ > kLongestAnswer) {
      end(CURLE_WEIRD_SERVER_REPLY);
      return false;
    }
    if (!unsent_.empty()) {
      return true;
    }
  }
  return false;
}

void MailExchange::take(std::string_view bytes) {
  for (const char c : bytes) {
    if (ended_) {
      return;
    }
    if (line_.size() < kLongestLine) {
      line_ += c;
    }
    if (c == '\n' && talk_.heard(std::exchange(line_, {}))) {
      goOn();
    } else if (c == '\n') {
      line_.clear();
    }
  }
}

// The server has answered what was said last.
void MailExchange::goOn() {
  constexpr int kWell = 2;
  const bool isToSendIt = talk_.step() == "Message" && talk_.code() == 0;
  const bool well = talk_.step() != "DATA" && talk_.code() / 100 == kWell;
  if (!unsent_.empty() || !(isToSendIt || well)) {
    takeLeave();
    end(CURLE_WEIRD_SERVER_REPLY);
  } else if (said_ == commands_.size()) {
    takeLeave();
    end(CURLE_OK);
  } else {
    sayNext();
  }
}

void MailExchange::sayNext() {
  heard_ = 0;
  unsent_ = commands_[said_++];
  if (said_ < commands_.size()) {
    talk_.said(unsent_);
  }
}

// Nobody waits for the answer to that.
void MailExchange::takeLeave() {
  constexpr std::string_view kLeave = "QUIT\r\n";
  std::size_t sent = 0;
  if (unsent_.empty()) {
    curl_easy_send(easy_.get(), kLeave.data(), kLeave.size(), &sent);
  }
}

void MailExchange::end(CURLcode result) noexcept {
  ended_ = true;
  for (const auto* notifier : {&readable_, &writable_}) {
    if (*notifier) {
      (*notifier)->setEnabled(false);  // it may be the one that calls us
    }
  }
  MailReply reply{.delivered = result == CURLE_OK};
  try {
    reply = replyOf(result);
  } catch (const std::exception&) {
    // There is no memory for words.
  }
  loop_.stop(easy_.get());
  done_(std::move(reply));
}

MailReply MailExchange::noMemory() { return {.words = "There is not enough memory for the mail."}; }

MailReply MailExchange::replyOf(CURLcode result) const {
  if (result == CURLE_OK) {
    return {.delivered = true, .words = withoutSecret(talk_.step() + ": " + talk_.reply())};
  }
  if (result == CurlEventLoop::kStarved || result == CURLE_OUT_OF_MEMORY || stopped_ == Stopped::memory) {
    return noMemory();
  }
  return {.words = withoutSecret(whyNot(result))};
}

std::string MailExchange::whyNot(CURLcode result) const {
  constexpr int kGoOn = 334;
  const std::string theServer = "The mail server " + ServerName(urlOf(server_)).place;
  if (stopped_ == Stopped::withoutUtf8) {
    return theServer + " takes no mail addresses with other letters than those of ASCII.";
  }
  if (talk_.code() >= kRefused || (result == CURLE_LOGIN_DENIED && talk_.code() == kGoOn)) {
    const bool withoutLogin = !server_.user.empty() && !talk_.offersLogin() && talk_.step() == "MAIL FROM";
    return talk_.step() + ": " + talk_.reply() + (withoutLogin ? " (the server offers no log-in)" : "");
  }
  switch (result) {
    case CURLE_OPERATION_TIMEDOUT:
      return theServer + " has not taken the mail within " + secondsText(limitOf(server_)) + "; the last step was " +
             talk_.step() + ".";
    case CURLE_USE_SSL_FAILED:
      return theServer + " offers no encryption, and it is required.";
    case CURLE_LOGIN_DENIED:
      return theServer + " offers none of the ways to log in that are known here.";
    default:
      return whyNoConnection(result);
  }
}

std::string MailExchange::whyNoConnection(CURLcode result) const {
  const ServerName name(urlOf(server_));
  switch (result) {
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_UPLOAD_FAILED:
      return "The mail server " + name.place + " broke the connection off; the last step was " + talk_.step() + ".";
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_REMOTE_ACCESS_DENIED:
      return "The mail server " + name.place + " did not answer in the language of mail.";
    default:
      break;
  }
  long error = 0;
  curl_easy_getinfo(easy_.get(), CURLINFO_OS_ERRNO, &error);
  long certificate = 0;
  curl_easy_getinfo(easy_.get(), CURLINFO_SSL_VERIFYRESULT, &certificate);
  return failureOf({.result = result,
                    .detail = detail_.data(),
                    .url = urlOf(server_),
                    .systemError = errnoOfSocket(static_cast<int>(error)),
                    .certificateError = static_cast<int>(certificate),
                    .handshaking = handshaking_,
                    .timeout = limitOf(server_),
                    .caFile = server_.caFile})
      .cause;
}

std::string MailExchange::withoutSecret(std::string text) const {
  for (const std::string& hidden : {server_.secret, encodeBase64(server_.secret),
                                    encodeBase64(std::string(1, '\0') + server_.user + '\0' + server_.secret)}) {
    for (auto at = text.find(hidden); hidden.size() >= kShortestHidden && at != std::string::npos;
         at = text.find(hidden, at)) {
      text.replace(at, hidden.size(), "***");
    }
  }
  return text;
}

}  // namespace tarnwick
