// SPDX-License-Identifier: MIT
#include <windows.h>

#include <atomic>
#include <mutex>
#include <utility>
#include <QMetaObject>
#include <QObject>

#include "platform/interrupts.h"

namespace tarnwick {
namespace {

/// The console's events come on a thread of the system's own. A console that is being closed ends the process as soon
/// as that thread comes back, and after some seconds in any case.
constexpr DWORD kRoomForTheEndMs = 5000;

std::mutex mutex;
QObject* receiver = nullptr;   ///< guarded by the mutex
std::function<void()> served;  ///< set while no event can come
std::atomic<bool> asked = false;

bool isLastWord(DWORD event) {
  return event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT;
}

BOOL WINAPI onConsoleEvent(DWORD event) {
  // The next handler ends the process, as it would have without this one.
  if (asked.exchange(true)) {
    return FALSE;
  }
  {
    const std::lock_guard lock(mutex);
    if (receiver == nullptr) {
      return FALSE;
    }
    QMetaObject::invokeMethod(
        receiver, [] { served(); }, Qt::QueuedConnection);
  }
  if (isLastWord(event)) {
    Sleep(kRoomForTheEndMs);
  }
  return TRUE;
}

}  // namespace

struct Interrupts::Watch {
  explicit Watch(std::function<void()> action) {
    served = std::move(action);
    asked = false;
    {
      const std::lock_guard lock(mutex);
      receiver = &context;
    }
    SetConsoleCtrlHandler(&onConsoleEvent, TRUE);
  }

  ~Watch() {
    SetConsoleCtrlHandler(&onConsoleEvent, FALSE);
    const std::lock_guard lock(mutex);
    receiver = nullptr;
  }

  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  QObject context;
};

Interrupts::Interrupts(std::function<void()> handler) : watch_(std::make_unique<Watch>(std::move(handler))) {}
Interrupts::~Interrupts() = default;

}  // namespace tarnwick
