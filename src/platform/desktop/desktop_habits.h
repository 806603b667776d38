// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/user_habits.h"

namespace tarnwick {

/// Those of this user. A QApplication must exist.
std::unique_ptr<UserHabits> makeUserHabits();

}  // namespace tarnwick
