// SPDX-License-Identifier: MIT
#include "ui/rows/row_actions.h"

#include <algorithm>
#include <utility>

#include "store/site_pauses.h"
#include "ui/controls/alarm_words.h"
#include "ui/controls/boxes.h"
#include "ui/rows/row_questions.h"

namespace tarnwick {

RowActions::RowActions(Program& program, QWidget& window, QObject* parent)
    : QObject(parent), program_(program), window_(window), work_(new SiteWork(program, window, this)) {}

void RowActions::ask(const QStringList& question, bool destroys, const std::function<void()>& action) {
  tarnwick::ask(window_, program_, {.text = paragraphs(question), .destroys = destroys}, [action](bool yes) {
    if (yes) {
      action();
    }
  });
}

void RowActions::askWhereSeveral(const ChosenSites& all, const QStringList& question,
                                 const std::function<void()>& action) {
  if (all.size() > 1) {
    ask(question, false, action);
  } else {
    action();
  }
}

void RowActions::write(const QString& what, const ChosenSites& sites, SiteWork::Piece piece,
                       std::function<void()> done) {
  work_->start(SiteWork::Aim::write, what, idsOf(sites), std::move(piece), [this, done = std::move(done)] {
    program_.run().init();
    if (done) {
      done();
    }
  });
}

void RowActions::checkNow(const ChosenSites& sites) {
  const ChosenSites active = thoseOf(sites, [](const ChosenSite& site) { return site.active; });
  if (active.empty()) {
    return;
  }
  const auto check = [this, ids = idsOf(active)] { program_.checkNow(ids); };
  askWhereSeveral(sites,
                  {counted(active.size(), tr("Check 1 site now?"), tr("Check %1 sites now?")),
                   remainderText(sites.size(), active.size(), tr("%1 of %2 is not active and is not checked."),
                                 tr("%1 of %2 are not active and are not checked."))},
                  check);
}

ChosenSites RowActions::toAcknowledge(const ChosenSites& sites) {
  const bool ends = endsAcknowledgement(sites);
  return thoseOf(sites, [ends](const ChosenSite& site) { return site.down && site.known == ends; });
}

bool RowActions::endsAcknowledgement(const ChosenSites& sites) {
  const ChosenSites down = thoseOf(sites, [](const ChosenSite& site) { return site.down; });
  return !down.empty() && std::ranges::all_of(down, &ChosenSite::known);
}

void RowActions::acknowledge(const ChosenSites& sites) {
  const ChosenSites some = toAcknowledge(sites);
  if (some.empty()) {
    return;
  }
  if (endsAcknowledgement(sites)) {
    askWhereSeveral(sites,
                    {counted(some.size(), tr("Tell of 1 site again?"), tr("Tell of %1 sites again?")), listOf(some),
                     remainderText(sites.size(), some.size(), tr("%1 of %2 is not acknowledged and stays as it is."),
                                   tr("%1 of %2 are not acknowledged and stay as they are."))},
                    [this, some] {
                      write(tr("Ending acknowledgements ..."), some,
                            [](m& data, std::int16_t idSite) { data.removeAcknowledgement(idSite); });
                    });
    return;
  }
  askWhereSeveral(
      sites,
      {counted(some.size(),
               tr("Acknowledge the wrong page of 1 site? Nothing is said of it while exactly this page stays."),
               tr("Acknowledge the wrong pages of %1 sites? Nothing is said of them while exactly these pages stay.")),
       listOf(some),
       remainderText(sites.size(), some.size(), tr("%1 of %2 has no such page and stays as it is."),
                     tr("%1 of %2 have no such page and stay as they are."))},
      [this, some] {
        write(tr("Acknowledging pages ..."), some, [](m& data, std::int16_t idSite) {
          const ToSettle found = data.toSettle(idSite);
          if (found.state == ToSettle::State::differs || found.state == ToSettle::State::failedFetch) {
            data.acknowledgePage(idSite, found.page);
          }
        });
      });
}

void RowActions::pause(const ChosenSites& sites, const Pause& pause) {
  const QString length = pauseWords(pause, program_.services().clock.localNow());
  askWhereSeveral(
      sites, {tr("Pause the alerts of %1 sites %2?").arg(QString::number(sites.size()), length)}, [this, sites, pause] {
        write(tr("Pausing alerts ..."), sites,
              [pause](m& data, std::int16_t idSite) { SitePauses(data.database(), data).pause({idSite}, pause); });
      });
}

void RowActions::resume(const ChosenSites& sites) {
  const ChosenSites paused =
      sites.size() == 1 ? sites : thoseOf(sites, [](const ChosenSite& site) { return site.paused; });
  if (paused.empty()) {
    return;
  }
  askWhereSeveral(sites,
                  {counted(paused.size(), tr("Resume the alerts of 1 site?"), tr("Resume the alerts of %1 sites?")),
                   remainderText(sites.size(), paused.size(), tr("%1 of %2 is not paused and stays as it is."),
                                 tr("%1 of %2 are not paused and stay as they are."))},
                  [this, paused] {
                    write(tr("Resuming alerts ..."), paused,
                          [now = program_.services().clock.localNow()](m& data, std::int16_t idSite) {
                            SitePauses(data.database(), data).resume({idSite}, now);
                          });
                  });
}

void RowActions::resetCounters(const ChosenSites& sites) {
  const ChosenSites some = thoseOf(sites, [](const ChosenSite& site) { return site.counted; });
  if (some.empty()) {
    return;
  }
  const QString question =
      counted(some.size(), tr("Set the counters of this site to 0?"), tr("Set the counters of %1 sites to 0?"));
  ask({question, listOf(some),
       remainderText(sites.size(), some.size(), tr("%1 of %2 is at 0 and stays as it is."),
                     tr("%1 of %2 are at 0 and stay as they are."))},
      true, [this, some] {
        write(tr("Clearing counters ..."), some, [](m& data, std::int16_t idSite) { data.clearCounters(idSite); });
      });
}

void RowActions::remove(const ChosenSites& sites) {
  if (sites.empty()) {
    return;
  }
  const QString question =
      counted(sites.size(), tr("Do You Want To Delete This Site?"), tr("Do You Want To Delete These %1 Sites?"));
  ask({question, listOf(sites)}, true, [this, sites] {
    const auto taken = std::make_shared<std::vector<DeletedSite>>();
    write(
        tr("Deleting sites ..."), sites,
        [taken](m& data, std::int16_t idSite) {
          DeletedSite site = data.takeSiteOut(idSite);
          if (!site.tables.empty()) {
            taken->push_back(std::move(site));
          }
        },
        [this, taken] {
          if (!taken->empty()) {
            Q_EMIT deleted(taken);
          }
        });
  });
}

}  // namespace tarnwick
