// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>

#include "base/text.h"
#include "exchange/foreign/foreign_sites.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kBlanks = " \t";

bool isControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (byte < ' ' && c != '\t' && c != '\f') || byte == 0x7f;
}

void readLine(std::size_t number, std::string_view line, ForeignSites& sites) {
  const std::string_view text = trimmed(line, " \t\f");
  if (std::ranges::any_of(text, isControl)) {
    throw ForeignError(number, "a control character stands here, so this is no list of addresses: give a text file");
  }
  if (text.empty() || text.starts_with('#')) {
    return;
  }
  if (text.starts_with('|')) {
    return sites.leaveOut(number, text, "it is a command, and only pages are watched");
  }
  const std::size_t blank = text.find_first_of(kBlanks);
  const std::string_view first = text.substr(0, blank);
  if (blank == std::string_view::npos || first.find("://") == std::string_view::npos) {
    return sites.add({number, text});
  }
  ForeignSite site(number, first);
  const std::string_view rest = trimmed(text.substr(blank), kBlanks);
  if (!rest.starts_with('#')) {
    site.lacks("the text behind it,", rest);
  }
  sites.add(std::move(site));
}

}  // namespace

void readAddresses(std::string_view text, ForeignSites& sites) {
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find_first_of(kLineEnds), text.size());
    readLine(number, text.substr(0, end), sites);
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
  }
}

}  // namespace tarnwick
