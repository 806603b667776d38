// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "delivery/alert_text.h"
#include "platform/transfer_control.h"
#include "store/channels.h"

namespace tarnwick {

/// The request that tells these through a web hook. In its address, headers and body each placeholder, such as
/// `{title}`, stands for a text, which is escaped for where it stands: percent-encoded in the address, one line in a
/// header, as the body's form wants it in the body (JSON: RFC 8259, section 7). No text can become anything else there.
/// What is no placeholder stays as it is.
/// Behind its name, each after a colon, a placeholder may say what is done to its text first: `{text:2000}` takes its
/// first 2000 bytes, `{text:html}` spells out what HTML would take for markup, and `{text:markdown}` what a chat would.
Request hookRequest(const Channel& channel, const std::string& secret, std::span<const OutboxRow> rows,
                    const AlertText& message);

/// The placeholders with what they stand for, for people.
struct HookPlaceholder {
  std::string name;  ///< without the braces
  std::string meaning;
};
const std::vector<HookPlaceholder>& hookPlaceholders();

}  // namespace tarnwick
