// SPDX-License-Identifier: MIT
#include "mail/mail_socket.h"

#include <cmath>
#include <limits>
#include <locale>
#include <optional>
#include <sstream>
#include <string_view>

#include "base/text.h"

namespace tarnwick {
namespace {

/// The number that `text` is as a whole, in the forms in which people type numbers (250, +250, 2.5e2), rounded to a
/// whole one, a half to the even neighbour; blanks and line ends around it do not count. One that no double can hold is
/// the largest that one can.
std::optional<double> typedNumber(std::string_view text) {
  text = trimmed(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) {
    text.remove_prefix(1);
  }
  // Keeps out what only a machine calls a number: a second sign, "inf", "nan".
  if (text.find_first_of("0123456789.") != 0) {
    return std::nullopt;
  }
  std::istringstream stream{std::string(text)};
  stream.imbue(std::locale::classic());
  double number = 0;
  stream >> number;
  if (!stream.eof() || (stream.fail() && number == 0)) {
    return std::nullopt;
  }
  return std::nearbyint(negative ? -number : number);
}

}  // namespace

MailSocket::MailSocket(TcpSocketMaker& sockets) : winsock1_(sockets.makeTcpSocket()) {
  winsock1_->onDataArrival([this] { dataArrival(); });
}

bool MailSocket::isOver() const {
  const SocketState state = winsock1_->state();
  return bounded && (givenUp || state == SocketState::closed || state == SocketState::error);
}

void MailSocket::dataArrival() {
  winsockData = winsock1_->getData();
  const std::string_view data = winsockData;
  const double code = typedNumber(data.substr(0, data.find(' '))).value_or(0);

  using Limits = std::numeric_limits<std::int16_t>;
  winsockCodeOverflow = code < Limits::min() || code > Limits::max();
  winsockResponseCode = winsockCodeOverflow ? std::int16_t{0} : static_cast<std::int16_t>(code);
  wWaiting = false;
}

}  // namespace tarnwick
