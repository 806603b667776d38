// SPDX-License-Identifier: MIT
#include "ui/controls/option_form.h"

#include <algorithm>
#include <limits>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QSpinBox>

#include "ui/controls/byte_line_edit.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

using Value = std::optional<std::string>;

constexpr int kCharactersOfText = 40;
constexpr int kGap = 12;
constexpr QSize kSmallestSize{360, 160};

QString translated(const std::string& text) { return QObject::tr(text.c_str()); }

int boundedInt(std::int64_t number) {
  constexpr auto kLeast = static_cast<std::int64_t>(std::numeric_limits<int>::min());
  constexpr auto kMost = static_cast<std::int64_t>(std::numeric_limits<int>::max());
  return static_cast<int>(std::clamp(number, kLeast + 1, kMost));
}

// A number that may be left open: its lowest step, which an emptied box stands for as well. The words that the option
// takes beside numbers are the steps above the highest one.
class OpenNumber final : public QSpinBox {
 public:
  explicit OpenNumber(const OptionField& option) : words_(option.choices), most_(boundedInt(option.most)) {
    setRange(boundedInt(option.least) - 1, most_ + static_cast<int>(words_.size()));
    setStepType(words_.empty() ? AdaptiveDecimalStepType : DefaultStepType);
  }

  Value stored() const {
    if (value() == minimum()) {
      return std::nullopt;
    }
    return value() > most_ ? wordAt(value()) : std::to_string(value());
  }
  void show(const Value& stored) {
    const auto word = std::ranges::find(words_, stored.value_or(""));
    bool isNumber = false;
    const int number = QString::fromStdString(stored.value_or("")).toInt(&isNumber);
    setValue(word != words_.end() ? most_ + 1 + static_cast<int>(word - words_.begin())
             : isNumber           ? number
                                  : minimum());
  }

 protected:
  QValidator::State validate(QString& text, int& position) const override {
    const QString typed = text.trimmed();
    const auto begins = [&](const std::string& word) {
      return translated(word).startsWith(typed, Qt::CaseInsensitive);
    };
    if (typed.isEmpty() || valueOfWord(typed)) {
      return QValidator::Acceptable;
    }
    return std::ranges::any_of(words_, begins) ? QValidator::Intermediate : QSpinBox::validate(text, position);
  }
  int valueFromText(const QString& text) const override {
    const QString typed = text.trimmed();
    return typed.isEmpty() ? minimum() : valueOfWord(typed).value_or(QSpinBox::valueFromText(text));
  }
  QString textFromValue(int value) const override {
    return value > most_ ? translated(wordAt(value)) : QSpinBox::textFromValue(value);
  }

 private:
  const std::string& wordAt(int value) const { return words_.at(static_cast<std::size_t>(value - most_ - 1)); }
  std::optional<int> valueOfWord(const QString& typed) const {
    for (int value = most_ + 1; value <= maximum(); ++value) {
      if (translated(wordAt(value)).compare(typed, Qt::CaseInsensitive) == 0) {
        return value;
      }
    }
    return std::nullopt;
  }

  std::vector<std::string> words_;
  int most_;
};

OptionControl makeFlag() {
  auto* flag = new QCheckBox;
  flag->setTristate(true);
  const auto say = [flag](const QString& unset) {
    const Qt::CheckState state = flag->checkState();
    flag->setText(state == Qt::PartiallyChecked ? unset
                  : state == Qt::Checked        ? OptionForm::tr("on")
                                                : OptionForm::tr("off"));
  };
  const auto show = [flag, say](const Value& value, const QString& unset) {
    flag->disconnect(SIGNAL(stateChanged(int)));
    QObject::connect(flag, &QCheckBox::stateChanged, flag, [say, unset] { say(unset); });
    flag->setCheckState(!value ? Qt::PartiallyChecked : *value == "on" ? Qt::Checked : Qt::Unchecked);
    say(unset);
  };
  const auto value = [flag]() -> Value {
    const Qt::CheckState state = flag->checkState();
    return state == Qt::PartiallyChecked ? Value() : Value(state == Qt::Checked ? "on" : "off");
  };
  return {flag, show, value};
}

OptionControl makeNumber(const OptionField& option) {
  auto* number = new OpenNumber(option);
  const auto show = [number](const Value& value, const QString& unset) {
    number->setSpecialValueText(unset);
    number->show(value);
  };
  return {number, show, [number] { return number->stored(); }};
}

OptionControl makeChoice(const OptionField& option) {
  auto* choice = new QComboBox;
  choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  choice->addItem(QString());
  for (const std::string& word : option.choices) {
    choice->addItem(translated(word), QString::fromStdString(word));
  }
  const auto show = [choice](const Value& value, const QString& unset) {
    choice->setItemText(0, unset);
    choice->setCurrentIndex(value ? std::max(choice->findData(QString::fromStdString(*value)), 0) : 0);
  };
  const auto value = [choice]() -> Value {
    return choice->currentIndex() == 0 ? Value() : Value(choice->currentData().toString().toStdString());
  };
  return {choice, show, value};
}

OptionControl makeText() {
  auto* text = new ByteLineEdit;
  text->setMinimumWidth(text->fontMetrics().averageCharWidth() * kCharactersOfText);
  const auto show = [text](const Value& value, const QString& unset) {
    text->setPlaceholderText(unset);
    text->setBytes(value.value_or(""));
  };
  const auto value = [text]() -> Value { return text->bytes().empty() ? Value() : Value(text->bytes()); };
  return {text, show, value};
}

OptionControl makeControl(const OptionField& option) {
  switch (option.kind) {
    case OptionKind::flag:
      return makeFlag();
    case OptionKind::number:
      return makeNumber(option);
    case OptionKind::choice:
      return makeChoice(option);
    default:
      return makeText();
  }
}

}  // namespace

OptionForm::OptionForm(Program& program, QWidget* parent) : QScrollArea(parent), program_(program) {
  setFrameShape(NoFrame);
  setWidgetResizable(true);
}

void OptionForm::setSite(std::int16_t idSite) {
  idSite_ = idSite;
  loaded_ = false;
  if (isVisible()) {
    program_.faults().run([this] { load(); });
  }
}

QSize OptionForm::sizeHint() const { return kSmallestSize; }

void OptionForm::showEvent(QShowEvent* event) {
  QScrollArea::showEvent(event);
  if (!loaded_) {
    program_.faults().run([this] { load(); });
  }
}

void OptionForm::load() {
  if (widget() == nullptr) {
    makeRows();
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
  widget()->setEnabled(true);
  loaded_ = true;
}

void OptionForm::makeRows() {
  auto* page = new QWidget;
  lines_ = new QGridLayout(page);
  lines_->setColumnStretch(2, 1);
  lines_->setHorizontalSpacing(kGap);
  for (const OptionField& option : program_.data().optionFields()) {
    if (idSite_ == kAllSites || option.ofSite) {
      addRow(option);
    }
  }
  if (rows_.empty()) {
    lines_->addWidget(new QLabel(tr("There is nothing to be chosen here.")), 0, 0, 1, 3);
  }
  lines_->setRowStretch(lines_->rowCount(), 1);
  setWidget(page);
  // It lies on the page of its dialog, whose colour may not be that of a window.
  page->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
}

void OptionForm::addRow(const OptionField& option) {
  const QString label = translated(option.label);
  const QString hint = tr("%1. As the original: %2.").arg(translated(option.meaning), translated(option.original));
  rows_.push_back({&option, makeControl(option), {}});
  QWidget* control = named(rows_.back().control.widget, ("option_" + option.name).c_str(), label);
  explain(*control, hint);
  control->setFocusPolicy(Qt::StrongFocus);
  control->installEventFilter(this);

  const int line = lines_->rowCount();
  lines_->addWidget(control, line, 1);
  lines_->addWidget(addLabel(label, *control), line, 0);
  lines_->addWidget(new QLabel(translated(option.unit)), line, 2);
  auto* explained = new QLabel(hint);
  explained->setWordWrap(true);
  lines_->addWidget(explained, line + 1, 1, 1, 2);
  lines_->setRowMinimumHeight(line + 2, kGap);
}

bool OptionForm::isChanged() const {
  return loaded_ && std::ranges::any_of(rows_, [](const Row& row) { return row.control.value() != row.untouched; });
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
  if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
    event->ignore();
    return true;
  }
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace tarnwick
