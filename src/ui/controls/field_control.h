// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>
#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>

#include "store/fields.h"
#include "ui/controls/byte_line_edit.h"

namespace tarnwick {

/// A field of a site, or a setting, in the control that shows it.
struct FieldControl {
  std::string field;
  QWidget* widget;
  /// Takes a flag for a check box, a text for all others.
  std::function<void(const FieldValue&)> show;
  /// What the user chose; nothing while nothing is selected.
  std::function<std::optional<FieldValue>()> value;
};

FieldControl bindField(std::string field, ByteLineEdit& text);
FieldControl bindField(std::string field, QCheckBox& flag);
/// A list of numbers. One that the list does not offer selects nothing.
FieldControl bindField(std::string field, QListWidget& numbers);
/// Buttons of which each stands for a word, in any letter case. Another word selects none of them, and then the first
/// one counts.
FieldControl bindField(std::string field, std::vector<std::pair<std::string, QRadioButton*>> words);

/// How a field looks.
struct FieldLook {
  std::string field;
  FieldKind kind;
  std::string control;  ///< the object name
  QString caption;      ///< may hold a mnemonic
  QString accessibleName;
  QString toolTip;
};

/// The usual look of a field, and of a setting: as the table of them describes it.
template <typename Field>
FieldLook usualLook(const Field& field) {
  const QString label = QObject::tr(field.label.c_str());
  return {field.name, field.kind, field.name, label, label, QObject::tr(field.meaning.c_str())};
}

/// Makes the usual control of a field: a check box with its caption for a flag, a text box for all others.
FieldControl makeField(QWidget& parent, const FieldLook& look);

}  // namespace tarnwick
