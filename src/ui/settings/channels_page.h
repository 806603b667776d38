// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>

#include "program/program.h"
#include "ui/settings/channel_form.h"
#include "ui/settings/channel_list.h"
#include "ui/settings/channel_trial.h"
#include "ui/settings/life_form.h"

namespace tarnwick {

/// The page of the settings that tells by which ways alerts leave. Nothing is read before the page is seen, and nothing
/// is written that was not changed.
class ChannelsPage final : public QWidget {
  Q_OBJECT

 public:
  /// `program` outlives the page.
  explicit ChannelsPage(Program& program, QWidget* parent = nullptr);

  bool isChanged() const;
  /// Stores what was changed but the secrets. Raises what `Channels::storeChannel` does, and turns to the channel then.
  /// REQUIRES: `settle` when all that is stored with it is.
  void store();
  /// Has the new secrets kept, and whatever is due delivered: nothing of it is waited for.
  void settle();

  /// Shows that channel.
  void choose(std::int64_t idChannel);

  QSize sizeHint() const override { return {762, 430}; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* makeList();
  QWidget* makeChannel();
  QPushButton* makeAdd(QWidget& parent);
  void load();
  void tellWhatMailDoes();
  void add(Channel channel, const QString& hint);
  void remove();
  void showChannel();
  void takeForm();
  void tellTried(bool isSent);
  void chooseFile(ByteLineEdit& into, const QString& filter);
  int currentRow() const;
  void chooseRow(int row);

  Program& program_;
  bool loaded_ = false;
  ChannelList* list_;
  QTableView* table_ = nullptr;
  QPushButton* btnRemove_ = nullptr;
  QCheckBox* forAll_ = nullptr;
  QLabel* mailNow_ = nullptr;
  QScrollArea* place_ = nullptr;
  QLabel* hint_ = nullptr;
  ChannelTrial* trial_ = nullptr;
  LifeForm* life_ = nullptr;
  ChannelForm* form_ = nullptr;  // of the chosen channel
  std::vector<std::int64_t> removed_;
  // What is to be kept once all is stored: the ids of channels with their new secrets.
  std::vector<std::pair<std::int64_t, std::string>> secrets_;
};

}  // namespace tarnwick
