// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSocketNotifier>

#include "exchange/foreign/list_reading.h"
#include "program/program.h"
#include "ui/exchange/import_work.h"
#include "ui/exchange/note_list.h"

namespace tarnwick {

/// The window `frmImport`: reads a file, tells what of it would come into the list and what not, and takes it when the
/// user agrees. It stands beside the main window, and nothing waits for it; it goes when it is closed.
class ImportDialog final : public QDialog {
  Q_OBJECT

 public:
  /// Begins to read the file of that path. `program` outlives the window.
  ImportDialog(Program& program, std::string file, QWidget* parent);
  ~ImportDialog() override;

  /// Ends what is going on: nothing of it stays.
  void done(int result) override;

 private:
  void layOut();
  void makeKinds();
  void read();
  void lookAtReading();
  void finishReading();
  /// Finds out and tells what an import would do now.
  void plan();
  void tellPlan();
  void tellFaults(const ListFaults& faults);
  void btnImport_Click();
  void lookAtImport();
  void showDone(const QString& what);
  void showNothingLeftToDo();

  Program& program_;
  const std::string file_;
  std::unique_ptr<ListReading> reading_;
  std::unique_ptr<QSocketNotifier> more_;
  ReadList list_;
  std::unique_ptr<ImportWork> work_;

  QComboBox* importKind_ = nullptr;
  QLabel* importState_ = nullptr;
  QProgressBar* importBar_ = nullptr;
  NoteList* notes_ = nullptr;
  QPushButton* btnImport_ = nullptr;
  QPushButton* btnCancel_ = nullptr;
};

/// Lets the user choose a file and opens the window on it, above `parent`.
std::function<void()> importOf(Program& program, QWidget& parent);

}  // namespace tarnwick
