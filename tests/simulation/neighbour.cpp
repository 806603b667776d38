// SPDX-License-Identifier: MIT
#include "simulation/neighbour.h"

#include <string>

namespace tarnwick::simulation {

void Neighbour::lock(Chance chance) {
  if (database_) {
    return;
  }
  sqlite3* raw = nullptr;
  const std::string path = world_.disk.folder() + "/tarnwick.mdb";
  sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE, nullptr);
  database_.reset(raw);
  if (sqlite3_exec(raw, "begin immediate; update test set tvalue = tvalue", nullptr, nullptr, nullptr) != SQLITE_OK) {
    database_.reset();
    return;
  }
  const Time held(chance.oneIn(4) ? chance.between(3000, 60'000) : chance.between(10, 3000));
  world_.journal.add("neighbour", "locks the list for " + std::to_string(held.count()) + " ms");
  letGo_.in(
      held, [this] { letGo(); }, Agenda::Where::outside);
}

void Neighbour::letGo() {
  letGo_.cancel();
  if (database_) {
    sqlite3_exec(database_.get(), "commit", nullptr, nullptr, nullptr);
    database_.reset();
    world_.journal.add("neighbour", "lets go of the list");
  }
}

}  // namespace tarnwick::simulation
