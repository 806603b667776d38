// SPDX-License-Identifier: MIT
#include <cstdint>

#include "model/model_check.h"

namespace tarnwick::model {
namespace {

// Whatever comes in whatever order, these hold after every event.
void checkInvariants(const Model& model) {
  const bool idleLamp = model.lamp() == (model.running() ? Lamp::kPause : Lamp::kStop);
  check(model.busy() || (model.inFlight().empty() && !model.mailing() && idleLamp), "idle means nothing under way");
  check(model.inFlight().size() <= kMostInFlight, "never more than five in flight");
  int counted = 0;
  for (const auto& [id, site] : model.rows())
    counted += site.success.value_or(0) + site.failure.value_or(0);
  const int recorded = static_cast<int>(model.log().size());
  check(recorded >= counted && recorded <= counted + (model.mailing() ? 1 : 0), "one log row for each count");
}

}  // namespace

// A long storm of buttons, answers, edits and errors; no site is deleted, as its counts would go with it.
void checkStorm() {
  Model model = modelOf(9);
  std::uint32_t dice = 12345;
  Time now = kNoon;
  const auto roll = [&dice](std::uint32_t sides) { return (dice = dice * 1664525U + 1013904223U) / 65536U % sides; };
  for (int turn = 0; turn < 20000; ++turn) {
    const int id = static_cast<int>(roll(9)) + 1;
    Site typed = siteOf(id);
    typed.alertEmail = static_cast<int>(roll(2));
    typed.interval = static_cast<int>(roll(3));
    switch (roll(40)) {
      case 0:
        model.start(now);
        break;
      case 1:
        model.stop(now);
        break;
      case 2:
        model.stopAndStart(now);
        break;
      case 3:
        typed.url = "http://moved";
        [[fallthrough]];
      case 4:
        model.edited(typed);
        break;
      case 5:
        model.editorClosed();
        break;
      case 6:
        if (!model.mailing())
          model.dataError();  // it would leave a row without its count
        break;
      case 7:
      case 8:
      case 9:
      case 10:
        model.mailEnded(now);
        break;
      case 11:
      case 12:
      case 13:
      case 14:
      case 15:
        model.sweep(now);
        break;
      case 16:
      case 17:
        model.second(now += seconds(1));
        break;
      case 18:
        model.answered(id, {Answer::Kind::kNotMade, 0, "", ""}, now);
        break;
      default:
        model.answered(id, roll(2) == 0 ? page("page") : failed(7, "no"), now);
        break;
    }
    if (model.mailing() && roll(50) == 0)
      now += seconds(30);
    checkInvariants(model);
  }
  check(model.log().size() > 500, "the storm recorded a lot");
}

}  // namespace tarnwick::model
