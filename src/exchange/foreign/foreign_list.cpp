// SPDX-License-Identifier: MIT
#include "exchange/foreign/foreign_list.h"

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <utility>

#include "base/text.h"
#include "base/visible_text.h"
#include "exchange/foreign/foreign_sites.h"
#include "platform/address.h"

namespace tarnwick {
namespace {

constexpr std::string_view kUtf8Mark = "\xef\xbb\xbf";
constexpr std::string_view kUtf16Marks[] = {"\xff\xfe", "\xfe\xff"};
constexpr std::string_view kJetMark("\0\1\0\0Standard ", 13);
constexpr std::string_view kZipMark = "PK\x03\x04";
/// What a file is shows within so many bytes.
constexpr std::size_t kLookedAt = std::size_t{64} * 1024;

struct Kind {
  ForeignKind kind;
  std::string_view word;
  const char* name;
  void (*read)(std::string_view bytes, ForeignSites& sites);
};

constexpr std::array kKinds{
    Kind{ForeignKind::addresses, "addresses", "a list of addresses", readAddresses},
    Kind{ForeignKind::bookmarks, "bookmarks", "the bookmarks of a browser", readBookmarks},
    Kind{ForeignKind::opml, "opml", "OPML", readOpml},
    Kind{ForeignKind::urlwatch, "urlwatch", "a list of urlwatch", readUrlwatch},
    Kind{ForeignKind::changedetection, "changedetection", "the list or backup of changedetection.io",
         readChangedetection},
    Kind{ForeignKind::jet, "jet", "a Jet database of the same tables", readJet},
};

const Kind& kindOf(ForeignKind kind) { return *std::ranges::find(kKinds, kind, &Kind::kind); }

std::string_view withoutMark(std::string_view bytes) {
  return bytes.starts_with(kUtf8Mark) ? bytes.substr(kUtf8Mark.size()) : bytes;
}

/// A line of a list of urlwatch that is the first of its kind: "url: ..." or "- url: ...", in any order of its keys.
bool isKeyOfJob(std::string_view line) {
  if (line.starts_with("- ")) {
    line = trimmed(line.substr(2), " ");
  }
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos || (colon + 1 < line.size() && line[colon + 1] != ' ')) {
    return false;
  }
  const std::string_view key = trimmed(line.substr(0, colon), " \"'");
  return key == "url" || key == "navigate" || key == "command" || key == "kind" || key == "name";
}

bool isAddress(std::string_view line) {
  const std::string_view first = line.substr(0, line.find_first_of(" \t"));
  const auto address = parseAddress(std::string(first));
  return address && isFetchedScheme(address->scheme) && address->host.find_first_of(".:") != std::string::npos;
}

/// A list of addresses begins with one, behind comments; a list of urlwatch has one of its keys at a line's beginning.
std::optional<ForeignKind> kindOfText(std::string_view text) {
  for (bool first = true; !text.empty();) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (isKeyOfJob(line)) {
      return ForeignKind::urlwatch;
    }
    const std::string_view said = trimmed(line);
    if (first && (said.starts_with('|') || isAddress(said))) {
      return ForeignKind::addresses;
    }
    first = first && (said.empty() || said.starts_with('#') || said == "---");
  }
  return std::nullopt;
}

}  // namespace

std::vector<std::string> foreignWords() {
  std::vector<std::string> words;
  words.reserve(kKinds.size());
  for (const Kind& kind : kKinds) {
    words.emplace_back(kind.word);
  }
  return words;
}

std::optional<ForeignKind> foreignKindOf(std::string_view word) {
  const auto* const found = std::ranges::find(kKinds, word, &Kind::word);
  return found == kKinds.end() ? std::nullopt : std::optional(found->kind);
}

std::string_view wordOf(ForeignKind kind) { return kindOf(kind).word; }

const char* nameOf(ForeignKind kind) { return kindOf(kind).name; }

std::optional<ForeignKind> recognisedKind(std::string_view bytes) {
  if (bytes.starts_with(kJetMark)) {
    return ForeignKind::jet;
  }
  if (bytes.starts_with(kZipMark)) {
    return ForeignKind::changedetection;
  }
  const std::string beginning = lowerCase(std::string(trimmed(withoutMark(bytes).substr(0, kLookedAt))));
  const std::string_view text = beginning;
  const auto holds = [&](std::string_view word) { return text.find(word) != std::string_view::npos; };
  if (text.starts_with('{')) {
    return holds(R"("watching")") || holds(R"("time_between_check")") ? std::optional(ForeignKind::changedetection)
                                                                      : std::nullopt;
  }
  if (text.starts_with('<')) {
    if (holds("<opml")) {
      return ForeignKind::opml;
    }
    return holds("netscape-bookmark-file") || (holds("<dl") && holds("<dt")) ? std::optional(ForeignKind::bookmarks)
                                                                             : std::nullopt;
  }
  return kindOfText(text);
}

ForeignList readForeign(ForeignKind kind, std::string_view bytes, ListFaults& faults) {
  ForeignList list;
  try {
    if (bytes.size() > kLargestForeign && kind != ForeignKind::jet) {
      throw ForeignError(0, "the file is larger than 64 MiB, and no list of sites is: see whether it is the right one");
    }
    if (std::ranges::any_of(kUtf16Marks, [&](std::string_view mark) { return bytes.starts_with(mark); })) {
      throw ForeignError(1, "the file is UTF-16: save it as UTF-8");
    }
    ForeignSites sites(list);
    if (kind == ForeignKind::jet && !bytes.starts_with(kJetMark)) {
      throw ForeignError(0, "this is no Jet database: see whether it is the right file");
    }
    kindOf(kind).read(withoutMark(bytes), sites);
    if (list.sites.empty() && list.notes.empty()) {
      throw ForeignError(1, std::string("the file holds no address: see whether it is ") + nameOf(kind));
    }
  } catch (const ForeignError& error) {
    faults.add(error.line(), error.what());
  } catch (const std::bad_alloc&) {
    faults.add(0, kNoMemoryToRead);
  } catch (const std::exception& error) {
    faults.add(0, std::string("the file cannot be read as ") + nameOf(kind) + ": " + visibleText(error.what()));
  }
  return faults.none() ? std::move(list) : ForeignList();
}

}  // namespace tarnwick
