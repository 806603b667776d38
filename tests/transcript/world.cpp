// SPDX-License-Identifier: MIT
#include "transcript/world.h"

#include <fstream>
#include <iterator>

namespace tarnwick::testing {

World::World() {
  transcript.rename(folder.path(), "<folder>");
  view.rowsOf = [this](std::int16_t idSite) { return data().getArraySites(idSite); };
}

void World::scene(const std::string& title) {
  if (events_) {
    events_->pump();
  }
  transcript.scene(dateTimeText(clock.localNow()) + "  " + title);
}

void World::attempt(const std::string& what, const std::function<void()>& action) {
  transcript.add("user", what);
  try {
    action();
  } catch (const std::exception& error) {
    transcript.add("error", error.what());
  }
}

void World::recordFile(const std::string& name) {
  std::ifstream file(folder.file(name), std::ios::binary);
  transcript.add("file", name + ":\n" + std::string(std::istreambuf_iterator<char>(file), {}));
}

void World::start() {
  // The old one's closing cannot be undone, so each program has a loop of its own.
  pump_ = std::make_unique<QtEventPump>();
  events_ = std::make_unique<LedEvents>(*pump_, web, recordedSockets);
  const Services services{.clock = clock,
                          .files = files,
                          .pump = *events_,
                          .timers = timers,
                          .databases = recordedDatabases,
                          .transfers = transfers,
                          .sockets = recordedSockets,
                          .prompts = desktop,
                          .sound = desktop,
                          .programs = desktop,
                          .opener = desktop,
                          .runLocks = runLocks,
                          .mails = mails,
                          .secrets = secrets,
                          .notifier = notifier,
                          .runner = runner};
  program_ = std::make_unique<Program>(folder.path(), services, view);
  attempt("starts the program", [this] { program_->start(); });
  events_->lead(*program_);
}

void World::end() {
  attempt("closes the program", [this] { program_->close(); });
  program_.reset();
  events_.reset();
}

}  // namespace tarnwick::testing
