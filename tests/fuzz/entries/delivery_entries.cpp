// SPDX-License-Identifier: MIT
#include "fuzz/entries/delivery_entries.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "delivery/channel_preset.h"
#include "delivery/hook_request.h"
#include "delivery/mail_letter.h"
#include "fuzz/entries/told_row.h"
#include "store/channel_table.h"

namespace tarnwick::testing {
namespace {

constexpr std::string_view kMarks = "<>\"'";

/// A page of alerts without what its form says: the texts alone, with their entities.
bool hasMarkupOfItsOwn(std::string_view html, std::size_t expected) {
  return static_cast<std::size_t>(std::ranges::count(html, '<')) != expected;
}

}  // namespace

void fuzzHookRequest(std::string_view input) {
  const std::vector<OutboxRow> rows = toldRows(input);
  const AlertText text = alertTextOf(rows);
  Channel channel{.name = "hook", .kind = std::string(channel_kind::hook)};
  channel.settings = {{"address", "http://a.example.org/{title}?b={text}&c={cause}#{secret}"},
                      {"method", "PUT"},
                      {"headers", "Title: {title}\nX-Cause: {cause:40}\nX-Error: {firstError:html}\nAuth: {secret}"},
                      {"form", "form"},
                      {"body", "a={title:markdown}&b={text:html}&c={url}&d={secret}"}};
  const Request request = hookRequest(channel, std::string(takePiece(input)), rows, text);
  constexpr std::string_view kHeaderEnd = "\r\n";
  std::size_t lines = 0;
  for (std::string_view rest = request.headers; !rest.empty(); ++lines) {
    const std::size_t end = rest.find(kHeaderEnd);
    require(end != rest.npos, "a header has no end");
    require(isOneLine(rest.substr(0, end)), "a header has a line end or a NUL byte");
    rest.remove_prefix(end + kHeaderEnd.size());
  }
  require(lines == 5, "a text has become a header");
  require(std::ranges::all_of(request.url, [](char c) { return c > ' ' && c < '\x7f'; }), "the address is none");
  require(std::ranges::count(request.url, '?') == 1 && std::ranges::count(request.url, '&') == 1 &&
              std::ranges::count(request.url, '#') == 1,
          "a text has become a part of the address");
  require(std::ranges::count(request.body, '&') == 3 && std::ranges::count(request.body, '=') == 4,
          "a text has become a field of the form");
}

void fuzzMailLetter(std::string_view input) {
  std::vector<OutboxRow> rows = toldRows(input);
  Channel channel{.name = "office", .kind = std::string(channel_kind::mail)};
  channel.settings = {{"to", "me@example.org, you@example.org"}, {"server", "smtp.example.org"}};
  const AlertText text = alertTextOf(rows);
  const MailMessage mail = mailLetter(channel, rows, text);
  for (const std::string& line : {mail.from, mail.to.at(0), mail.to.at(1), mail.subject, mail.date, mail.messageId}) {
    require(isOneLine(line), "what stands in a header has a line end or a NUL byte");
  }
  require(mail.to.size() == 2, "a text has become a recipient");
  require(isOneLine(mail.headers.front().second) && mail.headers.size() == 1, "a text has become a header");
  require(std::ranges::none_of(mail.text + mail.html,
                               [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\n'; }),
          "a text holds control characters");
  // The same alert of plain letters has the same page but for its texts.
  for (OutboxRow& row : rows) {
    for (std::string* const part : {&row.alert.url, &row.alert.cause, &row.alert.downSince, &row.alert.downFor,
                                    &row.alert.checks, &row.alert.firstError, &row.alert.difference}) {
      std::ranges::replace_if(
          *part, [](char c) { return kMarks.find(c) != kMarks.npos || c == '&'; }, 'x');
    }
  }
  const std::string plain = alertTextOf(rows).html;
  require(!hasMarkupOfItsOwn(mail.html, static_cast<std::size_t>(std::ranges::count(plain, '<'))),
          "a text has become markup");
}

void fuzzPreset(std::string_view input) {
  try {
    const ChannelPreset preset = readPreset("fuzz", input);
    Channel channel{.name = "hook", .kind = std::string(channel_kind::hook), .settings = preset.settings};
    const Channel checked = checkedChannel(channel);
    require(checked.settings == preset.settings, "a preset is stored otherwise than it was read");
    const OutboxRow row;
    hookRequest(checked, "secret", {&row, 1}, alertTextOf({&row, 1}));
  } catch (const std::logic_error&) {
    throw;
  } catch (const std::runtime_error& refusal) {
    require(isOneLine(refusal.what()), "a refusal is no line");
  }
}

}  // namespace tarnwick::testing
