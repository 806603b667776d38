// SPDX-License-Identifier: MIT
#include "store/compaction.h"

#include <exception>
#include <string_view>
#include <utility>

#include "base/errors.h"
#include "base/product.h"
#include "store/restoration.h"
#include "store/side_files.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLiveName = kDatabaseFile;
constexpr std::string_view kTempName = "temp.mdb";
constexpr const char* kBackupName = "backup.mdb";

/// Runs `action`; false when it raised something.
template <typename Action>
bool succeeds(Action action) {
  try {
    action();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

std::string Compaction::destinationOf(std::string connString) {
  for (std::size_t at = 0; (at = connString.find(kLiveName, at)) != std::string::npos; at += kTempName.size()) {
    connString.replace(at, kLiveName.size(), kTempName);
  }
  return connString;
}

bool Compaction::compact() {
  db_.close();
  const Outcome outcome = compactClosed();
  std::exception_ptr notReopened;
  try {
    db_.reopen();
  } catch (...) {
    notReopened = std::current_exception();
  }
  if (!outcome.noBackup.empty()) {
    prompts_.inform({.text = "Aborting compact:\r\n" + outcome.noBackup});
  }
  if (notReopened) {
    std::rethrow_exception(notReopened);
  }
  return outcome.compacted;
}

Compaction::Outcome Compaction::compactClosed() {
  inPlace_ = false;
  std::unique_ptr<HeldDatabase> held;
  try {
    held = databases_.holdDatabase(db_.connString());
    backUp(*held);
  } catch (const DataAccessError& error) {
    return {false, error.cause()};
  } catch (const std::exception& error) {
    return {false, error.what()};
  }
  const bool compacted = compactToTemp(*held);
  if (compacted) {
    // A failure leaves the database as it was, which is no loss.
    inPlace_ = succeeds([&] { putInPlace(std::move(held)); });
  }
  return {compacted, {}};
}

void Compaction::backUp(HeldDatabase& held) {
  const std::string backup = inFolder(kBackupName);
  const std::string unfinished = backup + kUnfinished;
  files_.write(unfinished, db_.dbPath(), [&](const ByteSink& sink) { held.read(sink); });
  try {
    removeSideFiles(files_, backup);
    files_.rename(unfinished, backup);
  } catch (...) {
    succeeds([&] { files_.remove(unfinished); });
    throw;
  }
}

bool Compaction::compactToTemp(HeldDatabase& held) {
  const std::string temp = inFolder(std::string(kTempName));
  succeeds([&] { files_.remove(temp); });
  const bool done = succeeds([&] {
    removeSideFiles(files_, temp);
    held.compactInto(destinationOf(db_.connString()));
  });
  if (!done) {
    // Where the disk is full, a partial file would stand in the way of everything else.
    succeeds([&] { files_.remove(temp); });
  }
  return done;
}

void Compaction::putInPlace(std::unique_ptr<HeldDatabase> held) {
  // A link stays one: what it leads to is replaced, in its own folder.
  const std::string live = files_.resolveLinks(db_.dbPath());
  const std::string unfinished = live + kUnfinished;
  files_.copy(inFolder(std::string(kTempName)), unfinished);
  if (!files_.replacesOpenFiles()) {
    held.reset();
  }
  try {
    removeSideFiles(files_, live);
    files_.rename(unfinished, live);
  } catch (...) {
    succeeds([&] { files_.remove(unfinished); });
    throw;
  }
}

void Compaction::removeRemains() noexcept {
  const std::string copies[] = {inFolder(kBackupName) + kUnfinished, db_.dbPath() + kUnfinished};
  for (const std::string& copy : copies) {
    succeeds([&] { files_.remove(copy); });
  }
  Restoration::removeRemains(files_, db_.dbPath());
  succeeds([&] { removeSideFiles(files_, inFolder(std::string(kTempName))); });
}

}  // namespace tarnwick
