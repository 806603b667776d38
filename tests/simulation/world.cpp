// SPDX-License-Identifier: MIT
#include "simulation/world.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "simulation/simulated_memory.h"

namespace tarnwick::simulation {
namespace {

constexpr Time kLamps = std::chrono::seconds(20);

ListHandle openList(const World& world, int flags) {
  sqlite3* raw = nullptr;
  const std::string path = world.disk.folder() + "/tarnwick.mdb";
  const int result = sqlite3_open_v2(path.c_str(), &raw, flags, nullptr);
  ListHandle database(raw);
  if (result != SQLITE_OK) {
    throw std::runtime_error(std::string("the list cannot be opened: ") + sqlite3_errstr(result));
  }
  sqlite3_busy_timeout(raw, 5000);
  return database;
}

// In the morning: of an ordinary day, or of the day before the clocks go forward or back.
LocalTime beginningOf(std::uint64_t seed) {
  using namespace std::chrono;
  constexpr year_month_day kDays[]{year{2026} / 1 / 1, year{2026} / 3 / 28, year{2026} / 10 / 24};
  return local_days{kDays[seed % std::size(kDays)]} + hours{8};
}

}  // namespace

SystemTime* SystemTime::inUse = nullptr;

World::World(std::uint64_t worldSeed, std::ostream* copy)
    : seed(worldSeed),
      clock(agenda, beginningOf(worldSeed)),
      journal(agenda, copy),
      timers(agenda, kLamps),
      web(agenda, journal, chance(Part::web)),
      mail(agenda, journal, chance(Part::mail)) {
  SimulatedMemory::refuseOneIn(0, Chance(0));
  setenv("TZ", "UTC", 1);
  sqlite3_initialize();
  sqlite3_test_control(SQLITE_TESTCTRL_PRNG_SEED, static_cast<int>(chance(Part::sqlite).next() | 1U), nullptr);
  journal.rename(disk.folder(), "<folder>");
}

void World::endAll(const char* how) {
  journal.add("end", how);
  journal.mute();
  for (SimulatedPump* const pump : pumps) {
    pump->close();
  }
}

void World::cutPower(Chance& dice) {
  disk.cutPower(dice);
  endAll("the power is cut");
}

void World::killAll() {
  disk.killAll();
  endAll("every process is killed");
}

void World::powerOn() {
  disk.powerOn();
  journal.unmute();
}

void layFolder(World& world, bool original) {
  std::ifstream file(TARNWICK_SCHEMA_FILE, std::ios::binary);
  std::string schema(std::istreambuf_iterator<char>(file), {});
  if (original) {
    schema += "delete from siteOptions;";
  }
  const auto database = openList(world, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  if (sqlite3_exec(database.get(), schema.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(database.get()));
  }
  std::ofstream(world.disk.folder() + "/email.txt") << kMailTemplate;
  world.files.makeFolder(world.disk.folder() + "/reports");
  std::ofstream(world.disk.folder() + "/reports/green.jpg") << "green";
}

std::vector<std::string> askDatabase(World& world, const std::string& sql) {
  const SimulatedDisk::Well well(world.disk);
  const SimulatedMemory::OfWorld ours;
  const ListHandle ownList = world.look == nullptr ? openList(world, SQLITE_OPEN_READWRITE) : nullptr;
  if (world.look != nullptr && world.look->list_ == nullptr) {
    world.look->list_ = openList(world, SQLITE_OPEN_READWRITE);
  }
  sqlite3* const database = ownList ? ownList.get() : world.look->list_.get();
  sqlite3_stmt* raw = nullptr;
  const int prepared = sqlite3_prepare_v2(database, sql.c_str(), -1, &raw, nullptr);
  const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement(raw, &sqlite3_finalize);
  std::vector<std::string> rows;
  int result = prepared == SQLITE_OK ? sqlite3_step(raw) : prepared;
  for (; result == SQLITE_ROW; result = sqlite3_step(raw)) {
    std::string& row = rows.emplace_back();
    for (int column = 0; column < sqlite3_column_count(raw); ++column) {
      const auto* text = static_cast<const char*>(sqlite3_column_blob(raw, column));
      const auto length = static_cast<std::size_t>(sqlite3_column_bytes(raw, column));
      row.append(column == 0 ? "" : "|");
      row.append(sqlite3_column_type(raw, column) == SQLITE_NULL ? "NULL"
                                                                 : std::string(text == nullptr ? "" : text, length));
    }
  }
  if (result != SQLITE_DONE) {
    throw std::runtime_error(sql + ": " + sqlite3_errmsg(database));
  }
  return rows;
}

Look::~Look() {
  const SimulatedDisk::Well well(world_.disk);
  const SimulatedMemory::OfWorld ours;
  list_.reset();
  world_.look = nullptr;
}

std::uint64_t lastLogRow(World& world) {
  return std::stoull(askDatabase(world, "select coalesce(max(rowid), 0) from log").front());
}

}  // namespace tarnwick::simulation
