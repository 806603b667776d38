// SPDX-License-Identifier: MIT
// What the main window shows of its run.
#include <exception>

#include "ui/controls/display_text.h"
#include "ui/main_window/first_steps.h"
#include "ui/main_window/grid_filling.h"
#include "ui/main_window/master.h"
#include "ui/main_window/site_extras.h"

namespace tarnwick {

void Master::setCaption(const std::string& caption) { setWindowTitle(QString::fromStdString(caption)); }

void Master::fillGrid() {
  filling_->begin();
  notices_->look();
  marks_->look();
  extras_->look();
}

QString Master::reasonOf(std::int16_t idSite) {
  try {
    return displayMessage(program_.data().reasonOf(idSite));
  } catch (const std::exception&) {
    return {};
  }
}

void Master::showStatus(const std::string& text) { controls_.lStatus->showText(displayMessage(text)); }

void Master::indicators(RunState state) {
  state_ = state;
  notices_->look();
  steps_->look();
  if (tray_ != nullptr) {
    tray_->look();
  }
  controls_.lamps[0]->setLit(state == RunState::stop);
  controls_.lamps[1]->setLit(state == RunState::pause);
  controls_.lamps[2]->setLit(state == RunState::start);
  if (state == RunState::stop) {
    // The pass may not come to its end for a long time, when a mail server keeps it waiting.
    for (const std::int16_t idSite : sites_.marked()) {
      unbrighten(idSite);
    }
  }
}

void Master::blinkLamps() {
  if (state_ == RunState::stop) {
    return;
  }
  for (Lamp* lamp : controls_.lamps) {
    lamp->blink();
  }
  notices_->lookNowAndThen();
  marks_->lookNowAndThen();
}

void Master::showClock(const std::string& text) { controls_.lClock->setText(displayMessage(text)); }

std::int64_t Master::fullProgressWidth() { return controls_.pb1->takeFullWidth(); }

void Master::setProgressWidth(std::int64_t width) { controls_.pb1->showWidth(width); }

void Master::unbrighten(std::int16_t idSite) {
  sites_.unbrighten(idSite);
  try {
    sites_.updateSite(program_.data().getArraySites(idSite));
  } catch (const std::exception&) {
    // This runs while a pass is cut, perhaps by that very failure, which is told elsewhere: the row keeps the state
    // that was last read.
  }
}

void Master::updateGridRow(std::int16_t idSite, bool passed) {
  filling_->renew(idSite);
  if (sites_.rowOfSite(idSite) >= 0) {
    sites_.updateSite(program_.data().getArraySites(idSite));
  } else if (!filling_->goesOn()) {
    fillGrid();  // a new one
  }
  sites_.setResult(idSite, passed);
  marks_->update(idSite);
  extras_->update(idSite);
}

void Master::showResult(const CheckResult& result) {
  sites_.setFetched(result.idSite, result.errCode == 0 && result.errDescription.empty());
}

void Master::setLastChecked(std::int16_t idSite, const std::string& dateTime) {
  filling_->renew(idSite);
  sites_.setLastChecked(idSite, dateTime);
}

void Master::showOffline(std::optional<LocalTime> since) {
  notices_->tellOffline(since);
  marks_->look();
}

}  // namespace tarnwick
