// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QDialog>
#include <QWidget>

#include "ui/controls/dated_windows_table.h"
#include "ui/controls/week_map.h"

namespace tarnwick {

/// When it is quiet: the map of the week, and the dated windows.
class QuietHoursForm final : public QWidget {
  Q_OBJECT

 public:
  explicit QuietHoursForm(QWidget* parent = nullptr);

  void setValues(const WeekHours& hours, std::vector<DatedWindow> windows, LocalTime now);
  const WeekHours& hours() const { return map_->hours(); }
  const std::vector<DatedWindow>& windows() const { return windows_->windows(); }

 Q_SIGNALS:
  void hoursEdited();
  void windowsEdited();

 private:
  WeekMap* map_;
  DatedWindowsTable* windows_;
};

/// The same as a dialog, for one site.
class QuietHoursDialog final : public QDialog {
  Q_OBJECT

 public:
  explicit QuietHoursDialog(QWidget* parent);

  QuietHoursForm& form() { return *form_; }

 private:
  QuietHoursForm* form_;
};

}  // namespace tarnwick
