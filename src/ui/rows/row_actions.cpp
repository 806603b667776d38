// SPDX-License-Identifier: MIT
#include "ui/rows/row_actions.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <QPointer>

#include "store/site_pauses.h"
#include "ui/controls/alarm_words.h"
#include "ui/controls/boxes.h"
#include "ui/controls/placement.h"
#include "ui/rows/change_dialog.h"
#include "ui/rows/row_questions.h"
#include "ui/rows/tags_dialog.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMostKept = std::size_t{256} * 1024 * 1024;

}  // namespace

RowActions::RowActions(Program& program, QWidget& window, QObject* parent)
    : QObject(parent),
      program_(program),
      work_(new SiteWork(program, window, this)),
      window_(window),
      undoList_(new UndoList(this)) {
  program_.onDeleted([this](DeletedSite site) {
    const auto deleted = std::make_shared<Deleted>();
    const std::int64_t id = site.idSite;
    deleted->emplace(id, std::move(site));
    keepDeleted(deleted);
  });
}

// The main window can always be closed, so it is not the one that waits.
void RowActions::ask(const QStringList& question, bool destroys, const std::function<void()>& action) {
  if (std::exchange(isAsking_, true)) {
    return;
  }
  program_.services().prompts.confirm(
      {.text = paragraphs(question), .icon = PromptIcon::question, .destroys = destroys},
      [self = QPointer(this), action](bool yes) {
        if (self != nullptr) {
          self->isAsking_ = false;
          if (yes) {
            self->program_.faults().run(action);
          }
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
    const auto taken = std::make_shared<Deleted>();
    write(
        tr("Deleting sites ..."), sites,
        [taken, size = std::size_t{0}](m& data, std::int16_t idSite) mutable {
          DeletedSite site = data.takeSiteOut(idSite);
          size += sizeOf(site);
          if (size > kMostKept && !taken->empty()) {
            throw std::runtime_error(
                "These sites hold more than 256 MB, which is too much to be kept until somebody wants them back. "
                "Nothing "
                "was deleted. Delete fewer at a time, or in a terminal with: tarnwickctl delete");
          }
          taken->emplace(idSite, std::move(site));
        },
        [this, taken] {
          std::erase_if(*taken, [](const auto& site) { return site.second.tables.empty(); });
          keepDeleted(taken);
        });
  });
}

void RowActions::editTags(const ChosenSites& sites) {
  if (!sites.empty()) {
    openDialog(*new TagsDialog(program_, sites, &window_));
  }
}

void RowActions::change(const ChosenSites& sites) {
  if (!sites.empty()) {
    openDialog(*new ChangeDialog(program_, sites, &window_));
  }
}

void RowActions::openDialog(SitesDialog& dialog) {
  connect(&dialog, &SitesDialog::agreed, this,
          [this](const std::vector<std::int16_t>& ids, const SiteChanges& changes) {
            work_->start(
                SiteWork::Aim::write, tr("Changing sites ..."), ids,
                [changes](m& data, std::int16_t idSite) { carryOutChange(data, idSite, changes); },
                [this] { program_.run().init(); });
          });
  sizeToContents(dialog, window_);
  placeOver(dialog, window_);
  dialog.show();
  bringToFront(dialog);
}

void RowActions::keepDeleted(const std::shared_ptr<const Deleted>& sites) {
  if (sites->empty()) {
    return;
  }
  const bool isOne = sites->size() == 1;
  undoList_->add(
      {isOne ? tr("Site %1 was deleted.").arg(sites->begin()->first) : tr("%1 sites were deleted.").arg(sites->size()),
       isOne ? tr("&Undo Delete Site %1").arg(sites->begin()->first) : tr("&Undo Delete %1 Sites").arg(sites->size()),
       [this, sites](const std::function<void()>& done) { undoDelete(sites, done); }});
}

void RowActions::undoDelete(const std::shared_ptr<const Deleted>& sites, const std::function<void()>& done) {
  if (work_->isBusy()) {
    return;
  }
  std::vector<std::int16_t> ids;
  for (const auto& [id, site] : *sites) {
    ids.push_back(static_cast<std::int16_t>(id));
  }
  work_->start(
      SiteWork::Aim::write, tr("Putting sites back ..."), ids,
      [sites](m& data, std::int16_t idSite) { data.putSiteBack(sites->at(idSite)); },
      [this, ids, done] {
        program_.run().init();
        Q_EMIT putBack(ids);
        done();
      });
}

}  // namespace tarnwick
