// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

#include "program/program.h"
#include "store/data_changes.h"
#include "ui/outbox/outbox_model.h"

namespace tarnwick {

/// The window `frmOutbox`: the alerts that wait, have left or were given up, with what was answered to them. It stands
/// beside the main window, follows what happens by itself, and goes when it is closed.
class OutboxDialog final : public QDialog {
  Q_OBJECT

 public:
  /// Opens the settings of a channel.
  using OpenChannel = std::function<void(std::int64_t idChannel)>;

  /// Raises DataAccessError. `program` outlives the window.
  OutboxDialog(Program& program, OpenChannel openChannel, QWidget* parent);

  QSize sizeHint() const override { return {720, 400}; }

  /// Also takes the window down.
  void done(int result) override;

 private:
  struct Tab {
    OutboxModel* model;
    QTableView* table;
    QLabel* empty;
  };

  Tab addTab(OutboxRow::State state, const char* name, const QString& nothing);
  QWidget* makeButtons();
  void layOut();
  void look();
  void refresh();
  void show(Tab& tab);
  Tab& current();
  /// The rows that are chosen; all of the tab where none is.
  std::vector<int> chosenRows();
  std::vector<std::int64_t> chosenAlerts();
  void showAnswer();
  void retry();
  void drop();
  void openChannel();
  void copy();

  Program& program_;
  OpenChannel openChannel_;
  DataChanges changes_;
  QTimer timer_;
  QTabWidget* pages_;
  std::vector<Tab> tabs_;
  QPlainTextEdit* answer_;
  QPushButton* btnRetry_ = nullptr;
  QPushButton* btnDrop_ = nullptr;
  QPushButton* btnChannel_ = nullptr;
  QPushButton* btnCopy_ = nullptr;
};

/// Opens the one outbox window of `program`, above `parent`, or brings it to the front.
std::function<void()> outboxOf(Program& program, QWidget& parent, OutboxDialog::OpenChannel openChannel);

}  // namespace tarnwick
