// SPDX-License-Identifier: MIT
#include "simulation/simulation.h"

#include "simulation/simulated_memory.h"

#include <array>
#include <cinttypes>
#include <cstdio>

namespace tarnwick::simulation {
namespace {

using namespace std::chrono_literals;

/// How long after a trouble nothing is promised about the time of a check: a fault lets passes wait for up to a minute
/// longer each time, and a clock that was set back lets sites wait until it is there again.
constexpr Time kAfterTrouble = 1h;

/// A smaller step of the clock is none for the countdown, in seconds.
constexpr std::int64_t kNoticed = 4;

}  // namespace

std::string Outcome::text() const {
  std::array<char, 32> number{};
  std::snprintf(number.data(), number.size(), "%016" PRIx64, digest);
  return std::string(failure.empty() ? "passed" : "FAILED") + ": " + std::to_string(results) + " results, " +
         std::to_string(alerts) + " alerts, " + std::to_string(happened) + " troubles, " + std::to_string(deaths) +
         " ends without warning, " + std::to_string(comparisons) + " comparisons, " + std::to_string(events) +
         " events, digest " + number.data() + (failure.empty() ? "" : "\n  " + failure);
}

Simulation::Simulation(const Plan& plan, std::ostream* copy) : plan_(plan), world_(plan.seed, copy) {}

void Simulation::layOut() {
  layFolder(world_, plan_.original);
  if (!plan_.original && plan_.seed % 2 == 0) {
    mustRun({"option", "all", "logLimit=1"});  // a mebibyte, which is soon full
  }
  if (plan_.takesManyAtATime()) {
    mustRun({"option", "all", "parallel=12"});
    world_.web.mayBeMany = true;
    world_.web.sparesHosts = true;
  }
  for (int i = 1; i <= plan_.sites; ++i) {
    const std::string number = std::to_string(i);
    urls_.push_back(i % 3 == 0 ? "http://shared.example/" + number : "http://site" + number + ".example/");
    mustRun({"add", urls_.back(), "--alert-email", "ann@example.org"});
  }
  for (const auto& [name, value] :
       std::initializer_list<std::pair<const char*, const char*>>{{"program", "alert ~idsite~"},
                                                                  {"cprogram", "on"},
                                                                  {"cemail", "on"},
                                                                  {"caudio", "on"},
                                                                  {"audio", "alert.wav"},
                                                                  {"smtp", "mail.example"},
                                                                  {"email", "me@example.org"},
                                                                  {"creports", "on"}}) {
    mustRun({"settings", name, value});
  }
}

void Simulation::mustRun(const std::vector<std::string>& arguments) {
  if (runVerb(world_, arguments) != 0) {
    ledger_.fail("the list cannot be laid out");
  }
}

void Simulation::schedule() {
  const std::vector<Happening> all = plan_.happenings();
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (plan_.takes(i, all[i])) {
      world_.agenda.at(all[i].at, [this, i, happening = all[i]] {
        world_.journal.add("trouble", "number " + std::to_string(i) + ", " +
                                          std::string(kTroubleNames.at(static_cast<std::size_t>(happening.trouble))));
        begin(happening);
      });
    }
  }
  world_.agenda.at(plan_.length, [this] {
    over_ = true;
    if (process_) {
      process_->program().close();
    }
  });
  if (!plan_.without.contains(Trouble::clock)) {
    changeToSummerTime();
  }
  lookNow();
  clearCounters();
}

// A site that is checked every ten minutes has a full counter after 227 days: its owner is told so, and does this.
void Simulation::clearCounters() {
  constexpr Time kEvery = 24h * 80;
  world_.agenda.in(kEvery, [this] {
    if (process_ && process_->program().isOpen() && !world_.isDead() && !isOver()) {
      user_.clearCounters(*process_);
    }
    clearCounters();
  });
}

void Simulation::lookNow() {
  Time next = 1h;
  if (process_ && process_->program().isOpen() && !world_.isDead() && !isOver()) {
    const Look look(world_);
    ledger_.compare();
    ledger_.watchLiveness();
    if (process_->program().run().busy()) {
      next = 1min;
    } else {
      ledger_.settle();
    }
  }
  world_.agenda.in(next, [this] { lookNow(); });
}

void Simulation::begin(const Happening& happening) {
  if (world_.isDead() || isOver()) {
    return;
  }
  ++happened_;
  const Chance chance(happening.draw);
  if (happening.trouble != Trouble::locks && happening.trouble != Trouble::sites) {
    ledger_.answers().forget();
  }
  switch (happening.trouble) {
    case Trouble::sites:
      return changeSites(chance);
    case Trouble::mail:
      return changeMail(chance);
    case Trouble::clock:
      return setClock(chance);
    case Trouble::user:
      return actAsUser(chance);
    case Trouble::verbs:
      return process_ ? user_.runSomeVerb(chance) : void();
    case Trouble::locks:
      return lockList(chance);
    case Trouble::disk:
      return breakDisk(chance);
    case Trouble::power:
      return cutPower(chance);
    case Trouble::kill:
      return kill(chance);
    case Trouble::restart:
      return restart(chance);
    case Trouble::programs:
      return breakPrograms(chance);
    case Trouble::sleep:
      return sendToSleep(chance);
    case Trouble::memory:
      return takeMemory(chance);
  }
}

// Two times in three while something is being fetched or mailed, which is a matter of moments.
void Simulation::actAsUser(Chance chance) {
  if (const std::uint64_t when = chance.below(3); when < 2) {
    (when == 0 ? actsAtRequest_ : actsAtMail_) = chance;
  } else if (process_) {
    user_.act(*process_, chance);
  }
}

// One time in two while a page is on its way, so that there is something to record.
void Simulation::lockList(Chance chance) {
  if (chance.oneIn(2)) {
    locksAtRequest_ = chance;
    return;
  }
  ledger_.excuse(kAfterTrouble);
  mayEnd(kAfterTrouble);
  neighbour_.lock(chance);
}

void Simulation::changeSites(Chance chance) {
  const std::size_t site = chance.below(urls_.size());
  const std::string& url = urls_[site];
  auto mood = static_cast<SiteMood>(chance.below(kSiteMoods));
  if (plan_.model && mood == SiteMood::shortage) {
    mood = SiteMood::changing;  // what is tried again is no matter of the model
  }
  const Time lasts(chance.between(60'000, mood == SiteMood::shortage ? 600'000 : 86'400'000));
  world_.journal.add("web", url + " turns to mood " + std::to_string(static_cast<int>(mood)));
  world_.web.setMood(url, mood);
  if (mood == SiteMood::shortage) {
    ledger_.excuse(static_cast<std::int16_t>(site + 1), lasts);
  }
  world_.agenda.in(lasts, [this, url] {
    world_.journal.add("web", url + " is steady again");
    world_.web.setMood(url, SiteMood::steady);
  });
}

// Without a bound on its waits a list waits for a server as long as that is silent, and for one that has hung up for
// ever: so it is specified. With one a server that has not taken a mail in time is not asked again in that pass, which
// the model knows nothing of.
void Simulation::changeMail(Chance chance) {
  auto mood = static_cast<MailMood>(chance.below(kMailMoods));
  if ((plan_.original && mood == MailMood::cutting) || ((plan_.original || plan_.model) && mood == MailMood::silent)) {
    mood = MailMood::slow;
  }
  world_.journal.add("mail", "the server turns to mood " + std::to_string(static_cast<int>(mood)));
  world_.mail.setMood(mood);
  const Time lasts(chance.between(60'000, 10'800'000));
  ledger_.excuse(lasts);
  const bool takes = mood == MailMood::good || mood == MailMood::slow;
  takes ? ledger_.alerts().healed(AlertWatch::mail) : ledger_.alerts().broken(AlertWatch::mail);
  mailHeals_.in(lasts, [this] {
    world_.mail.setMood(MailMood::good);
    ledger_.alerts().healed(AlertWatch::mail);
  });
}

// It is not there, or may not be run. Nobody is told, so it is designed.
void Simulation::breakPrograms(Chance chance) {
  world_.desktop.startsPrograms = false;
  ledger_.alerts().broken(AlertWatch::program);
  programsHeal_.in(Time(chance.between(60'000, 10'800'000)), [this] {
    world_.desktop.startsPrograms = true;
    ledger_.alerts().healed(AlertWatch::program);
  });
}

void Simulation::setClock(Chance chance) {
  static constexpr std::array<std::int64_t, 4> kMost{5, 3600, 3600, 86'400};
  const std::int64_t most = kMost.at(chance.below(kMost.size()));
  std::int64_t by = most == 3600 && chance.oneIn(2) ? most : chance.between(1, most);
  by = chance.oneIn(2) ? -by : by;
  if (plan_.model && by > -kNoticed && by < kNoticed) {
    by = kNoticed;  // a step of a second or two the program takes for the next second
  }
  stepClock(std::chrono::seconds(by));
  if (chance.oneIn(3)) {  // and put right
    world_.agenda.in(Time(chance.between(1000, 600'000)), [this, by] { stepClock(std::chrono::seconds(-by)); });
  }
}

void Simulation::stepClock(std::chrono::milliseconds by) {
  ledger_.answers().forget();
  world_.journal.add("clock", "set by " + std::to_string(by.count()) + " ms");
  world_.clock.setBy(by);
  if (shadow_ && !world_.isDead()) {
    shadow_->clockSet();
  }
  ledger_.excuse(std::max(-by, 0ms) + kAfterTrouble);
}

// At two in the morning clocks go forward by an hour, and at three back.
void Simulation::changeToSummerTime() {
  using namespace std::chrono;
  for (int ahead = 0; ahead < 3; ++ahead) {
    const year later = year{2026} + years{ahead};
    const LocalTime forward = local_days{later / March / Sunday[last]} + 2h;
    const LocalTime back = local_days{later / October / Sunday[last]} + 3h;
    for (const auto& [time, by] : {std::pair{forward, 1h}, std::pair{back, -1h}}) {
      const Time at = time - world_.clock.localNow();
      if (at > 0ms && at < plan_.length) {
        world_.agenda.at(at, [this, step = by] { stepClock(step); });
      }
    }
  }
}

// Other programs take the memory, for a while that is short: who has none for long has no computer any more.
void Simulation::takeMemory(Chance chance) {
  const Time lasts(chance.between(1000, 600'000));
  const std::uint64_t oneIn = 1U << chance.between(5, 16);
  world_.journal.add("memory", "refuses one allocation in " + std::to_string(oneIn));
  ledger_.setMemoryFails(true);
  ledger_.alerts().mayChange();
  ledger_.excuse(lasts + kAfterTrouble);
  mayEnd(lasts + kAfterTrouble);
  SimulatedMemory::refuseOneIn(oneIn, Chance(chance.next()));
  memoryHeals_.in(lasts, [this] {
    world_.journal.add("memory", "is there again");
    SimulatedMemory::refuseOneIn(0, Chance(0));
    ledger_.setMemoryFails(false);
    ledger_.alerts().mayChange();
  });
}

// The machine sleeps. On some the clock that timers go by stands still meanwhile, on others all that has fallen due
// happens at once.
void Simulation::sendToSleep(Chance chance) {
  const Time lasts(chance.between(10'000, chance.oneIn(2) ? 43'200'000 : 600'000));
  world_.journal.add("clock", "the machine sleeps for " + std::to_string(lasts.count()) + " ms");
  if (chance.oneIn(2)) {
    stepClock(lasts);
  } else {
    world_.agenda.passBlocked(lasts);
    ledger_.excuse(kAfterTrouble);
  }
}

void Simulation::breakDisk(Chance chance) {
  const Time lasts(chance.between(1000, 3'600'000));
  const auto fault = static_cast<DiskFault>(chance.between(1, 3));
  const std::uint64_t oneIn = fault == DiskFault::shortWrite ? 2 : 1 + chance.below(20);
  world_.journal.add(
      "disk", "fails one write in " + std::to_string(oneIn) + " by fault " + std::to_string(static_cast<int>(fault)));
  ledger_.setDiskFails(true);
  ledger_.excuse(lasts + kAfterTrouble);
  mayEnd(lasts + kAfterTrouble);
  world_.disk.fail(fault, oneIn, Chance(chance.next()));
  world_.agenda.in(lasts, [this] {
    world_.journal.add("disk", "is well again");
    world_.disk.fail(DiskFault::none, 1, Chance(0));
    ledger_.setDiskFails(false);
  });
}

// The power goes at a sync, or at any moment; which it is was drawn before.
void Simulation::cutPower(Chance chance) {
  if (world_.disk.isCounting()) {
    return;  // it is about to go already
  }
  world_.disk.keepCount();
  const std::uint64_t atSync = chance.oneIn(2) ? 1 + chance.below(40) : 0;
  off_ = Time(chance.between(10'000, 3'600'000));
  const std::uint64_t draw = chance.next();
  world_.disk.onSync = [this, atSync, draw](std::uint64_t number) {
    if (number == atSync) {
      Chance dice(draw);
      world_.cutPower(dice);
    }
  };
  world_.agenda.in(Time(chance.between(1, 600'000)), [this, draw, deathsBefore = deaths_] {
    if (world_.disk.isCounting() && deaths_ == deathsBefore) {
      Chance dice(draw);
      world_.cutPower(dice);
    }
  });
}

void Simulation::kill(Chance chance) {
  off_ = Time(chance.between(1000, 600'000));
  world_.killAll();
}

void Simulation::restart(Chance chance) {
  if (process_) {
    off_ = Time(chance.between(1000, 600'000));
    offline_ = chance.next() | 1U;
    world_.journal.add("user", "closes the program");
    process_->program().close();
  }
}

void Simulation::liveOnce() {
  process_ = std::make_unique<Process>(world_);
  ledger_.alerts().begin();
  ledger_.answers().forget();
  process_->view().onDropped = [this](const std::string& url) { ledger_.answers().told(url); };
  process_->view().onResult = [this](const CheckResult& result) { ledger_.shown(result); };
  process_->view().onLostMail = [this](const LostMail& mail) {
    ledger_.alerts().lost(AlertWatch::mail, mail.idSite);
    ledger_.sawSign();
  };
  process_->view().onSign = [this] { ledger_.sawSign(); };
  if (plan_.model) {
    process_->onStarted = [this] { bringInTheModel(); };
  }
  const bool lived = process_->live();
  if (!lived && !world_.isDead() && world_.agenda.now() > mayEndUntil_) {
    ledger_.fail("the program has ended by itself: " + process_->why());
  }
  shadow_.reset();
  process_.reset();
  neighbour_.letGo();
  ledger_.excuse(kAfterTrouble + off_);
  if (!lived) {
    off_ = 1min;  // somebody looks after it
  }
}

void Simulation::bringInTheModel() {
  shadow_ = std::make_unique<Shadow>(world_, *process_, [this](const std::string& what) {
    if (!world_.isDead()) {
      ledger_.fail(what);
    }
  });
  user_.edits = true;
  user_.addsSites = !plan_.original;
  user_.onEdited = [this](bool editor) {
    if (shadow_ && !world_.isDead()) {
      shadow_->edited(editor);
    }
  };
  user_.onVerb = [this] {
    if (shadow_ && !world_.isDead()) {
      shadow_->edited(false);
    }
  };
  user_.onStop = [this] { shadow_->stops(); };
  user_.onStart = [this] { shadow_->starts(); };
  shadow_->starts();
}

void Simulation::stayOff() {
  bool on = false;
  world_.agenda.in(std::exchange(off_, 1s), [&on] { on = true; });
  while (!on && !isOver()) {
    world_.agenda.happen();
  }
}

void Simulation::watchAnswers() {
  const auto isOfTheRun = [this] { return !world_.web.isShared && !world_.isDead() && ledger_.canBeRecorded(); };
  world_.web.onRequest = [this, isOfTheRun](const Request& request) {
    if (isOfTheRun()) {
      ledger_.answers().asked(request.url);
    }
  };
  world_.web.onAnswer = [this, isOfTheRun](const std::string& url, const TransferResult& result) {
    if (isOfTheRun() && result.fault != TransferFault::shortage) {
      ledger_.answers().answered(url);
    }
  };
}

Outcome Simulation::run() {
  const auto actSoon = [this](std::optional<Chance>& user) {
    if (user) {
      world_.agenda.in(Time(5), [this, chance = *std::exchange(user, std::nullopt)] {
        if (process_ && !world_.isDead() && !isOver()) {
          ledger_.answers().forget();
          user_.act(*process_, chance);
        }
      });
    }
  };
  world_.web.onBegin = [this, actSoon] {
    actSoon(actsAtRequest_);
    if (locksAtRequest_) {
      world_.agenda.in(Time(5), [this, chance = *std::exchange(locksAtRequest_, std::nullopt)] {
        if (!world_.isDead() && !isOver()) {
          ledger_.excuse(kAfterTrouble);
          mayEnd(kAfterTrouble);
          neighbour_.lock(chance);
        }
      });
    }
  };
  world_.mail.endsApart = world_.timers.ticksApart = plan_.model;
  if (!plan_.model) {
    watchAnswers();
  }
  world_.mail.onBegin = [this, actSoon] { actSoon(actsAtMail_); };
  user_.hasPatience = plan_.length > 24h * 30;
  world_.web.onTooMany = [this](const std::string& what) { ledger_.fail(what); };
  AlertWatch& alerts = ledger_.alerts();
  world_.desktop.onProgram = [&](const std::vector<std::string>& program) {
    ledger_.started(program);
    alerts.left(AlertWatch::program, AlertWatch::siteOfProgram(program));
  };
  world_.desktop.onNoProgram = [&](const std::vector<std::string>& program) {
    ledger_.started(program);
    alerts.lost(AlertWatch::program, AlertWatch::siteOfProgram(program));
  };
  world_.mail.onTaken = [&](const std::string& mail) { alerts.left(AlertWatch::mail, AlertWatch::siteOfMail(mail)); };
  layOut();
  ledger_.settle();
  schedule();
  while (!isOver()) {
    liveOnce();
    if (world_.isDead()) {
      ++deaths_;
      world_.powerOn();
      ledger_.compareAfterDeath();
    } else {
      ledger_.compare();
      ledger_.ended();
    }
    if (isOver()) {
      break;
    }
    stayOff();
    if (const std::uint64_t draw = std::exchange(offline_, 0); draw != 0 && !isOver()) {
      user_.runVerbOffline(Chance(draw));
    }
  }
  return {world_.journal.digest(),   ledger_.results(), world_.agenda.count(),   happened_,
          ledger_.comparisons(),     deaths_,           world_.desktop.sounds(), ledger_.failure(),
          world_.journal.lastLines()};
}

}  // namespace tarnwick::simulation
