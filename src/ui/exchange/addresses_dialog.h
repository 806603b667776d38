// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "exchange/foreign/any_list.h"
#include "program/program.h"
#include "ui/exchange/import_work.h"

namespace tarnwick {

/// The window `frmAddresses`: addresses, one a line, that were pasted, dropped or are typed. It tells how many of them
/// are new, there already, or none, and adds the new ones when the user agrees, as an import of such a file does.
class AddressesDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `program` outlives the window.
  AddressesDialog(Program& program, const QString& text, QWidget* parent);
  ~AddressesDialog() override;

  void done(int result) override;

 private:
  void layOut();
  void read();
  void tellPlan();
  void add();
  void lookAtAdding();

  Program& program_;
  AnyList list_;
  std::unique_ptr<ImportWork> work_;
  QTimer soon_;
  QPlainTextEdit* text_ = nullptr;
  QLabel* state_ = nullptr;
  QProgressBar* bar_ = nullptr;
  QPushButton* btnAdd_ = nullptr;
};

/// Opens the window on a text, above `parent`.
std::function<void(const QString& text)> addAddressesOf(Program& program, QWidget& parent);

}  // namespace tarnwick
