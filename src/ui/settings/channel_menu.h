// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QMenu>
#include <QString>

#include "delivery/channel_preset.h"
#include "program/program.h"
#include "store/channel_table.h"
#include "store/channels.h"

namespace tarnwick {

/// The kinds of channels that can be added, and the services that a web hook knows the language of. Those are read
/// whenever the menu opens, so that a file that the user has just laid down is there.
class ChannelMenu final : public QMenu {
  Q_OBJECT

 public:
  /// Called with a new channel, and what its user has to know first. A failure ends in a box.
  using Wanted = std::function<void(Channel channel, const QString& hint)>;

  /// `program` outlives the menu.
  ChannelMenu(Program& program, Wanted wanted, QWidget* parent);

 private:
  void addKind(QMenu& menu, const ChannelKind& kind, const QString& words);
  void addHooks(const ChannelKind& kind);
  void readHooks();
  void addPreset(const ChannelPreset& preset);

  Program& program_;
  Wanted wanted_;
  QMenu* hooks_ = nullptr;
  QAction* above_ = nullptr;  // the line above the services
};

}  // namespace tarnwick
