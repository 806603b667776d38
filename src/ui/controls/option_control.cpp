// SPDX-License-Identifier: MIT
#include "ui/controls/option_control.h"

#include <algorithm>
#include <limits>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QSpinBox>

#include "ui/controls/byte_line_edit.h"

namespace tarnwick {
namespace {

using Value = std::optional<std::string>;

constexpr int kCharactersOfText = 40;

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

OptionControl makeFlag(const OptionField& option) {
  auto* flag = new QCheckBox;
  flag->setTristate(true);
  const auto say = [flag, label = translated(option.label)](const QString& unset) {
    const Qt::CheckState state = flag->checkState();
    flag->setText(state == Qt::PartiallyChecked ? unset
                  : state == Qt::Checked        ? QCoreApplication::translate("tarnwick::OptionForm", "on")
                                                : QCoreApplication::translate("tarnwick::OptionForm", "off"));
    // What is seen is spoken first.
    flag->setAccessibleName(QStringLiteral("%1: %2").arg(flag->text(), label));
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

}  // namespace

OptionControl makeOptionControl(const OptionField& option) {
  switch (option.kind) {
    case OptionKind::flag:
      return makeFlag(option);
    case OptionKind::number:
      return makeNumber(option);
    case OptionKind::choice:
      return makeChoice(option);
    default:
      return makeText();
  }
}

}  // namespace tarnwick
