// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "model/model.h"

// What the checks of the model share: counting them, and sites and settings to begin with.

namespace tarnwick::model {

using std::chrono::hours, std::chrono::minutes, std::chrono::seconds;

inline int failures = 0;
inline int checks = 0;

inline void check(bool holds, const char* what) {
  ++checks;
  if (holds)
    return;
  ++failures;
  std::printf("FAILED: %s\n", what);
}

inline const Time kMidnight = std::chrono::local_days{std::chrono::year{2030} / 3 / 14};
inline const Time kNoon = kMidnight + hours(12);

inline std::string clockText(Time now) { return std::to_string((now - kMidnight).count()); }

inline Site siteOf(int id, const char* baseline = "page") {
  Site site;
  site.id = id;
  site.url = "http://site" + std::to_string(id);
  site.method = "GET";
  site.active = 1;
  site.interval = 10;
  site.lastChecked = kNoon;
  site.userName = site.passWord = "";
  site.baseline = baseline;
  return site;
}

inline Sites sitesOf(int count) {
  Sites sites;
  for (int id = 1; id <= count; ++id)
    sites[id] = siteOf(id);
  return sites;
}

inline Settings loudSettings() {
  Settings settings;
  settings.email = "me@own.org";
  settings.smtp = "mail.own.org";
  settings.audio = "bell.wav";
  settings.program = "tell \"~url~\" ~3~";
  settings.logs = settings.sendMail = settings.playSound = settings.startProgram = 1;
  return settings;
}

inline Model modelOf(int count, const Settings& settings = loudSettings()) {
  return {{"host", "10.0.0.7", "http://maker", "down: ~url~ at ~date~", clockText}, sitesOf(count), settings};
}

inline Answer page(const char* text) { return {Answer::Kind::kPage, 0, "", text}; }
inline Answer failed(int code, const char* text) { return {Answer::Kind::kFailed, code, text, ""}; }

template <typename Wanted>
std::vector<Wanted> only(const std::vector<Effect>& effects) {
  std::vector<Wanted> found;
  for (const Effect& effect : effects) {
    if (const auto* one = std::get_if<Wanted>(&effect))
      found.push_back(*one);
  }
  return found;
}

// Answers, and at once the sweep that frees the slot.
inline void answerAndSweep(Model& model, int id, const Answer& answer, Time now) {
  check(model.answered(id, answer, now), "the request was in flight");
  model.sweep(now);
}

/// A long storm of events in any order.
void checkStorm();

}  // namespace tarnwick::model
