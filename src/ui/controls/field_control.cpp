// SPDX-License-Identifier: MIT
#include "ui/controls/field_control.h"

#include "ui/controls/dialog_parts.h"

namespace tarnwick {

FieldControl bindField(std::string field, ByteLineEdit& text) {
  return {std::move(field), &text, [&text](const FieldValue& value) { text.setBytes(std::get<std::string>(value)); },
          [&text] { return text.bytes(); }};
}

FieldControl bindField(std::string field, QCheckBox& flag) {
  return {std::move(field), &flag, [&flag](const FieldValue& value) { flag.setChecked(std::get<bool>(value)); },
          [&flag] { return flag.isChecked(); }};
}

FieldControl bindField(std::string field, QListWidget& numbers) {
  const auto show = [&numbers](const FieldValue& value) {
    bool isNumber = false;
    const double stored = QString::fromStdString(std::get<std::string>(value)).toDouble(&isNumber);
    int row = isNumber ? numbers.count() - 1 : -1;
    while (row >= 0 && numbers.item(row)->text().toDouble() != stored) {
      --row;
    }
    numbers.setCurrentRow(row);
  };
  const auto value = [&numbers]() -> std::optional<FieldValue> {
    // What is selected and not what is current: the Tab key makes an item current on its way through the list.
    const auto selected = numbers.selectedItems();
    return selected.isEmpty() ? std::nullopt : std::optional(FieldValue(selected.front()->text().toStdString()));
  };
  return {std::move(field), &numbers, show, value};
}

FieldControl bindField(std::string field, std::vector<std::pair<std::string, QRadioButton*>> words) {
  const auto show = [words](const FieldValue& value) {
    const QString stored = QString::fromStdString(std::get<std::string>(value));
    // None of them can be left without a mark as long as they are exclusive.
    for (const auto& [word, button] : words) {
      button->setAutoExclusive(false);
      button->setChecked(stored.compare(QLatin1String(word.c_str()), Qt::CaseInsensitive) == 0);
    }
    for (const auto& [word, button] : words) {
      button->setAutoExclusive(true);
    }
  };
  QWidget* const first = words.front().second;
  const auto value = [words = std::move(words)]() -> std::optional<FieldValue> {
    for (const auto& [word, button] : words) {
      if (button->isChecked()) {
        return word;
      }
    }
    return words.front().first;
  };
  return {std::move(field), first, show, value};
}

FieldControl makeField(QWidget& parent, const FieldLook& look) {
  const auto bound = [&look](auto* control) {
    control->setToolTip(look.toolTip);
    return bindField(look.field, *named(control, look.control.c_str(), look.accessibleName));
  };
  if (look.kind == FieldKind::flag) {
    return bound(new QCheckBox(look.caption, &parent));
  }
  auto* text = new ByteLineEdit(&parent);
  text->setEchoMode(look.kind == FieldKind::secret ? QLineEdit::Password : QLineEdit::Normal);
  return bound(text);
}

}  // namespace tarnwick
