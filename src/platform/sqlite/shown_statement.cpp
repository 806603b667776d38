// SPDX-License-Identifier: MIT
#include "platform/sqlite/shown_statement.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::size_t kShownLength = 400;

constexpr std::array<bool, 256> kOpeners = [] {
  std::array<bool, 256> openers{};
  for (const unsigned char c : {'\'', '"', '`', '[', '-', '/'}) {
    openers[c] = true;
  }
  return openers;
}();

/// Whether a piece begins here that is taken as a whole: a quoted text or name, or a comment.
bool isOpener(char c) { return kOpeners[static_cast<unsigned char>(c)]; }

/// The length up to and with `end`, sought from `start` on. What has no end takes the rest.
std::size_t lengthTo(std::string_view end, std::string_view sql, std::size_t start) {
  const std::size_t found = sql.find(end, start);
  return found == std::string_view::npos ? sql.size() : found + end.size();
}

/// The length of the piece that begins at an opener. A doubled quote makes two pieces of one text.
std::size_t pieceLength(std::string_view sql) {
  if (sql.starts_with("--")) {
    return lengthTo("\n", sql, 2);
  }
  if (sql.starts_with("/*")) {
    return lengthTo("*/", sql, 2);
  }
  const char opener = sql.front();
  if (opener == '-' || opener == '/') {
    return 1;
  }
  return lengthTo(opener == '[' ? "]" : sql.substr(0, 1), sql, 1);
}

}  // namespace

// Not by way of the tokens: what is no valid statement is shown as well, and of one with a page of many megabytes only
// the beginning is looked at, since every question to the database comes by here.
std::string shownStatement(std::string_view sql) {
  static constexpr std::string_view kHidden = "'...'";
  std::string shown;
  while (!sql.empty() && shown.size() < kShownLength) {
    const std::string_view window = sql.substr(0, kShownLength);
    const auto plain = static_cast<std::size_t>(std::ranges::find_if(window, isOpener) - window.begin());
    shown.append(window.substr(0, plain));
    sql.remove_prefix(plain);
    if (sql.empty() || plain == window.size()) {
      continue;
    }
    const std::size_t end = pieceLength(sql);
    if (sql.front() != '\'') {
      shown.append(sql.substr(0, std::min(end, kShownLength)));
    } else if (!shown.ends_with(kHidden)) {
      shown.append(kHidden);
    }
    sql.remove_prefix(end);
  }
  shown.resize(std::min(shown.size(), kShownLength));
  return shown;
}

}  // namespace tarnwick
