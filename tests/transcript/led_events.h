// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/event_pump.h"
#include "program/program.h"
#include "transcript/recorded_mail.h"
#include "transcript/scripted_web.h"

namespace tarnwick::testing {

/// An event loop in which one thing happens after the other. Whenever the program lets events in, everything under way
/// comes to rest: each request stands at its server, or has come to its end. Only when the program waits, one more
/// request is answered. So the order of all that happens depends on the script alone, however fast the machine is.
class LedEvents final : public EventPump {
 public:
  LedEvents(EventPump& real, ScriptedWeb& web, const RecordedSockets& mail) : real_(real), web_(web), mail_(mail) {}

  /// Whose requests are looked at; nothing is under way before.
  void lead(Program& program) { program_ = &program; }

  void pump() override;
  void waitForEvent() override;
  void close() override { real_.close(); }
  bool closing() const override { return real_.closing(); }

 private:
  std::size_t underWay() const;
  bool atRest() const { return underWay() == web_.waiting(); }
  void await(const std::function<bool()>& condition);

  EventPump& real_;
  ScriptedWeb& web_;
  const RecordedSockets& mail_;
  Program* program_ = nullptr;
};

}  // namespace tarnwick::testing
