// SPDX-License-Identifier: MIT
#include "store/restoration.h"

#include <exception>
#include <stdexcept>
#include <utility>

#include "base/errors.h"
#include "base/product.h"
#include "store/migrations.h"
#include "store/side_files.h"

namespace tarnwick {
namespace {

/// The list from before, until it is whole and bears its date.
constexpr const char* kKept = "replaced.mdb";

constexpr const char* kNothingChanged = " Nothing was changed.";

std::string sourceOf(const std::string& path) { return "Data Source=" + path + ";"; }

std::string besideOf(const std::string& path, const std::string& name) {
  return textOf(pathOf(path).parent_path() / name);
}

/// "2024-05-17-093903"
std::string stampOf(LocalTime time) {
  std::string stamp = dateTimeText(time);
  stamp.replace(stamp.find(' '), 1, "-");
  std::erase(stamp, ':');
  return stamp;
}

bool holdsSomething(FileSystem& files, const std::string& path) { return files.exists(path) && files.sizeOf(path) > 0; }

// Whatever it was, there is nothing more to be done about it.
template <typename Action>
void tryTo(Action action) noexcept {
  try {
    action();
  } catch (const std::exception&) {
  }
}

/// What is wrong with `file`, of which `made` is a copy.
std::string faultOf(const DataAccessError& error, const std::string& made, const std::string& file) {
  std::string fault = error.cause();
  if (const auto at = fault.find(made); at != std::string::npos) {
    // What follows of damage is how the list itself is put right.
    const auto detail = fault.find(". (", at);
    if (error.kind() == DataAccessError::Kind::damaged && detail != std::string::npos && fault.ends_with(')')) {
      return fault.substr(detail + 3, fault.size() - detail - 4);
    }
    fault.replace(at, made.size(), file);
  }
  return fault;
}

/// A copy in the making, of which nothing is left unless it has taken its place.
class Unfinished {
 public:
  Unfinished(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}
  ~Unfinished() { removeAll(files_, path_); }
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;

  static void removeAll(FileSystem& files, const std::string& path) noexcept {
    tryTo([&] { files.remove(path); });
    tryTo([&] { removeSideFiles(files, path); });
    tryTo([&] { files.remove(path + "-wal.old"); });
  }

 private:
  FileSystem& files_;
  std::string path_;
};

}  // namespace

Restoration::Restoration(std::string programFolder, SqlConnectionMaker& databases, FileSystem& files,
                         const Clock& clock, RunLockMaker& runLocks)
    : folder_(std::move(programFolder)),
      databases_(databases),
      files_(files),
      clock_(clock),
      runLock_(runLocks.makeRunLock(folder_)),
      list_(textOf(pathOf(folder_) / kDatabaseFile)),
      live_(files.resolveLinks(list_)) {}

Restoration::Outcome Restoration::restore(const std::string& file) {
  refuseOtherThanCopies(file);
  keepRunsOut();
  const bool isThere = files_.kindOf(list_) != FileKind::none;
  std::unique_ptr<HeldFile> held = isThere ? databases_.holdFile(sourceOf(live_)) : nullptr;
  const Unfinished unfinished(files_, live_ + kUnfinished);
  copyBeside(file, isThere ? live_ : "");
  Outcome outcome{check(file), isThere ? keep(held) : ""};
  if (!files_.replacesOpenFiles()) {
    held.reset();
  }
  // What is left beside it of the list from before is known to belong to another file, which had a log.
  files_.rename(live_ + kUnfinished, live_);
  removeSideFiles(files_, live_);
  return outcome;
}

void Restoration::keepRunsOut() {
  try {
    runLock_->take();
  } catch (const RunIsOn& error) {
    throw std::runtime_error("A run is on in this folder: " + error.holder() + " checks the sites of " + folder_ +
                             ", and would go on with the list that is to be replaced. " + error.remedy() +
                             kNothingChanged);
  } catch (const NoRunLock& error) {
    throw FileError(error.path(), error.reason() + ", so the list in it cannot be replaced." + error.remedy());
  }
}

void Restoration::refuseOtherThanCopies(const std::string& file) const {
  const FileKind kind = files_.kindOf(file);
  if (kind == FileKind::none) {
    throw std::runtime_error("There is no file " + file + "." + kNothingChanged);
  }
  if (kind != FileKind::file) {
    throw std::runtime_error(file + " is no file, so it cannot be put in the place of the list." + kNothingChanged);
  }
  if (files_.isSameFile(file, list_)) {
    throw std::runtime_error("The file " + file + " is the list itself. Name the copy to go back to, for instance " +
                             "backup.mdb.");
  }
}

// With its log, should it be one that was not closed.
void Restoration::copyBeside(const std::string& file, const std::string& like) {
  const std::string made = live_ + kUnfinished;
  Unfinished::removeAll(files_, made);
  for (const char* const ending : {"", "-wal", "-journal"}) {
    if (*ending == '\0' || holdsSomething(files_, file + ending)) {
      const auto source = files_.open(file + ending);
      files_.write(made + ending, like, [&](const ByteSink& sink) { FileSystem::readAll(*source, sink); });
    }
  }
}

std::int64_t Restoration::check(const std::string& file) {
  const std::string made = live_ + kUnfinished;
  try {
    const auto conn = databases_.makeSqlConnection();
    conn->open(sourceOf(made));
    const auto first = [&](const char* sql) { return conn->execute(sql, {})->field(std::size_t{0}); };
    if (const std::string finding = first("pragma integrity_check(1)").toText(); finding != "ok") {
      throw DataAccessError(finding, "");
    }
    const bool isList = first(
                            "select count(*) from sqlite_master where type in ('table', 'view') and "
                            "lower(name) in ('sites', 'postvars', 'control', 'log')")
                            .toInt64() == 4;
    if (!isList) {
      throw std::runtime_error("The file " + file + " is a database, but no list of Tarnwick." + kNothingChanged);
    }
    bringUpToDate(*conn, file);
    const std::int64_t sites = first("select count(*) from sites").toInt64();
    conn->close();
    // Takes what is in a log into the file, and lets it say that it has none.
    databases_.holdDatabase(sourceOf(made));
    return sites;
  } catch (const DataAccessError& error) {
    throw std::runtime_error("The file " + file + " is no sound copy of a list." + kNothingChanged + " (" +
                             faultOf(error, made, file) + ")");
  }
}

std::string Restoration::keep(std::unique_ptr<HeldFile>& held) {
  const std::string unfinished = besideOf(live_, kKept) + kUnfinished;
  std::string kept = besideOf(live_, "replaced-" + stampOf(clock_.localNow()) + ".mdb");
  while (files_.exists(kept)) {
    kept.replace(kept.size() - 4, 4, "-more.mdb");
  }
  for (const char* const ending : {"-wal", "-journal"}) {
    if (holdsSomething(files_, live_ + ending)) {
      files_.copy(live_ + ending, kept + ending);
    }
  }
  try {
    files_.write(unfinished, live_, [&](const ByteSink& sink) { held->read(sink); });
    files_.rename(unfinished, kept);
  } catch (const std::exception&) {
    tryTo([&] { files_.remove(unfinished); });
    if (!files_.replacesOpenFiles()) {
      held.reset();
    }
    files_.rename(live_, kept);
  }
  return kept;
}

void Restoration::removeRemains(FileSystem& files, const std::string& list) noexcept {
  tryTo([&] {
    const std::string live = files.resolveLinks(list);
    Unfinished::removeAll(files, live + kUnfinished);
    files.remove(besideOf(live, kKept) + kUnfinished);
  });
}

}  // namespace tarnwick
