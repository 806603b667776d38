// SPDX-License-Identifier: MIT
#include "platform/sqlite/sql_sites.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <span>

namespace tarnwick {
namespace {

using Tokens = std::vector<SqlToken>;

constexpr std::string_view kTable = "siteRows";
constexpr std::string_view kCompare = "content_compare";
constexpr std::string_view kRuntime = "content_runtime";

bool namesPage(const SqlToken& token) {
  return token.isName() &&
         (equalsIgnoringCase(unquoted(token), kCompare) || equalsIgnoringCase(unquoted(token), kRuntime));
}

bool begins(const Tokens& tokens, std::initializer_list<std::string_view> words) {
  return tokens.size() >= words.size() &&
         std::ranges::equal(words, std::span(tokens).first(words.size()),
                            [](std::string_view word, const SqlToken& token) { return token.is(word); });
}

/// Where the table stands in a statement that changes `sites`; 0 in any other. One that inserts must name its columns:
/// the table's are others than the view's.
std::size_t changedTable(const Tokens& tokens) {
  if (begins(tokens, {"update", "sites", "set"})) {
    return 1;
  }
  return begins(tokens, {"insert", "into", "sites", "("}) || begins(tokens, {"delete", "from", "sites"}) ? 2 : 0;
}

BehindSites pagesRead(const Tokens& tokens) {
  const auto found = std::ranges::find_if(tokens, [](const SqlToken& token) { return token.is("from"); });
  const auto from = static_cast<std::size_t>(found - tokens.begin());
  if (!begins(tokens, {"select"}) || from + 2 >= tokens.size() || !tokens[from + 1].is("sites") ||
      !tokens[from + 2].is("where")) {
    return {};
  }
  BehindSites behind;
  std::size_t column = 0;
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    if (tokens[i].is("(") || (i > from && (tokens[i].is(",") || namesPage(tokens[i])))) {
      return {};
    }
    column += tokens[i].is(",") ? 1 : 0;
    const bool compare = tokens[i].is(kCompare);
    if (compare || tokens[i].is(kRuntime)) {
      const bool alone = (i == 1 || tokens[i - 1].is(",")) && (i + 1 == from || tokens[i + 1].is(","));
      if (!alone) {
        return {};
      }
      behind.words.emplace_back(i, compare ? "comparePage as content_compare" : "runtimePage as content_runtime");
      behind.pageColumns.push_back(column);
    }
  }
  if (!behind.words.empty()) {
    behind.words.emplace_back(from + 1, kTable);
  }
  return behind;
}

}  // namespace

BehindSites behindSites(const Tokens& tokens) {
  if (const std::size_t table = changedTable(tokens); table > 0) {
    if (std::ranges::none_of(tokens, namesPage)) {
      return {{{table, kTable}}, {}};
    }
    return {};
  }
  return pagesRead(tokens);
}

std::optional<StorePage> readStorePage(const Tokens& tokens) {
  constexpr std::size_t kPieces = 10;
  constexpr std::size_t kColumn = 3;
  constexpr std::size_t kText = 5;
  constexpr std::size_t kId = 9;
  if (tokens.size() != kPieces || !begins(tokens, {"update", "sites", "set"}) || !tokens[kColumn + 1].is("=") ||
      tokens[kText].kind != SqlTokenKind::text || !tokens[kText + 1].is("where") || !tokens[kId - 2].is("idSite") ||
      !tokens[kId - 1].is("=") || tokens[kId].kind != SqlTokenKind::number) {
    return std::nullopt;
  }
  const bool compare = tokens[kColumn].is(kCompare);
  if (!compare && !tokens[kColumn].is(kRuntime)) {
    return std::nullopt;
  }
  StorePage command{compare, 0, {}};
  const std::string_view id = tokens[kId].source;
  const auto [stop, fault] = std::from_chars(id.data(), id.data() + id.size(), command.idSite);
  if (fault != std::errc{} || stop != id.data() + id.size()) {
    return std::nullopt;
  }
  const std::string_view inner = tokens[kText].source.substr(1, tokens[kText].source.size() - 2);
  if (inner.find('\'') == std::string_view::npos) {
    command.text = inner;
  } else {
    command.text = SqlValue(unquoted(tokens[kText]));
  }
  return command;
}

}  // namespace tarnwick
