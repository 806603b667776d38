// SPDX-License-Identifier: MIT
#include "ui/settings/life_form.h"

#include <algorithm>
#include <exception>
#include <QVBoxLayout>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

using Value = std::optional<std::string>;

constexpr int kLettersOfTime = 7;
constexpr int kLettersOfAddress = 12;

/// Why a value is not taken; empty when it is.
QString faultOf(const OptionField& option, const Value& value) {
  try {
    if (value) {
      option.checked(*value);
    }
    return {};
  } catch (const std::exception& fault) {
    return displayMessage(fault.what());
  }
}

}  // namespace

LifeForm::LifeForm(Program& program, QWidget* parent)
    : QWidget(parent), program_(program), fault_(named(new QLabel(this), "lifeFault")) {
  auto* line = new QHBoxLayout;
  addRow(option_name::allIsWell, "lifeAllIsWell", *line);
  addRow(option_name::testAlert, "lifeTestAlert", *line);
  addRow(option_name::heartbeat, "lifeHeartbeat", *line);
  fault_->setWordWrap(true);
  fault_->setTextFormat(Qt::PlainText);
  fault_->hide();
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins({});
  lines->addLayout(line);
  lines->addWidget(fault_);
}

void LifeForm::addRow(std::string_view option, const char* name, QHBoxLayout& line) {
  const auto& options = program_.data().optionFields();
  const auto field = std::ranges::find(options, option, &OptionField::name);
  if (field == options.end()) {
    return;
  }
  const bool isTime = option != option_name::heartbeat;
  const QString usual = isTime ? QStringLiteral("8:00") : QString();
  const QString label = QObject::tr(field->label.c_str());
  Row row{.option = &*field,
          .flag = named(new QCheckBox(label, this), name),
          .value = named(new ByteLineEdit(this), (std::string(name) + "Value").c_str(), label)};
  const int width = row.value->fontMetrics().averageCharWidth() * (isTime ? kLettersOfTime : kLettersOfAddress);
  isTime ? row.value->setFixedWidth(width) : row.value->setMinimumWidth(width);
  row.value->setPlaceholderText(isTime ? usual : QStringLiteral("https://"));
  row.value->setEnabled(false);
  for (QWidget* control : {static_cast<QWidget*>(row.flag), static_cast<QWidget*>(row.value)}) {
    explain(*control, QObject::tr(field->meaning.c_str()));
  }
  connect(row.flag, &QCheckBox::toggled, row.value, &QWidget::setEnabled);
  connect(row.flag, &QCheckBox::clicked, row.value, [this, value = row.value, usual](bool isOn) {
    if (isOn && value->bytes().empty()) {
      value->setText(usual);
    }
    if (isOn) {
      value->setFocus();
      value->selectAll();
    }
    tellFaults();
  });
  connect(row.value, &QLineEdit::textEdited, this, &LifeForm::tellFaults);
  line.addWidget(row.flag);
  line.addWidget(row.value, isTime ? 0 : 1);
  rows_.push_back(row);
}

Value LifeForm::valueOf(const Row& row) { return row.flag->isChecked() ? Value(row.value->bytes()) : Value(); }

void LifeForm::tellFaults() {
  QStringList faults;
  for (const Row& row : rows_) {
    // Who has only ticked the box has said nothing wrong yet.
    const Value value = valueOf(row);
    const QString fault = value == row.untouched || value == "" ? QString() : faultOf(*row.option, value);
    if (!fault.isEmpty()) {
      faults << fault;
    }
  }
  fault_->setText(faults.join(QLatin1Char('\n')));
  fault_->setVisible(!faults.isEmpty());
}

void LifeForm::load() {
  const OptionValues stored = program_.data().options(kAllSites);
  for (Row& row : rows_) {
    const auto found = stored.find(row.option->name);
    row.flag->setChecked(found != stored.end());
    row.value->setBytes(found == stored.end() ? std::string() : found->second);
    row.untouched = valueOf(row);
  }
  tellFaults();
}

bool LifeForm::isChanged() const {
  return std::ranges::any_of(rows_, [](const Row& row) { return valueOf(row) != row.untouched; });
}

void LifeForm::store() {
  for (const Row& row : rows_) {
    const Value value = valueOf(row);
    if (value == row.untouched) {
      continue;
    }
    try {
      value ? program_.data().setOption(kAllSites, row.option->name, *value)
            : program_.data().removeOption(kAllSites, row.option->name);
    } catch (...) {
      turnTo(*row.value);
      throw;
    }
  }
}

}  // namespace tarnwick
