// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <QString>
#include <QWidget>

#include "store/option_table.h"

namespace tarnwick {

/// The control of an option.
struct OptionControl {
  QWidget* widget;
  /// Shows a value; without one `unset`, which says what holds then.
  std::function<void(const std::optional<std::string>& value, const QString& unset)> show;
  /// What is chosen.
  std::function<std::optional<std::string>()> value;
};

/// Makes the usual control of an option, as its kind wants it.
OptionControl makeOptionControl(const OptionField& option);

}  // namespace tarnwick
