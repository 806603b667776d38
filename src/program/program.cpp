// SPDX-License-Identifier: MIT
#include "program/program.h"

#include <set>
#include <string>
#include <utility>

#include "program/month_telling.h"
#include "report/publication.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

TextTable sitesOf(m& data, const std::vector<std::int16_t>& ids) {
  if (ids.size() == 1) {
    return data.getArraySites(ids.front());
  }
  std::set<std::string> texts;
  for (const std::int16_t id : ids) {
    texts.insert(std::to_string(id));
  }
  const TextTable all = data.getArraySites(0);
  return rowsWhere(all, [&](std::size_t row) { return texts.contains(all.at(site_column::idSite, row)); });
}

}  // namespace

// What needs the open database. The controller refers to the pool and the data, so it is the first to go.
struct Program::Parts {
  using Handler = std::function<void()>;

  Parts(const std::string& folder, const Services& services, RunView& view, FaultBox& faults, const Fields& fields)
      : data(folder, services, fields),
        publication(data, services.files, services.clock, services.timers,
                    [&faults](const Handler& handler) { faults.runRepeated("for others", handler); }),
        monthTelling(data, data.delivery(), services.files, services.clock, services.timers,
                     [&faults](const Handler& handler) { faults.runRepeated("month's report", handler); }),
        pool(data, services.transfers, services.timers),
        run({.dueSites = data,
             .pages = data,
             .results = data,
             .alerts = data,
             .delivery = data.delivery(),
             .pool = pool,
             .view = view,
             .clock = services.clock,
             .pump = services.pump,
             .options = data,
             .keptPages = data,
             .reserve = data,
             .standings = data,
             .history = data,
             .transfers = services.transfers,
             .timers = services.timers},
            services.timers,
            [this, &faults](const std::string& name, const Handler& handler) {
              faults.runRepeated(name, handler);
              passHasEnded = passHasEnded || name == "run";
              tellOthers(faults);
            }),
        report({data, data, services.clock, [this] { return run.running(); },
                [&view](const std::string& text) { view.showStatus(text); }},
               services.timers,
               [&faults](const std::string& name, const Handler& handler) { faults.runRepeated(name, handler); }) {}

  // In the next moment in which nothing else goes on; what is told of passes after each of them.
  void tellOthers(FaultBox& faults) {
    if (run.busy() || !run.running()) {
      return;
    }
    if (monthTelling.isDue()) {
      faults.runRepeated("month's report", [this] { monthTelling.tick(data.optionsInForce()); });
    }
    if (!passHasEnded) {
      return;
    }
    passHasEnded = false;
    faults.runRepeated("for others", [this] { passHasEnded = !publication.write(data.optionsInForce()); });
  }

  m data;
  Publication publication;
  MonthTelling monthTelling;
  bool passHasEnded = false;
  InetPool pool;
  RunController run;
  ReportTimer report;
};

Program::Program(std::string programFolder, const Services& services, RunView& view, const Fields& fields)
    : programFolder_(std::move(programFolder)),
      services_(services),
      view_(view),
      fields_(fields),
      faults_(services.prompts),
      lock_(services.runLocks.makeRunLock(programFolder_)) {}

Program::~Program() = default;

Program::Parts& Program::parts() {
  if (!parts_) {
    parts_ = std::make_unique<Parts>(programFolder_, services_, view_, faults_, fields_);
  }
  return *parts_;
}

m& Program::data() { return parts().data; }
RunController& Program::run() { return parts().run; }
InetPool& Program::pool() { return parts().pool; }
ReportTimer& Program::report() { return parts().report; }

void Program::start() {
  run().init();
  data().reIdpostVars();
  run().prepare();
  report().prepare();
  data().delivery().deliver();
  view_.showStatus("Ready ...");
}

void Program::tellDeleted(DeletedSite site) {
  if (deleted_ && !site.tables.empty()) {
    deleted_(std::move(site));
  }
}

bool Program::startRun() {
  // The passes that follow go on with the first one's work: what stopped that one is not told again by them.
  return faults_.run(
      [this] {
        lock_->take();
        run().startChecking();
        parts().passHasEnded = true;
      },
      "run");
}

void Program::stopRun() {
  faults_.run([this] { run().stopChecking(); });
  lock_->release();
}

void Program::checkNow(const std::vector<std::int16_t>& ids) {
  faults_.run(
      [&] {
        if (run().running()) {
          run().checkSoon(ids);
        } else if (!run().busy()) {
          run().obey(data().optionsInForce());
          if (run().testOnce(sitesOf(data(), ids)) && !run().running()) {
            view_.showStatus("Ready ...");
          }
        }
      },
      "run");
}

void Program::close() {
  services_.pump.close();
  if (!parts_) {
    return;
  }
  if (parts_->run.running()) {
    stopRun();
  }
  if (!parts_->run.busy()) {
    parts_->pool.killAllSockets();
  }
  parts_->data.delivery().stop();
  parts_->data.single().sInet().cancel();
  parts_->data.mail().winsock1().close();
}

}  // namespace tarnwick
