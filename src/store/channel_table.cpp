// SPDX-License-Identifier: MIT
#include "store/channel_table.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "base/one_line.h"
#include "base/text.h"
#include "store/alarm_values.h"

namespace tarnwick {
namespace {

std::optional<std::string> lineForm(std::string_view text) {
  const std::string_view line = trimmed(text);
  return line.empty() || hasLineEnd(line) ? std::nullopt : std::optional(std::string(line));
}

std::optional<std::string> mailAddressForm(std::string_view text) {
  return isMailAddress(trimmed(text)) ? std::optional(std::string(trimmed(text))) : std::nullopt;
}

std::optional<std::string> mailAddressesForm(std::string_view text) {
  std::string addresses;
  while (true) {
    const std::size_t comma = text.find(',');
    const std::string_view one = trimmed(text.substr(0, comma));
    if (!isMailAddress(one)) {
      return std::nullopt;
    }
    addresses.append(addresses.empty() ? "" : ", ").append(one);
    if (comma == std::string_view::npos) {
      return addresses;
    }
    text.remove_prefix(comma + 1);
  }
}

/// Lines of "Name: value".
std::optional<std::string> headersForm(std::string_view text) {
  constexpr std::string_view kMarks = "!#$%&'*+-.^_`|~";
  std::string headers;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = trimmed(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.empty()) {
      continue;
    }
    const std::string_view name = line.substr(0, line.find(':'));
    // A token (RFC 9110, section 5.6.2).
    const bool isName = !name.empty() && std::ranges::all_of(name, [&](char c) {
      return isDigit(c) || isLetter(c) || kMarks.find(c) != std::string_view::npos;
    });
    if (!isName || name.size() == line.size() || hasLineEnd(line)) {
      return std::nullopt;
    }
    headers.append(headers.empty() ? "" : "\n").append(line);
  }
  return headers.empty() ? std::nullopt : std::optional(headers);
}

OptionField oneLineOf(OptionField field) {
  field.form = &lineForm;
  field.takes = "one line of text";
  return field;
}

OptionField bundleField() {
  return {.name = std::string(channel_field::bundle),
          .kind = OptionKind::number,
          .least = 2,
          .most = 10000,
          .unit = "alerts",
          .original = "each alert is a message of its own",
          .label = "Bundle from",
          .meaning = "From so many alerts of one pass on they leave as one message"};
}

ChannelKind mailKind() {
  ChannelKind kind{.name = std::string(channel_kind::mail),
                   .label = "Mail",
                   .meaning = "A mail through the mail server of your provider, or one of your own",
                   .fields = {},
                   .secret = "Password"};
  kind.fields = {
      {.name = std::string(channel_field::to),
       .original = "",
       .label = "To",
       .meaning = "Who is told",
       .form = &mailAddressesForm,
       .takes = "one mail address or more, parted by commas, as in \"me@example.org, team@example.org\""},
      {.name = std::string(channel_field::from),
       .original = "the user, where that is an address; else the first address of who is told",
       .label = "From",
       .meaning = "Whose mail it is; most servers want the address of your own account here",
       .form = &mailAddressForm,
       .takes = "one mail address"},
      oneLineOf({.name = std::string(channel_field::server),
                 .original = "",
                 .label = "Server",
                 .meaning = "The mail server, by its name or address"}),
      {.name = std::string(channel_field::port),
       .kind = OptionKind::number,
       .least = 1,
       .most = 65535,
       .original = "587, with TLS 465, without encryption 25",
       .label = "Port",
       .meaning = "Where the server listens"},
      {.name = std::string(channel_field::safety),
       .kind = OptionKind::choice,
       .choices = {std::string(channel_value::startTls), std::string(channel_value::tls),
                   std::string(channel_value::none)},
       .original = "starttls: nothing but the greeting is sent before the line is encrypted",
       .label = "Encryption",
       .meaning = "Whether the line is encrypted: asked for after the greeting, from the first byte on, or not at all"},
      {.name = std::string(channel_field::login),
       .kind = OptionKind::choice,
       .choices = {std::string(channel_value::plain), std::string(channel_value::login),
                   std::string(channel_value::xoauth2)},
       .original = "the best way that the server offers",
       .label = "Log-in",
       .meaning = "How to log in; xoauth2 with a token, as some providers want it"},
      oneLineOf({.name = std::string(channel_field::user),
                 .original = "without a log-in",
                 .label = "User",
                 .meaning = "The name to log in with, often the mail address"}),
      oneLineOf({.name = std::string(channel_field::tokenCommand),
                 .original = "the password is used",
                 .label = "Token command",
                 .meaning = "A program that prints the token for xoauth2; it is run before each mail"}),
      oneLineOf({.name = std::string(channel_field::authorities),
                 .original = "those of the system",
                 .label = "CA file",
                 .meaning = "A file with the certificate authorities (PEM) to trust for this server, as for a "
                            "certificate of your own"}),
      {.name = std::string(channel_field::attach),
       .kind = OptionKind::flag,
       .original = "the difference alone is in the mail",
       .label = "Attach the page",
       .meaning = "Whether the whole page is attached"},
      bundleField(),
  };
  return kind;
}

ChannelKind hookKind() {
  ChannelKind kind{.name = std::string(channel_kind::hook),
                   .label = "Web hook",
                   .meaning = "A request to an address of a service that tells people, as ntfy, Gotify or a chat",
                   .fields = {},
                   .secret = "Token"};
  kind.fields = {
      {.name = std::string(channel_field::address),
       .original = "",
       .label = "Address",
       .meaning = "Where the request goes; placeholders such as {secret} are filled in",
       .form = &readWebAddress,
       .takes = "an address that begins with http:// or https://"},
      oneLineOf({.name = std::string(channel_field::method),
                 .original = "POST",
                 .label = "Method",
                 .meaning = "The method of the request"}),
      {.name = std::string(channel_field::headers),
       .original = "no header of its own",
       .label = "Headers",
       .meaning = "Further headers, one a line, as in \"Authorization: Bearer {secret}\"",
       .form = &headersForm,
       .takes = "lines of a name, a colon and a value"},
      {.name = std::string(channel_field::body),
       .original = "{title}, a line end and {text}",
       .label = "Body",
       .meaning = "What is sent; placeholders are filled in, escaped for its form"},
      {.name = std::string(channel_field::form),
       .kind = OptionKind::choice,
       .choices = {std::string(channel_value::json), std::string(channel_value::webForm),
                   std::string(channel_value::text)},
       .original = "text",
       .label = "Form",
       .meaning = "What the body is, for the escaping of what is filled in and the header that tells it"},
      bundleField(),
  };
  return kind;
}

std::vector<ChannelKind> allKinds() {
  return {
      mailKind(),
      hookKind(),
      {.name = std::string(channel_kind::notice),
       .label = "Desktop notice",
       .meaning = "A notice of the desktop, while the window is open",
       .fields = {bundleField()}},
      {.name = std::string(channel_kind::program),
       .label = "Program",
       .meaning = "A program that is started, with what has happened in its command line",
       .fields = {oneLineOf({.name = std::string(channel_field::command),
                             .original = "",
                             .label = "Command",
                             .meaning = "The command line, with the same placeholders as that of the settings"}),
                  bundleField()}},
      {.name = std::string(channel_kind::sound),
       .label = "Sound",
       .meaning = "A sound on this machine",
       .fields = {oneLineOf({.name = std::string(channel_field::file),
                             .original = "",
                             .label = "File",
                             .meaning = "The .wav file that is played"})}},
  };
}

template <typename Entries>
std::string namesOf(const Entries& entries) {
  std::string names;
  for (const auto& entry : entries) {
    names += (names.empty() ? "" : ", ") + entry.name;
  }
  return names;
}

}  // namespace

bool isMailAddress(std::string_view text) {
  // What no mail server could take for anything else, and no header for its end.
  const std::size_t at = text.rfind('@');
  return at != std::string_view::npos && at > 0 && at + 1 < text.size() &&
         text.find_first_of(" \t<>,;\"()") == std::string_view::npos && !hasLineEnd(text);
}

const std::vector<ChannelKind>& channelKinds() {
  static const std::vector<ChannelKind> kinds = allKinds();
  return kinds;
}

const ChannelKind& channelKind(std::string_view name) {
  const auto found = std::ranges::find_if(channelKinds(),
                                          [&](const ChannelKind& kind) { return equalsIgnoringCase(kind.name, name); });
  if (found == channelKinds().end()) {
    throw std::runtime_error("There is no channel of the kind \"" + std::string(name) +
                             "\". The kinds are: " + namesOf(channelKinds()) + ".");
  }
  return *found;
}

const OptionField& channelField(const ChannelKind& kind, std::string_view name) {
  const auto found =
      std::ranges::find_if(kind.fields, [&](const OptionField& field) { return equalsIgnoringCase(field.name, name); });
  if (found == kind.fields.end()) {
    throw std::runtime_error("A channel of the kind " + kind.name + " has no \"" + std::string(name) +
                             "\". It has: " + namesOf(kind.fields) + ".");
  }
  return *found;
}

}  // namespace tarnwick
