// SPDX-License-Identifier: MIT
#include "ui/settings/channel_form.h"

#include <algorithm>
#include <array>
#include <utility>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QPlainTextEdit>
#include <QSpinBox>

#include "delivery/channel_sender.h"
#include "delivery/mail_letter.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/settings/file_kinds.h"

namespace tarnwick {
namespace {

using Value = std::optional<std::string>;

constexpr int kLettersOfText = 16;
constexpr int kLettersOfNumber = 12;
constexpr int kLinesOfText = 3;
constexpr const char* kHint = "hint";

QString translated(const std::string& text) { return QObject::tr(text.c_str()); }

/// Words that say more than those of the table, which stand in files and on command lines.
QString choiceWords(const std::string& choice) {
  struct Words {
    std::string_view choice;
    QString words;
  };
  const std::array<Words, 6> all{{{channel_value::startTls, ChannelForm::tr("STARTTLS required")},
                                  {channel_value::tls, ChannelForm::tr("TLS")},
                                  {channel_value::none, ChannelForm::tr("none: nothing is encrypted")},
                                  {channel_value::plain, QStringLiteral("PLAIN")},
                                  {channel_value::login, QStringLiteral("LOGIN")},
                                  {channel_value::xoauth2, QStringLiteral("XOAUTH2")}}};
  const auto* found = std::ranges::find(all, choice, &Words::choice);
  return found == all.end() ? translated(choice) : found->words;
}

/// The choice that an unset value is the same as; empty for none.
std::string_view usualChoice(const OptionField& field) {
  return field.name == channel_field::safety ? channel_value::startTls
         : field.name == channel_field::form ? channel_value::text
                                             : std::string_view();
}

bool hasLines(const OptionField& field) {
  return field.name == channel_field::headers || field.name == channel_field::body;
}

/// Which files a field names, as a `FileChoice` has it; empty for a field that names none.
QString filterOf(const OptionField& field) {
  return field.name == channel_field::authorities ? QString::fromLatin1(file_kind::certificates)
         : field.name == channel_field::file      ? QString::fromLatin1(file_kind::sounds)
                                                  : QString();
}

OptionControl makeLines() {
  auto* text = new QPlainTextEdit;
  text->setTabChangesFocus(true);
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setFixedHeight(text->fontMetrics().lineSpacing() * kLinesOfText +
                       2 * (text->frameWidth() + static_cast<int>(text->document()->documentMargin())));
  const auto show = [text](const Value& value, const QString& unset) {
    text->setPlaceholderText(unset);
    text->setPlainText(displayText(value.value_or("")));
  };
  const auto value = [text]() -> Value {
    const std::string lines = text->toPlainText().toStdString();
    return lines.empty() ? Value() : Value(lines);
  };
  return {text, show, value};
}

OptionControl makeFlag(const OptionField& field) {
  auto* flag = new QCheckBox(translated(field.label));
  const auto show = [flag](const Value& value, const QString&) { flag->setChecked(value == option_value::on); };
  const auto value = [flag]() -> Value { return flag->isChecked() ? Value(std::string(option_value::on)) : Value(); };
  return {flag, show, value};
}

OptionControl makeChoice(const OptionField& field) {
  OptionControl made = makeOptionControl(field);
  auto* choice = qobject_cast<QComboBox*>(made.widget);
  choice->removeItem(choice->findData(QString::fromStdString(std::string(usualChoice(field)))));
  for (int item = 1; item < choice->count(); ++item) {
    choice->setItemText(item, choiceWords(choice->itemData(item).toString().toStdString()));
  }
  return made;
}

OptionControl makeControl(const OptionField& field) {
  return hasLines(field)                    ? makeLines()
         : field.kind == OptionKind::flag   ? makeFlag(field)
         : field.kind == OptionKind::choice ? makeChoice(field)
                                            : makeOptionControl(field);
}

QString hintOf(const OptionField& field) {
  return field.original.empty()
             ? ChannelForm::tr("%1. It has to be set.").arg(translated(field.meaning))
             : ChannelForm::tr("%1. Unset: %2.").arg(translated(field.meaning), translated(field.original));
}

}  // namespace

QString usualWords(const ChannelKind& kind, const OptionField& field) {
  if (field.original.empty()) {
    return {};
  }
  if (field.kind == OptionKind::choice) {
    const std::string usual(usualChoice(field));
    return usual.empty() ? ChannelForm::tr("automatic") : choiceWords(usual);
  }
  if (field.name == channel_field::bundle) {
    return ChannelForm::tr("each alone");
  }
  if (field.name == channel_field::port) {
    return QString::number(mailServer({.name = {}, .kind = kind.name}, {}).port);
  }
  return translated(field.original);
}

ChannelForm::ChannelForm(const Channel& channel, const std::optional<std::string>& secret, bool inKeyRing,
                         QWidget* parent)
    : QWidget(parent), kind_(channelKind(channel.kind)), lines_(new QGridLayout(this)) {
  lines_->setColumnStretch(1, 1);
  name_ = named(new ByteLineEdit(this), "channelName", tr("Name"));
  name_->setBytes(channel.name);
  addLine(tr("Name"), *name_);
  follow(*name_, tr("By which name sites and lists call it: one line without commas."));
  for (const OptionField& field : kind_.fields) {
    addRow(field);
    const auto set = channel.settings.find(field.name);
    rows_.back().control.show(set == channel.settings.end() ? Value() : Value(set->second), usualWords(kind_, field));
    const bool isBeforeSecret = field.name == channel_field::user || field.name == channel_field::address;
    if (isBeforeSecret && !kind_.secret.empty()) {
      addSecret(secret, inKeyRing, channel.id != 0 && needsSecret(channel));
    }
  }
  lines_->setRowStretch(lines_->rowCount(), 1);
  tellUsualPort();
}

void ChannelForm::addLine(const QString& caption, QWidget& control) {
  const int line = lines_->rowCount();
  line_ = new QHBoxLayout;
  line_->addWidget(&control, 1);
  if (!caption.isEmpty()) {
    lines_->addWidget(addLabel(caption, control), line, 0);
  }
  lines_->addLayout(line_, line, 1);
}

void ChannelForm::addRow(const OptionField& field) {
  rows_.push_back({&field, makeControl(field)});
  QWidget& control = *rows_.back().control.widget;
  const QString label = translated(field.label);
  control.setParent(this);
  named(&control, ("channel_" + field.name).c_str(), label);
  const bool isNumber = field.kind == OptionKind::number;
  control.setMinimumWidth(control.fontMetrics().averageCharWidth() * (isNumber ? kLettersOfNumber : kLettersOfText));
  if (field.name == channel_field::port) {
    line_->addWidget(addLabel(label, control));
    line_->addWidget(&control);
  } else {
    addLine(field.kind == OptionKind::flag ? QString() : label, control);
  }
  if (isNumber && field.name != channel_field::port) {
    line_->setStretch(0, 0);
    line_->addWidget(new QLabel(translated(field.unit), this));
    line_->addStretch(1);
  }
  follow(control, hintOf(field));
  if (!filterOf(field).isEmpty()) {
    addBrowse(field, *qobject_cast<ByteLineEdit*>(&control));
  }
  if (auto* choice = qobject_cast<QComboBox*>(&control)) {
    connect(choice, &QComboBox::activated, this, &ChannelForm::tellUsualPort);
    connect(choice, &QComboBox::activated, this, &ChannelForm::edited);
  } else if (auto* text = qobject_cast<QLineEdit*>(&control)) {
    connect(text, &QLineEdit::textEdited, this, &ChannelForm::edited);
  }
}

void ChannelForm::addBrowse(const OptionField& field, ByteLineEdit& box) {
  QPushButton* button = addButton(*this, ("channelBrowse_" + field.name).c_str(), tr("Browse"), tr("Choose the file"));
  button->setAccessibleName(QStringLiteral("%1: %2").arg(button->text(), translated(field.label)));
  line_->addWidget(button);
  connect(button, &QPushButton::clicked, this, [this, &box, filter = filterOf(field)] { Q_EMIT browse(box, filter); });
}

void ChannelForm::addSecret(const std::optional<std::string>& secret, bool inKeyRing, bool isKept) {
  const QString label = translated(kind_.secret);
  const QString where = inKeyRing ? tr("Kept in the desktop's key ring") : tr("Kept in a file only you can read");
  secret_ = named(new QLineEdit(this), "channelSecret", label);
  secret_->setEchoMode(QLineEdit::Password);
  secret_->setText(QString::fromStdString(secret.value_or("")));
  secret_->setPlaceholderText(isKept ? tr("kept, type to replace it") : QString());
  addLine(label, *secret_);
  auto* kept = new QLabel(where, this);
  kept->setObjectName(QStringLiteral("channelSecretKept"));
  kept->setWordWrap(true);
  lines_->addWidget(kept, lines_->rowCount(), 1);
  follow(*secret_, where);
  connect(secret_, &QLineEdit::textEdited, this, &ChannelForm::edited);
}

void ChannelForm::follow(QWidget& control, const QString& text) {
  explain(control, text);
  control.setProperty(kHint, text);
  control.setFocusPolicy(Qt::StrongFocus);
  control.installEventFilter(this);
  if (&control == name_) {
    connect(name_, &QLineEdit::textEdited, this, &ChannelForm::edited);
  } else if (auto* flag = qobject_cast<QCheckBox*>(&control)) {
    connect(flag, &QCheckBox::clicked, this, &ChannelForm::edited);
  } else if (auto* number = qobject_cast<QSpinBox*>(&control)) {
    connect(number, &QSpinBox::valueChanged, this, &ChannelForm::edited);
  } else if (auto* lines = qobject_cast<QPlainTextEdit*>(&control)) {
    connect(lines, &QPlainTextEdit::textChanged, this, &ChannelForm::edited);
  }
}

bool ChannelForm::eventFilter(QObject* watched, QEvent* event) {
  const auto* control = static_cast<QWidget*>(watched);
  if (event->type() == QEvent::FocusIn) {
    Q_EMIT hint(control->property(kHint).toString());
  }
  // The wheel moves the page, unless a control was chosen before.
  if (event->type() == QEvent::Wheel && !control->hasFocus()) {
    event->ignore();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void ChannelForm::tellUsualPort() {
  const auto port = std::ranges::find(rows_, channel_field::port, [](const Row& row) { return row.field->name; });
  if (port != rows_.end()) {
    Channel channel{.name = {}, .kind = kind_.name};
    take(channel);
    channel.settings.erase(std::string(channel_field::port));
    auto* number = qobject_cast<QSpinBox*>(port->control.widget);
    number->setSpecialValueText(QString::number(mailServer(channel, {}).port));
  }
}

void ChannelForm::take(Channel& channel) const {
  channel.name = name_->bytes();
  channel.settings.clear();
  for (const Row& row : rows_) {
    if (const Value value = row.control.value()) {
      channel.settings.emplace(row.field->name, *value);
    }
  }
}

std::optional<std::string> ChannelForm::secret() const {
  return secret_ == nullptr || secret_->text().isEmpty() ? std::nullopt : std::optional(secret_->text().toStdString());
}

}  // namespace tarnwick
