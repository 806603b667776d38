// SPDX-License-Identifier: MIT
#include "ui/main_window/notice_actions.h"

#include <chrono>
#include <cstdint>
#include <string>

#include "store/site_pauses.h"
#include "ui/controls/boxes.h"

namespace tarnwick {
namespace {

void show(SiteGridView& grid, DetailsArea& details, std::int16_t idSite) {
  grid.window()->show();
  bringToFront(*grid.window());
  details.show(idSite);
  grid.setFocus();
}

void mute(Program& program, std::int16_t idSite) {
  const LocalTime end = program.services().clock.localNow() + std::chrono::hours(1);
  SitePauses(program.data().database(), program.data()).pause({idSite}, {true, end});
  program.run().init();
}

void act(Program& program, SiteGridView& grid, DetailsArea& details, std::int16_t idSite, const std::string& key) {
  if (key == "mute") {
    mute(program, idSite);
    return;
  }
  show(grid, details, idSite);
  if (key == "accept") {
    details.settling().accept(idSite);
  }
}

}  // namespace

void followDelivery(Program& program, Notices& notices, SiteGridView& grid, DetailsArea& details) {
  Delivery& delivery = program.data().delivery();
  delivery.onChanged([&notices] { notices.look(); });
  delivery.onNoticeActed([&](std::int16_t idSite, const std::string& key) {
    program.faults().run([&] { act(program, grid, details, idSite, key); });
  });
}

}  // namespace tarnwick
