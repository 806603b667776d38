// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/option_table.h"

namespace tarnwick {

/// The ways by which an alert can leave.
namespace channel_kind {
inline constexpr std::string_view mail = "mail";
inline constexpr std::string_view hook = "web hook";
inline constexpr std::string_view notice = "desktop notice";
inline constexpr std::string_view program = "program";
inline constexpr std::string_view sound = "sound";
}  // namespace channel_kind

/// What is set of a channel, beside its name.
namespace channel_field {
inline constexpr std::string_view to = "to";
inline constexpr std::string_view from = "from";
inline constexpr std::string_view server = "server";
inline constexpr std::string_view port = "port";
inline constexpr std::string_view safety = "safety";
inline constexpr std::string_view login = "login";
inline constexpr std::string_view user = "user";
inline constexpr std::string_view tokenCommand = "tokenCommand";
inline constexpr std::string_view authorities = "authorities";
inline constexpr std::string_view attach = "attach";
inline constexpr std::string_view address = "address";
inline constexpr std::string_view method = "method";
inline constexpr std::string_view headers = "headers";
inline constexpr std::string_view body = "body";
inline constexpr std::string_view form = "form";
inline constexpr std::string_view command = "command";
inline constexpr std::string_view file = "file";
inline constexpr std::string_view bundle = "bundle";
}  // namespace channel_field

/// Values that they take.
namespace channel_value {
inline constexpr std::string_view startTls = "starttls";
inline constexpr std::string_view tls = "tls";
inline constexpr std::string_view none = "none";
inline constexpr std::string_view plain = "plain";
inline constexpr std::string_view login = "login";
inline constexpr std::string_view xoauth2 = "xoauth2";
inline constexpr std::string_view json = "json";
inline constexpr std::string_view webForm = "form";
inline constexpr std::string_view text = "text";
}  // namespace channel_value

/// A kind of channel: what it is called, and what can be set of one, in the order in which it is shown. What a field
/// does while it is unset stands in its `original`; one without that has to be set.
struct ChannelKind {
  std::string name;
  std::string label;    ///< for people: "Web hook"
  std::string meaning;  ///< what it does, without a full stop
  std::vector<OptionField> fields;
  /// What is kept apart from the list, among the secrets; empty for a kind that has none: "Password".
  std::string secret{};
};

/// Whether it can stand for one person's mail address, without a name before it: "me@example.org" (RFC 5321, section
/// 4.1.2, without its quoted forms).
bool isMailAddress(std::string_view text);

/// All kinds, in the order in which they are offered.
const std::vector<ChannelKind>& channelKinds();
/// The kind of that name, in any letter case; raises std::runtime_error, which lists all of them, for another name.
const ChannelKind& channelKind(std::string_view name);
/// The field of that name, in any letter case; raises std::runtime_error, which lists all of them, for another name.
const OptionField& channelField(const ChannelKind& kind, std::string_view name);

}  // namespace tarnwick
