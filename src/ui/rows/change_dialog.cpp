// SPDX-License-Identifier: MIT
#include "ui/rows/change_dialog.h"

#include <limits>
#include <string>
#include <QFormLayout>
#include <QHBoxLayout>

#include "store/alarm_presets.h"
#include "ui/controls/alarm_section.h"
#include "ui/controls/dialog_parts.h"

namespace tarnwick {
namespace {

constexpr int kUsualInterval = 10;

}  // namespace

ChangeDialog::ChangeDialog(Program& program, const ChosenSites& sites, QWidget* window)
    : SitesDialog(program, sites, "frmChangeSites", window),
      changesInterval_(named(new QCheckBox(tr("&Check every"), this), "changesInterval")),
      interval_(named(new QSpinBox(this), "newInterval", tr("Minutes between two checks"))),
      active_(named(new QComboBox(this), "newActive", tr("Runs"))),
      alarm_(named(new QComboBox(this), "newAlarm", tr("Tell me"))) {
  setTitle(tr("Change Site %1"), tr("Change %1 Sites"));
  interval_->setRange(1, std::numeric_limits<std::int16_t>::max());
  interval_->setValue(kUsualInterval);
  interval_->setSuffix(tr(" minutes"));
  interval_->setEnabled(false);
  active_->addItems({tr("as it is"), tr("check them"), tr("leave them out")});
  alarm_->addItem(tr("as it is"));
  for (const AlarmPreset preset :
       {AlarmPreset::asDefaults, AlarmPreset::everyCheck, AlarmPreset::confirmed, AlarmPreset::never}) {
    alarm_->addItem(AlarmSection::captionOf(preset, false).simplified());
  }
  auto* lines = new QFormLayout;
  lines->addRow(changesInterval_, interval_);
  lines->addRow(tr("&Runs:"), active_);
  if (AlarmSection::isFor(program.data().fields().options)) {
    lines->addRow(tr("&Tell me:"), alarm_);
  } else {
    alarm_->hide();
  }
  place().addLayout(lines);
  place().addStretch();
  connect(changesInterval_, &QCheckBox::toggled, interval_, &QWidget::setEnabled);
  connect(changesInterval_, &QCheckBox::toggled, this, &ChangeDialog::look);
  connect(interval_, &QSpinBox::valueChanged, this, &ChangeDialog::look);
  connect(active_, &QComboBox::currentIndexChanged, this, &ChangeDialog::look);
  connect(alarm_, &QComboBox::currentIndexChanged, this, &ChangeDialog::look);
  look();
}

void ChangeDialog::look() {
  SiteChanges changes;
  if (changesInterval_->isChecked()) {
    changes.interval = std::to_string(interval_->value());
  }
  if (active_->currentIndex() > 0) {
    changes.active = active_->currentIndex() == 1;
  }
  if (alarm_->currentIndex() > 0) {
    const auto preset = static_cast<AlarmPreset>(alarm_->currentIndex() - 1);
    const OptionValues values = presetValues(preset);
    for (const auto name : kPresetOptions) {
      const auto value = values.find(std::string(name));
      changes.options[std::string(name)] = value == values.end() ? std::string() : value->second;
    }
  }
  propose(std::move(changes));
}

}  // namespace tarnwick
