// SPDX-License-Identifier: MIT
#include "simulation/user.h"

#include <algorithm>
#include <exception>

namespace tarnwick::simulation {
namespace {

constexpr std::int64_t kMostParallel = 12;

/// So many sites stay manageable.
constexpr std::size_t kEnoughSites = 13;

}  // namespace

void User::perform(const std::string& what, const std::function<void()>& action) {
  world_.journal.add("user", what);
  try {
    action();
  } catch (const std::exception& error) {
    world_.journal.add("user!", error.what());
  }
}

void User::showAfresh(Program& program) {
  initialized_ = true;
  program.run().init();
}

std::string User::someInterval(Chance& chance) const {
  if (hasPatience) {
    return std::to_string(chance.between(8, 16));
  }
  return std::to_string(chance.oneIn(3) ? chance.between(1, 5) : chance.between(5, 120));
}

bool User::wantsSite() const {
  try {
    return addsSites && askDatabase(world_, "select idSite from sites").size() < kEnoughSites;
  } catch (const std::exception&) {
    return false;  // it cannot be looked into just now
  }
}

std::int16_t User::someSite(Chance& chance) const {
  try {
    const std::vector<std::string> ids = askDatabase(world_, "select idSite from sites order by idSite");
    return ids.empty() ? std::int16_t{0} : static_cast<std::int16_t>(std::stoi(ids[chance.below(ids.size())]));
  } catch (const std::exception&) {
    return 0;
  }
}

void User::act(Process& process, Chance chance) {
  edited_ = true;
  initialized_ = false;
  actAs(process, chance);
  if (edited_ && onEdited) {
    onEdited(initialized_);
  }
}

void User::clearCounters(Process& process) {
  perform("clears the counters", [&] {
    ledger_.disturb();
    process.program().data().clearCounters(-1);
  });
  if (onEdited) {
    onEdited(false);
  }
}

void User::actAs(Process& process, Chance chance) {
  Program& program = process.program();
  if (!program.isOpen()) {
    return;
  }
  const std::int16_t id = someSite(chance);
  m& data = program.data();
  enum What { stop, interval, baseline, adopt, add, remove, clearLog, counters, compact, settings, whats };
  auto what = static_cast<What>(chance.below(whats));
  if (what == add && !wantsSite()) {
    what = settings;
  }
  switch (what) {
    case stop:
      edited_ = false;
      perform("stops the run, and starts it later", [&] {
        if (onStop) {
          onStop();
        }
        program.stopRun();
        ledger_.excuse(Time(chance.between(0, 600'000)) + std::chrono::hours(1));
        world_.agenda.in(Time(chance.between(0, 600'000)),
                         [this, &world = world_, pump = world_.pumps.front(), &program] {
                           if (!world.pumps.empty() && world.pumps.front() == pump && !pump->closing()) {
                             world.journal.add("user", "starts the run");
                             if (onStart) {
                               onStart();
                             }
                             program.startRun();
                           }
                         });
      });
      break;
    case interval:
      ledger_.alerts().mayChange();
      perform("changes site " + std::to_string(id), [&] {
        const TextTable row = data.getArraySites(id);
        if (row.lastRow() == 1) {
          const auto every = static_cast<std::int16_t>(std::stoi(someInterval(chance)));
          const bool active = !chance.oneIn(4);
          const bool mails = chance.oneIn(2);
          // Asked under another name, a page that is under way answers a question that nobody asks any more.
          data.updateSites(id, row.at(2, 1), "get", active, every, mails, "ann@example.org",
                           chance.oneIn(2) ? "bob" : "", "");
        }
        showAfresh(program);
        ledger_.excuse(std::chrono::hours(3));
      });
      break;
    case baseline:
      perform("types a baseline for site " + std::to_string(id),
              [&] { data.updateContentCompare(id, chance.oneIn(2) ? "" : "It's typed.\r\n"); });
      break;
    case adopt:
      perform("takes the last page of site " + std::to_string(id) + " as the baseline",
              [&] { data.updateContentCompare(id, data.getContentRuntime(id)); });
      break;
    case add:
      perform("adds a site", [&] {
        const std::int16_t made = data.addSite();
        data.updateSites(made, newUrl(), "get", true, static_cast<std::int16_t>(std::stoi(someInterval(chance))), false,
                         "", "", "");
        showAfresh(program);
      });
      break;
    case remove:
      perform("deletes site " + std::to_string(id), [&] {
        ledger_.disturb();
        if (data.getArraySites(0).lastRow() > 5) {
          data.deleteSite(id);
        }
        showAfresh(program);
      });
      break;
    case clearLog:
      perform("clears the log", [&] {
        ledger_.disturb();
        data.clearLog();
      });
      break;
    case counters:
      clearCounters(process);
      break;
    case compact:
      ledger_.disturb();
      perform("compacts the list", [&] { world_.journal.add("user", data.compact() ? "it is smaller" : "it is not"); });
      break;
    default:
      ledger_.alerts().mayChange();
      perform("changes the settings", [&] {
        data.storeSettings({{"timeout", std::to_string(chance.between(5, 60))}, {"cemail", chance.oneIn(2)}});
      });
      break;
  }
}

bool User::verb(const std::vector<std::string>& arguments) {
  ++verbsAtWork_;
  const bool done = runVerb(world_, arguments) == 0;
  --verbsAtWork_;
  if (onVerb) {
    onVerb();
  }
  return done;
}

void User::runSomeVerb(Chance chance) {
  if (verbsAtWork_ > 0) {
    return;
  }
  const std::string id = std::to_string(someSite(chance));
  enum What { sites, add, set, check, log, report, exporting, settings, diff, option, whats };
  const auto what = static_cast<What>(chance.below(whats));
  if ((edits && (what == check || what == option)) || (what == add && !wantsSite())) {
    return;
  }
  switch (what) {
    case sites:
      verb({"sites", "--json"});
      break;
    case add:
      verb({"add", newUrl(), "--interval", someInterval(chance)});
      break;
    case set:
      ledger_.alerts().mayChange();
      verb({"set", id, "--interval", someInterval(chance), "--active"});
      ledger_.excuse(std::chrono::hours(3));
      break;
    case check:
      ledger_.disturb();
      world_.web.isShared = true;
      verb({"check", id});
      world_.web.isShared = false;
      ledger_.disturb();  // what was settled meanwhile did not know of its result
      ledger_.excuse(static_cast<std::int16_t>(std::stoi(id)), Time(0));
      break;
    case log:
      verb({"log", "--limit", "3", "--json"});
      break;
    case report:
      verb({"report"});
      break;
    case exporting:
      verb({"export", world_.disk.folder() + "/export.json"});
      break;
    case settings:
      verb({"settings", "timeout", std::to_string(chance.between(5, 60))});
      break;
    case diff:
      verb({"diff", id});
      break;
    default:
      world_.web.mayBeMany = true;
      verb({"option", "all",
            "parallel=" + std::to_string(chance.between(world_.web.sparesHosts ? 6 : 5, kMostParallel))});
      break;
  }
}

// None of them changes what the list says. What could not be written is not read: there may be an older one.
void User::runVerbOffline(Chance chance) {
  ledger_.disturb();
  if (world_.isDead()) {
    return;
  }
  const std::vector<std::string> before = wholeList();
  runUpkeep(chance);
  if (world_.isDead()) {
    return;
  }
  if (const std::vector<std::string> after = wholeList(); after != before) {
    const auto [was, is] = std::ranges::mismatch(before, after);
    ledger_.fail("upkeep has made of\n  " + (was == before.end() ? "nothing" : *was) + "\nthis\n  " +
                 (is == after.end() ? "nothing" : *is));
  }
}

std::vector<std::string> User::wholeList() const {
  const Look look(world_);
  std::vector<std::string> rows;
  for (const char* what : {"* from sites order by idSite", "* from control", "idSite, pname, pvalue from postVars",
                           "idSite, name, value from siteOptions order by idSite, name",
                           "* from log where rowid > (select max(rowid) - 1000 from log) order by rowid"}) {
    const std::vector<std::string> table = askDatabase(world_, std::string("select ") + what);
    rows.insert(rows.end(), table.begin(), table.end());
  }
  return rows;
}

void User::runUpkeep(Chance chance) {
  enum What { compact, exportAndImport, restore, whats };
  switch (static_cast<What>(chance.below(whats))) {
    case compact:
      verb({"compact"});
      break;
    case exportAndImport:
      if (verb({"export", world_.disk.folder() + "/export.json", "--baselines"})) {
        verb({"import", world_.disk.folder() + "/export.json"});
      }
      break;
    default:
      if (verb({"compact"})) {
        verb({"restore", world_.disk.folder() + "/backup.mdb"});
      }
      break;
  }
}

}  // namespace tarnwick::simulation
