// SPDX-License-Identifier: MIT
#include "ui/controls/option_form.h"

#include <algorithm>
#include <array>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>

#include "store/options_for_others.h"
#include "ui/controls/byte_line_edit.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

using Value = std::optional<std::string>;

constexpr int kGap = 12;
constexpr QSize kUsualSize{762, 430};

QString translated(const std::string& text) { return QObject::tr(text.c_str()); }

/// Whether an option stands elsewhere: among what is told, or beside the channels that it leaves through.
bool hasPlaceElsewhere(std::string_view option) {
  constexpr std::array kBesideChannels{option_name::allIsWell, option_name::testAlert, option_name::heartbeat};
  return AlarmSection::hasPlaceFor(option) || std::ranges::find(kBesideChannels, option) != kBesideChannels.end();
}

bool isForOthers(std::string_view option) {
  constexpr std::array kForOthers{option_name::monthReport, option_name::statusPage, option_name::metricsFile};
  return std::ranges::find(kForOthers, option) != kForOthers.end();
}

}  // namespace

OptionForm::OptionForm(Program& program, QWidget* parent) : QScrollArea(parent), program_(program) {
  setFrameShape(NoFrame);
  setWidgetResizable(true);
}

void OptionForm::setSite(std::int16_t idSite) {
  idSite_ = idSite;
  loaded_ = false;
  prepare();
  if (isVisible()) {
    program_.faults().run([this] { load(); });
  }
}

void OptionForm::setInterval(std::chrono::minutes interval) {
  interval_ = interval;
  if (alarm_ != nullptr) {
    alarm_->setInterval(interval);
  }
}

void OptionForm::prepare() {
  if (widget() == nullptr && unseen_ == nullptr) {
    makeRows();
    updateGeometry();
  }
}

// As wide as its texts are in the user's language; further down it scrolls.
QSize OptionForm::sizeHint() const {
  const QWidget* page = unseen_ != nullptr ? unseen_.get() : widget();
  return page == nullptr
             ? kUsualSize
             : kUsualSize.expandedTo({page->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), 0});
}

void OptionForm::showEvent(QShowEvent* event) {
  QScrollArea::showEvent(event);
  if (!loaded_) {
    program_.faults().run([this] { load(); });
  }
}

void OptionForm::load() {
  prepare();
  if (unseen_ != nullptr) {
    setWidget(unseen_.release());
    // It lies on the page of its dialog, whose colour may not be that of a window.
    widget()->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
  }
  // What could not be read cannot be changed either.
  widget()->setEnabled(false);
  const OptionValues defaults = idSite_ == kAllSites ? OptionValues() : program_.data().options(kAllSites);
  const OptionValues stored = program_.data().options(idSite_);
  for (Row& row : rows_) {
    const std::string& name = row.option->name;
    const auto common = defaults.find(name);
    QString unset = idSite_ == kAllSites ? tr("As the original") : tr("As in Defaults");
    if (common != defaults.end()) {
      unset += QStringLiteral(" (%1)").arg(translated(common->second));
    }
    const auto own = stored.find(name);
    row.control.show(own == stored.end() ? Value() : Value(own->second), unset);
    row.untouched = row.control.value();
  }
  if (alarm_ != nullptr) {
    alarm_->setValues(OptionEdit(stored, defaults), program_.services().clock.localNow());
  }
  widget()->setEnabled(true);
  loaded_ = true;
}

void OptionForm::makeRows() {
  unseen_ = std::make_unique<QWidget>();
  QWidget* const page = unseen_.get();
  auto* all = new QVBoxLayout(page);
  const bool ofAll = idSite_ == kAllSites;
  if (AlarmSection::isFor(program_.data().optionFields())) {
    alarm_ = new AlarmSection(program_, ofAll, page);
    alarm_->setInterval(interval_);
    all->addWidget(alarm_);
  }
  QGridLayout* network = nullptr;
  QGridLayout* forOthers = nullptr;
  QGridLayout* others = nullptr;
  for (const OptionField& option : program_.data().optionFields()) {
    if ((!ofAll && !option.ofSite) || (alarm_ != nullptr && hasPlaceElsewhere(option.name))) {
      continue;
    }
    const bool ofNetwork =
        alarm_ != nullptr && (option.name == option_name::ownNetwork || option.name == option_name::witnesses);
    const bool areForOthers = alarm_ != nullptr && isForOthers(option.name);
    QGridLayout*& lines = ofNetwork ? network : areForOthers ? forOthers : others;
    if (lines == nullptr) {
      lines = addGroup(*all, ofNetwork           ? tr("This machine's own network")
                             : areForOthers      ? tr("For others")
                             : alarm_ != nullptr ? tr("A run")
                                                 : QString());
    }
    addRow(option, *lines);
  }
  if (rows_.empty() && alarm_ == nullptr) {
    all->addWidget(new QLabel(tr("There is nothing to be chosen here.")));
  }
  all->addStretch(1);
  for (auto* control : page->findChildren<QWidget*>()) {
    control->installEventFilter(this);
  }
}

QGridLayout* OptionForm::addGroup(QVBoxLayout& page, const QString& caption) {
  auto* lines = new QGridLayout;
  lines->setColumnStretch(2, 1);
  lines->setHorizontalSpacing(kGap);
  if (caption.isEmpty()) {
    page.addLayout(lines);
  } else {
    auto* group = new QGroupBox(caption);
    group->setLayout(lines);
    page.addWidget(group);
  }
  return lines;
}

void OptionForm::addRow(const OptionField& option, QGridLayout& lines) {
  const QString label = translated(option.label);
  const QString hint = tr("%1. As the original: %2.").arg(translated(option.meaning), translated(option.original));
  rows_.push_back({&option, makeOptionControl(option), {}});
  QWidget* control = named(rows_.back().control.widget, ("option_" + option.name).c_str(), label);
  explain(*control, hint);
  control->setFocusPolicy(Qt::StrongFocus);

  const int line = lines.rowCount();
  lines.addWidget(control, line, 1);
  lines.addWidget(addLabel(label, *control), line, 0);
  if (option.name == option_name::statusPage || option.name == option_name::metricsFile) {
    addChooser(option, *control, lines, line);
  } else {
    lines.addWidget(new QLabel(translated(option.unit)), line, 2);
  }
  auto* explained = new QLabel(hint);
  explained->setWordWrap(true);
  lines.addWidget(explained, line + 1, 1, 1, 2);
  lines.setRowMinimumHeight(line + 2, kGap);
}

void OptionForm::addChooser(const OptionField& option, QWidget& control, QGridLayout& lines, int line) {
  auto* text = qobject_cast<ByteLineEdit*>(&control);
  auto* button = addButton(*this, ("browse_" + option.name).c_str(), tr("Choose…"));
  button->setAccessibleName(QStringLiteral("%1: %2").arg(button->text(), translated(option.label)));
  lines.addWidget(button, line, 2, Qt::AlignLeft);
  const bool isFolder = option.name == option_name::statusPage;
  onClick(*button, program_.faults(), [this, isFolder, box = QPointer<ByteLineEdit>(text)] {
    const QString filter = tr("Figures for Prometheus") + QStringLiteral(" (*.prom)|*.prom");
    program_.services().prompts.chooseFile({.folder = program_.programFolder(),
                                            .filter = isFolder ? std::string() : filter.toStdString(),
                                            .owner = window(),
                                            .isNew = !isFolder,
                                            .isFolder = isFolder},
                                           [box](const std::string& path) {
                                             if (box != nullptr) {
                                               box->setBytes(path);
                                               box->setFocus();
                                             }
                                           });
  });
}

bool OptionForm::isChanged() const {
  return loaded_ && ((alarm_ != nullptr && !alarm_->options().changes().empty()) ||
                     std::ranges::any_of(rows_, [](const Row& row) { return row.control.value() != row.untouched; }));
}

void OptionForm::store() {
  if (!isChanged()) {
    return;
  }
  try {
    Transaction whole(program_.data().database());
    for (const Row& row : rows_) {
      storeRow(row);
    }
    if (alarm_ != nullptr) {
      alarm_->options().store(program_.data(), idSite_);
    }
    whole.commit();
  } catch (...) {
    turnTo(*this);
    throw;
  }
  load();
}

void OptionForm::storeRow(const Row& row) {
  const Value value = row.control.value();
  if (value == row.untouched) {
    return;
  }
  if (value) {
    program_.data().setOption(idSite_, row.option->name, *value);
  } else {
    program_.data().removeOption(idSite_, row.option->name);
  }
}

bool OptionForm::eventFilter(QObject* watched, QEvent* event) {
  // The wheel moves the page, unless a control was chosen before.
  const auto* control = static_cast<QWidget*>(watched);
  if (event->type() == QEvent::Wheel && control->focusPolicy() == Qt::StrongFocus && !control->hasFocus()) {
    event->ignore();
    return true;
  }
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace tarnwick
