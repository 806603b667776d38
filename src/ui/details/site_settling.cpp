// SPDX-License-Identifier: MIT
#include "ui/details/site_settling.h"

#include <utility>

#include "ui/controls/boxes.h"
#include "ui/controls/placement.h"
#include "ui/details/accept_dialog.h"
#include "ui/details/settling_words.h"

namespace tarnwick {

SiteSettling::SiteSettling(Program& program, QWidget& window, QObject* parent)
    : QObject(parent), program_(program), window_(window) {}

void SiteSettling::accept(std::int16_t idSite, bool beside) {
  program_.faults().run([&] {
    ToSettle found = program_.data().toSettle(idSite);
    if (!canBeAccepted(found)) {
      tell(window_, program_, standingWords(idSite, found, {}).toStdString());
      return;
    }
    auto* dialog = new AcceptDialog(
        program_, idSite, std::move(found), beside,
        [this, idSite](AcceptAs as) {
          finish(idSite);
          if (as == AcceptAs::baseline) {
            Q_EMIT accepted({idSite});
          }
        },
        &window_);
    placeOver(*dialog, window_);
    endModalityAt(*dialog);
    dialog->show();
  });
}

void SiteSettling::undoAccept(const std::vector<std::int16_t>& ids) {
  program_.faults().run([&] {
    Transaction whole(program_.data().database());
    for (const std::int16_t idSite : ids) {
      if (!program_.data().undoAccept(idSite)) {
        tell(window_, program_, tr("Site %1 has no earlier baseline.").arg(idSite).toStdString());
      }
    }
    whole.commit();
    finish(ids.size() == 1 ? ids.front() : std::int16_t{0});
  });
}

void SiteSettling::acknowledge(std::int16_t idSite, const std::string& page) {
  program_.faults().run([&] {
    program_.data().acknowledgePage(idSite, page);
    finish(idSite);
  });
}

void SiteSettling::alarmAgain(std::int16_t idSite) {
  program_.faults().run([&] {
    program_.data().removeAcknowledgement(idSite);
    finish(idSite);
  });
}

void SiteSettling::finish(std::int16_t idSite) {
  program_.run().init();
  Q_EMIT settled(idSite);
}

}  // namespace tarnwick
