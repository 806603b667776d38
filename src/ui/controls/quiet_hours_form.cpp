// SPDX-License-Identifier: MIT
#include "ui/controls/quiet_hours_form.h"

#include <utility>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/dialog_parts.h"

namespace tarnwick {

QuietHoursForm::QuietHoursForm(QWidget* parent) : QWidget(parent) {
  map_ = named(new WeekMap(this), "quietMap", tr("Quiet hours each week"));
  windows_ = new DatedWindowsTable(this);
  auto* note = new QLabel(tr("Drag over hours, or use arrows and Space. Local time: an hour that comes twice is quiet "
                             "twice."),
                          this);
  note->setWordWrap(true);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins({});
  lines->addWidget(addLabel(tr("Quiet hours each week"), *map_));
  lines->addWidget(map_);
  lines->addWidget(note);
  lines->addWidget(new QLabel(tr("Dated windows"), this));
  lines->addWidget(windows_, 1);
  connect(map_, &WeekMap::edited, this, &QuietHoursForm::hoursEdited);
  connect(windows_, &DatedWindowsTable::edited, this, &QuietHoursForm::windowsEdited);
}

void QuietHoursForm::setValues(const WeekHours& hours, std::vector<DatedWindow> windows, LocalTime now) {
  map_->setHours(hours);
  windows_->setWindows(std::move(windows), now);
}

QuietHoursDialog::QuietHoursDialog(QWidget* parent) : QDialog(parent), form_(new QuietHoursForm(this)) {
  setObjectName(QStringLiteral("frmQuiet"));
  setWindowTitle(tr("Quiet Hours"));
  QPushButton* ok = addButton(*this, "quietOk", tr("OK"));
  QPushButton* cancel = addButton(*this, "quietCancel", tr("Cancel"), tr("Close without a change (Esc)"));
  ok->setDefault(true);
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  foot->addWidget(ok);
  foot->addWidget(cancel);
  auto* lines = new QVBoxLayout(this);
  lines->addWidget(form_, 1);
  lines->addLayout(foot);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

}  // namespace tarnwick
