// SPDX-License-Identifier: MIT
#include "simulation/power_cuts.h"

#include <array>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "simulation/ledger.h"
#include "simulation/process.h"
#include "simulation/world.h"

namespace tarnwick::simulation {
namespace {

using namespace std::chrono_literals;

/// How often the power is cut at one place.
constexpr std::uint64_t kCutsAtEach = 6;

/// The machine with a list of a few sites.
struct Bench {
  explicit Bench(std::uint64_t seed) : world(seed, nullptr) {
    layFolder(world, false);
    for (int i = 1; i <= 4; ++i) {
      runVerb(world, {"add", "http://site" + std::to_string(i) + ".example/"});
    }
    runVerb(world, {"settings", "program", "alert ~idsite~"});
    runVerb(world, {"settings", "cprogram", "on"});
    runVerb(world, {"check"});
    world.web.setMood("http://site2.example/", SiteMood::changing);
    world.web.setMood("http://site3.example/", SiteMood::refused);
  }
  std::string file(const char* name) const { return world.disk.folder() + "/" + name; }

  World world;
};

/// Some work that writes.
struct Work {
  const char* name;
  std::function<void(Bench&)> prepare;
  /// True when it said that it was done.
  std::function<bool(Bench&)> run;
};

std::string whole(World& world) {
  std::string text;
  for (const char* table : {"sites", "postVars", "control", "log"}) {
    text.append(table).append("\n");
    for (const std::string& row : askDatabase(world, std::string("select * from ") + table + " order by rowid")) {
      text.append(row).append("\n");
    }
  }
  return text;
}

bool verb(Bench& bench, const std::vector<std::string>& arguments) { return runVerb(bench.world, arguments) == 0; }

void makeOlder(Bench& bench) {
  for (const char* statement : {"drop table siteOptions", "pragma user_version = 0"}) {
    askDatabase(bench.world, statement);
  }
}

void writeImport(Bench& bench) {
  verb(bench, {"export", bench.file("export.json")});
  for (const char* id : {"1", "2"}) {
    verb(bench, {"set", id, "--interval", "7"});
  }
  verb(bench, {"delete", "4", "--yes"});
}

void makeBackup(Bench& bench) {
  verb(bench, {"compact"});
  verb(bench, {"set", "1", "--interval", "9"});
}

std::vector<Work> allWork() {
  return {
      {"bringing an older list up to date", makeOlder, [](Bench& bench) { return verb(bench, {"sites"}); }},
      {"an edit", [](Bench&) {},
       [](Bench& bench) {
         return verb(bench, {"set", "2", "--interval", "11"});
       }},
      {"a deletion", [](Bench&) {},
       [](Bench& bench) {
         return verb(bench, {"delete", "2", "--yes"});
       }},
      {"clearing the log", [](Bench&) {},
       [](Bench& bench) {
         return verb(bench, {"log", "clear", "--yes"});
       }},
      {"an import", writeImport,
       [](Bench& bench) {
         return verb(bench, {"import", bench.file("export.json")});
       }},
      {"a compaction", [](Bench&) {}, [](Bench& bench) { return verb(bench, {"compact"}); }},
      {"a restoration", makeBackup,
       [](Bench& bench) {
         return verb(bench, {"restore", bench.file("backup.mdb")});
       }},
  };
}

/// What a piece of work makes of the list when nothing comes in between, and how often it syncs.
struct Undisturbed {
  std::string before;
  std::string after;
  std::uint64_t syncs = 0;
};

class PowerCuts {
 public:
  PowerCuts(std::uint64_t seed, std::ostream& told) : seed_(seed), told_(told) {}

  void cutDuring(const Work& work) {
    const Undisturbed usual = undisturbed(work);
    if (usual.syncs == 0) {
      complain(work.name, 0, "it syncs nothing");
    }
    for (std::uint64_t at = 1; at <= usual.syncs + 1; ++at) {
      for (std::uint64_t dice = 0; dice < kCutsAtEach; ++dice) {
        cutAt(work, usual, at, dice);
      }
    }
  }

  void cutDuringPasses() {
    std::uint64_t syncs = 1;
    for (std::uint64_t at = 1; at <= syncs; ++at) {
      for (std::uint64_t dice = 0; dice < kCutsAtEach; ++dice) {
        syncs = passUntil(at, dice);  // while there are further ones
      }
    }
  }

  std::uint64_t cuts() const { return cuts_; }
  bool isGood() const { return good_; }

 private:
  Undisturbed undisturbed(const Work& work) const {
    Bench bench(seed_);
    work.prepare(bench);
    Undisturbed usual{.before = whole(bench.world), .after = {}};
    bench.world.disk.keepCount();
    if (!work.run(bench)) {
      told_ << work.name << " FAILED: it could not be done\n" << bench.world.journal.lastLines();
    }
    usual.syncs = bench.world.disk.syncs();
    usual.after = whole(bench.world);
    return usual;
  }

  static void arm(World& world, std::uint64_t at, std::uint64_t dice) {
    world.disk.keepCount();
    world.disk.onSync = [&world, at, dice](std::uint64_t number) {
      if (number == at) {
        Chance chance(dice * 1000 + at);
        world.cutPower(chance);
      }
    };
  }

  void cutAt(const Work& work, const Undisturbed& usual, std::uint64_t at, std::uint64_t dice) {
    ++cuts_;
    Bench bench(seed_);
    work.prepare(bench);
    arm(bench.world, at, dice);
    const bool done = work.run(bench) && !bench.world.isDead();
    if (!bench.world.isDead()) {
      Chance chance(dice);
      bench.world.cutPower(chance);
    }
    bench.world.powerOn();
    const std::string place = found(bench.world, usual, done);
    if (!place.empty()) {
      complain(work.name, at, place);
    } else if (!verb(bench, {"check"}) &&
               !askDatabase(bench.world, "select 1 from sites where status is null").empty()) {
      complain(work.name, at, "the next check does not work");
    }
  }

  /// What is wrong with the list; empty for nothing.
  std::string found(World& world, const Undisturbed& usual, bool done) const {
    try {
      if (askDatabase(world, "pragma integrity_check") != std::vector<std::string>{"ok"}) {
        return "the list is damaged";
      }
      const std::string now = whole(world);
      if (done && now != usual.after) {
        return "it was said to be done, and is not:\n" + now;
      }
      return now == usual.before || now == usual.after ? "" : "it is half done:\n" + now;
    } catch (const std::exception& error) {
      return error.what();
    }
  }

  /// How many syncs there were; one more than came about when the power was cut before.
  std::uint64_t passUntil(std::uint64_t at, std::uint64_t dice) {
    ++cuts_;
    Bench bench(seed_);
    World& world = bench.world;
    Ledger ledger(world);
    world.desktop.onProgram = [&](const std::vector<std::string>& program) {
      ledger.started(program);
      ledger.alerts().left(AlertWatch::program, AlertWatch::siteOfProgram(program));
    };
    ledger.settle();
    std::uint64_t syncs = 0;
    {
      Process process(world);
      process.view().onResult = [&](const CheckResult& result) { ledger.shown(result); };
      arm(world, at, dice);
      world.agenda.in(25min, [&] {
        if (!world.isDead()) {
          syncs = world.disk.syncs();
          Chance chance(dice);
          world.cutPower(chance);
        }
      });
      process.live();
    }
    world.powerOn();
    ledger.compareAfterDeath();
    if (ledger.hasFailed()) {
      complain("a pass", at, ledger.failure());
    }
    return syncs == 0 ? at + 1 : syncs;
  }

  void complain(const std::string& work, std::uint64_t at, const std::string& what) {
    good_ = false;
    told_ << "FAILED: the power was cut at sync " << at << " of " << work << ": " << what << '\n';
  }

  std::uint64_t seed_;
  std::ostream& told_;
  std::uint64_t cuts_ = 0;
  bool good_ = true;
};

}  // namespace

bool cutPowerEverywhere(std::uint64_t seed, std::ostream& told) {
  PowerCuts cuts(seed, told);
  for (const Work& work : allWork()) {
    const std::uint64_t before = cuts.cuts();
    cuts.cutDuring(work);
    told << cuts.cuts() - before << " power cuts during " << work.name << '\n';
  }
  const std::uint64_t before = cuts.cuts();
  cuts.cutDuringPasses();
  told << cuts.cuts() - before << " power cuts during passes\n" << (cuts.isGood() ? "passed" : "FAILED") << std::endl;
  return cuts.isGood();
}

}  // namespace tarnwick::simulation
