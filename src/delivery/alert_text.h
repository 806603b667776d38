// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "store/outbox.h"

namespace tarnwick {

/// One alert, or several that leave together, in words for people. All texts are UTF-8 without control characters but
/// line feeds; what pages, lists and servers have brought in is text in them and nothing else.
struct AlertText {
  std::string title;  ///< one line: "shop.example.org changed"
  std::string text;   ///< lines, with the difference at their end
  std::string html;   ///< the same as a whole HTML page
};

/// What is told by these. REQUIRES: there is one.
AlertText alertTextOf(std::span<const OutboxRow> rows);

/// What has happened in a few words, as a title says it: "changed", "does not answer", "is up again".
std::string_view happening(const Alert& alert);

/// Bytes of a page, a list or a server as one line of text.
std::string plainLine(std::string_view bytes);

/// Text with what HTML would take for markup in it spelt out.
std::string htmlText(std::string_view text);

}  // namespace tarnwick
