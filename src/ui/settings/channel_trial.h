// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>

#include "delivery/channel_sender.h"
#include "program/program.h"
#include "ui/settings/channel_list.h"

namespace tarnwick {

/// The button that tries a channel with what stands in its fields, stored or not, and what came of it.
class ChannelTrial final : public QWidget {
  Q_OBJECT

 public:
  /// `draft` is asked for the chosen channel at each press. `program` outlives this.
  ChannelTrial(Program& program, std::function<ChannelDraft()> draft, QWidget* parent = nullptr);

  /// Another channel is chosen, or none: an answer that is still on its way belongs to the one before.
  void begin(bool isThere);

 Q_SIGNALS:
  /// The chosen channel was tried.
  void tried(bool isSent);

 private:
  void test();
  void tell(const SendReply& reply);

  Program& program_;
  std::function<ChannelDraft()> draft_;
  QPushButton* btnTest_;
  QPlainTextEdit* answer_;
  int trial_ = 0;
};

}  // namespace tarnwick
