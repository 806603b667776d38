// SPDX-License-Identifier: MIT
#include "delivery/hook_request.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <functional>
#include <map>
#include <optional>

#include "base/host_of_address.h"
#include "base/one_line.h"
#include "base/text.h"
#include "store/channel_table.h"

namespace tarnwick {
namespace {

constexpr std::chrono::seconds kLimit{50};
constexpr std::string_view kUsualBody = "{title}\n{text}";

using Values = std::map<std::string, std::string, std::less<>>;
using Escape = std::string (*)(std::string_view);

std::string inAddress(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (isLetter(c) || isDigit(c) || std::string_view("-._~").find(c) != std::string_view::npos) {
      escaped += c;
    } else {
      appendPercentEncoded(escaped, c);
    }
  }
  return escaped;
}

/// The token of many services is the end of a path.
std::string inPath(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    escaped += c == '/' ? std::string(1, c) : inAddress({&c, 1});
  }
  return escaped;
}

std::string inHeader(std::string_view text) {
  std::string line = oneLine(std::string(text));
  std::ranges::replace_if(
      line, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, ' ');
  return line;
}

std::string inJson(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      escaped.append(1, '\\').append(1, c);
    } else if (c == '\n') {
      escaped += "\\n";
    } else if (static_cast<unsigned char>(c) < ' ') {
      std::array<char, 8> code{};
      std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(c));
      escaped += code.data();
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string asItIs(std::string_view text) { return std::string(text); }

/// What a chat would take for its layout, for a mention or for a link (CommonMark, section 2.4).
std::string inMarkdown(std::string_view text) {
  constexpr std::string_view kSigns = "\\`*_~|[]()<>#@";
  std::string escaped;
  for (const char c : text) {
    escaped.append(kSigns.find(c) == std::string_view::npos ? 0 : 1, '\\').append(1, c);
  }
  return escaped;
}

/// The first bytes of it, without the part of a character at their end.
std::string_view cut(std::string_view text, std::size_t longest) {
  if (text.size() <= longest) {
    return text;
  }
  while (longest > 0 && (static_cast<unsigned char>(text[longest]) & 0xc0U) == 0x80) {
    --longest;
  }
  return text.substr(0, longest);
}

/// What stands for "title", or "title:200:html"; nothing for what is no placeholder.
std::optional<std::string> valueOf(std::string_view placeholder, const Values& values) {
  const std::size_t end = placeholder.find(':');
  const auto value = values.find(placeholder.substr(0, end));
  if (value == values.end()) {
    return std::nullopt;
  }
  std::string text = value->second;
  for (std::string_view rest = placeholder.substr(std::min(end, placeholder.size())); !rest.empty();) {
    rest.remove_prefix(1);
    const std::string_view way = rest.substr(0, rest.find(':'));
    rest.remove_prefix(way.size());
    std::size_t longest = 0;
    const auto [stop, fault] = std::from_chars(way.data(), way.data() + way.size(), longest);
    if (way == "html") {
      text = htmlText(text);
    } else if (way == "markdown") {
      text = inMarkdown(text);
    } else if (fault == std::errc() && stop == way.data() + way.size()) {
      text = cut(text, longest);
    } else {
      return std::nullopt;
    }
  }
  return text;
}

/// In one go, so that what is filled in is not looked at again.
std::string filled(std::string_view pattern, const Values& values, Escape escape) {
  std::string text;
  while (!pattern.empty()) {
    const std::size_t begin = pattern.find('{');
    text.append(pattern.substr(0, begin));
    if (begin == std::string_view::npos) {
      break;
    }
    pattern.remove_prefix(begin);
    const std::size_t end = pattern.find('}');
    const auto value = end == std::string_view::npos ? std::nullopt : valueOf(pattern.substr(1, end - 1), values);
    if (value) {
      text += escape(*value);
      pattern.remove_prefix(end + 1);
    } else {
      text += '{';
      pattern.remove_prefix(1);
    }
  }
  return text;
}

Values valuesOf(const std::string& secret, std::span<const OutboxRow> rows, const AlertText& message) {
  const Alert& alert = rows.front().alert;
  return {{"title", message.title},
          {"text", message.text},
          {"event", alert.event},
          {"url", plainLine(withoutCredentials(alert.url))},
          {"host", plainLine(hostOfAddress(alert.url))},
          {"site", std::to_string(alert.idSite)},
          {"date", dateTimeText(alert.made)},
          {"cause", plainLine(alert.cause)},
          {"downSince", plainLine(alert.downSince)},
          {"downFor", plainLine(alert.downFor)},
          {"checks", plainLine(alert.checks)},
          {"firstError", plainLine(alert.firstError)},
          {"count", std::to_string(rows.size())},
          {"id", std::to_string(rows.front().id) + "-" + std::to_string(alert.made.time_since_epoch().count())},
          {"secret", secret}};
}

Escape escapeFor(std::string_view form) {
  return form == channel_value::json ? &inJson : form == channel_value::webForm ? &inAddress : &asItIs;
}

std::string_view typeOf(std::string_view form) {
  return form == channel_value::json      ? "application/json"
         : form == channel_value::webForm ? "application/x-www-form-urlencoded"
                                          : "text/plain; charset=utf-8";
}

std::string headersOf(const Channel& channel, const Values& values) {
  std::string headers;
  bool hasType = false;
  const std::string lines = channel.setting(channel_field::headers);
  for (std::string_view rest = lines; !rest.empty();) {
    const std::size_t end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    hasType = hasType || equalsIgnoringCase(line.substr(0, line.find(':')), "Content-Type");
    headers += inHeader(filled(line, values, &inHeader)) + "\r\n";
  }
  if (!hasType) {
    headers.append("Content-Type: ").append(typeOf(channel.setting(channel_field::form))).append("\r\n");
  }
  return headers;
}

}  // namespace

const std::vector<HookPlaceholder>& hookPlaceholders() {
  static const std::vector<HookPlaceholder> placeholders{
      {"title", "what has happened, in one line: \"shop.example.org changed\""},
      {"text", "all of it, in lines"},
      {"event", "\"down\", \"still down\", \"up\", \"unsteady\", \"slow\", \"certificate\", \"issuer\" or \"online\""},
      {"url", "the site's address"},
      {"host", "its host"},
      {"site", "its number"},
      {"date", "when it happened"},
      {"cause", "why the check failed"},
      {"downSince", "since when it is down"},
      {"downFor", "for how long"},
      {"checks", "how many checks have failed"},
      {"firstError", "the first error of the outage"},
      {"count", "how many alerts this message holds"},
      {"id", "a word that is the alert's own, and the same when it is tried again"},
      {"secret", "the token, which is kept apart from the list"},
  };
  return placeholders;
}

Request hookRequest(const Channel& channel, const std::string& secret, std::span<const OutboxRow> rows,
                    const AlertText& message) {
  Values values = valuesOf(secret, rows, message);
  const std::string method = channel.setting(channel_field::method);
  const std::string body = channel.setting(channel_field::body);
  Request request;
  Values secretAlone;
  secretAlone.insert(values.extract("secret"));
  request.url = filled(channel.setting(channel_field::address), values, &inAddress);
  request.url = filled(request.url, secretAlone, &inPath);
  values.merge(secretAlone);
  request.method = method.empty() ? "POST" : upperCase(method);
  request.timeout = kLimit;
  request.headers = headersOf(channel, values);
  request.body = filled(body.empty() ? kUsualBody : std::string_view(body), values,
                        escapeFor(channel.setting(channel_field::form)));
  request.sendsBodyAlways = true;
  // What the secret is for must not get to another place.
  request.followsRedirects = false;
  return request;
}

}  // namespace tarnwick
