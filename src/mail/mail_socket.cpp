#include "mail/mail_socket.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "base/text.h"

namespace tarnwick {
namespace {

/// Whether a number that is too far from 1 for a double, and not 0, is too large and not too small. `number` has no
/// sign: what its exponent and the place of its first digit say together decides.
bool isLarge(std::string_view number) {
  const std::string_view digits = number.substr(0, number.find_first_of("eE"));
  const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
  const auto first = static_cast<std::int64_t>(digits.find_first_not_of("0."));

  std::int64_t exponent = 0;
  if (digits.size() < number.size()) {
    std::string_view text = number.substr(digits.size() + 1);
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    if (std::from_chars(text.data(), text.data() + text.size(), exponent).ec == std::errc::result_out_of_range) {
      return !text.starts_with('-');
    }
  }
  return exponent > first - point;
}

/// The number that `text` is as a whole, in the forms in which people type numbers (250, +250, 2.5e2), rounded to a
/// whole one, a half to the even neighbour; blanks and line ends around it do not count.
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
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data(), end, number);
  if (stop != end || fault == std::errc::invalid_argument) {
    return std::nullopt;
  }
  if (fault == std::errc::result_out_of_range) {
    number = isLarge(text) ? std::numeric_limits<double>::infinity() : 0;
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
