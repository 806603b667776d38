// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/list/site_list.h"
#include "store/result_log.h"
#include "store/settings_and_log.h"

namespace tarnwick {

/// The kinds of files in which other programs keep what they watch or know.
enum class ForeignKind { addresses, bookmarks, opml, urlwatch, changedetection, jet };

/// The kinds by the words of the command line: "addresses", "bookmarks", ...
std::vector<std::string> foreignWords();
std::optional<ForeignKind> foreignKindOf(std::string_view word);
std::string_view wordOf(ForeignKind kind);
/// The kind for people: "bookmarks", "a file of urlwatch"
const char* nameOf(ForeignKind kind);

/// What kind of file the bytes show themselves to be; nothing when they show none.
std::optional<ForeignKind> recognisedKind(std::string_view bytes);

/// Something of a file that a list of sites has no place for.
struct ForeignNote {
  /// Where it stands in the file, from 1; 0 where that is not known, and for the whole file.
  std::size_t line = 0;
  /// The address, or what stands there in place of one; empty for the whole file.
  std::string subject;
  /// What is not taken over of it: `title "News"`. Of an entry that is left out the reason alone.
  std::vector<std::string> things;
  /// Whether the entry as a whole is left out.
  bool leftOut = false;
};

/// What a file holds: sites, which have ids in a database of the same tables alone.
struct ForeignList {
  std::vector<ListedSite> sites;
  std::vector<ForeignNote> notes;
  /// Of a database: its settings and the results of its checks.
  std::vector<Setting> settings{};
  std::vector<LogRow> log{};
};

/// The largest file of these kinds, but of a database: a list of 32767 sites takes a tenth of it.
inline constexpr std::size_t kLargestForeign = std::size_t{64} * 1024 * 1024;

/// What is told of a file that takes more memory than there is for it.
inline constexpr const char* kNoMemoryToRead =
    "there is not enough memory to read the file: see whether it is the right one";

/// Reads the file. What is wrong with it is added to `faults`; then nothing of it is to be used. Raises nothing.
ForeignList readForeign(ForeignKind kind, std::string_view bytes, ListFaults& faults);

}  // namespace tarnwick
