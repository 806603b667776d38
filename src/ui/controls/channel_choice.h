// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "delivery/channel_sender.h"
#include "program/program.h"
#include "store/channels.h"
#include "ui/controls/option_edit.h"

namespace tarnwick {

/// Through which channels alerts leave, of one site or of all: a menu of the channels, and a test through those that
/// are chosen.
class ChannelChoice final : public QGroupBox {
  Q_OBJECT

 public:
  /// `program` outlives this.
  ChannelChoice(Program& program, bool ofAll, QWidget* parent = nullptr);

  /// Shows what is set, and reads which channels there are. Touches nothing. Raises DataAccessError.
  void setValues(const OptionEdit& options);

 Q_SIGNALS:
  /// The user has chosen channels, as the option has them; an empty text stands for those of the defaults.
  void chosen(const QString& value);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void elide();
  void makeMenu();
  void choose();
  void showChosen();
  std::vector<Channel> throughNow() const;
  QString namesOf(const std::vector<Channel>& channels) const;
  void test();
  void testNext(std::vector<Channel> left, QStringList answers);

  Program& program_;
  bool ofAll_;
  std::vector<Channel> channels_;
  std::optional<std::string> own_;
  std::optional<std::string> default_;
  QString whole_;
  QPushButton* button_;
  QMenu* menu_;
  QPushButton* btnTest_;
  QLabel* answer_;
};

}  // namespace tarnwick
