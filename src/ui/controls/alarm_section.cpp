// SPDX-License-Identifier: MIT
#include "ui/controls/alarm_section.h"

#include <algorithm>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "engine/alarm_example.h"
#include "ui/controls/alarm_words.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/placement.h"
#include "ui/controls/quiet_hours_form.h"

namespace tarnwick {
namespace {

constexpr int kGap = 6;
constexpr std::string_view kNight = "daily 22:00-6:00";
constexpr std::string_view kNone = "none";

}  // namespace

AlarmSection::AlarmSection(Program& program, bool ofAll, QWidget* parent) : QWidget(parent), ofAll_(ofAll) {
  auto* presets = addFrame(*this, "alarmTellMe", tr("Tell me"));
  makePresets(*presets);
  details_ = new AlarmDetails(this);
  channels_ = new ChannelChoice(program, ofAll, this);
  makeQuiet();
  details_->lines().addStretch();
  example_ = named(new AlarmStrip(this), "alarmExample");
  auto* frames = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  left->addWidget(presets, 1);
  left->addWidget(channels_);
  frames->addLayout(left);
  frames->addWidget(details_, 1);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins({});
  lines->addWidget(makePaused());
  lines->addLayout(frames);
  lines->addWidget(example_);
  connect(details_, &AlarmDetails::touched, this, &AlarmSection::touch);
  connect(channels_, &ChannelChoice::chosen, this, [this](const QString& value) {
    value.isEmpty() ? options_.unset(option_name::channels) : options_.set(option_name::channels, value.toStdString());
  });
}

QString AlarmSection::captionOf(AlarmPreset preset, bool ofAll) {
  switch (preset) {
    case AlarmPreset::asDefaults:
      return ofAll ? tr("At every failed check (as the original)") : tr("As in Defaults");
    case AlarmPreset::everyCheck:
      return tr("At every failed check");
    case AlarmPreset::confirmed:
      return tr("Only when it is down for real,\nand when it is back");
    case AlarmPreset::never:
      return tr("Never");
    default:
      return tr("My own choice");
  }
}

bool AlarmSection::isFor(const std::vector<OptionField>& options) {
  const auto isThere = [&](std::string_view name) {
    return std::ranges::any_of(options, [&](const OptionField& option) { return option.name == name; });
  };
  return std::ranges::all_of(kPresetOptions, isThere) && isThere(option_name::quiet) && isThere(option_name::pause);
}

bool AlarmSection::hasPlaceFor(std::string_view option) {
  constexpr std::array kBeside{option_name::certificate, option_name::quiet, option_name::quietHow,
                               option_name::maintenance, option_name::pause, option_name::channels};
  return std::ranges::find(kPresetOptions, option) != kPresetOptions.end() ||
         std::ranges::find(kBeside, option) != kBeside.end();
}

void AlarmSection::makePresets(QWidget& frame) {
  auto* lines = new QVBoxLayout(&frame);
  for (std::size_t index = 0; index < presets_.size(); ++index) {
    const auto preset = static_cast<AlarmPreset>(index);
    const QString caption = captionOf(preset, ofAll_);
    auto* button = named(new QRadioButton(caption, &frame), ("alarmPreset" + std::to_string(index)).c_str(), caption);
    presets_[index] = button;
    // For all sites it is the first one.
    button->setVisible(!(ofAll_ && preset == AlarmPreset::everyCheck));
    if (button->isVisibleTo(&frame)) {
      lines->addWidget(button);
    }
    connect(button, &QRadioButton::clicked, this, [this, preset] { choose(preset); });
  }
  lines->addStretch();
}

void AlarmSection::makeQuiet() {
  if (ofAll_) {
    return;  // those of all sites have a page of their own
  }
  quiet_ = named(new QComboBox(details_), "alarmQuiet", tr("Quiet hours"));
  quiet_->setFocusPolicy(Qt::StrongFocus);
  quiet_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  quiet_->setMinimumContentsLength(24);
  QPushButton* edit =
      addButton(*details_, "alarmQuietEdit", tr("Edit…"), tr("The hours of the week, and dated windows, of this site"));
  quietHow_ = named(new QComboBox(details_), "alarmQuietHow", tr("In quiet hours"));
  quietHow_->setFocusPolicy(Qt::StrongFocus);
  quietHow_->addItems({QString(), quietKindWords(QuietKind::keepAlerts), quietKindWords(QuietKind::noChecks)});
  auto* lines = new QGridLayout;
  lines->setSpacing(kGap);
  lines->addWidget(addLabel(tr("Quiet hours"), *quiet_), 0, 0);
  lines->addWidget(quiet_, 0, 1);
  lines->addWidget(edit, 0, 2);
  lines->addWidget(addLabel(tr("In quiet hours"), *quietHow_), 1, 0);
  lines->addWidget(quietHow_, 1, 1, 1, 2);
  lines->setColumnStretch(1, 1);
  details_->lines().addLayout(lines);
  connect(quiet_, &QComboBox::activated, this, &AlarmSection::chooseQuiet);
  connect(edit, &QPushButton::clicked, this, &AlarmSection::editQuiet);
  connect(quietHow_, &QComboBox::activated, this, [this](int choice) {
    choice == 0 ? options_.unset(option_name::quietHow)
                : options_.set(option_name::quietHow,
                               std::string(choice == 1 ? option_value::keepAlerts : option_value::doNotCheck));
  });
}

QWidget* AlarmSection::makePaused() {
  paused_ = named(new QWidget(this), "alarmPaused");
  const bool dark = isDark(palette());
  QPalette blue = paused_->palette();
  blue.setColor(QPalette::Window, dark ? QColor(0x20324F) : QColor(0xDCE9FB));
  blue.setColor(QPalette::WindowText, dark ? QColor(0xD5E4FA) : QColor(0x12305C));
  paused_->setPalette(blue);
  paused_->setAutoFillBackground(true);
  pausedText_ = named(new QLabel(paused_), "alarmPausedText");
  pausedText_->setTextFormat(Qt::PlainText);
  QPushButton* resume = addButton(*paused_, "alarmResume", tr("Resume"), tr("Tell again; stored with OK"));
  auto* line = new QHBoxLayout(paused_);
  line->setContentsMargins(8, 2, 2, 2);
  line->addWidget(pausedText_, 1);
  line->addWidget(resume);
  connect(resume, &QPushButton::clicked, this, &AlarmSection::resume);
  return paused_;
}

void AlarmSection::setValues(OptionEdit options, LocalTime now) {
  options_ = std::move(options);
  now_ = now;
  presets_[static_cast<std::size_t>(presetOf(options_.own()))]->setChecked(true);
  if (ofAll_ && presets_[static_cast<std::size_t>(AlarmPreset::everyCheck)]->isChecked()) {
    presets_[static_cast<std::size_t>(AlarmPreset::own)]->setChecked(true);
  }
  channels_->setValues(options_);
  showAll();
}

void AlarmSection::setInterval(std::chrono::minutes interval) {
  interval_ = interval;
  showExample();
}

void AlarmSection::choose(AlarmPreset preset) {
  if (preset == AlarmPreset::own) {
    touchAlerts();
  } else {
    for (const std::string_view name : kPresetOptions) {
      options_.unset(name);
    }
    for (const auto& [name, value] : presetValues(preset)) {
      options_.set(name, value);
    }
  }
  showAll();
}

// Who chooses a detail wants to be told.
void AlarmSection::touchAlerts() {
  if (options_.inForce(option_name::alerts) == option_value::off) {
    options_.set(option_name::alerts, std::string(option_value::on));
  }
}

void AlarmSection::touch(const QString& name, const QString& value) {
  const bool isOfPreset = std::ranges::find(kPresetOptions, name.toStdString()) != kPresetOptions.end();
  if (isOfPreset) {
    touchAlerts();
    presets_[static_cast<std::size_t>(AlarmPreset::own)]->setChecked(true);
  }
  value.isEmpty() ? options_.unset(name.toStdString()) : options_.set(name.toStdString(), value.toStdString());
  showAll();
}

void AlarmSection::chooseQuiet(int choice) {
  const QString value = quiet_->itemData(choice).toString();
  value.isEmpty() ? options_.unset(option_name::quiet) : options_.set(option_name::quiet, value.toStdString());
  showQuiet();
}

void AlarmSection::editQuiet() {
  auto* dialog = new QuietHoursDialog(window());
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  const auto windows = readDatedWindows(options_.inForce(option_name::maintenance).value_or(std::string(kNone)));
  const auto hours = readWeekHours(options_.inForce(option_name::quiet).value_or(std::string(kNone)));
  QuietHoursForm& form = dialog->form();
  form.setValues(hours.value_or(WeekHours()), windows.value_or(std::vector<DatedWindow>()), now_);
  connect(&form, &QuietHoursForm::hoursEdited, dialog, [dialog] { dialog->setProperty("hours", true); });
  connect(&form, &QuietHoursForm::windowsEdited, dialog, [dialog] { dialog->setProperty("windows", true); });
  connect(dialog, &QDialog::accepted, this, [this, dialog, &form] {
    if (dialog->property("hours").toBool()) {
      options_.set(option_name::quiet, weekHoursText(form.hours()));
    }
    if (dialog->property("windows").toBool()) {
      options_.set(option_name::maintenance, datedWindowsText(form.windows()));
    }
    showQuiet();
  });
  sizeToContents(*dialog, *window());
  dialog->open();
}

void AlarmSection::resume() {
  options_.unset(option_name::pause);
  if (options_.defaultOf(option_name::pause)) {
    options_.set(option_name::pause, "no");
  }
  showPaused();
}

void AlarmSection::showAll() {
  details_->setValues(options_);
  presets_[0]->setText(ofAll_ ? captionOf(AlarmPreset::asDefaults, true) : defaultWords());
  presets_[0]->setAccessibleName(presets_[0]->text());
  showQuiet();
  showPaused();
  showExample();
}

QString AlarmSection::defaultWords() const {
  OptionValues defaults;
  for (const std::string_view name : kPresetOptions) {
    if (const auto value = options_.defaultOf(name)) {
      defaults.emplace(name, *value);
    }
  }
  switch (presetOf(defaults)) {
    case AlarmPreset::asDefaults:
    case AlarmPreset::everyCheck:
      return tr("As in Defaults (at every failed check)");
    case AlarmPreset::confirmed:
      return tr("As in Defaults (down for real, and back)");
    case AlarmPreset::never:
      return tr("As in Defaults (never)");
    default:
      return tr("As in Defaults (see the details)");
  }
}

void AlarmSection::showQuiet() {
  if (ofAll_) {
    return;
  }
  const auto words = [](const std::optional<std::string>& value) {
    return hoursWords(readWeekHours(value.value_or(std::string(kNone))).value_or(WeekHours()));
  };
  const auto own = options_.ownOf(option_name::quiet);
  quiet_->clear();
  quiet_->addItem(tr("as for all sites: %1").arg(words(options_.defaultOf(option_name::quiet))), QString());
  for (const std::string_view usual : {kNone, kNight}) {
    quiet_->addItem(words(std::string(usual)), QString::fromStdString(std::string(usual)));
  }
  if (own && quiet_->findData(QString::fromStdString(*own)) < 0) {
    quiet_->addItem(words(own), QString::fromStdString(*own));
  }
  quiet_->setCurrentIndex(own ? quiet_->findData(QString::fromStdString(*own)) : 0);
  explain(*quiet_, words(options_.inForce(option_name::quiet)));

  const auto kindOf = [](const std::optional<std::string>& value) {
    return value == option_value::doNotCheck ? QuietKind::noChecks : QuietKind::keepAlerts;
  };
  quietHow_->setItemText(
      0, tr("as for all sites: %1").arg(quietKindWords(kindOf(options_.defaultOf(option_name::quietHow)))));
  const auto how = options_.ownOf(option_name::quietHow);
  quietHow_->setCurrentIndex(!how ? 0 : kindOf(how) == QuietKind::keepAlerts ? 1 : 2);
}

void AlarmSection::showPaused() {
  const Pause pause = readPause(options_.inForce(option_name::pause).value_or("no")).value_or(Pause());
  paused_->setVisible(isPaused(pause, now_));
  if (isPaused(pause, now_)) {
    pausedText_->setText(tr("Paused %1.").arg(pauseWords(pause, now_)));
  }
}

void AlarmSection::showExample() {
  const AlarmExample example = alarmExampleOf(alarmPolicyOf(options_.options(), kAllSites), interval_);
  example_->tell(example, alarmExampleOf(AlarmPolicy(), interval_).told);
}

}  // namespace tarnwick
