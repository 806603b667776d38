// SPDX-License-Identifier: MIT
#include "delivery/mail_letter.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text.h"
#include "store/channel_table.h"

namespace tarnwick {
namespace {

constexpr std::uint16_t kSubmission = 587;
constexpr std::uint16_t kSecureSubmission = 465;
constexpr std::uint16_t kRelay = 25;

MailSafety safetyOf(const Channel& channel) {
  const std::string word = channel.setting(channel_field::safety);
  return word == channel_value::tls    ? MailSafety::tls
         : word == channel_value::none ? MailSafety::none
                                       : MailSafety::startTls;
}

MailLogin loginOf(const Channel& channel) {
  const std::string word = channel.setting(channel_field::login);
  return word == channel_value::plain     ? MailLogin::plain
         : word == channel_value::login   ? MailLogin::login
         : word == channel_value::xoauth2 ? MailLogin::xoauth2
                                          : MailLogin::automatic;
}

std::vector<std::string> listOf(const std::string& addresses) {
  std::vector<std::string> list;
  for (std::string_view rest = addresses; !rest.empty();) {
    const std::size_t comma = rest.find(',');
    list.emplace_back(trimmed(rest.substr(0, comma)));
    rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
  }
  return list;
}

/// Servers refuse, or drop unseen, what comes from an address that is not that of the account.
std::string usualSender(const Channel& channel, const std::vector<std::string>& to) {
  const std::string user = channel.setting(channel_field::user);
  return isMailAddress(user) ? user : to.empty() ? std::string() : to.front();
}

}  // namespace

MailServer mailServer(const Channel& channel, const std::string& secret) {
  MailServer server;
  server.host = channel.setting(channel_field::server);
  server.safety = safetyOf(channel);
  server.login = loginOf(channel);
  server.user = channel.setting(channel_field::user);
  server.secret = secret;
  server.caFile = channel.setting(channel_field::authorities);
  const std::string port = channel.setting(channel_field::port);
  server.port = !port.empty()                       ? static_cast<std::uint16_t>(std::atoi(port.c_str()))
                : server.safety == MailSafety::tls  ? kSecureSubmission
                : server.safety == MailSafety::none ? kRelay
                                                    : kSubmission;
  return server;
}

std::string mailDate(LocalTime time) {
  using namespace std::chrono;
  constexpr std::array<const char*, 7> kDays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array<const char*, 12> kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const local_days day = floor<days>(time);
  const year_month_day date(day);
  const hh_mm_ss clock(time - day);
  // How far the wall clock is from UTC, by one look at a moment that is at most a day away, and one at the moment.
  const sys_seconds near(time.time_since_epoch());
  const sys_seconds moment = near - (localTimeAt(near).time_since_epoch() - near.time_since_epoch());
  const auto offset = duration_cast<minutes>(localTimeAt(moment).time_since_epoch() - moment.time_since_epoch());
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%s, %u %s %d %02d:%02d:%02d %c%02d%02d", kDays.at(weekday(day).c_encoding()),
                static_cast<unsigned>(date.day()), kMonths.at(static_cast<unsigned>(date.month()) - 1),
                static_cast<int>(date.year()), static_cast<int>(clock.hours().count()),
                static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()),
                offset.count() < 0 ? '-' : '+', static_cast<int>(std::abs(offset.count()) / 60),
                static_cast<int>(std::abs(offset.count()) % 60));
  return text.data();
}

MailMessage mailLetter(const Channel& channel, std::span<const OutboxRow> rows, const AlertText& message) {
  const OutboxRow& first = rows.front();
  MailMessage mail;
  mail.to = listOf(channel.setting(channel_field::to));
  mail.from = channel.setting(channel_field::from);
  if (mail.from.empty()) {
    mail.from = usualSender(channel, mail.to);
  }
  mail.subject = message.title;
  mail.text = message.text;
  mail.html = message.html;
  mail.date = mailDate(first.alert.made);
  mail.messageId = "<" + std::to_string(first.alert.made.time_since_epoch().count()) + "." + std::to_string(first.id) +
                   "." + std::to_string(rows.size()) + ".tarnwick" +
                   mail.from.substr(std::min(mail.from.rfind('@'), mail.from.size())) + ">";
  // RFC 3834, section 5: no program answers it.
  mail.headers.emplace_back("Auto-Submitted", "auto-generated");
  if (rows.size() == 1 && !first.alert.page.empty() && channel.setting(channel_field::attach) == option_value::on) {
    mail.attachment = first.alert.event == kMonthReport
                          ? MailPart{"report.html", "text/html", first.alert.page}
                          : MailPart{"page-" + std::to_string(first.alert.idSite) + ".txt", "application/octet-stream",
                                     first.alert.page};
  }
  return mail;
}

}  // namespace tarnwick
