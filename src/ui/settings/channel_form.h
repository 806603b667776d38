// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "store/channel_table.h"
#include "store/channels.h"
#include "ui/controls/byte_line_edit.h"
#include "ui/controls/option_control.h"

namespace tarnwick {

/// What is set of one channel, made from the table of the fields of its kind. Below it stands what the field with the
/// focus means.
class ChannelForm final : public QWidget {
  Q_OBJECT

 public:
  /// `inKeyRing`: where a secret is kept.
  ChannelForm(const Channel& channel, const std::optional<std::string>& secret, bool inKeyRing,
              QWidget* parent = nullptr);

  /// Puts what stands in the fields into a channel.
  void take(Channel& channel) const;
  /// The secret that was typed; nothing while none was.
  std::optional<std::string> secret() const;

  ByteLineEdit& name() { return *name_; }

 Q_SIGNALS:
  /// The user has changed something.
  void edited();
  /// What the field with the focus means.
  void hint(const QString& text);
  /// The user wants to choose the file whose path goes into `box`; `filter` as a `FileChoice` has it.
  void browse(ByteLineEdit& box, const QString& filter);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Row {
    const OptionField* field;
    OptionControl control;
  };

  void addRow(const OptionField& field);
  void addBrowse(const OptionField& field, ByteLineEdit& box);
  void addSecret(const std::optional<std::string>& secret, bool inKeyRing, bool isKept);
  void addLine(const QString& caption, QWidget& control);
  void follow(QWidget& control, const QString& hint);
  void tellUsualPort();

  const ChannelKind& kind_;
  QGridLayout* lines_;
  QHBoxLayout* line_ = nullptr;
  ByteLineEdit* name_;
  QLineEdit* secret_ = nullptr;
  std::vector<Row> rows_;
};

/// What an unset value of a field stands for, in a few words: "587", "STARTTLS required"; empty where it has to be set.
QString usualWords(const ChannelKind& kind, const OptionField& field);

}  // namespace tarnwick
