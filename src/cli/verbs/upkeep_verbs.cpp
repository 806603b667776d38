// SPDX-License-Identifier: MIT
#include <array>
#include <cstdint>

#include "base/text.h"
#include "cli/terminal/json_output.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "store/restoration.h"

namespace tarnwick {
namespace {

struct UpkeepOptions {
  bool json = false;
};

struct RestoreOptions {
  std::string file;
  bool json = false;
};

// A database's file, and what has not been brought over into it yet.
std::uint64_t sizeOf(FileSystem& files, const std::string& database) {
  std::uint64_t size = 0;
  for (const char* ending : {"", "-wal"}) {
    size += files.exists(database + ending) ? files.sizeOf(database + ending) : 0;
  }
  return size;
}

int report(Tool& tool, const UpkeepOptions& options) {
  const std::string path = tool.data().createReport();
  if (options.json) {
    sayJson(tool.console(), {{"path", jsonText(path)}});
  } else {
    tool.console().say(tool.console().shown(path));
  }
  return exit_status::ok;
}

int compact(Tool& tool, const UpkeepOptions& options) {
  m& data = tool.data();
  FileSystem& files = tool.services().files;
  const std::string database = data.database().dbPath();
  const std::uint64_t before = sizeOf(files, database);
  if (!data.compact()) {
    if (tool.console().hasComplained()) {
      return exit_status::failed;  // why no copy could be made has been told
    }
    throw std::runtime_error("Compact Failed. The database is as it was: " + database);
  }
  if (!data.compactedInPlace()) {
    throw std::runtime_error("Compact Failed. There is no room for the compacted copy; the database is as it was: " +
                             database);
  }
  // Others may have written to the database since.
  const std::uint64_t after = sizeOf(files, data.programFolder() + "/temp.mdb");
  if (options.json) {
    sayJson(tool.console(), {{"before", before}, {"after", after}});
  } else {
    tool.console().tell("The database is compacted: " + std::to_string(before) + " bytes before, " +
                        std::to_string(after) + " bytes after. backup.mdb is the copy from before.");
  }
  return exit_status::ok;
}

// The list itself is not opened: it may be damaged.
int restore(Tool& tool, const RestoreOptions& options) {
  const Services& services = tool.services();
  Restoration restoration(tool.programFolder(), services.databases, services.files, services.clock, services.runLocks);
  const Restoration::Outcome outcome = restoration.restore(options.file);
  if (options.json) {
    sayJson(tool.console(), {{"sites", outcome.sites},
                             {"kept", outcome.kept.empty() ? JsonValue() : JsonValue(jsonText(outcome.kept))}});
    return exit_status::ok;
  }
  tool.console().tell("The list is a copy of " + visibleText(options.file) + " now, with " +
                      std::to_string(outcome.sites) + (outcome.sites == 1 ? " site." : " sites.") +
                      (outcome.kept.empty() ? "" : " The one before is kept as " + visibleText(outcome.kept) + "."));
  return exit_status::ok;
}

Verb restoreVerb() {
  auto options = std::make_shared<RestoreOptions>();
  return Verb{"restore",
              "Put a copy of the list in its place, and keep the list as it was",
              {{.name = "FILE",
                .target = &options->file,
                .meaning = "The copy, for instance backup.mdb; it stays as it is",
                .required = true},
               jsonOption(options->json)},
              "The copy must be a sound list. The list before, damaged or not, is kept beside it under a name with the "
              "date. No other program may have the list open: end a run and close the window first.\n" +
                  examples({{"restore backup.mdb", "goes back to the list before the last compaction"},
                            {"restore /media/stick/tarnwick.mdb --json", "the same with a copy, for a script"}}),
              [options](Tool& tool) { return restore(tool, *options); }};
}

Verb upkeepVerb(const char* name, const char* summary, std::string footer, int (*work)(Tool&, const UpkeepOptions&)) {
  auto options = std::make_shared<UpkeepOptions>();
  return Verb{name, summary, {jsonOption(options->json)}, std::move(footer), [options, work](Tool& tool) {
                return work(tool, *options);
              }};
}

}  // namespace

std::vector<Verb> upkeepVerbs() {
  return {upkeepVerb("report", "Write the report of today's log and print its path",
                     "It is reports/report.html in the program folder; only the newest is kept.\n" +
                         examples({{"report", "the path of the page that was written"},
                                   {"report --json", "the same for a script"}}),
                     report),
          upkeepVerb("compact", "Shrink the database, and keep a copy of it as it was",
                     "The copy is backup.mdb in the program folder. No other program may have the database open: end "
                     "a run and close the window first.\n" +
                         examples({{"compact", "prints the sizes before and after"},
                                   {"compact --json", "the same for a script"}}),
                     compact),
          restoreVerb()};
}

}  // namespace tarnwick
